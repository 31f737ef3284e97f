#include "CanvasKeys.h"

#include "PtrnData.h"
#include "app/Menus.h"

namespace {
// Button codes of the tool box and of the area menu.
enum { ItemDelete = 1, ItemCancel = 2 };
enum { AreaCancel = 0, AreaDelete = 1 };

bool ItemInHand() {
  return PtrnType != 0 && PtrnMode == ModeSelected;
}

gboolean DeleteKey() {
  if (PtrnMode == ModeArea) {
    AreaBoxButn(nullptr, GINT_TO_POINTER(AreaDelete));
    return TRUE;
  }
  const bool stored = ToolBoxMenu[ItemDelete] && gtk_widget_get_sensitive(ToolBoxMenu[ItemDelete]);
  if (!ItemInHand() || !stored) return FALSE;
  ToolBoxButn(nullptr, GINT_TO_POINTER(ItemDelete));
  return TRUE;
}

gboolean EscapeKey() {
  if (PtrnMode == ModeArea)
    AreaBoxButn(nullptr, GINT_TO_POINTER(AreaCancel));
  else if (PtrnMode != ModeIdle)
    ToolBoxButn(nullptr, GINT_TO_POINTER(ItemCancel));
  else if (PtrnType != 0)
    ClearToolBox();
  else
    return FALSE;
  return TRUE;
}

// The arrow keys, those of the number pad included, and where they move the item in hand.
struct ArrowKey {
  guint Key;
  guint PadKey;
  gint Columns;
  gint Rows;
};
constexpr ArrowKey ArrowKeys[] = {{GDK_KEY_Left, GDK_KEY_KP_Left, -1, 0},
                                  {GDK_KEY_Right, GDK_KEY_KP_Right, 1, 0},
                                  {GDK_KEY_Up, GDK_KEY_KP_Up, 0, -1},
                                  {GDK_KEY_Down, GDK_KEY_KP_Down, 0, 1}};

gboolean MoveKey(guint key) {
  for (const ArrowKey& arrow : ArrowKeys)
    if (key == arrow.Key || key == arrow.PadKey)
      return MoveItemInHand(arrow.Columns, arrow.Rows) != 0;
  return FALSE;
}
}  // namespace

gboolean CanvasKey(GtkWidget*, GdkEventKey* event, gpointer) {
  if (PtrnFlag == 0 || (event->state & gtk_accelerator_get_default_mod_mask()) != 0) return FALSE;
  if (event->keyval == GDK_KEY_Delete || event->keyval == GDK_KEY_KP_Delete) return DeleteKey();
  if (event->keyval == GDK_KEY_Escape) return EscapeKey();
  return MoveKey(event->keyval);
}
