#include "project/model/LayoutNames.h"

#include "support/FileTools.h"

namespace {

constexpr std::string_view Suffix = ".ptn";

}  // namespace

std::vector<std::string> LayoutNames(const std::string& folder) {
  std::vector<std::string> names;
  VisitFiles(folder, "*.ptn",
             [&names](const std::string& name) { names.push_back(LayoutName(name)); });
  return names;
}

std::string LayoutName(std::string_view file) {
  // A layout's own name may hold a ".".
  if (file.ends_with(Suffix)) {
    file.remove_suffix(Suffix.size());
  }
  return std::string(file);
}
