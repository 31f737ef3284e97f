// Files that are nothing but records of one kind, one after the other.
#pragma once

#include <new>
#include <vector>

#include "support/Files.h"

// Whether the file is there and large enough for a record.
template <typename Record>
bool HoldsRecords(const gchar* folder, const gchar* name) {
  return FileSize(folder, name, "") >= static_cast<gint>(sizeof(Record));
}

// All whole records; none when the file is missing or unreadable.
template <typename Record>
std::vector<Record> ReadRecords(const gchar* folder, const gchar* name) {
  std::vector<Record> records;
  if (!HoldsRecords<Record>(folder, name)) {
    return records;
  }
  const gint count = FileSize(folder, name, "") / static_cast<gint>(sizeof(Record));
  try {
    records.resize(static_cast<std::size_t>(count));
  } catch (const std::bad_alloc&) {
    return {};
  }
  if (!FileRead(folder, name, "", records.data(), count * static_cast<gint>(sizeof(Record)), 0)) {
    records.clear();
  }
  return records;
}

// Replaces the file; 1 or 0.
template <typename Record>
gint WriteRecords(const gchar* folder, const gchar* name, const std::vector<Record>& records) {
  return FileWrite(folder, name, "", records.data(),
                   static_cast<gint>(records.size() * sizeof(Record)), 0);
}
