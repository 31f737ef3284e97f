// A bitmap file of one pixel.
#pragma once

#include <string>

#include "Types.h"
#include "tests/common/Bytes.h"

// Its header claims the given size. `pixel`: blue, green, red.
inline std::string OnePixelBitmap(gint width = 1, gint height = 1,
                                  const std::string& pixel = std::string(3, '\0')) {
  return Bytes()
      .Raw("BM")
      .Ints({58, 0, 54})                        // file size, reserved, place of the pixels
      .Ints({40, width, height})                // header size, width, height
      .Raw(std::string("\x01\x00\x18\x00", 4))  // planes, 24 bits a pixel
      .Ints({0, 4, 0, 0, 0, 0})                 // no compression, bytes of pixels
      .Raw(pixel)
      .Zeros(1)
      .Str();
}
