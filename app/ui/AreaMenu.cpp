#include "app/ui/AreaMenu.h"

#include "PtrnData.h"

namespace {

// The source that gives the area up, 0 = none.
guint GivingUp;

void ForgetGivingUp() {
  if (GivingUp != 0) g_source_remove(GivingUp);
  GivingUp = 0;
}

gboolean GiveUpAtOnce(gpointer /*data*/) {
  GivingUp = 0;
  GiveUpArea();
  return G_SOURCE_REMOVE;
}

// A menu closes before what was chosen in it is done, and its end is told only after that, or not
// at all when the menu was taken away. So the area waits for a choice, but no event comes before.
void MenuHidden(GtkWidget* /*widget*/, gpointer /*data*/) {
  if (PtrnMode == ModeArea && GivingUp == 0) {
    GivingUp = g_idle_add_full(G_PRIORITY_HIGH, GiveUpAtOnce, nullptr, nullptr);
  }
}

void MenuDone(GtkWidget* /*widget*/, gpointer /*data*/) {
  ForgetGivingUp();
  GiveUpArea();
}

}  // namespace

void GiveUpArea() {
  if (PtrnMode == ModeArea) AreaBoxButn(nullptr, GINT_TO_POINTER(AreaCode::Cancel));
}

void GiveUpAreaWith(GtkWidget* menu) {
  g_signal_connect(menu, "hide", G_CALLBACK(MenuHidden), nullptr);
  g_signal_connect(menu, "selection-done", G_CALLBACK(MenuDone), nullptr);
}

void ChooseAreaCommand(GtkWidget* entry, gpointer command) {
  ForgetGivingUp();
  AreaBoxButn(entry, command);
}
