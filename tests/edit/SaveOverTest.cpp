// A save that replaces something else than the file that the layout came from, or items by none:
// what stood there is kept as "<name>.ptn.bak".
#include <gmock/gmock.h>
#include <sys/stat.h>

#include <filesystem>

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnMisc.h"
#include "tests/edit/EditFixture.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

class SaveOverTest : public EditFixture {
 protected:
  SaveOverTest() {
    Store("Tanks", 2);
    Store("Pumps", 3);
    Store("Bare", 0);
    PtrnDataExit();
    Tanks = Folder.Read("project/Tanks.ptn");
    Pumps = Folder.Read("project/Pumps.ptn");
    Bare = Folder.Read("project/Bare.ptn");
    Screen.Take();
  }

  // A layout file of so many lines, titled by its name.
  static void Store(const gchar* name, gint items) {
    IntPtrnData();
    for (gint i = 0; i < items; ++i) {
      const PTRNDATA item = MakeValidItem(TypeLine, i, 0, i, 50);
      AddPtrnData(&item);
    }
    CopyText(PtrnHedr.PtrnName1, name);
    ASSERT_TRUE(WritePtrnFile(ProjPath, name));
  }
  static void OpenLayout(const std::string& name) {
    Screen.LayoutOpen = [name] {
      CopyText(PtrnName, name);
      return gint{1};
    };
    PtrnDataOpen(nullptr, nullptr);
    ASSERT_EQ(PtrnFlag, 1);
  }
  static void AnswerTitle(const std::string& title) {
    Screen.LayoutSettings = [title] {
      CopyText(EditHedr.PtrnName1, title);
      return gint{1};
    };
  }
  static void NewLayout(const std::string& title) {
    AnswerTitle(title);
    PtrnDataNew(nullptr, Entry(0));
    ASSERT_EQ(PtrnFlag, 2);
  }
  static void Retitle(const std::string& title) {
    AnswerTitle(title);
    PtrnDataEdit(nullptr, nullptr);
  }
  static void AddLine() {
    PtrnData = MakeValidItem(TypeLine, 10, 20, 50, 60);
    PtrnNo = -1;
    ToolBoxButn(nullptr, Entry(0));
  }
  static void DeleteAll() {
    AreaPoint1 = {0, 0};
    AreaPoint2 = {199, 99};
    AreaBoxButn(nullptr, Entry(1));
    ASSERT_EQ(GetPtrnCount(), 0);
  }
  static void Save() {
    PtrnDataSave(nullptr, nullptr);
    ASSERT_EQ(PtrnFlag, 1);
  }
  std::string File(const std::string& name) const { return "project/" + name + ".ptn"; }
  std::string Kept(const std::string& name) const {
    return Folder.Exists(File(name) + ".bak") ? Folder.Read(File(name) + ".bak") : "";
  }
  bool NothingIsKept() const {
    for (const auto& entry : std::filesystem::directory_iterator(ProjectFolder)) {
      if (entry.path().extension() == ".bak") return false;
    }
    return true;
  }

  std::string Tanks;
  std::string Pumps;
  std::string Bare;
};

TEST_F(SaveOverTest, ANewLayoutKeepsTheOneWhoseNameItBears) {
  NewLayout("Tanks");
  AddLine();
  Save();
  EXPECT_EQ(Kept("Tanks"), Tanks);
  EXPECT_NE(Folder.Read("project/Tanks.ptn"), Tanks);
  EXPECT_EQ(Screen.Count("Dlg_MessageBox"), 0);
}

