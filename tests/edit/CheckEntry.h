// A check entry of a menu as the view commands see it: an object with the property "active".
#pragma once

#include "Types.h"

class CheckEntry {
 public:
  explicit CheckEntry(bool active);
  ~CheckEntry();
  CheckEntry(const CheckEntry&) = delete;
  CheckEntry& operator=(const CheckEntry&) = delete;

  GtkWidget* Widget() const;

 private:
  gpointer object_;
};

// The entry switched on or off, given to a command.
using ViewCommand = void (*)(GtkWidget* widget, gpointer data);
void Toggle(ViewCommand command, gint data, bool active);
