// The editor of one colour: the toolkit's own dialog.
#include <cstring>

#include "dialogs/Editors.h"
#include "dialogs/frame/Accessible.h"
#include "dialogs/frame/DialogWindow.h"
#include "dialogs/kit/Wheel.h"

namespace {

constexpr double Full = 65535.0;

// Cut, not rounded. The dialog computes with hue, saturation and value; the small addition makes up
// for what the way there and back loses, so that an untouched colour comes back as it was.
gint Channel(double value) {
  constexpr double Lost = 1e-6;
  return static_cast<gint>(value * Full + Lost);
}

// The button that confirms, the one that cancels or another way of closing.
void MakeColrData_OK(GtkDialog* dialog, gint response, COLRDATA* colour) {
  if (response != GTK_RESPONSE_OK) {
    CloseDialog(GTK_WIDGET(dialog), 0);
    return;
  }
  GdkRGBA chosen;
  gtk_color_chooser_get_rgba(GTK_COLOR_CHOOSER(dialog), &chosen);
  *colour = {Channel(chosen.red), Channel(chosen.green), Channel(chosen.blue)};
  CloseDialog(GTK_WIDGET(dialog), 1);
}

// Controls of the dialog that the toolkit leaves without a name.
constexpr struct {
  const gchar* Kind;
  const gchar* Place;
  const gchar* Name;
} Nameless[] = {{"GtkColorSwatch", "GtkColorEditor", "選択中の色"},
                {"GtkButton", "GtkColorEditor", "画面から色を取る"},
                {"GtkColorSwatch", "GtkColorChooserWidget", "色を追加"}};

void NameLeftOut(GtkWidget* widget, gpointer /*data*/) {
  const gchar* name = atk_object_get_name(gtk_widget_get_accessible(widget));
  for (const auto& row : Nameless) {
    if ((name == nullptr || *name == '\0') &&
        std::strcmp(G_OBJECT_TYPE_NAME(widget), row.Kind) == 0 &&
        gtk_widget_get_ancestor(widget, g_type_from_name(row.Place)) != nullptr) {
      SetAccessibleName(widget, row.Name);
      return;
    }
  }
  if (GTK_IS_CONTAINER(widget)) gtk_container_forall(GTK_CONTAINER(widget), NameLeftOut, nullptr);
}

void KeepSlidersFromWheel(GtkWidget* widget, gpointer /*data*/) {
  if (GTK_IS_SCALE(widget)) KeepFromWheel(widget);
  if (GTK_IS_CONTAINER(widget)) {
    gtk_container_forall(GTK_CONTAINER(widget), KeepSlidersFromWheel, nullptr);
  }
}

void LabelButton(GtkWidget* dialog, gint response, const gchar* label) {
  GtkWidget* button = gtk_dialog_get_widget_for_response(GTK_DIALOG(dialog), response);
  if (button != nullptr) gtk_button_set_label(GTK_BUTTON(button), label);
}

}  // namespace

gint MakeColrData(GtkWidget* parent, gint colrno, COLRBOX* colrbox) {
  COLRDATA& colour = colrbox[colrno].colr;
  GtkWidget* dialog = gtk_color_chooser_dialog_new("表示色作成", nullptr);
  // The toolkit's labels follow the user's locale; the program speaks Japanese everywhere.
  LabelButton(dialog, GTK_RESPONSE_OK, " 設定 ");
  LabelButton(dialog, GTK_RESPONSE_CANCEL, " 取消 ");
  gtk_window_set_resizable(GTK_WINDOW(dialog), FALSE);
  gtk_window_set_position(GTK_WINDOW(dialog), GTK_WIN_POS_CENTER);
  gtk_color_chooser_set_use_alpha(GTK_COLOR_CHOOSER(dialog), FALSE);
  const GdkRGBA start = {colour.red / Full, colour.green / Full, colour.blue / Full, 1.0};
  gtk_color_chooser_set_rgba(GTK_COLOR_CHOOSER(dialog), &start);
  g_object_set(dialog, "show-editor", TRUE, nullptr);
  NameLeftOut(dialog, nullptr);
  KeepSlidersFromWheel(dialog, nullptr);
  g_signal_connect(dialog, "response", G_CALLBACK(MakeColrData_OK), &colour);
  return RunModal(dialog, parent);
}