TEST_F(SaveOverTest, EveryRoadThatSavesKeeps) {
  const struct {
    const char* Name;
    void (*Run)();
  } roads[] = {{"save", [] { PtrnDataSave(nullptr, nullptr); }},
               {"close",
                [] {
                  Screen.CloseAnswers = {1};
                  PtrnDataClose(nullptr, nullptr);
                }},
               {"guard",
                [] {
                  Screen.MessageAnswers = {1};
                  Screen.CloseAnswers = {1};
                  EXPECT_EQ(SavePtrnData(), 1);
                }},
               {"another new layout", [] {
                  Screen.MessageAnswers = {1};
                  Screen.CloseAnswers = {1};
                  Screen.LayoutSettings = nullptr;
                  PtrnDataNew(nullptr, Entry(0));
                }}};
  for (const auto& road : roads) {
    SCOPED_TRACE(road.Name);
    std::filesystem::remove(Folder.Path("project/Tanks.ptn.bak"));
    Folder.Write("project/Tanks.ptn", Tanks);
    NewLayout("Tanks");
    AddLine();
    road.Run();
    EXPECT_NE(PtrnFlag, 2);
    EXPECT_EQ(Kept("Tanks"), Tanks);
    EXPECT_NE(Folder.Read("project/Tanks.ptn"), Tanks);
  }
}

TEST_F(SaveOverTest, AFreeNameKeepsNothing) {
  NewLayout("Valves");
  AddLine();
  Save();
  AddLine();
  Save();
  EXPECT_TRUE(NothingIsKept());
}

TEST_F(SaveOverTest, TheFileThatWasOpenedIsReplacedWithoutMore) {
  OpenLayout("Tanks");
  AddLine();
  Save();
  AddLine();
  Save();
  EXPECT_NE(Folder.Read("project/Tanks.ptn"), Tanks);
  EXPECT_TRUE(NothingIsKept());
}

TEST_F(SaveOverTest, AChangedTitleKeepsTheLayoutThatItMeets) {
  OpenLayout("Tanks");
  Retitle("Pumps");
  Save();
  EXPECT_EQ(Kept("Pumps"), Pumps);
  EXPECT_EQ(Folder.Read("project/Tanks.ptn"), Tanks);
  // The file just written is the layout's own from now on.
  AddLine();
  Save();
  EXPECT_EQ(Kept("Pumps"), Pumps);
  EXPECT_FALSE(Folder.Exists("project/Tanks.ptn.bak"));
}

// What stands under the old title is not what is open any more.
TEST_F(SaveOverTest, ATitleChangedBackAfterASaveKeepsWhatTheOldOneBears) {
  OpenLayout("Tanks");
  Retitle("Valves");
  AddLine();
  Save();
  Retitle("Tanks");
  Save();
  EXPECT_EQ(Kept("Tanks"), Tanks);
  EXPECT_FALSE(Folder.Exists("project/Valves.ptn.bak"));
}

TEST_F(SaveOverTest, UndoneRenamingLeadsBackToTheFileThatWasOpened) {
  OpenLayout("Tanks");
  Retitle("Pumps");
  PtrnEditBack(nullptr, nullptr);
  EXPECT_STREQ(PtrnName, "Tanks");
  AddLine();
  Save();
  EXPECT_NE(Folder.Read("project/Tanks.ptn"), Tanks);
  EXPECT_EQ(Folder.Read("project/Pumps.ptn"), Pumps);
  EXPECT_TRUE(NothingIsKept());
}

TEST_F(SaveOverTest, ALayoutWithoutItemsIsKeptUnlessItIsTheLayoutsOwn) {
  NewLayout("Bare");
  AddLine();
  Save();
  EXPECT_EQ(Kept("Bare"), Bare);
}

TEST_F(SaveOverTest, ItemsThatAreReplacedByNoneAreKept) {
  OpenLayout("Tanks");
  DeleteAll();
  Save();
  EXPECT_EQ(Kept("Tanks"), Tanks);
  // Nothing is lost by what follows.
  AddLine();
  Save();
  EXPECT_EQ(Kept("Tanks"), Tanks);
}

TEST_F(SaveOverTest, ASingleItemThatIsReplacedByNoneIsKept) {
  Store("Valve", 1);
  PtrnDataExit();
  const std::string valve = Folder.Read("project/Valve.ptn");
  OpenLayout("Valve");
  DeleteAll();
  Save();
  EXPECT_EQ(Kept("Valve"), valve);
}

