// Rows of the tool box pages of frames, lines, rectangles, ellipses and bar graphs.
#include "dialogs/toolbox/ToolBoxRows.h"
#include "dialogs/toolbox/ToolBoxTables.h"

DLG_STRING ToolGbox_String[] = {Label(2, "領域色"),
                                Label(3, "上 境界色/枠幅"),
                                Label(4, "下 境界色/枠幅"),
                                Label(5, "左 境界色/枠幅"),
                                Label(6, "右 境界色/枠幅"),
                                Label(7, "消去色"),
                                EndString};
DLG_NUMRBOX ToolGbox_Numr1[] = {Number(3, 3, Parm(FrameSlot::TopWidth), 99),
                                Number(4, 3, Parm(FrameSlot::BottomWidth), 99),
                                Number(5, 3, Parm(FrameSlot::LeftWidth), 99),
                                Number(6, 3, Parm(FrameSlot::RightWidth), 99), EndNumrBox};
DLG_NUMRBOX ToolGbox_Numr2[] = {Number(3, 5, Parm(FrameSlot::TopWidth), 99),
                                Number(4, 5, Parm(FrameSlot::BottomWidth), 99),
                                Number(5, 5, Parm(FrameSlot::LeftWidth), 99),
                                Number(6, 5, Parm(FrameSlot::RightWidth), 99), EndNumrBox};
DLG_COLRDATA ToolGbox_Colr1[] = {
    Colour(2, 1, Parm(FrameSlot::AreaColour)),   Colour(2, 2, Parm(FrameSlot::AreaColour + 1)),
    Colour(3, 1, Parm(FrameSlot::TopColour)),    Colour(3, 2, Parm(FrameSlot::TopColour + 1)),
    Colour(4, 1, Parm(FrameSlot::BottomColour)), Colour(4, 2, Parm(FrameSlot::BottomColour + 1)),
    Colour(5, 1, Parm(FrameSlot::LeftColour)),   Colour(5, 2, Parm(FrameSlot::LeftColour + 1)),
    Colour(6, 1, Parm(FrameSlot::RightColour)),  Colour(6, 2, Parm(FrameSlot::RightColour + 1)),
    Colour(7, 1, Parm(ItemSlot::EraseColour)),   EndColrData};
DLG_COLRDATA ToolGbox_Colr2[] = {Colour(2, 3, Parm(FrameSlot::AreaColour + 2)),
                                 Colour(2, 4, Parm(FrameSlot::AreaColour + 3)),
                                 Colour(3, 3, Parm(FrameSlot::TopColour + 2)),
                                 Colour(3, 4, Parm(FrameSlot::TopColour + 3)),
                                 Colour(4, 3, Parm(FrameSlot::BottomColour + 2)),
                                 Colour(4, 4, Parm(FrameSlot::BottomColour + 3)),
                                 Colour(5, 3, Parm(FrameSlot::LeftColour + 2)),
                                 Colour(5, 4, Parm(FrameSlot::LeftColour + 3)),
                                 Colour(6, 3, Parm(FrameSlot::RightColour + 2)),
                                 Colour(6, 4, Parm(FrameSlot::RightColour + 3)),
                                 EndColrData};

DLG_STRING ToolLine_String[] = {Label(2, "線種"),   Label(3, "線幅"),     Label(4, "表示色"),
                                Label(5, "消去色"), Label(6, "表示位置"), EndString};
DLG_COMBOBOX ToolLine_Combo[] = {Choice(2, Parm(LineSlot::Style), LineStyleList), EndComboBox};
DLG_NUMRBOX ToolLine_Numr[] = {Number(3, 1, Parm(LineSlot::Width), 99), EndNumrBox};
DLG_RADIOBUTN ToolLine_Radio[] = {Radio(6, 1, 1, Parm(LineSlot::Position), 0, "中央"),
                                  Radio(6, 2, 2, Parm(LineSlot::Position), 1, "上左"),
                                  Radio(6, 3, 3, Parm(LineSlot::Position), 2, "下右"),
                                  EndRadioButn};
DLG_COLRDATA ToolLine_Colr[] = {
    Colour(4, 1, Parm(LineSlot::Colour)),      Colour(4, 2, Parm(LineSlot::Colour + 1)),
    Colour(4, 3, Parm(LineSlot::Colour + 2)),  Colour(4, 4, Parm(LineSlot::Colour + 3)),
    Colour(5, 1, Parm(ItemSlot::EraseColour)), EndColrData};

DLG_STRING ToolRect_String[] = {Label(2, "線幅"),   Label(3, "境界色"),   Label(4, "領域色"),
                                Label(6, "消去色"), Label(7, "表示位置"), EndString};
