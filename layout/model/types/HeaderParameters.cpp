// The parameters of a layout header.
#include "Constant.h"
#include "layout/ItemSlots.h"
#include "layout/Parameters.h"
#include "layout/model/types/Messages.h"
#include "layout/model/types/Ranges.h"

using namespace Ranges;

namespace {

constexpr const gchar* TitlePositions[] = {"左端", "中央", ""};
constexpr const gchar* LayoutKinds[] = {"親ウィンドウ", "子ウィンドウ", "その他", ""};
constexpr const gchar* Cursors[] = {"矢印", "十字", "砂時計", ""};
constexpr const gchar* Zooms[] = {"500%", "200%", "100%", "75%", "50%", ""};

constexpr ValueRange TitlePosition = ChoiceOf(TitlePositions);
constexpr ValueRange GridInterval = ChoiceOf(GridIntvList);
constexpr ValueRange LayoutDots{Unit::Dots, 10, 9999};

constexpr Parameter Parm1Rows[] = {
    {NAMED_SLOT(HedrSlot, Kind), Spread::One, "種別", ChoiceOf(LayoutKinds)},
    {NAMED_SLOT(HedrSlot, Width),
     Spread::One,
     "領域の大きさ Ｘ",
     LayoutDots,
     {{{1, NoMessage, "Ｘ方向 領域の大きさ"}}}},
    {NAMED_SLOT(HedrSlot, Height),
     Spread::One,
     "領域の大きさ Ｙ",
     LayoutDots,
     {{{1, NoMessage, "Ｙ方向 領域の大きさ"}}}},
    {NAMED_SLOT(HedrSlot, DisplaySize), Spread::One, "画面の解像度", ChoiceOf(DispSizeList)},
    {NAMED_SLOT(HedrSlot, TitlePosition), Spread::One, "表示位置", TitlePosition},
    {NAMED_SLOT(HedrSlot, WindowX),
     Spread::One,
     "画面の表示位置 Ｘ",
     LayoutDots,
     {{{0, NoMessage, "Ｘ方向 表示開始位置"}}}},
    {NAMED_SLOT(HedrSlot, WindowY),
     Spread::One,
     "画面の表示位置 Ｙ",
     LayoutDots,
     {{{0, NoMessage, "Ｙ方向 表示開始位置"}}}},
    {NAMED_SLOT(HedrSlot, Fixed), Spread::One, "移動不可", Switch},
    {NAMED_SLOT(HedrSlot, TitleHeight),
     Spread::One,
     "タイトル領域 高さ",
     Thickness,
     {{{0, NoMessage, "タイトル領域の高さ"}}}},
    {NAMED_SLOT(HedrSlot, TitleColour), Spread::One, "タイトル領域 表示色", Colour},
    {NAMED_SLOT(HedrSlot, TitleAreaColour), Spread::One, "タイトル領域 領域色", Colour},
    {NAMED_SLOT(HedrSlot, TitleFont), Spread::One, "タイトル領域 フォント", Font},
    {NAMED_SLOT(HedrSlot, TitleCentred), Spread::One, "タイトル領域 表示位置", TitlePosition},
    {NAMED_SLOT(HedrSlot, LogoShown), Spread::One, "ロゴマーク", Switch},
    {NAMED_SLOT(HedrSlot, HardCopyShown), Spread::One, "ハードコピーボタン", Switch},
    {NAMED_SLOT(HedrSlot, VersionScreen), Spread::One, "バージョン情報画面", Switch},
    {NAMED_SLOT(HedrSlot, DebugScreen), Spread::One, "デバッグ画面", Switch},
    {NAMED_SLOT(HedrSlot, DateFormat), Spread::One, "日付・時刻表示形式", ChoiceOf(CalnFomtList)},
    {NAMED_SLOT(HedrSlot, DateFont), Spread::One, "日付・時刻 文字フォント", Font},
    {NAMED_SLOT(HedrSlot, WorkAreaColour), Spread::One, "作業領域 背景色", Colour},
    {NAMED_SLOT(HedrSlot, Gradation), Spread::One, "グラデュエーション", Switch},
    {NAMED_SLOT(HedrSlot, ButtonAreaHeight),
     Spread::One,
     "ボタン領域 高さ",
     Thickness,
     {{{0, NoMessage, "ボタン領域の高さ"}}}},
    {NAMED_SLOT(HedrSlot, ButtonAreaColour), Spread::One, "ボタン領域 領域色", Colour},
    {NAMED_SLOT(HedrSlot, FrameWidth), Spread::One, "子ウィンドウ 枠幅", Thickness},
    {NAMED_SLOT(HedrSlot, FrameColour), Spread::One, "子ウィンドウ 枠色", Colour},
    {NAMED_SLOT(HedrSlot, MouseCursor), Spread::One, "マウスカーソル形状", ChoiceOf(Cursors)},
    {NAMED_SLOT(HedrSlot, ParentInput), Spread::One, "親ウィンドウで入力可", Switch},
    {NAMED_SLOT(HedrSlot, KeyColour), Spread::One, "キー入力時 前景色", Colour},
    {NAMED_SLOT(HedrSlot, KeyBackColour), Spread::One, "キー入力時 背景色", Colour},
    {NAMED_SLOT(HedrSlot, KeepAsIs), Spread::One, "自動更新不要", Switch},
};

constexpr Parameter Parm2Rows[] = {
    {NAMED_SLOT(ViewSlot, Zoom), Spread::One, "ズーム", ChoiceOf(Zooms)},
    {NAMED_SLOT(ViewSlot, GridShown), Spread::One, "方眼表示", Switch},
    {NAMED_SLOT(ViewSlot, GridX), Spread::One, "方眼 縱", GridInterval},
    {NAMED_SLOT(ViewSlot, GridY), Spread::One, "方眼 横", GridInterval},
    {NAMED_SLOT(ViewSlot, GridColour), Spread::One, "方眼 表示色", Colour},
    {NAMED_SLOT(ViewSlot, StartScreen), Spread::One, "起動時画面", Switch},
    {NAMED_SLOT(ViewSlot, StopScreen), Spread::One, "終了時画面", Switch},
};

}  // namespace

std::span<const Parameter> HeaderParameters() {
  return Parm1Rows;
}

std::span<const Parameter> ViewParameters() {
  return Parm2Rows;
}
