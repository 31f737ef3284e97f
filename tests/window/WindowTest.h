// The main window in a program folder of the test's own.
#pragma once

#include <gtest/gtest.h>
#include <gtk/gtk.h>

#include <string>

#include "PtrnData.h"
#include "render/Surface.h"
#include "tests/common/TempFolder.h"

class WindowTest : public testing::Test {
 protected:
  // An empty program folder in PathName, every record cleared.
  WindowTest();
  // Closes every window.
  ~WindowTest() override;

  // Replaces the designer's profile.
  void WriteProfile(const std::string& text);
  // Builds and shows the main window as the program does.
  void OpenWindow();
  // Shows a new empty layout, its items already in the store.
  void ShowLayout(gint width, gint height, gint zoomIndex);

  TempFolder Program;
};

// The canvas as it stands on the display, after all that is queued has been painted.
PixbufPtr CanvasShot();
// Whether the shot at (x, y) shows exactly `picture`; names the first pixel that differs.
testing::AssertionResult Shows(GdkPixbuf* shot, gint x, gint y, const Drawable& picture);
// 0xRRGGBB of a pixel.
guint32 PixelAt(GdkPixbuf* shot, gint x, gint y);

// A mouse event of the canvas, as the display would send it.
void SendButton(GdkEventType type, guint button, gint x, gint y);
void SendMotion(gint x, gint y);
// One step of the wheel.
void SendWheel(GdkScrollDirection direction, gint x, gint y, GdkModifierType held = {});
// A part of a step, or several at once, as a fine wheel sends them; upwards negative.
void SendFineWheel(gdouble steps, GdkModifierType held = {});
// Presses button 1 at one point, moves, and lets go at another.
void Drag(gint x1, gint y1, gint x2, gint y2);
// A key of the main window.
void SendKey(guint key, GdkModifierType modifiers = {});

// A filled rectangle item.
PTRNDATA BoxItem(gint x1, gint y1, gint x2, gint y2, gint colour);
