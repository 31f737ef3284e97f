#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "Constant.h"
#include "PtrnData.h"
#include "app/Menus.h"
#include "tests/road/RoadTest.h"

namespace {

using nlohmann::json;

// Where an item is taken once it is drawn, again once it is reshaped, and where its last copy is.
// One-point items are not reshaped.
struct Grips {
  POINT Pick;
  POINT Handle;
  POINT Body;
  POINT LastCopy;
};
// Dragged out from (41, 42) to (138, 101), two-point items snap to (40, 44) - (140, 100).
constexpr Grips Box = {{64, 44}, {140, 100}, {64, 44}, {396, 80}};
constexpr Grips Line = {{90, 72}, {140, 100}, {105, 83}, {438, 120}};
constexpr Grips Ellipse = {{125, 52}, {140, 72}, {152, 52}, {485, 88}};
constexpr Grips Text = {{139, 108}, {-1, -1}, {139, 108}, {471, 145}};

// How the user reaches types and item commands.
enum Way { ByMenuBar, ByRightButton };

constexpr gint CopyX = 150;
constexpr gint CopyY = 10;

json CopyOf(json item, bool twoPoints) {
  json& parm = item["Parm"];
  for (const gsize slot : twoPoints ? std::vector<gsize>{0, 2} : std::vector<gsize>{0}) {
    parm[slot] = parm[slot].get<gint>() + CopyX;
  }
  for (const gsize slot : twoPoints ? std::vector<gsize>{1, 3} : std::vector<gsize>{1}) {
    parm[slot] = parm[slot].get<gint>() + CopyY;
  }
  item["ID_No"] = 8;
  return item;
}

class FifteenTypes : public RoadTest {
 protected:
  // The whole way of an item: chosen, dragged out, filled in, registered, picked, reshaped, moved,
  // registered, copied in a row, the last copy deleted, all saved.
  void Walk(const std::string& type, const Grips& grips, Way way,
            const std::function<void(const Panel&)>& fillIn, const std::string& expected) {
    Play([&] {
      NewLayout(640, 480);
      ChooseType(type, way);
      DragOnCanvas(41, 42, 138, 101);
      FillIn(Panel(type), fillIn);
      Command(type, way, " 登録");
      Reshape(grips);
      Command(type, way, " 登録");
      CopyTwice(type, grips, way);
      ClickCanvas(grips.LastCopy.x, grips.LastCopy.y);
      EXPECT_TRUE(See([] { return PtrnNo == 2; }));
      Command(type, way, " 削除");
      EXPECT_TRUE(See([] { return GetPtrnCount() == 2; }));
      SaveByKey();
    });
    const json item = json::parse(expected);
    EXPECT_EQ(Saved(LayoutName)["Items"],
              json::array({item, CopyOf(item, PtrnDataType[item["Type"].get<gint>()] != 0)}));
  }

 private:
  static void ChooseType(const std::string& type, Way way) {
    if (way == ByRightButton) ClickCanvas(400, 300, RightButton);
    if (way == ByRightButton) {
      ChooseMenu(PopupMenu[0], {type});
    } else {
      ChooseMenu(MenuBar(), {"編集", type});
    }
    EXPECT_NE(SeeWindow(type), nullptr) << type;
  }

  static void FillIn(const Panel& panel, const std::function<void(const Panel&)>& fillIn) {
    panel.Choose({"処理種別"}, 2);
    panel.Enter(Cell{"識別コード"}, "PUMP_A");
    panel.Enter(Cell{"識別コード", 1, 0, 1}, 5);
    fillIn(panel);
  }

  // The item commands: buttons of the panel, or the same words in the right-button menu.
  static void Command(const std::string& type, Way way, const std::string& word) {
    if (way == ByMenuBar) {
      Panel(type).Press(word + " ");
      return;
    }
    ClickCanvas(400, 400, RightButton);
    ChooseMenu(PopupMenu[1], {word + "   "});
  }

  static void Reshape(const Grips& grips) {
    ClickCanvas(grips.Pick.x, grips.Pick.y);
    EXPECT_TRUE(See([] { return PtrnMode == ModeSelected && PtrnNo == 0; }));
    if (grips.Handle.x >= 0) {
      DragOnCanvas(grips.Handle.x, grips.Handle.y, grips.Handle.x + 31, grips.Handle.y + 22);
    }
    DragOnCanvas(grips.Body.x, grips.Body.y, grips.Body.x + 33, grips.Body.y + 17);
  }

