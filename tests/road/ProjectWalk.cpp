// From a machine that knows no project to generated sources, through every dialog on the way.
#include <gmock/gmock.h>

#include <filesystem>

#include "ProjData.h"
#include "PtrnMisc.h"
#include "tests/common/TempFolder.h"
#include "tests/road/ProjectHands.h"
#include "tests/road/RoadTest.h"
#include "tests/tools/Tool.h"

namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using testing::HasSubstr;

constexpr const gchar* SettingsTitle = "プロジェクトの新規作成";
constexpr const gchar* OpenLayoutTitle = "レイアウトを開く";
constexpr const gchar* OpenProjectTitle = "プロジェクトを開く";

json Array(std::initializer_list<gint> first, gsize size) {
  json array = first;
  while (array.size() < size) array.push_back(0);
  return array;
}

bool WindowIsCalled(const std::string& title) {
  return See([&] { return title == gtk_window_get_title(GTK_WINDOW(PtrnWnd)); });
}

class ProjectWalk : public RoadTest {
 protected:
  ProjectWalk() {
    std::ofstream(Folder.Path() + "/VarnixMaster.ini", std::ios::trunc);  // an empty profile
    OldHome = g_getenv("HOME") != nullptr ? g_getenv("HOME") : "";
    g_setenv("HOME", Home.Path().c_str(), TRUE);
    fs::create_directories(Home.Path("sources"));
    fs::create_directories(Home.Path("pictures"));
    fs::copy(fs::path(Folder.Path()) / "VarnixData/Bitmap/logo.png",
             Home.Path("pictures/emblem.png"));
    Home.Write("elsewhere/" + EucFromUtf8("取寄画面").value() + ".ptn", FetchedLayout());
  }
  ~ProjectWalk() override { g_setenv("HOME", OldHome.c_str(), TRUE); }

  // A parent window without items.
  static std::string FetchedLayout() {
    PTRNHEDR header{};
    header.Version = 1001;
    header.Parm1[HedrSlot::Width] = 320;
    header.Parm1[HedrSlot::Height] = 240;
    CopyText(header.PtrnName1, EucFromUtf8("取寄画面").value());
    return {reinterpret_cast<const char*>(&header), sizeof header};
  }
  // A file of a folder below the home folder, as the companion tool shows it.
  json Shown(const std::string& folder, const std::string& name) const {
    const ToolRun run = RunTool({"show", Home.Path(folder) + "/" + EucFromUtf8(name).value()});
    EXPECT_EQ(run.Code, 0) << run.Err;
    return json::parse(run.Code == 0 ? run.Out : "{}");
  }
  bool Exists(const std::string& folder, const std::string& name) const {
    return Home.Exists(folder + "/" + EucFromUtf8(name).value());
  }

  void FillGeneralPage(const Panel& settings) const;
  static void FillParentPage(const Panel& settings);
  static void FillOtherPages(const Panel& settings);
  void CreateProject() const;
  void ExpectCreatedProject() const;
  void EditPaletteAndMarks() const;
  void MakeLayouts() const;
  void OpenDeleteAndFetch() const;
  void ChangeProject() const;
  void MoveProject() const;
  void FindProjects() const;
  void Generate() const;
  void Walk() const;

  TempFolder Home;
  std::string OldHome;
};

void ProjectWalk::FillGeneralPage(const Panel& settings) const {
  const Panel page = settings.Page("全般");
  page.Enter(Cell{"プロジェクト名"}, "試験計画");
  page.Press(Cell{"プロジェクト情報格納先フォルダー", 4});
  TypeNewFolder("プロジェクト領域へのパス", Home.Path("work"));
  page.Press(Cell{"ロジック情報格納先フォルダー", 4});
  PickFolder("プログラム領域へのパス", "sources");
  page.Choose(Cell{"画面の解像度"}, 1);
  page.Tick("２ヶ国");
  page.Tick("４系統");
  page.Press(" 表示色設定 ");
  const Panel palette("表示色設定");
  MakeColour(palette, 21, "#ff8000");
  palette.Press(" 設定 ");
  EXPECT_TRUE(SeeGone("表示色設定"));
}

