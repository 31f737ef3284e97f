#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "tests/project/ProjectFixture.h"

namespace {

constexpr gchar VersionScreen[] = "\xA5\xD0\xA1\xBC\xA5\xB8\xA5\xE7\xA5\xF3\xBE\xF0\xCA\xF3";
constexpr gchar MaintenanceScreen[] = "\xA5\xE1\xA5\xF3\xA5\xC6\xA5\xCA\xA5\xF3\xA5\xB9";

constexpr char SourceHead[] =
    "#include\t\"Plant.h\"\n"
    "#include\t<string.h>\n"
    "\n"
    "\n"
    "BOOL  UserInit ()\n"
    "{\n"
    "\treturn TRUE;\n"
    "}\n"
    "\n"
    "\n"
    "void  UserExit ()\n"
    "{\n"
    "}\n"
    "\n"
    "\n"
    "void  UserTimr ()\n"
    "{\n"
    "}\n"
    "\n"
    "\n"
    "CPtrnDisp*  GetPtrnWnd (const char* name)\n"
    "{\n";
constexpr char SourceTail[] = "\treturn NULL;\n}\n";

class LogicSourceTest : public ProjectFixture {
 protected:
  std::string Source() const { return folder_.Read("source/Plant.cpp"); }
  void WriteSource(std::string_view text) const { folder_.Write("source/Plant.cpp", text); }
  // The source after registering a layout in this one.
  std::string Registered(std::string_view source, const gchar* layout) const {
    WriteSource(source);
    SetPtrnName(layout);
    return Source();
  }
};

TEST_F(LogicSourceTest, SourcesAreCreatedOnce) {
  LogicDataEdit3();
  EXPECT_EQ(folder_.Read("source/Plant.h"),
            "#include\t<VarnixPack.h>\n#include\t\"VarnixCode.h\"\n");
  EXPECT_EQ(Source(), std::string(SourceHead) + SourceTail);

  folder_.Write("source/Plant.h", "// mine");
  WriteSource("// mine");
  LogicDataEdit3();
  EXPECT_EQ(folder_.Read("source/Plant.h"), "// mine");
  EXPECT_EQ(Source(), "// mine");
}

TEST_F(LogicSourceTest, ALayoutIsDispatchedAboveTheEndOfTheFactory) {
  const std::string line =
      "\tif (strcmp(name, \"Main\")" + std::string(27, ' ') + " == 0) return (new CPtrnDisp());\n";
  EXPECT_EQ(Registered(std::string(SourceHead) + SourceTail, "Main"),
            SourceHead + line + SourceTail);
}

TEST_F(LogicSourceTest, TheClosingPartStandsInColumn52) {
  struct Expected {
    std::size_t Length;
    std::size_t Column;
  };
  // The line begins with 19 bytes and closes the name with 2.
  for (const Expected& each : {Expected{1, 52}, {20, 52}, {31, 52}, {32, 55}, {33, 56}, {60, 83}}) {
    const std::string name(each.Length, 'Q');
    const std::string source = Registered(std::string(SourceHead) + SourceTail, name.c_str())
                                   .substr(sizeof SourceHead - 1);
    EXPECT_EQ(source.find(" == 0) return (new CPtrnDisp());\n"), each.Column) << each.Length;
    EXPECT_EQ(source.find(name + "\")"), 19u);
  }
}

TEST_F(LogicSourceTest, LaterLayoutsFollowEarlierOnes) {
  WriteSource(std::string(SourceHead) + SourceTail);
  SetPtrnName("B");
  SetPtrnName("A");
  const std::string source = Source();
  EXPECT_LT(source.find("\"B\""), source.find("\"A\""));
  EXPECT_LT(source.find("\"A\""), source.find("\treturn NULL;"));
}

TEST_F(LogicSourceTest, ARegisteredLayoutIsNotAddedAgain) {
  const std::string once = Registered(std::string(SourceHead) + SourceTail, "Main");
  EXPECT_EQ(Registered(once, "Main"), once);
}

TEST_F(LogicSourceTest, ANameThatOccursInTheFactoryCountsAsRegistered) {
  const std::string once = Registered(std::string(SourceHead) + SourceTail, "MainMenu");
  EXPECT_EQ(Registered(once, "Main"), once);
  EXPECT_EQ(Registered(once, "NULL"), once);
  EXPECT_NE(Registered(once, "UserInit"), once) << "only the factory counts";
}

TEST_F(LogicSourceTest, UserCodeIsKept) {
  const std::string source =
      "// \xA5\xC6\xA5\xB9\xA5\xC8\r\nint zero = 0; return NULL;\nCPtrnDisp* GetPtrnWnd(const "
      "char* name) "
      "// Main\n{\n  if (!name) return NULL;\n\treturn NULL;\n}\n// Main, and no line feed at the "
      "end";
  const std::string added = Registered(source, "Main");
  const std::size_t place = source.find("  if (!name)");
  EXPECT_EQ(added.substr(0, place), source.substr(0, place));
  EXPECT_TRUE(added.substr(place).starts_with("\tif (strcmp(name, \"Main\")"));
  EXPECT_TRUE(added.ends_with(source.substr(place)));
}

TEST_F(LogicSourceTest, WithoutFactoryOrItsEndNothingIsAdded) {
  for (const char* source : {"", "\n", "int main() {}\n", "GetPtrnWnd\n{\n}\n",
                             "return NULL;\nGetPtrnWnd\n", "x GetPtrnWnd"}) {
    EXPECT_EQ(Registered(source, "Main"), source);
  }
}

TEST_F(LogicSourceTest, LongLinesAreReadInPieces) {
  // The piece of 499 bytes ends within "GetPtrnWnd", so the factory is not seen there.
  const std::string source = std::string(494, ' ') + "GetPtrnWnd\n\treturn NULL;\n}\n";
  EXPECT_EQ(Registered(source, "Main"), source);
  const std::string seen = std::string(480, ' ') + "GetPtrnWnd\n\treturn NULL;\n}\n";
  EXPECT_NE(Registered(seen, "Main"), seen);
}

// Behind 489 blanks the name ends with the piece of 499 bytes, and the last place of a piece is not
// looked at; a place before that is.
TEST_F(LogicSourceTest, ANameAtTheVeryEndOfAPieceIsNotSeen) {
  const std::string rest = "GetPtrnWnd (const char* name)\n\treturn NULL;\n}\n";
  const std::string unseen = std::string(489, ' ') + rest;
  EXPECT_EQ(Registered(unseen, "Main"), unseen);
  const std::string seen = std::string(488, ' ') + rest;
  EXPECT_NE(Registered(seen, "Main"), seen);
}

TEST_F(LogicSourceTest, AMissingSourceStaysMissing) {
  SetPtrnName("Main");
  EXPECT_FALSE(folder_.Exists("source/Plant.cpp"));
}

TEST_F(LogicSourceTest, NothingTemporaryIsLeft) {
  WriteLayout("Main", PTRNHEDR{}, {});
  LogicDataEdit3();
  LogicDataEdit3();
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder_.Path("source"))) {
    names.push_back(entry.path().filename());
  }
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<std::string>{"Plant.cpp", "Plant.h"}));
}

