// The git settings and the hook of docs/varnixtool.md, taken from the page, in a repository of
// their own.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/common/TempFolder.h"
#include "tests/tools/Tool.h"

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::Not;

// The page's indented block that begins with a line of this beginning, without the indent.
std::string BlockOfPage(const std::string& beginning) {
  std::ifstream page(TEST_SOURCE_DIR "/docs/varnixtool.md");
  std::string block;
  for (std::string line; std::getline(page, line);) {
    const bool indented = line.starts_with("    ");
    if (block.empty() ? line.starts_with("    " + beginning) : indented) {
      block += line.substr(4) + "\n";
    } else if (!block.empty()) {
      return block;
    }
  }
  if (block.empty()) throw std::runtime_error("docs/varnixtool.md has no block of " + beginning);
  return block;
}

std::string LayoutSource(const char* text, const char* item = "") {
  return std::string(R"({"Parm1":{"Kind":2,"Width":200,"Height":100,"WorkAreaColour":1},
                         "PtrnName1":"Pump","Items":[
                         {"Type":"FixedString","Text1":")") +
         text + R"(","Parm":{"X1":10,"Y1":10,"Length":2}})" + item + "]}";
}

// A repository that holds the project Sample/WaterWorks.prj, which has one layout and no findings.
class Git : public testing::Test {
 protected:
  void SetUp() override {
    folder_.Write("home/.keep", "");
    fs::create_directories(folder_.Path("work/Sample"));
    Run("git init -q -b main && git config user.name Tester && git config user.email "
        "t@example.com");
    folder_.Write("work/.gitattributes", BlockOfPage("*.ptn"));
    Build("WaterWorks.prj", R"({"PtrnStart":"Pump"})");
    Build("PtrnColr", "[[0,0,0],[65535,65535,65535]]");
    Build("Pump.ptn", LayoutSource("運転"));
    Commit();
  }

  void Build(const std::string& file, const std::string& source) const {
    const TempFolder sources;
    const ToolRun run = RunTool(
        {"build", sources.Write("source.json", source), folder_.Path("work/Sample/" + file)});
    ASSERT_EQ(run.Code, 0) << run.Err;
  }
  // What a shell line prints, run in the work tree with the tool in the path and no settings but
  // its own.
  std::string Run(const std::string& line) {
    const std::string tools = fs::path(TOOL_PATH).parent_path();
    const std::string script = folder_.Write(
        "script", "cd '" + folder_.Path("work") + "'\nexport PATH='" + tools +
                      "':\"$PATH\" HOME='" + folder_.Path("home") +
                      "' GIT_CONFIG_NOSYSTEM=1 GIT_PAGER=cat LC_ALL=C.UTF-8\n" + line);
    const std::string output = folder_.Path("output");
    const int status = std::system(("bash '" + script + "' >'" + output + "' 2>&1").c_str());
    status_ = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return folder_.Read("output");
  }
  void Commit() {
    const std::string said = Run("git add -A && git commit -q -m change");
    ASSERT_EQ(status_, 0) << said;
  }

  TempFolder folder_;
  int status_ = 0;
};

TEST_F(Git, ShowsLayoutsAsTextInDiffLogAndShow) {
  Run(BlockOfPage("git config diff.varnix.textconv"));
  ASSERT_EQ(status_, 0);
  Build("Pump.ptn", LayoutSource("停止"));
  const std::string minus = "\n-      \"Text1\": \"運転\"";
  const std::string plus = "\n+      \"Text1\": \"停止\"";
  EXPECT_THAT(Run("git diff"), testing::AllOf(HasSubstr(minus), HasSubstr(plus)));
  Commit();
  for (const char* command : {"git show", "git log -p -1", "git diff HEAD~1"}) {
    EXPECT_THAT(Run(command), testing::AllOf(HasSubstr(minus), HasSubstr(plus))) << command;
  }
}

TEST_F(Git, ShowsTheOtherFilesAsTextToo) {
  Run(BlockOfPage("git config diff.varnix.textconv"));
  Build("WaterWorks.prj", R"({"PtrnStart":"Pump","PtrnStop":"Pump"})");
  Build("PtrnColr", "[[0,0,0],[65535,65535,257]]");
  const std::string said = Run("git diff");
  EXPECT_THAT(said, HasSubstr("\n+  \"PtrnStop\": \"Pump\""));
  EXPECT_THAT(said, HasSubstr("257"));
  EXPECT_THAT(said, Not(HasSubstr("Binary files")));
}

