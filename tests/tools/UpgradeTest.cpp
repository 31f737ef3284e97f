// Bringing a user's program folder up to date: what is his stays, what is ours is renewed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>

#include "tests/common/TempFolder.h"

namespace {

namespace fs = std::filesystem;
using Tree = std::map<std::string, std::string>;

const std::string EmptyProject(808, '\0');
const std::string FillScript = TEST_SOURCE_DIR "/data/fill-program-folder.sh";

class Upgrade : public testing::Test {
 protected:
  // Makes `tree` what is shipped from now on; a profile and a project are always with it.
  void Ship(Tree tree) {
    tree.emplace("VarnixMaster.ini", "[PROJECT]\nPROJECT=Mill,@PROGRAM_FOLDER@/Sample\n");
    tree.emplace("Sample/Mill.prj", EmptyProject);
    fs::remove_all(folder_.Path("tree"));
    for (const auto& [name, bytes] : tree) folder_.Write("tree/" + name, bytes);
    fs::create_directories(folder_.Path("shipped"));
    const std::string pack = "tar -C '" + folder_.Path("tree") + "' -czf '" +
                             folder_.Path("shipped/files.tar.gz") + "' .";
    ASSERT_EQ(std::system(pack.c_str()), 0);
    folder_.Write("shipped/stamp", std::to_string(++shipments_) + "\n");
  }
  std::string Command(const std::string& program) const {
    return "'" + FillScript + "' '" + folder_.Path(program) + "' '" + folder_.Path("shipped") +
           "' '" + folder_.Path(program + "/.shipped") + "'";
  }
  void Fill(const std::string& program = "home") const {
    ASSERT_EQ(std::system(Command(program).c_str()), 0);
  }
  std::string Mine(const std::string& name) const { return folder_.Read("home/" + name); }
  bool IsThere(const std::string& name) const { return folder_.Exists("home/" + name); }
  void Change(const std::string& name, const std::string& bytes) const {
    folder_.Write("home/" + name, bytes);
  }
  void Remove(const std::string& name) const { fs::remove_all(folder_.Path("home/" + name)); }

  TempFolder folder_;