TEST_F(LogicSourceTest, EveryLayoutButTheBuiltInOnesIsDispatchedOnce) {
  for (const gchar* name : {"Main", "Alarm.v2", VersionScreen, MaintenanceScreen}) {
    WriteLayout(name, PTRNHEDR{}, {});
  }
  LogicDataEdit3();
  const std::string source = Source();
  EXPECT_NE(source.find("strcmp(name, \"Main\")"), std::string::npos);
  EXPECT_NE(source.find("strcmp(name, \"Alarm.v2\")"), std::string::npos);
  EXPECT_EQ(source.find(VersionScreen), std::string::npos);
  EXPECT_EQ(source.find(MaintenanceScreen), std::string::npos);
  LogicDataEdit3();
  EXPECT_EQ(Source(), source);
}

TEST_F(LogicSourceTest, CompareTextLeavesOutTheLastPlace) {
  EXPECT_EQ(CompareText("return NULL;\n", "NULL;"), 1);
  EXPECT_EQ(CompareText("return NULL;", "NULL;"), 0);
  EXPECT_EQ(CompareText("return NULL;", "return"), 1);
  EXPECT_EQ(CompareText("Main", "Main"), 0);
  EXPECT_EQ(CompareText("Main\n", "Main"), 1);
  EXPECT_EQ(CompareText("Main\n", "Menu"), 0);
  EXPECT_EQ(CompareText("Ma", "Main"), 0);
  EXPECT_EQ(CompareText("", ""), 0);
  EXPECT_EQ(CompareText("a", ""), 1);
  EXPECT_EQ(CompareText("", "a"), 0);
}

}  // namespace
