#include <sys/stat.h>

#include <cerrno>

#include "layout/LayoutFile.h"
#include "layout/model/file/LayoutInput.h"
#include "support/FileTools.h"
#include "support/Files.h"

LayoutFileState CheckPtrnFile(const gchar* path, const gchar* name, gint* items) {
  if (items != nullptr) *items = 0;
  const std::string file = JoinPath(path, name, "ptn");
  struct stat status {};
  if (stat(file.c_str(), &status) != 0 && errno == ENOENT) return LayoutFileState::Missing;
  LayoutInput input(file);
  PTRNHEDR header;
  if (!input.IsOpen() || !input.ReadHeader(header) || !input.HoldsTexts()) {
    return LayoutFileState::Broken;
  }
  if (items != nullptr) *items = input.RecordsHeld();
  return LayoutFileState::Whole;
}

// A copy, not a second link: a file that can only be written in place would be changed under both
// names.
bool KeepPtrnFile(const gchar* path, const gchar* name) {
  return FileSize(path, name, "ptn") == 0 ||
         CopyBeside(JoinPath(path, name, "ptn"), JoinPath(path, name, "ptn.bak"));
}

bool KeepDamagedPtrnFile(const gchar* path, const gchar* name) {
  return CheckPtrnFile(path, name) != LayoutFileState::Broken || KeepPtrnFile(path, name);
}
