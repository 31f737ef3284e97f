#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <vector>

#include "layout/ProjectRecord.h"
#include "project/LogicGeneration.h"
#include "project/check/Check.h"
#include "project/logic/Generation.h"
#include "support/Files.h"
#include "tools/Commands.h"
#include "tools/FindingText.h"
#include "tools/OpenProject.h"
#include "tools/Report.h"

namespace {

bool SetProgramFolder(const std::string& folder) {
  if (folder.size() >= sizeof(ProjData.ProgPath)) return false;
  g_strlcpy(ProjData.ProgPath, folder.c_str(), sizeof(ProjData.ProgPath));
  return true;
}

// Whether `folder` can take files; else the reason has been told.
bool UsableFolder(const std::string& folder) {
  struct stat status {};
  if (stat(folder.c_str(), &status) != 0 || !S_ISDIR(status.st_mode)) {
    return Refuse(folder, "no such folder");
  }
  if (access(folder.c_str(), W_OK | X_OK) != 0) return Refuse(folder, "cannot be written");
  // The longest name made there is that of a file with a four-character extension.
  if (folder.size() + 1 + std::string_view(ProjName).size() + sizeof(".cpp") > PathSize) {
    return Refuse(folder, "its path is longer than the program can hold");
  }
  return true;
}

int ReportProducts(const LogicProducts& products) {
  std::string written;
  int result = ExitDone;
  for (const LogicProduct& product : products) {
    if (product.State == ProductState::Written) written += ShownPath(product.Path) + "\n";
    if (product.State == ProductState::Failed) result = Fail(product.Path, "cannot be written");
  }
  const int printed = Print(written);
  return result == ExitDone ? printed : result;
}

// Whether all names can stand in sources; else each that cannot has been told.
bool UsableNames() {
  const std::vector<Finding> findings = RunCheckRule(SourceNameRule(), LoadCheckedProject());
  for (const Finding& finding : findings) {
    std::fputs(("varnixtool: " + FindingLine(finding)).c_str(), stderr);
  }
  return findings.empty();
}

}  // namespace

int RunGenerate(const GenerateOptions& options) {
  const ProfileInUse profile(options.Profile);
  if (!profile.Good() || !OpenProject(options.Project)) return ExitFailed;
  if (!options.ProgramFolder.empty() && !SetProgramFolder(options.ProgramFolder)) {
    return Fail(options.ProgramFolder, "its path is longer than the program can hold");
  }
  if (ProjData.ProgPath[0] == '\0') return Fail(options.Project, "names no program folder");
  if (!UsableFolder(ProjPath) || !UsableFolder(ProjData.ProgPath) || !UsableNames()) {
    return ExitFailed;
  }
  return ReportProducts(GenerateLogic());
}
