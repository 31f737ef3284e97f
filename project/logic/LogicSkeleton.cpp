// The project's own sources: created once, later only given new dispatch lines.
#include <optional>
#include <string>

#include "project/LogicGeneration.h"
#include "project/ProjectRecord.h"
#include "project/logic/LogicSource.h"
#include "project/model/LayoutNames.h"
#include "support/FileTools.h"
#include "support/Text.h"

namespace {

std::string ProgramFile(const gchar* ext) {
  return JoinPath(ProjData.ProgPath, ProjName, ext);
}

void CreateOnce(const gchar* ext, const std::string& text) {
  if (IsMissing(ProgramFile(ext))) {
    ReplaceFile(ProgramFile(ext), text);
  }
}

// The runtime makes these windows itself.
bool IsBuiltIn(const std::string& layout) {
  static const std::optional<std::string> VersionScreen = EucFromUtf8("バージョン情報");
  static const std::optional<std::string> MaintenanceScreen = EucFromUtf8("メンテナンス");
  return layout == VersionScreen || layout == MaintenanceScreen;
}

// Registers layouts in the source; it is written only when a line was added.
void RegisterLayouts(const std::vector<std::string>& layouts) {
  const std::optional<std::string> text = ReadWholeFile(ProgramFile("cpp"));
  if (!text) {
    return;
  }
  FactorySource source(*text);
  bool added = false;
  for (const std::string& layout : layouts) {
    added = source.Register(layout) || added;
  }
  if (added) {
    ReplaceProtectedFile(ProgramFile("cpp"), source.Text());
  }
}

}  // namespace

void SetPtrnName(const gchar* name) {
  RegisterLayouts({name});
}

void LogicDataEdit3() {
  CreateOnce("h", ProjectHeader());
  CreateOnce("cpp", ProjectSource(ProjName));
  std::vector<std::string> layouts = LayoutNames(ProjPath);
  std::erase_if(layouts, IsBuiltIn);
  RegisterLayouts(layouts);
}
