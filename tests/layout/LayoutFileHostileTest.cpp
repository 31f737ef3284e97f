// Files that claim what they do not hold: nothing crashes, and nothing is believed past the file's
// own end.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstddef>
#include <filesystem>
#include <vector>

#include "tests/common/PeakMemory.h"
#include "tests/layout/LayoutFixture.h"

namespace {

class LayoutFileHostileTest : public LayoutFixture {
 protected:
  static std::vector<PTRNDATA> Items() {
    std::vector<PTRNDATA> items;
    for (gint no = 0; no < GetPtrnCount(); ++no) items.push_back(Item(no));
    return items;
  }
  // What the rest of the program does with a layout that has just been read: the file stands as it
  // was, every item is of a known type and its texts end, and what is written is whole and reads
  // back alike.
  void UseWhatWasRead(const std::string& file) {
    EXPECT_EQ(folder_.Read("Main.ptn"), file);
    const std::vector<PTRNDATA> items = Items();
    for (const PTRNDATA& item : items) {
      EXPECT_GE(+item.Type, 1);
      EXPECT_LE(+item.Type, 15);
      EXPECT_LT(strnlen(item.Text1, sizeof item.Text1), sizeof item.Text1);
      EXPECT_LT(strnlen(item.ID_Code, sizeof item.ID_Code), sizeof item.ID_Code);
    }
    PtrnFileWrite(folder_.Path().c_str(), "Copy");
    EXPECT_EQ(CheckPtrnFile(folder_.Path().c_str(), "Copy"), LayoutFileState::Whole);
    const std::string copy = folder_.Read("Copy.ptn");
    constexpr std::size_t Settings = offsetof(PTRNHEDR, Parm1);
    constexpr std::size_t View = offsetof(PTRNHEDR, Parm2);
    EXPECT_EQ(copy.substr(Settings, View - Settings), file.substr(Settings, View - Settings));
    Clear();
    PtrnFileRead(folder_.Path().c_str(), "Copy");
    EXPECT_EQ(Items().size(), items.size());
    PtrnFileWrite(folder_.Path().c_str(), "Copy");
    EXPECT_EQ(folder_.Read("Copy.ptn"), copy);
  }
};

std::string TwoItems() {
  return HeaderWithCounts(2, 27, 0)
      .Int(6)
      .Zeros(132)
      .Int(9)
      .Zeros(132)
      .Raw(std::string_view("first\0\0\0\0CODE1\0", 15))
      .Raw(std::string_view("button\0\0\0\0\0\0", 12))
      .Str();
}

TEST_F(LayoutFileHostileTest, TruncatedAtEveryOffset) {
  const std::string whole = TwoItems();
  ASSERT_EQ(Read(whole), 1);
  for (std::size_t size = 0; size < whole.size(); ++size) {
    ASSERT_EQ(Read(whole.substr(0, size)), 0) << size;
    const gint items = size < 466 ? 0 : static_cast<gint>(size - 466) / 136;
    ASSERT_EQ(GetPtrnCount(), std::min(items, 2)) << size;
    ASSERT_EQ(CheckPtrnFile(folder_.Path().c_str(), "Main"), LayoutFileState::Broken) << size;
  }
}

TEST_F(LayoutFileHostileTest, ShortTextBlockLeavesItemsWithoutTexts) {
  const std::string whole = TwoItems();
  EXPECT_EQ(Read(whole.substr(0, whole.size() - 1)), 0);
  ASSERT_EQ(GetPtrnCount(), 2);
  EXPECT_STREQ(Item(0).Text1, "");
}

TEST_F(LayoutFileHostileTest, CountsThatLie) {
  const std::string body = TwoItems().substr(466);
  struct Claim {
    gint Items;
    gint Texts;
    gint Result;
    gint Kept;
  };
  const Claim claims[] = {
      {G_MAXINT, G_MAXINT, 0, 2},
      {G_MAXINT, 27, 0, 2},
      {2, G_MAXINT, 0, 2},
      {-1, 27, 0, 0},
      {G_MININT, -1, 0, 0},
      {2, -1, 0, 2},
      {2, G_MININT, 0, 2},
      {2, 28, 0, 2},
      {2, 1, 1, 2},
      {1, 27, 1, 1},
      {3, 27, 0, 2},
      {0, 27, 1, 0},
  };
  for (const Claim& claim : claims) {
    SCOPED_TRACE(testing::Message() << claim.Items << " items, " << claim.Texts << " bytes");
    const std::string file = HeaderWithCounts(claim.Items, claim.Texts, 0).Raw(body).Str();
    EXPECT_EQ(Read(file), claim.Result);
    EXPECT_EQ(GetPtrnCount(), claim.Kept);
    UseWhatWasRead(file);
  }
}

TEST_F(LayoutFileHostileTest, TextsEndWithTheirBlock) {
  const std::string bytes = HeaderWithCounts(2, 4, 0)
                                .Int(6)
                                .Zeros(132)
                                .Int(9)
                                .Zeros(132)
                                .Raw("abcdTHIS LIES BEHIND THE BLOCK")
                                .Str();
  ASSERT_EQ(Read(bytes), 1);
  EXPECT_STREQ(Item(0).Text1, "abcd");
  EXPECT_STREQ(Item(0).Text2, "");
  EXPECT_STREQ(Item(1).Text1, "");
}

TEST_F(LayoutFileHostileTest, TextsWithoutAnyTerminator) {
  const std::string bytes =
      HeaderWithCounts(1, 1000, 0).Int(6).Zeros(132).Raw(std::string(1000, '\xA4')).Str();
  ASSERT_EQ(Read(bytes), 1);
  EXPECT_EQ(Item(0).Text1, std::string(100, '\xA4'));
  EXPECT_EQ(Item(0).ID_Name, std::string(80, '\xA4'));
  EXPECT_EQ(Item(0).ID_Code, std::string(20, '\xA4'));
  UseWhatWasRead(bytes);
}

TEST_F(LayoutFileHostileTest, EveryTypeOutOfRangeIsDropped) {
  for (const gint type : {0, -1, 16, 255, 65536 + 1, G_MAXINT, G_MININT}) {
    ASSERT_EQ(Read(HeaderWithCounts(1, 5, 0).Int(type).Zeros(137).Str()), 1) << type;
    EXPECT_EQ(GetPtrnCount(), 0) << type;
  }
}

TEST_F(LayoutFileHostileTest, EveryByteOfAllOnesAndAllZeros) {
  const struct {
    char Byte;
    LayoutFileState State;
  } files[] = {
      {'\xFF', LayoutFileState::Broken},  // -1 items
      {'\x00', LayoutFileState::Whole},   // no items, and bytes behind the end
      {'\x7F', LayoutFileState::Broken},  // two thousand million items, none of a known type
      {'\x80', LayoutFileState::Broken},  // fewer than none
  };
  for (const auto& [byte, state] : files) {
    SCOPED_TRACE(testing::Message() << "bytes of " << static_cast<int>(byte));
    const std::string file(5000, byte);
    EXPECT_EQ(Read(file), 0) << "nothing to show";
    EXPECT_EQ(GetPtrnCount(), 0);
    EXPECT_EQ(CheckPtrnFile(folder_.Path().c_str(), "Main"), state);
    UseWhatWasRead(file);
  }
}

TEST_F(LayoutFileHostileTest, FoldersAndPipesAreNotLayouts) {
  std::filesystem::create_directory(folder_.Path("Main.ptn"));
  EXPECT_EQ(Read(), 0);
  EXPECT_EQ(CheckPtrnFile(folder_.Path().c_str(), "Main"), LayoutFileState::Broken);
  std::filesystem::remove(folder_.Path("Main.ptn"));
  ASSERT_EQ(mkfifo(folder_.Path("Main.ptn").c_str(), 0600), 0);
  EXPECT_EQ(Read(), 0) << "must not wait for a writer";
}

TEST_F(LayoutFileHostileTest, AHugeHollowFileTakesNoMemory) {
  const std::string path = folder_.Write("Main.ptn", HeaderWithCounts(7000000, 40000000, 0).Str());
  ASSERT_EQ(truncate(path.c_str(), off_t{1} << 30), 0);
  const long before = PeakMemory();
  EXPECT_EQ(Read(), 1);
  EXPECT_EQ(GetPtrnCount(), 0);
  EXPECT_LT(PeakMemory(), before + 16 * 1024);
}

}  // namespace