void ProjectWalk::FillParentPage(const Panel& settings) {
  const Panel page = settings.Page("親ウィンドウ");
  const Panel title = page.Frame("タイトル領域");
  title.Enter(Cell{"高さ"}, 40);
  title.PickColour({"前景色"}, 21);
  title.PickColour({"背景色"}, 22);
  title.Tick("ロゴマーク");
  title.Press("参照");
  PickFile("ロゴマーク選択", "pictures", "emblem.png");
  title.Tick("中央");
  title.Choose(Cell{"日付・時刻表示形式"}, 2);
  title.Tick("バージョン情報画面");
  title.Tick("ハードコピーボタン");
  page.Frame("作業領域").PickColour({"背景色"}, 23);
  const Panel buttons = page.Frame("ボタン領域");
  buttons.Enter(Cell{"高さ"}, 56);
  buttons.PickColour({"背景色"}, 24);
}

void ProjectWalk::FillOtherPages(const Panel& settings) {
  const Panel child = settings.Page("子ウィンドウ");
  const Panel title = child.Frame("タイトル領域");
  title.Enter(Cell{"高さ"}, 30);
  title.PickColour({"前景色"}, 31);
  title.PickColour({"背景色"}, 32);
  title.Tick("中央");
  child.Frame("作業領域").PickColour({"背景色"}, 33);
  const Panel frame = child.Frame("外枠");
  frame.Enter(Cell{"枠幅"}, 5);
  frame.PickColour({"枠色  "}, 34);
  const Panel other = settings.Page("その他");
  other.Frame("マウスカーソル形状").Tick("十字");
  const Panel keys = other.Frame("キー入力時");
  keys.PickColour({"前景色"}, 41);
  keys.PickColour({"背景色"}, 42);
  const Panel grid = other.Frame("方眼表示");
  grid.Choose(Cell{"縱"}, 4);
  grid.Choose(Cell{"縱", 3}, 6);
  grid.PickColour({"表示色"}, 43);
}

void ProjectWalk::CreateProject() const {
  ChooseMenu(MenuBar(), {"ファイル", "プロジェクトの新規作成"});
  const Panel settings(SettingsTitle);
  FillGeneralPage(settings);
  FillParentPage(settings);
  FillOtherPages(settings);
  settings.Press(" 登録 ");
  EXPECT_TRUE(SeeGone(SettingsTitle));
  EXPECT_TRUE(WindowIsCalled("レイアウト作成  [試験計画]"));
}

void ProjectWalk::ExpectCreatedProject() const {
  const json project = Shown("work", "試験計画.prj");
  EXPECT_EQ(project["Version"], 1001);
  EXPECT_EQ(project["Parm1"], Array({1, 1, 1}, 20));
  EXPECT_EQ(project["Parm2"], Array({40, 21, 22, 0, 1, 1, 1, 1, 0, 2, 0, 23, 56, 24}, 30));
  EXPECT_EQ(project["Parm3"], Array({30, 31, 32, 0, 1, 33, 5, 34}, 20));
  EXPECT_EQ(project["Parm4"], Array({1, 41, 42, 4, 6, 43}, 20));
  EXPECT_EQ(project["ProgPath"], Home.Path("sources"));
  EXPECT_EQ(project["LogoName"], "emblem.png");
  EXPECT_EQ(project["PtrnStart"], "");
  EXPECT_EQ(project["PtrnStop"], "");
  const json palette = Shown("work", "PtrnColr");
  EXPECT_EQ(palette[20], json({0, 0, 0}));
  EXPECT_EQ(palette[21], json({65535, 32896, 0}));
  // The templates, in the project's look: a child window keeps its size.
  for (const gchar* picture : {"logo.png", "water.bmp", "emblem.png"}) {
    EXPECT_TRUE(Exists("work/Bitmap", picture)) << picture;
  }
  const json leave = Shown("work", "終了確認.ptn");
  EXPECT_EQ(leave["Parm1"], Array({1, 460, 220, 0, 1,  282, 274, 1, 30, 31, 32, 0, 1,  0,  0,
                                   0, 0,   0,   0, 33, 0,   0,   0, 5,  34, 1,  0, 41, 42, 0},
                                  30));
  EXPECT_EQ(leave["Parm2"], Array({2, 0, 4, 6, 0, 0, 43, 0, 1}, 10));
  EXPECT_TRUE(Exists("work", "バージョン情報.ptn"));
  EXPECT_EQ(Folder.Profile(), "[PROJNAME]\nPROJNAME0=" + EucFromUtf8("試験計画").value() + "," +
                                  Home.Path("work") + "\n[PROJECT]\nPROJECT=" +
                                  EucFromUtf8("試験計画").value() + "," + Home.Path("work") + "\n");
}

