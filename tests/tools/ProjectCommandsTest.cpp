// hit, info and generate on a small project.
#include <gmock/gmock.h>
#include <sys/stat.h>

#include "tests/tools/Files.h"
#include "tests/tools/SmallProject.h"

using testing::HasSubstr;
using testing::Not;

namespace {

std::string HitAt(const SmallProject& project, const char* x, const char* y) {
  const ToolRun run = RunTool({"hit", project.File(), "日本", x, y});
  EXPECT_EQ(run.Code, 0) << run.Err;
  return run.Out;
}

TEST(Hit, FirstItemInStoreOrder) {
  const SmallProject project;
  // Rectangle and button share all corners; the rectangle comes first in the store.
  EXPECT_EQ(HitAt(project, "10", "10"), "index=0 type=3 hit=1\n");
  EXPECT_EQ(HitAt(project, "30", "20"), "index=0 type=3 hit=2\n");
  EXPECT_EQ(HitAt(project, "20", "10"), "index=0 type=3 hit=5\n");
  EXPECT_EQ(HitAt(project, "39", "29"), "none\n");
  EXPECT_EQ(HitAt(project, "-3", "10"), "none\n");
}

// A press beside the layout picks nothing, though items reach over each of its edges.
TEST(Hit, BesideTheLayoutNothingIsHit) {
  const SmallProject project;
  project.Folder().Write("wide.json", R"({"Parm1":{"Kind":2,"Width":40,"Height":30},"Items":[
      {"Type":"Rectangle","Parm":{"X1":-9,"Y1":10,"X2":60,"Y2":20,"Width":1}},
      {"Type":"Rectangle","Parm":{"X1":10,"Y1":-9,"X2":20,"Y2":60,"Width":1}}]})");
  ASSERT_EQ(
      RunTool({"build", project.Folder().Path("wide.json"), project.Folder().Path("wide.ptn")})
          .Code,
      0);
  const auto hit = [&](const char* x, const char* y) {
    return RunTool({"hit", project.File(), "wide", x, y}).Out;
  };
  EXPECT_EQ(hit("39", "10"), "index=0 type=3 hit=9\n");
  EXPECT_EQ(hit("40", "10"), "none\n");
  EXPECT_EQ(hit("0", "10"), "index=0 type=3 hit=9\n");
  EXPECT_EQ(hit("-1", "10"), "none\n");
  EXPECT_EQ(hit("10", "29"), "index=1 type=3 hit=7\n");
  EXPECT_EQ(hit("10", "30"), "none\n");
  EXPECT_EQ(hit("10", "0"), "index=1 type=3 hit=9\n");
  EXPECT_EQ(hit("10", "-1"), "none\n");
}

TEST(Hit, UnknownLayout) {
  const SmallProject project;
  const ToolRun run = RunTool({"hit", project.File(), "none", "1", "1"});
  EXPECT_EQ(run.Code, 1);
  EXPECT_EQ(run.Err, "varnixtool: none: no such layout in the project\n");
}

TEST(Info, Summary) {
  const SmallProject project;
  const ToolRun run = RunTool({"info", project.File()});
  EXPECT_EQ(run.Code, 0);
  EXPECT_EQ(run.Out,
            "Project:          Plant\n"
            "Folder:           " +
                project.Folder().Path() +
                "\n"
                "Program folder:   " +
                project.Folder().Path("program") +
                "\n"
                "Display:          800x600\n"
                "Languages:        2\n"
                "Colour systems:   4\n"
                "Logo:             (none)\n"
                "Start layout:     日本\n"
                "Stop layout:      (none)\n"
                "Layouts:          2\n"
                "  empty: child, 12x10, items 0, undefined 0, codes 0\n"
                "  日本: other, 40x30, items 2, undefined 1, codes 1\n"
                "Items:            2\n"
                "Undefined items:  1\n"
                "Codes:            1\n"
                "  GO\n");
}

TEST(Info, UnreadableLayoutIsAFinding) {
  const SmallProject project;
  project.Folder().Write("bad.ptn", "short");
  const ToolRun run = RunTool({"info", project.File()});
  EXPECT_EQ(run.Code, 1);
  EXPECT_THAT(run.Out, HasSubstr("  bad: unreadable\n"));
  EXPECT_THAT(run.Err, HasSubstr("bad.ptn: not whole"));
}

