#include "tools/compare/FieldLabels.h"

#include <algorithm>
#include <iterator>

#include "Constant.h"
#include "layout/ItemSlots.h"

namespace {

constexpr const gchar* Switch[] = {"オフ", "オン", ""};
constexpr const gchar* LinePositions[] = {"中央", "上左", "下右", ""};
constexpr const gchar* BarDirections[] = {"縱", "横", ""};
constexpr const gchar* ScrollDirections[] = {"水平方向", "垂直方向", ""};
constexpr const gchar* TextPlacements[] = {"中央", "指定", ""};
constexpr const gchar* TitlePositions[] = {"左端", "中央", ""};
constexpr const gchar* LayoutKinds[] = {"親ウィンドウ", "子ウィンドウ", "その他", ""};
constexpr const gchar* Cursors[] = {"矢印", "十字", "砂時計", ""};
constexpr const gchar* Zooms[] = {"500%", "200%", "100%", "75%", "50%", ""};
// Bits of the four keys that leave an input field.
constexpr const gchar* CursorKeys[] = {"なし", "↑",  "↓",   "↑↓", "←",   "↑←",  "↓←",   "↑↓←", "→",
                                       "↑→",   "↓→", "↑↓→", "←→", "↑←→", "↓←→", "↑↓←→", ""};

constexpr FieldLabel Labels[] = {
    {AllTypes, "TopLayer", "TOP", Switch},
    {AllTypes, "EraseColour", "消去色", nullptr},

    {TypeFrame, "AreaColour", "領域色", nullptr},
    {TypeFrame, "TopColour", "上 境界色", nullptr},
    {TypeFrame, "BottomColour", "下 境界色", nullptr},
    {TypeFrame, "LeftColour", "左 境界色", nullptr},
    {TypeFrame, "RightColour", "右 境界色", nullptr},
    {TypeFrame, "TopWidth", "上 枠幅", nullptr},
    {TypeFrame, "BottomWidth", "下 枠幅", nullptr},
    {TypeFrame, "LeftWidth", "左 枠幅", nullptr},
    {TypeFrame, "RightWidth", "右 枠幅", nullptr},

    {TypeLine, "Colour", "表示色", nullptr},
    {TypeLine, "Position", "表示位置", LinePositions},
    {TypeLine, "Style", "線種", LineStyleList},
    {TypeLine, "Width", "線幅", nullptr},

    {TypeRectangle, "LineColour", "境界色", nullptr},
    {TypeRectangle, "FillColour", "領域色", nullptr},
    {TypeRectangle, "Filled", "塗りつぶし", Switch},
    {TypeRectangle, "Position", "表示位置", LinePositions},
    {TypeRectangle, "Width", "線幅", nullptr},

    {TypeEllipse, "LineColour", "境界色", nullptr},
    {TypeEllipse, "FillColour", "領域色", nullptr},
    {TypeEllipse, "Filled", "塗りつぶし", Switch},
    {TypeEllipse, "Position", "表示位置", LinePositions},
    {TypeEllipse, "Width", "線幅", nullptr},

    {TypeBarGraph, "BarColour", "表示色", nullptr},
    {TypeBarGraph, "BackColour", "背景色", nullptr},
    {TypeBarGraph, "OutlineColour", "外形色", nullptr},
    {TypeBarGraph, "Direction", "表示方向", BarDirections},
    {TypeBarGraph, "BarWidth", "線幅", nullptr},
    {TypeBarGraph, "OutlineWidth", "枠幅", nullptr},
    {TypeBarGraph, "LowerLimit", "下限値", nullptr},
    {TypeBarGraph, "UpperLimit", "上限値", nullptr},

    {TypeFixedString, "TextColour", "前景色", nullptr},
    {TypeFixedString, "BackColour", "背景色", nullptr},
    {TypeFixedString, "BackEnabled", "背景色有効", Switch},
    {TypeFixedString, "Blinking", "点滅", Switch},
    {TypeFixedString, "Font", "フォント", nullptr},
    {TypeFixedString, "Length", "文字数", nullptr},

    {TypeVariableString, "TextColour", "前景色", nullptr},
    {TypeVariableString, "BackColour", "背景色", nullptr},
    {TypeVariableString, "BackEnabled", "背景色有効", Switch},
    {TypeVariableString, "Blinking", "点滅", Switch},
    {TypeVariableString, "Font", "フォント", nullptr},
    {TypeVariableString, "Length", "文字数", nullptr},
    {TypeVariableString, "InputAllowed", "入力可", Switch},
    {TypeVariableString, "JapaneseInput", "日本語入力", Switch},
    {TypeVariableString, "CursorKeys", "カーソル", CursorKeys},

    {TypeNumeric, "TextColour", "前景色", nullptr},
    {TypeNumeric, "BackColour", "背景色", nullptr},
    {TypeNumeric, "BackEnabled", "背景色有効", Switch},
    {TypeNumeric, "Blinking", "点滅", Switch},
    {TypeNumeric, "Font", "フォント", nullptr},
    {TypeNumeric, "Length", "表示桁数", nullptr},
    {TypeNumeric, "Decimals", "小数点以下桁数", nullptr},
    {TypeNumeric, "InputAllowed", "入力可", Switch},
    {TypeNumeric, "KeepZeros", "ゼロサプレスしない", Switch},
    {TypeNumeric, "Grouping", "桁区切り使用", Switch},
    {TypeNumeric, "Hexadecimal", "１６進数", Switch},
    {TypeNumeric, "CursorKeys", "カーソル", CursorKeys},

    {TypeButton, "TopLeftColour", "左上枠", nullptr},
    {TypeButton, "BottomRightColour", "右下枠", nullptr},
    {TypeButton, "FaceColour", "ボタンの表面", nullptr},
    {TypeButton, "TextColour", "ボタンの文字（色）", nullptr},
    {TypeButton, "TextPlacement", "ボタン文字列", TextPlacements},
    {TypeButton, "TextOffset", "ボタン文字列 位置", nullptr},
    {TypeButton, "Font", "フォント", nullptr},
    {TypeButton, "BorderWidth", "ボタンの枠幅", nullptr},

    {TypeRadioButton, "TextColour", "前景色", nullptr},
    {TypeRadioButton, "BackColour", "背景色", nullptr},
    {TypeRadioButton, "BackEnabled", "背景色有効", Switch},
    {TypeRadioButton, "Font", "フォント", nullptr},
    {TypeRadioButton, "Length", "文字数", nullptr},
    {TypeRadioButton, "Number", "識別番号（ボタン）", nullptr},

    {TypeCheckBox, "TextColour", "前景色", nullptr},
    {TypeCheckBox, "BackColour", "背景色", nullptr},
    {TypeCheckBox, "BackEnabled", "背景色有効", Switch},
    {TypeCheckBox, "Font", "フォント", nullptr},
    {TypeCheckBox, "Length", "文字数", nullptr},
    {TypeCheckBox, "Number", "識別番号（ボタン）", nullptr},

    {TypeBitmap, "TransparentColour", "透過色", nullptr},
    {TypeBitmap, "Transparent", "透過色 有効", Switch},

    {TypeMark, "MarkColour", "前景色", nullptr},
    {TypeMark, "BackColour", "背景色", nullptr},
    {TypeMark, "BackEnabled", "背景色有効", Switch},
    {TypeMark, "Blinking", "点滅", Switch},
    {TypeMark, "Mark", "マーク", nullptr},

    {TypeScrollBar, "TopLeftColour", "左上枠", nullptr},
    {TypeScrollBar, "BottomRightColour", "右下枠", nullptr},
    {TypeScrollBar, "TroughColour", "内部", nullptr},
    {TypeScrollBar, "ThumbColour", "内部（つまみ）", nullptr},
    {TypeScrollBar, "SingleArrows", "シングル", Switch},
    {TypeScrollBar, "DoubleArrows", "ダブル", Switch},
    {TypeScrollBar, "Direction", "表示方向", ScrollDirections},
    {TypeScrollBar, "FrameWidth", "枠幅", nullptr},
    {TypeScrollBar, "DisplayAmount", "表示量", nullptr},
    {TypeScrollBar, "DataAmount", "データ量", nullptr},
    {TypeScrollBar, "SingleStep", "移動量 シングル", nullptr},
    {TypeScrollBar, "DoubleStep", "移動量 ダブル", nullptr},
    {TypeScrollBar, "PageStep", "移動量 ページ", nullptr},
    {TypeScrollBar, "MouseWheel", "マウスホィール", Switch},
    {TypeScrollBar, "FunctionKeys", "ファンクションキー", Switch},

    {TypeSpinButton, "LowerLimit", "下限値", nullptr},
    {TypeSpinButton, "UpperLimit", "上限値", nullptr},

    {HeaderParm1, "Kind", "種別", LayoutKinds},
    {HeaderParm1, "Width", "領域の大きさ Ｘ", nullptr},
    {HeaderParm1, "Height", "領域の大きさ Ｙ", nullptr},
    {HeaderParm1, "DisplaySize", "画面の解像度", DispSizeList},
    {HeaderParm1, "TitlePosition", "表示位置", TitlePositions},
    {HeaderParm1, "WindowX", "画面の表示位置 Ｘ", nullptr},
    {HeaderParm1, "WindowY", "画面の表示位置 Ｙ", nullptr},
    {HeaderParm1, "Fixed", "移動不可", Switch},
    {HeaderParm1, "TitleHeight", "タイトル領域 高さ", nullptr},
    {HeaderParm1, "TitleColour", "タイトル領域 表示色", nullptr},
    {HeaderParm1, "TitleAreaColour", "タイトル領域 領域色", nullptr},
    {HeaderParm1, "TitleFont", "タイトル領域 フォント", nullptr},
    {HeaderParm1, "TitleCentred", "タイトル領域 表示位置", TitlePositions},
    {HeaderParm1, "LogoShown", "ロゴマーク", Switch},
    {HeaderParm1, "HardCopyShown", "ハードコピーボタン", Switch},
    {HeaderParm1, "VersionScreen", "バージョン情報画面", Switch},
    {HeaderParm1, "DebugScreen", "デバッグ画面", Switch},
    {HeaderParm1, "DateFormat", "日付・時刻表示形式", CalnFomtList},
    {HeaderParm1, "DateFont", "日付・時刻 文字フォント", nullptr},
    {HeaderParm1, "WorkAreaColour", "作業領域 背景色", nullptr},
    {HeaderParm1, "Gradation", "グラデュエーション", Switch},
    {HeaderParm1, "ButtonAreaHeight", "ボタン領域 高さ", nullptr},
    {HeaderParm1, "ButtonAreaColour", "ボタン領域 領域色", nullptr},
    {HeaderParm1, "FrameWidth", "子ウィンドウ 枠幅", nullptr},
    {HeaderParm1, "FrameColour", "子ウィンドウ 枠色", nullptr},
    {HeaderParm1, "MouseCursor", "マウスカーソル形状", Cursors},
    {HeaderParm1, "ParentInput", "親ウィンドウで入力可", Switch},
    {HeaderParm1, "KeyColour", "キー入力時 前景色", nullptr},
    {HeaderParm1, "KeyBackColour", "キー入力時 背景色", nullptr},
    {HeaderParm1, "KeepAsIs", "自動更新不要", Switch},

    {HeaderParm2, "Zoom", "ズーム", Zooms},
    {HeaderParm2, "GridShown", "方眼表示", Switch},
    {HeaderParm2, "GridX", "方眼 縱", GridIntvList},
    {HeaderParm2, "GridY", "方眼 横", GridIntvList},
    {HeaderParm2, "GridColour", "方眼 表示色", nullptr},
    {HeaderParm2, "StartScreen", "起動時画面", Switch},
    {HeaderParm2, "StopScreen", "終了時画面", Switch},
};

}  // namespace

const FieldLabel* LabelOf(gint owner, std::string_view slot) {
  const auto found =
      std::find_if(std::begin(Labels), std::end(Labels), [owner, slot](const FieldLabel& row) {
        return (row.Type == owner || row.Type == AllTypes) && row.Slot == slot;
      });
  return found == std::end(Labels) ? nullptr : found;
}
