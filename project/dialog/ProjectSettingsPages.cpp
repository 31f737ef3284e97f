#include "project/dialog/ProjectSettingsPages.h"

#include "dialogs/kit/Rows.h"
#include "layout/Parameters.h"
#include "layout/ProjectRecord.h"
#include "layout/ProjectSlots.h"
#include "support/Resource.h"

using namespace Rows;

namespace {

// One of the lists of numbers of the settings, with the rows of its parameters.
struct NumberList {
  gsize Offset;
  std::span<const Parameter> (*Parameters)();

  gint* At(gint slot) const {
    return IntAt(&EditData, Offset + static_cast<gsize>(slot) * sizeof(gint));
  }
  const Parameter& Of(gint slot) const { return *FindParameter(Parameters(), slot); }
};
constexpr NumberList General{offsetof(PROJDATA, Parm1), ProjectParameters};
constexpr NumberList Parent{offsetof(PROJDATA, Parm2), ParentParameters};
constexpr NumberList Child{offsetof(PROJDATA, Parm3), ChildParameters};
constexpr NumberList Common{offsetof(PROJDATA, Parm4), CommonParameters};

// Rows with the ranges, the texts of the values and the labels of their parameters.
DLG_STRING Label(gint line, const NumberList& list, gint slot) {
  return Rows::Label(line, list.Of(slot).Label);
}

DLG_NUMRBOX Number(gint line, gint culm, const NumberList& list, gint slot, const gchar* caption) {
  const ValueRange& range = list.Of(slot).Range;
  return Rows::Number(line, culm, list.At(slot), range.Least, range.Most, caption);
}

DLG_COMBOBOX Choice(gint line, gint culm1, gint culm2, const NumberList& list, gint slot) {
  return Rows::Choice(line, culm1, culm2, list.At(slot), list.Of(slot).Range.Values);
}

DLG_RADIOBUTN Radio(gint line, gint culm, const NumberList& list, gint slot, gint value) {
  return Rows::Radio(line, culm, list.At(slot), value, list.Of(slot).Range.Values[value]);
}

DLG_CHECKBUTN Switch(gint line, gint culm1, gint culm2, const NumberList& list, gint slot) {
  return Check(line, culm1, culm2, list.At(slot), list.Of(slot).Label);
}

}  // namespace

// General.

DLG_STRING ProjPage1_String[] = {Label(0, "プロジェクト名"),
                                 Label(1, "プロジェクト情報格納先フォルダー"),
                                 Label(2, "ロジック情報格納先フォルダー"),
                                 Label(3, General, ProjectSlot::DisplaySize),
                                 Label(4, General, ProjectSlot::Languages),
                                 Label(5, General, ProjectSlot::ColourSystems),
                                 EndString};
DLG_EDITBOX ProjPage1_Edit[] = {Entry(0, 1, 3, EditName, 80, false),
                                Entry(1, 1, 3, EditPath, 256, true),
                                Entry(2, 1, 3, EditData.ProgPath, 256, true), EndEditBox};
DLG_COMBOBOX ProjPage1_Combo[] = {Choice(3, 1, 2, General, ProjectSlot::DisplaySize), EndComboBox};
DLG_RADIOBUTN ProjPage1_Radio[] = {Radio(4, 1, General, ProjectSlot::Languages, 0),
                                   Radio(4, 2, General, ProjectSlot::Languages, 1),
                                   Radio(4, 3, General, ProjectSlot::Languages, 2),
                                   Radio(5, 1, General, ProjectSlot::ColourSystems, 0),
                                   Radio(5, 2, General, ProjectSlot::ColourSystems, 1),
                                   EndRadioButn};

// Parent window.

DLG_STRING ProjPage21_String[] = {
    Label(2, Parent, ParentSlot::TitleFont), Label(3, Parent, ParentSlot::TitleCentred),
    Label(4, Parent, ParentSlot::DateFormat), Label(5, "文字フォント"), EndString};
DLG_NUMRBOX ProjPage21_Numr[] = {Number(0, 0, Parent, ParentSlot::TitleHeight, "高さ"), EndNumrBox};
DLG_COLRDATA ProjPage21_Colr[] = {Colour(0, 1, Parent.At(ParentSlot::TitleColour), "前景色"),
                                  Colour(0, 2, Parent.At(ParentSlot::TitleAreaColour), "背景色"),
                                  EndColrData};
DLG_CHECKBUTN ProjPage21_Check[] = {Switch(1, 0, 0, Parent, ParentSlot::LogoShown),
                                    Switch(6, 0, 0, Parent, ParentSlot::VersionScreen),
                                    Switch(6, 1, 1, Parent, ParentSlot::DebugScreen),
                                    Switch(6, 2, 3, Parent, ParentSlot::HardCopyShown),
                                    EndCheckButn};
DLG_EDITBOX ProjPage21_Edit[] = {Entry(1, 1, 2, EditData.LogoName, 20, true), EndEditBox};
DLG_COMBOBOX ProjPage21_Combo[] = {Choice(2, 1, 3, Parent.At(ParentSlot::TitleFont), FontNameList),
                                   Choice(4, 1, 3, Parent, ParentSlot::DateFormat),
                                   Choice(5, 1, 3, Parent.At(ParentSlot::DateFont), FontNameList),
                                   EndComboBox};
