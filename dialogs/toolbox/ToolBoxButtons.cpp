// Rows of the tool box pages of the buttons. The figure in a name is the number of languages shown.
#include "dialogs/toolbox/ToolBoxRows.h"
#include "dialogs/toolbox/ToolBoxTables.h"

DLG_STRING ToolButn1_String[] = {Label(2, "ボタンの文字"),
                                 Label(3, "フォント"),
                                 Label(4, "ボタンの枠幅"),
                                 Label(5, "左上/右下枠"),
                                 Label(6, "ボタンの表面"),
                                 Label(7, "ボタンの文字"),
                                 Label(8, "消去色"),
                                 Label(9, "ボタン文字列"),
                                 Label(10, "ファンクションキー"),
                                 EndString};
DLG_EDITBOX ToolButn1_Edit[] = {Entry(2, PtrnData.Text1, false), EndEditBox};
DLG_NUMRBOX ToolButn1_Numr[] = {Number(4, 1, Parm(ButtonSlot::BorderWidth), 99),
                                Number(9, 3, Parm(ButtonSlot::TextOffset), 99), EndNumrBox};
DLG_COMBOBOX ToolButn1_Combo[] = {Choice(3, Parm(ButtonSlot::Font), FontNameList), EndComboBox};
DLG_RADIOBUTN ToolButn1_Radio[] = {Radio(9, 1, 1, Parm(ButtonSlot::TextPlacement), 0, "中央"),
                                   Radio(9, 2, 2, Parm(ButtonSlot::TextPlacement), 1, "指定"),
                                   EndRadioButn};
DLG_COLRDATA ToolButn1_Colr[] = {Colour(5, 1, Parm(ButtonSlot::TopLeftColour)),
                                 Colour(5, 2, Parm(ButtonSlot::BottomRightColour)),
                                 Colour(6, 1, Parm(ButtonSlot::FaceColour)),
                                 Colour(7, 1, Parm(ButtonSlot::TextColour)),
                                 Colour(7, 2, Parm(ButtonSlot::TextColour + 1)),
                                 Colour(8, 1, Parm(ItemSlot::EraseColour)),
                                 EndColrData};
DLG_STRING ToolButn2_String[] = {Label(2, "ボタンの文字１"),
                                 Label(3, "ボタンの文字２"),
                                 Label(4, "フォント"),
                                 Label(5, "ボタンの枠幅"),
                                 Label(6, "左上/右下枠"),
                                 Label(7, "ボタンの表面"),
                                 Label(8, "ボタンの文字"),
                                 Label(9, "消去色"),
                                 Label(10, "ボタン文字列"),
                                 Label(11, "ファンクションキー"),
                                 EndString};
DLG_EDITBOX ToolButn2_Edit[] = {Entry(2, PtrnData.Text1, false), Entry(3, PtrnData.Text2, false),
                                EndEditBox};
DLG_NUMRBOX ToolButn2_Numr[] = {Number(5, 1, Parm(ButtonSlot::BorderWidth), 99),
                                Number(10, 3, Parm(ButtonSlot::TextOffset), 99), EndNumrBox};
DLG_COMBOBOX ToolButn2_Combo[] = {Choice(4, Parm(ButtonSlot::Font), FontNameList), EndComboBox};
DLG_RADIOBUTN ToolButn2_Radio[] = {Radio(10, 1, 1, Parm(ButtonSlot::TextPlacement), 0, "中央"),
                                   Radio(10, 2, 2, Parm(ButtonSlot::TextPlacement), 1, "指定"),
                                   EndRadioButn};
DLG_COLRDATA ToolButn2_Colr[] = {Colour(6, 1, Parm(ButtonSlot::TopLeftColour)),
                                 Colour(6, 2, Parm(ButtonSlot::BottomRightColour)),
                                 Colour(7, 1, Parm(ButtonSlot::FaceColour)),
                                 Colour(8, 1, Parm(ButtonSlot::TextColour)),
                                 Colour(8, 2, Parm(ButtonSlot::TextColour + 1)),
                                 Colour(0, 1, Parm(ItemSlot::EraseColour)),
                                 EndColrData};
DLG_STRING ToolButn3_String[] = {
    Label(2, "ボタンの文字１"), Label(3, "ボタンの文字２"),      Label(4, "ボタンの文字３"),
    Label(5, "フォント"),       Label(6, "ボタンの枠幅"),        Label(7, "左上/右下枠"),
    Label(8, "ボタンの表面"),   Label(9, "ボタンの文字"),        Label(10, "消去色"),
    Label(11, "ボタン文字列"),  Label(12, "ファンクションキー"), EndString};
DLG_EDITBOX ToolButn3_Edit[] = {Entry(2, PtrnData.Text1, false), Entry(3, PtrnData.Text2, false),
                                Entry(4, PtrnData.Text3, false), EndEditBox};
