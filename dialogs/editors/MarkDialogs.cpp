// The dialogs that show all marks: settings, picker, and the source of a copy.
#include <memory>

#include "dialogs/editors/MarkSet.h"
#include "dialogs/frame/TableDialog.h"
#include "dialogs/kit/Cells.h"
#include "layout/EditWindows.h"
#include "layout/Mouse.h"
#include "render/Marks.h"

namespace {

constexpr gint NoChoice = -1;

std::unique_ptr<MarkBoxes> MarkCopies() {
  auto boxes = std::make_unique<MarkBoxes>();
  CopyMarks(boxes.get());
  return boxes;
}

void EditMarkData_OK(const MarkBoxes& boxes) {
  for (gsize number = 0; number < boxes.size(); ++number) MarkData[number] = boxes[number].mark;
  SaveMarkFile();
  RedrawLayout();
}

// An edit from the picker is saved at once, whatever is chosen afterwards.
void EditPickedMark(GtkWidget* swatch, gint number, MarkBoxes* boxes) {
  if (MakeMarkData(swatch, number, boxes->data()) != 1) return;
  MarkData[number] = (*boxes)[static_cast<gsize>(number)].mark;
  SaveMarkFile();
  RedrawLayout();
  gtk_widget_queue_draw(swatch);
}

gint RunPicker(GtkWidget* parent, const MARKBOX* marks, const MarkPress& press, gint first) {
  return RunDialog(
      parent,
      {.Title = "マーク選択",
       .Build = [&](const DialogWindow& window) { AddMarkSet(window, marks, press, first); },
       .Resizable = true,
       .Otherwise = NoChoice});
}

}  // namespace

void EditMarkData(GtkWidget* parent, gpointer data) {
  ClearToolBox();
  const auto boxes = MarkCopies();
  const MarkPress press = [&boxes](GtkWidget* swatch, gint number, guint button) {
    if (button == GDK_BUTTON_PRIMARY && MakeMarkData(swatch, number, boxes->data()) == 1) {
      gtk_widget_queue_draw(swatch);
    }
  };
  RunTableDialog(
      data != nullptr ? parent : PtrnWnd,
      {.Frame = {.Title = "マーク設定",
                 .Build =
                     [&](const DialogWindow& window) { AddMarkSet(window, boxes->data(), press); },
                 .Resizable = true},
       .ReturnPressesOk = false,
       .Take = [&boxes] { EditMarkData_OK(*boxes); }});
}

gint Dlg_MarkSelect(GtkWidget* parent, gint current) {
  const auto boxes = MarkCopies();
  const MarkPress press = [&boxes](GtkWidget* swatch, gint number, guint button) {
    if (button == GDK_BUTTON_PRIMARY) {
      CloseDialog(swatch, number);
    } else if (button == GDK_BUTTON_SECONDARY) {
      EditPickedMark(swatch, number, boxes.get());
    }
  };
  return RunPicker(parent, boxes->data(), press, current);
}

gint Dlg_MarkSearch(GtkWidget* parent, const MARKBOX* markbox) {
  const MarkPress press = [](GtkWidget* swatch, gint number, guint button) {
    if (button == GDK_BUTTON_PRIMARY) CloseDialog(swatch, number);
  };
  return RunPicker(parent, markbox, press, 0);
}
