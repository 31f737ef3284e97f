#include "tools/OpenProject.h"

#include <algorithm>

#include "project/ProjectFiles.h"
#include "project/model/LayoutNames.h"
#include "project/model/ProjectTexts.h"
#include "support/RecordBytes.h"
#include "support/Text.h"
#include "tools/InputFile.h"
#include "tools/Report.h"

namespace {

constexpr std::string_view Suffix = ".prj";

std::string FullPath(const std::string& path) {
  const std::unique_ptr<gchar, decltype(&g_free)> full(
      g_canonicalize_filename(path.c_str(), nullptr), g_free);
  return full.get();
}

}  // namespace

bool OpenProject(const std::string& file) {
  const std::string path = FullPath(ExistingPath(file));
  const std::string_view base = BaseName(path);
  if (!base.ends_with(Suffix)) return Refuse(file, "not named \"*.prj\"");
  const FileBytes input = ReadFileOfKind(FileKind::Project, path);
  if (!input.Bytes) return Refuse(file, input.Error);
  const std::string name(base.substr(0, base.size() - Suffix.size()));
  const std::string folder = FolderName(path);
  PROJFILE record;
  if (!FillRecords(&record, 1, *input.Bytes)) return Refuse(file, "not a whole project file");
  // The bitmap folder is the longest path made of the project's.
  if (name.size() >= sizeof(ProjName) || folder.size() + sizeof("/Bitmap") > sizeof(ProjPath)) {
    return Refuse(file, "its path is longer than the program can hold");
  }
  EnterProject(folder, name);
  ProjData = CleanTexts(record.Data);
  return true;
}

std::vector<std::string> SortedLayouts() {
  std::vector<std::string> names = LayoutNames(ProjPath);
  std::sort(names.begin(), names.end());
  return names;
}

std::string FindLayout(const std::string& name) {
  const std::vector<std::string> names = SortedLayouts();
  const auto bytes = std::find(names.begin(), names.end(), name);
  if (bytes != names.end()) return *bytes;
  const auto shown = std::find_if(names.begin(), names.end(), [&name](const std::string& layout) {
    return DisplayText(layout) == name;
  });
  return shown == names.end() ? std::string() : *shown;
}
