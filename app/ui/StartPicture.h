// The start-up picture on the screen.
#pragma once

#include <cairo.h>

#include "render/Surface.h"

// Shows what MakeInitWindow painted over all of `picture`. Only its images are copied: the white
// around them is nothing but a fill, which the display makes by itself.
void ShowStartPicture(cairo_t* cairo, Drawable& picture);
