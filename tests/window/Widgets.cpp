#include "tests/window/Widgets.h"

#include <gtest/gtest.h>

#include <utility>

#include "layout/EditWindows.h"

namespace {

constexpr gint64 Patience = 30 * G_USEC_PER_SEC;
constexpr guint LookInterval = 10;  // milliseconds

gboolean Wake(gpointer /*data*/) {
  return G_SOURCE_CONTINUE;
}

using Visit = std::function<bool(GtkWidget*)>;

// What a container shows, its menus included.
std::vector<GtkWidget*> ChildrenOf(GtkWidget* widget) {
  std::vector<GtkWidget*> children;
  if (GTK_IS_CONTAINER(widget)) {
    gtk_container_forall(
        GTK_CONTAINER(widget),
        [](GtkWidget* child, gpointer list) {
          static_cast<std::vector<GtkWidget*>*>(list)->push_back(child);
        },
        &children);
  }
  return children;
}

std::string LabelOf(GtkWidget* widget) {
  const gchar* text = nullptr;
  if (GTK_IS_LABEL(widget)) {
    text = gtk_label_get_text(GTK_LABEL(widget));
  } else if (GTK_IS_BUTTON(widget)) {
    text = gtk_button_get_label(GTK_BUTTON(widget));
  } else if (GTK_IS_MENU_ITEM(widget)) {
    text = gtk_menu_item_get_label(GTK_MENU_ITEM(widget));
  }
  return text != nullptr ? text : "";
}

void CloseOtherWindows() {
  GList* windows = gtk_window_list_toplevels();
  for (GList* link = windows; link != nullptr; link = link->next) {
    if (link->data != PtrnWnd && gtk_widget_get_visible(GTK_WIDGET(link->data))) {
      gtk_widget_destroy(GTK_WIDGET(link->data));
    }
  }
  g_list_free(windows);
}

}  // namespace

bool WaitFor(const std::function<bool()>& reached) {
  const gint64 deadline = g_get_monotonic_time() + Patience;
  const guint waker = g_timeout_add(LookInterval, Wake, nullptr);
  bool done = reached();
  while (!done && g_get_monotonic_time() < deadline) {
    g_main_context_iteration(nullptr, TRUE);
    done = reached();
  }
  g_source_remove(waker);
  return done;
}

void FinishFrame(GtkWidget* widget) {
  GdkFrameClock* clock = gtk_widget_get_frame_clock(widget);
  ASSERT_NE(clock, nullptr);
  while (gtk_events_pending()) gtk_main_iteration();
  bool painted = false;
  const gulong handler = g_signal_connect(
      clock, "after-paint",
      G_CALLBACK(+[](GdkFrameClock*, gpointer flag) { *static_cast<bool*>(flag) = true; }),
      &painted);
  gdk_frame_clock_request_phase(clock, GDK_FRAME_CLOCK_PHASE_PAINT);
  EXPECT_TRUE(WaitFor([&] { return painted; })) << "the window does not paint";
  g_signal_handler_disconnect(clock, handler);
  gdk_display_sync(gtk_widget_get_display(widget));
}

GtkWidget* FindWidget(GtkWidget* root, const std::function<bool(GtkWidget*)>& matches) {
  if (root == nullptr || matches(root)) return root;
  for (GtkWidget* child : ChildrenOf(root)) {
    if (GtkWidget* found = FindWidget(child, matches)) return found;
  }
  return nullptr;
}

GtkWidget* FindKind(GtkWidget* root, GType kind) {
  return FindWidget(root, [kind](GtkWidget* widget) {
    return G_TYPE_CHECK_INSTANCE_TYPE(widget, kind) != FALSE;
  });
}

std::string RowText(GtkTreeModel* model, GtkTreeIter* row) {
  gchar* text = nullptr;
  gtk_tree_model_get(model, row, 0, &text, -1);
  const std::string shown = text != nullptr ? text : "";
  g_free(text);
  return shown;
}

GtkWidget* FindLabel(GtkWidget* root, const std::string& label) {
  return FindWidget(root, [&](GtkWidget* widget) { return LabelOf(widget) == label; });
}

GtkWidget* FindWindow(const std::string& title) {
  GtkWidget* found = nullptr;
  GList* windows = gtk_window_list_toplevels();
  for (GList* link = windows; link != nullptr; link = link->next) {
    const gchar* text = gtk_window_get_title(GTK_WINDOW(link->data));
    if (text != nullptr && title == text && gtk_widget_get_mapped(GTK_WIDGET(link->data))) {
      found = GTK_WIDGET(link->data);
    }
  }
  g_list_free(windows);
  return found;
}

std::vector<std::string> MenuLabels(GtkWidget* menu) {
  std::vector<std::string> labels;
  GList* entries = gtk_container_get_children(GTK_CONTAINER(menu));
  for (GList* link = entries; link != nullptr; link = link->next) {
    labels.push_back(GTK_IS_SEPARATOR_MENU_ITEM(link->data) ? "-"
                                                            : LabelOf(GTK_WIDGET(link->data)));
  }
  g_list_free(entries);
  return labels;
}

GtkWidget* MenuEntry(GtkWidget* menu, std::initializer_list<std::string> path) {
  GtkWidget* entry = nullptr;
  for (const std::string& label : path) {
    if (entry != nullptr) menu = gtk_menu_item_get_submenu(GTK_MENU_ITEM(entry));
    entry = nullptr;
    if (menu == nullptr) return nullptr;
    for (GtkWidget* child : ChildrenOf(menu)) {
      if (LabelOf(child) == label) entry = child;
    }
    if (entry == nullptr) return nullptr;
  }
  return entry;
}

GtkWidget* MenuBar() {
  return FindWidget(PtrnWnd, [](GtkWidget* widget) { return GTK_IS_MENU_BAR(widget) != FALSE; });
}

DialogAnswer::DialogAnswer(std::string title, std::function<void(GtkWidget*)> act)
    : title_(std::move(title)),
      act_(std::move(act)),
      deadline_(g_get_monotonic_time() + Patience),
      source_(g_timeout_add(LookInterval, Look, this)) {}

DialogAnswer::~DialogAnswer() {
  if (source_ != 0) g_source_remove(source_);
  EXPECT_TRUE(answered_) << "no window \"" << title_ << "\" came up";
}

gboolean DialogAnswer::Look(gpointer self) {
  auto* answer = static_cast<DialogAnswer*>(self);
  GtkWidget* window = FindWindow(answer->title_);
  if (window != nullptr && !answer->answered_) {
    answer->answered_ = true;
    answer->source_ = 0;
    answer->act_(window);
    return G_SOURCE_REMOVE;
  }
  if (g_get_monotonic_time() < answer->deadline_) return G_SOURCE_CONTINUE;
  answer->source_ = 0;
  CloseOtherWindows();
  return G_SOURCE_REMOVE;
}

std::function<void(GtkWidget*)> PressButton(std::string label) {
  return [label = std::move(label)](GtkWidget* window) {
    GtkWidget* button = FindLabel(window, label);
    ASSERT_TRUE(GTK_IS_BUTTON(button)) << "no button \"" << label << "\"";
    gtk_button_clicked(GTK_BUTTON(button));
  };
}
