// Another program as assistive technology reads it, over the bus made for that.
#pragma once

#include <string>
#include <vector>

struct ReadControl {
  std::string Role;
  std::string Name;
  bool Usable = false;  // takes the keyboard, an action or a value
};

// The shown window of this title from top to bottom, itself first; empty when there is none. Of
// several it is the one opened last, here and below.
std::vector<ReadControl> ReadWindow(const std::string& program, const std::string& title);
// Does the first action of the first control in the window whose name begins so. False = none such,
// or it refuses.
bool ActOn(const std::string& program, const std::string& title, const std::string& name);
