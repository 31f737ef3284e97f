#include "support/KeptResources.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace {

KeptResources* Kept = nullptr;

}  // namespace

KeptResources::KeptResources(SettingsOf settings) : settings_(settings) {
  std::copy(std::begin(ColrData), std::end(ColrData), colours_.begin());
  std::copy(std::begin(MarkData), std::end(MarkData), marks_.begin());
  Kept = this;
}

KeptResources::~KeptResources() {
  Kept = nullptr;
}

bool KeptResources::RestorePalette() const {
  if (std::memcmp(ColrData, colours_.data(), sizeof ColrData) == 0) return false;
  std::copy(colours_.begin(), colours_.end(), std::begin(ColrData));
  return true;
}

void KeptResources::RestoreMarks() const {
  std::copy(marks_.begin(), marks_.end(), std::begin(MarkData));
}

bool ResourcesAreNewProjects() {
  return Kept != nullptr && Kept->settings_ == SettingsOf::NewProject;
}

void KeepSavedPalette() {
  if (Kept != nullptr && Kept->settings_ == SettingsOf::OpenProject) {
    std::copy(std::begin(ColrData), std::end(ColrData), Kept->colours_.begin());
  }
}
