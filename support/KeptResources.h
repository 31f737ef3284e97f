// The open project's palette and marks, kept while settings are shown that may be cancelled.
#pragma once

#include <array>

#include "support/Resource.h"

// Whose settings are shown.
enum class SettingsOf {
  OpenProject,  // what is saved meanwhile is written, and stays
  NewProject,   // palette and marks in memory are the new project's, whose folder is not there yet
};

class KeptResources {
 public:
  // Remembers both tables. There is one at a time.
  explicit KeptResources(SettingsOf settings);
  ~KeptResources();
  KeptResources(const KeptResources&) = delete;
  KeptResources& operator=(const KeptResources&) = delete;

  // Puts the palette back as it was, or as it was saved since. False when it is so already.
  bool RestorePalette() const;
  // Puts the marks back as they were.
  void RestoreMarks() const;

 private:
  friend bool ResourcesAreNewProjects();
  friend void KeepSavedPalette();

  SettingsOf settings_;
  std::array<COLRDATA, ColrCount> colours_;
  std::array<MARKDATA, MarkCount> marks_;
};

// True while the settings of a new project are shown: then nothing of it is written, for the only
// folder is the open project's.
bool ResourcesAreNewProjects();
// The palette's file holds it now: cancelled settings leave it so.
void KeepSavedPalette();