  static void CopyTwice(const std::string& type, const Grips& grips, Way way) {
    ClickCanvas(grips.LastCopy.x - 2 * CopyX, grips.LastCopy.y - 2 * CopyY);
    EXPECT_TRUE(See([] { return PtrnMode == ModeSelected && PtrnNo == 0; })) << "not picked";
    Command(type, way, " 複写");
    const Panel dialog("描画情報複写");
    dialog.Enter(Cell{"複写箇数"}, 2);
    dialog.Enter(Cell{"Ｘ方向ドット数"}, CopyX);
    dialog.Enter(Cell{"Ｙ方向ドット数"}, CopyY);
    dialog.Enter(Cell{"識別番号"}, 3);
    dialog.Press(" 複写 ");
    EXPECT_TRUE(See([] { return GetPtrnCount() == 3; }));
  }
};

TEST_F(FifteenTypes, Frame) {
  Walk(
      "矩形枠", Box, ByMenuBar,
      [](const Panel& panel) {
        panel.PickColour({"領域色", 1}, 12);
        panel.Enter(Cell{"上 境界色/枠幅", 5}, 2);
        panel.Enter(Cell{"右 境界色/枠幅", 5}, 3);
        panel.PickColour({"消去色", 1}, 30);
      },
      R"({"Type": 1, "Text1": "", "Text2": "", "Text3": "", "ID_Type": 2, "ID_Name": "",
          "ID_Code": "PUMP_A", "ID_No": 5, "UndfFlag": 0,
          "Parm": [72,60,204,140, 12,31,51,71, 13,33,53,73, 13,33,53,73, 13,33,53,73, 13,33,53,73,
                   2,1,1,3, 0,30]})");
}

TEST_F(FifteenTypes, Line) {
  Walk(
      "直線", Line, ByMenuBar,
      [](const Panel& panel) {
        panel.Choose({"線種"}, 1);
        panel.Enter(Cell{"線幅"}, 2);
        panel.PickColour({"表示色", 3}, 9);
        panel.Tick("上左");
      },
      R"({"Type": 2, "Text1": "", "Text2": "", "Text3": "", "ID_Type": 2, "ID_Name": "",
          "ID_Code": "PUMP_A", "ID_No": 5, "UndfFlag": 0,
          "Parm": [72,60,204,140, 14,34,9,74, 0,0,0,0,0, 1,1,2, 0,0,0,0,0,0,0,0,0,0,0,0, 0,10]})");
}

TEST_F(FifteenTypes, Rectangle) {
  Walk(
      "矩形", Box, ByMenuBar,
      [](const Panel& panel) {
        panel.Enter(Cell{"線幅"}, 3);
        panel.PickColour({"境界色", 2}, 27);
        panel.Tick("塗りつぶし");
        panel.Tick("下右");
        panel.Tick("TOP");
      },
      R"({"Type": 3, "Text1": "", "Text2": "", "Text3": "", "ID_Type": 2, "ID_Name": "",
          "ID_Code": "PUMP_A", "ID_No": 5, "UndfFlag": 0,
          "Parm": [72,60,204,140, 14,27,54,74, 11,31,51,71, 0,2,0,3, 0,0,0,0,0,0,0,0,0,0,0,0,
                   1,10]})");
}

TEST_F(FifteenTypes, Ellipse) {
  Walk(
      "楕円", Ellipse, ByMenuBar,
      [](const Panel& panel) {
        panel.PickColour({"領域色", 4}, 33);
        panel.PickColour({"消去色", 1}, 20);
      },
      R"({"Type": 4, "Text1": "", "Text2": "", "Text3": "", "ID_Type": 2, "ID_Name": "",
          "ID_Code": "PUMP_A", "ID_No": 5, "UndfFlag": 0,
          "Parm": [72,60,204,116, 14,34,54,74, 25,45,65,33, 1,0,0,1, 0,0,0,0,0,0,0,0,0,0,0,0,
                   0,20]})");
}

TEST_F(FifteenTypes, BarGraph) {
  Walk(
      "棒グラフ", Box, ByMenuBar,
      [](const Panel& panel) {
        panel.Tick("横");
        panel.PickColour({"外形色", 1}, 6);
        panel.Enter(Cell{"線幅/枠幅", 1}, 4);
        panel.Enter(Cell{"線幅/枠幅", 2}, 2);
        panel.Enter(Cell{"下限値/上限値", 1}, 10);
        panel.Enter(Cell{"下限値/上限値", 2}, 250);
      },
      R"({"Type": 5, "Text1": "", "Text2": "", "Text3": "", "ID_Type": 2, "ID_Name": "",
          "ID_Code": "PUMP_A", "ID_No": 5, "UndfFlag": 0,
          "Parm": [72,60,204,140, 21,41,61,81, 29,49,69,89, 6,1,4,2, 10,250, 0,0,0,0,0,0,0,0,0,0,
                   0,10]})");
}

