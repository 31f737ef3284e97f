// The cells of the tool box's pages.
#pragma once

#include <string>
#include <vector>

struct PageCells {
  int Type;
  int Language;
  std::string Rows;  // one a line
};

const std::vector<PageCells>& AllPageCells();