void ProjectWalk::EditPaletteAndMarks() const {
  ChooseMenu(MenuBar(), {"編集", "表示色設定"});
  const Panel palette("表示色設定");
  MakeColour(palette, 37, "#0080ff");
  // Looked at and confirmed as it is.
  Click(SwatchOf(palette, 21));
  ConfirmColour();
  palette.Press(" 設定 ");
  EXPECT_TRUE(SeeGone("表示色設定"));
  const json colours = Shown("work", "PtrnColr");
  EXPECT_EQ(colours[37], json({0, 32896, 65535}));
  EXPECT_EQ(colours[21], json({65535, 32896, 0}));

  ChooseMenu(MenuBar(), {"編集", "マーク設定"});
  const Panel marks("マーク設定");
  Click(MarkSwatchOf(marks, 3));
  const Panel editor("マーク作成");
  GtkWidget* enlarged = Look([&] { return EnlargedMark(editor.Window(), {16, 32}); });
  PointAt(enlarged, 2 * 8 + 4, 3 * 8 + 4);
  ButtonDown(LeftButton);
  DragTo(enlarged, 9 * 8 + 4, 3 * 8 + 4);
  ButtonUp(LeftButton);
  editor.Press("設定");
  EXPECT_TRUE(SeeGone("マーク作成"));
  marks.Press(" 設定 ");
  EXPECT_TRUE(SeeGone("マーク設定"));
  // Bits 16 * 3 + 2 .. 16 * 3 + 9: the upper six of byte 6, the lower two of byte 7.
  const std::string mark = Shown("work", "PtrnMark")[3];
  EXPECT_EQ(mark, "000000000000fc03" + std::string(1024 - 16, '0'));
}