TEST_F(SaveOverTest, NoItemsReplacedByNoneKeepNothing) {
  OpenLayout("Bare");
  Retitle("Bare");
  Save();
  EXPECT_NE(Folder.Read("project/Bare.ptn"), "");
  EXPECT_TRUE(NothingIsKept());
}

// Undoing right after a save empties the layout; what was saved is still there.
TEST_F(SaveOverTest, WhatUndoEmptiedAfterASaveOutlivesTheNextSave) {
  OpenLayout("Tanks");
  AddLine();
  Save();
  const std::string saved = Folder.Read("project/Tanks.ptn");
  PtrnEditBack(nullptr, nullptr);
  ASSERT_EQ(GetPtrnCount(), 0);
  Retitle("Tanks");
  Save();
  EXPECT_EQ(Kept("Tanks"), saved);
}

// What a save keeps counts for that save alone.
TEST_F(SaveOverTest, ItemsThatAreReplacedByNoneAreKeptAfterASaveThatKeptAnotherLayout) {
  NewLayout("Tanks");
  AddLine();
  Save();
  ASSERT_EQ(Kept("Tanks"), Tanks);
  const std::string saved = Folder.Read("project/Tanks.ptn");
  DeleteAll();
  Save();
  EXPECT_EQ(Kept("Tanks"), saved);
}

// Nor does what is drawn in the emptied layout cost it.
TEST_F(SaveOverTest, WhatUndoEmptiedAfterASaveOutlivesWhatIsDrawnAnew) {
  OpenLayout("Tanks");
  AddLine();
  Save();
  const std::string saved = Folder.Read("project/Tanks.ptn");
  PtrnEditBack(nullptr, nullptr);
  AddLine();
  Save();
  EXPECT_EQ(GetPtrnCount(), 1);
  EXPECT_EQ(Kept("Tanks"), saved);
  AddLine();
  Save();
  EXPECT_EQ(Kept("Tanks"), saved);
}

TEST_F(SaveOverTest, ANewerKeptFileReplacesAnOlderOne) {
  Folder.Write("project/Tanks.ptn.bak",
               "an older one, and a longer one than the newer one is" + std::string(5000, '.'));
  NewLayout("Tanks");
  AddLine();
  Save();
  EXPECT_EQ(Kept("Tanks"), Tanks);
}

TEST_F(SaveOverTest, WhatIsNoWholeLayoutIsKeptToo) {
  const std::string damaged = Tanks.substr(0, 700);
  Folder.Write("project/Tanks.ptn", damaged);
  NewLayout("Tanks");
  AddLine();
  Save();
  EXPECT_EQ(Kept("Tanks"), damaged);
}

TEST_F(SaveOverTest, AnEmptyFileHoldsNothingToKeep) {
  Folder.Write("project/Tanks.ptn", "");
  NewLayout("Tanks");
  AddLine();
  Save();
  EXPECT_TRUE(NothingIsKept());
}

// A layout that is missing opens empty; what comes into its place meanwhile is somebody else's.
TEST_F(SaveOverTest, WhatAppearedWhereNothingWasOpenedIsKept) {
  OpenLayout("Later");
  Folder.Write("project/Later.ptn", Pumps);
  AddLine();
  CopyText(PtrnHedr.PtrnName1, "Later");
  Save();
  EXPECT_EQ(Kept("Later"), Pumps);
}

// The same name in another folder is another file.
TEST_F(SaveOverTest, TheNameAloneMakesNoFileTheLayoutsOwn) {
  OpenLayout("Tanks");
  AddLine();
  Folder.Write("elsewhere/Tanks.ptn", Pumps);
  CopyText(ProjPath, Folder.Path("elsewhere"));
  Save();
  EXPECT_EQ(Folder.Read("elsewhere/Tanks.ptn.bak"), Pumps);
  EXPECT_EQ(Folder.Read("project/Tanks.ptn"), Tanks);
}

