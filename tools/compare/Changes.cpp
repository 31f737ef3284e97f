#include "tools/compare/Changes.h"

#include <algorithm>
#include <array>
#include <map>

#include "layout/ItemTypes.h"
#include "layout/Parameters.h"
#include "support/ConstantLists.h"
#include "support/Text.h"
#include "tools/json/Numbers.h"

namespace {

// A text of a record in brackets, on one line.
std::string Shown(std::string_view bytes) {
  std::string text = DisplayText(bytes);
  std::replace_if(
      text.begin(), text.end(), [](char c) { return g_ascii_iscntrl(c); }, ' ');
  return "「" + text + "」";
}

class ChangeList {
 public:
  void Add(const std::string& label, const std::string& before, const std::string& after) {
    if (before != after) changes_.push_back({label, before, after});
  }
  template <std::size_t Size>
  void Text(const std::string& label, const gchar (&before)[Size], const gchar (&after)[Size]) {
    if (FieldText(before) != FieldText(after)) {
      changes_.push_back({label, Shown(FieldText(before)), Shown(FieldText(after))});
    }
  }
  void Number(const std::string& label, gint before, gint after) {
    Add(label, std::to_string(before), std::to_string(after));
  }
  std::vector<FieldChange> Take() { return std::move(changes_); }

 private:
  std::vector<FieldChange> changes_;
};

std::string ValueText(gint value, const gchar* const* names) {
  if (names != nullptr && value >= 0) {
    gint no = 0;
    while (no < value && names[no][0] != '\0') ++no;
    if (names[no][0] != '\0') return names[no];
  }
  return std::to_string(value);
}

// The values of a parameter, one for each colour system when it has several.
template <std::size_t Count>
std::string ParameterText(const std::array<gint, Count>& parm, const Parameter& parameter) {
  const auto first = static_cast<std::size_t>(parameter.Slot);
  const auto count = static_cast<std::size_t>(parameter.Count());
  std::string text;
  for (std::size_t no = 0; no < count; ++no) {
    text += (no == 0 ? "" : ",") + ValueText(parm[first + no], parameter.Range.Values);
  }
  return text;
}

// Every parameter, those without a label by their number. `field` names the array.
template <std::size_t Count>
void CompareParm(ChangeList& changes, std::span<const Parameter> parameters,
                 const std::string& field, std::array<gint, Count> before,
                 std::array<gint, Count> after) {
  std::array<bool, Count> named{};
  for (const Parameter& parameter : parameters) {
    if (parameter.Label == nullptr) continue;
    std::fill_n(named.begin() + parameter.Slot, parameter.Count(), true);
    changes.Add(parameter.Label, ParameterText(before, parameter), ParameterText(after, parameter));
  }
  for (std::size_t no = 0; no < Count; ++no) {
    if (!named[no]) changes.Number(field + "[" + std::to_string(no) + "]", before[no], after[no]);
  }
}

std::string PointText(gint x, gint y) {
  return "(" + std::to_string(x) + ", " + std::to_string(y) + ")";
}

std::string FirstPoint(const PTRNDATA& item) {
  return PointText(item.Parm[ItemSlot::X1], item.Parm[ItemSlot::Y1]);
}

std::string SecondPoint(const PTRNDATA& item) {
  return PointText(item.Parm[ItemSlot::X2], item.Parm[ItemSlot::Y2]);
}

// The points have been told together; they are no parameters here.
std::array<gint, 30> ParmWithoutPoints(const PTRNDATA& item) {
  auto parm = NumbersOf<30>(item.Parm);
  std::fill_n(parm.begin(), HasTwoPoints(item.Type) ? 4 : 2, 0);
  return parm;
}

std::string ItemName(const PTRNDATA& item) {
  std::string name = std::string(ItemTypeOf(item.Type).Label) + " " + FirstPoint(item);
  if (HasTwoPoints(item.Type)) name += "-" + SecondPoint(item);
  if (item.Text1[0] != '\0') name += " " + Shown(FieldText(item.Text1));
  if (item.ID_Code[0] != '\0') {
    name += " " + DisplayText(FieldText(item.ID_Code)) + "/" + std::to_string(item.ID_No);
  }
  return name;
}

std::string FieldLines(const std::vector<FieldChange>& fields) {
  std::string lines;
  for (const FieldChange& field : fields) {
    lines += "    " + field.Label + ": " + field.Before + " → " + field.After + "\n";
  }
  return lines;
}

}  // namespace