void ProjectWalk::MakeLayouts() const {
  ChooseMenu(MenuBar(), {"ファイル", "レイアウトの新規作成", "親ウィンドウ"});
  const Panel parent("レイアウト情報の設定［親ウィンドウ］");
  parent.Press(" 設定 ");
  RefuseInput("タイトルが設定されていません。");
  parent.Enter(Cell{"タイトル"}, "親画面");
  parent.Tick("起動時画面");
  parent.Press(" 設定 ");
  EXPECT_TRUE(WindowIsCalled("レイアウト作成  [試験計画 / 親画面]"));
  SaveByKey();

  ChooseMenu(MenuBar(), {"ファイル", "レイアウトの新規作成", "親ウィンドウ"});
  const Panel kept("レイアウト情報の設定［親ウィンドウ］");
  kept.Enter(Cell{"タイトル"}, "固定画面");
  kept.Enter(Cell{"タイトル領域"}, 11);
  kept.PickColour({"作業領域"}, 66);
  kept.Press(Cell{"ビットマップ名", 4});
  PickFile("画像ファイル選択", "pictures", "emblem.png");
  kept.Tick("自動更新不要");
  kept.Press(" 設定 ");
  EXPECT_TRUE(WindowIsCalled("レイアウト作成  [試験計画 / 固定画面]"));

  // The next one asks for it; the close dialog saves it.
  ChooseMenu(MenuBar(), {"ファイル", "レイアウトの新規作成", "子ウィンドウ"});
  Panel("レイアウトデータ保存確認").Press(" はい ");
  Panel("レイアウトを閉じる").Press(" 保存 ");
  const Panel child("レイアウト情報の設定［子ウィンドウ］");
  child.Enter(Cell{"画面の解像度", 1}, 300);
  child.Enter(Cell{"画面の解像度", 2}, 200);
  child.Enter(Cell{"画面の表示位置", 1}, 20);
  child.Enter(Cell{"画面の表示位置", 2}, 30);
  child.Enter(Cell{"タイトル"}, "子画面");
  child.Tick("移動不可");
  child.Tick("終了時画面");
  child.Press(" 設定 ");
  EXPECT_TRUE(WindowIsCalled("レイアウト作成  [試験計画 / 子画面]"));
  SaveByKey();

  ChooseMenu(MenuBar(), {"ファイル", "レイアウトの新規作成", "その他"});
  const Panel other("レイアウト情報の設定［その他］");
  other.Enter(Cell{"領域の大きさ", 1}, 120);
  other.Enter(Cell{"領域の大きさ", 2}, 90);
  other.Enter(Cell{"レイアウト名"}, "帳票");
  other.Press(" 設定 ");
  EXPECT_TRUE(WindowIsCalled("レイアウト作成  [試験計画 / 帳票]"));
  SaveByKey();

  EXPECT_EQ(Shown("work", "親画面.ptn")["Parm1"],
            Array({0, 1024, 768, 1, 0,  0, 0,  0,  40, 21, 22, 0, 1,  1,  1,
                   1, 0,    2,   0, 23, 0, 56, 24, 0,  0,  1,  0, 41, 42, 0},
                  30));
  EXPECT_EQ(Shown("work", "親画面.ptn")["LogoName"], "emblem.png");
  EXPECT_EQ(Shown("work", "親画面.ptn")["Parm2"], Array({0, 0, 4, 6, 0, 0, 43, 1, 0}, 10));
  EXPECT_EQ(Shown("work", "固定画面.ptn")["Parm1"],
            Array({0, 1024, 768, 1, 0,  0, 0,  0,  11, 21, 22, 0, 1,  1,  1,
                   1, 0,    2,   0, 66, 0, 56, 24, 0,  0,  1,  0, 41, 42, 1},
                  30));
  EXPECT_EQ(Shown("work", "固定画面.ptn")["BmapName"], "emblem.png");
  EXPECT_EQ(Shown("work", "子画面.ptn")["Parm1"],
            Array({1, 300, 200, 0, 1,  20, 30, 1, 30, 31, 32, 0, 1,  0,  0,
                   0, 0,   0,   0, 33, 0,  0,  0, 5,  34, 1,  0, 41, 42, 0},
                  30));
  EXPECT_EQ(Shown("work", "帳票.ptn")["Parm1"], Array({2, 120, 90}, 30));
  EXPECT_EQ(Shown("work", "試験計画.prj")["PtrnStart"], "親画面");
  EXPECT_EQ(Shown("work", "試験計画.prj")["PtrnStop"], "子画面");
}

void ProjectWalk::OpenDeleteAndFetch() const {
  ChooseMenu(MenuBar(), {"ファイル", "レイアウトを開く"});
  const Panel open(OpenLayoutTitle);
  ClickRow(open.Window(), "帳票");
  open.Press(" 削除 ");
  EXPECT_TRUE(See([&] { return !Exists("work", "帳票.ptn"); }));
  ClickRow(open.Window(), "親画面");
  open.Press(" 開く ");
  EXPECT_TRUE(WindowIsCalled("レイアウト作成  [試験計画 / 親画面]"));

  // A fetched layout is copied; what opens is the one opened before.
  ChooseMenu(MenuBar(), {"ファイル", "レイアウトを開く"});
  const Panel fetch(OpenLayoutTitle);
  fetch.Press(" フォルダーより探す ");
  PickFileIn(SeeOther(OpenLayoutTitle, fetch.Window()), "elsewhere", "取寄画面");
  EXPECT_TRUE(SeeGone(OpenLayoutTitle));
  EXPECT_TRUE(WindowIsCalled("レイアウト作成  [試験計画 / 親画面]"));
  EXPECT_EQ(Shown("work", "取寄画面.ptn")["Parm1"], Array({0, 320, 240}, 30));

  // Changed and closed without saving.
  PressKey(GDK_KEY_i, {GDK_KEY_Control_L});
  const Panel settings("レイアウト情報の設定［親ウィンドウ］");
  settings.Enter(Cell{"ボタン領域"}, 77);
  settings.Press(" 設定 ");
  EXPECT_TRUE(See([] { return PtrnFlag == 2; }));
  ChooseMenu(MenuBar(), {"ファイル", "レイアウトを閉じる"});
  Panel("レイアウトを閉じる").Press(" 破棄 ");
  EXPECT_TRUE(WindowIsCalled("レイアウト作成  [試験計画]"));
  EXPECT_EQ(Shown("work", "親画面.ptn")["Parm1"][21], 56);
}

