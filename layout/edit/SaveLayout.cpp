// The one road to the layout file. What a save would cost is kept beside it first.
#include <string>

#include "layout/LayoutCommands.h"
#include "layout/ProjectRecord.h"
#include "layout/Store.h"
#include "layout/edit/OwnFile.h"
#include "support/FileTools.h"

namespace {

// The file that the open layout came from or went to last; "" = none yet.
std::string OwnFile;
// The file whose content has been kept for a save that is still to be done. What stands there may
// be what the save has left of it, so it is not kept once more.
std::string KeptFile;

std::string FileOfLayout() {
  return JoinPath(ProjPath, PtrnName, "ptn");
}

// Whether there is something else than an earlier state of the open layout, or items that would be
// replaced by none. What cannot be looked at counts.
bool CostsWork(const std::string& file) {
  gint items = 0;
  switch (CheckPtrnFile(ProjPath, PtrnName, &items)) {
    case LayoutFileState::Missing:
      return false;
    case LayoutFileState::Whole:
      return file != OwnFile || (items > 0 && GetPtrnCount() == 0);
    default:
      return true;
  }
}

bool KeepWhatItCosts(const std::string& file) {
  if (file == KeptFile || !CostsWork(file)) return true;
  if (!KeepPtrnFile(ProjPath, PtrnName)) return false;
  KeptFile = file;
  return true;
}

}  // namespace

void ForgetOwnFile() {
  OwnFile.clear();
  KeptFile.clear();
}

void TakeOwnFile() {
  const std::string file = FileOfLayout();
  if (!IsMissing(file)) OwnFile = file;
}

bool SaveLayout() {
  const std::string file = FileOfLayout();
  if (!KeepWhatItCosts(file) || !WritePtrnFile(ProjPath, PtrnName)) return false;
  OwnFile = file;
  KeptFile.clear();
  return true;
}
