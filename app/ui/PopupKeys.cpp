#include "app/ui/PopupKeys.h"

#include <optional>

#include "app/Menus.h"
#include "app/ui/AreaMenu.h"
#include "app/ui/OverlayRegion.h"

namespace {

// Escape leaves every menu, also where the entry of what it would do next shows it.
gboolean ChooseByKey(GtkWidget* menu, GdkEventKey* event, gpointer popup) {
  auto* window = GTK_WINDOW(gtk_widget_get_toplevel(menu));
  if (event->keyval == GDK_KEY_Escape || !gtk_window_activate_key(window, event)) return FALSE;
  gtk_menu_shell_cancel(GTK_MENU_SHELL(popup));
  return TRUE;
}

// The keys reach whichever menu is open last.
void UseKeysBelow(GtkWidget* menu, GtkAccelGroup* keys, GtkWidget* popup) {
  gtk_window_add_accel_group(GTK_WINDOW(gtk_widget_get_toplevel(menu)), keys);
  g_signal_connect(menu, "key-press-event", G_CALLBACK(ChooseByKey), popup);
  GList* entries = gtk_container_get_children(GTK_CONTAINER(menu));
  for (GList* link = entries; link != nullptr; link = link->next) {
    if (GtkWidget* submenu = gtk_menu_item_get_submenu(GTK_MENU_ITEM(link->data))) {
      UseKeysBelow(submenu, keys, popup);
    }
  }
  g_list_free(entries);
}

std::optional<GdkRectangle> PointerPlace(GdkWindow* canvas) {
  GdkSeat* seat = gdk_display_get_default_seat(gdk_window_get_display(canvas));
  GdkRectangle place{0, 0, 1, 1};
  GdkWindow* under =
      gdk_device_get_window_at_position(gdk_seat_get_pointer(seat), &place.x, &place.y);
  if (under != canvas) return {};
  return place;
}

// What is seen of the item or area being edited; the first pixel seen when there is nothing.
GdkRectangle WorkPlace(GdkWindow* canvas) {
  const RegionPtr seen(gdk_window_get_visible_region(canvas));
  const RegionPtr work = OverlayRegion(gdk_window_get_width(canvas), gdk_window_get_height(canvas));
  cairo_region_intersect(work.get(), seen.get());
  GdkRectangle place{};
  if (!cairo_region_is_empty(work.get())) {
    cairo_region_get_extents(work.get(), &place);
    return place;
  }
  cairo_region_get_extents(seen.get(), &place);
  return {place.x, place.y, 1, 1};
}

}  // namespace

void UseKeysIn(GtkWidget* menu, GtkAccelGroup* keys) {
  UseKeysBelow(menu, keys, menu);
}

gboolean OpenMenuByKey(GtkWidget* canvas, gpointer /*data*/) {
  GtkWidget* menu = PopupMenuOfState();
  if (menu == nullptr) return FALSE;
  GdkWindow* window = gtk_widget_get_window(canvas);
  const std::optional<GdkRectangle> pointer = PointerPlace(window);
  const GdkRectangle place = pointer ? *pointer : WorkPlace(window);
  gtk_menu_popup_at_rect(GTK_MENU(menu), window, &place, GDK_GRAVITY_SOUTH_WEST,
                         GDK_GRAVITY_NORTH_WEST, nullptr);
  if (gtk_widget_get_visible(menu)) {
    gtk_menu_shell_select_first(GTK_MENU_SHELL(menu), TRUE);
  } else {
    GiveUpArea();
  }
  return TRUE;
}
