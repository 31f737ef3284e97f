#include "tests/road/User.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "layout/EditWindows.h"
#include "tests/road/Seat.h"
#include "tests/window/Widgets.h"

namespace {

constexpr auto Patience = std::chrono::seconds(30);
// Once something went wrong, what follows from it is not waited for: a part of many steps would
// take minutes to fail.
constexpr auto PatienceAfterFailure = std::chrono::milliseconds(100);
constexpr auto LookInterval = std::chrono::milliseconds(2);

std::unique_ptr<Seat> Hands;

// Presses of buttons that have reached the program. The window manager looks at a press first and
// hands it on late; a release then comes straight, but not to a window that its press has closed.
gint Presses;
// Presses of keys that have reached the program.
gsize KeyPresses;

// Where the latest pointer motion that has reached the program led, on the screen.
POINT MovedTo{-1, -1};

void NoteEvent(GdkEvent* event, gpointer /*data*/) {
  if (event->type == GDK_BUTTON_PRESS) Presses++;
  if (event->type == GDK_KEY_PRESS) KeyPresses++;
  if (event->type == GDK_MOTION_NOTIFY) {
    MovedTo = {static_cast<gint>(event->motion.x_root), static_cast<gint>(event->motion.y_root)};
  }
  gtk_main_do_event(event);
}

struct Task {
  std::function<void()> Run;
};

gboolean RunTask(gpointer task) {
  static_cast<Task*>(task)->Run();
  return G_SOURCE_REMOVE;
}

void DeleteTask(gpointer task) {
  delete static_cast<Task*>(task);
}

void WhenIdle() {
  std::promise<void> idle;
  Post([&idle] { idle.set_value(); }, true);
  idle.get_future().get();
}

// Lets the toplevel finish a frame, which hands out held-back motion before it paints.
void Frame(GtkWidget* window) {
  struct Wait {
    std::promise<void> Done;
    gulong Handler = 0;
  };
  const auto wait = std::make_shared<Wait>();
  const bool waiting = Look([&] {
    GdkFrameClock* clock = GTK_IS_WIDGET(window) && gtk_widget_get_mapped(window)
                               ? gtk_widget_get_frame_clock(window)
                               : nullptr;
    if (clock == nullptr) return false;
    using Shared = std::shared_ptr<Wait>;
    const auto after = +[](GdkFrameClock* painted, gpointer data) {
      const Shared shared = *static_cast<Shared*>(data);
      g_signal_handler_disconnect(painted, shared->Handler);
      shared->Done.set_value();
    };
    wait->Handler = g_signal_connect_data(
        clock, "after-paint", G_CALLBACK(after), new Shared(wait),
        [](gpointer data, GClosure*) { delete static_cast<Shared*>(data); }, GConnectFlags{});
    gdk_frame_clock_request_phase(clock, GDK_FRAME_CLOCK_PHASE_FLUSH_EVENTS);
    gdk_frame_clock_request_phase(clock, GDK_FRAME_CLOCK_PHASE_PAINT);
    return true;
  });
  if (waiting) wait->Done.get_future().wait_for(Patience);
}

void ExpectPress(const std::function<void()>& press) {
  const gint before = Look([] { return Presses; });
  press();
  EXPECT_TRUE(See([before] { return Presses > before; })) << "nothing was pressed";
  WhenIdle();
}

// What lies where on the screen.
struct Spot {
  gint X = 0;
  gint Y = 0;
  bool Ready = false;
  bool operator==(const Spot&) const = default;
};

Spot SpotOf(GtkWidget* widget, gint x, gint y) {
  Spot spot;
  GtkWidget* top = gtk_widget_get_toplevel(widget);
  GdkWindow* window = gtk_widget_get_window(top);
  gint topX = 0;
  gint topY = 0;
  if (window == nullptr || !gtk_widget_get_mapped(widget)) return spot;
  if (!gtk_widget_translate_coordinates(widget, top, x, y, &topX, &topY)) return spot;
  gdk_window_get_root_coords(window, topX, topY, &spot.X, &spot.Y);
  spot.Ready = true;
  return spot;
}

void MoveTo(GtkWidget* widget, const Spot& spot) {
  const gint scale = gtk_widget_get_scale_factor(widget);
  Hands->MovePointer(spot.X * scale, spot.Y * scale);
}

GdkWindow* WindowUnderPointer() {
  GdkSeat* seat = gdk_display_get_default_seat(gdk_display_get_default());
  GdkWindow* window =
      gdk_device_get_window_at_position(gdk_seat_get_pointer(seat), nullptr, nullptr);
  return window != nullptr ? gdk_window_get_toplevel(window) : nullptr;
}

// What is found under the pointer, to be read in a failure.
std::string UnderPointer() {
  GdkWindow* window = WindowUnderPointer();
  if (window == nullptr) return "a window of another program";
  gpointer owner = nullptr;
  gdk_window_get_user_data(window, &owner);
  if (!GTK_IS_WINDOW(owner)) return "no window of the toolkit";
  const gchar* title = gtk_window_get_title(GTK_WINDOW(owner));
  GtkWidget* child = gtk_bin_get_child(GTK_BIN(owner));
  return std::string(G_OBJECT_TYPE_NAME(owner)) + " \"" + (title != nullptr ? title : "") +
         "\" with " + (child != nullptr ? G_OBJECT_TYPE_NAME(child) : "nothing");
}

bool KeyboardIsHere() {
  GList* windows = gtk_window_list_toplevels();
  const bool here = g_list_find_custom(windows, nullptr, [](gconstpointer window, gconstpointer) {
                      return gtk_window_is_active(GTK_WINDOW(const_cast<gpointer>(window))) ? 0 : 1;
                    }) != nullptr;
  g_list_free(windows);
  return here;
}

void StrikeKey(guint key, std::initializer_list<guint> held) {
  EXPECT_TRUE(See(KeyboardIsHere)) << "another program has the keyboard";
  for (const guint modifier : held) Hands->SendKey(modifier, true);
  Hands->SendKey(key, true);
  Hands->SendKey(key, false);
  for (const guint modifier : held) Hands->SendKey(modifier, false);
}

void CloseAllButTheMainWindow() {
  GList* windows = gtk_window_list_toplevels();
  g_list_foreach(
      windows, [](gpointer window, gpointer) { g_object_ref(window); }, nullptr);
  for (GList* link = windows; link != nullptr; link = link->next) {
    auto* window = static_cast<GtkWindow*>(link->data);
    const bool menu = gtk_window_get_window_type(window) == GTK_WINDOW_POPUP;
    if (!menu && GTK_WIDGET(window) != PtrnWnd && gtk_widget_get_visible(GTK_WIDGET(window))) {
      gtk_widget_destroy(GTK_WIDGET(window));
    }
  }
  g_list_free_full(windows, g_object_unref);
}

}  // namespace

