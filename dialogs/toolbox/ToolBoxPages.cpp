// Which tables make up the page of each type.
#include "dialogs/toolbox/ToolBoxPage.h"
#include "dialogs/toolbox/ToolBoxTables.h"
#include "layout/Guards.h"
#include "layout/ItemSlots.h"
#include "project/ProjectRecord.h"
#include "support/Resource.h"

namespace {

// Index = display language.
const ControlTables FixedStringTables[3] = {{.String = ToolFchr1_String,
                                             .Edit = ToolFchr1_Edit,
                                             .Combo = ToolFchr1_Combo,
                                             .Check = ToolFchr1_Check,
                                             .Colr = ToolFchr1_Colr},
                                            {.String = ToolFchr2_String,
                                             .Edit = ToolFchr2_Edit,
                                             .Combo = ToolFchr2_Combo,
                                             .Check = ToolFchr2_Check,
                                             .Colr = ToolFchr2_Colr},
                                            {.String = ToolFchr3_String,
                                             .Edit = ToolFchr3_Edit,
                                             .Combo = ToolFchr3_Combo,
                                             .Check = ToolFchr3_Check,
                                             .Colr = ToolFchr3_Colr}};
const ControlTables ButtonTables[3] = {{.String = ToolButn1_String,
                                        .Edit = ToolButn1_Edit,
                                        .Numr = ToolButn1_Numr,
                                        .Combo = ToolButn1_Combo,
                                        .Radio = ToolButn1_Radio,
                                        .Colr = ToolButn1_Colr},
                                       {.String = ToolButn2_String,
                                        .Edit = ToolButn2_Edit,
                                        .Numr = ToolButn2_Numr,
                                        .Combo = ToolButn2_Combo,
                                        .Radio = ToolButn2_Radio,
                                        .Colr = ToolButn2_Colr},
                                       {.String = ToolButn3_String,
                                        .Edit = ToolButn3_Edit,
                                        .Numr = ToolButn3_Numr,
                                        .Combo = ToolButn3_Combo,
                                        .Radio = ToolButn3_Radio,
                                        .Colr = ToolButn3_Colr}};
const ControlTables RadioButtonTables[3] = {{.String = ToolRdio1_String,
                                             .Edit = ToolRdio1_Edit,
                                             .Numr = ToolRdio1_Numr,
                                             .Combo = ToolRdio1_Combo,
                                             .Check = ToolRdio1_Check,
                                             .Colr = ToolRdio1_Colr},
                                            {.String = ToolRdio2_String,
                                             .Edit = ToolRdio2_Edit,
                                             .Numr = ToolRdio2_Numr,
                                             .Combo = ToolRdio2_Combo,
                                             .Check = ToolRdio2_Check,
                                             .Colr = ToolRdio2_Colr},
                                            {.String = ToolRdio3_String,
                                             .Edit = ToolRdio3_Edit,
                                             .Numr = ToolRdio3_Numr,
                                             .Combo = ToolRdio3_Combo,
                                             .Check = ToolRdio3_Check,
                                             .Colr = ToolRdio3_Colr}};
const ControlTables CheckBoxTables[3] = {{.String = ToolChck1_String,
                                          .Edit = ToolChck1_Edit,
                                          .Combo = ToolChck1_Combo,
                                          .Check = ToolChck1_Check,
                                          .Colr = ToolChck1_Colr},
                                         {.String = ToolChck2_String,
                                          .Edit = ToolChck2_Edit,
                                          .Combo = ToolChck2_Combo,
                                          .Check = ToolChck2_Check,
                                          .Colr = ToolChck2_Colr},
                                         {.String = ToolChck3_String,
                                          .Edit = ToolChck3_Edit,
                                          .Combo = ToolChck3_Combo,
                                          .Check = ToolChck3_Check,
                                          .Colr = ToolChck3_Colr}};

// A frame takes more tables, not more columns of one, where four colour systems are shown.
ToolBoxPage FramePage() {
  const bool four = ProjData.Parm1[2] != 0;
  return {.Title = "矩形枠",
          .Lines = 13,
          .Culms = ProjData.Parm1[1] == 0 ? 5 : 6,
          .CommonLine = 8,
          .OnePoint = 0,
          .Registers = 0,
          .Tables = {.String = ToolGbox_String,
                     .Numr = four ? ToolGbox_Numr2 : ToolGbox_Numr1,
                     .Colr = ToolGbox_Colr1},
          .MoreColours = four ? ToolGbox_Colr2 : nullptr};
}

// The page of a type without a text.
ToolBoxPage PlainPage(const gchar* title, gint lines, gint commonLine, gint onePoint,
                      bool systemColours, const ControlTables& tables) {
  return {.Title = title,
          .Lines = lines,
          .Culms = 5,
          .CommonLine = commonLine,
          .OnePoint = onePoint,
          .Registers = 0,
          .Tables = tables,
          .SystemColours = systemColours};
}

// The page of a type with a text: it grows by one line with each further language, and its browse
// button always serves the first text.
ToolBoxPage TextPage(const gchar* title, gint lines, gint commonLine, gint onePoint,
                     bool systemColours, const ControlTables (&tables)[3], gint browseLine) {
  const gint language = TextIndex(Language);
  return {.Title = title,
          .Lines = language + lines,
          .Culms = 5,
          .CommonLine = language + commonLine,
          .OnePoint = onePoint,
          .Registers = 1,
          .Tables = tables[language],
          .Browse = {browseLine, language + 4, ToolBox_Text1, tables[0].Edit},
          .SystemColours = systemColours};
}

ToolBoxPage BitmapPage() {
  ToolBoxPage page = PlainPage("ビットマップ", 11, 5, 0, false,
                               {.String = ToolBmap_String,
                                .Edit = ToolBmap_Edit,
                                .Check = ToolBmap_Check,
                                .Colr = ToolBmap_Colr});
  page.Browse = {2, 4, ToolBox_Name, ToolBmap_Edit};
  return page;
}

}  // namespace

