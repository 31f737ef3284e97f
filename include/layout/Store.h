// The open layout: its header, its items, its file.
#pragma once

#include <span>

#include "layout/Layout.h"
#include "layout/LayoutFile.h"

// Header of the open layout, and the working copy of the settings dialog.
extern PTRNHEDR PtrnHedr;
extern PTRNHEDR EditHedr;
// The item in hand: written by mouse and tool box, reaches the store through the commit alone.
extern PTRNDATA PtrnData;
// Name of the open layout, the base name of its file.
extern gchar PtrnName[82];
// 0 no layout open, 1 open and saved, 2 open with unsaved changes.
extern gint PtrnFlag;

// Empties the store and makes room for items.
void IntPtrnData();
// Releases the store.
void ExtPtrnData();
gint GetPtrnCount();
// Copy an item out of or into place `no`; 0 when there is no such item.
gint GetPtrnData(gint no, PTRNDATA* out);
gint SetPtrnData(gint no, const PTRNDATA* in);
void AddPtrnData(const PTRNDATA* in);
// Removes an item, the later ones move down.
void DelPtrnData(gint no);
// Removes every item that `chosen` tells, at the cost of one; the number removed.
gint DelPtrnDataIf(bool (*chosen)(const PTRNDATA* item));
// The item itself, for reading without a copy; null outside the store. Gone with the next change.
const PTRNDATA* ViewPtrnData(gint no);
// All items in their order, for reading. Gone with the next change.
std::span<const PTRNDATA> ViewAllPtrnData();
// The same, for the sizes that painting finds.
std::span<PTRNDATA> ReachAllPtrnData();
// Exchanges all items for others, at the cost of none.
void SwapPtrnData(ItemArray& items);

// Reads "<path>/<name>.ptn" into PtrnHedr and appends its items. 0 = unreadable, not whole, or
// without texts (a layout without items reports 0, too, with its header loaded).
gint PtrnFileRead(const gchar* path, const gchar* name);
// Writes PtrnHedr and the store, items grouped by type in painting order. Failure is silent and
// keeps the old file.
void PtrnFileWrite(const gchar* path, const gchar* name);
// Fills EditHedr for a new layout: 0 parent window, 1 child window, else other.
void PtrnFileInit(gint type);

// As PtrnFileRead, and tells why.
LayoutReading ReadPtrnFile(const gchar* path, const gchar* name);
// As PtrnFileWrite, and tells whether the file was written. Without folder or name it is not.
bool WritePtrnFile(const gchar* path, const gchar* name);
