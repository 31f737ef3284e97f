// The items of the open layout and the layout file.
#pragma once

#include "layout/Records.h"

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
// Appends `count` empty items; the first of them, the others follow it. Gone with the next change.
PTRNDATA* AddEmptyPtrnData(gint count);
// Removes the last `count` items.
void DropLastPtrnData(gint count);
// Removes the first `count` items.
void DropFirstPtrnData(gint count);
// Makes room for `count` more items, so that adding them does not move the others.
void MakeRoomForPtrnData(gint count);
// Removes an item, the later ones move down.
void DelPtrnData(gint no);
// Removes every item that `chosen` tells, at the cost of one; the number removed.
gint DelPtrnDataIf(bool (*chosen)(const PTRNDATA* item));
// The item itself, for reading without a copy; null outside the store. Gone with the next change.
const PTRNDATA* ViewPtrnData(gint no);

// Reads "<path>/<name>.ptn" into PtrnHedr and appends its items. 0 = unreadable, not whole, or
// without texts (a layout without items reports 0, too, with its header loaded).
gint PtrnFileRead(const gchar* path, const gchar* name);
// Writes PtrnHedr and the store, items grouped by type in painting order. Failure is silent and
// keeps the old file.
void PtrnFileWrite(const gchar* path, const gchar* name);
// Fills EditHedr for a new layout: 0 parent window, 1 child window, else other.
void PtrnFileInit(gint type);

// How whole a layout file is. One that cannot be read counts as broken.
enum class LayoutFileState { Whole, Missing, Broken };
// Looks at the file's size and counts alone; reads nothing into the store. `items` takes the number
// of items of a whole file, 0 of any other.
LayoutFileState CheckPtrnFile(const gchar* path, const gchar* name, gint* items = nullptr);
// What a layout file holds must outlive its rewriting: copies it to "<name>.ptn.bak", which
// replaces an older one. False when that failed, so that the file must not be written. An empty
// file holds nothing.
bool KeepPtrnFile(const gchar* path, const gchar* name);
// The same for a damaged file alone; true of any other.
bool KeepDamagedPtrnFile(const gchar* path, const gchar* name);
// Short = missing, not whole, or without items. Failed = the device or the memory was at fault:
// what the store holds then is less than the file does and must not be written back.
enum class LayoutReading { Whole, Short, Failed };
// As PtrnFileRead, and tells why.
LayoutReading ReadPtrnFile(const gchar* path, const gchar* name);
// As PtrnFileWrite, and tells whether the file was written. Without folder or name it is not.
bool WritePtrnFile(const gchar* path, const gchar* name);
