// What assistive technology reads in each dialog, and that the keyboard reaches all of it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnMisc.h"
#include "dialogs/Choosers.h"
#include "dialogs/Editors.h"
#include "dialogs/ToolBox.h"
#include "dialogs/ToolBoxWindow.h"
#include "layout/CopyDialogs.h"
#include "layout/Screen.h"
#include "tests/common/TempFolder.h"
#include "tests/dialogs/Controls.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

namespace {

using testing::AllOf;
using testing::Contains;
using testing::IsEmpty;

struct Release {
  void operator()(gpointer object) const { g_object_unref(object); }
};
using AtkPtr = std::unique_ptr<AtkObject, Release>;

bool HasState(AtkObject* object, AtkStateType state) {
  const std::unique_ptr<AtkStateSet, Release> states(atk_object_ref_state_set(object));
  return atk_state_set_contains_state(states.get(), state) != FALSE;
}

bool IsActionable(AtkObject* object) {
  return HasState(object, ATK_STATE_FOCUSABLE) ||
         (ATK_IS_ACTION(object) && atk_action_get_n_actions(ATK_ACTION(object)) > 0) ||
         ATK_IS_VALUE(object);
}

std::string NameOf(AtkObject* object) {
  const gchar* name = atk_object_get_name(object);
  return name != nullptr ? name : "";
}

void VisitTree(AtkObject* object, const std::function<void(AtkObject*)>& visit) {
  visit(object);
  for (gint i = 0; i < atk_object_get_n_accessible_children(object); i++) {
    if (const AtkPtr child{atk_object_ref_accessible_child(object, i)}) {
      VisitTree(child.get(), visit);
    }
  }
}

// Names of what can be used below a widget, with the role of each that has none.
std::vector<std::string> NamesIn(GtkWidget* root) {
  std::vector<std::string> names;
  VisitTree(gtk_widget_get_accessible(root), [&names](AtkObject* object) {
    if (!IsActionable(object)) return;
    const std::string name = NameOf(object);
    names.push_back(name.empty()
                        ? std::string("nameless ") + atk_role_get_name(atk_object_get_role(object))
                        : name);
  });
  return names;
}

std::vector<std::string> NamelessIn(GtkWidget* root) {
  std::vector<std::string> nameless;
  for (const std::string& name : NamesIn(root)) {
    if (name.rfind("nameless ", 0) == 0) nameless.push_back(name);
  }
  return nameless;
}

bool IsReachable(GtkWidget* widget) {
  return gtk_widget_get_can_focus(widget) && gtk_widget_is_sensitive(widget) &&
         gtk_widget_get_mapped(widget);
}

// Where the keyboard comes to from control to control, once around.
std::set<GtkWidget*> TabStops(GtkWidget* window) {
  std::set<GtkWidget*> stops;
  const auto next = [window] {
    g_signal_emit_by_name(window, "move-focus", GTK_DIR_TAB_FORWARD);
    return gtk_window_get_focus(GTK_WINDOW(window));
  };
  constexpr std::size_t TooMany = 200;
  GtkWidget* const first = next();
  for (GtkWidget* stop = first; stops.empty() || stop != first; stop = next()) {
    stops.insert(stop);
    if (stops.size() > TooMany) break;
  }
  return stops;
}

// A radio group and a grid of swatches are one stop; the arrow keys move within.
bool StopsAtGroup(GtkWidget* widget, const std::set<GtkWidget*>& stops) {
  if (GTK_IS_RADIO_BUTTON(widget)) {
    for (GSList* link = gtk_radio_button_get_group(GTK_RADIO_BUTTON(widget)); link != nullptr;
         link = link->next) {
      if (stops.count(GTK_WIDGET(link->data)) != 0) return true;
    }
  }
  for (GtkWidget* stop : stops) {
    if (stop != nullptr && GTK_IS_DRAWING_AREA(stop) && GTK_IS_DRAWING_AREA(widget) &&
        gtk_widget_get_parent(stop) == gtk_widget_get_parent(widget)) {
      return true;
    }
  }
  return false;
}

std::vector<std::string> UnreachedIn(GtkWidget* window) {
  const std::set<GtkWidget*> stops = TabStops(window);
  std::vector<std::string> unreached;
  FindWidget(window, [&](GtkWidget* widget) {
    if (IsReachable(widget) && stops.count(widget) == 0 && !StopsAtGroup(widget, stops)) {
      unreached.push_back(std::string(G_OBJECT_TYPE_NAME(widget)) + " " +
                          NameOf(gtk_widget_get_accessible(widget)));
    }
    return false;
  });
  return unreached;
}

void ExpectUsable(GtkWidget* window) {
  // A window without the keyboard moves it no further than to its first button.
  gtk_window_present(GTK_WINDOW(window));
  ASSERT_TRUE(WaitFor([window] { return gtk_window_is_active(GTK_WINDOW(window)) != FALSE; }));
  EXPECT_NE(NameOf(gtk_widget_get_accessible(window)), "");
  EXPECT_THAT(NamelessIn(window), IsEmpty());
  EXPECT_THAT(UnreachedIn(window), IsEmpty());
}

}  // namespace