void ProjectWalk::ChangeProject() const {
  ChooseMenu(MenuBar(), {"ファイル", "プロジェクトの修正"});
  const Panel settings(SettingsTitle);
  settings.Page("全般").Choose(Cell{"画面の解像度"}, 0);
  const Panel parent = settings.Page("親ウィンドウ");
  parent.Frame("タイトル領域").Enter(Cell{"高さ"}, 44);
  parent.Frame("作業領域").PickColour({"背景色"}, 25);
  const Panel child = settings.Page("子ウィンドウ");
  child.Frame("外枠").Enter(Cell{"枠幅"}, 9);
  settings.Press(" 登録 ");
  EXPECT_TRUE(SeeGone(SettingsTitle));
  Settle();

  for (const gchar* name : {"親画面.ptn", "取寄画面.ptn"}) {
    EXPECT_EQ(Shown("work", name)["Parm1"],
              Array({0, 800, 600, 0, 0,  0, 0,  0,  44, 21, 22, 0, 1,  1,  1,
                     1, 0,   2,   0, 25, 0, 56, 24, 0,  0,  1,  0, 41, 42, 0},
                    30))
        << name;
  }
  EXPECT_EQ(Shown("work", "取寄画面.ptn")["LogoName"], "emblem.png");
  EXPECT_EQ(Shown("work", "取寄画面.ptn")["Parm2"], Array({0, 0, 4, 6, 0, 0, 43}, 10));
  // One opted out; a child window keeps its size.
  EXPECT_EQ(Shown("work", "固定画面.ptn")["Parm1"],
            Array({0, 1024, 768, 1, 0,  0, 0,  0,  11, 21, 22, 0, 1,  1,  1,
                   1, 0,    2,   0, 66, 0, 56, 24, 0,  0,  1,  0, 41, 42, 1},
                  30));
  EXPECT_EQ(Shown("work", "子画面.ptn")["Parm1"],
            Array({1, 300, 200, 0, 1,  20, 30, 1, 30, 31, 32, 0, 1,  0,  0,
                   0, 0,   0,   0, 33, 0,  0,  0, 9,  34, 1,  0, 41, 42, 0},
                  30));
}

void ProjectWalk::MoveProject() const {
  ChooseMenu(MenuBar(), {"ファイル", "プロジェクトの修正"});
  const Panel settings(SettingsTitle);
  const Panel page = settings.Page("全般");
  page.Enter(Cell{"プロジェクト名"}, "移転計画");
  page.Press(Cell{"プロジェクト情報格納先フォルダー", 4});
  TypeNewFolder("プロジェクト領域へのパス", Home.Path("moved"));
  settings.Press(" 登録 ");
  EXPECT_TRUE(WindowIsCalled("レイアウト作成  [移転計画]"));
  for (const gchar* folder : {"work", "moved"}) {
    for (const gchar* name : {"親画面.ptn", "固定画面.ptn", "子画面.ptn", "取寄画面.ptn",
                              "試験計画.prj", "PtrnColr", "PtrnMark", "Bitmap/emblem.png"}) {
      EXPECT_TRUE(Exists(folder, name)) << folder << "/" << name;
    }
  }
  EXPECT_TRUE(Exists("moved", "移転計画.prj"));
  EXPECT_FALSE(Exists("work", "移転計画.prj"));
  EXPECT_THAT(Folder.Profile(), HasSubstr("PROJNAME1=" + EucFromUtf8("移転計画").value() + "," +
                                          Home.Path("moved") + "\n"));
}

