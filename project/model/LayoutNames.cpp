#include "project/model/LayoutNames.h"

#include "support/FileTools.h"

namespace {

constexpr std::string_view Suffix = ".ptn";

}  // namespace

std::vector<std::string> LayoutNames(const std::string& folder) {
  return ListLayoutNames(folder).value_or(std::vector<std::string>());
}

std::optional<std::vector<std::string>> ListLayoutNames(const std::string& folder) {
  std::vector<std::string> names;
  if (!VisitFiles(folder, "*.ptn",
                  [&names](const std::string& name) { names.push_back(LayoutName(name)); })) {
    return std::nullopt;
  }
  return names;
}

std::string LayoutName(std::string_view file) {
  // A layout's own name may hold a ".".
  if (file.ends_with(Suffix)) file.remove_suffix(Suffix.size());
  return std::string(file);
}