void Post(std::function<void()> task, bool idle) {
  g_idle_add_full(idle ? G_PRIORITY_LOW : G_PRIORITY_DEFAULT, RunTask, new Task{std::move(task)},
                  DeleteTask);
}

void Play(const std::function<void()>& part) {
  Hands = std::make_unique<Seat>();
  GMainLoop* loop = g_main_loop_new(nullptr, FALSE);
  std::thread user([&] {
    part();
    Look(CloseAllButTheMainWindow);
    Post([loop] { g_main_loop_quit(loop); }, true);
  });
  gdk_event_handler_set(NoteEvent, nullptr, nullptr);
  g_main_loop_run(loop);
  user.join();
  gdk_event_handler_set([](GdkEvent* event, gpointer) { gtk_main_do_event(event); }, nullptr,
                        nullptr);
  g_main_loop_unref(loop);
  Hands.reset();
}

bool See(const std::function<bool()>& condition) {
  using std::chrono::steady_clock;
  const auto deadline = steady_clock::now() + (testing::Test::HasFailure()
                                                   ? steady_clock::duration(PatienceAfterFailure)
                                                   : steady_clock::duration(Patience));
  while (!Look(condition)) {
    if (std::chrono::steady_clock::now() > deadline) return false;
    std::this_thread::sleep_for(LookInterval);
  }
  return true;
}

GtkWidget* SeeWindow(const std::string& title) {
  See([&] { return FindWindow(title) != nullptr; });
  return Look([&] { return FindWindow(title); });
}

bool SeeGone(const std::string& title) {
  return See([&] { return FindWindow(title) == nullptr; });
}

void Settle() {
  Settle(PtrnWnd);
}

void Settle(GtkWidget* window) {
  WhenIdle();
  Frame(window);
  WhenIdle();
}

void PointAt(GtkWidget* widget, gint x, gint y) {
  ASSERT_NE(widget, nullptr) << "nothing to point at";
  const bool there = See([&] {
    const Spot spot = SpotOf(widget, x, y);
    if (!spot.Ready) return false;
    MoveTo(widget, spot);
    // A window that is just being framed moves down by its title while it comes under the pointer.
    return WindowUnderPointer() == gtk_widget_get_window(gtk_widget_get_toplevel(widget)) &&
           SpotOf(widget, x, y) == spot;
  });
  EXPECT_TRUE(there) << Look(UnderPointer) << " lies at " << x << ", " << y << " over "
                     << G_OBJECT_TYPE_NAME(widget);
  WhenIdle();
}

