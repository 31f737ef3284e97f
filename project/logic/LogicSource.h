// The text of the generated sources.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "layout/Records.h"

// "VarnixCode.h": one define for each code, in registry order.
std::string CodeHeader(std::span<const PTRNCODE> registry);
// A project's own header and source, as they are created once.
std::string ProjectHeader();
std::string ProjectSource(std::string_view project);
// The line of the window factory that makes the window of a layout.
std::string DispatchLine(std::string_view layout);
// Whether `text` occurs in `line`; the very last place is not examined.
bool Occurs(std::string_view line, std::string_view text);

// A project's source, into which layouts are registered; everything else stays as the user wrote
// it.
class FactorySource {
 public:
  explicit FactorySource(std::string_view source);
  // Adds the layout's dispatch line above the factory's "return NULL;". False when it is not added:
  // its name occurs in the factory before that line (also as part of other text), or there is no
  // factory.
  bool Register(std::string_view layout);
  std::string Text() const;

 private:
  std::vector<std::string> lines_;
  std::size_t body_;  // first line after the one that names the factory
};