TEST(Generate, ListsWhatItWrote) {
  const SmallProject project;
  const TempFolder& folder = project.Folder();
  ASSERT_EQ(mkdir(folder.Path("program").c_str(), 0700), 0);
  const ToolRun run = RunTool({"generate", project.File()});
  EXPECT_EQ(run.Code, 0) << run.Err;
  EXPECT_EQ(run.Out, folder.Path("PtrnCode") + "\n" + folder.Path("PtrnFlag") + "\n" +
                         folder.Path("program/VarnixCode.h") + "\n" +
                         folder.Path("program/Plant.h") + "\n" + folder.Path("program/Plant.cpp") +
                         "\n" + folder.Path("program/Plant.ini") + "\n");
  // Identification number 4 takes five slots behind the system's hundred.
  EXPECT_EQ(folder.Read("PtrnCode"),
            Field("SYSTEM", 22) + Ints({100, 0, 0}, 3) + Field("GO", 22) + Ints({5, 100, 0}, 3));
  EXPECT_EQ(folder.Read("PtrnFlag"), std::string(105, '\0'));
  EXPECT_THAT(folder.Read("program/Plant.cpp"), HasSubstr("if (strcmp(name, \"empty\")"));
}

TEST(Generate, SecondRunWritesNoSourceAnew) {
  const SmallProject project;
  ASSERT_EQ(mkdir(project.Folder().Path("program").c_str(), 0700), 0);
  ASSERT_EQ(RunTool({"generate", project.File()}).Code, 0);
  const std::string source = project.Folder().Read("program/Plant.cpp");
  const ToolRun run = RunTool({"generate", project.File()});
  EXPECT_EQ(run.Code, 0) << run.Err;
  EXPECT_THAT(run.Out, Not(HasSubstr("Plant.h\n")));
  EXPECT_EQ(project.Folder().Read("program/Plant.cpp"), source);
}

TEST(Generate, IntoAnotherFolder) {
  const SmallProject project;
  const TempFolder other;
  const ToolRun run = RunTool({"generate", project.File(), "--program-dir", "."}, other.Path());
  EXPECT_EQ(run.Code, 0) << run.Err;
  EXPECT_THAT(run.Out, HasSubstr("./VarnixCode.h\n"));
  EXPECT_TRUE(other.Exists("Plant.ini"));
  EXPECT_FALSE(project.Folder().Exists("program"));
}

TEST(Generate, TakesFontsFromTheGivenProfile) {
  const SmallProject project;
  const TempFolder other;
  const std::string profile = other.Write("fonts.ini", "[FONT]\nFONTNAME7=name,-a-b-c\n");
  ASSERT_EQ(
      RunTool({"generate", project.File(), "--program-dir", other.Path(), "--profile", profile})
          .Code,
      0);
  EXPECT_THAT(other.Read("Plant.ini"), HasSubstr("-a-b-c"));
}

TEST(Generate, UnusableFoldersAreNamed) {
  const SmallProject project;
  const ToolRun missing = RunTool({"generate", project.File()});
  EXPECT_EQ(missing.Code, 1);
  EXPECT_EQ(missing.Err, "varnixtool: " + project.Folder().Path("program") + ": no such folder\n");
  EXPECT_FALSE(project.Folder().Exists("PtrnCode"));
  const ToolRun file =
      RunTool({"generate", project.File(), "--program-dir", project.Folder().Path("PtrnColr")});
  EXPECT_EQ(file.Code, 1);
  const std::string none = project.Folder().Write("none.json", "{}");
  ASSERT_EQ(RunTool({"build", none, project.Folder().Path("None.prj")}).Code, 0);
  const ToolRun unset = RunTool({"generate", project.Folder().Path("None.prj")});
  EXPECT_EQ(unset.Code, 1);
  EXPECT_THAT(unset.Err, HasSubstr("None.prj: names no program folder"));
}

TEST(Generate, PathsThatDoNotFitAreRefused) {
  const SmallProject project;
  std::string deep = project.Folder().Path();
  while (deep.size() < 300) {
    deep += "/0123456789";
    ASSERT_EQ(mkdir(deep.c_str(), 0700), 0);
  }
  const ToolRun run = RunTool({"generate", project.File(), "--program-dir", deep});
  EXPECT_EQ(run.Code, 1);
  EXPECT_THAT(run.Err, HasSubstr("longer than the program can hold"));
}

}  // namespace
