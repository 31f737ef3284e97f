// Where each parameter lies; what is known about it is in its row (Parameters.h). "c4": one value
// per colour system, use slot + ColorCode; "c2": one for even and one for odd systems.
#pragma once

#include "layout/Records.h"

enum ItemType {
  TypeFrame = 1,
  TypeLine = 2,
  TypeRectangle = 3,
  TypeEllipse = 4,
  TypeBarGraph = 5,
  TypeFixedString = 6,
  TypeVariableString = 7,
  TypeNumeric = 8,
  TypeButton = 9,
  TypeRadioButton = 10,
  TypeCheckBox = 11,
  TypeBitmap = 12,
  TypeMark = 13,
  TypeScrollBar = 14,
  TypeSpinButton = 15,
  ItemTypeEnd
};
constexpr gint ItemTypeCount = ItemTypeEnd - 1;

namespace ItemSlot {  // all types
enum { X1 = 0, Y1 = 1, X2 = 2, Y2 = 3, TopLayer = 28, EraseColour = 29 };
}
namespace FrameSlot {
enum {
  AreaColour = 4,     // c4
  TopColour = 8,      // c4
  BottomColour = 12,  // c4
  LeftColour = 16,    // c4
  RightColour = 20,   // c4
  TopWidth = 24,
  BottomWidth = 25,
  LeftWidth = 26,
  RightWidth = 27
};
}
namespace LineSlot {
enum { Colour = 4 /* c4 */, Position = 13, Style = 14, Width = 15 };
}
namespace ShapeSlot {  // rectangle and ellipse
enum { LineColour = 4 /* c4 */, FillColour = 8 /* c4 */, Filled = 12, Position = 13, Width = 15 };
}
namespace BarSlot {
enum {
  BarColour = 4,   // c4
  BackColour = 8,  // c4
  OutlineColour = 12,
  Direction = 13,  // 0 vertical, 1 horizontal
  BarWidth = 14,   // 0 = filled area
  OutlineWidth = 15,
  LowerLimit = 16,
  UpperLimit = 17
};
}
namespace TextSlot {  // fixed string, variable string, numeric data
enum {
  TextColour = 4,  // c4
  BackColour = 8,  // c4
  BackEnabled = 12,
  Blinking = 13,
  Font = 15,
  Length = 16,         // characters, digits; bytes of a fixed string
  Decimals = 17,       // numeric
  InputAllowed = 18,   // variable string, numeric
  JapaneseInput = 19,  // variable string
  KeepZeros = 19,      // numeric
  Grouping = 20,       // numeric
  Hexadecimal = 21,    // numeric
  CursorKeys = 27      // bits 0..3: up, down, left, right
};
}
namespace ButtonSlot {
enum {
  TopLeftColour = 4,
  BottomRightColour = 5,
  FaceColour = 6,
  TextColour = 7,      // c2
  TextPlacement = 13,  // 0 centred, 1 at TextOffset
  TextOffset = 14,
  Font = 15,
  BorderWidth = 16
};
}
namespace ChoiceSlot {  // radio button and check box
enum {
  TextColour = 4,  // c2
  BackColour = 6,  // c2
  BackEnabled = 12,
  Font = 15,
  Length = 16,
  Number = 27  // of a radio button within its group
};
}
namespace BitmapSlot {
enum { TransparentColour = 4, Transparent = 5 };
}
namespace MarkSlot {
enum {
  MarkColour = 4,  // c4
  BackColour = 8,  // c4
  BackEnabled = 12,
  Blinking = 13,
  Mark = 15  // c4
};
}
namespace ScrollSlot {
enum {
  TopLeftColour = 4,
  BottomRightColour = 5,
  TroughColour = 6,
  ThumbColour = 7,
  SingleArrows = 8,
  DoubleArrows = 9,
  Direction = 13,  // 0 horizontal, 1 vertical
  FrameWidth = 15,
  DisplayAmount = 16,
  DataAmount = 17,
  SingleStep = 18,
  DoubleStep = 19,
  PageStep = 20,
  MouseWheel = 26,
  FunctionKeys = 27
};
}
namespace SpinSlot {
enum { LowerLimit = 16, UpperLimit = 17 };
}

namespace HedrSlot {  // PTRNHEDR.Parm1
enum {
  Kind = 0,  // 0 parent window, 1 child window, 2 other
  Width = 1,
  Height = 2,
  DisplaySize = 3,
  TitlePosition = 4,
  WindowX = 5,
  WindowY = 6,
  Fixed = 7,
  TitleHeight = 8,
  TitleColour = 9,
  TitleAreaColour = 10,
  TitleFont = 11,
  TitleCentred = 12,
  LogoShown = 13,
  HardCopyShown = 14,
  VersionScreen = 15,
  DebugScreen = 16,
  DateFormat = 17,
  DateFont = 18,
  WorkAreaColour = 19,
  Gradation = 20,
  ButtonAreaHeight = 21,
  ButtonAreaColour = 22,
  FrameWidth = 23,
  FrameColour = 24,
  MouseCursor = 25,
  ParentInput = 26,
  KeyColour = 27,
  KeyBackColour = 28,
  KeepAsIs = 29  // the project's common look is not pushed into this layout
};
}
namespace ViewSlot {  // PTRNHEDR.Parm2
enum {
  Zoom = 0,
  GridShown = 1,
  GridX = 2,
  GridY = 3,
  GridColour = 6,
  StartScreen = 7,
  StopScreen = 8
};
}
