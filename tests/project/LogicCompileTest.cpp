// What is generated compiles against a stand-in for the runtime's header.
#include <gtest/gtest.h>

#include "tests/project/ProjectFixture.h"

namespace {

class LogicCompileTest : public ProjectFixture {
 protected:
  void SetUp() override {
    ProjectFixture::SetUp();
    folder_.Write("runtime/VarnixPack.h",
                  "#pragma once\n"
                  "typedef int BOOL;\n"
                  "#define TRUE 1\n"
                  "class CPtrnDisp {};\n");
  }
  static void Generate() {
    LogicDataEdit1();
    LogicDataEdit2();
    LogicDataEdit3();
    LogicDataEdit4();
  }
  bool Compiles(const std::string& source) const {
    const std::string command = "g++ -fsyntax-only -Wall -Werror -isystem " +
                                folder_.Path("runtime") + " " + folder_.Path(source) + " > " +
                                folder_.Path("log") + " 2>&1";
    return std::system(command.c_str()) == 0;
  }
};

TEST_F(LogicCompileTest, AProjectWithLayouts) {
  WriteLayout("Main", PTRNHEDR{}, {{"TEMP", 3}, {"_PUMP", 0}});
  WriteLayout("Alarm list of the whole northern plant", PTRNHEDR{}, {{"ALARM", 3}});
  WriteLayout("\xC5\xB9\xB8\xBB", PTRNHEDR{}, {{"POWER", 3}});
  Generate();
  EXPECT_TRUE(Compiles("source/Plant.cpp")) << folder_.Read("log");

  folder_.Write("source/Use.cpp",
                "#include \"Plant.h\"\n"
                "static_assert(SYSTEM == 0 && ALARM == 100 && POWER == 104 && TEMP == 108);\n"
                "static_assert(_PUMP == 112);\n");
  EXPECT_TRUE(Compiles("source/Use.cpp")) << folder_.Read("log");
}

TEST_F(LogicCompileTest, AProjectWithoutLayouts) {
  Generate();
  EXPECT_TRUE(Compiles("source/Plant.cpp")) << folder_.Read("log");
}

TEST_F(LogicCompileTest, GeneratingTwiceKeepsUserCode) {
  WriteLayout("Main", PTRNHEDR{}, {{"TEMP", 3}});
  Generate();
  std::string source = folder_.Read("source/Plant.cpp");
  source.insert(source.find("void  UserExit"),
                "static int mine = TEMP;\nint Mine() { return mine; }\n");
  folder_.Write("source/Plant.cpp", source);
  Generate();
  EXPECT_EQ(folder_.Read("source/Plant.cpp"), source);

  WriteLayout("Second", PTRNHEDR{}, {});
  Generate();
  const std::string grown = folder_.Read("source/Plant.cpp");
  EXPECT_NE(grown, source);
  EXPECT_NE(grown.find("static int mine = TEMP;"), std::string::npos);
  EXPECT_TRUE(Compiles("source/Plant.cpp")) << folder_.Read("log");
}

}  // namespace
