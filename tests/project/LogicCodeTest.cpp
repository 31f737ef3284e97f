#include <gtest/gtest.h>
#include <sys/stat.h>

#include "layout/Registry.h"
#include "tests/project/ProjectFixture.h"

namespace {

class LogicCodeTest : public ProjectFixture {
 protected:
  static Bytes Entry(std::string_view code, gint slots, gint first) {
    return Bytes().Field(code, 22).Ints({slots, first, 0});
  }
  std::string Registry() const { return folder_.Read("project/PtrnCode"); }
  std::string Flags() const { return folder_.Read("project/PtrnFlag"); }
};

TEST_F(LogicCodeTest, WithoutLayoutsThereIsTheSystemAlone) {
  folder_.Write("project/PtrnCode", "what was left of an earlier run");
  folder_.Write("project/PtrnFlag", std::string(500, 'x'));
  LogicDataEdit1();
  EXPECT_EQ(Registry(), Entry("SYSTEM", 100, 0).Str());
  EXPECT_EQ(Flags(), std::string(100, '\0'));
}

TEST_F(LogicCodeTest, CodesOfAllLayoutsAreNumberedInOrder) {
  WriteLayout("One", PTRNHEDR{}, {{"TEMP", 4}, {"ALARM", 0}, {"", 9}});
  WriteLayout("Two", PTRNHEDR{}, {{"TEMP", 2}, {"PUMP", 1}});
  WriteLayout("\xA5\xD0\xA1\xBC\xA5\xB8\xA5\xE7\xA5\xF3\xBE\xF0\xCA\xF3", PTRNHEDR{},
              {{"VERSION", 0}});
  LogicDataEdit1();
  EXPECT_EQ(Registry(), Entry("SYSTEM", 100, 0).Str() + Entry("ALARM", 1, 100).Str() +
                            Entry("PUMP", 2, 101).Str() + Entry("TEMP", 5, 103).Str() +
                            Entry("VERSION", 1, 108).Str());
  EXPECT_EQ(Flags(), std::string(109, '\0'));
  EXPECT_EQ(GetPtrnCount(), 0) << "the layout in memory is left empty";
}

TEST_F(LogicCodeTest, TheSystemsSlotsGrowWithItsHighestNumber) {
  WriteLayout("One", PTRNHEDR{}, {{"SYSTEM", 120}, {"A", 0}});
  LogicDataEdit1();
  EXPECT_EQ(Registry(), Entry("SYSTEM", 121, 0).Str() + Entry("A", 1, 121).Str());
  EXPECT_EQ(Flags().size(), 122u);
}

TEST_F(LogicCodeTest, EveryNumberOfALayoutHasItsSlot) {
  WriteLayout("One", PTRNHEDR{}, {{"A", 70000}, {"B", -7}, {"C", 9999}});
  LogicDataEdit1();
  EXPECT_EQ(Registry(), Entry("SYSTEM", 100, 0).Str() + Entry("A", 70001, 100).Str() +
                            Entry("B", 1, 70101).Str() + Entry("C", 10000, 70102).Str());
  EXPECT_EQ(Flags(), std::string(80102, '\0'));
}

// What no record can count stays at the most that it can; the flags take no room on the disk.
TEST_F(LogicCodeTest, TheLargestNumberTakesAllSlotsThatCanBeCounted) {
  WriteLayout("One", PTRNHEDR{}, {{"A", G_MAXINT}, {"B", 0}});
  LogicDataEdit1();
  EXPECT_EQ(Registry(), Entry("SYSTEM", 100, 0).Str() + Entry("A", G_MAXINT, 100).Str() +
                            Entry("B", 1, G_MAXINT).Str());
  struct stat status {};
  ASSERT_EQ(stat(folder_.Path("project/PtrnFlag").c_str(), &status), 0);
  EXPECT_EQ(status.st_size, G_MAXINT);
  EXPECT_LT(status.st_blocks, 1000);
}

TEST_F(LogicCodeTest, OtherFilesAreNoLayouts) {
  WriteLayout("One", PTRNHEDR{}, {{"A", 0}});
  const std::string layout = folder_.Read("project/One.ptn");
  folder_.Write("project/.Hidden.ptn", layout);
  folder_.Write("project/One.ptn.bak", layout);
  folder_.Write("project/Two.txt", layout);
  std::filesystem::create_directory(folder_.Path("project/Three.ptn"));
  folder_.Write("project/Broken.ptn", "broken");
  std::filesystem::remove(folder_.Path("project/One.ptn"));
  LogicDataEdit1();
  EXPECT_EQ(Registry(), Entry("SYSTEM", 100, 0).Str());
}

TEST_F(LogicCodeTest, ALayoutsCodesAreAddedToTheRegistry) {
  WriteLayout("One", PTRNHEDR{}, {{"B", 3}, {"A", 0}, {"B", 1}});
  SetPtrnCode("One.ptn");
  EXPECT_EQ(Registry(),
            Entry("SYSTEM", 100, 0).Str() + Entry("A", 1, 0).Str() + Entry("B", 4, 0).Str());
}

TEST_F(LogicCodeTest, TheHeaderDefinesEveryCode) {
  WritePtrnCode({SystemCode()});
  RegstPtrnCode("TEMPERATURE_OF_TANK_1", 0);
  LogicDataEdit2();
  EXPECT_EQ(folder_.Read("source/VarnixCode.h"),
            "#define     SYSTEM                  0\n"
            "#define     TEMPERATURE_OF_TANK_1   0\n");
}

TEST_F(LogicCodeTest, TheHeaderIsReplacedAndHoldsTheFirstSlots) {
  folder_.Write("source/VarnixCode.h", std::string(1000, 'x'));
  folder_.Write("project/PtrnCode", Entry("SYSTEM", 100, 0).Str() + Entry("A", 5, 100).Str() +
                                        Entry("B", 1, 105).Str());
  LogicDataEdit2();
  EXPECT_EQ(folder_.Read("source/VarnixCode.h"),
            "#define     SYSTEM                  0\n"
            "#define     A                       100\n"
            "#define     B                       105\n");
}

TEST_F(LogicCodeTest, WithoutProgramFolderNoHeaderIsWritten) {
  std::strcpy(ProjData.ProgPath, folder_.Path("none").c_str());
  LogicDataEdit2();
  EXPECT_FALSE(folder_.Exists("none"));
}

}  // namespace
