#include "app/ui/WindowPlace.h"

#include "app/Window.h"
#include "support/Profile.h"

namespace {

// Larger values cannot be a window's size on any X display.
constexpr gint LargestWindow = 32767;

// The last one, kept because the window is gone when it is saved.
SIZE WindowSize;

bool IsWindowExtent(gint extent) {
  return extent > 0 && extent <= LargestWindow;
}

}  // namespace

SIZE SavedWindowSize() {
  gint width = 0;
  gint height = 0;
  ProfileRead1("", "PROJECT", "WINDOW", "ii", &width, &height);
  if (!IsWindowExtent(width) || !IsWindowExtent(height)) return {800, 600};
  return {width, height};
}

void RememberWindowSize(GtkWidget* /*widget*/, GdkRectangle* allocation, gpointer /*data*/) {
  WindowSize = {allocation->width, allocation->height};
}

void ExitVarnixMaster() {
  ProfileWrite1("", "PROJECT", "WINDOW", "ii", &WindowSize.cx, &WindowSize.cy);
}
