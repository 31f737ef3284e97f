#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "ProjData.h"
#include "PtrnMisc.h"
#include "app/Menus.h"
#include "app/Window.h"
#include "tests/road/RoadTest.h"

namespace {

// From an empty layout to the code of the project, with every question on the way.
class ToTheCode : public RoadTest {
 protected:
  ToTheCode() {
    std::filesystem::create_directory(Home);
    g_setenv("HOME", Home.c_str(), TRUE);
  }
  std::string Generated(const std::string& name) const {
    const std::string path = Logic + "/" + name;
    EXPECT_TRUE(std::filesystem::is_regular_file(path)) << path;
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

  const std::string Home = Folder.Path() + "/home";
  const std::string Logic = Home + "/logic";
};

void Generate() {
  ChooseMenu(MenuBar(), {"ファイル", "ロジック作成"});
}

void DrawLamp() {
  ChooseMenu(MenuBar(), {"編集", "矩形"});
  DragOnCanvas(40, 40, 120, 80);
  const Panel panel("矩形");
  panel.Enter(Cell{"識別コード"}, "ROAD_LAMP");
  panel.Enter(Cell{"識別コード", 1, 0, 1}, 5);
  panel.Press(" 登録 ");
  EXPECT_TRUE(See([] { return GetPtrnCount() == 1; }));
}

void DrawNumber() {
  ChooseMenu(MenuBar(), {"編集", "数値データ"});
  ClickCanvas(200, 200);
  const Panel panel("数値データ");
  panel.Enter(Cell{"表示桁数", 1}, 6);
  panel.Enter(Cell{"識別コード"}, "ROAD_VALUE");
  panel.Press(" 登録 ");
  EXPECT_TRUE(See([] { return GetPtrnCount() == 2; }));
}

// The layout is there already, so its name is asked about.
void CloseAndSave() {
  ChooseMenu(MenuBar(), {"ファイル", "レイアウトを閉じる"});
  Panel("レイアウトを閉じる").Press(" 保存 ");
  Panel("レイアウト保存").Press(" はい ");
  EXPECT_TRUE(SeeGone("レイアウトを閉じる"));
  EXPECT_TRUE(See([] { return PtrnFlag == 0 && PtrnDraw_Mode == 0; }));
}

void ChooseLogicFolder(const std::string& path) {
  ChooseMenu(MenuBar(), {"ファイル", "プロジェクトの修正"});
  const Panel settings("プロジェクトの新規作成");
  Click(settings.Control({"ロジック情報格納先フォルダー", 4}, GTK_TYPE_BUTTON));
  const Panel chooser("プログラム領域へのパス");
  EnterText(Look([&] {
              return FindWidget(chooser.Window(),
                                [](GtkWidget* widget) { return GTK_IS_ENTRY(widget) != FALSE; });
            }),
            path);
  chooser.Press(" 選択 ");
  Panel("フォルダー選択").Press(" はい ");
  EXPECT_TRUE(SeeGone("プログラム領域へのパス"));
  settings.Press(" 登録 ");
  EXPECT_TRUE(SeeGone("プロジェクトの新規作成"));
}

TEST_F(ToTheCode, ThroughEveryDialog) {
  ProjData.ProgPath[0] = '\0';
  Play([this] {
    NewLayout(640, 480);
    EXPECT_FALSE(Look([] { return gtk_widget_get_sensitive(FileMenu[3]) != FALSE; }));
    DrawLamp();
    SaveByKey();
    DrawNumber();
    CloseAndSave();
    Generate();
    Panel("ロジック編集").Press(" 確認 ");
    EXPECT_TRUE(SeeGone("ロジック編集"));
    ChooseLogicFolder(Logic);
    Generate();
    Settle();
  });
  EXPECT_EQ(Saved(LayoutName)["DataCount"], 2);

  // SYSTEM has the slots 0 to 99; the codes of all layouts follow in the order of their bytes.
  const std::string codes = Generated("VarnixCode.h");
  EXPECT_EQ(codes.find("#define     SYSTEM                  0\n"), 0u);
  const auto lamp = codes.find("#define     ROAD_LAMP               ");
  const auto value = codes.find("#define     ROAD_VALUE              ");
  ASSERT_NE(lamp, std::string::npos) << codes;
  ASSERT_NE(value, std::string::npos) << codes;
  const auto number = [&](std::size_t line) { return std::stoi(codes.substr(line + 36)); };
  EXPECT_EQ(number(value), number(lamp) + 6) << "numbers 0 to 5 of the lamp";

  EXPECT_EQ(Generated("WaterWorks.h"), "#include\t<VarnixPack.h>\n#include\t\"VarnixCode.h\"\n");
  const std::string source = Generated("WaterWorks.cpp");
  EXPECT_NE(source.find("CPtrnDisp*  GetPtrnWnd (const char* name)\n"), std::string::npos);
  EXPECT_NE(source.find("\tif (strcmp(name, \"" + EucFromUtf8(LayoutName).value() + "\")"),
            std::string::npos);
  EXPECT_NE(Generated("WaterWorks.ini").find("[VARNIXPACK]"), std::string::npos);
}

}  // namespace
