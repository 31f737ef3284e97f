#include "layout/LayoutCommands.h"

#include "layout/Guards.h"
#include "layout/ItemSlots.h"
#include "layout/Mouse.h"
#include "layout/ProjectRecord.h"
#include "layout/Screen.h"
#include "layout/Store.h"
#include "layout/edit/OwnFile.h"
#include "support/Profile.h"
#include "support/Text.h"

namespace {

// A layout is named by its first title.
void TakeName() {
  CopyText(PtrnName, FieldText(PtrnHedr.PtrnName1));
}

void ShowCanvas() {
  SetWindTitle(ProjName, PtrnName);
  SizeRequest(1, PtrnHedr.Parm1[HedrSlot::Width], PtrnHedr.Parm1[HedrSlot::Height],
              ZoomPercent(PtrnHedr.Parm2[ViewSlot::Zoom]));
}

void ShowLayout() {
  SetMainMenu();
  ShowCanvas();
}

// What the settings dialog edited becomes the header.
void TakeSettings() {
  PtrnFlag = 2;
  PtrnHedr = EditHedr;
  TakeName();
  ShowLayout();
}

gint ProfileZoom() {
  const gint zoom = ProfileReadInt1("", "PTRNDATA", "ZOOM");
  return zoom >= 0 && zoom < ZoomCode::Count ? zoom : 0;
}

}  // namespace

// Cancelling the settings leaves an empty store and refreshes nothing.
void PtrnDataNew([[maybe_unused]] GtkWidget* widget, gpointer data) {
  ClearToolBox();
  if (SavePtrnData() != 1) return;
  PtrnDataInit();
  PtrnFileInit(GPOINTER_TO_INT(data));
  if (EditPtrnData(PtrnWnd) == 1) TakeSettings();
}

// The zoom comes from the profile, never from the file.
void PtrnDataOpen([[maybe_unused]] GtkWidget* widget, [[maybe_unused]] gpointer data) {
  ClearToolBox();
  if (SavePtrnData() != 1) return;
  PtrnDataExit();
  if (PtrnFileOpen(PtrnWnd) != 1) return;
  PtrnFlag = 1;
  PtrnDataInit();
  TakeOwnFile();
  // What the device delivers in part is not opened: saving it would lose the rest. A file that is
  // missing or damaged opens with what there is.
  if (ReadPtrnFile(ProjPath, PtrnName) == LayoutReading::Failed) {
    PtrnDataExit();
    return;
  }
  PtrnHedr.Parm2[ViewSlot::Zoom] = ProfileZoom();
  ShowLayout();
}

void PtrnDataClose([[maybe_unused]] GtkWidget* widget, [[maybe_unused]] gpointer data) {
  constexpr gint Cancelled = 0;
  constexpr gint Save = 1;
  ClearToolBox();
  if (PtrnFlag == 2) {
    const gint answer = PtrnFileClose(PtrnWnd);
    if (answer == Cancelled) return;
    // What could not be saved stays open, silently: closing would lose it.
    if (answer == Save && !SaveLayout()) return;
  }
  PtrnDataExit();
}

// The snapshots go, their count stays: undoing right after a save empties the store.
void PtrnDataSave([[maybe_unused]] GtkWidget* widget, [[maybe_unused]] gpointer data) {
  ClearToolBox();
  if (PtrnFlag != 2 || !SaveLayout()) return;
  PtrnFlag = 1;
  PtrnSaveExit();
  SetMainMenu();
}

// A changed first title renames the layout: the next save writes a new file beside the old one.
void PtrnDataEdit([[maybe_unused]] GtkWidget* widget, [[maybe_unused]] gpointer data) {
  ClearToolBox();
  if (PtrnFlag == 0) return;
  EditHedr = PtrnHedr;
  if (EditPtrnData(PtrnWnd) == 1) {
    PushPtrnData();
    TakeSettings();
  }
}

void PtrnEditBack([[maybe_unused]] GtkWidget* widget, [[maybe_unused]] gpointer data) {
  ClearToolBox();
  if (PtrnFlag == 0) return;
  PopPtrnData();
  TakeName();
  ShowCanvas();
}

// Nothing is printed.
void PtrnDataPrint([[maybe_unused]] GtkWidget* widget, [[maybe_unused]] gpointer data) {
  ClearToolBox();
}

void PtrnExit([[maybe_unused]] GtkWidget* widget, [[maybe_unused]] gpointer data) {
  ClearToolBox();
  if (SavePtrnData() == 1 && MainLoop != nullptr) g_main_loop_quit(MainLoop);
}
