#include "dialogs/choosers/NameDialog.h"

#include <utility>

#include "dialogs/choosers/ChooserWindow.h"

namespace {

void ReportSelected(GtkTreeSelection* selection, const NameDialog* dialog) {
  dialog->Selected(SelectedName(GTK_WIDGET(gtk_tree_selection_get_tree_view(selection))));
}

void ReportTaken(GtkTreeView* list, GtkTreePath* path, GtkTreeViewColumn* /*column*/,
                 const NameDialog* dialog) {
  dialog->Taken(GTK_WIDGET(list), NameAt(GTK_WIDGET(list), path));
}

void Build(const DialogWindow& window, NameDialog& dialog) {
  gtk_container_set_border_width(GTK_CONTAINER(window.Content), 10);
  gtk_box_set_spacing(GTK_BOX(window.Content), 5);
  if (dialog.Above) dialog.Above(window);
  GtkWidget* list = NewNameList(dialog.Names);
  GtkWidget* scrolled = NewScrolled(list, GTK_POLICY_AUTOMATIC);
  gtk_widget_set_size_request(scrolled, dialog.Room.cx, dialog.Room.cy);
  gtk_box_pack_start(GTK_BOX(window.Content), scrolled, TRUE, TRUE, 0);
  if (dialog.Below) dialog.Below(window);
  dialog.Fill(list);
  if (dialog.BeginOnList) BeginOnNames(list);
  if (dialog.Selected) OnNameSelected(list, G_CALLBACK(ReportSelected), &dialog);
  if (dialog.Taken) g_signal_connect(list, "row-activated", G_CALLBACK(ReportTaken), &dialog);
  if (dialog.Frame.Build) dialog.Frame.Build(window);
}

}  // namespace

gint RunNameDialog(GtkWidget* parent, NameDialog dialog) {
  DialogFrame frame = dialog.Frame;
  frame.Build = [&dialog](const DialogWindow& window) { Build(window, dialog); };
  return RunDialog(parent, std::move(frame));
}
