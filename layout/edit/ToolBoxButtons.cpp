#include "layout/Commit.h"
#include "layout/EditState.h"
#include "layout/Mouse.h"
#include "layout/Screen.h"
#include "layout/edit/MouseStates.h"
#include "layout/edit/NothingOpen.h"

namespace {

// Back to idle with the panel open; edits that were not registered stay out of the store.
void LetGo() {
  PtrnMode = ModeIdle;
  SetCursor(CursorPlain);
  SetMenuActive1();
  SetMenuActive2(RedrawOnlyMenu);
}

}  // namespace

void ToolBoxButn([[maybe_unused]] GtkWidget* widget, gpointer data) {
  if (EndedWithNothingOpen()) return;
  const gint button = GPOINTER_TO_INT(data);
  switch (button) {
    case ButtonCode::Register:
      if (ToolButn_OK() == 0) return;
      break;
    case ButtonCode::Delete:
      ToolButn_Delt();
      break;
    case ButtonCode::Copy:
      ToolButn_Copy();
      break;
    case ButtonCode::Redraw:
      ClearToolBox();
      break;
    default:
      break;
  }
  if (button != ButtonCode::Redraw) LetGo();
  DrawRequest(1);
}
