// Runs a writer again and again, each time with another of its file calls going wrong, and looks at
// what it leaves.
#pragma once

#include <functional>
#include <optional>
#include <set>
#include <string>

#include "tests/faults/FileCalls.h"
#include "tests/faults/FolderImage.h"

// What is swept.
struct SweptWriter {
  std::function<void()> Begin;  // brings disk and memory to where the writer starts
  std::function<bool()> Write;  // what the writer reports
  std::function<FolderImage()> Image;
  std::function<std::string()> Memory;
  bool Reports;  // one file and a report on it; else the report means nothing
  bool Repeats;  // writing once more after a failure does what was left undone
  bool InPlace = false;
  FolderImage AlsoWhole = {};  // files that may be there too, with that content
};

class Sweep {
 public:
  // Runs the writer once undisturbed and notes every content that a file has on the way.
  explicit Sweep(SweptWriter writer);
  // Each call fails in turn with that error. False as soon as a check failed.
  void FailEachCall(int error);
  // The device is gone from each call on.
  void FailFromEachCall(int error);
  // Each write is cut short, and there is no more room.
  void CutEachWrite();
  // Each call fails in turn with every error that a file call may give.
  void FailWithEveryError();
  // Each call fails in turn with the errors of a disk (full, broken, read-only) and as interrupted,
  // each write is cut short, the disk is gone from each call on.
  void GoThroughDiskErrors();

  int Runs() const { return runs_; }
  int Calls() const { return calls_; }
  const FolderImage& Before() const { return before_; }
  const FolderImage& After() const { return after_; }

 private:
  // One run with what `arrange` arranges for that call; false when no call of that number came.
  bool Run(const std::string& what, bool lasting, const std::function<void()>& arrange);
  // The files that a report is about.
  FolderImage Accountable(FolderImage image) const;
  void CheckFiles(const FolderImage& found, bool temporary_may_stay) const;
  void CheckReport(const FolderImage& found, bool reported) const;
  void CheckMemory() const;

  SweptWriter writer_;
  FolderImage before_;
  FolderImage after_;
  std::string memoryBefore_;
  std::string memoryAfter_;
  std::set<std::string> committed_;  // contents on the way
  std::string failed_;               // call that went wrong in the last run
  int calls_ = 0;
  int runs_ = 0;
};

// The same without what the undo history keeps, which no project needs.
FolderImage WithoutSnapshots(FolderImage image);
bool IsTemporary(const std::string& name);
