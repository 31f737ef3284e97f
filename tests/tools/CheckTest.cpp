// check as a process: what it prints, how it ends, and that it writes nothing.
#include <gmock/gmock.h>
#include <sys/stat.h>

#include <filesystem>
#include <map>

#include "tests/tools/SmallProject.h"

using testing::AllOf;
using testing::HasSubstr;

namespace {

const std::string Sample = TEST_BUILD_DIR "/VarnixMaster/Sample/WaterWorks.prj";

// Names, times and contents of everything in a folder.
std::map<std::string, std::string> State(const std::filesystem::path& folder) {
  std::map<std::string, std::string> state;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    struct stat status {};
    stat(entry.path().c_str(), &status);
    state[entry.path()] = std::to_string(status.st_mtim.tv_sec) + "." +
                          std::to_string(status.st_mtim.tv_nsec) + " " +
                          std::to_string(status.st_size);
  }
  return state;
}

// A project of one layout without findings, in which tests break something.
class CheckedFolder {
 public:
  CheckedFolder() {
    Build("Plant.prj", R"({"PtrnStart":"Main"})");
    Build("PtrnColr", "[[0,0,0],[65535,65535,65535]]");
    Layout(R"([{"Type":"Rectangle","Parm":{"X1":10,"Y1":10,"X2":30,"Y2":20,"Width":1}}])");
  }
  void Layout(const std::string& items, const char* name = "Main.ptn") const {
    Build(name, R"({"Parm1":{"Kind":2,"Width":40,"Height":30,"WorkAreaColour":1},
                    "PtrnName1":"Main","Items":)" +
                    items + "}");
  }
  ToolRun Check(std::vector<std::string> options = {}) const {
    options.insert(options.begin(), {"check", folder_.Path("Plant.prj")});
    return RunTool(options);
  }
  const TempFolder& Folder() const { return folder_; }

 private:
  void Build(const char* file, const std::string& json) const {
    const TempFolder source;
    const ToolRun run = RunTool({"build", source.Write("a.json", json), folder_.Path(file)});
    if (run.Code != 0) throw std::runtime_error(run.Err);
  }

  TempFolder folder_;
};

TEST(Check, SampleProjectHasNoFindings) {
  const ToolRun run = RunTool({"check", Sample});
  EXPECT_EQ(run.Out, "");
  EXPECT_EQ(run.Err, "");
  EXPECT_EQ(run.Code, 0);
}

TEST(Check, NothingFoundIsAnEmptyListInJson) {
  const CheckedFolder project;
  const ToolRun run = project.Check({"--json"});
  EXPECT_EQ(run.Out, "[]\n");
  EXPECT_EQ(run.Code, 0);
}

TEST(Check, FindingIsALineAndExitCodeOne) {
  const CheckedFolder project;
  project.Layout(R"([{"Type":"Rectangle","UndfFlag":1,
                      "Parm":{"X1":10,"Y1":10,"X2":30,"Y2":31,"Width":1}}])");
  const ToolRun run = project.Check();
  EXPECT_EQ(run.Code, 1);
  EXPECT_EQ(run.Err, "");
  EXPECT_EQ(run.Out,
            "Main: item 0 (矩形): UndfFlag: is marked to be completed [item-incomplete]\n"
            "Main: item 0 (矩形): Point2: (30, 31) lies outside the layout [item-outside]\n");
}

TEST(Check, FindingsInJson) {
  const CheckedFolder project;
  project.Layout(R"([{"Type":"Rectangle","UndfFlag":1,
                      "Parm":{"X1":10,"Y1":10,"X2":30,"Y2":30,"Width":1}}])");
  project.Folder().Write("Bad.ptn", "short");
  const ToolRun run = project.Check({"--json"});
  EXPECT_EQ(run.Code, 1);
  EXPECT_THAT(run.Out, AllOf(HasSubstr(R"("Code": "layout-unreadable")"),
                             HasSubstr(R"("Layout": "Bad")"), HasSubstr(R"("Item": null)"),
                             HasSubstr(R"("Code": "item-incomplete")"), HasSubstr(R"("Item": 0)"),
                             HasSubstr(R"("Type": 3)"), HasSubstr(R"("Field": "UndfFlag")")));
}

TEST(Check, WritesNothing) {
  const CheckedFolder project;
  project.Layout(R"([{"Type":"Numeric","ID_Code":"FLOW","Parm":{"Length":2}}])");
  const std::string profile =
      project.Folder().Write("own.ini", "[VARNIXPACK]\nLANGUAGE=0\n[PROJECT]\n");
  const auto before = State(project.Folder().Path());
  EXPECT_THAT(project.Check({"--profile", profile}).Out, HasSubstr("[registry-behind]"));
  EXPECT_EQ(State(project.Folder().Path()), before);
}

TEST(Check, MeasuresWithTheFontsOfTheProfile) {
  const CheckedFolder project;
  project.Layout(R"([{"Type":"FixedString","Text1":"0123","Parm":{"X1":0,"Y1":0}}])");
  const std::string profile = project.Folder().Write(
      "own.ini", "[FONT]\nFONTNAME0=g,-shinonome-gothic-medium-r-normal--16-*-*-*-c-*-*-*\n");
  // Four half-width characters of a 16-dot font are 32 dots wide, ten are 80.
  const ToolRun fits = project.Check({"--profile", profile});
  EXPECT_EQ(fits.Code, 0) << fits.Out;
  project.Layout(R"([{"Type":"FixedString","Text1":"0123456789","Parm":{"X1":0,"Y1":0}}])");
  const ToolRun overruns = project.Check({"--profile", profile});
  EXPECT_EQ(overruns.Code, 1);
  EXPECT_THAT(overruns.Out, HasSubstr("dots too wide for the layout in language 1 "
                                      "[text-overruns]\n"));
}

TEST(Check, ProjectThatCannotBeRead) {
  const ToolRun run = RunTool({"check", "/nowhere/Plant.prj"});
  EXPECT_EQ(run.Code, 1);
  EXPECT_EQ(run.Out, "");
  EXPECT_THAT(run.Err, HasSubstr("/nowhere/Plant.prj: "));
}

TEST(Check, NamesThatBreakSourcesStopGeneration) {
  const CheckedFolder project;
  project.Layout("[]", "A\nB.ptn");
  ASSERT_EQ(mkdir(project.Folder().Path("program").c_str(), 0700), 0);
  const std::string reason =
      "A?B: PtrnName: \"A\\x0AB\" holds a quote, a backslash, a comment or a line break, which "
      "breaks the generated sources [name-breaks-source]\n";
  EXPECT_EQ(project.Check().Out, reason);
  const ToolRun run = RunTool({"generate", project.Folder().Path("Plant.prj"), "--program-dir",
                               project.Folder().Path("program")});
  EXPECT_EQ(run.Code, 1);
  EXPECT_EQ(run.Err, "varnixtool: " + reason);
  EXPECT_FALSE(project.Folder().Exists("program/VarnixCode.h"));
  EXPECT_FALSE(project.Folder().Exists("PtrnCode"));
}

}  // namespace