DLG_NUMRBOX ToolButn3_Numr[] = {Number(6, 1, Parm(ButtonSlot::BorderWidth), 99),
                                Number(11, 3, Parm(ButtonSlot::TextOffset), 99), EndNumrBox};
DLG_COMBOBOX ToolButn3_Combo[] = {Choice(5, Parm(ButtonSlot::Font), FontNameList), EndComboBox};
DLG_RADIOBUTN ToolButn3_Radio[] = {Radio(11, 1, 1, Parm(ButtonSlot::TextPlacement), 0, "中央"),
                                   Radio(11, 2, 2, Parm(ButtonSlot::TextPlacement), 1, "指定"),
                                   EndRadioButn};
DLG_COLRDATA ToolButn3_Colr[] = {Colour(7, 1, Parm(ButtonSlot::TopLeftColour)),
                                 Colour(7, 2, Parm(ButtonSlot::BottomRightColour)),
                                 Colour(8, 1, Parm(ButtonSlot::FaceColour)),
                                 Colour(9, 1, Parm(ButtonSlot::TextColour)),
                                 Colour(9, 2, Parm(ButtonSlot::TextColour + 1)),
                                 Colour(10, 1, Parm(ItemSlot::EraseColour)),
                                 EndColrData};

DLG_STRING ToolRdio1_String[] = {
    Label(1, "ボタンの文字"), Label(2, "フォント"), Label(3, "前景色"), Label(4, "背景色"),
    Label(5, "消去色"),       Label(6, "識別番号"), EndString};
DLG_EDITBOX ToolRdio1_Edit[] = {Entry(1, PtrnData.Text1, false), EndEditBox};
DLG_NUMRBOX ToolRdio1_Numr[] = {Number(6, 1, Parm(ChoiceSlot::Number), 99), EndNumrBox};
DLG_COMBOBOX ToolRdio1_Combo[] = {Choice(2, Parm(ChoiceSlot::Font), FontNameList), EndComboBox};
DLG_CHECKBUTN ToolRdio1_Check[] = {Check(4, 3, 4, Parm(ChoiceSlot::BackEnabled), "背景色有効"),
                                   EndCheckButn};
DLG_COLRDATA ToolRdio1_Colr[] = {
    Colour(3, 1, Parm(ChoiceSlot::TextColour)), Colour(3, 2, Parm(ChoiceSlot::TextColour + 1)),
    Colour(4, 1, Parm(ChoiceSlot::BackColour)), Colour(4, 2, Parm(ChoiceSlot::BackColour + 1)),
    Colour(5, 1, Parm(ItemSlot::EraseColour)),  EndColrData};
DLG_STRING ToolRdio2_String[] = {Label(1, "ボタンの文字１"), Label(2, "ボタンの文字２"),
                                 Label(3, "フォント"),       Label(4, "前景色"),
                                 Label(5, "背景色"),         Label(6, "消去色"),
                                 Label(7, "識別番号"),       EndString};
DLG_EDITBOX ToolRdio2_Edit[] = {Entry(1, PtrnData.Text1, false), Entry(2, PtrnData.Text2, false),
                                EndEditBox};
DLG_NUMRBOX ToolRdio2_Numr[] = {Number(7, 1, Parm(ChoiceSlot::Number), 99), EndNumrBox};
DLG_COMBOBOX ToolRdio2_Combo[] = {Choice(3, Parm(ChoiceSlot::Font), FontNameList), EndComboBox};
DLG_CHECKBUTN ToolRdio2_Check[] = {Check(5, 3, 4, Parm(ChoiceSlot::BackEnabled), "背景色有効"),
                                   EndCheckButn};
DLG_COLRDATA ToolRdio2_Colr[] = {
    Colour(4, 1, Parm(ChoiceSlot::TextColour)), Colour(4, 2, Parm(ChoiceSlot::TextColour + 1)),
    Colour(5, 1, Parm(ChoiceSlot::BackColour)), Colour(5, 2, Parm(ChoiceSlot::BackColour + 1)),
    Colour(6, 1, Parm(ItemSlot::EraseColour)),  EndColrData};
DLG_STRING ToolRdio3_String[] = {
    Label(1, "ボタンの文字１"), Label(2, "ボタンの文字２"), Label(3, "ボタンの文字３"),
    Label(4, "フォント"),       Label(5, "前景色"),         Label(6, "背景色"),
    Label(7, "消去色"),         Label(8, "識別番号"),       EndString};
DLG_EDITBOX ToolRdio3_Edit[] = {Entry(1, PtrnData.Text1, false), Entry(2, PtrnData.Text2, false),
                                Entry(3, PtrnData.Text3, false), EndEditBox};
