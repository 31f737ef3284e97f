#include "project/check/Check.h"
#include "render/FontTable.h"
#include "render/LayoutPicture.h"
#include "render/Primitives.h"
#include "tools/Commands.h"
#include "tools/FindingText.h"
#include "tools/OpenProject.h"
#include "tools/Report.h"
#include "tools/json/FindingsJson.h"

int RunCheck(const CheckOptions& options) {
  const ProfileInUse profile(options.Profile);
  if (!profile.Good() || !OpenProject(options.Project)) return ExitFailed;
  InitDrawData();
  FontDataInit(1);
  const std::vector<Finding> findings = CheckProject(LoadCheckedProject());
  std::string text;
  if (options.Json) {
    text = JsonOfFindings(findings);
  } else {
    for (const Finding& finding : findings) text += FindingLine(finding);
  }
  const int printed = Print(text);
  return findings.empty() ? printed : ExitFailed;
}
