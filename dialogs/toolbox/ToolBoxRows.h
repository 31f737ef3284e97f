// Words that the tool box tables are written in. Every row is bound to the item in hand, PtrnData.
#pragma once

#include <cstddef>

#include "Constant.h"
#include "dialogs/Kit.h"
#include "dialogs/ToolBox.h"
#include "layout/ItemSlots.h"
#include "layout/Store.h"
#include "support/Resource.h"

// The integer at a byte offset of the item in hand. Formed by bytes, as the record is packed.
inline gint* ItemInt(gsize offset) {
  return static_cast<gint*>(static_cast<void*>(reinterpret_cast<char*>(&PtrnData) + offset));
}
inline gint* Parm(gint slot) {
  return ItemInt(offsetof(PTRNDATA, Parm) + static_cast<gsize>(slot) * sizeof(gint));
}

inline DLG_STRING Label(gint line, const gchar* text) {
  return {line, 0, 0, 0, text, nullptr};
}
// A number 0..max.
inline DLG_NUMRBOX Number(gint line, gint culm, gint* data, gint max) {
  return {line, culm, culm, max > 99 ? 4 : 2, max, 0, data, "", nullptr};
}
inline DLG_COLRDATA Colour(gint line, gint culm, gint* colr) {
  return {line, culm, culm, colr, ""};
}
inline DLG_MARKDATA MarkRow(gint line, gint culm, gint* mark) {
  return {line, culm, culm, mark};
}
inline DLG_COMBOBOX Choice(gint line, gint* item, const gchar* const* list) {
  return {line, 1, 4, 0, item, list, ""};
}
inline DLG_RADIOBUTN Radio(gint line, gint culm1, gint culm2, gint* data, gint code,
                           const gchar* text) {
  return {line, culm1, culm2, code, data, text};
}
inline DLG_CHECKBUTN Check(gint line, gint culm1, gint culm2, gint* data, const gchar* text) {
  return {line, culm1, culm2, data, text};
}
// An entry of a text field, as long as the field takes.
template <gsize Size>
DLG_EDITBOX Entry(gint line, gchar (&text)[Size], bool readOnly) {
  return {line, 1, 3, static_cast<gint>(Size) - 2, readOnly ? 1 : 0, text, nullptr};
}

inline constexpr DLG_STRING EndString = {-1, 0, 0, 0, nullptr, nullptr};
inline constexpr DLG_NUMRBOX EndNumrBox = {-1, 0, 0, 0, 0, 0, nullptr, nullptr, nullptr};
inline constexpr DLG_COLRDATA EndColrData = {-1, 0, 0, nullptr, nullptr};
inline constexpr DLG_MARKDATA EndMarkData = {-1, 0, 0, nullptr};
inline constexpr DLG_COMBOBOX EndComboBox = {-1, 0, 0, 0, nullptr, nullptr, nullptr};
inline constexpr DLG_RADIOBUTN EndRadioButn = {-1, 0, 0, 0, nullptr, nullptr};
inline constexpr DLG_CHECKBUTN EndCheckButn = {-1, 0, 0, nullptr, nullptr};
inline constexpr DLG_EDITBOX EndEditBox = {-1, 0, 0, 0, 0, nullptr, nullptr};
