#include "dialogs/Choosers.h"
#include "dialogs/kit/Cells.h"
#include "layout/ProjectRecord.h"
#include "layout/Screen.h"
#include "support/Files.h"
#include "support/KeptResources.h"
#include "support/Text.h"

bool TakePicture(const gchar* chosen, DLG_EDITBOX* row, std::string* folder) {
  gchar path[PathSize];
  gchar name[PathSize];
  gchar ext[PathSize];
  SplitPath(chosen, path, name, ext);
  const std::string stored = EucFromUtf8(name).value_or(name);
  gchar bare[PathSize];
  MakePath(bare, "", stored.c_str(), ext);
  if (std::string(bare).size() > static_cast<gsize>(row->size)) {
    const std::string limit =
        "拡張子を含めて " + std::to_string(row->size) + " バイト以内の名称にしてください。";
    Dlg_MessageBox(row->entry, "入力エラー", "画像ファイルの名称が長すぎます。", limit.c_str(), 1);
    return false;
  }
  if (folder != nullptr) *folder = path;
  const bool waits = folder != nullptr && ResourcesAreNewProjects();
  if (BmapPath[0] != '\0' && !waits) FileCopy(path, name, ext, BmapPath, stored.c_str(), ext);
  ShowChoice(row, bare);
  return true;
}