TEST_F(FifteenTypes, FixedString) {
  Walk(
      "固定文字列", Text, ByRightButton,
      [](const Panel& panel) {
        panel.Enter(Cell{"文字列"}, "排水ポンプ");
        panel.Choose({"フォント"}, 2);
        panel.PickColour({"前景色", 1}, 8);
        panel.Tick("背景色有効");
        panel.Tick("点滅");
        panel.Tick("後で設定");
      },
      R"({"Type": 6, "Text1": "排水ポンプ", "Text2": "", "Text3": "", "ID_Type": 2, "ID_Name": "",
          "ID_Code": "PUMP_A", "ID_No": 5, "UndfFlag": 1,
          "Parm": [168,120,0,0, 8,35,55,75, 11,31,51,71, 1,1,0,2, 10,0,0,0,0,0,0,0,0,0,0,0,
                   0,10]})");
}

TEST_F(FifteenTypes, VariableString) {
  Walk(
      "可変文字列", Text, ByRightButton,
      [](const Panel& panel) {
        panel.Enter(Cell{"文字数"}, 12);
        panel.Tick("入力可");
        panel.Tick("日本語入力");
        panel.Tick("↑");
        panel.Tick("→");
      },
      R"({"Type": 7, "Text1": "", "Text2": "", "Text3": "", "ID_Type": 2, "ID_Name": "",
          "ID_Code": "PUMP_A", "ID_No": 5, "UndfFlag": 0,
          "Parm": [168,121,0,0, 18,38,58,78, 19,39,59,79, 1,0,0,1, 12,0,1,1,0,0,0,0,0,0,0,9,
                   0,10]})");
}

TEST_F(FifteenTypes, Numeric) {
  Walk(
      "数値データ", Text, ByRightButton,
      [](const Panel& panel) {
        panel.Enter(Cell{"表示桁数", 1}, 8);
        panel.Enter(Cell{"表示桁数", 2}, 2);
        panel.Tick("ゼロサプレスしない");
        panel.Tick("桁区切り使用");
        panel.Tick("↓");
      },
      R"({"Type": 8, "Text1": "", "Text2": "", "Text3": "", "ID_Type": 2, "ID_Name": "",
          "ID_Code": "PUMP_A", "ID_No": 5, "UndfFlag": 0,
          "Parm": [168,120,0,0, 18,38,58,78, 19,39,59,79, 1,0,0,2, 8,2,0,1,1,0,0,0,0,0,0,2,
                   0,10]})");
}

TEST_F(FifteenTypes, PushButton) {
  Walk(
      "ボタン", Box, ByRightButton,
      [](const Panel& panel) {
        panel.Enter(Cell{"ボタンの文字"}, "起動");
        panel.Choose({"フォント"}, 3);
        panel.Enter(Cell{"ボタンの枠幅"}, 4);
        panel.PickColour({"ボタンの表面", 1}, 12);
        panel.Tick("指定");
        panel.Enter(Cell{"ボタン文字列", 3}, 7);
      },
      R"({"Type": 9, "Text1": "起動", "Text2": "", "Text3": "", "ID_Type": 2, "ID_Name": "",
          "ID_Code": "PUMP_A", "ID_No": 5, "UndfFlag": 0,
          "Parm": [72,60,204,140, 94,95,12,96, 97,0,0,0, 0,1,7,3, 4,0,0,0,0,0,0,0,0,0,0,0,
                   0,10]})");
}

TEST_F(FifteenTypes, RadioButton) {
  Walk(
      "ラジオボタン", Text, ByRightButton,
      [](const Panel& panel) {
        panel.Enter(Cell{"ボタンの文字"}, "自動");
        panel.Enter(Cell{"識別番号"}, 3);
        panel.Tick("背景色有効");
      },
      R"({"Type": 10, "Text1": "自動", "Text2": "", "Text3": "", "ID_Type": 2, "ID_Name": "",
          "ID_Code": "PUMP_A", "ID_No": 5, "UndfFlag": 0,
          "Parm": [168,121,0,0, 15,35,11,31, 0,0,0,0, 1,0,0,1, 4,0,0,0,0,0,0,0,0,0,0,3,
                   0,10]})");
}

