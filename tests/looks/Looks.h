// The sample project in a program that is looked at, window by window.
#pragma once

#include "tests/looks/Picture.h"
#include "tests/road/RoadTest.h"

class LooksTest : public RoadTest {
 protected:
  LooksTest();
  // Opens a layout of the project by its dialog.
  void OpenLayout(const std::string& name);
  // The layout with one item of each type.
  void OpenSamples() { OpenLayout("見本"); }
  // Picks the sample of a type (1..15) and waits for its panel.
  GtkWidget* PickSample(gint type);

 private:
  TempFolder home_;
};
