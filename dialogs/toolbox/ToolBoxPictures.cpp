// Rows of the tool box pages of bitmaps, marks, scroll bars and spin buttons.
#include "dialogs/toolbox/ToolBoxRows.h"
#include "dialogs/toolbox/ToolBoxTables.h"

DLG_STRING ToolBmap_String[] = {Label(2, "ビットマップ名"), Label(3, "透過色"), Label(4, "消去色"),
                                EndString};
DLG_EDITBOX ToolBmap_Edit[] = {Entry(2, PtrnData.Text1, true), EndEditBox};
DLG_CHECKBUTN ToolBmap_Check[] = {Check(3, 2, 2, Parm(BitmapSlot::Transparent), "有効"),
                                  EndCheckButn};
DLG_COLRDATA ToolBmap_Colr[] = {Colour(3, 1, Parm(BitmapSlot::TransparentColour)),
                                Colour(4, 1, Parm(ItemSlot::EraseColour)), EndColrData};

DLG_STRING ToolMark_String[] = {Label(2, "マーク"), Label(3, "前景色"), Label(4, "背景色"),
                                Label(6, "消去色"), EndString};
DLG_CHECKBUTN ToolMark_Check[] = {Check(5, 1, 2, Parm(MarkSlot::BackEnabled), "背景色有効"),
                                  Check(5, 3, 4, Parm(MarkSlot::Blinking), "点滅"), EndCheckButn};
DLG_COLRDATA ToolMark_Colr[] = {
    Colour(3, 1, Parm(MarkSlot::MarkColour)),     Colour(3, 2, Parm(MarkSlot::MarkColour + 1)),
    Colour(3, 3, Parm(MarkSlot::MarkColour + 2)), Colour(3, 4, Parm(MarkSlot::MarkColour + 3)),
    Colour(4, 1, Parm(MarkSlot::BackColour)),     Colour(4, 2, Parm(MarkSlot::BackColour + 1)),
    Colour(4, 3, Parm(MarkSlot::BackColour + 2)), Colour(4, 4, Parm(MarkSlot::BackColour + 3)),
    Colour(6, 1, Parm(ItemSlot::EraseColour)),    EndColrData};
DLG_MARKDATA ToolMark_Mark[] = {
    MarkRow(2, 1, Parm(MarkSlot::Mark)), MarkRow(2, 2, Parm(MarkSlot::Mark + 1)),
    MarkRow(2, 3, Parm(MarkSlot::Mark + 2)), MarkRow(2, 4, Parm(MarkSlot::Mark + 3)), EndMarkData};

DLG_STRING ToolSbar_String[] = {Label(2, "表示方向"),
                                Label(3, "ボタン"),
                                Label(4, "左上/右下枠"),
                                Label(5, "内部"),
                                Label(6, "消去色"),
                                Label(7, "枠幅"),
                                Label(8, "表示/データ量"),
                                Label(9, "移動量"),
                                Label(10, "マウスホィール"),
                                Label(11, "ファンクションキー"),
                                EndString};
DLG_NUMRBOX ToolSbar_Numr[] = {Number(7, 1, Parm(ScrollSlot::FrameWidth), 99),
                               Number(8, 1, Parm(ScrollSlot::DisplayAmount), 9999),
                               Number(8, 2, Parm(ScrollSlot::DataAmount), 9999),
                               Number(9, 1, Parm(ScrollSlot::SingleStep), 9999),
                               Number(9, 2, Parm(ScrollSlot::DoubleStep), 9999),
                               Number(9, 3, Parm(ScrollSlot::PageStep), 9999),
                               EndNumrBox};
DLG_RADIOBUTN ToolSbar_Radio[] = {Radio(2, 1, 2, Parm(ScrollSlot::Direction), 0, "水平方向"),
                                  Radio(2, 3, 4, Parm(ScrollSlot::Direction), 1, "垂直方向"),
                                  EndRadioButn};
DLG_CHECKBUTN ToolSbar_Check[] = {Check(3, 1, 2, Parm(ScrollSlot::SingleArrows), "シングル"),
                                  Check(3, 3, 4, Parm(ScrollSlot::DoubleArrows), "ダブル"),
                                  Check(10, 1, 2, Parm(ScrollSlot::MouseWheel), "使用可"),
                                  Check(11, 1, 2, Parm(ScrollSlot::FunctionKeys), "使用可"),
                                  EndCheckButn};
DLG_COLRDATA ToolSbar_Colr[] = {Colour(4, 1, Parm(ScrollSlot::TopLeftColour)),
                                Colour(4, 2, Parm(ScrollSlot::BottomRightColour)),
                                Colour(5, 1, Parm(ScrollSlot::TroughColour)),
                                Colour(5, 2, Parm(ScrollSlot::ThumbColour)),
                                Colour(6, 1, Parm(ItemSlot::EraseColour)),
                                EndColrData};

DLG_STRING ToolSpin_String[] = {Label(2, "消去色"), Label(3, "下限/上限値"), EndString};
DLG_NUMRBOX ToolSpin_Numr[] = {Number(3, 1, Parm(SpinSlot::LowerLimit), 9999),
                               Number(3, 2, Parm(SpinSlot::UpperLimit), 9999), EndNumrBox};
DLG_COLRDATA ToolSpin_Colr[] = {Colour(2, 1, Parm(ItemSlot::EraseColour)), EndColrData};
