// Marks and a picture file for the scene.
#pragma once

#include <string>

#include "render/Surface.h"
#include "tests/common/TempFolder.h"
#include "tests/render/Scene.h"

// Marks of the scene, one of every size.
namespace SceneMark {
enum {
  Stripes16x32 = 0,
  Disc32x32 = 100,
  Wedge64x32 = 200,
  Cross32x64 = 250,
  Ring64x64 = 300,
  Empty = 1
};
}

inline void DrawSceneMarks() {
  const auto draw = [](gint mark, auto&& inside) {
    const SIZE size = MarkDataSize[mark / 50];
    for (gint y = 0; y < size.cy; ++y) {
      for (gint x = 0; x < size.cx; ++x) MarkDataSet(mark, &MarkData[mark], x, y, inside(x, y));
    }
  };
  const auto distance2 = [](gint x, gint y, gint centre) {
    return (2 * x + 1 - centre) * (2 * x + 1 - centre) +
           (2 * y + 1 - centre) * (2 * y + 1 - centre);
  };
  draw(SceneMark::Stripes16x32, [](gint x, gint y) { return (x + y) % 8 < 4; });
  draw(SceneMark::Disc32x32, [&](gint x, gint y) { return distance2(x, y, 32) < 900; });
  draw(SceneMark::Wedge64x32, [](gint x, gint y) { return x < 2 * y + 2; });
  draw(SceneMark::Cross32x64,
       [](gint x, gint y) { return (x >= 12 && x < 20) || (y >= 28 && y < 36); });
  draw(SceneMark::Ring64x64,
       [&](gint x, gint y) { return distance2(x, y, 64) < 3600 && distance2(x, y, 64) > 1600; });
  SetDrawMark();
}

// A bitmap folder with "house.png", 32 x 24, on a sky of Ink::Sky.
class SceneBitmaps {
 public:
  SceneBitmaps() {
    Drawable picture(32, 24);
    DrawGc gc;
    PaintBack(picture, Ink::Sky);
    DrawRect(&picture, &gc, 0, 19, 32, 24, 0, 0, Ink::Green, Ink::Green);
    DrawRect(&picture, &gc, 7, 11, 25, 21, 0, 0, Ink::Cream, Ink::Cream);
    for (gint row = 0; row < 9; ++row) {
      DrawLine(&picture, &gc, 15 - row - 1, 2 + row, 16 + row + 1, 2 + row, 0, 1, 0, Ink::Red);
    }
    DrawRect(&picture, &gc, 14, 15, 18, 21, 0, 0, Ink::Navy, Ink::Navy);
    WritePng(picture, folder_.Path("house.png").c_str());
    g_strlcpy(BmapPath, folder_.Path().c_str(), sizeof BmapPath);
  }
  ~SceneBitmaps() { BmapPath[0] = '\0'; }
  SceneBitmaps(const SceneBitmaps&) = delete;
  SceneBitmaps& operator=(const SceneBitmaps&) = delete;

 private:
  TempFolder folder_;
};
