#include <gtest/gtest.h>

#include "tests/layout/LayoutFixture.h"

namespace {

using LayoutFileTest = LayoutFixture;

TEST_F(LayoutFileTest, WritesEveryByteInItsPlace) {
  for (gint i = 0; i < 30; ++i) PtrnHedr.Parm1[i] = 100 + i;
  for (gint i = 0; i < 10; ++i) PtrnHedr.Parm2[i] = 200 + i;
  std::strcpy(PtrnHedr.PtrnName1, "\xC5\xB9\xB8\xBB");
  std::strcpy(PtrnHedr.PtrnName2, "Power");
  std::strcpy(PtrnHedr.PtrnName3, "Strom");
  std::strcpy(PtrnHedr.LogoName, "Logo.bmp");
  std::strcpy(PtrnHedr.BmapName, "Back.png");

  PTRNDATA item{};
  item.Type = 8;
  for (gint i = 0; i < 30; ++i) item.Parm[i] = 300 + i;
  std::strcpy(item.Text1, "one");
  std::strcpy(item.Text3, "three");
  item.ID_Type = 5;
  std::strcpy(item.ID_Name, "Sub");
  std::strcpy(item.ID_Code, "TEMP");
  item.ID_No = 42;
  item.Point1 = {1, 2};
  item.Size = {3, 4};
  item.UndfFlag = 1;
  item.RegstFlag = 1;
  item.CheckFlag = 1;
  AddPtrnData(&item);

  const std::string expected = Bytes()
                                   .Int(1001)
                                   .Run(100, 30)
                                   .Run(200, 10)
                                   .Field("\xC5\xB9\xB8\xBB", 82)
                                   .Field("Power", 82)
                                   .Field("Strom", 82)
                                   .Field("Logo.bmp", 22)
                                   .Field("Back.png", 22)
                                   .Ints({1, 20, 1})
                                   .Int(8)
                                   .Run(300, 30)
                                   .Ints({5, 42, 1})
                                   .Raw(std::string_view("one\0\0three\0Sub\0TEMP\0", 20))
                                   .Str();
  EXPECT_EQ(Written(), expected);
  EXPECT_EQ(expected.size(), 466u + 136u + 20u);
}

TEST_F(LayoutFileTest, ReadsEveryField) {
  const std::string bytes = Bytes()
                                .Int(7)
                                .Run(100, 30)
                                .Run(200, 10)
                                .Field("A", 82)
                                .Field("B", 82)
                                .Field("C", 82)
                                .Field("D", 22)
                                .Field("E", 22)
                                .Ints({1, 14, 3})
                                .Int(2)
                                .Run(300, 30)
                                .Ints({6, 77, 1})
                                .Raw(std::string_view("x\0yy\0\0name\0ID\0", 14))
                                .Str();
  ASSERT_EQ(Read(bytes), 1);
  EXPECT_EQ(PtrnHedr.Version, 7);
  EXPECT_EQ(PtrnHedr.Parm1[0], 100);
  EXPECT_EQ(PtrnHedr.Parm1[29], 129);
  EXPECT_EQ(PtrnHedr.Parm2[0], 200);
  EXPECT_EQ(PtrnHedr.Parm2[1], 0) << "the grid is not shown after reading";
  EXPECT_EQ(PtrnHedr.Parm2[9], 209);
  EXPECT_STREQ(PtrnHedr.PtrnName1, "A");
  EXPECT_STREQ(PtrnHedr.PtrnName2, "B");
  EXPECT_STREQ(PtrnHedr.PtrnName3, "C");
  EXPECT_STREQ(PtrnHedr.LogoName, "D");
  EXPECT_STREQ(PtrnHedr.BmapName, "E");
  EXPECT_EQ(+PtrnHedr.DataCount, 1);
  EXPECT_EQ(+PtrnHedr.TextSize, 14);
  EXPECT_EQ(+PtrnHedr.UndfFlag, 3);

  ASSERT_EQ(GetPtrnCount(), 1);
  const PTRNDATA item = Item(0);
  EXPECT_EQ(item.Type, 2);
  EXPECT_EQ(item.Parm[0], 300);
  EXPECT_EQ(item.Parm[29], 329);
  EXPECT_EQ(+item.Point1.x, 300);
  EXPECT_EQ(+item.Point1.y, 301);
  EXPECT_EQ(+item.Point2.x, 302);
  EXPECT_EQ(+item.Point2.y, 303);
  EXPECT_STREQ(item.Text1, "x");
  EXPECT_STREQ(item.Text2, "yy");
  EXPECT_STREQ(item.Text3, "");
  EXPECT_STREQ(item.ID_Name, "name");
  EXPECT_STREQ(item.ID_Code, "ID");
  EXPECT_EQ(+item.ID_Type, 6);
  EXPECT_EQ(+item.ID_No, 77);
  EXPECT_EQ(+item.UndfFlag, 1);
  EXPECT_EQ(+item.Size.cx, 0);
  EXPECT_EQ(+item.RegstFlag, 0);
  EXPECT_EQ(+item.CheckFlag, 0);
}

TEST_F(LayoutFileTest, WithoutItemsTheFileIsItsHeaderAndReadsAsNotRead) {
  PtrnHedr.Parm1[1] = 640;
  const std::string bytes = Written();
  EXPECT_EQ(bytes, Bytes().Ints({1001, 0, 640}).Zeros(454).Str());
  EXPECT_EQ(Read(bytes), 0);
  EXPECT_EQ(PtrnHedr.Parm1[1], 640);
  EXPECT_EQ(GetPtrnCount(), 0);
}

TEST_F(LayoutFileTest, ItemsAreGroupedByTypeInPaintingOrder) {
  for (gint type = 15; type >= 1; --type) {
    for (const gint number : {1, 2}) {
      PTRNDATA item = ItemOfType(type);
      item.ID_No = number;
      AddPtrnData(&item);
    }
  }
  ASSERT_EQ(Read(Written()), 1);
  ASSERT_EQ(GetPtrnCount(), 30);
  const gint order[] = {1, 3, 4, 5, 2, 12, 13, 14, 15, 9, 10, 11, 6, 7, 8};
  for (gint i = 0; i < 15; ++i) {
    EXPECT_EQ(Item(2 * i).Type, order[i]);
    EXPECT_EQ(+Item(2 * i).ID_No, 1);
    EXPECT_EQ(Item(2 * i + 1).Type, order[i]);
    EXPECT_EQ(+Item(2 * i + 1).ID_No, 2);
  }
}

TEST_F(LayoutFileTest, CountsIncompleteItems) {
  for (const gint flag : {0, 1, 1, 5}) {
    PTRNDATA item = ItemOfType(1);
    item.UndfFlag = flag;
    AddPtrnData(&item);
  }
  Written();
  EXPECT_EQ(+PtrnHedr.UndfFlag, 3);
}

TEST_F(LayoutFileTest, AnUnknownTypeIsCountedButNotWritten) {
  PTRNDATA item = ItemOfType(16);
  std::strcpy(item.Text1, "lost");
  AddPtrnData(&item);
  item = ItemOfType(1);
  std::strcpy(item.Text1, "kept");
  AddPtrnData(&item);

  // The block has room for both items' texts; the room of the first stays empty at its end.
  const std::string expected = HeaderWithCounts(2, 18, 0)
                                   .Int(1)
                                   .Zeros(132)
                                   .Raw(std::string_view("kept\0\0\0\0\0", 9))
                                   .Zeros(9)
                                   .Str();
  EXPECT_EQ(Written(), expected);
}

TEST_F(LayoutFileTest, ReadingDropsUnknownTypesAndTheirTexts) {
  const std::string bytes = HeaderWithCounts(3, 29, 0)
                                .Int(0)
                                .Zeros(132)
                                .Int(3)
                                .Zeros(132)
                                .Int(16)
                                .Zeros(132)
                                .Raw(std::string_view("zero\0\0\0\0ZERO\0", 13))
                                .Raw(std::string_view("3\0\0\0\0C\0", 7))
                                .Raw(std::string_view("more\0\0\0\0\0", 9))
                                .Str();
  ASSERT_EQ(Read(bytes), 1);
  ASSERT_EQ(GetPtrnCount(), 1);
  EXPECT_EQ(Item(0).Type, 3);
  EXPECT_STREQ(Item(0).Text1, "3");
  EXPECT_STREQ(Item(0).ID_Code, "C");
  EXPECT_EQ(+PtrnHedr.DataCount, 3) << "the header stays as it was read";
}

TEST_F(LayoutFileTest, ReadingAppendsToTheStore) {
  const PTRNDATA item = ItemOfType(9);
  AddPtrnData(&item);
  folder_.Write("Main.ptn",
                HeaderWithCounts(1, 9, 0).Int(1).Zeros(132).Raw({"Text\0\0\0\0\0", 9}).Str());
  ASSERT_EQ(Read(), 1);
  ASSERT_EQ(GetPtrnCount(), 2);
  EXPECT_EQ(Item(0).Type, 9);
  EXPECT_STREQ(Item(0).Text1, "");
  EXPECT_STREQ(Item(1).Text1, "Text");
}

// One item of type 1 with these five texts.
std::string FileWithTexts(std::initializer_list<std::string> texts) {
  Bytes block;
  for (const std::string& text : texts) block.Text(text);
  const auto size = static_cast<gint>(block.Str().size());
  return HeaderWithCounts(1, size, 0).Int(1).Zeros(132).Raw(block.Str()).Str();
}

TEST_F(LayoutFileTest, LongestTextsComeBackWhole) {
  const std::string bytes =
      FileWithTexts({std::string(100, 'a'), std::string(100, 'b'), std::string(100, 'c'),
                     std::string(80, 'd'), std::string(20, 'e')});
  ASSERT_EQ(Read(bytes), 1);
  EXPECT_EQ(Item(0).Text1, std::string(100, 'a'));
  EXPECT_EQ(Item(0).Text2, std::string(100, 'b'));
  EXPECT_EQ(Item(0).Text3, std::string(100, 'c'));
  EXPECT_EQ(Item(0).ID_Name, std::string(80, 'd'));
  EXPECT_EQ(Item(0).ID_Code, std::string(20, 'e'));
  EXPECT_EQ(Written(), bytes);
}

TEST_F(LayoutFileTest, ATextOneByteTooLongShiftsTheFollowingOnes) {
  ASSERT_EQ(Read(FileWithTexts({std::string(101, 'a'), "two", "three", "name", "CODE"})), 1);
  EXPECT_EQ(Item(0).Text1, std::string(100, 'a'));
  EXPECT_STREQ(Item(0).Text2, "") << "what is left of the first text is its terminator";
  EXPECT_STREQ(Item(0).Text3, "two");
  EXPECT_STREQ(Item(0).ID_Name, "three");
  EXPECT_STREQ(Item(0).ID_Code, "name");
}

TEST_F(LayoutFileTest, NamesAndCodesAreCutAtTheirOwnLimits) {
  ASSERT_EQ(Read(FileWithTexts({"", "", "", std::string(81, 'n'), "CODE"})), 1);
  EXPECT_EQ(Item(0).ID_Name, std::string(80, 'n'));
  EXPECT_STREQ(Item(0).ID_Code, "");
  ASSERT_EQ(Read(FileWithTexts({"", "", "", "", std::string(21, 'c')})), 1);
  EXPECT_EQ(Item(0).ID_Code, std::string(20, 'c'));
}

TEST_F(LayoutFileTest, ACutSplitsNoCharacter) {
  std::string text(99, 'a');
  text += "\xC6\xFC";  // its second byte would be number 101
  ASSERT_EQ(Read(FileWithTexts({text, "two", "", "", ""})), 1);
  EXPECT_EQ(Item(0).Text1, std::string(99, 'a'));
}

TEST_F(LayoutFileTest, ATextWithoutTerminatorEndsWithItsField) {
  PTRNDATA item = ItemOfType(6);
  std::memset(item.Text1, 'a', sizeof item.Text1);
  std::memset(item.ID_Code, 'c', sizeof item.ID_Code);
  AddPtrnData(&item);
  const std::string bytes = Written();
  EXPECT_EQ(bytes.size(), 466u + 136u + (102 + 1) + 3 + (22 + 1));
  EXPECT_EQ(bytes.substr(602, 102), std::string(102, 'a'));
}

TEST_F(LayoutFileTest, TextsOfTheHeaderAreTerminated) {
  const std::string bytes = Bytes().Int(1001).Zeros(160).Raw(std::string(290, 'x')).Zeros(12).Str();
  ASSERT_EQ(bytes.size(), 466u);
  Read(bytes);
  EXPECT_EQ(PtrnHedr.PtrnName1, std::string(81, 'x'));
  EXPECT_EQ(PtrnHedr.PtrnName3, std::string(81, 'x'));
  EXPECT_EQ(PtrnHedr.LogoName, std::string(21, 'x'));
  EXPECT_EQ(PtrnHedr.BmapName, std::string(21, 'x'));
}

TEST_F(LayoutFileTest, AFailedReadLeavesTheHeaderAsItWas) {
  PtrnHedr.Parm1[1] = 5;
  EXPECT_EQ(Read(), 0) << "missing";
  folder_.Write("Main.ptn", std::string(465, '\x01'));
  EXPECT_EQ(Read(), 0) << "short";
  EXPECT_EQ(PtrnHedr.Parm1[1], 5);
}

TEST_F(LayoutFileTest, AFailedWriteKeepsTheOldFile) {
  const std::string folder = folder_.Path("none");
  EXPECT_FALSE(WritePtrnFile(folder.c_str(), "Main"));
  EXPECT_FALSE(folder_.Exists("none"));
  EXPECT_TRUE(WritePtrnFile(folder_.Path().c_str(), "Main"));
}

TEST_F(LayoutFileTest, ALayoutNameMayHoldADot) {
  PtrnFileWrite(folder_.Path().c_str(), "Main.v2");
  EXPECT_TRUE(folder_.Exists("Main.v2.ptn"));
}

TEST_F(LayoutFileTest, TellsWholeFilesFromBrokenOnes) {
  const auto check = [this](std::string_view bytes) {
    folder_.Write("Main.ptn", bytes);
    return CheckPtrnFile(folder_.Path().c_str(), "Main");
  };
  EXPECT_EQ(CheckPtrnFile(folder_.Path().c_str(), "Main"), LayoutFileState::Missing);
  const std::string whole = FileWithTexts({"a", "b", "c", "d", "e"});
  EXPECT_EQ(check(whole), LayoutFileState::Whole);
  EXPECT_EQ(check(whole.substr(0, whole.size() - 1)), LayoutFileState::Broken) << "texts";
  EXPECT_EQ(check(whole.substr(0, 500)), LayoutFileState::Broken) << "records";
  EXPECT_EQ(check(whole.substr(0, 465)), LayoutFileState::Broken) << "header";
  EXPECT_EQ(check(""), LayoutFileState::Broken);
  EXPECT_EQ(check(HeaderWithCounts(0, 0, 0).Str()), LayoutFileState::Whole);
  EXPECT_EQ(check(HeaderWithCounts(-1, 136, 0).Str()), LayoutFileState::Broken);
  EXPECT_EQ(check(HeaderWithCounts(0, -1, 0).Str()), LayoutFileState::Broken);
  EXPECT_EQ(check(HeaderWithCounts(G_MAXINT, G_MAXINT, 0).Str()), LayoutFileState::Broken);
}

}  // namespace
