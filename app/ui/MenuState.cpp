#include <iterator>

#include "ProjData.h"
#include "PtrnData.h"
#include "app/ui/MenuRows.h"
#include "layout/ProjectSlots.h"
#include "support/Resource.h"

namespace {

bool ProjectOpen() {
  return ProjFlag != 0;
}

bool LayoutOpen() {
  return PtrnFlag != 0;
}

bool NoLayout() {
  return !LayoutOpen();
}

bool ProjectWithoutLayout() {
  return ProjectOpen() && NoLayout();
}

bool LayoutChanged() {
  return PtrnFlag == 2;
}

bool UndoPossible() {
  return LayoutOpen() && PtrnSaveCount != 0;
}

bool SecondLanguage() {
  return LayoutOpen() && ProjData.Parm1[ProjectSlot::Languages] > 0;
}

bool ThirdLanguage() {
  return LayoutOpen() && ProjData.Parm1[ProjectSlot::Languages] > 1;
}

bool FourColours() {
  return LayoutOpen() && ProjData.Parm1[ProjectSlot::ColourSystems] != 0;
}

// Neighbouring entries and when they can be used.
struct EnableRule {
  GtkWidget** Slots;
  gint Count;
  bool (*Enabled)();
};
constexpr EnableRule EnableRules[] = {
    {&FileMenu[0], 2, NoLayout},
    {&FileMenu[2], 2, ProjectWithoutLayout},
    {&FileMenu[4], 4, ProjectOpen},
    {&FileMenu[8], 1, LayoutOpen},
    {&FileMenu[9], 1, LayoutChanged},
    {&FileMenu[10], 1, LayoutOpen},
    {&EditMenu[0], 1, UndoPossible},
    {&EditMenu[1], 1, LayoutOpen},
    {&EditMenu[2], 2, ProjectOpen},
    {PtrnSlct[0], ItemTypeCount, LayoutOpen},
    {PtrnSlct[1], ItemTypeCount, LayoutOpen},
    {PtrnSlct[2], ItemTypeCount, LayoutOpen},
    {DispMenu, 4, LayoutOpen},
    {PtrnZoom1, ZoomCode::Count, LayoutOpen},
    {PtrnZoom2, ZoomCode::Count, LayoutOpen},
    {&PtrnSetLang[0], 1, LayoutOpen},
    {&PtrnSetLang[1], 1, SecondLanguage},
    {&PtrnSetLang[2], 1, ThirdLanguage},
    {&PtrnSetColr[0], 2, LayoutOpen},
    {&PtrnSetColr[2], 2, FourColours},
};

// Neighbouring check entries and what the mark of entry i stands for.
struct MarkRule {
  GtkWidget** Slots;
  gint Count;
  bool (*Marked)(gint i);
};
bool TypeChosen(gint i) {
  return PtrnType == i + 1;
}

bool TypeUnpickable(gint i) {
  return PtrnUnSlct[i] != 0;
}

bool GridShown(gint /*i*/) {
  return PtrnHedr.Parm2[ViewSlot::GridShown] != 0;
}

bool ZoomChosen(gint i) {
  return PtrnHedr.Parm2[ViewSlot::Zoom] == i;
}

bool ColourChosen(gint i) {
  return ColorCode == i;
}

bool LanguageChosen(gint i) {
  return Language == i;
}

constexpr MarkRule MarkRules[] = {
    {PtrnSlct[0], ItemTypeCount, TypeChosen},
    {PtrnSlct[1], ItemTypeCount, TypeChosen},
    {PtrnSlct[2], ItemTypeCount, TypeUnpickable},
    {&DispMenu[1], 1, GridShown},
    {&DispMenu[3], 1, GridShown},
    {PtrnZoom1, ZoomCode::Count, ZoomChosen},
    {PtrnZoom2, ZoomCode::Count, ZoomChosen},
    {PtrnSetColr, 4, ColourChosen},
    {PtrnSetLang, 3, LanguageChosen},
};

gint MarksBeingSet;

}  // namespace

void SetMainMenu() {
  for (const EnableRule& rule : EnableRules) {
    for (gint i = 0; i < rule.Count; i++) {
      if (rule.Slots[i] != nullptr) gtk_widget_set_sensitive(rule.Slots[i], rule.Enabled());
    }
  }
}

void SetMenuActive1() {
  MarksBeingSet++;
  // A mark that changes runs its entry's command, which finds its own state reached already.
  for (const MarkRule& rule : MarkRules) {
    for (gint i = 0; i < rule.Count; i++) {
      if (rule.Slots[i] != nullptr) {
        gtk_check_menu_item_set_active(GTK_CHECK_MENU_ITEM(rule.Slots[i]), rule.Marked(i));
      }
    }
  }
  MarksBeingSet--;
}

void MarkToggled(GtkWidget* /*widget*/, gpointer /*data*/) {
  // A click on the entry that is on turns its mark off without a change behind it.
  if (MarksBeingSet == 0) SetMenuActive1();
}

void SetMenuActive2(gint flags) {
  for (gsize i = 0; i < std::size(ToolBoxMenu); i++) {
    if (ToolBoxMenu[i] != nullptr) gtk_widget_set_sensitive(ToolBoxMenu[i], (flags >> i & 1) != 0);
  }
  SetToolBoxButton(flags);
}
