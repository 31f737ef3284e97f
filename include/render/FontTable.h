// The font table of the display language and the fonts made of it.
#pragma once

#include "Types.h"

// Rebuilds the font table for `Language`, which a non-zero mode first takes from the profile, then
// the fonts.
void FontDataInit(gint mode);
// Rebuilds the drawing fonts from FontName.
void SetDrawFont();