class Names : public WindowTest {
 protected:
  Names() {
    WriteProfile("");
    OpenWindow();
    CopyText(ProjPath, Project.Path());
    CopyText(PtrnName, "layout");
    Project.Write("layout.ptn", std::string(466, '\0'));
    SetBmapPath();
    EditHedr = {};
    EditData = {};
  }
  ~Names() override {
    EditHedr = {};
    EditData = {};
  }
  // Looks at a dialog while `open` runs it.
  static void In(const gchar* title, const std::function<void()>& open) {
    const DialogAnswer answer(title, [title](GtkWidget* dialog) {
      SCOPED_TRACE(title);
      ExpectUsable(dialog);
      if (GTK_IS_DIALOG(dialog)) {
        gtk_dialog_response(GTK_DIALOG(dialog), GTK_RESPONSE_CANCEL);
      } else {
        CloseByManager(dialog);
      }
    });
    open();
  }

  TempFolder Project;
};

TEST_F(Names, EveryToolBoxPage) {
  for (gint type = 1; type <= 15; type++) {
    for (const gint more : {0, 1}) {
      ProjData.Parm1[1] = Language = 2 * more;
      ProjData.Parm1[2] = more;
      SCOPED_TRACE(type);
      Dlg_ToolBox(PtrnWnd, type);
      SetToolBoxButton(31);
      ASSERT_TRUE(WaitFor([] { return gtk_widget_get_mapped(ToolBox) != FALSE; }));
      ExpectUsable(ToolBox);
    }
  }
}

TEST_F(Names, ComeFromTheRowAndTheColumn) {
  ProjData.Parm1[2] = 1;
  PtrnData.Parm[4] = 37;
  Dlg_ToolBox(PtrnWnd, 1);
  EXPECT_THAT(NamesIn(ToolBox),
              AllOf(Contains("領域色 1 色番号 37"), Contains("領域色 4 色番号 0"),
                    Contains("上 境界色/枠幅 2 色番号 0"), Contains("上 境界色/枠幅"),
                    Contains("消去色 色番号 0"), Contains("TOP"), Contains("処理種別"),
                    Contains("画面名称"), Contains("画面名称 参照"), Contains("識別コード 参照"),
                    Contains("識別番号"), Contains(" 登録 ")));
}

TEST_F(Names, ComeFromCaptionsAndFrames) {
  const DialogAnswer answer("設定の題名", [](GtkWidget* dialog) {
    EXPECT_THAT(
        NamesIn(dialog),
        AllOf(Contains("プロジェクト名"), Contains("プロジェクト情報格納先フォルダー 参照"),
              Contains("画面の解像度"), Contains("タイトル領域 高さ"),
              Contains("タイトル領域 背景色 色番号 0"), Contains("作業領域 背景色 色番号 0"),
              Contains("タイトル領域 ロゴマーク"), Contains("タイトル領域 ロゴマーク 参照"),
              Contains("ボタン領域 高さ"), Contains("外枠 枠幅"), Contains("外枠 枠色 色番号 0"),
              Contains("方眼表示 縱"), Contains("方眼表示 横")));
    CloseByManager(dialog);
  });
  EditProjData(PtrnWnd, "設定の題名");
}

TEST_F(Names, OfReadOutsLeaveTheirTextReadable) {
  Dlg_ToolBox(PtrnWnd, 1);
  PtrnData.Point1 = {12, 34};
  SetToolBoxPoint();
  AtkObject* readOut = gtk_widget_get_accessible(ToolBox_Label1);
  EXPECT_EQ(NameOf(readOut), "始点");
  gchar* text = atk_text_get_text(ATK_TEXT(readOut), 0, -1);
  EXPECT_STREQ(text, "   12 /    34");
  g_free(text);
}