void ProjectWalk::FindProjects() const {
  ChooseMenu(MenuBar(), {"ファイル", "プロジェクトを開く"});
  const Panel known(OpenProjectTitle);
  ClickRow(known.Window(), "試験計画");
  known.Press(" 開く ");
  EXPECT_TRUE(WindowIsCalled("レイアウト作成  [試験計画]"));
  EXPECT_EQ(Look([] { return std::string(ProjPath); }), Home.Path("work"));

  ChooseMenu(MenuBar(), {"ファイル", "プロジェクトを開く"});
  const Panel search(OpenProjectTitle);
  search.Press(" フォルダーより探す ");
  PickFileIn(SeeOther(OpenProjectTitle, search.Window()), "moved", "移転計画");
  EXPECT_TRUE(WindowIsCalled("レイアウト作成  [移転計画]"));
  EXPECT_EQ(Look([] { return std::string(ProjPath); }), Home.Path("moved"));
}

void ProjectWalk::Generate() const {
  ChooseMenu(MenuBar(), {"ファイル", "ロジック作成"});
  EXPECT_TRUE(See([this] { return Exists("sources", "移転計画.ini"); }));
  Settle();
  EXPECT_EQ(Home.Read("sources/VarnixCode.h"),
            "#define     SYSTEM                  0\n"
            "#define     VERSION_START           100\n"
            "#define     VERSION_STATION         101\n");
  const std::string source = Home.Read("sources/" + EucFromUtf8("移転計画").value() + ".cpp");
  for (const gchar* name : {"親画面", "固定画面", "子画面", "取寄画面"}) {
    EXPECT_THAT(source, HasSubstr(EucFromUtf8(name).value()));
  }
  const std::string runtime = Home.Read("sources/" + EucFromUtf8("移転計画").value() + ".ini");
  EXPECT_THAT(runtime, HasSubstr("DISPSIZE=800,600 "));
  EXPECT_THAT(runtime, HasSubstr("PTRNSTART=" + EucFromUtf8("親画面").value() + " "));
  EXPECT_THAT(runtime, HasSubstr("PTRNSTOP=" + EucFromUtf8("子画面").value() + " "));
}

// Each step stands on the one before.
void ProjectWalk::Walk() const {
  constexpr void (ProjectWalk::*Steps[])() const = {&ProjectWalk::CreateProject,
                                                    &ProjectWalk::ExpectCreatedProject,
                                                    &ProjectWalk::EditPaletteAndMarks,
                                                    &ProjectWalk::MakeLayouts,
                                                    &ProjectWalk::OpenDeleteAndFetch,
                                                    &ProjectWalk::ChangeProject,
                                                    &ProjectWalk::MoveProject,
                                                    &ProjectWalk::FindProjects,
                                                    &ProjectWalk::Generate};
  for (const auto step : Steps) {
    if (!HasFailure()) (this->*step)();
  }
}

TEST_F(ProjectWalk, FromNothingToSources) {
  Play([this] {
    EXPECT_TRUE(WindowIsCalled("レイアウト作成"));
    Walk();
  });
  // The program finds the project again when it is started anew.
  gtk_widget_destroy(PtrnWnd);
  gdk_display_sync(gdk_display_get_default());
  ASSERT_TRUE(WaitFor([] {
    return XDoTool({"search", "--onlyvisible", "--name", "移転計画"}).empty();
  }));
  RunningProgram program(Folder);
  EXPECT_TRUE(WaitForTitle("レイアウト作成  [移転計画]"));
  PressKeys({"ctrl+q"});
  EXPECT_EQ(program.Wait(), 0);
  EXPECT_EQ(program.Complaints(), "");
}

}  // namespace
