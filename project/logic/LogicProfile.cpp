#include <optional>
#include <string>

#include "layout/ProjectRecord.h"
#include "project/LogicGeneration.h"
#include "project/logic/Generation.h"
#include "project/logic/RuntimeProfile.h"
#include "support/FileTools.h"
#include "support/ProfileFile.h"

void InitProjIni(const gchar* path, const gchar* name) {
  ReplaceFile(JoinPath(path, name, "ini"), NewRuntimeProfile());
}

LogicProducts GenerateProfile() {
  const std::string file = JoinPath(ProjData.ProgPath, ProjName, "ini");
  std::optional<std::string> runtime =
      IsMissing(file) ? NewRuntimeProfile() : ReadWholeFile(file, ProfileLimit);
  const std::optional<std::string> designer = LoadProfile(ProfilePath(""));
  if (!runtime || !designer) {
    // There, but it cannot be read: the runtime profile is left alone.
    return {{file, ProductState::Failed}};
  }
  UpdateRuntimeProfile(*runtime, *designer, ProjData, ProjPath);
  return {{file, WrittenIf(ReplaceFile(file, *runtime))}};
}

void LogicDataEdit4() {
  GenerateProfile();
}
