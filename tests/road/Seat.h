// The pointer and the keyboard of the display, moved and pressed as hands do.
#pragma once

#include <glib.h>

#include <memory>

typedef struct _XDisplay Display;

class Seat {
 public:
  Seat();
  ~Seat();
  Seat(const Seat&) = delete;
  Seat& operator=(const Seat&) = delete;

  // Each returns when the display has sent out what follows.
  void MovePointer(gint x, gint y);
  void MovePointerBy(gint x, gint y);
  void SendButton(guint button, bool press);
  // Both at the same moment, however late they are handled.
  void SendClick(guint button);
  void SendKey(guint key, bool press);
  // Whether no program holds the pointer for itself, as a window manager does during a drag.
  bool PointerIsFree();
  // Whether the key's symbol stands on its second level.
  bool NeedsShift(guint key);

 private:
  Display* display_;
};
