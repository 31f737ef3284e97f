#include "render/fonts/FontCatalogue.h"

#include <glib.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <system_error>

namespace {

constexpr const char* DefaultRoot = "/usr/share/fonts/X11";
constexpr int MaxAliases = 100;  // followed for one name

std::string Lower(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), g_ascii_tolower);
  return lower;
}

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view blanks = " \t\r\n";
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

// Takes the first word off a line; a word in quotes may hold blanks.
std::string TakeWord(std::string_view& line) {
  line = Trimmed(line);
  const bool quoted = !line.empty() && line.front() == '"';
  if (quoted) line.remove_prefix(1);
  const auto end = std::min(quoted ? line.find('"') : line.find_first_of(" \t"), line.size());
  std::string word(line.substr(0, end));
  line.remove_prefix(std::min(end + 1, line.size()));
  return word;
}

bool IsBitmapFont(std::string_view file) {
  return file.ends_with(".pcf.gz") || file.ends_with(".pcf");
}

std::vector<std::string> FoldersOf(const std::string& root) {
  std::vector<std::string> folders;
  std::error_code error;
  for (std::filesystem::directory_iterator entry(root, error), end; !error && entry != end;
       entry.increment(error)) {
    if (entry->is_directory(error)) folders.push_back(entry->path().string());
  }
  std::sort(folders.begin(), folders.end(), [](const std::string& a, const std::string& b) {
    return std::pair(!a.ends_with("/misc"), a) < std::pair(!b.ends_with("/misc"), b);
  });
  folders.insert(folders.begin(), root);
  return folders;
}

}  // namespace

bool MatchesPattern(std::string_view pattern, std::string_view text) {
  std::size_t p = 0, t = 0;
  std::optional<std::size_t> star;
  std::size_t retry = 0;
  while (t < text.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      retry = t;
    } else if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == text[t])) {
      ++p;
      ++t;
    } else if (star) {
      p = *star + 1;
      t = ++retry;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

FontCatalogue& FontCatalogue::Get() {
  static std::string root;
  static std::unique_ptr<FontCatalogue> catalogue;
  const char* asked = g_getenv("VARNIX_FONT_PATH");
  const std::string wanted = asked != nullptr && asked[0] != '\0' ? asked : DefaultRoot;
  if (!catalogue || root != wanted) {
    catalogue = std::make_unique<FontCatalogue>(wanted);
    root = wanted;
  }
  return *catalogue;
}

FontCatalogue::FontCatalogue(const std::string& root) {
  for (const std::string& folder : FoldersOf(root)) ReadFolder(folder);
}

void FontCatalogue::ReadFolder(const std::string& folder) {
  const auto first = static_cast<std::ptrdiff_t>(entries_.size());
  const std::string prefix = folder + "/";
  std::string line;
  std::ifstream fonts(prefix + "fonts.dir");
  std::getline(fonts, line);  // the number of fonts
  while (std::getline(fonts, line)) {
    std::string_view rest = line;
    const std::string file = TakeWord(rest);
    if (IsBitmapFont(file) && !Trimmed(rest).empty()) {
      entries_.push_back({Lower(Trimmed(rest)), prefix + file, false});
    }
  }
  std::ifstream aliases(prefix + "fonts.alias");
  while (std::getline(aliases, line)) {
    std::string_view rest = line;
    const std::string name = TakeWord(rest);
    const std::string target = TakeWord(rest);
    if (!name.starts_with('!') && !target.empty()) {
      entries_.push_back({Lower(name), Lower(target), true});
    }
  }
  std::stable_sort(entries_.begin() + first, entries_.end(),
                   [](const Entry& a, const Entry& b) { return a.Name < b.Name; });
}

std::string FontCatalogue::Search(const std::string& pattern, int& aliasesLeft) const {
  for (const Entry& entry : entries_) {
    if (!MatchesPattern(pattern, entry.Name)) continue;
    if (!entry.Alias) return entry.Target;
    // An alias may lead to nothing or in a circle; then the next match counts.
    if (aliasesLeft > 0) {
      --aliasesLeft;
      std::string file = Search(entry.Target, aliasesLeft);
      if (!file.empty()) return file;
    }
  }
  return {};
}

std::string FontCatalogue::FindFile(const std::string& pattern) {
  const std::string lower = Lower(pattern);
  const auto [place, isNew] = found_.try_emplace(lower);
  if (isNew) {
    int aliasesLeft = MaxAliases;
    place->second = Search(lower, aliasesLeft);
  }
  return place->second;
}

std::string FontCatalogue::ResolveAlias(const std::string& name) const {
  const std::string lower = Lower(name);
  for (const Entry& entry : entries_) {
    if (entry.Alias && entry.Name == lower) return entry.Target;
  }
  return name;
}
