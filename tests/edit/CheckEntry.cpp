#include "tests/edit/CheckEntry.h"

#include <glib-object.h>

namespace {

struct Entry {
  GObject Parent;
  gboolean Active;
};
struct EntryClass {
  GObjectClass Parent;
};

void SetProperty(GObject* object, guint /*id*/, const GValue* value, GParamSpec* /*spec*/) {
  reinterpret_cast<Entry*>(object)->Active = g_value_get_boolean(value);
}

void GetProperty(GObject* object, guint /*id*/, GValue* value, GParamSpec* /*spec*/) {
  g_value_set_boolean(value, reinterpret_cast<Entry*>(object)->Active);
}

void InitClass(gpointer type, gpointer /*data*/) {
  auto* objects = static_cast<GObjectClass*>(type);
  objects->set_property = SetProperty;
  objects->get_property = GetProperty;
  g_object_class_install_property(
      objects, 1, g_param_spec_boolean("active", nullptr, nullptr, FALSE, G_PARAM_READWRITE));
}

GType EntryType() {
  static const GType type =
      g_type_register_static_simple(G_TYPE_OBJECT, "TestCheckEntry", sizeof(EntryClass), InitClass,
                                    sizeof(Entry), nullptr, GTypeFlags{});
  return type;
}

}  // namespace

CheckEntry::CheckEntry(bool active)
    : object_(g_object_new(EntryType(), "active", active ? TRUE : FALSE, nullptr)) {}

CheckEntry::~CheckEntry() {
  g_object_unref(object_);
}

GtkWidget* CheckEntry::Widget() const {
  return static_cast<GtkWidget*>(object_);
}

void Toggle(ViewCommand command, gint data, bool active) {
  const CheckEntry entry(active);
  command(entry.Widget(), GINT_TO_POINTER(data));
}