TEST_F(SaveOverTest, NamesAreTheirBytes) {
  const std::string nihon = "\xC6\xFC\xCB\xDC";
  std::filesystem::rename(Folder.Path("project/Pumps.ptn"),
                          Folder.Path("project/" + nihon + ".ptn"));
  NewLayout(nihon);
  AddLine();
  Save();
  EXPECT_EQ(Kept(nihon), Pumps);
}

TEST_F(SaveOverTest, ALayoutThatIsALinkIsKeptBesideTheLink) {
  std::filesystem::create_directory(Folder.Path("elsewhere"));
  std::filesystem::rename(Folder.Path("project/Tanks.ptn"), Folder.Path("elsewhere/file"));
  std::filesystem::create_symlink("../elsewhere/file", Folder.Path("project/Tanks.ptn"));
  NewLayout("Tanks");
  AddLine();
  Save();
  EXPECT_EQ(Kept("Tanks"), Tanks);
  EXPECT_FALSE(std::filesystem::is_symlink(Folder.Path("project/Tanks.ptn.bak")));
  EXPECT_TRUE(std::filesystem::is_symlink(Folder.Path("project/Tanks.ptn")));
  EXPECT_NE(Folder.Read("elsewhere/file"), Tanks);
}

TEST_F(SaveOverTest, ALinkInThePlaceOfTheKeptFileIsNotFollowed) {
  const std::string other = Folder.Write("elsewhere/file", "somebody's own");
  std::filesystem::create_symlink(other, Folder.Path("project/Tanks.ptn.bak"));
  NewLayout("Tanks");
  AddLine();
  Save();
  EXPECT_EQ(Folder.Read("elsewhere/file"), "somebody's own");
  EXPECT_EQ(Kept("Tanks"), Tanks);
}

TEST_F(SaveOverTest, NobodyReadsTheKeptFileWhoCouldNotReadTheOld) {
  chmod(Folder.Path("project/Tanks.ptn").c_str(), 0600);
  NewLayout("Tanks");
  AddLine();
  Save();
  struct stat status {};
  ASSERT_EQ(stat(Folder.Path("project/Tanks.ptn.bak").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0600U);
}

TEST_F(SaveOverTest, WhatCannotBeKeptIsNotReplaced) {
  std::filesystem::create_directory(Folder.Path("project/Tanks.ptn.bak"));
  NewLayout("Tanks");
  AddLine();
  Screen.Take();
  PtrnDataSave(nullptr, nullptr);
  EXPECT_EQ(PtrnFlag, 2);
  Screen.CloseAnswers = {1};
  PtrnDataClose(nullptr, nullptr);
  EXPECT_EQ(PtrnFlag, 2);
  Screen.MessageAnswers = {1};
  Screen.CloseAnswers = {1};
  EXPECT_EQ(SavePtrnData(), 0);
  EXPECT_EQ(PtrnFlag, 2);
  EXPECT_EQ(GetPtrnCount(), 1);
  EXPECT_EQ(Folder.Read("project/Tanks.ptn"), Tanks);
  EXPECT_THAT(Screen.Take(), Not(Contains("SetMainMenu")));
  std::filesystem::remove(Folder.Path("project/Tanks.ptn.bak"));
  Save();
  EXPECT_EQ(Kept("Tanks"), Tanks);
}

TEST_F(SaveOverTest, AKeptFileIsNoLayoutOfTheProject) {
  NewLayout("Tanks");
  AddLine();
  Save();
  PtrnDataExit();
  EXPECT_EQ(FileCount(ProjPath, "*.ptn"), 3);
  ProjData.Parm2[0] = 77;
  ProjFileRenew(ProjPath);
  LogicDataEdit1();
  EXPECT_EQ(Kept("Tanks"), Tanks);
}

// A layout released and another one opened: nothing of the first is held against the second.
TEST_F(SaveOverTest, EachLayoutHasItsOwnFile) {
  OpenLayout("Tanks");
  PtrnDataClose(nullptr, nullptr);
  NewLayout("Tanks");
  AddLine();
  Save();
  EXPECT_EQ(Kept("Tanks"), Tanks);
}

}  // namespace
