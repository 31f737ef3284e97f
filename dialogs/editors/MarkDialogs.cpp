// The dialogs that show all marks: settings, picker, and the source of a copy.
#include <memory>

#include "dialogs/editors/MarkSet.h"
#include "dialogs/kit/Cells.h"
#include "layout/EditWindows.h"
#include "layout/Mouse.h"
#include "render/MarkFile.h"

namespace {

// The settings dialog's and the picker's copies; an open dialog's alone.
std::unique_ptr<MarkBoxes> EditMarkBox;
std::unique_ptr<MarkBoxes> Dlg_MarkBox;
GtkWidget* EditMark = nullptr;
GtkWidget* MarkSlct = nullptr;
GtkWidget* MarkSearch = nullptr;
gint EditMarkData_Result = 0;
gint MarkNo = -1;
gint MarkSearch_MarkNo = -1;

void EditMarkData_Press(GtkWidget* swatch, gint number, guint button) {
  if (button == 1 && MakeMarkData(EditMark, number, EditMarkBox->data()) == 1)
    gtk_widget_queue_draw(swatch);
}

void EditMarkData_OK(GtkWidget* /*button*/, GtkWidget* window) {
  EditMarkData_Result = 1;
  gtk_widget_destroy(window);
}

void EditMarkData_CAN(GtkWidget* /*button*/, GtkWidget* window) {
  gtk_widget_destroy(window);
}

// An edit from the picker is saved at once, whatever is chosen afterwards.
void EditPickedMark(GtkWidget* swatch, gint number) {
  if (MakeMarkData(MarkSlct, number, Dlg_MarkBox->data()) != 1) return;
  MarkData[number] = (*Dlg_MarkBox)[static_cast<gsize>(number)].mark;
  SaveMarkFile();
  RedrawLayout();
  gtk_widget_queue_draw(swatch);
}

void Dlg_MarkSelect_Press(GtkWidget* swatch, gint number, guint button) {
  if (button == 1) {
    MarkNo = number;
    gtk_widget_destroy(MarkSlct);
  } else if (button == 3) {
    EditPickedMark(swatch, number);
  }
}

void Dlg_MarkSearch_Press(GtkWidget* /*swatch*/, gint number, guint button) {
  if (button != 1) return;
  MarkSearch_MarkNo = number;
  gtk_widget_destroy(MarkSearch);
}

}  // namespace

void EditMarkData(GtkWidget* parent, gpointer data) {
  ClearToolBox();
  EditMarkData_Result = 0;
  EditMarkBox = std::make_unique<MarkBoxes>();
  CopyMarks(EditMarkBox.get());
  const DialogWindow window =
      NewMarkSetWindow("マーク設定", EditMarkBox->data(), EditMarkData_Press);
  EditMark = window.Window;
  AddDialogButton(window, " 設定 ", G_CALLBACK(EditMarkData_OK), window.Window);
  AddDialogButton(window, " 取消 ", G_CALLBACK(EditMarkData_CAN), window.Window);
  RunModal(window.Window, data != nullptr ? parent : PtrnWnd);
  if (EditMarkData_Result == 1) {
    for (gsize number = 0; number < EditMarkBox->size(); ++number)
      MarkData[number] = (*EditMarkBox)[number].mark;
    SaveMarkFile();
    RedrawLayout();
  }
  EditMarkBox.reset();
}

gint Dlg_MarkSelect(GtkWidget* parent, gint current) {
  MarkNo = -1;
  Dlg_MarkBox = std::make_unique<MarkBoxes>();
  CopyMarks(Dlg_MarkBox.get());
  const DialogWindow window =
      NewMarkSetWindow("マーク選択", Dlg_MarkBox->data(), Dlg_MarkSelect_Press, current);
  LeaveOutActions(window);
  MarkSlct = window.Window;
  RunModal(window.Window, parent);
  Dlg_MarkBox.reset();
  return MarkNo;
}

gint Dlg_MarkSearch(GtkWidget* parent, const MARKBOX* markbox) {
  MarkSearch_MarkNo = -1;
  const DialogWindow window = NewMarkSetWindow("マーク選択", markbox, Dlg_MarkSearch_Press);
  LeaveOutActions(window);
  MarkSearch = window.Window;
  RunModal(window.Window, parent);
  return MarkSearch_MarkNo;
}
