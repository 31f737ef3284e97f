// The parameters of a project.
#include "layout/Parameters.h"
#include "layout/ProjectSlots.h"
#include "layout/model/types/Ranges.h"
#include "support/ConstantLists.h"

using namespace Ranges;
using enum Spread;

namespace {

// What can be entered is all that is accepted.
constexpr std::array<Limit, 2> Within(const ValueRange& range, const gchar* text) {
  return {{{range.Least, NoMessage, text, {}, range.Most}}};
}

constexpr const gchar* LanguageTexts[] = {"１ヶ国", "２ヶ国", "３ヶ国", ""};
constexpr const gchar* ColourSystemTexts[] = {"２系統", "４系統", ""};

constexpr Parameter ProjectRows[] = {
    {NAMED_SLOT(ProjectSlot, DisplaySize), One, "画面の解像度", ChoiceOf(DispSizeList)},
    {NAMED_SLOT(ProjectSlot, Languages), One, "多国籍言語対応", ChoiceOf(LanguageTexts)},
    {NAMED_SLOT(ProjectSlot, ColourSystems), One, "表示色切替え", ChoiceOf(ColourSystemTexts)},
};

constexpr Parameter ParentRows[] = {
    {NAMED_SLOT(ParentSlot, TitleHeight), One, "タイトル領域 高さ", Thickness,
     Within(Thickness, "タイトル領域の高さ (設定範囲 0 〜 99)")},
    {NAMED_SLOT(ParentSlot, TitleColour), One, "タイトル領域 前景色", Colour},
    {NAMED_SLOT(ParentSlot, TitleAreaColour), One, "タイトル領域 背景色", Colour},
    {NAMED_SLOT(ParentSlot, TitleFont), One, "タイトル文字フォント", Font},
    {NAMED_SLOT(ParentSlot, TitleCentred), One, "表示位置", TitlePosition},
    {NAMED_SLOT(ParentSlot, LogoShown), One, "ロゴマーク", Switch},
    {NAMED_SLOT(ParentSlot, HardCopyShown), One, "ハードコピーボタン", Switch},
    {NAMED_SLOT(ParentSlot, VersionScreen), One, "バージョン情報画面", Switch},
    {NAMED_SLOT(ParentSlot, DebugScreen), One, "デバッグ画面", Switch},
    {NAMED_SLOT(ParentSlot, DateFormat), One, "日付・時刻表示形式", ChoiceOf(CalnFomtList)},
    {NAMED_SLOT(ParentSlot, DateFont), One, "日付・時刻 文字フォント", Font},
    {NAMED_SLOT(ParentSlot, WorkAreaColour), One, "作業領域 背景色", Colour},
    {NAMED_SLOT(ParentSlot, ButtonAreaHeight), One, "ボタン領域 高さ", Thickness,
     Within(Thickness, "ボタン領域の高さ (設定範囲 0 〜 99)")},
    {NAMED_SLOT(ParentSlot, ButtonAreaColour), One, "ボタン領域 背景色", Colour},
};

constexpr Parameter ChildRows[] = {
    {NAMED_SLOT(ChildSlot, TitleHeight), One, "タイトル領域 高さ", Thickness,
     Within(Thickness, "タイトル領域の高さ (設定範囲 0 〜 99)")},
    {NAMED_SLOT(ChildSlot, TitleColour), One, "タイトル領域 前景色", Colour},
    {NAMED_SLOT(ChildSlot, TitleAreaColour), One, "タイトル領域 背景色", Colour},
    {NAMED_SLOT(ChildSlot, TitleFont), One, "タイトル文字フォント", Font},
    {NAMED_SLOT(ChildSlot, TitleCentred), One, "表示位置", TitlePosition},
    {NAMED_SLOT(ChildSlot, WorkAreaColour), One, "作業領域 背景色", Colour},
    {NAMED_SLOT(ChildSlot, FrameWidth), One, "外枠 枠幅", Thickness,
     Within(Thickness, "外形枠幅 (設定範囲 0 〜 99)")},
    {NAMED_SLOT(ChildSlot, FrameColour), One, "外枠 枠色", Colour},
    {NAMED_SLOT(ChildSlot, Width), One, "領域の大きさ Ｘ", LayoutDots},
    {NAMED_SLOT(ChildSlot, Height), One, "領域の大きさ Ｙ", LayoutDots},
};

constexpr Parameter CommonRows[] = {
    {NAMED_SLOT(CommonSlot, MouseCursor), One, "マウスカーソル形状", MouseCursor},
    {NAMED_SLOT(CommonSlot, KeyColour), One, "キー入力時 前景色", Colour},
    {NAMED_SLOT(CommonSlot, KeyBackColour), One, "キー入力時 背景色", Colour},
    {NAMED_SLOT(CommonSlot, GridX), One, "方眼表示 縱", GridInterval},
    {NAMED_SLOT(CommonSlot, GridY), One, "方眼表示 横", GridInterval},
    {NAMED_SLOT(CommonSlot, GridColour), One, "方眼表示 表示色", Colour},
};

}  // namespace

std::span<const Parameter> ProjectParameters() {
  return ProjectRows;
}

std::span<const Parameter> ParentParameters() {
  return ParentRows;
}

std::span<const Parameter> ChildParameters() {
  return ChildRows;
}

std::span<const Parameter> CommonParameters() {
  return CommonRows;
}
