#include "tools/json/SourceReader.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

#include "support/Text.h"

namespace {

const std::string& TextOf(const JsonSource& value, const std::string& place) {
  if (!value.is_string()) throw SourceError(place, "a text is expected");
  const auto& text = value.get_ref<const std::string&>();
  if (text.find('\0') != std::string::npos) throw SourceError(place, "a text cannot hold NUL");
  return text;
}

void CheckLength(const std::string& place, std::size_t length, std::size_t limit,
                 const char* encoding) {
  if (length > limit) {
    throw SourceError(place, std::to_string(length) + " bytes" + encoding + ", at most " +
                                 std::to_string(limit) + " fit");
  }
}

// The first character that EUC-JP cannot hold; the parser has checked that this is UTF-8.
std::string FirstStranger(const std::string& text) {
  const gchar* end = text.data() + text.size();
  for (const gchar* at = text.data(); at < end;) {
    const gchar* next = g_utf8_next_char(at);
    std::string character(at, static_cast<std::size_t>(next - at));
    if (!EucFromUtf8(character)) return character;
    at = next;
  }
  return text;
}

std::string KeyPlace(const std::string& place, const std::string& key) {
  return place.empty() ? key : place + "." + key;
}

void ReadParameter(const JsonSource& value, const std::string& place, const Parameter& parameter,
                   std::span<gint> parm) {
  const auto first = static_cast<std::size_t>(parameter.Slot);
  const auto count = static_cast<std::size_t>(parameter.Count());
  if (!value.is_array() || count == 1) {
    std::fill_n(parm.begin() + parameter.Slot, count, NumberOf(value, place));
    return;
  }
  if (value.size() != count) {
    throw SourceError(place, "a number or a list of " + std::to_string(count) + " is expected");
  }
  for (std::size_t k = 0; k < count; ++k) {
    parm[first + k] = NumberOf(value[k], EntryPlace(place, k));
  }
}

void ReadParameters(const JsonSource& value, const std::string& place,
                    std::span<const Parameter> parameters, std::span<gint> parm) {
  for (const auto& [key, entry] : value.items()) {
    if (key == "_comment") continue;
    const std::string& name = key;
    const auto found = std::find_if(parameters.begin(), parameters.end(),
                                    [&name](const Parameter& known) { return name == known.Name; });
    if (found == parameters.end()) throw SourceError(KeyPlace(place, key), "unknown key");
    ReadParameter(entry, KeyPlace(place, key), *found, parm);
  }
}

}  // namespace

gint NumberOf(const JsonSource& value, const std::string& place) {
  if (value.is_number_integer()) {
    const bool huge =
        value.is_number_unsigned() && value.get<std::uint64_t>() > std::numeric_limits<gint>::max();
    const auto number = value.get<std::int64_t>();
    if (!huge && std::in_range<gint>(number)) return static_cast<gint>(number);
  }
  throw SourceError(place, "a whole number of 32 bits is expected");
}

std::string EucOf(const JsonSource& value, const std::string& place, std::size_t limit) {
  const std::string& text = TextOf(value, place);
  auto euc = EucFromUtf8(text);
  if (!euc) throw SourceError(place, "EUC-JP cannot hold \"" + FirstStranger(text) + "\"");
  CheckLength(place, euc->size(), limit, " in EUC-JP");
  return *std::move(euc);
}

std::string BytesOf(const JsonSource& value, const std::string& place, std::size_t limit) {
  const std::string& text = TextOf(value, place);
  CheckLength(place, text.size(), limit, "");
  return text;
}

void ReadParm(const JsonSource& value, const std::string& place,
              std::span<const Parameter> parameters, std::span<gint> parm) {
  if (value.is_object() && !parameters.empty()) {
    ReadParameters(value, place, parameters, parm);
    return;
  }
  if (!value.is_array() || value.size() != parm.size()) {
    throw SourceError(place, "a list of " + std::to_string(parm.size()) + " numbers is expected");
  }
  for (std::size_t k = 0; k < parm.size(); ++k) parm[k] = NumberOf(value[k], EntryPlace(place, k));
}

const JsonSource& ListOf(const JsonSource& value, const std::string& place, std::size_t limit) {
  if (!value.is_array()) throw SourceError(place, "a list is expected");
  if (value.size() > limit) {
    throw SourceError(place, std::to_string(value.size()) + " entries, at most " +
                                 std::to_string(limit) + " fit");
  }
  return value;
}

std::string EntryPlace(const std::string& place, std::size_t index) {
  return place + "[" + std::to_string(index) + "]";
}

ObjectReader::ObjectReader(const JsonSource& value, std::string place)
    : object_(value), place_(std::move(place)) {
  if (!value.is_object()) {
    throw SourceError(place_.empty() ? "source" : place_, "an object is expected");
  }
}

std::string ObjectReader::Place(const char* key) const {
  return KeyPlace(place_, key);
}

const JsonSource* ObjectReader::Find(const char* key) {
  known_.insert(key);
  const auto found = object_.find(key);
  return found == object_.end() ? nullptr : &*found;
}

gint ObjectReader::Number(const char* key, gint missing) {
  const JsonSource* value = Find(key);
  return value ? NumberOf(*value, Place(key)) : missing;
}

std::string ObjectReader::Euc(const char* key, std::size_t limit) {
  const JsonSource* value = Find(key);
  return value ? EucOf(*value, Place(key), limit) : std::string();
}

std::string ObjectReader::Bytes(const char* key, std::size_t limit) {
  const JsonSource* value = Find(key);
  return value ? BytesOf(*value, Place(key), limit) : std::string();
}

void ObjectReader::Finish() const {
  for (const auto& entry : object_.items()) {
    if (!known_.contains(entry.key())) throw SourceError(Place(entry.key().c_str()), "unknown key");
  }
}

void ObjectReader::CopyInto(const std::string& text, gchar* field, std::size_t size) {
  CopyText(field, size, text);
}
