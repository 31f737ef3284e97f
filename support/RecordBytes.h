// Records as a file holds them: one after the other, each as it stands in memory.
#pragma once

#include <cstring>
#include <string_view>
#include <type_traits>
#include <vector>

template <typename Record>
std::string_view BytesOfRecords(const Record* records, std::size_t count) {
  static_assert(std::is_trivially_copyable_v<Record>);
  return {reinterpret_cast<const char*>(records), count * sizeof(Record)};
}

// Fills a table of fixed size. False when the bytes are fewer, the table then stays as it is.
template <typename Record>
bool FillRecords(Record* records, std::size_t count, std::string_view bytes) {
  static_assert(std::is_trivially_copyable_v<Record>);
  const std::size_t size = count * sizeof(Record);
  if (bytes.size() < size) return false;
  if (size > 0) std::memcpy(records, bytes.data(), size);
  return true;
}

// All whole records.
template <typename Record>
std::vector<Record> RecordsOf(std::string_view bytes) {
  std::vector<Record> records(bytes.size() / sizeof(Record));
  FillRecords(records.data(), records.size(), bytes);
  return records;
}
