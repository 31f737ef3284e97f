// The font table of the display language and the fonts made of it.
#pragma once

#include "Types.h"

// The number of the font of small labels, after those of the table.
enum { SmallFont = 20 };

// Rebuilds the font table for `Language`, which a non-zero mode first takes from the profile, then
// the fonts.
void FontDataInit(gint mode);
// Rebuilds the drawing fonts from FontName.
void SetDrawFont();
