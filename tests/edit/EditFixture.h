// A program folder, a project and an open layout of 200 x 100 dots at 100 % with a grid of 1 dot.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "layout/Records.h"
#include "tests/common/TempFolder.h"
#include "tests/edit/RecordingScreen.h"

class EditFixture : public testing::Test {
 protected:
  EditFixture();
  ~EditFixture() override;

  TempFolder Folder;
  const std::string ProgramFolder = Folder.Path("program");
  const std::string ProjectFolder = Folder.Path("project");

  // Writes the designer profile.
  void WriteProfile(std::string_view text) const;
  // Number of undo snapshots on disk.
  int SnapshotCount() const;
};

// Indices into the list of zooms.
enum ZoomIndex { Zoom500 = 0, Zoom200 = 1, Zoom100 = 2, Zoom75 = 3, Zoom50 = 4 };

// An item of the type with its points set; otherwise zeros.
PTRNDATA MakeItem(gint type, gint x1, gint y1, gint x2, gint y2);
// An item that every rule accepts.
PTRNDATA MakeValidItem(gint type, gint x1, gint y1, gint x2, gint y2);
// The stored item as a value.
PTRNDATA Stored(gint no);
// "(x1,y1)-(x2,y2)" of the item.
std::string PointsOf(const PTRNDATA& item);
// The four parameters that hold the points.
std::vector<gint> PointParmsOf(const PTRNDATA& item);
// Menu data of an entry.
gpointer Entry(gint number);

// Mouse events on the canvas, in zoomed pixels.
void Press(gint x, gint y);
void Move(gint x, gint y);
void Release(gint x, gint y);
