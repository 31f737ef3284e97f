#include "layout/EditState.h"
#include "layout/Guards.h"
#include "layout/ItemSlots.h"
#include "layout/Store.h"
#include "render/LayoutPicture.h"
#include "render/Primitives.h"
#include "render/surface/Plane.h"

void DrawWindow2(Drawable* drawable, DrawGc* gc) {
  const gint zoom = ZoomPercent(PtrnHedr.Parm2[ViewSlot::Zoom]);
  if (PtrnUndef != 0) {
    DrawUndfData(drawable, gc, zoom);
  } else if (PtrnMode >= ModeCreating && PtrnMode <= ModeDragging) {
    DrawMoveData(drawable, gc, &PtrnData, zoom);
  } else if (PtrnMode == ModeArea) {
    DrawRect(drawable, gc, Zoomed(AreaPoint1.x, zoom), Zoomed(AreaPoint1.y, zoom),
             Zoomed(AreaPoint2.x, zoom), Zoomed(AreaPoint2.y, zoom), 1, 0,
             PtrnHedr.Parm2[ViewSlot::GridColour], -1);
  }
}
