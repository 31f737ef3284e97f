#include "layout/Commit.h"
#include "layout/EditState.h"
#include "layout/Mouse.h"
#include "layout/Screen.h"
#include "layout/edit/MouseStates.h"
#include "layout/edit/NothingOpen.h"

namespace {

enum ButtonCode {
  ButtonRegister = 0,
  ButtonDelete = 1,
  ButtonCancel = 2,
  ButtonCopy = 3,
  ButtonRedraw = 4,
};

// Back to idle with the panel open; edits that were not registered stay out of the store.
void LetGo() {
  PtrnMode = ModeIdle;
  SetCursor(CursorPlain);
  SetMenuActive1();
  SetMenuActive2(RedrawOnlyMenu);
}

}  // namespace

void ToolBoxButn([[maybe_unused]] GtkWidget* widget, gpointer data) {
  if (EndedWithNothingOpen()) {
    return;
  }
  const gint button = GPOINTER_TO_INT(data);
  switch (button) {
    case ButtonRegister:
      if (ToolButn_OK() == 0) {
        return;
      }
      break;
    case ButtonDelete:
      ToolButn_Delt();
      break;
    case ButtonCopy:
      ToolButn_Copy();
      break;
    case ButtonRedraw:
      ClearToolBox();
      break;
    default:
      break;
  }
  if (button != ButtonRedraw) {
    LetGo();
  }
  DrawRequest(1);
}
