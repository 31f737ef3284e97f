#include "project/edit/KeptResources.h"

#include <algorithm>
#include <iterator>

#include "ProjData.h"
#include "support/FileTools.h"

namespace {

// A palette file has 1200 bytes; one that is absurdly larger is left alone.
constexpr std::size_t LargestFile = 65536;

}  // namespace

KeptResources::KeptResources() {
  std::copy(std::begin(ColrData), std::end(ColrData), Colours.begin());
  std::copy(std::begin(MarkData), std::end(MarkData), Marks.begin());
  if (ProjFlag != 0) {
    FileName = JoinPath(ProjPath, "PtrnColr", "");
    FileContent = ReadWholeFile(FileName, LargestFile);
  }
}

void KeptResources::Restore() const {
  std::copy(Colours.begin(), Colours.end(), std::begin(ColrData));
  std::copy(Marks.begin(), Marks.end(), std::begin(MarkData));
  SetDrawColr();
  SetDrawMark();
}

bool KeptResources::FileRewritten() const {
  return !FileName.empty() && ReadWholeFile(FileName, LargestFile) != FileContent;
}

void KeptResources::RestoreFile() const {
  if (FileContent.has_value() && FileRewritten()) {
    ReplaceFile(FileName, *FileContent);
  }
}
