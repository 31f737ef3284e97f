#include "dialogs/frame/TableDialog.h"

#include <utility>

#include "dialogs/frame/Accessible.h"

namespace {

constexpr gint Confirmed = 1;

void AddTables(const DialogWindow& window, const TableDialog& dialog) {
  GtkWidget* grid = NewControlGrid(dialog.ColumnSpacing);
  gtk_box_pack_start(GTK_BOX(window.Content), grid, TRUE, TRUE, 0);
  BuildControls(window.Window, grid, *dialog.Tables);
  if (dialog.Complete) dialog.Complete(grid);
  NameControls(grid);
}

void Build(const DialogWindow& window, const TableDialog& dialog) {
  if (dialog.Tables) AddTables(window, dialog);
  if (dialog.Frame.Build) dialog.Frame.Build(window);
  if (dialog.First != nullptr) gtk_widget_grab_focus(dialog.First->entry);
}

void PressOk(GtkWidget* button, const TableDialog& dialog) {
  if (dialog.Check && dialog.Check() == 0) return;
  if (dialog.Take) dialog.Take();
  CloseDialog(button, Confirmed);
}

}  // namespace

gint RunTableDialog(GtkWidget* parent, const TableDialog& dialog) {
  DialogFrame frame = dialog.Frame;
  frame.Build = [&dialog](const DialogWindow& window) { Build(window, dialog); };
  frame.Buttons.push_back({.Label = dialog.Ok,
                           .Pressed = [&dialog](GtkWidget* button) { PressOk(button, dialog); },
                           .Default = dialog.ReturnPressesOk});
  frame.Buttons.insert(frame.Buttons.end(), dialog.More.begin(), dialog.More.end());
  frame.Buttons.push_back(CancelButton(dialog.Cancel));
  return RunDialog(parent, std::move(frame));
}