std::vector<FieldChange> HeaderChanges(const PTRNHEDR& before, const PTRNHEDR& after) {
  ChangeList changes;
  changes.Number("Version", before.Version, after.Version);
  changes.Text("タイトル１", before.PtrnName1, after.PtrnName1);
  changes.Text("タイトル２", before.PtrnName2, after.PtrnName2);
  changes.Text("タイトル３", before.PtrnName3, after.PtrnName3);
  changes.Text("ロゴマーク", before.LogoName, after.LogoName);
  changes.Text("作業領域 ビットマップ名", before.BmapName, after.BmapName);
  CompareParm(changes, HeaderParameters(), "Parm1", NumbersOf<30>(before.Parm1),
              NumbersOf<30>(after.Parm1));
  CompareParm(changes, ViewParameters(), "Parm2", NumbersOf<10>(before.Parm2),
              NumbersOf<10>(after.Parm2));
  return changes.Take();
}

std::vector<FieldChange> ItemChanges(const PTRNDATA& before, const PTRNDATA& after) {
  ChangeList changes;
  changes.Add(HasTwoPoints(after.Type) ? "始点" : "位置", FirstPoint(before), FirstPoint(after));
  if (HasTwoPoints(after.Type)) changes.Add("終点", SecondPoint(before), SecondPoint(after));
  const std::string text = ItemTypeOf(after.Type).TextLabel;
  changes.Text(text + "１", before.Text1, after.Text1);
  changes.Text(text + "２", before.Text2, after.Text2);
  changes.Text(text + "３", before.Text3, after.Text3);
  CompareParm(changes, ItemParameters(after.Type), "Parm", ParmWithoutPoints(before),
              ParmWithoutPoints(after));
  changes.Add("処理種別", ValueText(before.ID_Type, IDCodeList),
              ValueText(after.ID_Type, IDCodeList));
  changes.Text("画面名称", before.ID_Name, after.ID_Name);
  changes.Text("識別コード", before.ID_Code, after.ID_Code);
  changes.Number("識別番号", before.ID_No, after.ID_No);
  changes.Add("後で設定", before.UndfFlag != 0 ? "オン" : "オフ",
              after.UndfFlag != 0 ? "オン" : "オフ");
  return changes.Take();
}

LayoutChanges CompareLayouts(const Layout& before, const Layout& after) {
  LayoutChanges changes;
  changes.Header = HeaderChanges(before.Header, after.Header);
  ItemMatch match = MatchItems(before.Items, after.Items);
  std::map<std::size_t, std::size_t> moved;  // place after -> place before
  for (const ItemPair& pair : Reordered(match)) moved.emplace(pair.After, pair.Before);
  for (const ItemPair& pair : match.Pairs) {
    std::vector<FieldChange> fields =
        ItemChanges(before.Items[pair.Before], after.Items[pair.After]);
    if (moved.contains(pair.After)) {
      fields.push_back({"重なり順", std::to_string(pair.Before), std::to_string(pair.After)});
    }
    if (!fields.empty()) changes.Changed.push_back({pair, std::move(fields)});
  }
  changes.Removed = std::move(match.Removed);
  changes.Added = std::move(match.Added);
  return changes;
}

std::string ChangesText(const LayoutChanges& changes, const Layout& before, const Layout& after) {
  std::string text;
  if (!changes.Header.empty()) text += "~ レイアウト情報\n" + FieldLines(changes.Header);
  for (const ChangedItem& item : changes.Changed) {
    text += "~ " + ItemName(before.Items[item.Items.Before]) + "\n" + FieldLines(item.Fields);
  }
  for (const std::size_t no : changes.Removed) text += "- " + ItemName(before.Items[no]) + "\n";
  for (const std::size_t no : changes.Added) text += "+ " + ItemName(after.Items[no]) + "\n";
  return text;
}
