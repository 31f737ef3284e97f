#include <iterator>

#include "app/Menus.h"
#include "dialogs/ToolBoxWindow.h"
#include "layout/Screen.h"

void SetMenuActive2(gint flags) {
  for (gsize i = 0; i < std::size(ToolBoxMenu); i++)
    if (ToolBoxMenu[i] != nullptr) gtk_widget_set_sensitive(ToolBoxMenu[i], (flags >> i & 1) != 0);
  SetToolBoxButton(flags);
}
