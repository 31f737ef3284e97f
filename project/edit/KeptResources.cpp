#include "project/edit/KeptResources.h"

#include <algorithm>
#include <iterator>

#include "ProjData.h"
#include "support/FileTools.h"

KeptResources::KeptResources() {
  std::copy(std::begin(ColrData), std::end(ColrData), Colours.begin());
  std::copy(std::begin(MarkData), std::end(MarkData), Marks.begin());
  if (ProjFlag != 0) {
    FileName = JoinPath(ProjPath, "PtrnColr", "");
    FileContent = ReadWholeFile(FileName);
  }
}

void KeptResources::Restore() const {
  std::copy(Colours.begin(), Colours.end(), std::begin(ColrData));
  std::copy(Marks.begin(), Marks.end(), std::begin(MarkData));
  SetDrawColr();
  SetDrawMark();
}

bool KeptResources::FileRewritten() const {
  return !FileName.empty() && ReadWholeFile(FileName) != FileContent;
}

void KeptResources::RestoreFile() const {
  if (FileContent.has_value() && FileRewritten()) {
    ReplaceFile(FileName, *FileContent);
  }
}
