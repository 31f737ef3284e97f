// The undo history: snapshots of the whole layout, kept as layout files in a folder beside the
// program. Slot PtrnSaveCount - 1 is the newest.
#include <unistd.h>

#include "layout/ItemSlots.h"
#include "layout/LayoutCommands.h"
#include "layout/Screen.h"
#include "layout/Store.h"
#include "layout/edit/OwnFile.h"
#include "support/FileTools.h"
#include "support/Files.h"
#include "support/Program.h"

gchar PtrnSavePath[258];
gchar PtrnSaveName[10][82];
gint PtrnSaveCount;

namespace {

constexpr gint SlotCount = 10;
constexpr const gchar* SlotExtension = "ptn";

void DeleteSlot(gint slot) {
  // Before the slots have names there are none.
  if (PtrnSavePath[0] != '\0') FileDelete(PtrnSavePath, PtrnSaveName[slot], SlotExtension);
}

bool IsEmptySlot(gint slot) {
  return IsMissing(JoinPath(PtrnSavePath, PtrnSaveName[slot], SlotExtension));
}

// Drops the oldest snapshot and frees the last slot. False when the others could not move up.
bool ShiftSlots() {
  for (gint slot = 0; slot + 1 < SlotCount; ++slot) {
    DeleteSlot(slot);
    if (FileRename(PtrnSavePath, PtrnSaveName[slot + 1], SlotExtension, PtrnSaveName[slot],
                   SlotExtension) == 0 &&
        !IsEmptySlot(slot + 1)) {
      return false;
    }
  }
  DeleteSlot(SlotCount - 1);
  return true;
}

}  // namespace

void PtrnSaveInit() {
  PtrnSaveCount = 0;
  if (PtrnSavePath[0] != '\0') return;
  MakePath(PtrnSavePath, PathName, "save", "");
  CreateFolder(PtrnSavePath);
  const gint group = getpgid(0);
  for (gint slot = 0; slot < SlotCount; ++slot) {
    g_snprintf(PtrnSaveName[slot], sizeof PtrnSaveName[slot], "PtrnSave%d_%d", group, slot);
  }
}

// The count stays: undoing after a save finds no snapshot and empties the store.
void PtrnSaveExit() {
  for (gint slot = 0; slot < SlotCount; ++slot) DeleteSlot(slot);
}

// A snapshot that could not be written does not count: undoing to it would lose the layout. A
// history with a gap would lose it too, so one that cannot move up is given up.
void PushPtrnData() {
  gint slot = PtrnSaveCount;
  if (slot >= SlotCount) slot = ShiftSlots() ? SlotCount - 1 : 0;
  // Not through a link that somebody may have put there: the folder may be everybody's, and the
  // names can be foreseen.
  DeleteSlot(slot);
  PtrnSaveCount = WritePtrnFile(PtrnSavePath, PtrnSaveName[slot]) ? slot + 1 : slot;
  SetMainMenu();
}

// The grid display is no part of the history; everything else goes back, the zoom included. A
// snapshot that the device cannot deliver changes nothing.
void PopPtrnData() {
  if (PtrnSaveCount <= 0) return;
  Layout snapshot;
  snapshot.Header = PtrnHedr;
  const bool gone = IsEmptySlot(PtrnSaveCount - 1);
  if (ReadLayoutFile(PtrnSavePath, PtrnSaveName[PtrnSaveCount - 1], snapshot) ==
      LayoutReading::Failed) {
    return;
  }
  --PtrnSaveCount;
  // What is open now is no state of its file, and must not cost what that holds.
  if (gone) ForgetOwnFile();
  snapshot.Header.Parm2[ViewSlot::GridShown] = PtrnHedr.Parm2[ViewSlot::GridShown];
  PtrnHedr = snapshot.Header;
  SwapPtrnData(snapshot.Items);
  SetMainMenu();
}
