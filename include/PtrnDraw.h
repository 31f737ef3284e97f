// Drawing: surface, primitives, resources, renderers, hit tests.
#pragma once

#include "Types.h"
#include "render/FontTable.h"
#include "render/HitTest.h"
#include "render/Items.h"
#include "render/LayoutPicture.h"
#include "render/Marks.h"
#include "render/Palette.h"
#include "render/Pictures.h"
#include "render/Primitives.h"
#include "render/Surface.h"
#include "support/Resource.h"
