#include "dialogs/kit/SwatchArea.h"

#include <gdk/gdkkeysyms.h>
#include <gtk/gtk-a11y.h>

#include "dialogs/kit/LatePress.h"

namespace {

// The toolkit makes and clears instances itself, so they hold what needs no construction.
struct SwatchArea {
  GtkDrawingArea Parent;
  SwatchPaint Paint;
  SwatchPress Press;
  gpointer Data;
  gchar* Label;
  gchar* Value;
};
struct SwatchAreaClass {
  GtkDrawingAreaClass Parent;
  void (*Activate)(GtkWidget* area);
};
struct SwatchAccessible {
  GtkWidgetAccessible Parent;
};
struct SwatchAccessibleClass {
  GtkWidgetAccessibleClass Parent;
};

void BeginActions(AtkActionIface* actions);

G_DEFINE_TYPE(SwatchArea, swatch_area, GTK_TYPE_DRAWING_AREA)
G_DEFINE_TYPE_WITH_CODE(SwatchAccessible, swatch_accessible, GTK_TYPE_WIDGET_ACCESSIBLE,
                        G_IMPLEMENT_INTERFACE(ATK_TYPE_ACTION, BeginActions))

SwatchArea* Swatch(gpointer area) {
  return static_cast<SwatchArea*>(area);
}

// Whole, so that pixels stay square.
gint LetterScale(GtkWidget* area) {
  constexpr gint Usual = 96 * 1024;
  gint dpi = Usual;
  g_object_get(gtk_widget_get_settings(area), "gtk-xft-dpi", &dpi, nullptr);
  return CLAMP((dpi + Usual / 2) / Usual, 1, 4);
}

void PressArea(GtkWidget* area, guint button) {
  const SwatchArea* swatch = Swatch(area);
  swatch->Press(area, button, swatch->Data);
}

void Activate(GtkWidget* area) {
  PressArea(area, GDK_BUTTON_PRIMARY);
}

gboolean PopupMenu(GtkWidget* area) {
  PressArea(area, GDK_BUTTON_SECONDARY);
  return TRUE;
}

gboolean ButtonPress(GtkWidget* area, GdkEventButton* event) {
  if (event->type != GDK_BUTTON_PRESS) return TRUE;
  gtk_widget_grab_focus(area);
  PressArea(area, event->button);
  return TRUE;
}

// Around what is painted, in the colour that the theme marks with.
void PaintFocus(GtkWidget* area, cairo_t* cairo) {
  GtkStyleContext* style = gtk_widget_get_style_context(area);
  GdkRGBA colour = {0.2, 0.5, 0.9, 1};
  gtk_style_context_lookup_color(style, "theme_selected_bg_color", &colour);
  gdk_cairo_set_source_rgba(cairo, &colour);
  cairo_set_line_width(cairo, 2);
  cairo_rectangle(cairo, 1, 1, gtk_widget_get_allocated_width(area) - 2,
                  gtk_widget_get_allocated_height(area) - 2);
  cairo_stroke(cairo);
}

gboolean Draw(GtkWidget* area, cairo_t* cairo) {
  const SwatchArea* swatch = Swatch(area);
  cairo_save(cairo);
  cairo_scale(cairo, LetterScale(area), LetterScale(area));
  swatch->Paint(area, cairo, swatch->Data);
  cairo_restore(cairo);
  if (gtk_widget_has_visible_focus(area)) PaintFocus(area, cairo);
  return TRUE;
}

void TellName(const SwatchArea* swatch, GtkWidget* area) {
  gchar* name = g_strjoin(*swatch->Label != '\0' ? " " : "", swatch->Label, swatch->Value, nullptr);
  atk_object_set_name(gtk_widget_get_accessible(area), name);
  g_free(name);
}

void Replace(gchar** text, const std::string& with) {
  g_free(*text);
  *text = g_strdup(with.c_str());
}

void Finalize(GObject* area) {
  g_free(Swatch(area)->Label);
  g_free(Swatch(area)->Value);
  G_OBJECT_CLASS(swatch_area_parent_class)->finalize(area);
}

void BindKeys(SwatchAreaClass* type) {
  GtkBindingSet* keys = gtk_binding_set_by_class(type);
  for (const guint key :
       {GDK_KEY_space, GDK_KEY_KP_Space, GDK_KEY_Return, GDK_KEY_ISO_Enter, GDK_KEY_KP_Enter}) {
    gtk_binding_entry_add_signal(keys, key, GdkModifierType{}, "activate", 0);
  }
}

void swatch_area_class_init(SwatchAreaClass* type) {
  GtkWidgetClass* widget = GTK_WIDGET_CLASS(type);
  G_OBJECT_CLASS(type)->finalize = Finalize;
  type->Activate = Activate;
  widget->draw = Draw;
  widget->button_press_event = ButtonPress;
  widget->popup_menu = PopupMenu;
  widget->activate_signal = g_signal_new(
      "activate", G_TYPE_FROM_CLASS(type),
      static_cast<GSignalFlags>(G_SIGNAL_RUN_FIRST | G_SIGNAL_ACTION),
      G_STRUCT_OFFSET(SwatchAreaClass, Activate), nullptr, nullptr, nullptr, G_TYPE_NONE, 0);
  gtk_widget_class_set_accessible_type(widget, swatch_accessible_get_type());
  BindKeys(type);
}

void swatch_area_init(SwatchArea* swatch) {
  swatch->Label = g_strdup("");
  swatch->Value = g_strdup("");
  GtkWidget* area = GTK_WIDGET(swatch);
  gtk_widget_set_can_focus(area, TRUE);
  gtk_widget_add_events(area, GDK_BUTTON_PRESS_MASK);
}

void Initialize(AtkObject* accessible, gpointer widget) {
  ATK_OBJECT_CLASS(swatch_accessible_parent_class)->initialize(accessible, widget);
  atk_object_set_role(accessible, ATK_ROLE_PUSH_BUTTON);
}

void swatch_accessible_class_init(SwatchAccessibleClass* type) {
  ATK_OBJECT_CLASS(type)->initialize = Initialize;
}

void swatch_accessible_init(SwatchAccessible* /*accessible*/) {}

void RedrawWithin(GtkWidget* widget, gpointer /*data*/) {
  if (IsSwatchArea(widget)) gtk_widget_queue_draw(widget);
  if (GTK_IS_CONTAINER(widget)) gtk_container_forall(GTK_CONTAINER(widget), RedrawWithin, nullptr);
}

gint CountActions(AtkAction* /*accessible*/) {
  return 1;
}

const gchar* ActionName(AtkAction* /*accessible*/, gint action) {
  return action == 0 ? "press" : nullptr;
}

void BeginActions(AtkActionIface* actions) {
  actions->get_n_actions = CountActions;
  actions->get_name = ActionName;
  PressLater(actions);
}

}  // namespace

