#include "dialogs/kit/Cells.h"

#include "dialogs/kit/SwatchArea.h"
#include "layout/Screen.h"
#include "layout/Store.h"

void PlaceControl(GtkWidget* table, GtkWidget* control, gint line, gint culm1, gint culm2) {
  gtk_widget_set_hexpand(control, TRUE);
  gtk_widget_set_vexpand(control, TRUE);
  gtk_widget_set_halign(control, GTK_ALIGN_FILL);
  gtk_widget_set_valign(control, GTK_ALIGN_FILL);
  gtk_grid_attach(GTK_GRID(table), control, culm1, line, MAX(culm2 - culm1 + 1, 1), 1);
  gtk_widget_show(control);
}

GtkWidget* NewLabel(const gchar* text, bool right) {
  GtkWidget* label = gtk_label_new(text);
  gtk_label_set_xalign(GTK_LABEL(label), right ? 1.0F : 0.0F);
  gtk_label_set_yalign(GTK_LABEL(label), 0.5F);
  gtk_widget_show(label);
  return label;
}

GtkWidget* NewCaptionBox(const gchar* caption, gint spacing, guint padding) {
  GtkWidget* box = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, spacing);
  if (caption != nullptr && *caption != '\0') {
    gtk_box_pack_start(GTK_BOX(box), NewLabel(caption), FALSE, FALSE, padding);
  }
  return box;
}

void ShowRange(GtkWidget* control, const gchar* what, gint min, gint max) {
  gchar text[100];
  g_snprintf(text, sizeof text, "%s %d 〜 %d", what, min, max);
  gtk_widget_set_tooltip_text(control, text);
}

GdkRGBA Ink(GtkWidget* area) {
  GtkStyleContext* style = gtk_widget_get_style_context(area);
  GdkRGBA colour;
  gtk_style_context_get_color(style, gtk_style_context_get_state(style), &colour);
  const bool light = colour.red + colour.green + colour.blue > 1.5;
  return light ? colour : GdkRGBA{0, 0, 0, 1};
}

void KeepWidget(GtkWidget** slot, GtkWidget* widget) {
  if (*slot != nullptr) {
    g_object_remove_weak_pointer(G_OBJECT(*slot), reinterpret_cast<gpointer*>(slot));
  }
  *slot = widget;
  if (widget != nullptr) {
    g_object_add_weak_pointer(G_OBJECT(widget), reinterpret_cast<gpointer*>(slot));
  }
}

void RedrawLayout() {
  RedrawSwatches();
  if (PtrnFlag != 0) DrawRequest(1);
}
