#include "dialogs/frame/DialogWindow.h"

#include "dialogs/frame/ScreenRoom.h"
#include "dialogs/kit/Cells.h"
#include "dialogs/kit/LatePress.h"
#include "layout/EditWindows.h"

namespace {

// Where the answer of a window that runs goes.
constexpr const gchar* AnswerKey = "varnix-dialog-answer";

// At once, not when the loop is idle as gtk_window_close does: a second press must find no window.
void AskToClose(GtkWidget* window) {
  GdkEvent* event = gdk_event_new(GDK_DELETE);
  event->any.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(window)));
  event->any.send_event = TRUE;
  gtk_main_do_event(event);
  gdk_event_free(event);
}

gboolean CloseOnEscape(GtkWidget* window, const GdkEventKey* event, gpointer /*data*/) {
  if (event->keyval != GDK_KEY_Escape) return FALSE;
  AskToClose(window);
  return TRUE;
}

void NoteEnd(GtkWidget* window, bool* open) {
  g_object_set_data(G_OBJECT(window), AnswerKey, nullptr);
  *open = false;
}

}  // namespace

DialogWindow NewDialogWindow(const gchar* title) {
  DialogWindow dialog;
  dialog.Window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
  gtk_window_set_title(GTK_WINDOW(dialog.Window), title);
  gtk_window_set_type_hint(GTK_WINDOW(dialog.Window), GDK_WINDOW_TYPE_HINT_DIALOG);
  gtk_window_set_destroy_with_parent(GTK_WINDOW(dialog.Window), TRUE);
  // After the control that has the keyboard: an input method takes Escape to give its text up.
  g_signal_connect_after(dialog.Window, "key-press-event", G_CALLBACK(CloseOnEscape), nullptr);

  GtkWidget* box = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
  dialog.Content = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
  gtk_box_pack_start(GTK_BOX(box), dialog.Content, TRUE, TRUE, 0);
  SetDialogContent(dialog.Window, dialog.Content);
  dialog.Actions = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 10);
  gtk_container_set_border_width(GTK_CONTAINER(dialog.Actions), 10);
  GtkWidget* footer = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
  gtk_box_pack_start(GTK_BOX(footer), gtk_separator_new(GTK_ORIENTATION_HORIZONTAL), FALSE, FALSE,
                     0);
  gtk_box_pack_start(GTK_BOX(footer), dialog.Actions, FALSE, FALSE, 0);
  gtk_box_pack_end(GTK_BOX(box), footer, FALSE, FALSE, 0);
  gtk_container_add(GTK_CONTAINER(dialog.Window), box);
  gtk_widget_show_all(box);
  return dialog;
}

GtkWidget* AddDialogButton(const DialogWindow& dialog, const gchar* label, GCallback clicked,
                           gpointer data) {
  GtkWidget* button = NewButton(label);
  g_signal_connect(button, "clicked", clicked, data);
  gtk_box_pack_start(GTK_BOX(dialog.Actions), button, FALSE, FALSE, 0);
  gtk_widget_show(button);
  return button;
}

void AddDialogLabel(const DialogWindow& dialog, const gchar* text) {
  gtk_box_pack_start(GTK_BOX(dialog.Content), NewLabel(text), FALSE, FALSE, 0);
}

void LeaveOutActions(const DialogWindow& dialog) {
  gtk_widget_destroy(gtk_widget_get_parent(dialog.Actions));
}

void SetDefaultButton(GtkWidget* button) {
  gtk_widget_set_can_default(button, TRUE);
  gtk_widget_grab_default(button);
}

void SetDialogParent(GtkWidget* window, GtkWidget* parent) {
  if (parent == nullptr) return;
  GtkWidget* top = gtk_widget_get_toplevel(parent);
  if (GTK_IS_WINDOW(top) && top != window) {
    gtk_window_set_transient_for(GTK_WINDOW(window), GTK_WINDOW(top));
  }
}

gint RunModal(GtkWidget* window, GtkWidget* parent, gint otherwise) {
  gtk_window_set_modal(GTK_WINDOW(window), TRUE);
  return RunModeless(window, parent, otherwise);
}

// The program's main loop may be told to end while a dialog is shown beside a usable main window.
gint RunModeless(GtkWidget* window, GtkWidget* parent, gint otherwise) {
  gint answer = otherwise;
  g_object_set_data(G_OBJECT(window), AnswerKey, &answer);
  SetDialogParent(window, parent);
  FitToScreen(window);
  bool open = true;
  g_signal_connect(window, "destroy", G_CALLBACK(NoteEnd), &open);
  gtk_widget_show(window);
  while (open && (MainLoop == nullptr || g_main_loop_is_running(MainLoop))) {
    g_main_context_iteration(nullptr, TRUE);
  }
  if (open) gtk_widget_destroy(window);
  return answer;
}

void CloseDialog(GtkWidget* inside, gint answer) {
  GtkWidget* window = gtk_widget_get_toplevel(inside);
  auto* taken = static_cast<gint*>(g_object_get_data(G_OBJECT(window), AnswerKey));
  // Null when the dialog has gone meanwhile, below a message for example.
  if (taken == nullptr) return;
  *taken = answer;
  gtk_widget_destroy(window);
}
