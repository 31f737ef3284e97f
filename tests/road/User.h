// A user at the display: real pointer and key events from a thread of its own, so that an open menu
// or modal dialog holds up nobody.
#pragma once

#include <gtk/gtk.h>

#include <functional>
#include <future>
#include <initializer_list>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

// Runs the main loop while a user plays the part; afterwards every window but the main one is
// closed. Everything below is called from within a part.
void Play(const std::function<void()>& part);

// Runs a task of the main loop at once, or, `idle`, when the loop has nothing else to do.
void Post(std::function<void()> task, bool idle);

// What `look` returns, asked in the main loop.
template <class Function>
auto Look(Function look) -> std::invoke_result_t<Function> {
  auto task = std::make_shared<std::packaged_task<std::invoke_result_t<Function>()>>(look);
  Post([task] { (*task)(); }, false);
  return task->get_future().get();
}

// Waits until the condition holds in the main loop. False after half a minute without it.
bool See(const std::function<bool()>& condition);
// Waits for a shown window with this title; null = none came.
GtkWidget* SeeWindow(const std::string& title);
// Waits until no window has this title.
bool SeeGone(const std::string& title);
// Waits until every event sent so far has been handled and what follows from it is painted.
void Settle();
// The same for another window.
void Settle(GtkWidget* window);

enum Button { LeftButton = 1, RightButton = 3 };

// Moves the pointer to a place of a widget once that is really under it; fails the test when not.
void PointAt(GtkWidget* widget, gint x, gint y);
void PointAt(GtkWidget* widget);  // its middle
// Moves the pointer to the corner of the screen.
void PointAway();
// Moves with a button held: returns when the program has had the motion.
void DragTo(GtkWidget* widget, gint x, gint y);
void ButtonDown(Button button);
void ButtonUp(Button button);
void Click(GtkWidget* widget, Button button = LeftButton);
// Presses and releases where the pointer is, at once: GTK closes a menu again whose press was held
// for half a second.
void ClickHere(Button button);
// Moves the pointer to a place of a widget and clicks there so many times, as fast as the display
// takes it; waits for nothing, so what the clicks lead to is to be seen.
void ClickFast(GtkWidget* widget, gint x, gint y, gint times, Button button = LeftButton);
// Turns the wheel one step down where the pointer is.
void TurnWheelHere();
// Moves the pointer by so many dots on the screen, whatever lies there.
void PointBy(gint x, gint y);

// Takes a window by the window manager's title bar and drags it; fails the test when it does not
// come along. Close to an edge of another window or of the screen the window manager holds it.
void DragByTitle(GtkWidget* window, gint x, gint y);

// Presses and releases a key while others are held; returns when the program has had it.
void PressKey(guint key, std::initializer_list<guint> held = {});
// Presses a key that the window manager keeps for itself.
void PressManagersKey(guint key, std::initializer_list<guint> held);
// Types characters that the keyboard has.
void TypeText(const std::string& text);
