#include "support/KeptResources.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace {

KeptResources* Kept = nullptr;

}  // namespace

KeptResources::KeptResources(SettingsOf settings) : Settings(settings) {
  std::copy(std::begin(ColrData), std::end(ColrData), Colours.begin());
  std::copy(std::begin(MarkData), std::end(MarkData), Marks.begin());
  Kept = this;
}

KeptResources::~KeptResources() {
  Kept = nullptr;
}

bool KeptResources::RestorePalette() const {
  if (std::memcmp(ColrData, Colours.data(), sizeof ColrData) == 0) {
    return false;
  }
  std::copy(Colours.begin(), Colours.end(), std::begin(ColrData));
  return true;
}

void KeptResources::RestoreMarks() const {
  std::copy(Marks.begin(), Marks.end(), std::begin(MarkData));
}

bool ResourcesAreNewProjects() {
  return Kept != nullptr && Kept->Settings == SettingsOf::NewProject;
}

void KeepSavedPalette() {
  if (Kept != nullptr && Kept->Settings == SettingsOf::OpenProject) {
    std::copy(std::begin(ColrData), std::end(ColrData), Kept->Colours.begin());
  }
}
