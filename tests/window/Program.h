// The real program, started in a program folder of the test's own.
#pragma once

#include <gtk/gtk.h>

#include <optional>
#include <string>
#include <vector>

#include "tests/common/TempFolder.h"

// A copy of the program folder that the build made, with the sample project in it.
class ProgramFolder {
 public:
  ProgramFolder();
  const std::string& Path() const { return folder_.Path(); }
  std::string Executable() const { return folder_.Path("VarnixMaster"); }
  // The designer's profile as it stands.
  std::string Profile() const { return folder_.Read("VarnixMaster.ini"); }

 private:
  TempFolder folder_;
};

// A running program, in a process group of its own as a desktop or shell starts it; killed when
// still alive at the end. What it wrote to standard error fails the test unless the test has asked
// for it.
class RunningProgram {
 public:
  // `display` is the display's name, "" for the test's own.
  explicit RunningProgram(const ProgramFolder& folder, const std::string& display = "");
  ~RunningProgram();
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;

  // Its process, and the group of it.
  GPid Process() const { return pid_; }
  // Waits for its window with this title and gives it the keyboard. False = none came.
  bool Activate(const std::string& title) const;
  // Waits for the end. The exit status; nothing when it does not end by itself.
  std::optional<int> Wait();
  // What it wrote to standard error so far.
  std::string Complaints();

 private:
  TempFolder output_;
  GPid pid_ = 0;
  std::optional<int> status_;
  bool asked_ = false;
};

// Runs xdotool; its standard output without the last line end.
std::string XDoTool(const std::vector<std::string>& arguments);
// Waits until a window with exactly this title is shown and has the keyboard. False = none came.
bool WaitForTitle(const std::string& title);
// Presses keys one after the other, in the notation of xdotool.
void PressKeys(const std::vector<std::string>& keys);
// Opens the first layout of the list in the dialog that has just come up and begins on its list.
void OpenFirstOfList();
