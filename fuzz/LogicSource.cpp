// The source editing of logic generation: the first line is a layout's name, the rest the source
// that the user wrote.
#include "project/logic/LogicSource.h"

#include "fuzz/Fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view user = InputText(data, size);
  const std::string_view layout = TakeLine(user);
  FactorySource source(user);
  Require(source.Text() == user);
  const bool added = source.Register(layout);
  const std::string text = source.Text();
  if (!added) {
    Require(text == user);
    return 0;
  }
  // All that the user wrote stands, with one line put between.
  const std::string line = DispatchLine(layout);
  bool found = false;
  for (std::size_t at = text.find(line); at != std::string::npos && !found;
       at = text.find(line, at + 1)) {
    found = std::string(text).erase(at, line.size()) == user;
  }
  Require(found);
  return 0;
}