TEST_F(Names, OfASwatchFollowItsNumber) {
  Dlg_ToolBox(PtrnWnd, 15);
  GtkWidget* swatch = ControlAt(FindGrid(ToolBox), 2, 1, GTK_TYPE_DRAWING_AREA);
  const DialogAnswer answer("表示色選択", [](GtkWidget* picker) {
    Press(ControlAt(FindGrid(picker), 7, 3, GTK_TYPE_DRAWING_AREA), 1);
  });
  Press(swatch, 1);
  EXPECT_EQ(NameOf(gtk_widget_get_accessible(swatch)), "消去色 色番号 37");
}

TEST_F(Names, TheMainWindow) {
  ProjFlag = 1;
  ShowLayout(100, 100, 2);
  EXPECT_THAT(NamelessIn(PtrnWnd), IsEmpty());
  EXPECT_THAT(NamesIn(PtrnWnd),
              AllOf(Contains("レイアウト"), Contains("ファイル"), Contains("レイアウトの新規作成"),
                    Contains("親ウィンドウ"), Contains("スピンボタン"), Contains("表示色１")));
}

TEST_F(Names, TheDialogsOfAProject) {
  In("プロジェクトを開く", [] { ProjFileOpen(PtrnWnd); });
  In("設定の題名", [] { EditProjData(PtrnWnd, "設定の題名"); });
}

TEST_F(Names, TheDialogsOfALayout) {
  In("レイアウトを開く", [] { PtrnFileOpen(PtrnWnd); });
  In("レイアウトを閉じる", [] { PtrnFileClose(PtrnWnd); });
  const gchar* const titles[] = {"レイアウト情報の設定［親ウィンドウ］",
                                 "レイアウト情報の設定［子ウィンドウ］",
                                 "レイアウト情報の設定［その他］"};
  Language = 2;
  for (gint kind = 0; kind < 3; kind++) {
    EditHedr.Parm1[0] = kind;
    In(titles[kind], [] { EditPtrnData(PtrnWnd); });
  }
}

TEST_F(Names, TheSmallDialogs) {
  DLGPARM parm = {};
  In("描画情報複写", [&parm] { Dlg_ToolCopy(PtrnWnd, &parm); });
  In("描画情報移動", [&parm] { Dlg_AreaMove(PtrnWnd, &parm); });
  In("方眼設定", [] { PtrnGridSet(nullptr, nullptr); });
  In("題名", [] { Dlg_MessageBox(PtrnWnd, "題名", "一", "二", 3); });
  In("フォルダー選択", [] { Dlg_FolderSelect(PtrnWnd, "フォルダー選択"); });
  In("ファイル選択", [] { Dlg_FileSelect(PtrnWnd, "ファイル選択", 1); });
}

TEST_F(Names, ThePickersOfTheToolBox) {
  Dlg_ToolBox(PtrnWnd, 6);
  DLG_EDITBOX row = {0, 0, 0, 80, 0, PtrnData.Text1, nullptr};
  In("画面名称選択", [&row] { ToolBox_Page(nullptr, &row); });
  In("識別コード選択", [&row] { ToolBox_Code(nullptr, &row); });
  In("固定文字列 (言語１) 選択", [&row] { ToolBox_Text1(nullptr, &row); });
  In("固定文字列 (言語２) 選択", [&row] { ToolBox_Text2(nullptr, &row); });
  In("固定文字列 (言語３) 選択", [&row] { ToolBox_Text3(nullptr, &row); });
  In("画像ファイル選択", [&row] { ToolBox_Name(nullptr, &row); });
}

TEST_F(Names, TheColoursAndMarks) {
  In("表示色設定", [] { EditColrData(nullptr, nullptr); });
  In("表示色選択", [] { Dlg_ColrSelect(PtrnWnd); });
  In("マーク設定", [] { EditMarkData(nullptr, nullptr); });
  In("マーク選択", [] { Dlg_MarkSelect(PtrnWnd); });
  COLRBOX colour = {nullptr, {1, 2, 3}};
  In("表示色作成", [&colour] { MakeColrData(PtrnWnd, 0, &colour); });
  std::vector<MARKBOX> marks(MarkCount);
  In("マーク作成", [&marks] { MakeMarkData(PtrnWnd, 7, marks.data()); });
  In("マーク選択", [&marks] { Dlg_MarkSearch(PtrnWnd, marks.data()); });
}
