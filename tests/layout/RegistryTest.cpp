#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstring>

#include "ProjData.h"
#include "layout/Registry.h"
#include "tests/common/Bytes.h"
#include "tests/common/Child.h"
#include "tests/common/TempFolder.h"

namespace {

class RegistryTest : public testing::Test {
 protected:
  void SetUp() override { std::strcpy(ProjPath, folder_.Path().c_str()); }
  void TearDown() override { ProjPath[0] = '\0'; }

  static Bytes Entry(std::string_view code, gint slots) {
    return Bytes().Field(code, 22).Ints({slots, 0, 0});
  }
  static std::string System() { return Entry("SYSTEM", 100).Str(); }
  std::string Registry() const { return folder_.Read("PtrnCode"); }

  TempFolder folder_;
};

TEST_F(RegistryTest, AMissingRegistryIsMadeEvenForAnEmptyCode) {
  RegstPtrnCode("", 5);
  EXPECT_EQ(Registry(), System());
  EXPECT_EQ(System().size(), 34u);
}

TEST_F(RegistryTest, TheSystemStaysBeforeCodesThatSortBeforeIt) {
  RegstPtrnCode("ABC", 0);
  EXPECT_EQ(Registry(), System() + Entry("ABC", 1).Str());
}

TEST_F(RegistryTest, CodesAreKeptInByteOrder) {
  for (const char* code : {"TEMP", "Temp", "ALARM", "\xA4\xA2", "_X", "TEMP2"}) {
    RegstPtrnCode(code, 0);
  }
  EXPECT_EQ(Registry(), System() + Entry("ALARM", 1).Str() + Entry("TEMP", 1).Str() +
                            Entry("TEMP2", 1).Str() + Entry("Temp", 1).Str() +
                            Entry("_X", 1).Str() + Entry("\xA4\xA2", 1).Str());
}

TEST_F(RegistryTest, ACodeIsWidenedButNeverNarrowed) {
  RegstPtrnCode("ABC", 5);
  RegstPtrnCode("ABC", 3);
  EXPECT_EQ(Registry(), System() + Entry("ABC", 6).Str());
  RegstPtrnCode("ABC", 9999);
  EXPECT_EQ(Registry(), System() + Entry("ABC", 10000).Str());
}

TEST_F(RegistryTest, TheSystemsOwnRecordCanBeWidened) {
  RegstPtrnCode("SYSTEM", 50);
  EXPECT_EQ(Registry(), System());
  RegstPtrnCode("SYSTEM", 150);
  EXPECT_EQ(Registry(), Entry("SYSTEM", 151).Str());
}

// No panel lets such numbers pass, a layout file may hold them.
TEST_F(RegistryTest, ACodeHasRoomForAnyNumberUpToWhatTheRecordHolds) {
  RegstPtrnCode("A", 10000);
  RegstPtrnCode("B", 70000);
  RegstPtrnCode("C", G_MAXINT - 1);
  RegstPtrnCode("D", G_MAXINT);
  EXPECT_EQ(Registry(), System() + Entry("A", 10001).Str() + Entry("B", 70001).Str() +
                            Entry("C", G_MAXINT).Str() + Entry("D", G_MAXINT).Str());
}

TEST_F(RegistryTest, ANegativeNumberTakesOneSlot) {
  RegstPtrnCode("A", -1);
  RegstPtrnCode("B", G_MININT);
  EXPECT_EQ(Registry(), System() + Entry("A", 1).Str() + Entry("B", 1).Str());
}

TEST_F(RegistryTest, AssignedNumbersSurvive) {
  folder_.Write(
      "PtrnCode",
      Bytes().Field("SYSTEM", 22).Ints({100, 0, 7}).Field("B", 22).Ints({3, 100, 8}).Str());
  RegstPtrnCode("A", 0);
  EXPECT_EQ(Registry(), Bytes()
                            .Field("SYSTEM", 22)
                            .Ints({100, 0, 7})
                            .Field("A", 22)
                            .Ints({1, 0, 0})
                            .Field("B", 22)
                            .Ints({3, 100, 8})
                            .Str());
}

TEST_F(RegistryTest, NothingIsWrittenWhenNothingChanges) {
  RegstPtrnCode("ABC", 5);
  const auto before = std::filesystem::last_write_time(folder_.Path("PtrnCode"));
  RegstPtrnCode("ABC", 5);
  RegstPtrnCode("", 5);
  EXPECT_EQ(std::filesystem::last_write_time(folder_.Path("PtrnCode")), before);
}

TEST_F(RegistryTest, AnOverlongCodeIsCutToItsField) {
  RegstPtrnCode(std::string(30, 'x').c_str(), 0);
  RegstPtrnCode(std::string(25, 'x').c_str(), 2);
  EXPECT_EQ(Registry(), System() + Entry(std::string(21, 'x'), 3).Str());
}

TEST_F(RegistryTest, AFileTooShortForARecordCountsAsMissing) {
  folder_.Write("PtrnCode", "short");
  EXPECT_TRUE(ReadPtrnCode().empty());
  RegstPtrnCode("A", 0);
  EXPECT_EQ(Registry(), System() + Entry("A", 1).Str());
}

TEST_F(RegistryTest, ReadsRecordsOfAnyContent) {
  folder_.Write("PtrnCode", std::string(100, '\xFF'));
  const std::vector<PTRNCODE> registry = ReadPtrnCode();
  ASSERT_EQ(registry.size(), 2u);
  EXPECT_EQ(registry[1].ID_Code, std::string(21, '\xFF'));
  EXPECT_EQ(registry[1].DataCount, -1);
  RegstPtrnCode("A", 0);
  EXPECT_EQ(ReadPtrnCode().size(), 3u);
}

TEST_F(RegistryTest, WithoutAFolderNothingHappens) {
  std::strcpy(ProjPath, folder_.Path("none").c_str());
  RegstPtrnCode("A", 0);
  RegstPtrnText("A", 0);
  EXPECT_FALSE(folder_.Exists("none"));
}

class TextListTest : public RegistryTest {
 protected:
  static std::string Text(std::string_view text) { return Bytes().Field(text, 102).Str(); }
};

TEST_F(TextListTest, TheListOfEachNumber) {
  const std::pair<gint, const char*> lists[] = {{0, "PtrnText3"}, {1, "PtrnText3"},
                                                {2, "PtrnText1"}, {3, "PtrnText2"},
                                                {4, "PtrnText3"}, {-1, "PtrnText3"}};
  for (const auto& [k, list] : lists) {
    const std::string text = "text " + std::to_string(k);
    RegstPtrnText(text.c_str(), k);
    EXPECT_TRUE(folder_.Read(list).ends_with(Text(text))) << k;
  }
  EXPECT_EQ(folder_.Read("PtrnText1"), Text("text 2"));
  EXPECT_EQ(folder_.Read("PtrnText2"), Text("text 3"));
  EXPECT_EQ(folder_.Read("PtrnText3"),
            Text("text 0") + Text("text 1") + Text("text 4") + Text("text -1"));
}

TEST_F(TextListTest, InOrderOfFirstRegistrationWithoutDuplicates) {
  for (const char* text : {"b", "\xB5\xA1", "a", "b", "B", "a"}) RegstPtrnText(text, 2);
  EXPECT_EQ(folder_.Read("PtrnText1"), Text("b") + Text("\xB5\xA1") + Text("a") + Text("B"));
}

TEST_F(TextListTest, AnEmptyTextMakesNoList) {
  RegstPtrnText("", 2);
  EXPECT_FALSE(folder_.Exists("PtrnText1"));
}

TEST_F(TextListTest, AnUnterminatedEntryIsReadWithinItsRecord) {
  folder_.Write("PtrnText1", std::string(102, 'x') + Text("y"));
  RegstPtrnText("y", 2);
  RegstPtrnText("z", 2);
  EXPECT_EQ(folder_.Read("PtrnText1"), std::string(102, 'x') + Text("y") + Text("z"));
}

// Whether a file that may be replaced but not read keeps its content when `enter` adds to it.
bool StaysUnread(const TempFolder& folder, const char* name, void (*enter)()) {
  folder.Write(name, std::string(1000, 'x'));
  chmod(folder.Path().c_str(), 0777);
  chmod(folder.Path(name).c_str(), 0222);
  return HoldsForPlainUser([&] {
           enter();
           return true;
         }) &&
         folder.Read(name) == std::string(1000, 'x');
}

TEST_F(RegistryTest, OneThatCannotBeReadIsLeftAlone) {
  EXPECT_TRUE(StaysUnread(folder_, "PtrnCode", [] { RegstPtrnCode("ABC", 1); }));
}

TEST_F(TextListTest, OneThatCannotBeReadIsLeftAlone) {
  EXPECT_TRUE(StaysUnread(folder_, "PtrnText1", [] { RegstPtrnText("abc", 2); }));
}

}  // namespace
