// Texts as the display itself draws them, with the fonts of a descriptor.
#pragma once

#include <string>
#include <vector>

// Where texts are drawn: the picture's size and the text's origin on the baseline.
namespace ServerTextPlace {
enum { Width = 420, Height = 40, X = 10, Baseline = 28 };
}

struct ServerText {
  // Bearings of the ink, as a font set tells them.
  int Left = 0;
  int Right = 0;
  int Ascent = 0;
  int Descent = 0;
  // One character a pixel, "#" for ink, row by row.
  std::string Pixels;
};

// Empty when the display has no such fonts. Texts are UTF-8.
std::vector<ServerText> TextsOfServer(const char* descriptor,
                                      const std::vector<std::string>& texts);
