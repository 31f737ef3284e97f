// Ellipses as the display itself draws them.
#pragma once

#include <string>
#include <vector>

struct ServerArc {
  // Dots left free around the box on each side.
  enum { Margin = 2 };

  int Width = 0;
  int Height = 0;
  // One character a pixel, "#" for ink, row by row: width + 1 + twice the margin by height + 1 +
  // twice the margin.
  std::string Filled;
  std::string Outline;
};

// Draws the ellipse in a box of each width and height. False when there is no display.
bool DrawOnServer(std::vector<ServerArc>& arcs);
