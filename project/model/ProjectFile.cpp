#include <cstring>

#include "layout/ProjectRecord.h"
#include "project/ProjectFiles.h"
#include "project/model/ProjectTexts.h"
#include "support/FileTools.h"
#include "support/Files.h"
#include "support/Program.h"
#include "support/Text.h"

namespace {

constexpr gchar Extension[] = "prj";

// A text ends within its field, and nothing is left behind its end.
template <std::size_t Size>
void CleanField(gchar (&field)[Size]) {
  const std::size_t length = strnlen(field, Size - 1);
  std::memset(field + length, 0, Size - length);
}

template <std::size_t Size>
void ClearUnlessLayout(gchar (&layout)[Size], const gchar* path) {
  if (IsMissing(JoinPath(path, FieldText(layout), "ptn"))) std::memset(layout, 0, Size);
}

}  // namespace

PROJDATA CleanTexts(PROJDATA data) {
  CleanField(data.ProgPath);
  CleanField(data.LogoName);
  CleanField(data.PtrnStart);
  CleanField(data.PtrnStop);
  return data;
}

gint ProjFileRead(const gchar* path, const gchar* name) {
  PROJFILE file;
  if (!FileRead(path, name, Extension, &file, sizeof file, 0)) return 0;
  ProjData = CleanTexts(file.Data);
  ProfileRenew(path, name);
  return 1;
}

gint ProjFileWrite(const gchar* path, const gchar* name) {
  if (*path == '\0' || *name == '\0') return 0;
  ClearUnlessLayout(ProjData.PtrnStart, path);
  ClearUnlessLayout(ProjData.PtrnStop, path);
  const PROJFILE file{Version, CleanTexts(ProjData)};
  CreateFolder(path);
  if (!FileWrite(path, name, Extension, &file, sizeof file, 0)) return 0;
  ProjFileRenew(path);
  ProfileRenew(path, name);
  return 1;
}
