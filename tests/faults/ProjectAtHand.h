// A whole project on disk, open in the program, with the layout "Screen" open in it.
#pragma once

#include "tests/edit/EditFixture.h"
#include "tests/faults/FileCalls.h"
#include "tests/faults/FolderImage.h"

class ProjectAtHand : public EditFixture {
 protected:
  ProjectAtHand();
  ~ProjectAtHand() override;

  // The program as after opening project and layout, whatever happened before.
  void Open() const;
  // All files as they were at first.
  void Restore() const { ::Restore(Folder.Path(), Laid); }
  FolderImage Image() const { return ImageOf(Folder.Path()); }

  // Opens the layout "Screen" by the menu's command.
  static void OpenScreen();
  // Enters one more item with its code, texts and defaults.
  static void AddItem(const gchar* code);

  const std::string SourceFolder = Folder.Path("source");
  FolderImage Laid;

 private:
  void LayOut() const;
};

// All that the program holds of project and layout.
std::string MemoryImage();
