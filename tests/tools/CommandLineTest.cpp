// Exit codes, and what show and build do with files.
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include "support/FileTools.h"
#include "tests/common/TempFolder.h"
#include "tests/tools/Files.h"
#include "tests/tools/Tool.h"

using testing::HasSubstr;
using testing::StartsWith;

namespace {

TEST(CommandLine, RunsWithoutTheWindowToolkit) {
  const auto executable = ReadWholeFile(TOOL_PATH);
  ASSERT_TRUE(executable);
  EXPECT_NE(executable->find("libcairo"), std::string::npos);
  EXPECT_EQ(executable->find("libgtk"), std::string::npos);
}

TEST(CommandLine, HelpIsDone) {
  for (const char* command : {"show", "build", "render", "generate", "hit", "info"}) {
    const ToolRun run = RunTool({command, "--help"});
    EXPECT_EQ(run.Code, 0) << command;
    EXPECT_THAT(run.Out, HasSubstr(std::string("varnixtool ") + command)) << command;
    EXPECT_EQ(run.Err, "") << command;
  }
  EXPECT_EQ(RunTool({"--help"}).Code, 0);
}

TEST(CommandLine, UsageErrors) {
  const std::vector<std::vector<std::string>> lines = {
      {},
      {"draw"},
      {"show"},
      {"show", "a", "b"},
      {"build", "a"},
      {"render", "a.prj"},
      {"render", "a.prj", "--out", "o", "--zoom", "60"},
      {"render", "a.prj", "--out", "o", "--language", "3"},
      {"render", "a.prj", "--out", "o", "--colour", "-1"},
      {"render", "a.prj", "--out", "o", "--time", "2026-13-01 00:00:00"},
      {"render", "a.prj", "--out", "o", "--time", "2026-02-29 00:00:00"},
      {"render", "a.prj", "--out", "o", "--time", "2026-02-28"},
      {"hit", "a.prj", "name", "1"},
      {"hit", "a.prj", "name", "1", "x"},
      {"generate"},
      {"info"},
      {"info", "--fast", "a.prj"},
  };
  for (const auto& line : lines) {
    const ToolRun run = RunTool(line);
    EXPECT_EQ(run.Code, 2) << testing::PrintToString(line);
    EXPECT_EQ(run.Out, "") << testing::PrintToString(line);
    EXPECT_NE(run.Err, "") << testing::PrintToString(line);
  }
}

TEST(CommandLine, MissingFilesAreNamed) {
  const ToolRun run = RunTool({"show", "/nowhere/日本.ptn"});
  EXPECT_EQ(run.Code, 1);
  EXPECT_EQ(run.Err, "varnixtool: /nowhere/日本.ptn: No such file or directory\n");
  for (const char* command : {"info", "generate"}) {
    EXPECT_EQ(RunTool({command, "/nowhere/a.prj"}).Code, 1) << command;
  }
  EXPECT_EQ(RunTool({"hit", "/nowhere/a.prj", "x", "1", "1"}).Code, 1);
  EXPECT_EQ(RunTool({"render", "/nowhere/a.prj", "--out", "/nowhere/out"}).Code, 1);
}

TEST(CommandLine, ShowTellsTheKindByTheName) {
  const TempFolder folder;
  const ToolRun shown = RunTool({"show", folder.Write("PtrnText2", Field("abc", 102))});
  EXPECT_EQ(shown.Code, 0);
  EXPECT_EQ(shown.Out, "[\n  \"abc\"\n]\n");
  EXPECT_EQ(shown.Err, "");
  const ToolRun refused = RunTool({"show", folder.Write("PtrnFlag", "")});
  EXPECT_EQ(refused.Code, 1);
  EXPECT_THAT(refused.Err, StartsWith("varnixtool: " + folder.Path("PtrnFlag") + ": "));
}

TEST(CommandLine, LayoutsAreFoundByTheirUtf8Names) {
  const TempFolder folder;
  folder.Write(std::string(NihonEuc) + ".ptn", SmallLayout());
  EXPECT_EQ(RunTool({"show", folder.Path("日本.ptn")}).Code, 0);
  EXPECT_EQ(RunTool({"show", "日本.ptn"}, folder.Path()).Code, 0);
  EXPECT_EQ(RunTool({"show", folder.Path(std::string(NihonEuc) + ".ptn")}).Code, 0);
}

TEST(CommandLine, BuildNamesFilesAsAsked) {
  const TempFolder folder;
  const std::string source = folder.Write("a.json", "{}");
  EXPECT_EQ(RunTool({"build", source, folder.Path("日本.ptn")}).Code, 0);
  EXPECT_TRUE(folder.Exists("日本.ptn"));
  EXPECT_EQ(RunTool({"build", source, folder.Path("日本.ptn"), "--euc-name"}).Code, 0);
  EXPECT_EQ(folder.Read(std::string(NihonEuc) + ".ptn").size(), 466u);
  EXPECT_EQ(RunTool({"build", source, folder.Path("😀.ptn"), "--euc-name"}).Code, 1);
}

TEST(CommandLine, RefusedSourceLeavesTheOutputAlone) {
  const TempFolder folder;
  const std::string out = folder.Write("a.ptn", "old");
  const std::string source =
      folder.Write("a.json", R"({"Items":[{"Type":6},{"Type":6,"Text1":"😀"}]})");
  const ToolRun run = RunTool({"build", source, out});
  EXPECT_EQ(run.Code, 1);
  EXPECT_EQ(run.Err, "varnixtool: " + source + ": Items[1].Text1: EUC-JP cannot hold \"😀\"\n");
  EXPECT_EQ(folder.Read("a.ptn"), "old");
  EXPECT_EQ(RunTool({"build", folder.Path("none.json"), out}).Code, 1);
  EXPECT_EQ(folder.Read("a.ptn"), "old");
  EXPECT_EQ(RunTool({"build", source, folder.Path("a.txt")}).Code, 1);
  EXPECT_FALSE(folder.Exists("a.txt"));
}

TEST(CommandLine, OutputThatCannotBeWritten) {
  const TempFolder folder;
  const ToolRun run = RunTool({"build", folder.Write("a.json", "{}"), folder.Path("no/a.ptn")});
  EXPECT_EQ(run.Code, 1);
  EXPECT_EQ(run.Err, "varnixtool: " + folder.Path("no/a.ptn") + ": cannot be written\n");
}

TEST(CommandLine, ShowOfBrokenFilesFails) {
  const TempFolder folder;
  const std::string layout = SmallLayout();
  for (std::size_t size = 0; size < layout.size(); size += 37) {
    const ToolRun run = RunTool({"show", folder.Write("a.ptn", layout.substr(0, size))});
    EXPECT_EQ(run.Code, 1) << size;
    EXPECT_EQ(run.Out, "") << size;
    EXPECT_THAT(run.Err, HasSubstr("a.ptn: not whole")) << size;
  }
  for (const char* name : {"a.prj", "PtrnColr", "PtrnMark"}) {
    EXPECT_EQ(RunTool({"show", folder.Write(name, "short")}).Code, 1) << name;
  }
  EXPECT_EQ(RunTool({"show", folder.Write("PtrnCode", std::string(35, '\0'))}).Code, 1);
  EXPECT_EQ(RunTool({"show", folder.Write("PtrnText1", std::string(101, '\0'))}).Code, 1);
}

TEST(CommandLine, ShowOfWhatIsNoRegularFileFails) {
  const TempFolder folder;
  ASSERT_EQ(mkfifo(folder.Path("a.ptn").c_str(), 0600), 0);
  ASSERT_EQ(mkdir(folder.Path("b.ptn").c_str(), 0700), 0);
  EXPECT_THAT(RunTool({"show", folder.Path("a.ptn")}).Err, HasSubstr("not a regular file"));
  EXPECT_THAT(RunTool({"show", folder.Path("b.ptn")}).Err, HasSubstr("not a regular file"));
}

TEST(CommandLine, ShowOfHugeSparseFiles) {
  const TempFolder folder;
  constexpr off_t Gigabyte = off_t{1} << 30;
  const auto sparse = [&folder](const char* name, std::string_view head) {
    const std::string path = folder.Write(name, head);
    EXPECT_EQ(truncate(path.c_str(), Gigabyte), 0);
    return RunTool({"show", path});
  };
  EXPECT_EQ(sparse("a.ptn", SmallLayout()).Code, 0);
  EXPECT_EQ(sparse("a.prj", "").Code, 0);
  EXPECT_EQ(sparse("PtrnColr", "").Code, 0);
  EXPECT_EQ(sparse("PtrnCode", "").Code, 1);
  EXPECT_EQ(sparse("PtrnText1", "").Code, 1);
  std::string claims(466, '\0');
  claims.replace(454, 8, Int(2147483647) + Int(2147483647));
  EXPECT_EQ(sparse("b.ptn", claims).Code, 1);
}

}  // namespace
