// Rows of the tool box pages of strings and numbers. The figure in a name is the number of
// languages shown.
#include "dialogs/toolbox/ToolBoxRows.h"
#include "dialogs/toolbox/ToolBoxTables.h"

DLG_STRING ToolFchr1_String[] = {Label(1, "文字列"), Label(2, "フォント"), Label(3, "前景色"),
                                 Label(4, "背景色"), Label(6, "消去色"),   EndString};
DLG_EDITBOX ToolFchr1_Edit[] = {Entry(1, PtrnData.Text1, false), EndEditBox};
DLG_COMBOBOX ToolFchr1_Combo[] = {Choice(2, Parm(TextSlot::Font), FontNameList), EndComboBox};
DLG_CHECKBUTN ToolFchr1_Check[] = {Check(5, 1, 2, Parm(TextSlot::BackEnabled), "背景色有効"),
                                   Check(5, 3, 4, Parm(TextSlot::Blinking), "点滅"), EndCheckButn};
DLG_COLRDATA ToolFchr1_Colr[] = {
    Colour(3, 1, Parm(TextSlot::TextColour)),     Colour(3, 2, Parm(TextSlot::TextColour + 1)),
    Colour(3, 3, Parm(TextSlot::TextColour + 2)), Colour(3, 4, Parm(TextSlot::TextColour + 3)),
    Colour(4, 1, Parm(TextSlot::BackColour)),     Colour(4, 2, Parm(TextSlot::BackColour + 1)),
    Colour(4, 3, Parm(TextSlot::BackColour + 2)), Colour(4, 4, Parm(TextSlot::BackColour + 3)),
    Colour(6, 1, Parm(ItemSlot::EraseColour)),    EndColrData};
DLG_STRING ToolFchr2_String[] = {Label(1, "文字列"), Label(2, "フォント１"), Label(3, "フォント２"),
                                 Label(4, "前景色"), Label(5, "背景色"),     Label(7, "消去色"),
                                 EndString};
DLG_EDITBOX ToolFchr2_Edit[] = {Entry(1, PtrnData.Text1, false), Entry(2, PtrnData.Text2, false),
                                EndEditBox};
DLG_COMBOBOX ToolFchr2_Combo[] = {Choice(3, Parm(TextSlot::Font), FontNameList), EndComboBox};
DLG_CHECKBUTN ToolFchr2_Check[] = {Check(6, 1, 2, Parm(TextSlot::BackEnabled), "背景色有効"),
                                   Check(6, 3, 4, Parm(TextSlot::Blinking), "点滅"), EndCheckButn};
DLG_COLRDATA ToolFchr2_Colr[] = {
    Colour(4, 1, Parm(TextSlot::TextColour)),     Colour(4, 2, Parm(TextSlot::TextColour + 1)),
    Colour(4, 3, Parm(TextSlot::TextColour + 2)), Colour(4, 4, Parm(TextSlot::TextColour + 3)),
    Colour(5, 1, Parm(TextSlot::BackColour)),     Colour(5, 2, Parm(TextSlot::BackColour + 1)),
    Colour(5, 3, Parm(TextSlot::BackColour + 2)), Colour(5, 4, Parm(TextSlot::BackColour + 3)),
    Colour(7, 1, Parm(ItemSlot::EraseColour)),    EndColrData};
DLG_STRING ToolFchr3_String[] = {
    Label(1, "文字列"), Label(2, "フォント１"), Label(3, "フォント２"), Label(4, "フォント３"),
    Label(5, "前景色"), Label(6, "背景色"),     Label(8, "消去色"),     EndString};
DLG_EDITBOX ToolFchr3_Edit[] = {Entry(1, PtrnData.Text1, false), Entry(2, PtrnData.Text2, false),
                                Entry(3, PtrnData.Text3, false), EndEditBox};
DLG_COMBOBOX ToolFchr3_Combo[] = {Choice(4, Parm(TextSlot::Font), FontNameList), EndComboBox};
DLG_CHECKBUTN ToolFchr3_Check[] = {Check(7, 1, 2, Parm(TextSlot::BackEnabled), "背景色有効"),
                                   Check(7, 3, 4, Parm(TextSlot::Blinking), "点滅"), EndCheckButn};
DLG_COLRDATA ToolFchr3_Colr[] = {
    Colour(5, 1, Parm(TextSlot::TextColour)),     Colour(5, 2, Parm(TextSlot::TextColour + 1)),
    Colour(5, 3, Parm(TextSlot::TextColour + 2)), Colour(5, 4, Parm(TextSlot::TextColour + 3)),
    Colour(6, 1, Parm(TextSlot::BackColour)),     Colour(6, 2, Parm(TextSlot::BackColour + 1)),
    Colour(6, 3, Parm(TextSlot::BackColour + 2)), Colour(6, 4, Parm(TextSlot::BackColour + 3)),
    Colour(8, 1, Parm(ItemSlot::EraseColour)),    EndColrData};

