// Short forms for the rows of settings dialogs. A row is placed in columns culm1..culm2 of its
// line.
#pragma once

#include <cstddef>

#include "dialogs/Kit.h"

namespace Rows {

// The integer at a byte offset of a packed record.
template <class Record>
gint* IntAt(Record* record, gsize offset) {
  return static_cast<gint*>(static_cast<void*>(reinterpret_cast<char*>(record) + offset));
}

inline DLG_STRING Label(gint line, const gchar* text, gint culm = 0) {
  return {line, culm, culm, 0, text, nullptr};
}

inline DLG_NUMRBOX Number(gint line, gint culm, gint* data, gint min, gint max,
                          const gchar* caption) {
  return {line, culm, culm, max > 99 ? 4 : 2, max, min, data, caption, nullptr};
}

inline DLG_COLRDATA Colour(gint line, gint culm, gint* colr, const gchar* caption) {
  return {line, culm, culm, colr, caption};
}

inline DLG_COMBOBOX Choice(gint line, gint culm1, gint culm2, gint* item,
                           const gchar* const* list) {
  return {line, culm1, culm2, 0, item, list, ""};
}

inline DLG_RADIOBUTN Radio(gint line, gint culm, gint* data, gint code, const gchar* text) {
  return {line, culm, culm, code, data, text};
}

inline DLG_CHECKBUTN Check(gint line, gint culm1, gint culm2, gint* data, const gchar* text) {
  return {line, culm1, culm2, data, text};
}

// An entry of a text field for `size` bytes of EUC-JP.
inline DLG_EDITBOX Entry(gint line, gint culm1, gint culm2, gchar* text, gint size, bool readOnly) {
  return {line, culm1, culm2, size, readOnly ? 1 : 0, text, nullptr};
}

inline constexpr DLG_STRING EndString = {-1, 0, 0, 0, nullptr, nullptr};
inline constexpr DLG_NUMRBOX EndNumrBox = {-1, 0, 0, 0, 0, 0, nullptr, nullptr, nullptr};
inline constexpr DLG_COLRDATA EndColrData = {-1, 0, 0, nullptr, nullptr};
inline constexpr DLG_COMBOBOX EndComboBox = {-1, 0, 0, 0, nullptr, nullptr, nullptr};
inline constexpr DLG_RADIOBUTN EndRadioButn = {-1, 0, 0, 0, nullptr, nullptr};
inline constexpr DLG_CHECKBUTN EndCheckButn = {-1, 0, 0, nullptr, nullptr};
inline constexpr DLG_EDITBOX EndEditBox = {-1, 0, 0, 0, 0, nullptr, nullptr};

}  // namespace Rows
