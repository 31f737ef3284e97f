#include "dialogs/choosers/TypedFolder.h"

#include <glib.h>

#include <algorithm>
#include <optional>
#include <string_view>

#include "support/Text.h"

namespace {

bool IsPlain(std::string_view name) {
  return std::all_of(name.begin(), name.end(),
                     [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

// Its last name that is not plain tells.
bool IsEucJp(std::string_view path) {
  while (!path.empty()) {
    const std::size_t slash = path.rfind('/');
    const std::string_view name = path.substr(slash == path.npos ? 0 : slash + 1);
    if (!IsPlain(name)) return Utf8FromEuc(name).has_value();
    path = path.substr(0, slash == path.npos ? 0 : slash);
  }
  return false;
}

bool Exists(const std::string& path) {
  return g_file_test(path.c_str(), G_FILE_TEST_EXISTS) != FALSE;
}

// The path with a typed name, or the typed end of its last name, behind it.
std::string WithName(const std::string& path, const std::string& name) {
  const std::optional<std::string> bytes = EucFromUtf8(name);
  if (!bytes) return path + name;
  const std::string utf8 = path + name;
  const std::string euc = path + *bytes;
  const bool asEuc = IsEucJp(path);
  const std::string& wanted = asEuc ? euc : utf8;
  const std::string& other = asEuc ? utf8 : euc;
  return !Exists(wanted) && Exists(other) ? other : wanted;
}

// How much of the text is still what was shown, in bytes: all of that, or its first whole names.
std::size_t Untouched(std::string_view text, std::string_view shown) {
  if (text.starts_with(shown)) return shown.size();
  const auto differ = std::mismatch(text.begin(), text.end(), shown.begin(), shown.end()).first;
  const auto same = static_cast<std::size_t>(differ - text.begin());
  if (same == text.size() && shown[same] == '/') return same;
  const std::size_t slash = text.substr(0, same).rfind('/');
  return slash == text.npos ? 0 : slash;
}

// The folder's part that shows as this many bytes of `shown`, which ends with a name.
std::string PartShownAs(const std::string& folder, std::string_view shown, std::size_t size) {
  if (size == shown.size()) return folder;
  auto slashes = std::count(shown.begin(), shown.begin() + static_cast<std::ptrdiff_t>(size), '/');
  std::size_t end = folder.find('/');
  for (; slashes > 0 && end != folder.npos; --slashes) end = folder.find('/', end + 1);
  return folder.substr(0, end);
}

}  // namespace

std::string TypedFolder(const std::string& text, const std::string& folder) {
  const std::string shown = DisplayText(folder);
  const std::size_t untouched = Untouched(text, shown);
  std::string path = PartShownAs(folder, shown, untouched);
  std::size_t begin = untouched;
  for (;;) {
    const std::size_t slash = text.find('/', begin);
    if (slash != begin) path = WithName(path, text.substr(begin, slash - begin));
    if (slash == text.npos) return path;
    path += '/';
    begin = slash + 1;
    if (begin == text.size()) return path;
  }
}