GtkWidget* NewSwatchArea(SIZE size, SwatchPaint paint, SwatchPress press, gpointer data) {
  auto* area = static_cast<GtkWidget*>(g_object_new(swatch_area_get_type(), nullptr));
  SwatchArea* swatch = Swatch(area);
  swatch->Paint = paint;
  swatch->Press = press;
  swatch->Data = data;
  ResizeSwatchArea(area, size);
  gtk_widget_show(area);
  return area;
}

void ResizeSwatchArea(GtkWidget* area, SIZE size) {
  const gint scale = LetterScale(area);
  gtk_widget_set_size_request(area, size.cx * scale, size.cy * scale);
}

bool IsSwatchArea(GtkWidget* widget) {
  return G_TYPE_CHECK_INSTANCE_TYPE(widget, swatch_area_get_type()) != FALSE;
}

void RedrawSwatches() {
  GList* windows = gtk_window_list_toplevels();
  for (GList* link = windows; link != nullptr; link = link->next) {
    RedrawWithin(static_cast<GtkWidget*>(link->data), nullptr);
  }
  g_list_free(windows);
}

void SetSwatchLabel(GtkWidget* area, const std::string& label) {
  Replace(&Swatch(area)->Label, label);
  TellName(Swatch(area), area);
}

void SetSwatchValue(GtkWidget* area, const std::string& value) {
  Replace(&Swatch(area)->Value, value);
  TellName(Swatch(area), area);
}
