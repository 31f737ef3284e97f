#include "ProjData.h"
#include "PtrnMisc.h"
#include "dialogs/Choosers.h"

std::string CopyToBitmapFolder(const gchar* chosen, std::string* folder) {
  gchar path[PathSize];
  gchar name[PathSize];
  gchar ext[PathSize];
  SplitPath(chosen, path, name, ext);
  if (folder != nullptr) *folder = path;
  const std::string stored = EucFromUtf8(name).value_or(name);
  if (BmapPath[0] != '\0') FileCopy(path, name, ext, BmapPath, stored.c_str(), ext);
  gchar bare[PathSize];
  MakePath(bare, "", stored.c_str(), ext);
  return bare;
}
