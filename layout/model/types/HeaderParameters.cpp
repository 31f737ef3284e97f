// The parameters of a layout header.
#include "layout/ItemSlots.h"
#include "layout/Parameters.h"
#include "layout/model/types/Ranges.h"
#include "support/ConstantLists.h"

using namespace Ranges;
using enum Spread;

namespace {

constexpr std::array<Limit, 2> AtLeast(gint least, const gchar* text) {
  return {{{least, NoMessage, text}}};
}

constexpr const gchar* LayoutKinds[] = {"親ウィンドウ", "子ウィンドウ", "その他", ""};
constexpr const gchar* Zooms[] = {"500%", "200%", "100%", "75%", "50%", ""};

constexpr Parameter Parm1Rows[] = {
    {NAMED_SLOT(HedrSlot, Kind), One, "種別", ChoiceOf(LayoutKinds)},
    {NAMED_SLOT(HedrSlot, Width), One, "領域の大きさ Ｘ", LayoutDots,
     AtLeast(1, "Ｘ方向 領域の大きさ")},
    {NAMED_SLOT(HedrSlot, Height), One, "領域の大きさ Ｙ", LayoutDots,
     AtLeast(1, "Ｙ方向 領域の大きさ")},
    {NAMED_SLOT(HedrSlot, DisplaySize), One, "画面の解像度", ChoiceOf(DispSizeList)},
    {NAMED_SLOT(HedrSlot, TitlePosition), One, "表示位置", TitlePosition},
    {NAMED_SLOT(HedrSlot, WindowX), One, "画面の表示位置 Ｘ", LayoutDots,
     AtLeast(0, "Ｘ方向 表示開始位置")},
    {NAMED_SLOT(HedrSlot, WindowY), One, "画面の表示位置 Ｙ", LayoutDots,
     AtLeast(0, "Ｙ方向 表示開始位置")},
    {NAMED_SLOT(HedrSlot, Fixed), One, "移動不可", Switch},
    {NAMED_SLOT(HedrSlot, TitleHeight), One, "タイトル領域 高さ", Thickness,
     AtLeast(0, "タイトル領域の高さ")},
    {NAMED_SLOT(HedrSlot, TitleColour), One, "タイトル領域 表示色", Colour},
    {NAMED_SLOT(HedrSlot, TitleAreaColour), One, "タイトル領域 領域色", Colour},
    {NAMED_SLOT(HedrSlot, TitleFont), One, "タイトル領域 フォント", Font},
    {NAMED_SLOT(HedrSlot, TitleCentred), One, "タイトル領域 表示位置", TitlePosition},
    {NAMED_SLOT(HedrSlot, LogoShown), One, "ロゴマーク", Switch},
    {NAMED_SLOT(HedrSlot, HardCopyShown), One, "ハードコピーボタン", Switch},
    {NAMED_SLOT(HedrSlot, VersionScreen), One, "バージョン情報画面", Switch},
    {NAMED_SLOT(HedrSlot, DebugScreen), One, "デバッグ画面", Switch},
    {NAMED_SLOT(HedrSlot, DateFormat), One, "日付・時刻表示形式", ChoiceOf(CalnFomtList)},
    {NAMED_SLOT(HedrSlot, DateFont), One, "日付・時刻 文字フォント", Font},
    {NAMED_SLOT(HedrSlot, WorkAreaColour), One, "作業領域 背景色", Colour},
    {NAMED_SLOT(HedrSlot, Gradation), One, "グラデュエーション", Switch},
    {NAMED_SLOT(HedrSlot, ButtonAreaHeight), One, "ボタン領域 高さ", Thickness,
     AtLeast(0, "ボタン領域の高さ")},
    {NAMED_SLOT(HedrSlot, ButtonAreaColour), One, "ボタン領域 領域色", Colour},
    {NAMED_SLOT(HedrSlot, FrameWidth), One, "子ウィンドウ 枠幅", Thickness},
    {NAMED_SLOT(HedrSlot, FrameColour), One, "子ウィンドウ 枠色", Colour},
    {NAMED_SLOT(HedrSlot, MouseCursor), One, "マウスカーソル形状", MouseCursor},
    {NAMED_SLOT(HedrSlot, ParentInput), One, "親ウィンドウで入力可", Switch},
    {NAMED_SLOT(HedrSlot, KeyColour), One, "キー入力時 前景色", Colour},
    {NAMED_SLOT(HedrSlot, KeyBackColour), One, "キー入力時 背景色", Colour},
    {NAMED_SLOT(HedrSlot, KeepAsIs), One, "自動更新不要", Switch},
};

constexpr Parameter Parm2Rows[] = {
    {NAMED_SLOT(ViewSlot, Zoom), One, "ズーム", ChoiceOf(Zooms)},
    {NAMED_SLOT(ViewSlot, GridShown), One, "方眼表示", Switch},
    {NAMED_SLOT(ViewSlot, GridX), One, "方眼 縱", GridInterval},
    {NAMED_SLOT(ViewSlot, GridY), One, "方眼 横", GridInterval},
    {NAMED_SLOT(ViewSlot, GridColour), One, "方眼 表示色", Colour},
    {NAMED_SLOT(ViewSlot, StartScreen), One, "起動時画面", Switch},
    {NAMED_SLOT(ViewSlot, StopScreen), One, "終了時画面", Switch},
};

}  // namespace

std::span<const Parameter> HeaderParameters() {
  return Parm1Rows;
}

std::span<const Parameter> ViewParameters() {
  return Parm2Rows;
}
