// What a commit enters into the code registry and the string lists.
#include <gtest/gtest.h>

#include "PtrnData.h"
#include "support/Text.h"
#include "tests/edit/EditFixture.h"

namespace {

class RegistryTest : public EditFixture {
 protected:
  static void Commit(const char* code, gint number) {
    PtrnData = MakeValidItem(TypeButton, 10, 20, 50, 60);
    CopyText(PtrnData.ID_Code, code);
    PtrnData.ID_No = number;
    PtrnNo = -1;
    ASSERT_EQ(ToolButn_OK(), 1);
  }
  static void CommitTexts(const char* text1, const char* text2, const char* text3) {
    PtrnData = MakeValidItem(TypeButton, 10, 20, 50, 60);
    CopyText(PtrnData.Text1, text1);
    CopyText(PtrnData.Text2, text2);
    CopyText(PtrnData.Text3, text3);
    PtrnData.RegstFlag = 1;
    PtrnNo = -1;
    ASSERT_EQ(ToolButn_OK(), 1);
    EXPECT_EQ(gint{PtrnData.RegstFlag}, 0);
  }
  // A registry record of 34 bytes.
  static std::string Record(std::string code, unsigned char count) {
    code.resize(22, '\0');
    code.push_back(static_cast<char>(count));
    code.resize(34, '\0');
    return code;
  }
  // A record of a string list, 102 bytes.
  static std::string Text(std::string text) {
    text.resize(102, '\0');
    return text;
  }
};

TEST_F(RegistryTest, TheFirstCommitMakesTheRegistryWithItsSystemRecord) {
  Commit("", 0);
  EXPECT_EQ(Folder.Read("project/PtrnCode"), Record("SYSTEM", 100));
}

TEST_F(RegistryTest, CodesStandInByteOrderBehindTheSystemRecord) {
  Commit("PUMP", 0);
  Commit("ABC", 2);
  Commit("a", 0);
  Commit("TANK", 0);
  EXPECT_EQ(Folder.Read("project/PtrnCode"), Record("SYSTEM", 100) + Record("ABC", 3) +
                                                 Record("PUMP", 1) + Record("TANK", 1) +
                                                 Record("a", 1));
}

TEST_F(RegistryTest, TheHighestNumberDecidesTheRoomOfACode) {
  Commit("PUMP", 5);
  Commit("PUMP", 3);
  EXPECT_EQ(Folder.Read("project/PtrnCode"), Record("SYSTEM", 100) + Record("PUMP", 6));
  Commit("PUMP", 9);
  EXPECT_EQ(Folder.Read("project/PtrnCode"), Record("SYSTEM", 100) + Record("PUMP", 10));
}

// The lists that the texts reach are not those of their languages.
TEST_F(RegistryTest, TextsReachTheirLists) {
  CommitTexts("ein", "zwei", "drei");
  EXPECT_EQ(Folder.Read("project/PtrnText3"), Text("ein") + Text("zwei"));
  EXPECT_EQ(Folder.Read("project/PtrnText1"), Text("drei"));
  EXPECT_FALSE(Folder.Exists("project/PtrnText2"));
}

TEST_F(RegistryTest, AListHoldsATextOnce) {
  CommitTexts("b", "a", "");
  CommitTexts("a", "c", "b");
  EXPECT_EQ(Folder.Read("project/PtrnText3"), Text("b") + Text("a") + Text("c"));
  EXPECT_EQ(Folder.Read("project/PtrnText1"), Text("b"));
}

TEST_F(RegistryTest, TextsAreEnteredOnRequestAlone) {
  Commit("PUMP", 0);
  EXPECT_FALSE(Folder.Exists("project/PtrnText1"));
  EXPECT_FALSE(Folder.Exists("project/PtrnText3"));
}

}  // namespace
