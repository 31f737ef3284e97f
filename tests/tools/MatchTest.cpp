// Which items of two layouts are taken for the same, and how their fields are told.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>

#include "layout/ItemSlots.h"
#include "tools/compare/Changes.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

PTRNDATA Item(gint type, gint x, gint y, const char* text = "", const char* code = "") {
  PTRNDATA item{};
  item.Type = type;
  item.Parm[ItemSlot::X1] = x;
  item.Parm[ItemSlot::Y1] = y;
  item.Parm[ItemSlot::X2] = x + 30;
  item.Parm[ItemSlot::Y2] = y + 20;
  std::strcpy(item.Text1, text);
  std::strcpy(item.ID_Code, code);
  return item;
}

// "before-after" of each pair.
std::vector<std::string> Pairs(const std::vector<PTRNDATA>& before,
                               const std::vector<PTRNDATA>& after) {
  std::vector<std::string> pairs;
  for (const ItemPair& pair : MatchItems(before, after).Pairs) {
    pairs.push_back(std::to_string(pair.Before) + "-" + std::to_string(pair.After));
  }
  return pairs;
}

TEST(Match, EqualItemsInTheirOrder) {
  const PTRNDATA line = Item(TypeLine, 1, 2);
  EXPECT_THAT(Pairs({line, line}, {line, line, line}), ElementsAre("0-0", "1-1"));
}

TEST(Match, TypeMustAgree) {
  const ItemMatch match =
      MatchItems(std::vector{Item(TypeRectangle, 1, 2)}, std::vector{Item(TypeEllipse, 1, 2)});
  EXPECT_THAT(match.Pairs, IsEmpty());
  EXPECT_THAT(match.Removed, ElementsAre(0u));
  EXPECT_THAT(match.Added, ElementsAre(0u));
}

TEST(Match, PlaceAndTextBeforePlaceAlone) {
  EXPECT_THAT(Pairs({Item(TypeButton, 1, 2, "A", "ONE"), Item(TypeButton, 1, 2, "B", "TWO")},
                    {Item(TypeButton, 1, 2, "B", "X"), Item(TypeButton, 1, 2, "C", "Y")}),
              ElementsAre("1-0", "0-1"));
}

TEST(Match, CodeWhenTheItemMoved) {
  EXPECT_THAT(Pairs({Item(TypeButton, 1, 2, "A", "ONE"), Item(TypeButton, 5, 6, "A", "TWO")},
                    {Item(TypeButton, 9, 9, "A", "TWO"), Item(TypeButton, 8, 8, "A", "ONE")}),
              ElementsAre("1-0", "0-1"));
}

TEST(Match, TextWhenPlaceAndCodeAreNew) {
  EXPECT_THAT(Pairs({Item(TypeButton, 1, 2, "A")}, {Item(TypeButton, 9, 9, "A", "NEW")}),
              ElementsAre("0-0"));
}

TEST(Match, ShapeThatMoved) {
  PTRNDATA thick = Item(TypeLine, 1, 2);
  thick.Parm[LineSlot::Width] = 9;
  PTRNDATA moved = Item(TypeLine, 50, 60);
  moved.Parm[LineSlot::Width] = 9;
  EXPECT_THAT(Pairs({Item(TypeLine, 3, 4), thick}, {moved}), ElementsAre("1-0"));
}

TEST(Match, OnlyTheItemThatChangedItsPlaceInTheOrder) {
  const PTRNDATA a = Item(TypeLine, 1, 1);
  const PTRNDATA b = Item(TypeLine, 2, 2);
  const PTRNDATA c = Item(TypeLine, 3, 3);
  const std::vector<PTRNDATA> before{a, b, c};
  const std::vector<PTRNDATA> after{b, c, a};
  const std::vector<ItemPair> moved = Reordered(MatchItems(before, after));
  ASSERT_EQ(moved.size(), 1u);
  EXPECT_EQ(moved[0].Before, 0u);
  EXPECT_EQ(moved[0].After, 2u);
  EXPECT_THAT(Reordered(MatchItems(before, before)), IsEmpty());
}

// "label: before → after" of each change.
std::vector<std::string> Told(const std::vector<FieldChange>& changes) {
  std::vector<std::string> told;
  for (const FieldChange& change : changes) {
    told.push_back(change.Label + ": " + change.Before + " → " + change.After);
  }
  return told;
}

TEST(Changes, FieldsInTheWordsOfTheToolBox) {
  const PTRNDATA before = Item(TypeLine, 1, 2);
  PTRNDATA after = before;
  after.Parm[ItemSlot::Y2] = 99;
  after.Parm[LineSlot::Colour + 2] = 7;
  after.Parm[LineSlot::Style] = 1;
  after.Parm[LineSlot::Position] = 9;
  after.Parm[ItemSlot::TopLayer] = 1;
  after.Parm[20] = 3;  // means nothing for a line
  after.ID_Type = 5;
  after.UndfFlag = 1;
  EXPECT_THAT(
      Told(ItemChanges(before, after)),
      ElementsAre("終点: (31, 22) → (31, 99)", "表示色: 0,0,0,0 → 0,0,7,0", "表示位置: 中央 → 9",
                  "線種: 実線 → 破線", "TOP: オフ → オン", "Parm[20]: 0 → 3",
                  "処理種別: （なし） → 子ウィンドウ１を開く", "後で設定: オフ → オン"));
  EXPECT_THAT(ItemChanges(after, after), IsEmpty());
}

TEST(Changes, OnePointItemsAndTexts) {
  const PTRNDATA before = Item(TypeNumeric, 1, 2);
  PTRNDATA after = before;
  after.Parm[ItemSlot::X1] = 5;
  std::strcpy(after.Text2, "A\nB");
  after.Parm[TextSlot::CursorKeys] = 9;
  EXPECT_THAT(
      Told(ItemChanges(before, after)),
      ElementsAre("位置: (1, 2) → (5, 2)", "文字列２: 「」 → 「A B」", "カーソル: なし → ↑→"));
}

TEST(Changes, HeaderFields) {
  const PTRNHEDR before{};
  PTRNHEDR after{};
  after.Parm1[HedrSlot::Kind] = 2;
  after.Parm1[HedrSlot::TitleHeight] = 40;
  after.Parm2[ViewSlot::GridY] = 4;
  after.Parm2[9] = 1;
  std::strcpy(after.PtrnName2, "Two");
  after.DataCount = 7;  // counted from the items, nothing of its own
  EXPECT_THAT(Told(HeaderChanges(before, after)),
              ElementsAre("タイトル２: 「」 → 「Two」", "種別: 親ウィンドウ → その他",
                          "タイトル領域 高さ: 0 → 40", "方眼 横: 1 → 8", "Parm2[9]: 0 → 1"));
}

}  // namespace
