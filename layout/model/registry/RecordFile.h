// Files that are nothing but records of one kind, one after the other, in the project folder.
#pragma once

#include <new>
#include <optional>
#include <string>
#include <vector>

#include "support/FileTools.h"
#include "support/Files.h"
#include "support/RecordBytes.h"

// All whole records, none of a missing file; nothing when the file is there but cannot be read.
// Whoever enters a record in such a file leaves it alone: better no entry than a lost file.
template <typename Record>
std::optional<std::vector<Record>> ReadRecords(const gchar* folder, const gchar* name) try {
  const std::string path = JoinPath(folder, name, "");
  if (IsMissing(path)) return std::vector<Record>();
  const std::optional<std::string> bytes = ReadWholeFile(path, G_MAXINT);
  if (!bytes) return std::nullopt;
  return RecordsOf<Record>(*bytes);
} catch (const std::bad_alloc&) {
  return std::nullopt;
}

// Replaces the file; 1 or 0. Without a folder there is no project to write to.
template <typename Record>
gint WriteRecords(const gchar* folder, const gchar* name, const std::vector<Record>& records) {
  if (*folder == '\0') return 0;
  const std::string_view bytes = BytesOfRecords(records.data(), records.size());
  return FileWrite(folder, name, "", bytes.data(), static_cast<gint>(bytes.size()), 0);
}
