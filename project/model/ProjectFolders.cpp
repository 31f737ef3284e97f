#include <cstring>
#include <string>

#include "layout/ProjectRecord.h"
#include "project/ProjectFiles.h"
#include "support/FileTools.h"
#include "support/Files.h"
#include "support/Program.h"
#include "support/Text.h"

namespace {

constexpr char BitmapFolder[] = "Bitmap";

void CopyFiles(const std::string& from, const std::string& to) {
  CopyFolder(from.c_str(), to.c_str());
}

bool MakeBitmapFolder(const gchar* path) {
  return CreateFolder(JoinPath(path, BitmapFolder, "").c_str()) != 0;
}

}  // namespace

void ProjFileCopy1(const gchar* path) {
  if (!MakeBitmapFolder(path)) return;
  const std::string templates = JoinPath(PathName, "VarnixData", "");
  CopyFiles(JoinPath(templates, BitmapFolder, ""), JoinPath(path, BitmapFolder, ""));
  // Template layouts go straight into the project folder.
  CopyFiles(JoinPath(templates, "Ptrn", ""), path);
}

void ProjFileCopy2(const gchar* path1, const gchar* path2) {
  if (std::strcmp(path1, path2) == 0) return;
  if (MakeBitmapFolder(path2)) {
    CopyFiles(JoinPath(path1, BitmapFolder, ""), JoinPath(path2, BitmapFolder, ""));
  }
  CopyFiles(path1, path2);
}

void ProjFileCopy3(const gchar* path1, const gchar* path2) {
  if (std::strcmp(path1, path2) != 0) CopyFiles(path1, path2);
}

void SetBmapPath() {
  if (ProjPath[0] == '\0') {
    BmapPath[0] = '\0';
    return;
  }
  MakePath(BmapPath, ProjPath, BitmapFolder, "");
}

void EnterProject(std::string_view folder, std::string_view name) {
  ProjFlag = 1;
  CopyText(ProjName, name);
  CopyText(ProjPath, folder);
  SetBmapPath();
}
