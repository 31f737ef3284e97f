#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnDialog.h"
#include "app/ui/MenuRows.h"

namespace {

// Labels stand as they are, so a menu's Alt key is kept beside them.
struct TopMenu {
  const gchar* Label;
  guint AltKey;
  std::span<const MenuRow> Rows;
};

constexpr MenuRow NewLayoutRows[] = {
    Item("親ウィンドウ", PtrnDataNew, 0, &FileMenu[4], "<Control>n"),
    Item("子ウィンドウ", PtrnDataNew, 1, &FileMenu[5], "<Control><Alt>n"),
    Item("その他", PtrnDataNew, 2, &FileMenu[6], nullptr),
};

constexpr MenuRow FileRows[] = {
    Item("プロジェクトの新規作成", ProjDataNew, 0, &FileMenu[0], "<Control><Shift>n"),
    Item("プロジェクトを開く", ProjDataOpen, 0, &FileMenu[1], "<Control><Shift>o"),
    Item("プロジェクトの修正", ProjDataEdit, 0, &FileMenu[2], "<Control><Shift>e"),
    Separator,
    Item("ロジック作成", LogicDataEdit, 0, &FileMenu[3], "F9"),
    Separator,
    SubMenu("レイアウトの新規作成", NewLayoutRows),
    Item("レイアウトを開く", PtrnDataOpen, 0, &FileMenu[7], "<Control>o"),
    Item("レイアウトを閉じる", PtrnDataClose, 0, &FileMenu[8], "<Control>w"),
    Item("レイアウトの上書き保存", PtrnDataSave, 0, &FileMenu[9], "<Control>s"),
    Separator,
    Item("印刷", PtrnDataPrint, 0, &FileMenu[10], "<Control>p"),
    Separator,
    Item("修了", PtrnExit, 0, &FileMenu[11], "<Control>q"),
};

constexpr MenuRow EditRows[] = {
    Item("元に戻す", PtrnEditBack, 0, &EditMenu[0], "<Control>z"),
    Separator,
    Item("レイアウト情報設定", PtrnDataEdit, 0, &EditMenu[1], "<Control>i"),
    Item("表示色設定", EditColrData, 0, &EditMenu[2], "<Control>l"),
    Item("マーク設定", EditMarkData, 0, &EditMenu[3], "<Control>m"),
    Separator,
    Types(RowKind::GroupedTypes, PtrnSelct, PtrnSlct[0]),
};

constexpr auto ZoomRows = ZoomRowsOf(PtrnZoom, PtrnZoom1);

constexpr MenuRow UnpickableRows[] = {
    Types(RowKind::Types, PtrnUnSelct, PtrnSlct[2]),
};

constexpr MenuRow ColourRows[] = {
    Check("表示色１", PtrnColrSet, 0, &PtrnSetColr[0], "<Alt>1"),
    Check("表示色２", PtrnColrSet, 1, &PtrnSetColr[1], "<Alt>2"),
    Check("表示色３", PtrnColrSet, 2, &PtrnSetColr[2], "<Alt>3"),
    Check("表示色４", PtrnColrSet, 3, &PtrnSetColr[3], "<Alt>4"),
};

constexpr MenuRow LanguageRows[] = {
    Check("言語１", PtrnLangSet, 0, &PtrnSetLang[0], "<Control>F1"),
    Check("言語２", PtrnLangSet, 1, &PtrnSetLang[1], "<Control>F2"),
    Check("言語３", PtrnLangSet, 2, &PtrnSetLang[2], "<Control>F3"),
};

constexpr MenuRow ViewRows[] = {
    Item("再表示", PtrnRedraw, 0, &DispMenu[0], "F5"),
    Separator,
    SubMenu("ズーム", ZoomRows),
    Check("方眼表示", PtrnGrid, 0, &DispMenu[1], "<Control>g"),
    Item("方眼設定", PtrnGridSet, 0, &DispMenu[2], "<Control><Shift>g"),
    SubMenu("非検出", UnpickableRows),
    SubMenu("表示色", ColourRows),
    SubMenu("言語", LanguageRows),
};

constexpr TopMenu TopMenus[] = {
    {"ファイル", GDK_KEY_f, FileRows},
    {"編集", GDK_KEY_e, EditRows},
    {"表示", GDK_KEY_v, ViewRows},
};

GtkAccelGroup* Keys;

gboolean OpenTopMenu(GtkAccelGroup* /*group*/, GObject* /*object*/, guint /*key*/,
                     GdkModifierType /*modifiers*/, gpointer entry) {
  return gtk_widget_mnemonic_activate(GTK_WIDGET(entry), FALSE);
}

// Takes the keyboard from the main window to the tool box and back.
gboolean SwitchWindow(GtkAccelGroup* /*group*/, GObject* /*object*/, guint /*key*/,
                      GdkModifierType /*modifiers*/, gpointer /*data*/) {
  if (ToolBox == nullptr) return FALSE;
  auto* panel = GTK_WINDOW(ToolBox);
  gtk_window_present(gtk_window_is_active(panel) ? GTK_WINDOW(PtrnWnd) : panel);
  return TRUE;
}

}  // namespace

GtkAccelGroup* MainMenuKeys() {
  return Keys;
}

GtkWidget* CreateMainMenu() {
  GtkWidget* bar = gtk_menu_bar_new();
  g_set_weak_pointer(&Keys, NewKeys(bar));
  for (const TopMenu& top : TopMenus) {
    GtkWidget* menu = CreateTopMenu(bar, top.Label);
    BuildMenu(menu, top.Rows, Keys);
    GtkWidget* entry = gtk_menu_get_attach_widget(GTK_MENU(menu));
    gtk_accel_group_connect(Keys, top.AltKey, GDK_MOD1_MASK, GTK_ACCEL_LOCKED,
                            g_cclosure_new_object(G_CALLBACK(OpenTopMenu), G_OBJECT(entry)));
  }
  gtk_accel_group_connect(Keys, GDK_KEY_F6, GdkModifierType{}, GTK_ACCEL_LOCKED,
                          g_cclosure_new(G_CALLBACK(SwitchWindow), nullptr, nullptr));
  gtk_widget_show(bar);
  return bar;
}
