#include "project/logic/LogicSource.h"

namespace {

constexpr std::size_t LineLimit = 499;

// Lines with their line feed; a longer line counts as several.
std::vector<std::string> SplitLines(std::string_view source) {
  std::vector<std::string> lines;
  while (!source.empty()) {
    const std::string_view head = source.substr(0, LineLimit);
    const std::size_t end = head.find('\n');
    const std::size_t length = end == std::string_view::npos ? head.size() : end + 1;
    lines.emplace_back(source.substr(0, length));
    source.remove_prefix(length);
  }
  return lines;
}

}  // namespace

FactorySource::FactorySource(std::string_view source) : lines_(SplitLines(source)), body_(0) {
  while (body_ < lines_.size() && !Occurs(lines_[body_++], "GetPtrnWnd")) {
  }
}

bool FactorySource::Register(std::string_view layout) {
  for (std::size_t i = body_; i < lines_.size(); ++i) {
    if (Occurs(lines_[i], layout)) return false;
    if (Occurs(lines_[i], "return NULL;")) {
      lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(i), DispatchLine(layout));
      return true;
    }
  }
  return false;
}

std::string FactorySource::Text() const {
  std::string text;
  for (const std::string& line : lines_) text += line;
  return text;
}
