// The pointer as the display shows it.
#pragma once

#include <cstdint>
#include <vector>

struct PointerImage {
  int Width = 0;
  int Height = 0;
  int HotX = 0;
  int HotY = 0;
  std::vector<std::uint32_t> Pixels;  // 0xAARRGGBB
};

PointerImage ShownPointer();
