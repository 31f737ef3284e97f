// The layout file: a layout and its bytes.
#pragma once

#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "layout/Layout.h"

// The most bytes that the texts of an item and the names of a header take.
namespace TextLimit {
enum : std::size_t { Text = 100, Name = 80, Code = 20, Picture = 20 };
}

// The size in bytes that a file with this header must have at least; nothing when a count is
// negative.
std::optional<gint64> LayoutFileSize(const PTRNHEDR& header);

// The layout that the bytes of a whole file hold, its header untouched; nothing when they are not
// whole. Items of an unknown type are left out, texts end at the limit of their field. Throws
// std::bad_alloc.
std::optional<Layout> DecodeLayout(std::string_view bytes);
using LayoutBytes = std::vector<char, BareMemory<char>>;
// The file of a layout, items grouped by type in painting order. Fills the header's counts, which
// count items of no known type, too, though these are not in the file. Throws std::bad_alloc.
LayoutBytes EncodeLayout(PTRNHEDR& header, std::span<const PTRNDATA> items);

// Short = missing, not whole, or without items. Failed = the device or the memory was at fault:
// what has been read then is less than the file holds and must not be written back.
enum class LayoutReading { Whole, Short, Failed };
// Reads "<path>/<name>.ptn" as a layout is opened: the header's texts end within their fields and
// its grid is hidden. Replaces the header, unless the file is too short for one, and appends the
// items.
LayoutReading ReadLayoutFile(const gchar* path, const gchar* name, Layout& layout);
// Writes "<path>/<name>.ptn" and tells whether it was written; a failure keeps the old file.
// Without folder or name nothing is done. The header takes the program's version and the counts
// that the file has, even where writing fails.
bool WriteLayoutFile(const gchar* path, const gchar* name, PTRNHEDR& header,
                     std::span<const PTRNDATA> items);

// How whole a layout file is. One that cannot be read counts as broken.
enum class LayoutFileState { Whole, Missing, Broken };
// Looks at the file's size and counts alone. `items` takes the number of items of a whole file, 0
// of any other.
LayoutFileState CheckPtrnFile(const gchar* path, const gchar* name, gint* items = nullptr);
// What a layout file holds must outlive its rewriting: copies it to "<name>.ptn.bak", which
// replaces an older one. False when that failed, so that the file must not be written. An empty
// file holds nothing.
bool KeepPtrnFile(const gchar* path, const gchar* name);
// The same for a damaged file alone; true of any other.
bool KeepDamagedPtrnFile(const gchar* path, const gchar* name);
