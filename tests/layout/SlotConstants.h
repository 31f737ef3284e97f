// The slot constants as a header writes them.
#pragma once

#include <fstream>
#include <map>
#include <regex>
#include <sstream>
#include <string>

#include "Types.h"

// Group -> name -> slot.
using SlotConstants = std::map<std::string, std::map<std::string, gint>>;

inline SlotConstants WrittenConstants(const std::string& header) {
  std::ostringstream text;
  text << std::ifstream(TEST_SOURCE_DIR "/" + header).rdbuf();
  const std::string source =
      std::regex_replace(text.str(), std::regex(R"(//[^\n]*|/\*.*?\*/)"), "");
  const std::regex group(R"(namespace (\w+) \{\s*enum \{([^}]*)\})");
  const std::regex constant(R"((\w+) = (\d+))");
  SlotConstants constants;
  for (std::sregex_iterator at(source.begin(), source.end(), group), end; at != end; ++at) {
    const std::string body = (*at)[2];
    for (std::sregex_iterator one(body.begin(), body.end(), constant); one != end; ++one) {
      constants[(*at)[1]][(*one)[1]] = std::stoi((*one)[2]);
    }
  }
  return constants;
}
