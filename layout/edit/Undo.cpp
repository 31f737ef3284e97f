// The undo history: snapshots of the whole layout, kept as layout files in a folder beside the
// program. Slot PtrnSaveCount - 1 is the newest.
#include <unistd.h>

#include "PtrnMisc.h"
#include "layout/Commands.h"
#include "layout/ItemSlots.h"
#include "layout/Screen.h"
#include "layout/Store.h"

gchar PtrnSavePath[258];
gchar PtrnSaveName[10][82];
gint PtrnSaveCount;

namespace {

constexpr gint SlotCount = 10;
constexpr const gchar* SlotExtension = "ptn";

void DeleteSlot(gint slot) {
  FileDelete(PtrnSavePath, PtrnSaveName[slot], SlotExtension);
}

// Drops the oldest snapshot and frees the last slot.
void ShiftSlots() {
  for (gint slot = 0; slot + 1 < SlotCount; ++slot) {
    DeleteSlot(slot);
    FileRename(PtrnSavePath, PtrnSaveName[slot + 1], SlotExtension, PtrnSaveName[slot],
               SlotExtension);
  }
  DeleteSlot(SlotCount - 1);
}

}  // namespace

void PtrnSaveInit() {
  PtrnSaveCount = 0;
  if (PtrnSavePath[0] != '\0') {
    return;
  }
  MakePath(PtrnSavePath, PathName, "save", "");
  CreateFolder(PtrnSavePath);
  const gint group = getpgid(0);
  for (gint slot = 0; slot < SlotCount; ++slot) {
    g_snprintf(PtrnSaveName[slot], sizeof PtrnSaveName[slot], "PtrnSave%d_%d", group, slot);
  }
}

// The count stays: undoing after a save finds no snapshot and empties the store.
void PtrnSaveExit() {
  for (gint slot = 0; slot < SlotCount; ++slot) {
    DeleteSlot(slot);
  }
}

// A snapshot that could not be written does not count: undoing to it would lose the layout.
void PushPtrnData() {
  if (PtrnSaveCount >= SlotCount) {
    ShiftSlots();
    PtrnSaveCount = SlotCount;
  } else {
    ++PtrnSaveCount;
  }
  const gchar* name = PtrnSaveName[PtrnSaveCount - 1];
  FileDelete(PtrnSavePath, name, SlotExtension);
  PtrnFileWrite(PtrnSavePath, name);
  if (FileExist(PtrnSavePath, name, SlotExtension) == 0) {
    --PtrnSaveCount;
  }
  SetMainMenu();
}

// The grid display is no part of the history; everything else goes back, the zoom included.
void PopPtrnData() {
  if (PtrnSaveCount <= 0) {
    return;
  }
  ExtPtrnData();
  IntPtrnData();
  --PtrnSaveCount;
  const gint grid = PtrnHedr.Parm2[ViewSlot::GridShown];
  PtrnFileRead(PtrnSavePath, PtrnSaveName[PtrnSaveCount]);
  PtrnHedr.Parm2[ViewSlot::GridShown] = grid;
  SetMainMenu();
}
