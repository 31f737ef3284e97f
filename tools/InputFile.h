// Files that the tool is given.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "layout/Layout.h"
#include "tools/json/Convert.h"

// The part of a path after its last "/", and what is before it ("." when there is none).
std::string_view BaseName(std::string_view path);
std::string FolderName(std::string_view path);
// The path with its base name in EUC-JP, as layouts are named on disk; nothing when the name has no
// EUC-JP form.
std::optional<std::string> EucPath(const std::string& path);
// The path itself, or when nothing is there and its EUC-JP form exists, that.
std::string ExistingPath(const std::string& path);

// Bytes of a file, or the reason why there are none.
struct FileBytes {
  std::optional<std::string> Bytes;
  std::string Error;
};
// As much of a file as a file of its kind holds by its own counts. Nothing is held in memory that
// the file does not hold.
FileBytes ReadFileOfKind(FileKind kind, const std::string& path);
// A layout file of any name, an empty layout for "/dev/null"; nothing when it cannot be read, the
// reason has then been told.
std::optional<Layout> ReadLayout(const std::string& path);
