#include "layout/dialog/LayoutList.h"

#include <string>

#include "dialogs/choosers/NameList.h"
#include "layout/ProjectRecord.h"
#include "layout/Records.h"
#include "support/FileTools.h"
#include "support/Files.h"

gchar PtrnFileName[82];

void ListLayouts(GtkWidget* list, bool incomplete) {
  ClearNames(list);
  VisitFiles(ProjPath, "*.ptn", [list, incomplete](const std::string& file) {
    const std::string name = file.substr(0, file.find('.'));
    if (incomplete) {
      PTRNHEDR header{};
      FileRead(ProjPath, file.c_str(), "", &header, sizeof header, 0);
      if (header.UndfFlag == 0) return;
    }
    if (name.size() < sizeof PtrnFileName) {
      AddName(list, name, name);
    } else {
      AddUnusableName(list, name, "名称が長すぎるため、開くことも削除することもできません。");
    }
  });
}