 private:
  int shipments_ = 0;
};

TEST_F(Upgrade, BringsNewFilesAndRenewsAndDropsUntouchedOnes) {
  Ship({{"start.bmp", "1"}, {"old.bmp", "1"}, {"Sample/a.ptn", "1"}, {"Sample/b.ptn", "1"}});
  Fill();
  Ship({{"start.bmp", "2"}, {"new.bmp", "2"}, {"Sample/a.ptn", "2"}, {"Sample/c.ptn", "2"}});
  Fill();
  EXPECT_EQ(Mine("start.bmp"), "2");
  EXPECT_EQ(Mine("new.bmp"), "2");
  EXPECT_FALSE(IsThere("old.bmp"));
  EXPECT_EQ(Mine("Sample/a.ptn"), "2");
  EXPECT_FALSE(IsThere("Sample/b.ptn"));
  EXPECT_EQ(Mine("Sample/c.ptn"), "2");
}

TEST_F(Upgrade, KeepsAChangedFileAndRestoresAMissingOne) {
  Ship({{"VarnixData/a.ptn", "1"}, {"start.bmp", "1"}});
  Fill();
  Change("VarnixData/a.ptn", "mine");
  Remove("start.bmp");
  Ship({{"VarnixData/a.ptn", "2"}, {"start.bmp", "1"}});
  Fill();
  EXPECT_EQ(Mine("VarnixData/a.ptn"), "mine");
  EXPECT_EQ(Mine("start.bmp"), "1");
}

TEST_F(Upgrade, LeavesASampleWholeInWhichAnythingWasChanged) {
  Ship({{"Sample/a.ptn", "1"}, {"Sample/b.ptn", "1"}, {"Sample/gone.ptn", "1"}});
  Fill();
  Change("Sample/a.ptn", "mine");
  Ship({{"Sample/a.ptn", "2"}, {"Sample/b.ptn", "2"}, {"Sample/new.ptn", "2"}});
  Fill();
  EXPECT_EQ(Mine("Sample/a.ptn"), "mine");
  EXPECT_EQ(Mine("Sample/b.ptn"), "1");
  EXPECT_EQ(Mine("Sample/gone.ptn"), "1");
  EXPECT_FALSE(IsThere("Sample/new.ptn"));
}

TEST_F(Upgrade, TakesADeletedLayoutForAChangeOfItsSample) {
  Ship({{"Sample/a.ptn", "1"}, {"Sample/b.ptn", "1"}});
  Fill();
  Remove("Sample/a.ptn");
  Ship({{"Sample/a.ptn", "2"}, {"Sample/b.ptn", "2"}});
  Fill();
  EXPECT_FALSE(IsThere("Sample/a.ptn"));
  EXPECT_EQ(Mine("Sample/b.ptn"), "1");
}

TEST_F(Upgrade, RemembersOverSeveralUpgradesThatASampleWasChanged) {
  Ship({{"Sample/a.ptn", "1"}});
  Fill();
  Change("Sample/a.ptn", "mine");
  for (const char* bytes : {"2", "3"}) {
    Ship({{"Sample/a.ptn", bytes}});
    Fill();
  }
  EXPECT_EQ(Mine("Sample/a.ptn"), "mine");
}

TEST_F(Upgrade, BringsASampleBackWhenItAndTheMemoryAreRemoved) {
  Ship({{"Sample/a.ptn", "1"}, {"start.bmp", "1"}});
  Fill();
  Change("Sample/a.ptn", "mine");
  Change("start.bmp", "mine");
  Remove("Sample");
  Remove(".shipped");
  Fill();
  EXPECT_EQ(Mine("Sample/a.ptn"), "1");
  EXPECT_EQ(Mine("start.bmp"), "mine");
}

TEST_F(Upgrade, MergesTheProfileKeyByKey) {
  Ship({{"VarnixMaster.ini",
         "; head\n[PROJECT]\nWINDOW=1120,900\nPROJECT=Mill,@PROGRAM_FOLDER@/Sample\n\n"
         "[PROJNAME]\nPROJNAME0=Mill,@PROGRAM_FOLDER@/Sample\n\n"
         "[FONT]\nFONTNAME0=one\nFONTNAME1=two\nFONTNAME2=three\n"}});
  Fill();
  const std::string home = folder_.Path("home");
  // The window was sized, the sample forgotten, a project made, a font chosen.
  Change("VarnixMaster.ini",
         "; head\n[PROJECT]\nPROJECT=Own,/own\nWINDOW=640,480\n\n"
         "[PROJNAME]\nPROJNAME1=Own,/own\n\n"
         "[FONT]\nFONTNAME0=mine\nFONTNAME1=two\nFONTNAME2=three\n\n[VIEW]\nZOOM=3\n");
  Ship(
      {{"VarnixMaster.ini",
        "; head\n[PROJECT]\nWINDOW=1000,800\nPROJECT=Mill,@PROGRAM_FOLDER@/Sample\n\n"
        "[PROJNAME]\nPROJNAME0=Mill,@PROGRAM_FOLDER@/Sample\nPROJNAME2=New,@PROGRAM_FOLDER@/New\n\n"
        "[FONT]\nFONTNAME0=one!\nFONTNAME1=two!\nFONTNAME3=four\n\n[GRID]\nSTEP=8\nWIDE=9\n"}});
  Fill();
  EXPECT_EQ(Mine("VarnixMaster.ini"),
            "; head\n[PROJECT]\nPROJECT=Own,/own\nWINDOW=640,480\n\n"
            "[PROJNAME]\nPROJNAME1=Own,/own\nPROJNAME2=New," +
                home +
                "/New\n\n"
                "[FONT]\nFONTNAME0=mine\nFONTNAME1=two!\nFONTNAME3=four\n\n[VIEW]\nZOOM=3\n"
                "\n[GRID]\nSTEP=8\nWIDE=9\n");
}

TEST_F(Upgrade, LeavesASuggestionThatTheUserSetAndTakesTheOthersBack) {
  Ship({{"VarnixMaster.ini",
         "[PROJDATA]\nNAME=NewProject\nPTRN=@PROGRAM_FOLDER@/NewProject\n"
         "PROG=@PROGRAM_FOLDER@/NewProgram\n[PTRNDATA]\nTITLE=New screen\n"}});
  Fill();
  const std::string home = folder_.Path("home");
  Change("VarnixMaster.ini", "[PROJDATA]\nNAME=NewProject\nPTRN=/mine\nPROG=" + home +
                                 "/NewProgram\n[PTRNDATA]\nTITLE=Mine\n");
  Ship({{"VarnixMaster.ini", "[PROJDATA]\nNAME=\nPTRN=\nPROG=\n[PTRNDATA]\nTITLE=\n"}});
  Fill();
  EXPECT_EQ(Mine("VarnixMaster.ini"),
            "[PROJDATA]\nNAME=\nPTRN=/mine\nPROG=\n[PTRNDATA]\nTITLE=Mine\n");
  // What is set afterwards outlives every further upgrade.
  Change("VarnixMaster.ini", "[PROJDATA]\nNAME=own\nPTRN=/mine\nPROG=\n[PTRNDATA]\nTITLE=\n");
  Ship({{"VarnixMaster.ini", "[PROJDATA]\nNAME=\nPTRN=\nPROG=\n[PTRNDATA]\nTITLE=\n"}});
  Fill();
  EXPECT_EQ(Mine("VarnixMaster.ini"),
            "[PROJDATA]\nNAME=own\nPTRN=/mine\nPROG=\n[PTRNDATA]\nTITLE=\n");
}

TEST_F(Upgrade, CountsTheFirstOfTwoSectionsOfOneName) {
  Ship({{"VarnixMaster.ini", "[A]\nx=1\n"}});
  Fill();
  Change("VarnixMaster.ini", "[A]\nx=1\n[B]\ny=1\n[A]\nx=1\nz=1\n");
  Ship({{"VarnixMaster.ini", "[A]\nx=2\nz=2\n"}});
  Fill();
  EXPECT_EQ(Mine("VarnixMaster.ini"), "[A]\nx=2\nz=2\n[B]\ny=1\n[A]\nx=1\nz=1\n");
}

TEST_F(Upgrade, FollowsAFolderThatWasMoved) {
  Ship({});
  Fill("before");
  fs::rename(folder_.Path("before"), folder_.Path("home"));
  Fill();
  EXPECT_EQ(Mine("VarnixMaster.ini"),
            "[PROJECT]\nPROJECT=Mill," + folder_.Path("home") + "/Sample\n");
  EXPECT_STREQ(Mine("Sample/Mill.prj").c_str() + 364,
               (folder_.Path("home") + "/SampleProgram").c_str());
}

TEST_F(Upgrade, TakesAnyPathThatTheFileSystemAllows) {
  Ship({});
  const std::string odd = "a & b|c \\1 \"d\" 日本語 \xff";
  Fill(odd);
  const std::string program = folder_.Path(odd);
  EXPECT_EQ(folder_.Read(odd + "/VarnixMaster.ini"),
            "[PROJECT]\nPROJECT=Mill," + program + "/Sample\n");
  EXPECT_STREQ(folder_.Read(odd + "/Sample/Mill.prj").c_str() + 364,
               (program + "/SampleProgram").c_str());
  EXPECT_TRUE(folder_.Exists(odd + "/SampleProgram"));
}

TEST_F(Upgrade, RefusesAPathThatTheDesignerCannotHold) {
  Ship({});
  const std::string deep = std::string(120, 'd') + "/" + std::string(120, 'd');
  EXPECT_NE(std::system((Command(deep) + " 2>/dev/null").c_str()), 0);
  EXPECT_FALSE(folder_.Exists(deep + "/VarnixMaster.ini"));
}

TEST_F(Upgrade, DoesNothingWhenNothingNewIsShipped) {
  Ship({{"start.bmp", "1"}});
  Fill();
  Remove("start.bmp");
  Fill();
  EXPECT_FALSE(IsThere("start.bmp"));
}

TEST_F(Upgrade, WaitsForAnotherAtWork) {
  Ship({{"start.bmp", "1"}, {"Sample/a.ptn", "1"}});
  const std::string fill = Command("home");
  const std::string both = fill + " & one=$!; " + fill + " & two=$!; wait $one && wait $two";
  EXPECT_EQ(std::system(both.c_str()), 0);
  EXPECT_EQ(Mine("Sample/a.ptn"), "1");
}

// Kills the script before each of its renames and removals in turn; the next run must always arrive
// at the same folder.
TEST_F(Upgrade, IsCompletedByTheNextRunWhereverItWasCutShort) {
  for (const std::string command : {"mv", "rm"}) {
    const std::string counted = folder_.Write(
        "bin/" + command, "#!/bin/sh\nread -r left <'" + folder_.Path("left") +
                              "'\n[ \"$left\" -gt 0 ] || { kill -9 $PPID; exit 1; }\n"
                              "echo $((left - 1)) >'" +
                              folder_.Path("left") + "'\nexec /bin/" + command + " \"$@\"\n");
    fs::permissions(counted, fs::perms::owner_all);
  }
  const std::string interrupted = "PATH='" + folder_.Path("bin") + "':\"$PATH\" " + Command("home");
  Ship({{"a.bmp", "1"},
        {"b.bmp", "1"},
        {"VarnixMaster.ini", "[A]\nx=1\ny=1\n"},
        {"Sample/a.ptn", "1"},
        {"Sample/b.ptn", "1"}});
  Fill();
  Change("b.bmp", "mine");
  fs::copy(folder_.Path("home"), folder_.Path("kept"), fs::copy_options::recursive);
  Ship({{"a.bmp", "2"},
        {"b.bmp", "2"},
        {"VarnixMaster.ini", "[A]\nx=2\nz=2\n"},
        {"Sample/a.ptn", "2"},
        {"Sample/c.ptn", "2"}});
  constexpr int MoreThanItTakes = 100;
  int steps = 0;
  for (bool cut = true; cut && steps < MoreThanItTakes; ++steps) {
    SCOPED_TRACE(steps);
    fs::remove_all(folder_.Path("home"));
    fs::copy(folder_.Path("kept"), folder_.Path("home"), fs::copy_options::recursive);
    folder_.Write("left", std::to_string(steps) + "\n");
    cut = std::system((interrupted + " 2>/dev/null").c_str()) != 0;
    Fill();
    EXPECT_EQ(Mine("a.bmp"), "2");
    EXPECT_EQ(Mine("b.bmp"), "mine");
    EXPECT_EQ(Mine("VarnixMaster.ini"), "[A]\nx=2\nz=2\n");
    EXPECT_EQ(Mine("Sample/a.ptn"), "2");
    EXPECT_FALSE(IsThere("Sample/b.ptn"));
    EXPECT_EQ(Mine("Sample/c.ptn"), "2");
    EXPECT_FALSE(IsThere(".a.bmp.new"));
    EXPECT_FALSE(IsThere(".shipped/replaced"));
  }
  // Profile, two files and the memory's two renames at least; removals besides.
  EXPECT_GT(steps, 8);
  EXPECT_LT(steps, MoreThanItTakes);
}

}  // namespace
