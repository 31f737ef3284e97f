// Reads hand-written JSON strictly: what is missing is 0 or "", what is wrong is named.
#pragma once

#include <set>
#include <span>
#include <string>

#include "Types.h"
#include "layout/Parameters.h"
#include "tools/json/Json.h"
#include "tools/json/Numbers.h"

// A whole number of 32 bits.
gint NumberOf(const JsonSource& value, const std::string& place);
// EUC-JP bytes of a text, at most `limit` of them.
std::string EucOf(const JsonSource& value, const std::string& place, std::size_t limit);
// The bytes of a text as they are, at most `limit` of them.
std::string BytesOf(const JsonSource& value, const std::string& place, std::size_t limit);
// Fills `parm` from a list of as many numbers, or from an object that names parameters; one of
// several values takes a list of them or one number for all.
void ReadParm(const JsonSource& value, const std::string& place,
              std::span<const Parameter> parameters, std::span<gint> parm);
// The list itself, for its entries to be read.
const JsonSource& ListOf(const JsonSource& value, const std::string& place, std::size_t limit);
// "place[index]".
std::string EntryPlace(const std::string& place, std::size_t index);

// One object. Every key that is there must be asked for before Finish().
class ObjectReader {
 public:
  ObjectReader(const JsonSource& value, std::string place);

  // The value of a key, null when it is missing.
  const JsonSource* Find(const char* key);
  gint Number(const char* key, gint missing = 0);
  std::string Euc(const char* key, std::size_t limit);
  std::string Bytes(const char* key, std::size_t limit);
  // Fills a number field of a packed record; it stays as it is when the key is missing.
  template <std::size_t Count>
  void ParmInto(const char* key, std::span<const Parameter> parameters, void* field) {
    auto numbers = NumbersOf<Count>(field);
    if (const JsonSource* value = Find(key)) ReadParm(*value, Place(key), parameters, numbers);
    std::memcpy(field, numbers.data(), sizeof(numbers));
  }
  // Copies a text into its record field; names hold `limit` bytes.
  template <std::size_t Size>
  void EucInto(const char* key, std::size_t limit, gchar (&field)[Size]) {
    CopyInto(Euc(key, limit), field, Size);
  }
  // Refuses a key that nobody asked for. "_comment" is free.
  void Finish() const;
  std::string Place(const char* key) const;

 private:
  static void CopyInto(const std::string& text, gchar* field, std::size_t size);

  const JsonSource& object_;
  std::string place_;
  std::set<std::string> known_{"_comment"};
};
