// What each parameter of a project holds.
#pragma once

namespace ProjectSlot {  // PROJDATA.Parm1
enum {
  DisplaySize = 0,
  Languages = 1,     // 0 one, 1 two, 2 three
  ColourSystems = 2  // 0 two, else four
};
}
namespace ParentSlot {  // PROJDATA.Parm2
enum {
  TitleHeight = 0,
  TitleColour = 1,
  TitleAreaColour = 2,
  TitleFont = 3,
  TitleCentred = 4,
  LogoShown = 5,
  HardCopyShown = 6,
  VersionScreen = 7,
  DebugScreen = 8,
  DateFormat = 9,
  DateFont = 10,
  WorkAreaColour = 11,
  ButtonAreaHeight = 12,
  ButtonAreaColour = 13
};
}
namespace ChildSlot {  // PROJDATA.Parm3
enum {
  TitleHeight = 0,
  TitleColour = 1,
  TitleAreaColour = 2,
  TitleFont = 3,
  TitleCentred = 4,
  WorkAreaColour = 5,
  FrameWidth = 6,
  FrameColour = 7,
  Width = 8,  // of a new child window
  Height = 9
};
}
namespace CommonSlot {  // PROJDATA.Parm4
enum { MouseCursor = 0, KeyColour = 1, KeyBackColour = 2, GridX = 3, GridY = 4, GridColour = 5 };
}
