// The project's own sources: created once, later only given new dispatch lines.
#include <optional>
#include <string>

#include "layout/ProjectRecord.h"
#include "project/LogicGeneration.h"
#include "project/logic/Generation.h"
#include "project/logic/LogicSource.h"
#include "project/model/LayoutNames.h"
#include "support/FileTools.h"
#include "support/Text.h"

namespace {

std::string ProgramFile(const gchar* ext) {
  return JoinPath(ProjData.ProgPath, ProjName, ext);
}

ProductState CreateOnce(const gchar* ext, const std::string& text) {
  if (!IsMissing(ProgramFile(ext))) return ProductState::Kept;
  return WrittenIf(ReplaceFile(ProgramFile(ext), text));
}

// The runtime makes these windows itself.
bool IsBuiltIn(const std::string& layout) {
  static const std::optional<std::string> VersionScreen = EucFromUtf8("バージョン情報");
  static const std::optional<std::string> MaintenanceScreen = EucFromUtf8("メンテナンス");
  return layout == VersionScreen || layout == MaintenanceScreen;
}

// Registers layouts in the source; it is written only when a line was added.
ProductState RegisterLayouts(const std::vector<std::string>& layouts) {
  const std::optional<std::string> text = ReadWholeFile(ProgramFile("cpp"));
  if (!text) return ProductState::Failed;
  FactorySource source(*text);
  bool added = false;
  for (const std::string& layout : layouts) added = source.Register(layout) || added;
  if (!added) return ProductState::Kept;
  return WrittenIf(ReplaceProtectedFile(ProgramFile("cpp"), source.Text()));
}

}  // namespace

void SetPtrnName(const gchar* name) {
  RegisterLayouts({name});
}

LogicProducts GenerateSources() {
  const ProductState header = CreateOnce("h", ProjectHeader());
  const ProductState created = CreateOnce("cpp", ProjectSource(ProjName));
  std::vector<std::string> layouts = LayoutNames(ProjPath);
  std::erase_if(layouts, IsBuiltIn);
  const ProductState registered = RegisterLayouts(layouts);
  return {{ProgramFile("h"), header},
          {ProgramFile("cpp"), registered == ProductState::Kept ? created : registered}};
}

void LogicDataEdit3() {
  GenerateSources();
}