void PointAway() {
  Hands->MovePointer(0, 0);
  WhenIdle();
}

void DragTo(GtkWidget* widget, gint x, gint y) {
  PointAt(widget, x, y);
  // The toolkit hands out motion once a frame and joins what comes in between.
  const bool moved = See([&] {
    const Spot spot = SpotOf(widget, x, y);
    return MovedTo.x == spot.X && MovedTo.y == spot.Y;
  });
  EXPECT_TRUE(moved) << "the motion to " << x << ", " << y << " did not arrive";
  Settle();
}

void PointAt(GtkWidget* widget) {
  ASSERT_NE(widget, nullptr) << "nothing to point at";
  const SIZE size = Look([&] {
    return SIZE{gtk_widget_get_allocated_width(widget), gtk_widget_get_allocated_height(widget)};
  });
  PointAt(widget, size.cx / 2, size.cy / 2);
}

void ButtonDown(Button button) {
  ExpectPress([button] { Hands->SendButton(button, true); });
}

void ButtonUp(Button button) {
  Hands->SendButton(button, false);
  WhenIdle();
}

void Click(GtkWidget* widget, Button button) {
  PointAt(widget);
  ClickHere(button);
}

void ClickHere(Button button) {
  ExpectPress([button] { Hands->SendClick(button); });
}

void ClickFast(GtkWidget* widget, gint x, gint y, gint times, Button button) {
  Look([=] { MoveTo(widget, SpotOf(widget, x, y)); });
  for (gint i = 0; i < times; i++) Hands->SendClick(button);
}

void TurnWheelHere() {
  constexpr guint WheelDown = 5;
  Hands->SendClick(WheelDown);
  WhenIdle();
}

void PointBy(gint x, gint y) {
  Hands->MovePointerBy(x, y);
  EXPECT_TRUE(See([] {
    GdkSeat* seat = gdk_display_get_default_seat(gdk_display_get_default());
    POINT at{0, 0};
    gdk_device_get_position(gdk_seat_get_pointer(seat), nullptr, &at.x, &at.y);
    return MovedTo.x == at.x && MovedTo.y == at.y;
  })) << "the motion did not arrive";
  Settle();
}

void DragByTitle(GtkWidget* window, gint x, gint y) {
  constexpr gint IntoTitle = 5;
  const auto origin = [window] {
    POINT at{0, 0};
    gdk_window_get_origin(gtk_widget_get_window(window), &at.x, &at.y);
    return at;
  };
  GdkRectangle frame{};
  EXPECT_TRUE(See([&] {
    if (!gtk_widget_get_mapped(window)) return false;
    gdk_window_get_frame_extents(gtk_widget_get_window(window), &frame);
    // While the window manager puts its frame around the window, there is none to be asked.
    const POINT at = origin();
    return frame.y + IntoTitle < at.y && frame.x + frame.width > at.x &&
           frame.y + frame.height > at.y;
  })) << "the window has no title bar";
  const POINT from = Look(origin);
  const POINT grip{frame.x + frame.width / 2, frame.y + IntoTitle};
  Hands->MovePointer(grip.x, grip.y);
  Hands->SendButton(LeftButton, true);
  // The window manager takes some motion to see a drag in it; only what follows moves the window.
  gint aside = 0;
  const bool moves = See([&] {
    aside = 1 - aside;
    Hands->MovePointer(grip.x + x + aside, grip.y + y);
    return origin().x != from.x;
  });
  Hands->MovePointer(grip.x + x, grip.y + y);
  const bool there =
      moves && See([&] { return origin().x == from.x + x && origin().y == from.y + y; });
  EXPECT_TRUE(there) << "the window does not come along";
  Hands->SendButton(LeftButton, false);
  // The window manager takes a next press for its own until it has seen the release.
  EXPECT_TRUE(See([] { return Hands->PointerIsFree(); })) << "the drag does not end";
  Settle();
}

void PressKey(guint key, std::initializer_list<guint> held) {
  const gsize wanted = Look([] { return KeyPresses; }) + held.size() + 1;
  StrikeKey(key, held);
  EXPECT_TRUE(See([wanted] { return KeyPresses >= wanted; })) << "no key was pressed";
  WhenIdle();
}

void PressManagersKey(guint key, std::initializer_list<guint> held) {
  StrikeKey(key, held);
  WhenIdle();
}

void TypeText(const std::string& text) {
  for (const char letter : text) {
    const guint key = gdk_unicode_to_keyval(static_cast<guint32>(letter));
    if (Hands->NeedsShift(key)) {
      PressKey(key, {GDK_KEY_Shift_L});
    } else {
      PressKey(key);
    }
  }
}
