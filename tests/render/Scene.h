// A clean drawing scene: known palette, fonts, header, store and editing state.
#pragma once

#include <algorithm>
#include <cstring>
#include <ctime>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ProjData.h"
#include "layout/EditState.h"
#include "layout/ItemSlots.h"
#include "layout/Store.h"
#include "render/FontTable.h"
#include "render/LayoutPicture.h"
#include "render/Marks.h"
#include "render/Palette.h"
#include "render/Primitives.h"
#include "support/Resource.h"
#include "support/Text.h"

// Colours of the scene's palette, by number.
namespace Ink {
enum {
  White = 0,
  Black,
  Silver,
  Grey,
  Dark,
  Red,
  Green,
  Blue,
  Yellow,
  Orange,
  Teal,
  Violet,
  Cream,
  Navy,
  Sky,
  Rose,
  Count
};
}
inline constexpr guint32 InkPixel[Ink::Count] = {
    0xffffff, 0x000000, 0xc0c0c0, 0x808080, 0x404040, 0xd03030, 0x309040, 0x3050c0,
    0xf0d040, 0xe08020, 0x208080, 0x8040a0, 0xf8f0d8, 0x102050, 0xa0d0f0, 0xf0a0b0};

// Fonts of the scene, by number; numbers from NoFont on have no name.
enum SceneFont { Font12 = 0, Font16 = 1, Font24 = 2, NoFont = 3 };

class Scene {
 public:
  Scene() {
    for (gint no = 0; no < ColrCount; ++no) {
      const guint32 rgb = no < Ink::Count ? InkPixel[no] : 0;
      ColrData[no] = {static_cast<gint>(((rgb >> 16) & 255) * 257),
                      static_cast<gint>(((rgb >> 8) & 255) * 257),
                      static_cast<gint>((rgb & 255) * 257)};
    }
    InitDrawData();
    SetDrawColr();
    SetFont(Font12, "-shinonome-gothic-medium-r-normal--12-*-*-*-c-*-*-*", 12);
    SetFont(Font16, "-shinonome-gothic-medium-r-normal--16-*-*-*-c-*-*-*", 16);
    SetFont(Font24, "-misc-fixed-medium-r-normal--24-*-*-*-c-*-*-*", 24);
    for (gint no = NoFont; no < FontCount; ++no) SetFont(no, "", 0);
    SetDrawFont();
    Clear();
  }
  ~Scene() { Clear(); }
  Scene(const Scene&) = delete;
  Scene& operator=(const Scene&) = delete;

  // 21 November 2026, a Saturday, 07:08:09.
  static void FixClock() {
    std::tm time{};
    time.tm_year = 126;
    time.tm_mon = 10;
    time.tm_mday = 21;
    time.tm_wday = 6;
    time.tm_hour = 7;
    time.tm_min = 8;
    time.tm_sec = 9;
    SetPictureTime(&time);
  }

 private:
  static void SetFont(gint no, const char* descriptor, gint height) {
    g_strlcpy(FontName[no], descriptor, sizeof FontName[no]);
    FontHeight[no] = height;
  }
  static void Clear() {
    IntPtrnData();
    PtrnHedr = PTRNHEDR{};
    PtrnHedr.Parm2[ViewSlot::Zoom] = 2;
    PtrnHedr.Parm2[ViewSlot::GridColour] = Ink::Blue;
    PtrnData = PTRNDATA{};
    std::memset(BmapPath, 0, sizeof BmapPath);
    std::memset(MarkData, 0, sizeof MarkData);
    SetDrawMark();
    PtrnMode = ModeIdle;
    PtrnUndef = 0;
    ColorCode = 0;
    Language = 0;
    AreaPoint1 = AreaPoint2 = POINT{};
    SetPictureTime(nullptr);
  }
};

using Parms = std::vector<std::pair<gint, gint>>;

inline std::string Euc(std::string_view utf8) {
  return EucFromUtf8(utf8).value();
}

inline PTRNDATA MakeItem(gint type, gint x1, gint y1, gint x2, gint y2, const Parms& parms = {},
                         std::string_view text = "") {
  PTRNDATA item{};
  item.Type = type;
  for (const auto& [slot, value] : parms) item.Parm[slot] = value;
  item.Point1 = {x1, y1};
  item.Point2 = {x2, y2};
  CopyText(item.Text1, Euc(text));
  return item;
}

// Sets a colour for all four colour systems.
inline void SetAllSystems(PTRNDATA* item, gint slot, gint colour) {
  for (gint system = 0; system < 4; ++system) item->Parm[slot + system] = colour;
}

inline void PaintBack(Drawable& surface, gint colour) {
  DrawGc gc;
  DrawRect(&surface, &gc, surface.X(), surface.Y(), surface.X() + surface.Width(),
           surface.Y() + surface.Height(), 0, 0, colour, colour);
}

// Paints one item outside the store and returns it with its size.
inline PTRNDATA PaintItem(Drawable& surface, PTRNDATA item) {
  using Renderer = void (*)(Drawable*, DrawGc*, PTRNDATA*);
  static constexpr Renderer renderers[16] = {
      nullptr,        DrawPtrnData01, DrawPtrnData02, DrawPtrnData03,
      DrawPtrnData04, DrawPtrnData05, DrawPtrnData06, DrawPtrnData07,
      DrawPtrnData08, DrawPtrnData09, DrawPtrnData10, DrawPtrnData11,
      DrawPtrnData12, DrawPtrnData13, DrawPtrnData14, DrawPtrnData15};
  DrawGc gc;
  renderers[item.Type](&surface, &gc, &item);
  return item;
}
