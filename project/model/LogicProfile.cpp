#include <optional>
#include <string>

#include "ProjData.h"
#include "PtrnMisc.h"
#include "project/model/RuntimeProfile.h"
#include "support/FileTools.h"
#include "support/ProfileFile.h"

void InitProjIni(const gchar* path, const gchar* name) {
  ReplaceFile(JoinPath(path, name, "ini"), NewRuntimeProfile());
}

void LogicDataEdit4() {
  if (!FileExist(ProjData.ProgPath, ProjName, "ini")) {
    InitProjIni(ProjData.ProgPath, ProjName);
  }
  const std::string file = JoinPath(ProjData.ProgPath, ProjName, "ini");
  std::optional<std::string> runtime = LoadProfile(file);
  if (!runtime) {
    return;  // there, but it cannot be read: left alone
  }
  const std::string designer = LoadProfile(ProfilePath("")).value_or("");
  UpdateRuntimeProfile(*runtime, designer, ProjData, ProjPath);
  ReplaceFile(file, *runtime);
}