DLG_RADIOBUTN ProjPage21_Radio[] = {Radio(3, 1, Parent, ParentSlot::TitleCentred, 0),
                                    Radio(3, 2, Parent, ParentSlot::TitleCentred, 1), EndRadioButn};
DLG_COLRDATA ProjPage22_Colr[] = {Colour(0, 0, Parent.At(ParentSlot::WorkAreaColour), "背景色"),
                                  EndColrData};
DLG_NUMRBOX ProjPage23_Numr[] = {Number(0, 0, Parent, ParentSlot::ButtonAreaHeight, "高さ"),
                                 EndNumrBox};
DLG_COLRDATA ProjPage23_Colr[] = {Colour(0, 1, Parent.At(ParentSlot::ButtonAreaColour), "背景色"),
                                  EndColrData};

// Child window.

DLG_STRING ProjPage31_String[] = {Label(1, Child, ChildSlot::TitleFont),
                                  Label(2, Child, ChildSlot::TitleCentred), EndString};
DLG_NUMRBOX ProjPage31_Numr[] = {Number(0, 0, Child, ChildSlot::TitleHeight, "高さ"), EndNumrBox};
DLG_COLRDATA ProjPage31_Colr[] = {Colour(0, 1, Child.At(ChildSlot::TitleColour), "前景色"),
                                  Colour(0, 2, Child.At(ChildSlot::TitleAreaColour), "背景色"),
                                  EndColrData};
DLG_COMBOBOX ProjPage31_Combo[] = {Choice(1, 1, 3, Child.At(ChildSlot::TitleFont), FontNameList),
                                   EndComboBox};
DLG_RADIOBUTN ProjPage31_Radio[] = {Radio(2, 1, Child, ChildSlot::TitleCentred, 0),
                                    Radio(2, 2, Child, ChildSlot::TitleCentred, 1), EndRadioButn};
DLG_COLRDATA ProjPage32_Colr[] = {Colour(0, 0, Child.At(ChildSlot::WorkAreaColour), "背景色"),
                                  EndColrData};
DLG_NUMRBOX ProjPage33_Numr[] = {Number(0, 0, Child, ChildSlot::FrameWidth, "枠幅"), EndNumrBox};
DLG_COLRDATA ProjPage33_Colr[] = {Colour(0, 1, Child.At(ChildSlot::FrameColour), "枠色  "),
                                  EndColrData};

// Other.

DLG_RADIOBUTN ProjPage41_Radio[] = {Radio(0, 0, Common, CommonSlot::MouseCursor, 0),
                                    Radio(0, 1, Common, CommonSlot::MouseCursor, 1),
                                    Radio(0, 2, Common, CommonSlot::MouseCursor, 2), EndRadioButn};
DLG_COLRDATA ProjPage42_Colr[] = {Colour(0, 0, Common.At(CommonSlot::KeyColour), "前景色"),
                                  Colour(0, 1, Common.At(CommonSlot::KeyBackColour), "背景色"),
                                  EndColrData};
DLG_STRING ProjPage43_String[] = {Label(0, "縱"), Label(0, "横", 2), EndString};
DLG_COMBOBOX ProjPage43_Combo[] = {Choice(0, 1, 1, Common, CommonSlot::GridX),
                                   Choice(0, 3, 3, Common, CommonSlot::GridY), EndComboBox};
DLG_COLRDATA ProjPage43_Colr[] = {Colour(0, 4, Common.At(CommonSlot::GridColour), "表示色"),
                                  EndColrData};

std::span<const ProjectPage> ProjectPages() {
  static const ProjectFrame EditProjPage1[] = {{nullptr,
                                                {.String = ProjPage1_String,
                                                 .Edit = ProjPage1_Edit,
                                                 .Combo = ProjPage1_Combo,
                                                 .Radio = ProjPage1_Radio}}};
  static const ProjectFrame EditProjPage2[] = {
      {"タイトル領域",
       {.String = ProjPage21_String,
        .Edit = ProjPage21_Edit,
        .Numr = ProjPage21_Numr,
        .Combo = ProjPage21_Combo,
        .Radio = ProjPage21_Radio,
        .Check = ProjPage21_Check,
        .Colr = ProjPage21_Colr}},
      {"作業領域", {.Colr = ProjPage22_Colr}},
      {"ボタン領域", {.Numr = ProjPage23_Numr, .Colr = ProjPage23_Colr}}};
  static const ProjectFrame EditProjPage3[] = {
      {"タイトル領域",
       {.String = ProjPage31_String,
        .Numr = ProjPage31_Numr,
        .Combo = ProjPage31_Combo,
        .Radio = ProjPage31_Radio,
        .Colr = ProjPage31_Colr}},
      {"作業領域", {.Colr = ProjPage32_Colr}},
      {"外枠", {.Numr = ProjPage33_Numr, .Colr = ProjPage33_Colr}}};
  static const ProjectFrame EditProjPage4[] = {
      {Common.Of(CommonSlot::MouseCursor).Label, {.Radio = ProjPage41_Radio}},
      {"キー入力時", {.Colr = ProjPage42_Colr}},
      {"方眼表示",
       {.String = ProjPage43_String, .Combo = ProjPage43_Combo, .Colr = ProjPage43_Colr}}};
  static const ProjectPage pages[] = {{"全般", EditProjPage1},
                                      {"親ウィンドウ", EditProjPage2},
                                      {"子ウィンドウ", EditProjPage3},
                                      {"その他", EditProjPage4}};
  return pages;
}
