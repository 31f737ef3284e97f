// Owners of toolkit objects.
#pragma once

#include <gtk/gtk.h>

#include <memory>

struct ObjectRelease {
  void operator()(gpointer object) const { g_object_unref(object); }
};
template <typename Object>
using ObjectPtr = std::unique_ptr<Object, ObjectRelease>;

struct RegionRelease {
  void operator()(cairo_region_t* region) const { cairo_region_destroy(region); }
};
using RegionPtr = std::unique_ptr<cairo_region_t, RegionRelease>;

struct SurfaceRelease {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
using SurfacePtr = std::unique_ptr<cairo_surface_t, SurfaceRelease>;

struct ClipListRelease {
  void operator()(cairo_rectangle_list_t* list) const { cairo_rectangle_list_destroy(list); }
};
using ClipListPtr = std::unique_ptr<cairo_rectangle_list_t, ClipListRelease>;

struct MainLoopRelease {
  void operator()(GMainLoop* loop) const { g_main_loop_unref(loop); }
};
using MainLoopPtr = std::unique_ptr<GMainLoop, MainLoopRelease>;

// `slot` shows the widget and turns null by itself when the widget is gone.
inline void KeepWidget(GtkWidget** slot, GtkWidget* widget) {
  g_set_weak_pointer(slot, widget);
}
