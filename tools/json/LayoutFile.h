// A layout file's bytes and its records, in memory.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "layout/Records.h"

// A layout as its file holds it: the header unchanged, the items in file order.
struct LayoutFile {
  PTRNHEDR Header{};
  std::vector<PTRNDATA> Items;
};

// The most bytes that the texts of an item and the names of a header take.
namespace TextLimit {
enum : std::size_t { Text = 100, Name = 80, Code = 20, Picture = 20 };
}

// The size that a file must have at least, by the header that it begins with; nothing when that is
// cut short or holds a negative count.
std::optional<guint64> LayoutFileSize(std::string_view bytes);
// The records of a whole file, nothing when it is not whole. As when the program reads it, items of
// an unknown type are left out, and texts end at the limit of their field.
std::optional<LayoutFile> DecodeLayout(std::string_view bytes);
// The file of a layout: counts and sizes are those of the items, which are grouped by type in
// painting order.
std::string EncodeLayout(const LayoutFile& layout);
