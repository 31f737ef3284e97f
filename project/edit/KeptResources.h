// Palette and marks of the open project, kept while the settings dialog works on other ones.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "support/Resource.h"

class KeptResources {
 public:
  // Remembers palette, marks and the open project's palette file.
  KeptResources();
  // Puts palette and marks back and rebuilds what is drawn with them.
  void Restore() const;
  // True when the palette file was written meanwhile.
  bool FileRewritten() const;
  // Puts the palette file back if it was.
  void RestoreFile() const;

 private:
  std::array<COLRDATA, ColrCount> Colours;
  std::array<MARKDATA, MarkCount> Marks;
  std::string FileName;
  std::optional<std::string> FileContent;
};
