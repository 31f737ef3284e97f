#include "tests/window/Reader.h"

#include <gio/gio.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <set>

namespace {

constexpr const gchar* RootPath = "/org/a11y/atspi/accessible/root";
constexpr const gchar* Accessible = "org.a11y.atspi.Accessible";
constexpr const gchar* Action = "org.a11y.atspi.Action";
constexpr gint Patience = 10000;  // milliseconds
constexpr guint Focusable = 11;   // bit of the states

struct Release {
  void operator()(gpointer object) const { g_object_unref(object); }
  void operator()(GVariant* value) const { g_variant_unref(value); }
};
using BusPtr = std::unique_ptr<GDBusConnection, Release>;
using ValuePtr = std::unique_ptr<GVariant, Release>;

// A widget of a program, told by the program's name on the bus and the widget's path.
struct Node {
  std::string Owner;
  std::string Path;
};

// The answer is null when the widget or its program is gone.
ValuePtr Call(GDBusConnection* bus, const Node& node, const gchar* kind, const gchar* method,
              GVariant* arguments = nullptr) {
  return ValuePtr(g_dbus_connection_call_sync(bus, node.Owner.c_str(), node.Path.c_str(), kind,
                                              method, arguments, nullptr, G_DBUS_CALL_FLAGS_NONE,
                                              Patience, nullptr, nullptr));
}

BusPtr ReadersBus() {
  const BusPtr session(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
  if (!session) return nullptr;
  const ValuePtr answer =
      Call(session.get(), {"org.a11y.Bus", "/org/a11y/bus"}, "org.a11y.Bus", "GetAddress");
  if (!answer) return nullptr;
  const gchar* address = nullptr;
  g_variant_get(answer.get(), "(&s)", &address);
  constexpr auto Flags =
      static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                        G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
  return BusPtr(g_dbus_connection_new_for_address_sync(address, Flags, nullptr, nullptr, nullptr));
}

GDBusConnection* Bus() {
  static const BusPtr bus = ReadersBus();
  return bus.get();
}

std::string TextOf(const ValuePtr& answer, const gchar* format) {
  const gchar* text = "";
  if (answer) g_variant_get(answer.get(), format, &text);
  return text;
}

std::string NameOf(const Node& node) {
  const ValuePtr answer = Call(Bus(), node, "org.freedesktop.DBus.Properties", "Get",
                               g_variant_new("(ss)", Accessible, "Name"));
  if (!answer) return "";
  GVariant* name = nullptr;
  g_variant_get(answer.get(), "(v)", &name);
  const ValuePtr held(name);
  return g_variant_get_string(name, nullptr);
}

std::vector<Node> ChildrenOf(const Node& node) {
  std::vector<Node> children;
  const ValuePtr answer = Call(Bus(), node, Accessible, "GetChildren");
  if (!answer) return children;
  GVariantIter* list = nullptr;
  g_variant_get(answer.get(), "(a(so))", &list);
  const gchar* owner = nullptr;
  const gchar* path = nullptr;
  while (g_variant_iter_loop(list, "(&s&o)", &owner, &path)) children.push_back({owner, path});
  g_variant_iter_free(list);
  return children;
}

bool TakesTheKeyboard(const Node& node) {
  const ValuePtr answer = Call(Bus(), node, Accessible, "GetState");
  if (!answer) return false;
  GVariantIter* words = nullptr;
  g_variant_get(answer.get(), "(au)", &words);
  guint first = 0;
  g_variant_iter_next(words, "u", &first);
  g_variant_iter_free(words);
  return (first >> Focusable & 1) != 0;
}

std::set<std::string> KindsOf(const Node& node) {
  const ValuePtr answer = Call(Bus(), node, Accessible, "GetInterfaces");
  if (!answer) return {};
  const gchar** kinds = nullptr;
  g_variant_get(answer.get(), "(^a&s)", &kinds);
  std::set<std::string> found;
  for (const gchar** one = kinds; *one != nullptr; one++) found.insert(*one);
  g_free(kinds);
  return found;
}

bool HasActions(const Node& node, const std::set<std::string>& kinds) {
  if (kinds.count(Action) == 0) return false;
  const ValuePtr answer = Call(Bus(), node, Action, "GetActions");
  if (!answer) return false;
  const ValuePtr actions(g_variant_get_child_value(answer.get(), 0));
  return g_variant_n_children(actions.get()) > 0;
}

// Does the first action. False when the control refuses.
bool Act(const Node& node) {
  const ValuePtr answer = Call(Bus(), node, Action, "DoAction", g_variant_new("(i)", 0));
  gboolean done = FALSE;
  if (answer) g_variant_get(answer.get(), "(b)", &done);
  return done != FALSE;
}

bool IsUsable(const Node& node) {
  if (TakesTheKeyboard(node)) return true;
  const std::set<std::string> kinds = KindsOf(node);
  return kinds.count("org.a11y.atspi.Value") != 0 || HasActions(node, kinds);
}

// The latest child with this name, which lies above the others; an empty path = none.
Node ChildNamed(const Node& parent, const std::string& name) {
  if (parent.Path.empty()) return {};
  const std::vector<Node> children = ChildrenOf(parent);
  const auto found = std::find_if(children.rbegin(), children.rend(),
                                  [&name](const Node& child) { return NameOf(child) == name; });
  return found != children.rend() ? *found : Node{};
}

Node Window(const std::string& program, const std::string& title) {
  return ChildNamed(ChildNamed({"org.a11y.atspi.Registry", RootPath}, program), title);
}

// Visits the tree until `visit` returns true.
bool VisitTree(const Node& node, const std::function<bool(const Node&)>& visit) {
  if (visit(node)) return true;
  const std::vector<Node> children = ChildrenOf(node);
  return std::any_of(children.begin(), children.end(),
                     [&visit](const Node& child) { return VisitTree(child, visit); });
}

}  // namespace

std::vector<ReadControl> ReadWindow(const std::string& program, const std::string& title) {
  std::vector<ReadControl> controls;
  const Node window = Window(program, title);
  if (!window.Path.empty()) {
    VisitTree(window, [&controls](const Node& node) {
      controls.push_back({TextOf(Call(Bus(), node, Accessible, "GetRoleName"), "(&s)"),
                          NameOf(node), IsUsable(node)});
      return false;
    });
  }
  return controls;
}

bool ActOn(const std::string& program, const std::string& title, const std::string& name) {
  const Node window = Window(program, title);
  bool done = false;
  if (!window.Path.empty()) {
    VisitTree(window, [&](const Node& node) {
      if (NameOf(node).rfind(name, 0) != 0 || !HasActions(node, KindsOf(node))) return false;
      done = Act(node);
      return true;
    });
  }
  return done;
}
