#include "app/Menus.h"

#include <gtest/gtest.h>

#include "ProjData.h"
#include "PtrnMisc.h"
#include "app/Window.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

namespace {

using Labels = std::vector<std::string>;

const Labels GroupedTypes = {"矩形枠",
                             "直線",
                             "矩形",
                             "楕円",
                             "棒グラフ",
                             "-",
                             "固定文字列",
                             "可変文字列",
                             "数値データ",
                             "-",
                             "ボタン",
                             "ラジオボタン",
                             "チェックボックス",
                             "ビットマップ",
                             "マーク",
                             "スクロールバー",
                             "スピンボタン"};

Labels Joined(Labels first, const Labels& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

Labels SubMenuLabels(GtkWidget* menu, std::initializer_list<std::string> path) {
  GtkWidget* entry = MenuEntry(menu, path);
  if (entry == nullptr) return {"(no such entry)"};
  return MenuLabels(gtk_menu_item_get_submenu(GTK_MENU_ITEM(entry)));
}

bool Enabled(std::initializer_list<std::string> path) {
  GtkWidget* entry = MenuEntry(MenuBar(), path);
  EXPECT_NE(entry, nullptr);
  return entry != nullptr && gtk_widget_get_sensitive(entry);
}

bool Marked(GtkWidget* entry) {
  return gtk_check_menu_item_get_active(GTK_CHECK_MENU_ITEM(entry)) != FALSE;
}

void Choose(GtkWidget* entry) {
  gtk_menu_item_activate(GTK_MENU_ITEM(entry));
}

// Which entries of a group are marked, as "01000".
template <std::size_t Size>
std::string Marks(GtkWidget* const (&slots)[Size]) {
  std::string marks;
  for (GtkWidget* slot : slots) marks += Marked(slot) ? '1' : '0';
  return marks;
}

template <std::size_t Size>
std::string Enabling(GtkWidget* const (&slots)[Size]) {
  std::string states;
  for (GtkWidget* slot : slots) states += gtk_widget_get_sensitive(slot) ? '1' : '0';
  return states;
}

gboolean IsKeyOf(GtkAccelKey* /*key*/, GClosure* closure, gpointer entry) {
  GList* closures = gtk_widget_list_accel_closures(GTK_WIDGET(entry));
  const bool found = g_list_find(closures, closure) != nullptr;
  g_list_free(closures);
  return found;
}

class Menus : public WindowTest {
 protected:
  void SetUp() override { OpenWindow(); }
};

TEST_F(Menus, BarHoldsItsEntriesInOrder) {
  GtkWidget* bar = MenuBar();
  EXPECT_EQ(MenuLabels(bar), (Labels{"ファイル", "編集", "表示"}));
  EXPECT_EQ(SubMenuLabels(bar, {"ファイル"}),
            (Labels{"プロジェクトの新規作成", "プロジェクトを開く", "プロジェクトの修正", "-",
                    "ロジック作成", "-", "レイアウトの新規作成", "レイアウトを開く",
                    "レイアウトを閉じる", "レイアウトの上書き保存", "-", "印刷", "-", "修了"}));
  EXPECT_EQ(SubMenuLabels(bar, {"ファイル", "レイアウトの新規作成"}),
            (Labels{"親ウィンドウ", "子ウィンドウ", "その他"}));
  EXPECT_EQ(SubMenuLabels(bar, {"編集"}),
            Joined({"元に戻す", "-", "レイアウト情報設定", "表示色設定", "マーク設定", "-"},
                   GroupedTypes));
  EXPECT_EQ(SubMenuLabels(bar, {"表示"}),
            (Labels{"再表示", "-", "ズーム", "方眼表示", "方眼設定", "非検出", "表示色", "言語"}));
  EXPECT_EQ(SubMenuLabels(bar, {"表示", "ズーム"}),
            (Labels{"500%", "200%", "100%", " 75%", " 50%"}));
  Labels types;
  for (const std::string& label : GroupedTypes) {
    if (label != "-") types.push_back(label);
  }
  EXPECT_EQ(SubMenuLabels(bar, {"表示", "非検出"}), types);
  EXPECT_EQ(SubMenuLabels(bar, {"表示", "表示色"}),
            (Labels{"表示色１", "表示色２", "表示色３", "表示色４"}));
  EXPECT_EQ(SubMenuLabels(bar, {"表示", "言語"}), (Labels{"言語１", "言語２", "言語３"}));
}

TEST_F(Menus, PopUpsHoldTheirEntriesInOrder) {
  EXPECT_EQ(MenuLabels(PopupMenu[0]),
            Joined({"再表示", "-", "ズーム", "方眼表示", "-"}, GroupedTypes));
  EXPECT_EQ(SubMenuLabels(PopupMenu[0], {"ズーム"}),
            (Labels{"500%", "200%", "100%", " 75%", " 50%"}));
  EXPECT_EQ(MenuLabels(PopupMenu[1]),
            (Labels{" 登録   ", " 削除   ", " 取消   ", "-", " 複写   ", " 再表示 "}));
  EXPECT_EQ(MenuLabels(PopupMenu[2]), (Labels{" 取消 ", "-", " 削除 ", " 移動 ", " 複写 "}));
}

TEST_F(Menus, WithoutAProjectOnlyProjectsAndTheEndAreOffered) {
  EXPECT_EQ(Enabling(FileMenu), "110000000001");
  EXPECT_EQ(Enabling(EditMenu), "0000");
  EXPECT_EQ(Enabling(DispMenu), "0000");
  EXPECT_EQ(Enabling(PtrnZoom1), "00000");
  EXPECT_EQ(Enabling(PtrnZoom2), "00000");
  EXPECT_EQ(Enabling(PtrnSetLang), "000");
  EXPECT_EQ(Enabling(PtrnSetColr), "0000");
  for (const auto& slots : PtrnSlct) EXPECT_EQ(Enabling(slots), "000000000000000");
}

TEST_F(Menus, AProjectOffersLayoutsAndItsOwnSettings) {
  ProjFlag = 1;
  SetMainMenu();
  EXPECT_EQ(Enabling(FileMenu), "111111110001");
  EXPECT_EQ(Enabling(EditMenu), "0011");
  EXPECT_EQ(Enabling(DispMenu), "0000");
}

TEST_F(Menus, AnOpenLayoutOffersEditingAndLocksTheProject) {
  ProjFlag = 1;
  PtrnFlag = 1;
  SetMainMenu();
  EXPECT_EQ(Enabling(FileMenu), "000011111011");
  EXPECT_EQ(Enabling(EditMenu), "0111");
  EXPECT_EQ(Enabling(DispMenu), "1111");
  EXPECT_EQ(Enabling(PtrnZoom1), "11111");
  EXPECT_EQ(Enabling(PtrnZoom2), "11111");
  for (const auto& slots : PtrnSlct) EXPECT_EQ(Enabling(slots), "111111111111111");
  EXPECT_EQ(Enabling(PtrnSetLang), "100");
  EXPECT_EQ(Enabling(PtrnSetColr), "1100");
  PtrnFlag = 2;
  SetMainMenu();
  EXPECT_EQ(Enabling(FileMenu), "000011111111");
}

TEST_F(Menus, UndoFollowsTheSnapshots) {
  PtrnFlag = 1;
  PtrnSaveCount = 3;
  SetMainMenu();
  EXPECT_TRUE(Enabled({"編集", "元に戻す"}));
  PtrnSaveCount = 0;
  SetMainMenu();
  EXPECT_FALSE(Enabled({"編集", "元に戻す"}));
  PtrnSaveCount = 3;
  PtrnFlag = 0;
  SetMainMenu();
  EXPECT_FALSE(Enabled({"編集", "元に戻す"}));
}

TEST_F(Menus, TheFirstChangeOffersSaving) {
  IntPtrnData();
  const PTRNDATA box = BoxItem(100, 100, 160, 140, 1);
  AddPtrnData(&box);
  ShowLayout(400, 300, 2);
  EXPECT_FALSE(gtk_widget_get_sensitive(FileMenu[9]));
  Drag(115, 100, 115, 100);
  ToolBoxButn(nullptr, GINT_TO_POINTER(1));
  EXPECT_EQ(PtrnFlag, 2);
  EXPECT_TRUE(gtk_widget_get_sensitive(FileMenu[9]));
}

TEST_F(Menus, LanguagesAndColourSystemsFollowTheProject) {
  PtrnFlag = 1;
  ProjData.Parm1[1] = 1;
  ProjData.Parm1[2] = 1;
  SetMainMenu();
  EXPECT_EQ(Enabling(PtrnSetLang), "110");
  EXPECT_EQ(Enabling(PtrnSetColr), "1111");
  ProjData.Parm1[1] = 2;
  SetMainMenu();
  EXPECT_EQ(Enabling(PtrnSetLang), "111");
}

TEST_F(Menus, MarksFollowTheView) {
  PtrnFlag = 1;
  PtrnHedr.Parm2[ViewSlot::Zoom] = 3;
  PtrnHedr.Parm2[ViewSlot::GridShown] = 1;
  ColorCode = 2;
  Language = 1;
  PtrnType = TypeMark;
  PtrnUnSlct[1] = 1;
  PtrnUnSlct[14] = 1;
  SetMenuActive1();
  EXPECT_EQ(Marks(PtrnZoom1), "00010");
  EXPECT_EQ(Marks(PtrnZoom2), "00010");
  EXPECT_TRUE(Marked(DispMenu[1]));
  EXPECT_TRUE(Marked(DispMenu[3]));
  EXPECT_EQ(Marks(PtrnSetColr), "0010");
  EXPECT_EQ(Marks(PtrnSetLang), "010");
  EXPECT_EQ(Marks(PtrnSlct[2]), "010000000000001");
}

TEST_F(Menus, ZoomEntryChangesTheCanvasAndBothMarks) {
  ShowLayout(400, 300, 2);
  Choose(MenuEntry(MenuBar(), {"表示", "ズーム", "200%"}));
  EXPECT_EQ(gint{PtrnHedr.Parm2[ViewSlot::Zoom]}, 1);
  EXPECT_EQ(gint{PtrnDraw_Size2.cx}, 800);
  EXPECT_EQ(Marks(PtrnZoom1), "01000");
  EXPECT_EQ(Marks(PtrnZoom2), "01000");
  Choose(MenuEntry(PopupMenu[0], {"ズーム", " 50%"}));
  EXPECT_EQ(gint{PtrnDraw_Size2.cx}, 200);
  EXPECT_EQ(Marks(PtrnZoom1), "00001");
  EXPECT_EQ(Marks(PtrnZoom2), "00001");
}

TEST_F(Menus, TheEntryThatIsOnKeepsItsMark) {
  ShowLayout(400, 300, 2);
  Choose(MenuEntry(MenuBar(), {"表示", "ズーム", "100%"}));
  EXPECT_EQ(gint{PtrnHedr.Parm2[ViewSlot::Zoom]}, 2);
  EXPECT_EQ(Marks(PtrnZoom1), "00100");
  Choose(MenuEntry(MenuBar(), {"表示", "表示色", "表示色１"}));
  EXPECT_EQ(Marks(PtrnSetColr), "1000");
  Choose(MenuEntry(MenuBar(), {"表示", "言語", "言語１"}));
  EXPECT_EQ(Marks(PtrnSetLang), "100");
}

TEST_F(Menus, GridEntryTurnsTheGridOnAndOff) {
  ShowLayout(400, 300, 2);
  Choose(MenuEntry(MenuBar(), {"表示", "方眼表示"}));
  EXPECT_EQ(gint{PtrnHedr.Parm2[ViewSlot::GridShown]}, 1);
  EXPECT_TRUE(Marked(DispMenu[3]));
  Choose(MenuEntry(PopupMenu[0], {"方眼表示"}));
  EXPECT_EQ(gint{PtrnHedr.Parm2[ViewSlot::GridShown]}, 0);
  EXPECT_FALSE(Marked(DispMenu[1]));
}

TEST_F(Menus, TypeEntryChoosesAndUnchooses) {
  ShowLayout(400, 300, 2);
  Choose(MenuEntry(MenuBar(), {"編集", "楕円"}));
  EXPECT_EQ(PtrnType, TypeEllipse);
  EXPECT_EQ(Marks(PtrnSlct[0]), "000100000000000");
  EXPECT_EQ(Marks(PtrnSlct[1]), "000100000000000");
  Choose(MenuEntry(PopupMenu[0], {"ボタン"}));
  EXPECT_EQ(PtrnType, TypeButton);
  EXPECT_EQ(Marks(PtrnSlct[0]), "000000001000000");
  Choose(MenuEntry(MenuBar(), {"編集", "ボタン"}));
  EXPECT_EQ(PtrnType, 0);
  EXPECT_EQ(Marks(PtrnSlct[0]), "000000000000000");
  EXPECT_EQ(Marks(PtrnSlct[1]), "000000000000000");
}

TEST_F(Menus, UnpickableEntryKeepsItsOwnMark) {
  ShowLayout(400, 300, 2);
  Choose(MenuEntry(MenuBar(), {"表示", "非検出", "直線"}));
  EXPECT_EQ(gint{PtrnUnSlct[1]}, 1);
  EXPECT_EQ(Marks(PtrnSlct[2]), "010000000000000");
  Choose(MenuEntry(MenuBar(), {"表示", "非検出", "直線"}));
  EXPECT_EQ(gint{PtrnUnSlct[1]}, 0);
}

TEST_F(Menus, ItemCommandsFollowTheBits) {
  for (gint flags = 0; flags < 32; flags++) {
    SetMenuActive2(flags);
    std::string bits;
    for (gint bit = 1; bit <= 16; bit *= 2) bits += (flags & bit) != 0 ? '1' : '0';
    EXPECT_EQ(Enabling(ToolBoxMenu), bits);
  }
}

TEST_F(Menus, KeysWork) {
  ShowLayout(400, 300, 2);
  SendKey(GDK_KEY_2, GDK_CONTROL_MASK);
  EXPECT_EQ(gint{PtrnDraw_Size2.cx}, 800);
  SendKey(GDK_KEY_g, GDK_CONTROL_MASK);
  EXPECT_EQ(gint{PtrnHedr.Parm2[ViewSlot::GridShown]}, 1);
}

TEST_F(Menus, KeysAreShown) {
  GtkAccelKey* save = gtk_accel_group_find(MainMenuKeys(), IsKeyOf, FileMenu[9]);
  ASSERT_NE(save, nullptr);
  EXPECT_EQ(save->accel_key, static_cast<guint>(GDK_KEY_s));
  EXPECT_EQ(save->accel_mods, GDK_CONTROL_MASK);
  EXPECT_EQ(save->accel_flags & GTK_ACCEL_VISIBLE, GTK_ACCEL_VISIBLE);
  EXPECT_TRUE(GTK_IS_ACCEL_LABEL(gtk_bin_get_child(GTK_BIN(FileMenu[9]))));
}

TEST_F(Menus, AltAndALetterOpensAMenu) {
  SendKey(GDK_KEY_e, GDK_MOD1_MASK);
  GtkWidget* menu = gtk_menu_item_get_submenu(GTK_MENU_ITEM(MenuEntry(MenuBar(), {"編集"})));
  EXPECT_TRUE(WaitFor([&] { return gtk_widget_get_mapped(menu) != FALSE; }));
  gtk_menu_shell_cancel(GTK_MENU_SHELL(MenuBar()));
}

}  // namespace
