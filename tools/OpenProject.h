// The project that a command works on. It is opened for looking: nothing is recorded anywhere.
#pragma once

#include <memory>
#include <string>
#include <vector>

// Opens a project file: sets ProjFlag, ProjName, ProjPath, BmapPath and ProjData. False = failed,
// the reason has been told.
bool OpenProject(const std::string& file);
// The layouts of the open project, sorted by name: names as on disk, without ".ptn".
std::vector<std::string> SortedLayouts();
// The layout of the open project that `name` (UTF-8, or bytes as on disk) means; "" when there is
// none.
std::string FindLayout(const std::string& name);

// The designer profile in use, for as long as this lives. A profile of another name than the
// program's own is reached through a link in a folder of its own.
class ProfileInUse {
 public:
  // `file` "" takes the profile beside the executable, else the one of the unpacked archive, the
  // user's, the shipped one; a missing one leaves all keys unset.
  explicit ProfileInUse(const std::string& file);
  ~ProfileInUse();
  ProfileInUse(const ProfileInUse&) = delete;
  ProfileInUse& operator=(const ProfileInUse&) = delete;
  // False = unusable, the reason has been told.
  bool Good() const { return good_; }

 private:
  bool Link(const std::string& file);

  bool good_ = false;
  std::string folder_;
};
