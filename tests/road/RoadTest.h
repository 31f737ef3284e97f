// The whole program in the test's own process, in a copy of its folder, with the sample project
// open; a user works in it.
#pragma once

#include <nlohmann/json.hpp>

#include "tests/road/Panel.h"
#include "tests/road/User.h"
#include "tests/window/Program.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

inline const std::string LayoutName = "試験画面";

class RoadTest : public WindowTest {
 protected:
  RoadTest();
  void SetUp() override { OpenWindow(); }

  // Makes an empty layout through menu and dialog.
  void NewLayout(gint width, gint height);
  // A file of the project as the companion tool shows it; fails the test when there is none.
  nlohmann::json Saved(const std::string& name) const;

  ProgramFolder Folder;
};

// Drags with the left button on the canvas, with a stop half way, in canvas pixels.
void DragOnCanvas(gint x1, gint y1, gint x2, gint y2);
void ClickCanvas(gint x, gint y, Button button = LeftButton);
// Saves by key and waits until it is done.
void SaveByKey();
// The program's windows of every kind, hidden ones included.
guint WindowCount();

// What the process holds, in bytes.
struct Memory {
  gint64 InUse = 0;     // handed out by the allocator
  gint64 Resident = 0;  // in RAM and shared with nobody
};
// Once everything has settled. What is shared tells nothing of the program: a picture on its way to
// the display takes a second place there, of the canvas' size, whenever the display has not fetched
// the one before, and the place stays.
Memory MemoryNow();
