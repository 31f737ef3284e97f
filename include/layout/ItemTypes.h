// What is known about each item type: one row per type. Whatever asks about types derives from it.
#pragma once

#include <span>

#include "layout/ItemSlots.h"
#include "layout/Parameters.h"

// What an item covers, and so how it is placed, outlined and picked.
enum class ItemShape {
  None,
  Anchored,  // placed by one point; painting finds its size
  Line,      // between two points, which stay in their order
  Box,       // between two corners, top left first
  Oval,      // within such a box
};
constexpr gint ItemShapeCount = 5;

// Types of one family stand together in the menus.
enum class ItemFamily { Shapes, Texts, Controls };
inline constexpr ItemFamily ItemFamilies[] = {ItemFamily::Shapes, ItemFamily::Texts,
                                              ItemFamily::Controls};

// What the three texts of an item are.
enum class ItemTexts {
  None,     // kept, not shown
  Words,    // shown; their length is a parameter
  Caption,  // shown inside the item's box, which may have none
  Picture,  // the first one names a file of the bitmap folder
};

// What an item's identification code stands for in the runtime program.
enum class ItemData { State, Number, Text, Command, Choice, Switch };
constexpr gint ItemDataCount = 6;

struct ItemTypeRow {
  gint Type = 0;
  const gchar* Name = "";   // in JSON
  const gchar* Label = "";  // in menus and messages, UTF-8
  gint PaintRank = 0;       // lower ones are painted first; no two alike
  ItemFamily Family = ItemFamily::Shapes;
  ItemShape Shape = ItemShape::None;
  ItemTexts Texts = ItemTexts::None;
  const gchar* TextLabel = "文字列";
  ItemData Data = ItemData::State;
  bool NeedsCode = false;      // without an identification code it would show nothing
  bool HasCursorKeys = false;  // TextSlot::CursorKeys tells which keys leave its entry

  // Slots, where the type has such a parameter.
  gint Font = NoSlot;
  gint FrontColour = NoSlot;  // of a text, mark or bar
  gint BackColour = NoSlot;   // of its own background
  gint BackSwitch = NoSlot;   // turns that on; none = always on

  bool Covers = false;        // hides what lies behind its box
  gint CoverSwitch = NoSlot;  // turns that on; none = always on
  gint CoverColour = NoSlot;  // the box's colour where it is one
};

inline bool IsItemType(gint type) {
  return type >= 1 && type <= ItemTypeCount;
}

// Index = type code; entry 0 is empty. Whoever asks goes through the functions below.
extern const ItemTypeRow ItemTypeRows[ItemTypeCount + 1];
// The row of a type code; an empty one, without name or shape, for any other number.
inline const ItemTypeRow& ItemTypeOf(gint type) {
  return ItemTypeRows[IsItemType(type) ? type : 0];
}

// All rows, in the order of their codes.
std::span<const ItemTypeRow> ItemTypes();
// True for a type placed by two points; false for an unknown one.
inline bool HasTwoPoints(gint type) {
  return ItemTypeOf(type).Shape > ItemShape::Anchored;
}

// 1 for a type placed by two points, 0 for one placed by an anchor; index = type code, entry 0
// unused.
extern const gint PtrnDataType[ItemTypeCount + 1];
// The painting order: type codes, areas first, texts last. Layout files keep their items in it too.
extern const gint PtrnTable[ItemTypeCount];
// Names of the item types, index = type code - 1.
extern const gchar* const PtrnTypeList[ItemTypeCount + 1];
