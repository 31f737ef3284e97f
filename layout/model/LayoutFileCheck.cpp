#include <sys/stat.h>

#include <cerrno>

#include "layout/Store.h"
#include "layout/model/LayoutInput.h"
#include "support/FileTools.h"
#include "support/Files.h"

LayoutFileState CheckPtrnFile(const gchar* path, const gchar* name) {
  const std::string file = JoinPath(path, name, "ptn");
  struct stat status {};
  if (stat(file.c_str(), &status) != 0 && errno == ENOENT) {
    return LayoutFileState::Missing;
  }
  LayoutInput input(file);
  PTRNHEDR header;
  const bool whole = input.IsOpen() && input.ReadHeader(header) && input.HoldsTexts();
  return whole ? LayoutFileState::Whole : LayoutFileState::Broken;
}

bool KeepDamagedPtrnFile(const gchar* path, const gchar* name) {
  if (CheckPtrnFile(path, name) != LayoutFileState::Broken || FileSize(path, name, "ptn") == 0) {
    return true;
  }
  return FileCopy(path, name, "ptn", path, name, "ptn.bak") != 0;
}
