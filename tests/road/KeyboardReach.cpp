// Every window without a mouse: all that can be used gets the keyboard.
#include <gmock/gmock.h>

#include "Constant.h"
#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnMisc.h"
#include "app/Menus.h"
#include "app/Window.h"
#include "tests/road/FocusWalk.h"
#include "tests/road/ProjectHands.h"
#include "tests/road/RoadTest.h"

namespace {

constexpr const gchar* OpenLayoutTitle = "レイアウトを開く";
constexpr const gchar* OpenProjectTitle = "プロジェクトを開く";
constexpr const gchar* ProjectTitle = "プロジェクトの新規作成";
constexpr const gchar* ParentTitle = "レイアウト情報の設定［親ウィンドウ］";
constexpr const gchar* ColourPicker = "表示色選択";
constexpr const gchar* MarkPicker = "マーク選択";
constexpr const gchar* CopyTitle = "描画情報複写";
constexpr const gchar* MoveTitle = "描画情報移動";

void Leave(GtkWidget* window, const std::string& title) {
  KeyTo(window, GDK_KEY_Escape);
  EXPECT_TRUE(SeeGone(title)) << title;
}

// Walks the window with this title and leaves it with Escape.
void WalkAndLeave(const std::string& title) {
  SCOPED_TRACE(title);
  GtkWidget* window = SeeWindow(title);
  WalkWindow(window);
  Leave(window, title);
}

void OpenLayout(const std::string& name) {
  KeyTo(PtrnWnd, GDK_KEY_o, {GDK_KEY_Control_L});
  GtkWidget* dialog = SeeWindow(OpenLayoutTitle);
  TabTo(dialog, "レイアウト");
  GoToRow(dialog, name);
  KeyTo(dialog, GDK_KEY_Return);
  EXPECT_TRUE(See([&] { return PtrnFlag == 1 && DisplayText(PtrnName) == name; })) << name;
}

// Opens a panel by the edit menu and takes the keyboard there.
GtkWidget* OpenPanel(gint type) {
  const std::string title = PtrnTypeList[type - 1];
  ChooseByKeys(OpenMenu(PtrnWnd, GDK_KEY_e, "編集"), {title});
  GtkWidget* panel = SeeWindow(title);
  KeyTo(PtrnWnd, GDK_KEY_F6);
  return panel;
}

class KeyboardReach : public RoadTest {
 protected:
  KeyboardReach() : oldHome_(g_getenv("HOME") != nullptr ? g_getenv("HOME") : "") {
    g_setenv("HOME", home_.Path().c_str(), TRUE);
  }
  ~KeyboardReach() override { g_setenv("HOME", oldHome_.c_str(), TRUE); }
  // The pointer rests where it enters no window that opens.
  static void PlayWithKeys(const std::function<void()>& part) {
    Play([&] {
      PointAway();
      part();
    });
  }

