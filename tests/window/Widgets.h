// Finding widgets as a user does, by what they say, and waiting for what they do.
#pragma once

#include <gtk/gtk.h>

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

// Runs the main loop until `reached` holds. False after half a minute without it.
bool WaitFor(const std::function<bool()>& reached);
// Runs the main loop until the widget's window has painted what is queued.
void FinishFrame(GtkWidget* widget);

// The first widget below `root` (itself included, depth first) that `matches`; null = none.
GtkWidget* FindWidget(GtkWidget* root, const std::function<bool(GtkWidget*)>& matches);
// The first widget below `root`, itself included, of this type or one made from it; null = none.
GtkWidget* FindKind(GtkWidget* root, GType kind);
// The button, check, radio or menu entry, or label, with exactly this text.
GtkWidget* FindLabel(GtkWidget* root, const std::string& label);
// The shown top-level window with exactly this title; null = none.
GtkWidget* FindWindow(const std::string& title);

// What the first column shows in a row of a list or tree; "" for nothing.
std::string RowText(GtkTreeModel* model, GtkTreeIter* row);

// The entries of a menu or menu bar from top to bottom, "-" for a separator.
std::vector<std::string> MenuLabels(GtkWidget* menu);
// The entry at the end of a path of labels that begins at a menu bar or menu; null = none.
GtkWidget* MenuEntry(GtkWidget* menu, std::initializer_list<std::string> path);
// The main window's menu bar.
GtkWidget* MenuBar();

// Answers a modal dialog: once a window with this title is shown, runs `act` on it. When none
// comes within half a minute, or `act` leaves it open, every other window but the main one is
// closed and the test fails.
class DialogAnswer {
 public:
  DialogAnswer(std::string title, std::function<void(GtkWidget*)> act);
  // Fails the test when the dialog never came.
  ~DialogAnswer();
  DialogAnswer(const DialogAnswer&) = delete;
  DialogAnswer& operator=(const DialogAnswer&) = delete;
  bool Answered() const { return answered_; }

 private:
  static gboolean Look(gpointer self);

  std::string title_;
  std::function<void(GtkWidget*)> act_;
  gint64 deadline_;
  guint source_;
  bool answered_ = false;
};
// Presses the button with this label.
std::function<void(GtkWidget*)> PressButton(std::string label);
