#include "dialogs/kit/EntryLook.h"

namespace {

constexpr const gchar* WarningIcon = "dialog-warning-symbolic";
constexpr const gchar* HintKey = "varnix-hint";

// On a ground that is neither that of the window nor that of an entry that takes text, in any
// theme.
GtkStyleProvider* ReadOnlyLook() {
  static GtkCssProvider* const look = [] {
    GtkCssProvider* provider = gtk_css_provider_new();
    gtk_css_provider_load_from_data(
        provider,
        "entry { background-color: mix(@theme_bg_color, @theme_fg_color, 0.08); "
        "background-image: none; color: @theme_fg_color; }",
        -1, nullptr);
    return provider;
  }();
  return GTK_STYLE_PROVIDER(look);
}

// The space bar is the window's where an entry does not take it, and presses the default button.
gboolean KeepSpace(GtkWidget* /*entry*/, const GdkEventKey* event, gpointer /*data*/) {
  return event->keyval == GDK_KEY_space || event->keyval == GDK_KEY_KP_Space;
}

void ShowHint(GtkWidget* entry) {
  gtk_widget_set_tooltip_text(
      entry, static_cast<const gchar*>(g_object_get_data(G_OBJECT(entry), HintKey)));
}

}  // namespace

void SetEntryHint(GtkWidget* entry, const std::string& hint) {
  g_object_set_data_full(G_OBJECT(entry), HintKey, g_strdup(hint.c_str()), g_free);
  ShowHint(entry);
}

void MarkEntry(GtkWidget* entry, const gchar* reason) {
  gtk_style_context_add_class(gtk_widget_get_style_context(entry), GTK_STYLE_CLASS_ERROR);
  gtk_entry_set_icon_from_icon_name(GTK_ENTRY(entry), GTK_ENTRY_ICON_SECONDARY, WarningIcon);
  gtk_entry_set_icon_tooltip_text(GTK_ENTRY(entry), GTK_ENTRY_ICON_SECONDARY, reason);
  gtk_widget_set_tooltip_text(entry, reason);
}

void UnmarkEntry(GtkWidget* entry) {
  if (gtk_entry_get_icon_name(GTK_ENTRY(entry), GTK_ENTRY_ICON_SECONDARY) == nullptr) return;
  gtk_style_context_remove_class(gtk_widget_get_style_context(entry), GTK_STYLE_CLASS_ERROR);
  gtk_entry_set_icon_from_icon_name(GTK_ENTRY(entry), GTK_ENTRY_ICON_SECONDARY, nullptr);
  ShowHint(entry);
}

void MakeReadOnly(GtkWidget* entry) {
  gtk_editable_set_editable(GTK_EDITABLE(entry), FALSE);
  g_signal_connect(entry, "key-press-event", G_CALLBACK(KeepSpace), nullptr);
  gtk_style_context_add_provider(gtk_widget_get_style_context(entry), ReadOnlyLook(),
                                 GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
}
