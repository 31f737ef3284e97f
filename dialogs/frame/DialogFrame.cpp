#include "dialogs/frame/DialogFrame.h"

#include "dialogs/kit/Cells.h"

namespace {

void PressButton(GtkWidget* button, const DialogButton* row) {
  if (row->Pressed) {
    row->Pressed(button);
  } else {
    CloseDialog(button, row->Answer);
  }
}

void AddButton(const DialogWindow& dialog, DialogButton& row) {
  GtkWidget* button = AddDialogButton(dialog, row.Label, G_CALLBACK(PressButton), &row);
  if (!row.Sensitive) gtk_widget_set_sensitive(button, FALSE);
  if (row.Default) SetDefaultButton(button);
  if (row.Shown != nullptr) KeepWidget(row.Shown, button);
}

}  // namespace

DialogButton CancelButton(const gchar* label) {
  return {.Label = label};
}

gint RunDialog(GtkWidget* parent, DialogFrame frame) {
  const DialogWindow dialog = NewDialogWindow(frame.Title);
  if (!frame.Resizable) gtk_window_set_resizable(GTK_WINDOW(dialog.Window), FALSE);
  gtk_window_set_position(GTK_WINDOW(dialog.Window), frame.Place);
  if (frame.Window != nullptr) KeepWidget(frame.Window, dialog.Window);
  for (DialogButton& row : frame.Buttons) AddButton(dialog, row);
  if (frame.Buttons.empty()) LeaveOutActions(dialog);
  if (frame.Build) frame.Build(dialog);
  return (frame.Modal ? RunModal : RunModeless)(dialog.Window, parent, frame.Otherwise);
}
