// The loaded fonts by font number.
#pragma once

#include "render/fonts/FontSet.h"

// The font of a number 0..20, null when the number names none.
FontSet* DrawFontOf(gint font);
// Line height used with it.
gint LineHeightOf(gint font);
// Loads font 0..19; an empty descriptor leaves the number without one.
void LoadDrawFont(gint font, const gchar* descriptor);
// The font of small labels is looked up anew when a text first needs it.
void ForgetSmallFont();
