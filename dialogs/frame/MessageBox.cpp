#include "dialogs/frame/DialogFrame.h"
#include "dialogs/kit/LatePress.h"
#include "layout/Screen.h"

// The answer of the message box; 0 until a button is pressed.
gint MessageButnNo = 0;

namespace {

// Labels of each set of buttons, in the order of their numbers.
constexpr const gchar* ButtonLabels[4][3] = {
    {}, {" 確認 "}, {" はい ", " いいえ "}, {" はい ", " いいえ ", " キャンセル "}};

void Message_Button(GtkWidget* button, gpointer data) {
  CloseDialog(button, GPOINTER_TO_INT(data));
}

void AddMessage(const DialogWindow& dialog, const gchar* text) {
  if (text != nullptr && *text != '\0') AddDialogLabel(dialog, text);
}

void AddButtons(GtkWidget* box, gint set) {
  GtkWidget* buttons = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 10);
  gtk_box_pack_start(GTK_BOX(box), buttons, FALSE, FALSE, 0);
  for (gint no = 1; no <= 3; ++no) {
    const gchar* label = ButtonLabels[set][no - 1];
    if (label == nullptr) break;
    GtkWidget* button = NewButton(label);
    g_signal_connect(button, "clicked", G_CALLBACK(Message_Button), GINT_TO_POINTER(no));
    gtk_box_pack_start(GTK_BOX(buttons), button, FALSE, FALSE, 0);
    if (no == 1) gtk_widget_grab_focus(button);
  }
  gtk_widget_show_all(buttons);
}

}  // namespace

gint Dlg_MessageBox(GtkWidget* parent, const gchar* title, const gchar* mesg1, const gchar* mesg2,
                    gint butn) {
  MessageButnNo = 0;
  MessageButnNo =
      RunDialog(parent, {.Title = title,
                         .Build =
                             [=](const DialogWindow& dialog) {
                               gtk_container_set_border_width(GTK_CONTAINER(dialog.Window), 10);
                               gtk_box_set_spacing(GTK_BOX(dialog.Content), 10);
                               AddMessage(dialog, mesg1);
                               AddMessage(dialog, mesg2);
                               AddButtons(dialog.Content, butn >= 1 && butn <= 3 ? butn : 0);
                             },
                         .Place = GTK_WIN_POS_CENTER_ON_PARENT});
  return MessageButnNo;
}
