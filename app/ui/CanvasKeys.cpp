#include "app/ui/CanvasKeys.h"

#include "PtrnData.h"
#include "app/Menus.h"
#include "app/ui/AreaMenu.h"

namespace {

bool ItemInHand() {
  return PtrnType != 0 && PtrnMode == ModeSelected;
}

// Runs a command on the item in hand where its menu entry could.
gboolean ItemCommand(gint command) {
  GtkWidget* entry = ToolBoxMenu[command];
  if (!ItemInHand() || entry == nullptr || !gtk_widget_get_sensitive(entry)) return FALSE;
  ToolBoxButn(nullptr, GINT_TO_POINTER(command));
  return TRUE;
}

gboolean DeleteKey() {
  if (PtrnMode != ModeArea) return ItemCommand(ButtonCode::Delete);
  AreaBoxButn(nullptr, GINT_TO_POINTER(AreaCode::Delete));
  return TRUE;
}

gboolean EscapeKey() {
  if (PtrnMode == ModeArea) {
    GiveUpArea();
  } else if (PtrnMode != ModeIdle) {
    ToolBoxButn(nullptr, GINT_TO_POINTER(ButtonCode::Cancel));
  } else if (PtrnType != 0) {
    ClearToolBox();
  } else {
    return FALSE;
  }
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
  for (const ArrowKey& arrow : ArrowKeys) {
    if (key == arrow.Key || key == arrow.PadKey) {
      return MoveItemInHand(arrow.Columns, arrow.Rows) != 0;
    }
  }
  return FALSE;
}

}  // namespace

gboolean CanvasKey(GtkWidget* /*widget*/, GdkEventKey* event, gpointer /*data*/) {
  if (PtrnFlag == 0 || (event->state & gtk_accelerator_get_default_mod_mask()) != 0) return FALSE;
  switch (event->keyval) {
    case GDK_KEY_Delete:
    case GDK_KEY_KP_Delete:
      return DeleteKey();
    case GDK_KEY_Escape:
      return EscapeKey();
    case GDK_KEY_Return:
    case GDK_KEY_KP_Enter:
    case GDK_KEY_ISO_Enter:
      return ItemCommand(ButtonCode::Register);
    default:
      return MoveKey(event->keyval);
  }
}
