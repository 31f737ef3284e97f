// The basic types that every unit shares.
#pragma once

#include <glib.h>

// GTK itself is known to the user-interface units alone; all others pass its widgets on unopened.
typedef struct _GtkWidget GtkWidget;

#pragma pack(push, 1)

// A point in layout dots (screen pixels at 100 %) or, where a function says so, in zoomed pixels.
struct POINT {
  gint x;
  gint y;
};

// An extent in layout dots.
struct SIZE {
  gint cx;
  gint cy;
};

#pragma pack(pop)