TEST_F(FifteenTypes, CheckBox) {
  Walk(
      "チェックボックス", Text, ByRightButton,
      [](const Panel& panel) {
        panel.Enter(Cell{"ボタンの文字"}, "確認");
        panel.PickColour({"背景色", 2}, 9);
      },
      R"({"Type": 11, "Text1": "確認", "Text2": "", "Text3": "", "ID_Type": 2, "ID_Name": "",
          "ID_Code": "PUMP_A", "ID_No": 5, "UndfFlag": 0,
          "Parm": [168,121,0,0, 15,35,11,9, 0,0,0,0, 0,0,0,1, 4,0,0,0,0,0,0,0,0,0,0,0,
                   0,10]})");
}

TEST_F(FifteenTypes, Bitmap) {
  const std::string pictures = Folder.Path() + "/home/pictures";
  std::filesystem::create_directories(pictures);
  std::filesystem::copy_file(TEST_SOURCE_DIR "/data/artwork/bitmap/logo.png",
                             pictures + "/valve.png");
  g_setenv("HOME", (Folder.Path() + "/home").c_str(), TRUE);
  Walk(
      "ビットマップ", Box, ByMenuBar,
      [](const Panel& panel) {
        Click(panel.Control({"ビットマップ名", 4}, GTK_TYPE_BUTTON));
        const Panel chooser("画像ファイル選択");
        ClickRow(chooser.Window(), "pictures");
        ClickRow(chooser.Window(), "valve.png");
        chooser.Press(" 選択 ");
        EXPECT_TRUE(SeeGone("画像ファイル選択"));
        panel.PickColour({"透過色", 1}, 7);
        panel.Tick("有効");
      },
      R"({"Type": 12, "Text1": "valve.png", "Text2": "", "Text3": "", "ID_Type": 2, "ID_Name": "",
          "ID_Code": "PUMP_A", "ID_No": 5, "UndfFlag": 0,
          "Parm": [72,60,204,140, 7,1,0,0, 0,0,0,0, 0,0,0,0, 0,0,0,0,0,0,0,0,0,0,0,0,
                   0,10]})");
}

TEST_F(FifteenTypes, Mark) {
  Walk(
      "マーク", Box, ByRightButton,
      [](const Panel& panel) {
        panel.PickMark({"マーク", 1}, 13);
        panel.PickColour({"前景色", 2}, 8);
        panel.Tick("背景色有効");
      },
      R"({"Type": 13, "Text1": "", "Text2": "", "Text3": "", "ID_Type": 2, "ID_Name": "",
          "ID_Code": "PUMP_A", "ID_No": 5, "UndfFlag": 0,
          "Parm": [72,60,204,140, 15,8,55,75, 11,31,51,71, 1,0,0,13, 100,100,100,0,0,0,0,0,0,0,0,0,
                   0,10]})");
}

TEST_F(FifteenTypes, ScrollBar) {
  Walk(
      "スクロールバー", Box, ByMenuBar,
      [](const Panel& panel) {
        panel.Tick("水平方向");
        panel.Tick("ダブル");
        panel.Enter(Cell{"表示/データ量", 1}, 20);
        panel.Enter(Cell{"表示/データ量", 2}, 300);
        panel.Enter(Cell{"移動量", 3}, 15);
        panel.Tick(Cell{"ファンクションキー"});
      },
      R"({"Type": 14, "Text1": "", "Text2": "", "Text3": "", "ID_Type": 2, "ID_Name": "",
          "ID_Code": "PUMP_A", "ID_No": 5, "UndfFlag": 0,
          "Parm": [72,60,204,140, 94,95,4,93, 1,1,0,0, 0,0,0,2, 20,300,1,10,15,0,0,0,0,0,1,1,
                   0,10]})");
}

TEST_F(FifteenTypes, SpinButton) {
  Walk(
      "スピンボタン", Box, ByMenuBar,
      [](const Panel& panel) {
        panel.Enter(Cell{"下限/上限値", 1}, 5);
        panel.Enter(Cell{"下限/上限値", 2}, 95);
      },
      R"({"Type": 15, "Text1": "", "Text2": "", "Text3": "", "ID_Type": 2, "ID_Name": "",
          "ID_Code": "PUMP_A", "ID_No": 5, "UndfFlag": 0,
          "Parm": [72,60,204,140, 0,0,0,0, 0,0,0,0, 0,0,0,0, 5,95,0,0,0,0,0,0,0,0,0,0, 0,10]})");
}

}  // namespace
