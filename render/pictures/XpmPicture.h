// Picture text as pixels.
#pragma once

#include "render/Surface.h"

// One character a pixel; null when the header is none. A character without a definition takes the
// first colour, a definition without a readable colour is black.
PixbufPtr PixbufFromXpm(const gchar* const* xpm);
// Lines of the picture text, header included; 0 when the header is none.
gint XpmLineCount(const gchar* const* xpm);
