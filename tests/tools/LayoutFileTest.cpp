// The tool's view of a layout file and the program's own agree.
#include <gtest/gtest.h>

#include <cstring>

#include "layout/LayoutFile.h"
#include "layout/Store.h"
#include "tests/common/TempFolder.h"
#include "tests/tools/Files.h"
#include "tools/json/Convert.h"

namespace {

TEST(LayoutFile, ProgramReadsAndWritesWhatTheToolBuilds) {
  const TempFolder folder;
  const auto built = FileOfJson(FileKind::Layout, R"({"PtrnName1":"日本","Items":[
      {"Type":"Button","Text1":"押す","ID_Code":"GO","UndfFlag":1},{"Type":"Line"}]})");
  ASSERT_TRUE(built.Result);
  folder.Write("a.ptn", *built.Result);
  IntPtrnData();
  ASSERT_EQ(PtrnFileRead(folder.Path().c_str(), "a"), 1);
  ASSERT_EQ(GetPtrnCount(), 2);
  EXPECT_EQ(gint{ViewPtrnData(0)->Type}, 2);
  EXPECT_EQ(gint{ViewPtrnData(1)->Type}, 9);
  EXPECT_STREQ(ViewPtrnData(1)->ID_Code, "GO");
  EXPECT_TRUE(WritePtrnFile(folder.Path().c_str(), "b"));
  ExtPtrnData();
  EXPECT_TRUE(folder.Read("b.ptn") == *built.Result);
}

// Compares what both make of the same bytes, item by item.
void ExpectAgreement(const std::string& bytes) {
  const TempFolder folder;
  folder.Write("a.ptn", bytes);
  IntPtrnData();
  PtrnFileRead(folder.Path().c_str(), "a");
  const auto layout = DecodeLayout(bytes);
  ASSERT_TRUE(layout);
  ASSERT_EQ(layout->Items.size(), static_cast<std::size_t>(GetPtrnCount()));
  for (gint no = 0; no < GetPtrnCount(); ++no) {
    EXPECT_EQ(std::memcmp(ViewPtrnData(no), &layout->Items[static_cast<std::size_t>(no)],
                          sizeof(PTRNDATA)),
              0)
        << no;
  }
  ExtPtrnData();
}

std::string TwoLines(int firstType, const std::string& texts) {
  std::string header(466, '\0');
  header.replace(454, 8, Int(2) + Int(static_cast<int>(texts.size())));
  return header + Int(firstType) + std::string(132, '\0') + Int(2) + std::string(132, '\0') + texts;
}

TEST(LayoutFile, TextsPastTheirLimitRunIntoTheNext) {
  const std::string rest(9, '\0');
  ExpectAgreement(TwoLines(2, std::string(101, 'x') + rest));
  ExpectAgreement(TwoLines(2, std::string(150, 'x') + rest));
  ExpectAgreement(TwoLines(2, "a" + std::string(50, 'b') + std::string(100, '\xC6') + rest));
}

TEST(LayoutFile, MissingTerminatorsEndWithTheBlock) {
  ExpectAgreement(TwoLines(2, "abc"));
  ExpectAgreement(TwoLines(2, std::string(7, '\0') + "abc"));
}

TEST(LayoutFile, UnknownTypesAreDropped) {
  ExpectAgreement(TwoLines(
      99, Terminated("a") + std::string(4, '\0') + Terminated("b") + std::string(4, '\0')));
}

TEST(LayoutFile, CutAtEveryPlaceItIsNotWhole) {
  const std::string bytes = SmallLayout();
  for (std::size_t size = 0; size < bytes.size(); ++size) {
    EXPECT_FALSE(DecodeLayout(bytes.substr(0, size))) << size;
  }
  EXPECT_TRUE(DecodeLayout(bytes));
  EXPECT_TRUE(DecodeLayout(bytes + "more"));
}

TEST(LayoutFile, HostileCounts) {
  for (const int number : {-1, -2147483647 - 1, 2147483647, 1000000}) {
    std::string bytes = SmallLayout();
    bytes.replace(454, 4, Int(number));
    EXPECT_FALSE(DecodeLayout(bytes)) << number;
    bytes = SmallLayout();
    bytes.replace(458, 4, Int(number));
    EXPECT_FALSE(DecodeLayout(bytes)) << number;
  }
}

}  // namespace
