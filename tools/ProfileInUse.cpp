#include <unistd.h>

#include "support/Program.h"
#include "tools/InputFile.h"
#include "tools/OpenProject.h"
#include "tools/Report.h"

namespace {

constexpr std::string_view ProfileName = "VarnixMaster.ini";

std::string ExecutableFolder() {
  const std::unique_ptr<gchar, decltype(&g_free)> path(g_file_read_link("/proc/self/exe", nullptr),
                                                       g_free);
  return path ? FolderName(path.get()) : ".";
}

bool HoldsProfile(const std::string& folder) {
  return access((folder + "/" + std::string(ProfileName)).c_str(), R_OK) == 0;
}

// The tool stands in a program folder, or where a package or an unpacked archive put it.
std::string DesignerFolder() {
  std::string own = ExecutableFolder();
  for (const std::string& folder :
       {own, own + "/../program", std::string(g_get_user_data_dir()) + "/VarnixMaster",
        own + "/../share/VarnixMaster"}) {
    if (HoldsProfile(folder)) return folder;
  }
  return own;
}

bool FitsPathName(const std::string& folder) {
  return folder.size() + 1 + ProfileName.size() < sizeof(PathName);
}

}  // namespace

ProfileInUse::ProfileInUse(const std::string& file) {
  std::string folder = DesignerFolder();
  good_ = true;
  if (!file.empty()) {
    good_ = access(file.c_str(), R_OK) == 0 || Refuse(file, "cannot be read");
    if (!good_) return;
    folder = FolderName(file);
  }
  const bool direct = (file.empty() || BaseName(file) == ProfileName) && FitsPathName(folder);
  if (!direct) {
    good_ = Link(file.empty() ? folder + "/" + std::string(ProfileName) : file);
    folder = folder_;
  }
  g_strlcpy(PathName, folder.c_str(), sizeof(PathName));
}

bool ProfileInUse::Link(const std::string& file) {
  const std::unique_ptr<gchar, decltype(&g_free)> folder(
      g_dir_make_tmp("varnixtool-XXXXXX", nullptr), g_free);
  const std::unique_ptr<gchar, decltype(&g_free)> target(
      g_canonicalize_filename(file.c_str(), nullptr), g_free);
  if (folder) folder_ = folder.get();
  const std::string link = folder_ + "/" + std::string(ProfileName);
  if (folder && FitsPathName(folder_) && symlink(target.get(), link.c_str()) == 0) return true;
  return Refuse(file, "no temporary folder to reach it through");
}

ProfileInUse::~ProfileInUse() {
  if (folder_.empty()) return;
  unlink((folder_ + "/" + std::string(ProfileName)).c_str());
  rmdir(folder_.c_str());
}
