#include "layout/dialog/LayoutList.h"

#include <string>

#include "dialogs/choosers/ChooserWindow.h"
#include "dialogs/choosers/NameList.h"
#include "dialogs/kit/Cells.h"
#include "layout/Records.h"
#include "layout/dialog/LayoutNames.h"
#include "project/ProjectRecord.h"
#include "support/FileTools.h"
#include "support/Files.h"

void ListLayouts(GtkWidget* list, bool incomplete) {
  ClearNames(list);
  VisitFiles(ProjPath, "*.ptn", [list, incomplete](const std::string& file) {
    const std::string name = file.substr(0, file.find('.'));
    if (incomplete) {
      PTRNHEDR header{};
      FileRead(ProjPath, file.c_str(), "", &header, sizeof header, 0);
      if (header.UndfFlag == 0) return;
    }
    if (name.size() < sizeof PtrnFileName)
      AddName(list, name, name);
    else
      AddUnusableName(list, name, "名称が長すぎるため、開くことも削除することもできません。");
  });
}

void AddLayoutList(const DialogWindow& dialog, GtkWidget* list) {
  gtk_container_set_border_width(GTK_CONTAINER(dialog.Content), 10);
  gtk_box_set_spacing(GTK_BOX(dialog.Content), 5);
  gtk_box_pack_start(GTK_BOX(dialog.Content), NewLabel("フォルダー"), FALSE, FALSE, 0);
  GtkWidget* scrolled = NewScrolled(list, GTK_POLICY_AUTOMATIC);
  gtk_widget_set_size_request(scrolled, 480, 260);
  gtk_box_pack_start(GTK_BOX(dialog.Content), scrolled, TRUE, TRUE, 0);
}
