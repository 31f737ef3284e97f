#include <sys/stat.h>
#include <cerrno>

#include "layout/Store.h"
#include "layout/model/LayoutInput.h"
#include "support/FileTools.h"

LayoutFileState CheckPtrnFile(const gchar* path, const gchar* name) {
  const std::string file = JoinPath(path, name, "ptn");
  struct stat status {};
  if (stat(file.c_str(), &status) != 0 && errno == ENOENT) {
    return LayoutFileState::Missing;
  }
  LayoutInput input(file);
  PTRNHEDR header;
  if (!input.IsOpen() || !input.Read(&header, sizeof header) || header.DataCount < 0 ||
      header.TextSize < 0) {
    return LayoutFileState::Broken;
  }
  const gint64 wanted = static_cast<gint64>(sizeof(PTRNHEDR)) +
                        static_cast<gint64>(sizeof(PTRNFILE)) * header.DataCount + header.TextSize;
  return input.Size() < wanted ? LayoutFileState::Broken : LayoutFileState::Whole;
}