ToolBoxPage PageOfType(gint type) {
  switch (type) {
    case TypeFrame:
      return FramePage();
    case TypeLine:
      return PlainPage("直線", 13, 7, 0, true,
                       {.String = ToolLine_String,
                        .Numr = ToolLine_Numr,
                        .Combo = ToolLine_Combo,
                        .Radio = ToolLine_Radio,
                        .Colr = ToolLine_Colr});
    case TypeRectangle:
      return PlainPage("矩形", 13, 8, 0, true,
                       {.String = ToolRect_String,
                        .Numr = ToolRect_Numr,
                        .Radio = ToolRect_Radio,
                        .Check = ToolRect_Check,
                        .Colr = ToolRect_Colr});
    case TypeEllipse:
      return PlainPage("楕円", 13, 8, 0, true,
                       {.String = ToolCrcl_String,
                        .Numr = ToolCrcl_Numr,
                        .Radio = ToolCrcl_Radio,
                        .Check = ToolCrcl_Check,
                        .Colr = ToolCrcl_Colr});
    case TypeBarGraph:
      return PlainPage("棒グラフ", 13, 9, 0, true,
                       {.String = ToolBarg_String,
                        .Numr = ToolBarg_Numr,
                        .Radio = ToolBarg_Radio,
                        .Colr = ToolBarg_Colr});
    case TypeFixedString:
      return TextPage("固定文字列", 14, 7, 1, true, FixedStringTables, 1);
    case TypeVariableString:
      return PlainPage("可変文字列", 16, 10, 1, true,
                       {.String = ToolChar_String,
                        .Numr = ToolChar_Numr,
                        .Combo = ToolChar_Combo,
                        .Check = ToolChar_Check,
                        .Colr = ToolChar_Colr});
    case TypeNumeric:
      return PlainPage("数値データ", 18, 12, 1, true,
                       {.String = ToolNumr_String,
                        .Numr = ToolNumr_Numr,
                        .Combo = ToolNumr_Combo,
                        .Check = ToolNumr_Check,
                        .Colr = ToolNumr_Colr});
    case TypeButton:
      return TextPage("ボタン", 18, 11, 0, false, ButtonTables, 2);
    case TypeRadioButton:
      return TextPage("ラジオボタン", 14, 7, 1, false, RadioButtonTables, 1);
    case TypeCheckBox:
      return TextPage("チェックボックス", 13, 6, 1, false, CheckBoxTables, 1);
    case TypeBitmap:
      return BitmapPage();
    case TypeMark:
      return PlainPage("マーク", 13, 7, 0, true,
                       {.String = ToolMark_String,
                        .Check = ToolMark_Check,
                        .Colr = ToolMark_Colr,
                        .Mark = ToolMark_Mark});
    case TypeScrollBar:
      return PlainPage("スクロールバー", 18, 12, 0, false,
                       {.String = ToolSbar_String,
                        .Numr = ToolSbar_Numr,
                        .Radio = ToolSbar_Radio,
                        .Check = ToolSbar_Check,
                        .Colr = ToolSbar_Colr});
    default:
      return PlainPage("スピンボタン", 10, 4, 0, false,
                       {.String = ToolSpin_String, .Numr = ToolSpin_Numr, .Colr = ToolSpin_Colr});
  }
}
