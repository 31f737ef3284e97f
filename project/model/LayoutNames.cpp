#include "project/model/LayoutNames.h"

#include <string_view>

#include "support/FileTools.h"

namespace {

constexpr std::string_view Suffix = ".ptn";

}  // namespace

std::vector<std::string> LayoutNames(const std::string& folder) {
  std::vector<std::string> names;
  VisitFiles(folder, "*.ptn", [&names](const std::string& name) {
    // A layout's own name may hold a ".".
    names.push_back(name.substr(0, name.size() - Suffix.size()));
  });
  return names;
}
