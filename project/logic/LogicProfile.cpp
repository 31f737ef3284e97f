#include <optional>
#include <string>

#include "project/LogicGeneration.h"
#include "project/ProjectRecord.h"
#include "project/logic/RuntimeProfile.h"
#include "support/FileTools.h"
#include "support/ProfileFile.h"

void InitProjIni(const gchar* path, const gchar* name) {
  ReplaceFile(JoinPath(path, name, "ini"), NewRuntimeProfile());
}

void LogicDataEdit4() {
  const std::string file = JoinPath(ProjData.ProgPath, ProjName, "ini");
  std::optional<std::string> runtime =
      IsMissing(file) ? NewRuntimeProfile() : ReadWholeFile(file, ProfileLimit);
  const std::optional<std::string> designer = LoadProfile(ProfilePath(""));
  if (!runtime || !designer) {
    return;  // there, but it cannot be read: the runtime profile is left alone
  }
  UpdateRuntimeProfile(*runtime, *designer, ProjData, ProjPath);
  ReplaceFile(file, *runtime);
}