DLG_NUMRBOX ToolRect_Numr[] = {Number(2, 1, Parm(ShapeSlot::Width), 99), EndNumrBox};
DLG_RADIOBUTN ToolRect_Radio[] = {Radio(7, 1, 1, Parm(ShapeSlot::Position), 0, "中央"),
                                  Radio(7, 2, 2, Parm(ShapeSlot::Position), 1, "上左"),
                                  Radio(7, 3, 3, Parm(ShapeSlot::Position), 2, "下右"),
                                  EndRadioButn};
DLG_CHECKBUTN ToolRect_Check[] = {Check(5, 1, 3, Parm(ShapeSlot::Filled), "塗りつぶし"),
                                  EndCheckButn};
DLG_COLRDATA ToolRect_Colr[] = {
    Colour(3, 1, Parm(ShapeSlot::LineColour)),     Colour(3, 2, Parm(ShapeSlot::LineColour + 1)),
    Colour(3, 3, Parm(ShapeSlot::LineColour + 2)), Colour(3, 4, Parm(ShapeSlot::LineColour + 3)),
    Colour(4, 1, Parm(ShapeSlot::FillColour)),     Colour(4, 2, Parm(ShapeSlot::FillColour + 1)),
    Colour(4, 3, Parm(ShapeSlot::FillColour + 2)), Colour(4, 4, Parm(ShapeSlot::FillColour + 3)),
    Colour(6, 1, Parm(ItemSlot::EraseColour)),     EndColrData};

DLG_STRING ToolCrcl_String[] = {Label(2, "線幅"),   Label(3, "境界色"),   Label(4, "領域色"),
                                Label(6, "消去色"), Label(7, "表示位置"), EndString};
DLG_NUMRBOX ToolCrcl_Numr[] = {Number(2, 1, Parm(ShapeSlot::Width), 99), EndNumrBox};
DLG_RADIOBUTN ToolCrcl_Radio[] = {Radio(7, 1, 1, Parm(ShapeSlot::Position), 0, "中央"),
                                  Radio(7, 2, 2, Parm(ShapeSlot::Position), 1, "上左"),
                                  Radio(7, 3, 3, Parm(ShapeSlot::Position), 2, "下右"),
                                  EndRadioButn};
DLG_CHECKBUTN ToolCrcl_Check[] = {Check(5, 1, 3, Parm(ShapeSlot::Filled), "塗りつぶし"),
                                  EndCheckButn};
DLG_COLRDATA ToolCrcl_Colr[] = {
    Colour(3, 1, Parm(ShapeSlot::LineColour)),     Colour(3, 2, Parm(ShapeSlot::LineColour + 1)),
    Colour(3, 3, Parm(ShapeSlot::LineColour + 2)), Colour(3, 4, Parm(ShapeSlot::LineColour + 3)),
    Colour(4, 1, Parm(ShapeSlot::FillColour)),     Colour(4, 2, Parm(ShapeSlot::FillColour + 1)),
    Colour(4, 3, Parm(ShapeSlot::FillColour + 2)), Colour(4, 4, Parm(ShapeSlot::FillColour + 3)),
    Colour(6, 1, Parm(ItemSlot::EraseColour)),     EndColrData};

DLG_STRING ToolBarg_String[] = {
    Label(2, "表示方向"), Label(3, "表示色"),    Label(4, "背景色"),        Label(5, "外形色"),
    Label(6, "消去色"),   Label(7, "線幅/枠幅"), Label(8, "下限値/上限値"), EndString};
DLG_NUMRBOX ToolBarg_Numr[] = {Number(7, 1, Parm(BarSlot::BarWidth), 99),
                               Number(7, 2, Parm(BarSlot::OutlineWidth), 99),
                               Number(8, 1, Parm(BarSlot::LowerLimit), 9999),
                               Number(8, 2, Parm(BarSlot::UpperLimit), 9999), EndNumrBox};
DLG_RADIOBUTN ToolBarg_Radio[] = {Radio(2, 1, 1, Parm(BarSlot::Direction), 0, "縱"),
                                  Radio(2, 2, 2, Parm(BarSlot::Direction), 1, "横"), EndRadioButn};
DLG_COLRDATA ToolBarg_Colr[] = {Colour(3, 1, Parm(BarSlot::BarColour)),
                                Colour(3, 2, Parm(BarSlot::BarColour + 1)),
                                Colour(3, 3, Parm(BarSlot::BarColour + 2)),
                                Colour(3, 4, Parm(BarSlot::BarColour + 3)),
                                Colour(4, 1, Parm(BarSlot::BackColour)),
                                Colour(4, 2, Parm(BarSlot::BackColour + 1)),
                                Colour(4, 3, Parm(BarSlot::BackColour + 2)),
                                Colour(4, 4, Parm(BarSlot::BackColour + 3)),
                                Colour(5, 1, Parm(BarSlot::OutlineColour)),
                                Colour(6, 1, Parm(ItemSlot::EraseColour)),
                                EndColrData};
