// Commands of the check entries. The menus set the entries' marks to follow the state, which calls
// the commands again; so each acts only where the mark and the state differ.
#include <glib-object.h>

#include "layout/EditState.h"
#include "layout/Guards.h"
#include "layout/ItemSlots.h"
#include "layout/Mouse.h"
#include "layout/Screen.h"
#include "layout/Store.h"
#include "render/FontTable.h"
#include "support/ConstantLists.h"
#include "support/Resource.h"

namespace {

constexpr gint ColorCodeCount = 4;
constexpr gint LanguageCount = 3;

// State of a check entry; anything that has no state counts as switched on.
bool IsOn(GtkWidget* widget) {
  if (widget == nullptr ||
      g_object_class_find_property(G_OBJECT_GET_CLASS(widget), "active") == nullptr) {
    return true;
  }
  gboolean active = FALSE;
  g_object_get(widget, "active", &active, nullptr);
  return active != FALSE;
}

// True when entry `choice` of a group of which one is always chosen asks for a change.
bool Chooses(GtkWidget* widget, gint choice, gint count, gint current) {
  if (choice < 0 || choice >= count) return false;
  if (IsOn(widget)) return choice != current;
  if (choice == current) {
    SetMenuActive1();  // a click took the mark off the chosen entry: put it back
  }
  return false;
}

}  // namespace

void PtrnSelct(GtkWidget* widget, gpointer data) {
  const gint type = GPOINTER_TO_INT(data) + 1;
  if (!IsItemType(type)) return;
  const bool on = IsOn(widget);
  if (on && type != PtrnType) {
    PtrnType = type;
    PtrnMode = ModeIdle;
    DispToolBox(0, type);
  } else if (!on && type == PtrnType) {
    ClearToolBox();
  }
}

void PtrnUnSelct(GtkWidget* widget, gpointer data) {
  const gint type = GPOINTER_TO_INT(data) + 1;
  if (IsItemType(type)) {
    PtrnUnSlct[type - 1] = IsOn(widget) ? 1 : 0;
    ClearToolBox();
  }
}

void PtrnRedraw([[maybe_unused]] GtkWidget* widget, [[maybe_unused]] gpointer data) {
  ClearToolBox();
  DrawRequest(1);
}

void PtrnZoom(GtkWidget* widget, gpointer data) {
  const gint zoom = GPOINTER_TO_INT(data);
  if (Chooses(widget, zoom, ZoomCode::Count, PtrnHedr.Parm2[ViewSlot::Zoom])) {
    PtrnHedr.Parm2[ViewSlot::Zoom] = zoom;
    ClearToolBox();
    SizeRequest(1, PtrnHedr.Parm1[HedrSlot::Width], PtrnHedr.Parm1[HedrSlot::Height],
                ZoomFactorData[zoom]);
  }
}

void PtrnGrid(GtkWidget* widget, [[maybe_unused]] gpointer data) {
  const bool on = IsOn(widget);
  if (on != (PtrnHedr.Parm2[ViewSlot::GridShown] != 0)) {
    PtrnHedr.Parm2[ViewSlot::GridShown] = on ? 1 : 0;
    ClearToolBox();
    DrawRequest(1);
  }
}

void PtrnColrSet(GtkWidget* widget, gpointer data) {
  const gint system = GPOINTER_TO_INT(data);
  if (Chooses(widget, system, ColorCodeCount, ColorCode)) {
    ColorCode = system;
    ClearToolBox();
    DrawRequest(1);
  }
}

void PtrnLangSet(GtkWidget* widget, gpointer data) {
  const gint language = GPOINTER_TO_INT(data);
  if (Chooses(widget, language, LanguageCount, Language)) {
    Language = language;
    FontDataInit(0);
    ClearToolBox();
    DrawRequest(1);
  }
}