 private:
  TempFolder home_;
  std::string oldHome_;
};

TEST_F(KeyboardReach, EachMenuOpensByItsLetter) {
  PlayWithKeys([] {
    OpenLayout("全体監視");
    const auto walk = [](GtkWidget* window) {
      GtkWidget* file = OpenMenu(window, GDK_KEY_f, "ファイル");
      PressKey(GDK_KEY_Escape);
      EXPECT_TRUE(See([&] { return !gtk_widget_get_mapped(file); }));
      GtkWidget* view = OpenMenu(window, GDK_KEY_v, "表示");
      PressKey(GDK_KEY_Escape);
      EXPECT_TRUE(See([&] { return !gtk_widget_get_mapped(view); }));
      GtkWidget* edit = OpenMenu(window, GDK_KEY_e, "編集");
      // The arrows lead to the menus beside it.
      PressKey(GDK_KEY_Left);
      EXPECT_TRUE(See([&] { return gtk_widget_get_mapped(file) && !gtk_widget_get_mapped(edit); }));
      LetSubmenuOpen(file);
      PressKey(GDK_KEY_Left);
      EXPECT_TRUE(See([&] { return gtk_widget_get_mapped(view) && !gtk_widget_get_mapped(file); }));
      PressKey(GDK_KEY_Escape);
      EXPECT_TRUE(See([&] { return !gtk_widget_get_mapped(view); }));
    };
    walk(PtrnWnd);
    walk(OpenPanel(3));
  });
}

TEST_F(KeyboardReach, EveryPanel) {
  PlayWithKeys([] {
    OpenLayout("全体監視");
    // The texts of three languages.
    KeyTo(PtrnWnd, GDK_KEY_F3, {GDK_KEY_Control_L});
    EXPECT_TRUE(See([] { return Language == 2; }));
    for (gint type = 1; type <= 15; type++) {
      SCOPED_TRACE(PtrnTypeList[type - 1]);
      GtkWidget* panel = OpenPanel(type);
      WalkWindow(panel);
      KeyTo(panel, GDK_KEY_F6);
    }
    Leave(OpenPanel(3), "矩形");
    EXPECT_EQ(Look([] { return PtrnType; }), 0);
  });
}

TEST_F(KeyboardReach, TheSettingsOfALayout) {
  PlayWithKeys([] {
    KeyTo(PtrnWnd, GDK_KEY_n, {GDK_KEY_Control_L});
    GtkWidget* dialog = SeeWindow(ParentTitle);
    TabTo(dialog, "タイトル");
    TypeText("keys");
    KeyTo(dialog, GDK_KEY_Return);
    EXPECT_TRUE(See([] { return PtrnFlag == 2 && std::string(PtrnName) == "keys"; }));
    SaveByKey();
    KeyTo(PtrnWnd, GDK_KEY_F3, {GDK_KEY_Control_L});
    EXPECT_TRUE(See([] { return Language == 2; }));
    for (const gchar* kind : {"親ウィンドウ", "子ウィンドウ", "その他"}) {
      ChooseByKeys(OpenMenu(PtrnWnd, GDK_KEY_f, "ファイル"), {"レイアウトの新規作成", kind});
      WalkAndLeave("レイアウト情報の設定［" + std::string(kind) + "］");
    }
    EXPECT_EQ(Look([] { return std::string(PtrnName); }), "keys");
  });
}

// In a field, Return is the button that registers and Escape the one that cancels.
TEST_F(KeyboardReach, TheSettingsOfTheProject) {
  PlayWithKeys([] {
    const auto enterHeight = [] {
      KeyTo(PtrnWnd, GDK_KEY_e, {GDK_KEY_Control_L, GDK_KEY_Shift_L});
      GtkWidget* dialog = SeeWindow(ProjectTitle);
      TabTo(dialog, "設定の種類");
      KeyTo(dialog, GDK_KEY_Right);
      TabTo(dialog, "タイトル領域 高さ");
      TypeText("45");
      return dialog;
    };
    Leave(enterHeight(), ProjectTitle);
    EXPECT_EQ(Look([] { return gint{ProjData.Parm2[0]}; }), 40);
    KeyTo(enterHeight(), GDK_KEY_Return);
    EXPECT_TRUE(See([] { return ProjData.Parm2[0] == 45; }));
    EXPECT_TRUE(SeeGone(ProjectTitle));
    KeyTo(PtrnWnd, GDK_KEY_e, {GDK_KEY_Control_L, GDK_KEY_Shift_L});
    WalkAndLeave(ProjectTitle);
  });
}

TEST_F(KeyboardReach, TheDialogsThatOpen) {
  PlayWithKeys([] {
    // They begin on the list, at its first row.
    KeyTo(PtrnWnd, GDK_KEY_o, {GDK_KEY_Control_L});
    KeyTo(SeeWindow(OpenLayoutTitle), GDK_KEY_Down);
    KeyTo(SeeWindow(OpenLayoutTitle), GDK_KEY_Return);
    EXPECT_TRUE(SeeGone(OpenLayoutTitle));
    EXPECT_EQ(Look([] { return PtrnFlag; }), 1);
    KeyTo(PtrnWnd, GDK_KEY_w, {GDK_KEY_Control_L});
    EXPECT_TRUE(See([] { return PtrnFlag == 0; }));
    KeyTo(PtrnWnd, GDK_KEY_o, {GDK_KEY_Control_L});
    KeyTo(SeeWindow(OpenLayoutTitle), GDK_KEY_Down);
    WalkAndLeave(OpenLayoutTitle);
    EXPECT_EQ(Look([] { return PtrnFlag; }), 0);
    OpenLayout("全体監視");

    KeyTo(PtrnWnd, GDK_KEY_w, {GDK_KEY_Control_L});
    EXPECT_TRUE(See([] { return PtrnFlag == 0; }));

    Look([] { ProjData.Parm2[0] = 99; });
    KeyTo(PtrnWnd, GDK_KEY_o, {GDK_KEY_Control_L, GDK_KEY_Shift_L});
    KeyTo(SeeWindow(OpenProjectTitle), GDK_KEY_Down);
    WalkAndLeave(OpenProjectTitle);
    EXPECT_EQ(Look([] { return gint{ProjData.Parm2[0]}; }), 99);
    KeyTo(PtrnWnd, GDK_KEY_o, {GDK_KEY_Control_L, GDK_KEY_Shift_L});
    GtkWidget* dialog = SeeWindow(OpenProjectTitle);
    TabTo(dialog, "プロジェクト");
    GoToRow(dialog, "WaterWorks");
    TabTo(dialog, " 開く ");
    KeyTo(dialog, GDK_KEY_Return);
    EXPECT_TRUE(See([] { return ProjData.Parm2[0] == 40; }));
    EXPECT_TRUE(SeeGone(OpenProjectTitle));
  });
}

TEST_F(KeyboardReach, TheChoosersOfFoldersAndFiles) {
  PlayWithKeys([] {
    KeyTo(PtrnWnd, GDK_KEY_o, {GDK_KEY_Control_L, GDK_KEY_Shift_L});
    GtkWidget* projects = SeeWindow(OpenProjectTitle);
    TabTo(projects, " フォルダーより探す ");
    KeyTo(projects, GDK_KEY_Return);
    GtkWidget* files = SeeOther(OpenProjectTitle, projects);
    WalkWindow(files);
    KeyTo(files, GDK_KEY_Escape);
    Leave(projects, OpenProjectTitle);
    KeyTo(PtrnWnd, GDK_KEY_e, {GDK_KEY_Control_L, GDK_KEY_Shift_L});
    GtkWidget* settings = SeeWindow(ProjectTitle);
    TabTo(settings, "プロジェクト情報格納先フォルダー 参照");
    KeyTo(settings, GDK_KEY_space);
    WalkAndLeave("プロジェクト領域へのパス");
    Leave(settings, ProjectTitle);
  });
}

TEST_F(KeyboardReach, ColoursAndMarks) {
  PlayWithKeys([] {
    OpenLayout("全体監視");
    GtkWidget* panel = OpenPanel(13);
    const auto goToColour = [panel] {
      const gint number = Look([] { return gint{PtrnData.Parm[MarkSlot::MarkColour]}; });
      TabTo(panel, "前景色 1 色番号 " + std::to_string(number));
      KeyTo(panel, GDK_KEY_space);
      return number;
    };
    const gint colour = goToColour();
    WalkAndLeave(ColourPicker);
    EXPECT_EQ(goToColour(), colour);
    // Colours run down the columns: the next one stands below.
    GtkWidget* picker = SeeWindow(ColourPicker);
    KeyTo(picker, GDK_KEY_Down);
    KeyTo(picker, GDK_KEY_Return);
    EXPECT_TRUE(SeeGone(ColourPicker));
    EXPECT_EQ(goToColour(), colour + 1);
    // Below all colours the one used lately.
    WalkAndLeave(ColourPicker);

    const auto goToMark = [panel] {
      const gint number = Look([] { return gint{PtrnData.Parm[MarkSlot::Mark]}; });
      TabTo(panel, "マーク 1 マーク " + std::to_string(number));
      KeyTo(panel, GDK_KEY_Return);
      return number;
    };
    const gint mark = goToMark();
    WalkAndLeave(MarkPicker);
    EXPECT_EQ(goToMark(), mark);
    // It begins at the mark that is there.
    picker = SeeWindow(MarkPicker);
    KeyTo(picker, GDK_KEY_Right);
    KeyTo(picker, GDK_KEY_Return);
    EXPECT_TRUE(SeeGone(MarkPicker));
    EXPECT_TRUE(See([mark] { return PtrnData.Parm[MarkSlot::Mark] == mark + 1; }));
  });
}

TEST_F(KeyboardReach, TheListsOfNames) {
  PlayWithKeys([] {
    OpenLayout("全体監視");
    GtkWidget* panel = OpenPanel(6);
    constexpr const gchar* Lists[][2] = {{"文字列 参照", "固定文字列 (言語１) 選択"},
                                         {"画面名称 参照", "画面名称選択"},
                                         {"識別コード 参照", "識別コード選択"}};
    for (const auto& [button, title] : Lists) {
      TabTo(panel, button);
      KeyTo(panel, GDK_KEY_space);
      WalkAndLeave(title);
    }
    TabTo(panel, "画面名称 参照");
    KeyTo(panel, GDK_KEY_space);
    GtkWidget* list = SeeWindow("画面名称選択");
    GoToRow(list, "終了確認");
    KeyTo(list, GDK_KEY_Return);
    EXPECT_TRUE(See([] { return DisplayText(PtrnData.ID_Name) == "終了確認"; }));
  });
}

TEST_F(KeyboardReach, TheEditorsOfColoursAndMarks) {
  PlayWithKeys([] {
    KeyTo(PtrnWnd, GDK_KEY_l, {GDK_KEY_Control_L});
    GtkWidget* palette = SeeWindow("表示色設定");
    WalkWindow(palette);
    TabTo(palette, "色番号 9");
    KeyTo(palette, GDK_KEY_space);
    WalkAndLeave("表示色作成");
    Leave(palette, "表示色設定");
    KeyTo(PtrnWnd, GDK_KEY_m, {GDK_KEY_Control_L});
    GtkWidget* marks = SeeWindow("マーク設定");
    WalkWindow(marks);
    TabTo(marks, "マーク 349");
    KeyTo(marks, GDK_KEY_space);
    WalkAndLeave("マーク作成");
    Leave(marks, "マーク設定");
  });
}

TEST_F(KeyboardReach, CopyingAndMoving) {
  PlayWithKeys([this] {
    NewLayout(640, 480);
    Look([] {
      const PTRNDATA box = BoxItem(100, 100, 140, 140, 8);
      AddPtrnData(&box);
      DrawRequest(1);
    });
    const auto takeItem = [] {
      ClickCanvas(110, 100);
      EXPECT_TRUE(See([] { return PtrnMode == ModeSelected; }));
      GtkWidget* panel = SeeWindow("矩形");
      KeyTo(PtrnWnd, GDK_KEY_F6);
      return panel;
    };
    const auto openCopy = [&] {
      GtkWidget* panel = takeItem();
      TabTo(panel, " 複写 ");
      KeyTo(panel, GDK_KEY_Return);
      return SeeWindow(CopyTitle);
    };
    // The panel with all five buttons.
    GtkWidget* panel = takeItem();
    WalkWindow(panel);
    KeyTo(panel, GDK_KEY_F6);
    openCopy();
    WalkAndLeave(CopyTitle);
    EXPECT_EQ(Look(GetPtrnCount), 1);
    GtkWidget* copy = openCopy();
    TabTo(copy, "複写箇数");
    TypeText("2");
    TabTo(copy, "Ｘ方向ドット数");
    TypeText("100");
    KeyTo(copy, GDK_KEY_Return);
    EXPECT_TRUE(See([] { return GetPtrnCount() == 3; }));
    KeyTo(PtrnWnd, GDK_KEY_F5);
    EXPECT_TRUE(SeeGone("矩形"));

    const auto openMove = [] {
      DragOnCanvas(400, 240, 80, 80);
      EXPECT_TRUE(See([] { return gtk_widget_get_mapped(PopupMenu[2]) != FALSE; }));
      ChooseByKeys(PopupMenu[2], {" 移動 "});
      return SeeWindow(MoveTitle);
    };
    openMove();
    WalkAndLeave(MoveTitle);
    GtkWidget* move = openMove();
    TabTo(move, "Ｙ方向ドット数");
    TypeText("40");
    KeyTo(move, GDK_KEY_Return);
    EXPECT_TRUE(See([] { return ViewPtrnData(0)->Parm[ItemSlot::Y1] == 140; }));
  });
}

TEST_F(KeyboardReach, GridAndClosing) {
  PlayWithKeys([this] {
    NewLayout(640, 480);
    KeyTo(PtrnWnd, GDK_KEY_g, {GDK_KEY_Control_L, GDK_KEY_Shift_L});
    WalkAndLeave("方眼設定");
    SaveByKey();
    KeyTo(PtrnWnd, GDK_KEY_i, {GDK_KEY_Control_L});
    KeyTo(SeeWindow("レイアウト情報の設定［その他］"), GDK_KEY_Return);
    EXPECT_TRUE(See([] { return PtrnFlag == 2; }));
    KeyTo(PtrnWnd, GDK_KEY_w, {GDK_KEY_Control_L});
    GtkWidget* close = SeeWindow("レイアウトを閉じる");
    WalkWindow(close);
    // There is a file of this name: it asks.
    TabTo(close, "画面/帳票名");
    KeyTo(close, GDK_KEY_Return);
    WalkAndLeave("レイアウト保存");
    Leave(close, "レイアウトを閉じる");
    EXPECT_EQ(Look([] { return PtrnFlag; }), 2);
  });
}

}  // namespace
