// Which tables make up the page of each type.
#include "ProjData.h"
#include "dialogs/ToolBoxPage.h"
#include "dialogs/ToolBoxTables.h"
#include "layout/Guards.h"
#include "layout/ItemSlots.h"
#include "support/Resource.h"

namespace {

bool FourSystems() {
  return ProjData.Parm1[2] != 0;
}

ToolBoxPage FramePage() {
  ToolBoxPage page = {"矩形枠", 13, ProjData.Parm1[1] == 0 ? 5 : 6, 8, 0, 0};
  page.String = ToolGbox_String;
  page.Numr = FourSystems() ? ToolGbox_Numr2 : ToolGbox_Numr1;
  page.Colr1 = ToolGbox_Colr1;
  page.Colr2 = FourSystems() ? ToolGbox_Colr2 : nullptr;
  return page;
}

ToolBoxPage LinePage() {
  ToolBoxPage page = {"直線", 13, 5, 7, 0, 0};
  page.String = ToolLine_String;
  page.Numr = ToolLine_Numr;
  page.Combo = ToolLine_Combo;
  page.Radio = ToolLine_Radio;
  page.Colr1 = ToolLine_Colr;
  page.SystemColours = true;
  return page;
}

ToolBoxPage RectanglePage() {
  ToolBoxPage page = {"矩形", 13, 5, 8, 0, 0};
  page.String = ToolRect_String;
  page.Numr = ToolRect_Numr;
  page.Radio = ToolRect_Radio;
  page.Check = ToolRect_Check;
  page.Colr1 = ToolRect_Colr;
  page.SystemColours = true;
  return page;
}

ToolBoxPage EllipsePage() {
  ToolBoxPage page = {"楕円", 13, 5, 8, 0, 0};
  page.String = ToolCrcl_String;
  page.Numr = ToolCrcl_Numr;
  page.Radio = ToolCrcl_Radio;
  page.Check = ToolCrcl_Check;
  page.Colr1 = ToolCrcl_Colr;
  page.SystemColours = true;
  return page;
}

ToolBoxPage BarGraphPage() {
  ToolBoxPage page = {"棒グラフ", 13, 5, 9, 0, 0};
  page.String = ToolBarg_String;
  page.Numr = ToolBarg_Numr;
  page.Radio = ToolBarg_Radio;
  page.Colr1 = ToolBarg_Colr;
  page.SystemColours = true;
  return page;
}

ToolBoxPage FixedStringPage(gint language) {
  static const struct {
    DLG_STRING* String;
    DLG_EDITBOX* Edit;
    DLG_COMBOBOX* Combo;
    DLG_CHECKBUTN* Check;
    DLG_COLRDATA* Colr;
  } Tables[3] = {
      {ToolFchr1_String, ToolFchr1_Edit, ToolFchr1_Combo, ToolFchr1_Check, ToolFchr1_Colr},
      {ToolFchr2_String, ToolFchr2_Edit, ToolFchr2_Combo, ToolFchr2_Check, ToolFchr2_Colr},
      {ToolFchr3_String, ToolFchr3_Edit, ToolFchr3_Combo, ToolFchr3_Check, ToolFchr3_Colr}};
  const auto& tables = Tables[language];
  ToolBoxPage page = {"固定文字列", language + 14, 5, language + 7, 1, 1};
  page.String = tables.String;
  page.Edit = tables.Edit;
  page.Combo = tables.Combo;
  page.Check = tables.Check;
  page.Colr1 = tables.Colr;
  page.SystemColours = true;
  page.Browse = {1, language + 4, ToolBox_Text1, ToolFchr1_Edit};
  return page;
}

ToolBoxPage VariableStringPage() {
  ToolBoxPage page = {"可変文字列", 16, 5, 10, 1, 0};
  page.String = ToolChar_String;
  page.Numr = ToolChar_Numr;
  page.Combo = ToolChar_Combo;
  page.Check = ToolChar_Check;
  page.Colr1 = ToolChar_Colr;
  page.SystemColours = true;
  return page;
}

ToolBoxPage NumericPage() {
  ToolBoxPage page = {"数値データ", 18, 5, 12, 1, 0};
  page.String = ToolNumr_String;
  page.Numr = ToolNumr_Numr;
  page.Combo = ToolNumr_Combo;
  page.Check = ToolNumr_Check;
  page.Colr1 = ToolNumr_Colr;
  page.SystemColours = true;
  return page;
}

ToolBoxPage ButtonPage(gint language) {
  static const struct {
    DLG_STRING* String;
    DLG_EDITBOX* Edit;
    DLG_NUMRBOX* Numr;
    DLG_COMBOBOX* Combo;
    DLG_RADIOBUTN* Radio;
    DLG_COLRDATA* Colr;
  } Tables[3] = {{ToolButn1_String, ToolButn1_Edit, ToolButn1_Numr, ToolButn1_Combo,
                  ToolButn1_Radio, ToolButn1_Colr},
                 {ToolButn2_String, ToolButn2_Edit, ToolButn2_Numr, ToolButn2_Combo,
                  ToolButn2_Radio, ToolButn2_Colr},
                 {ToolButn3_String, ToolButn3_Edit, ToolButn3_Numr, ToolButn3_Combo,
                  ToolButn3_Radio, ToolButn3_Colr}};
  const auto& tables = Tables[language];
  ToolBoxPage page = {"ボタン", language + 18, 5, language + 11, 0, 1};
  page.String = tables.String;
  page.Edit = tables.Edit;
  page.Numr = tables.Numr;
  page.Combo = tables.Combo;
  page.Radio = tables.Radio;
  page.Colr1 = tables.Colr;
  page.Browse = {2, language + 4, ToolBox_Text1, ToolButn1_Edit};
  return page;
}

ToolBoxPage RadioButtonPage(gint language) {
  static const struct {
    DLG_STRING* String;
    DLG_EDITBOX* Edit;
    DLG_NUMRBOX* Numr;
    DLG_COMBOBOX* Combo;
    DLG_CHECKBUTN* Check;
    DLG_COLRDATA* Colr;
  } Tables[3] = {{ToolRdio1_String, ToolRdio1_Edit, ToolRdio1_Numr, ToolRdio1_Combo,
                  ToolRdio1_Check, ToolRdio1_Colr},
                 {ToolRdio2_String, ToolRdio2_Edit, ToolRdio2_Numr, ToolRdio2_Combo,
                  ToolRdio2_Check, ToolRdio2_Colr},
                 {ToolRdio3_String, ToolRdio3_Edit, ToolRdio3_Numr, ToolRdio3_Combo,
                  ToolRdio3_Check, ToolRdio3_Colr}};
  const auto& tables = Tables[language];
  ToolBoxPage page = {"ラジオボタン", language + 14, 5, language + 7, 1, 1};
  page.String = tables.String;
  page.Edit = tables.Edit;
  page.Numr = tables.Numr;
  page.Combo = tables.Combo;
  page.Check = tables.Check;
  page.Colr1 = tables.Colr;
  page.Browse = {1, language + 4, ToolBox_Text1, ToolRdio1_Edit};
  return page;
}

ToolBoxPage CheckBoxPage(gint language) {
  static const struct {
    DLG_STRING* String;
    DLG_EDITBOX* Edit;
    DLG_COMBOBOX* Combo;
    DLG_CHECKBUTN* Check;
    DLG_COLRDATA* Colr;
  } Tables[3] = {
      {ToolChck1_String, ToolChck1_Edit, ToolChck1_Combo, ToolChck1_Check, ToolChck1_Colr},
      {ToolChck2_String, ToolChck2_Edit, ToolChck2_Combo, ToolChck2_Check, ToolChck2_Colr},
      {ToolChck3_String, ToolChck3_Edit, ToolChck3_Combo, ToolChck3_Check, ToolChck3_Colr}};
  const auto& tables = Tables[language];
  ToolBoxPage page = {"チェックボックス", language + 13, 5, language + 6, 1, 1};
  page.String = tables.String;
  page.Edit = tables.Edit;
  page.Combo = tables.Combo;
  page.Check = tables.Check;
  page.Colr1 = tables.Colr;
  page.Browse = {1, language + 4, ToolBox_Text1, ToolChck1_Edit};
  return page;
}

ToolBoxPage BitmapPage() {
  ToolBoxPage page = {"ビットマップ", 11, 5, 5, 0, 0};
  page.String = ToolBmap_String;
  page.Edit = ToolBmap_Edit;
  page.Check = ToolBmap_Check;
  page.Colr1 = ToolBmap_Colr;
  page.Browse = {2, 4, ToolBox_Name, ToolBmap_Edit};
  return page;
}

ToolBoxPage MarkPage() {
  ToolBoxPage page = {"マーク", 13, 5, 7, 0, 0};
  page.String = ToolMark_String;
  page.Check = ToolMark_Check;
  page.Colr1 = ToolMark_Colr;
  page.Mark = ToolMark_Mark;
  page.SystemColours = true;
  return page;
}

ToolBoxPage ScrollBarPage() {
  ToolBoxPage page = {"スクロールバー", 18, 5, 12, 0, 0};
  page.String = ToolSbar_String;
  page.Numr = ToolSbar_Numr;
  page.Radio = ToolSbar_Radio;
  page.Check = ToolSbar_Check;
  page.Colr1 = ToolSbar_Colr;
  return page;
}

ToolBoxPage SpinButtonPage() {
  ToolBoxPage page = {"スピンボタン", 10, 5, 4, 0, 0};
  page.String = ToolSpin_String;
  page.Numr = ToolSpin_Numr;
  page.Colr1 = ToolSpin_Colr;
  return page;
}

}  // namespace

ToolBoxPage PageOfType(gint type) {
  const gint language = TextIndex(Language);
  switch (type) {
    case TypeFrame:
      return FramePage();
    case TypeLine:
      return LinePage();
    case TypeRectangle:
      return RectanglePage();
    case TypeEllipse:
      return EllipsePage();
    case TypeBarGraph:
      return BarGraphPage();
    case TypeFixedString:
      return FixedStringPage(language);
    case TypeVariableString:
      return VariableStringPage();
    case TypeNumeric:
      return NumericPage();
    case TypeButton:
      return ButtonPage(language);
    case TypeRadioButton:
      return RadioButtonPage(language);
    case TypeCheckBox:
      return CheckBoxPage(language);
    case TypeBitmap:
      return BitmapPage();
    case TypeMark:
      return MarkPage();
    case TypeScrollBar:
      return ScrollBarPage();
    default:
      return SpinButtonPage();
  }
}
