#include "tools/compare/Match.h"

#include <algorithm>
#include <cstring>
#include <deque>
#include <string>
#include <unordered_map>

#include "layout/ItemTypes.h"
#include "support/Text.h"
#include "tools/json/Numbers.h"

namespace {

std::string Bytes(const void* field, std::size_t size) {
  return {static_cast<const char*>(field), size};
}

template <std::size_t Size>
std::string Text(const gchar (&field)[Size]) {
  return std::string(FieldText(field)) + '\0';
}

std::string Texts(const PTRNDATA& item) {
  return Text(item.Text1) + Text(item.Text2) + Text(item.Text3);
}

bool HasTexts(const PTRNDATA& item) {
  return item.Text1[0] != '\0' || item.Text2[0] != '\0' || item.Text3[0] != '\0';
}

bool HasCode(const PTRNDATA& item) {
  return item.ID_Code[0] != '\0';
}

std::string Place(const PTRNDATA& item) {
  return Bytes(&item.Parm, (HasTwoPoints(item.Type) ? 4 : 2) * sizeof(gint));
}

std::string Code(const PTRNDATA& item) {
  return Text(item.ID_Code) + Bytes(&item.ID_No, sizeof(gint));
}

// Size and parameters, wherever the item is.
std::string Shape(const PTRNDATA& item) {
  auto parm = NumbersOf<30>(item.Parm);
  const auto distance = [&parm](gint to, gint from) {
    return static_cast<guint32>(parm[static_cast<std::size_t>(to)]) -
           static_cast<guint32>(parm[static_cast<std::size_t>(from)]);
  };
  parm[ItemSlot::X2] = static_cast<gint>(distance(ItemSlot::X2, ItemSlot::X1));
  parm[ItemSlot::Y2] = static_cast<gint>(distance(ItemSlot::Y2, ItemSlot::Y1));
  parm[ItemSlot::X1] = parm[ItemSlot::Y1] = 0;
  if (!HasTwoPoints(item.Type)) parm[ItemSlot::X2] = parm[ItemSlot::Y2] = 0;
  return Bytes(parm.data(), sizeof parm) + Code(item) + Text(item.ID_Name);
}

// What two items must agree in; "" = this item cannot be matched so.
using Key = std::string (*)(const PTRNDATA& item);

constexpr Key Keys[] = {
    [](const PTRNDATA& item) {
      return Bytes(&item.Parm, sizeof item.Parm) + Texts(item) + Code(item) + Text(item.ID_Name) +
             Bytes(&item.ID_Type, sizeof(gint)) + Bytes(&item.UndfFlag, sizeof(gint));
    },
    [](const PTRNDATA& item) { return Place(item) + Texts(item); },
    [](const PTRNDATA& item) { return HasCode(item) ? Code(item) + Texts(item) : std::string(); },
    [](const PTRNDATA& item) { return Place(item); },
    [](const PTRNDATA& item) { return HasCode(item) ? Code(item) : std::string(); },
    [](const PTRNDATA& item) { return HasTexts(item) ? Texts(item) : std::string(); },
    Shape,
};

using Indexes = std::vector<std::size_t>;

Indexes AllOf(std::span<const PTRNDATA> items) {
  Indexes all(items.size());
  for (std::size_t no = 0; no < all.size(); ++no) all[no] = no;
  return all;
}

// One side of the comparison: its items and those not paired yet.
struct Side {
  std::span<const PTRNDATA> Items;
  Indexes Left = AllOf(Items);
};

std::string TypedKey(const PTRNDATA& item, Key key) {
  const std::string rest = key(item);
  return rest.empty() ? rest : Bytes(&item.Type, sizeof(gint)) + rest;
}

void PairBy(Key key, Side& before, Side& after, std::vector<ItemPair>& pairs) {
  std::unordered_map<std::string, std::deque<std::size_t>> waiting;
  for (const std::size_t no : before.Left) {
    if (std::string text = TypedKey(before.Items[no], key); !text.empty()) {
      waiting[std::move(text)].push_back(no);
    }
  }
  std::vector<bool> paired(before.Items.size());
  std::erase_if(after.Left, [&](std::size_t no) {
    const std::string text = TypedKey(after.Items[no], key);
    const auto found = text.empty() ? waiting.end() : waiting.find(text);
    if (found == waiting.end() || found->second.empty()) return false;
    pairs.push_back({found->second.front(), no});
    paired[found->second.front()] = true;
    found->second.pop_front();
    return true;
  });
  std::erase_if(before.Left, [&paired](std::size_t no) { return paired[no]; });
}

}  // namespace

ItemMatch MatchItems(std::span<const PTRNDATA> before, std::span<const PTRNDATA> after) {
  Side one{before};
  Side other{after};
  ItemMatch match;
  for (const Key key : Keys) PairBy(key, one, other, match.Pairs);
  std::sort(match.Pairs.begin(), match.Pairs.end(),
            [](const ItemPair& a, const ItemPair& b) { return a.After < b.After; });
  match.Removed = std::move(one.Left);
  match.Added = std::move(other.Left);
  return match;
}

std::vector<ItemPair> Reordered(const ItemMatch& match) {
  // The longest run of pairs that kept their order stays; the others have moved.
  const std::vector<ItemPair>& pairs = match.Pairs;
  Indexes ends;  // last pair of the best run of each length
  std::vector<std::ptrdiff_t> previous(pairs.size(), -1);
  for (std::size_t no = 0; no < pairs.size(); ++no) {
    const auto place = std::lower_bound(
        ends.begin(), ends.end(), no,
        [&pairs](std::size_t a, std::size_t b) { return pairs[a].Before < pairs[b].Before; });
    if (place != ends.begin()) previous[no] = static_cast<std::ptrdiff_t>(*(place - 1));
    if (place == ends.end()) {
      ends.push_back(no);
    } else {
      *place = no;
    }
  }
  std::vector<bool> kept(pairs.size());
  for (std::ptrdiff_t no = ends.empty() ? -1 : static_cast<std::ptrdiff_t>(ends.back()); no >= 0;
       no = previous[static_cast<std::size_t>(no)]) {
    kept[static_cast<std::size_t>(no)] = true;
  }
  std::vector<ItemPair> moved;
  for (std::size_t no = 0; no < pairs.size(); ++no) {
    if (!kept[no]) moved.push_back(pairs[no]);
  }
  return moved;
}
