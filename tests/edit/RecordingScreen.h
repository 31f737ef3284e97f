// A screen for tests: writes down what the editing asks of it and gives the answers that a test has
// laid out.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "layout/Records.h"

struct RecordingScreen {
  // One line per call, such as "SetCursor 1".
  std::vector<std::string> Calls;
  // Answers in the order of asking; without one, a dialog counts as closed (0).
  std::deque<gint> MessageAnswers;
  std::deque<gint> CloseAnswers;
  // What the user does in a dialog; without one, he cancels.
  std::function<gint()> LayoutSettings;
  std::function<gint()> LayoutOpen;
  std::function<gint()> ProjectSettings;
  std::function<gint()> ProjectOpen;
  std::function<gint(DLGPARM&)> CopyMove;
  // What packing the cursor keys puts into the item in hand.
  gint CursorKeys = 0;

  // How often a call was made.
  int Count(const std::string& call) const;
  // The calls since the last time, then forgotten.
  std::vector<std::string> Take();
};

// The one screen; the fixture empties it before each test.
extern RecordingScreen Screen;
