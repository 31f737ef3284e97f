// The palette numbers that swatches were given lately.
#pragma once

#include <glib.h>

#include <span>

// The latest first, none twice; kept while the program runs.
std::span<const gint> RecentColours();
void NoteRecentColour(gint number);
