// Layouts as values: several at once, beside the open one.
#include <gtest/gtest.h>

#include <cstring>

#include "layout/ItemSlots.h"
#include "layout/LayoutFile.h"
#include "tests/layout/LayoutFixture.h"

namespace {

constexpr gint First = 466;  // where the records begin

// A layout of items of type 6 that bear numbers from `first` on.
std::string NumberedFile(gint first, gint count, std::string_view title) {
  Bytes bytes = Bytes().Int(1001).Zeros(160).Field(title, 82).Zeros(208);
  bytes.Ints({count, 5 * count, 0});
  for (gint no = 0; no < count; ++no) bytes.Int(6).Zeros(124).Ints({first + no, 0});
  return bytes.Zeros(static_cast<std::size_t>(5 * count)).Str();
}

class LayoutValueTest : public LayoutFixture {
 protected:
  std::string Folder() const { return folder_.Path(); }
};

TEST_F(LayoutValueTest, TwoAreWorkedOnWhileAThirdIsOpen) {
  ASSERT_EQ(Read(NumberedFile(300, 3, "Open")), 1);
  folder_.Write("A.ptn", NumberedFile(100, 4, "A"));
  folder_.Write("B.ptn", NumberedFile(200, 2, "B"));

  Layout one, other;
  ASSERT_EQ(ReadLayoutFile(Folder().c_str(), "A", one), LayoutReading::Whole);
  ASSERT_EQ(ReadLayoutFile(Folder().c_str(), "B", other), LayoutReading::Whole);
  one.Items.push_back(other.Items[1]);
  other.Items.erase(other.Items.begin());
  other.Header.Parm1[HedrSlot::Width] = 640;
  ASSERT_TRUE(WriteLayoutFile(Folder().c_str(), "A", one.Header, one.Items));
  ASSERT_TRUE(WriteLayoutFile(Folder().c_str(), "B", other.Header, other.Items));

  std::string longer = NumberedFile(100, 5, "A");
  longer.replace(First + 4 * 136 + 128, 4, Bytes().Int(201).Str());
  EXPECT_EQ(folder_.Read("A.ptn"), longer);
  std::string shorter = NumberedFile(201, 1, "B");
  shorter.replace(8, 4, Bytes().Int(640).Str());
  EXPECT_EQ(folder_.Read("B.ptn"), shorter);

  EXPECT_STREQ(PtrnHedr.PtrnName1, "Open");
  EXPECT_EQ(PtrnHedr.Parm1[HedrSlot::Width], 0);
  ASSERT_EQ(GetPtrnCount(), 3);
  EXPECT_EQ(+Item(0).ID_No, 300);
  EXPECT_EQ(+Item(2).ID_No, 302);
  EXPECT_EQ(Written(), NumberedFile(300, 3, "Open"));
}

TEST_F(LayoutValueTest, DecodedBytesAreEncodedAlike) {
  std::string bytes = NumberedFile(1, 70, "Title");
  bytes.replace(124 + 4, 4, Bytes().Int(1).Str());  // the grid is shown
  bytes.replace(164, 82, std::string(82, 'x'));     // no terminator
  bytes.replace(0, 4, Bytes().Int(7).Str());        // of another version
  std::optional<Layout> layout = DecodeLayout(bytes);
  ASSERT_TRUE(layout);
  EXPECT_EQ(layout->Items.size(), 70u);
  const LayoutBytes encoded = EncodeLayout(layout->Header, layout->Items);
  EXPECT_EQ(std::string_view(encoded.data(), encoded.size()), bytes);
}

TEST_F(LayoutValueTest, CutBytesAreNoLayout) {
  const std::string bytes = NumberedFile(1, 2, "Title");
  ASSERT_EQ(bytes.size(), 748u);
  EXPECT_TRUE(DecodeLayout(bytes));
  for (const std::size_t size : {0, 465, 466, 601, 602, 737, 738, 747}) {
    EXPECT_FALSE(DecodeLayout(bytes.substr(0, size))) << size;
  }
}

TEST_F(LayoutValueTest, WhatIsReadIsAppended) {
  folder_.Write("A.ptn", NumberedFile(100, 2, "A"));
  Layout layout;
  EXPECT_EQ(ReadLayoutFile(Folder().c_str(), "none", layout), LayoutReading::Short);
  ASSERT_EQ(ReadLayoutFile(Folder().c_str(), "A", layout), LayoutReading::Whole);
  ASSERT_EQ(ReadLayoutFile(Folder().c_str(), "A", layout), LayoutReading::Whole);
  ASSERT_EQ(layout.Items.size(), 4u);
  EXPECT_EQ(+layout.Items[3].ID_No, 101);
  EXPECT_STREQ(layout.Header.PtrnName1, "A");
}

TEST_F(LayoutValueTest, EmptyItemsAreAllZeros) {
  ItemArray items(3, ItemOfType(7));
  items.reserve(103);
  PTRNDATA* first = AddEmptyItems(items, 100);
  const PTRNDATA empty{};
  for (gint i = 0; i < 100; ++i) ASSERT_EQ(std::memcmp(first + i, &empty, sizeof empty), 0) << i;
  EXPECT_EQ(items.size(), 103u);
  EXPECT_EQ(+items[2].Type, 7);
  first[99].ID_No = 77;
  EXPECT_EQ(+items[102].ID_No, 77);
}

TEST_F(LayoutValueTest, EmptyItemsAreNotWhatWasThereBefore) {
  ItemArray items(5, ItemOfType(7));
  items.resize(3);
  AddEmptyItems(items, 1);
  EXPECT_EQ(+items[3].Type, 0);
}

TEST_F(LayoutValueTest, ItemsOfTheStoreAreExchanged) {
  const PTRNDATA item = ItemOfType(9);
  AddPtrnData(&item);
  ItemArray items(2, ItemOfType(4));
  SwapPtrnData(items);
  ASSERT_EQ(items.size(), 1u);
  EXPECT_EQ(+items[0].Type, 9);
  ASSERT_EQ(ViewAllPtrnData().size(), 2u);
  EXPECT_EQ(+ViewAllPtrnData()[1].Type, 4);
}

}  // namespace