DLG_STRING ToolChar_String[] = {Label(1, "文字数"), Label(2, "フォント"), Label(3, "前景色"),
                                Label(4, "背景色"), Label(6, "消去色"),   Label(9, "カーソル"),
                                EndString};
DLG_NUMRBOX ToolChar_Numr[] = {Number(1, 1, Parm(TextSlot::Length), 99), EndNumrBox};
DLG_COMBOBOX ToolChar_Combo[] = {Choice(2, Parm(TextSlot::Font), FontNameList), EndComboBox};
DLG_CHECKBUTN ToolChar_Check[] = {Check(5, 1, 2, Parm(TextSlot::BackEnabled), "背景色有効"),
                                  Check(5, 3, 4, Parm(TextSlot::Blinking), "点滅"),
                                  Check(7, 1, 2, Parm(TextSlot::InputAllowed), "入力可"),
                                  Check(8, 1, 2, Parm(TextSlot::JapaneseInput), "日本語入力"),
                                  Check(9, 1, 1, &CusrUp, "↑"),
                                  Check(9, 2, 2, &CusrDown, "↓"),
                                  Check(9, 3, 3, &CusrLeft, "←"),
                                  Check(9, 4, 4, &CusrRight, "→"),
                                  EndCheckButn};
DLG_COLRDATA ToolChar_Colr[] = {
    Colour(3, 1, Parm(TextSlot::TextColour)),     Colour(3, 2, Parm(TextSlot::TextColour + 1)),
    Colour(3, 3, Parm(TextSlot::TextColour + 2)), Colour(3, 4, Parm(TextSlot::TextColour + 3)),
    Colour(4, 1, Parm(TextSlot::BackColour)),     Colour(4, 2, Parm(TextSlot::BackColour + 1)),
    Colour(4, 3, Parm(TextSlot::BackColour + 2)), Colour(4, 4, Parm(TextSlot::BackColour + 3)),
    Colour(6, 1, Parm(ItemSlot::EraseColour)),    EndColrData};

DLG_STRING ToolNumr_String[] = {
    Label(1, "表示桁数"), Label(2, "フォント"),  Label(3, "前景色"), Label(4, "背景色"),
    Label(6, "消去色"),   Label(11, "カーソル"), EndString};
DLG_NUMRBOX ToolNumr_Numr[] = {Number(1, 1, Parm(TextSlot::Length), 99),
                               Number(1, 2, Parm(TextSlot::Decimals), 99), EndNumrBox};
DLG_COMBOBOX ToolNumr_Combo[] = {Choice(2, Parm(TextSlot::Font), FontNameList), EndComboBox};
DLG_CHECKBUTN ToolNumr_Check[] = {Check(5, 1, 2, Parm(TextSlot::BackEnabled), "背景色有効"),
                                  Check(5, 3, 4, Parm(TextSlot::Blinking), "点滅"),
                                  Check(7, 1, 2, Parm(TextSlot::InputAllowed), "入力可"),
                                  Check(8, 1, 2, Parm(TextSlot::KeepZeros), "ゼロサプレスしない"),
                                  Check(9, 1, 2, Parm(TextSlot::Grouping), "桁区切り使用"),
                                  Check(10, 1, 2, Parm(TextSlot::Hexadecimal), "１６進数"),
                                  Check(11, 1, 1, &CusrUp, "↑"),
                                  Check(11, 2, 2, &CusrDown, "↓"),
                                  Check(11, 3, 3, &CusrLeft, "←"),
                                  Check(11, 4, 4, &CusrRight, "→"),
                                  EndCheckButn};
DLG_COLRDATA ToolNumr_Colr[] = {
    Colour(3, 1, Parm(TextSlot::TextColour)),     Colour(3, 2, Parm(TextSlot::TextColour + 1)),
    Colour(3, 3, Parm(TextSlot::TextColour + 2)), Colour(3, 4, Parm(TextSlot::TextColour + 3)),
    Colour(4, 1, Parm(TextSlot::BackColour)),     Colour(4, 2, Parm(TextSlot::BackColour + 1)),
    Colour(4, 3, Parm(TextSlot::BackColour + 2)), Colour(4, 4, Parm(TextSlot::BackColour + 3)),
    Colour(6, 1, Parm(ItemSlot::EraseColour)),    EndColrData};