DLG_NUMRBOX ToolRdio3_Numr[] = {Number(8, 1, Parm(ChoiceSlot::Number), 99), EndNumrBox};
DLG_COMBOBOX ToolRdio3_Combo[] = {Choice(4, Parm(ChoiceSlot::Font), FontNameList), EndComboBox};
DLG_CHECKBUTN ToolRdio3_Check[] = {Check(6, 3, 4, Parm(ChoiceSlot::BackEnabled), "背景色有効"),
                                   EndCheckButn};
DLG_COLRDATA ToolRdio3_Colr[] = {
    Colour(5, 1, Parm(ChoiceSlot::TextColour)), Colour(5, 2, Parm(ChoiceSlot::TextColour + 1)),
    Colour(6, 1, Parm(ChoiceSlot::BackColour)), Colour(6, 2, Parm(ChoiceSlot::BackColour + 1)),
    Colour(7, 1, Parm(ItemSlot::EraseColour)),  EndColrData};

DLG_STRING ToolChck1_String[] = {Label(1, "ボタンの文字"), Label(2, "フォント"), Label(3, "前景色"),
                                 Label(4, "背景色"),       Label(5, "消去色"),   EndString};
DLG_EDITBOX ToolChck1_Edit[] = {Entry(1, PtrnData.Text1, false), EndEditBox};
DLG_COMBOBOX ToolChck1_Combo[] = {Choice(2, Parm(ChoiceSlot::Font), FontNameList), EndComboBox};
DLG_CHECKBUTN ToolChck1_Check[] = {Check(4, 3, 4, Parm(ChoiceSlot::BackEnabled), "背景色有効"),
                                   EndCheckButn};
DLG_COLRDATA ToolChck1_Colr[] = {
    Colour(3, 1, Parm(ChoiceSlot::TextColour)), Colour(3, 2, Parm(ChoiceSlot::TextColour + 1)),
    Colour(4, 1, Parm(ChoiceSlot::BackColour)), Colour(4, 2, Parm(ChoiceSlot::BackColour + 1)),
    Colour(5, 1, Parm(ItemSlot::EraseColour)),  EndColrData};
DLG_STRING ToolChck2_String[] = {Label(1, "ボタンの文字１"),
                                 Label(2, "ボタンの文字２"),
                                 Label(3, "フォント"),
                                 Label(4, "前景色"),
                                 Label(5, "背景色"),
                                 Label(6, "消去色"),
                                 EndString};
DLG_EDITBOX ToolChck2_Edit[] = {Entry(1, PtrnData.Text1, false), Entry(2, PtrnData.Text2, false),
                                EndEditBox};
DLG_COMBOBOX ToolChck2_Combo[] = {Choice(3, Parm(ChoiceSlot::Font), FontNameList), EndComboBox};
DLG_CHECKBUTN ToolChck2_Check[] = {Check(5, 3, 4, Parm(ChoiceSlot::BackEnabled), "背景色有効"),
                                   EndCheckButn};
DLG_COLRDATA ToolChck2_Colr[] = {
    Colour(4, 1, Parm(ChoiceSlot::TextColour)), Colour(4, 2, Parm(ChoiceSlot::TextColour + 1)),
    Colour(5, 1, Parm(ChoiceSlot::BackColour)), Colour(5, 2, Parm(ChoiceSlot::BackColour + 1)),
    Colour(6, 1, Parm(ItemSlot::EraseColour)),  EndColrData};
DLG_STRING ToolChck3_String[] = {Label(1, "ボタンの文字１"), Label(2, "ボタンの文字２"),
                                 Label(3, "ボタンの文字３"), Label(4, "フォント"),
                                 Label(5, "前景色"),         Label(6, "背景色"),
                                 Label(7, "消去色"),         EndString};
DLG_EDITBOX ToolChck3_Edit[] = {Entry(1, PtrnData.Text1, false), Entry(2, PtrnData.Text2, false),
                                Entry(3, PtrnData.Text3, false), EndEditBox};
DLG_COMBOBOX ToolChck3_Combo[] = {Choice(4, Parm(ChoiceSlot::Font), FontNameList), EndComboBox};
DLG_CHECKBUTN ToolChck3_Check[] = {Check(6, 3, 4, Parm(ChoiceSlot::BackEnabled), "背景色有効"),
                                   EndCheckButn};
DLG_COLRDATA ToolChck3_Colr[] = {
    Colour(5, 1, Parm(ChoiceSlot::TextColour)), Colour(5, 2, Parm(ChoiceSlot::TextColour + 1)),
    Colour(6, 1, Parm(ChoiceSlot::BackColour)), Colour(6, 2, Parm(ChoiceSlot::BackColour + 1)),
    Colour(7, 1, Parm(ItemSlot::EraseColour)),  EndColrData};
