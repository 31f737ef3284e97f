// The bitmap fonts of the machine, as an X server names them: fonts.dir and fonts.alias of the font
// folders.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

class FontCatalogue {
 public:
  // The fonts under $VARNIX_FONT_PATH, else under /usr/share/fonts/X11; read when first asked for.
  static FontCatalogue& Get();

  explicit FontCatalogue(const std::string& root);
  // File of the first font whose name matches the pattern ("*" any text, "?" any character, in
  // either case), "" when none does. Names come in the order of the folders, "misc" first, and are
  // sorted within a folder, as an X server lists them.
  std::string FindFile(const std::string& pattern);
  // What an alias stands for; the name itself when it is none.
  std::string ResolveAlias(const std::string& name) const;

 private:
  struct Entry {
    std::string Name;    // lower case
    std::string Target;  // a file, or for an alias a name or pattern
    bool Alias;
  };
  void ReadFolder(const std::string& folder);
  std::string Search(const std::string& pattern, int& aliasesLeft) const;

  std::vector<Entry> entries_;
  std::map<std::string, std::string> found_;
};

// Whether `text` matches a pattern of "*" and "?"; both lower case.
bool MatchesPattern(std::string_view pattern, std::string_view text);
