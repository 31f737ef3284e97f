#include "dialogs/kit/RecentColours.h"

#include <algorithm>
#include <vector>

namespace {

constexpr gsize Most = 10;
std::vector<gint> Recent;

}  // namespace

std::span<const gint> RecentColours() {
  return Recent;
}

void NoteRecentColour(gint number) {
  Recent.erase(std::remove(Recent.begin(), Recent.end(), number), Recent.end());
  Recent.insert(Recent.begin(), number);
  if (Recent.size() > Most) Recent.pop_back();
}
