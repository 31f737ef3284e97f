// Logic generation of the open project: its steps, and what came of the files that each makes.
#pragma once

#include <string>
#include <vector>

enum class ProductState {
  Written,
  Kept,    // it was there and needed nothing new
  Failed,  // it is not there, or not what it should be
};

struct LogicProduct {
  std::string Path;
  ProductState State;
};
using LogicProducts = std::vector<LogicProduct>;

inline ProductState WrittenIf(bool written) {
  return written ? ProductState::Written : ProductState::Failed;
}

// All steps in their order. A step that fails does not keep the next ones from being done.
LogicProducts GenerateLogic();
// Code registry and flags, in the project folder.
LogicProducts GenerateCodes();
// The rest goes into the program folder: the header of the codes, the project's own sources, the
// runtime profile.
LogicProducts GenerateCodeHeader();
LogicProducts GenerateSources();
LogicProducts GenerateProfile();