TEST_F(Git, ReadsLayoutsByTheirNamesInEucJp) {
  const std::string settings = BlockOfPage("git config diff.varnix.textconv");
  const char* name = "\xa5\xdd\xa5\xf3\xa5\xd7.ptn";  // ポンプ
  Run(settings);
  Build(name, LayoutSource("運転"));
  Commit();
  Build(name, LayoutSource("停止"));
  EXPECT_THAT(Run("git diff"), HasSubstr("\n+      \"Text1\": \"停止\""));
  Run(BlockOfPage("git config diff.varnix-layout.command"));
  EXPECT_THAT(Run("git diff"), HasSubstr("    文字列１: 「運転」 → 「停止」\n"));
}

TEST_F(Git, IsBinaryWithoutTheSettings) {
  Build("Pump.ptn", LayoutSource("停止"));
  EXPECT_THAT(Run("git diff"), HasSubstr("Binary files"));
}

TEST_F(Git, ShowsLayoutsInTheWordsOfTheToolBox) {
  Run(BlockOfPage("git config diff.varnix-layout.command"));
  ASSERT_EQ(status_, 0);
  Build("Pump.ptn", LayoutSource("停止"));
  const std::string changed = "~ 固定文字列 (10, 10) 「運転」\n    文字列１: 「運転」 → 「停止」\n";
  EXPECT_THAT(Run("git diff"), HasSubstr(changed));
  EXPECT_EQ(status_, 0);
  Commit();
  EXPECT_THAT(Run("git log -p --ext-diff -1"), HasSubstr(changed));
  EXPECT_THAT(Run("git show --ext-diff"), HasSubstr(changed));
}

TEST_F(Git, ShowsAddedAndRemovedLayoutsInTheWordsOfTheToolBox) {
  Run(BlockOfPage("git config diff.varnix-layout.command"));
  Build("New.ptn", LayoutSource("新規"));
  fs::remove(folder_.Path("work/Sample/Pump.ptn"));
  Run("git add -A");
  const std::string said = Run("git diff --cached --no-renames");
  EXPECT_EQ(status_, 0) << said;
  EXPECT_THAT(said, HasSubstr("+ 固定文字列 (10, 10) 「新規」"));
  EXPECT_THAT(said, HasSubstr("- 固定文字列 (10, 10) 「運転」"));
}

TEST_F(Git, FailsForALayoutThatCannotBeRead) {
  Run(BlockOfPage("git config diff.varnix-layout.command"));
  folder_.Write("work/Sample/Pump.ptn", "short");
  EXPECT_THAT(Run("git diff"), HasSubstr("Pump.ptn"));
  EXPECT_NE(status_, 0);
}

TEST_F(Git, DrawsTheLastChangeAsThePageTells) {
  Build("pump.ptn", LayoutSource("停止"));
  Commit();
  Build("pump.ptn", LayoutSource("運転"));
  Commit();
  // The page writes to /tmp, a test to its own folder.
  std::string commands = BlockOfPage("git show HEAD~1:Sample/pump.ptn");
  const std::string own = folder_.Path("home/");
  for (std::size_t at = 0; (at = commands.find("/tmp/", at)) != std::string::npos;
       at += own.size()) {
    commands.replace(at, 5, own);
  }
  const std::string said = Run(commands);
  EXPECT_EQ(status_, 0) << said;
  EXPECT_EQ(folder_.Read("home/change.png").substr(1, 3), "PNG");
}

TEST_F(Git, HookLetsOnlyWholeProjectsThrough) {
  const std::string hook = folder_.Write("work/.git/hooks/pre-commit", BlockOfPage("#!/bin/sh"));
  fs::permissions(hook, fs::perms::owner_all);
  Build("Pump.ptn", LayoutSource("停止"));
  Commit();
  Build("Pump.ptn",
        LayoutSource("停止", R"(,{"Type":"Numeric","Parm":{"X1":10,"Y1":40,"Length":3}})"));
  const std::string said = Run("git add -A && git commit -q -m bad");
  EXPECT_NE(status_, 0);
  EXPECT_THAT(said, HasSubstr("Pump: item 1 (数値データ): ID_Code: "));
  EXPECT_THAT(said, HasSubstr("[code-missing]"));
  EXPECT_EQ(Run("git rev-list --count HEAD"), "2\n");
}

}  // namespace
