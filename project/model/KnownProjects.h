// What the designer profile knows of projects: the list of known ones and the one opened last.
#pragma once

#include <string>
#include <vector>

// A project as the profile gives it, which cuts a text at 99 bytes and at a ",".
struct KnownProject {
  std::string Name;
  std::string Folder;
  // False when a text came cut or is too long: what is left may lead to another project.
  bool Whole = false;
};

// The known projects that both texts tell, in the order of their numbers. The profile forgets those
// whose file is gone, and their numbers stay free; a file that cannot be looked at is not gone.
std::vector<KnownProject> ReadKnownProjects();
// The project that was opened last; both texts are "" when there is none.
KnownProject ReadLastProject();
void ForgetLastProject();
