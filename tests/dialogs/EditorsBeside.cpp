// The editors of palette and marks while project settings stand open: these leave the menu usable.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "ProjData.h"
#include "PtrnMisc.h"
#include "dialogs/Editors.h"
#include "layout/Screen.h"
#include "tests/common/TempFolder.h"
#include "tests/dialogs/Controls.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

namespace {

using Act = std::function<void(GtkWidget*)>;

constexpr const gchar* SettingsTitle = "プロジェクトの新規作成";
constexpr COLRDATA Orange = {65535, 32896, 0};

// The swatch of a number, which count down or along by tens.
GtkWidget* Swatch(GtkWidget* dialog, gint line, gint culm) {
  return ControlAt(FindGrid(dialog), line, culm, GTK_TYPE_DRAWING_AREA);
}

// Answers the editor of colour 37 with orange.
void PressColour37(GtkWidget* palette, guint button) {
  const DialogAnswer colour("表示色作成", [](GtkWidget* dialog) {
    const GdkRGBA rgba = {Orange.red / 65535.0, Orange.green / 65535.0, Orange.blue / 65535.0, 1};
    gtk_color_chooser_set_rgba(GTK_COLOR_CHOOSER(dialog), &rgba);
    gtk_dialog_response(GTK_DIALOG(dialog), GTK_RESPONSE_OK);
  });
  Press(Swatch(palette, 7, 3), button);
}

// Sets the upper left pixel of mark 7.
void PressMark7(GtkWidget* marks, guint button) {
  const DialogAnswer editor("マーク作成", [](GtkWidget* dialog) {
    Press(FindWidget(dialog,
                     [](GtkWidget* widget) {
                       gint width = 0;
                       gtk_widget_get_size_request(widget, &width, nullptr);
                       return GTK_IS_DRAWING_AREA(widget) && width == 16 * 8 + 2;
                     }),
          1);
    PressButton("設定")(dialog);
  });
  Press(Swatch(marks, 0, 7), button);
}

void ChooseEditEntry(const gchar* entry) {
  gtk_menu_item_activate(GTK_MENU_ITEM(MenuEntry(MenuBar(), {"編集", entry})));
}

void UsePaletteOfMenu(GtkWidget* /*settings*/) {
  const DialogAnswer answer("表示色設定", [](GtkWidget* palette) {
    PressColour37(palette, 1);
    PressButton(" 設定 ")(palette);
  });
  ChooseEditEntry("表示色設定");
}

void UsePaletteOfSettings(GtkWidget* settings) {
  const DialogAnswer answer("表示色設定", [](GtkWidget* palette) {
    PressColour37(palette, 1);
    PressButton(" 設定 ")(palette);
  });
  PressButton(" 表示色設定 ")(settings);
}

void UseColourPicker(GtkWidget* settings) {
  const DialogAnswer answer("表示色選択", [](GtkWidget* picker) {
    PressColour37(picker, 3);
    CloseByManager(picker);
  });
  Dlg_ColrSelect(settings);
}

void UseMarksOfMenu(GtkWidget* /*settings*/) {
  const DialogAnswer answer("マーク設定", [](GtkWidget* marks) {
    PressMark7(marks, 1);
    PressButton(" 設定 ")(marks);
  });
  ChooseEditEntry("マーク設定");
}

void UseMarkPicker(GtkWidget* settings) {
  const DialogAnswer answer("マーク選択", [](GtkWidget* picker) {
    PressMark7(picker, 3);
    CloseByManager(picker);
  });
  Dlg_MarkSelect(settings);
}

bool ColourIsOrange() {
  return ColrData[37].red == Orange.red;
}

bool MarkIsSet() {
  return MarkData[7].mark[0] == 1;
}

const struct {
  const gchar* Name;
  void (*Use)(GtkWidget* settings);
  bool (*Changed)();
} Editors[] = {{"palette of the menu", UsePaletteOfMenu, ColourIsOrange},
               {"palette of the settings", UsePaletteOfSettings, ColourIsOrange},
               {"colour picker", UseColourPicker, ColourIsOrange},
               {"marks of the menu", UseMarksOfMenu, MarkIsSet},
               {"mark picker", UseMarkPicker, MarkIsSet}};

}  // namespace

class EditorsBeside : public WindowTest {
 protected:
  EditorsBeside() {
    WriteProfile("");
    OpenWindow();
    ProjFlag = 1;
    ProjData = {};
    CopyText(ProjName, "open");
    CopyText(ProjPath, Folder.Path("open"));
    std::filesystem::create_directories(ProjPath);
    SetBmapPath();
    SetMainMenu();
  }
  ~EditorsBeside() override {
    ProjFlag = 0;
    ProjName[0] = ProjPath[0] = BmapPath[0] = '\0';
    ProjData = EditData = {};
    for (COLRDATA& colour : ColrData) colour = {};
    for (MARKDATA& mark : MarkData) mark = {};
  }
  static void Command(void (*command)(GtkWidget*, gpointer), const Act& act) {
    const DialogAnswer answer(SettingsTitle, [&](GtkWidget* settings) {
      act(settings);
      if (FindWindow(SettingsTitle) == settings) CloseByManager(settings);
    });
    command(nullptr, nullptr);
  }
  bool Written(const gchar* file) const { return Folder.Exists(std::string("open/") + file); }

  TempFolder Folder;
};

TEST_F(EditorsBeside, WriteNothingForANewProjectThatIsCancelled) {
  for (const auto& editor : Editors) {
    SCOPED_TRACE(editor.Name);
    Command(ProjDataNew, [&](GtkWidget* settings) {
      editor.Use(settings);
      EXPECT_TRUE(editor.Changed());
      EXPECT_FALSE(Written("PtrnColr") || Written("PtrnMark"));
    });
    EXPECT_FALSE(ColourIsOrange() || MarkIsSet());
    EXPECT_FALSE(Written("PtrnColr") || Written("PtrnMark"));
  }
}

TEST_F(EditorsBeside, WriteIntoTheNewProjectOnceItIsRegistered) {
  Command(ProjDataNew, [this](GtkWidget* settings) {
    CopyText(EditName, "new");
    CopyText(EditPath, Folder.Path("new"));
    CopyText(EditData.ProgPath, Folder.Path());
    for (const auto& editor : Editors) editor.Use(settings);
    PressButton(" 登録 ")(settings);
  });
  EXPECT_EQ(Folder.Read("new/PtrnColr").substr(37 * 12, 8),
            std::string("\xFF\xFF\0\0\x80\x80\0\0", 8));
  EXPECT_EQ(Folder.Read("new/PtrnMark")[7 * 512], 1);
  EXPECT_FALSE(Written("PtrnColr") || Written("PtrnMark"));
}

TEST_F(EditorsBeside, SaveAtOnceBesideTheSettingsOfTheOpenProject) {
  for (const auto& editor : Editors) {
    SCOPED_TRACE(editor.Name);
    ColrData[37] = {};
    MarkData[7] = {};
    SaveColrFile();
    SaveMarkFile();
    Command(ProjDataEdit, [&](GtkWidget* settings) { editor.Use(settings); });
    EXPECT_TRUE(editor.Changed());
    // And so do the files.
    LoadColrFile();
    LoadMarkFile();
    EXPECT_TRUE(editor.Changed());
  }
}

// The button opens the settings anew.
TEST_F(EditorsBeside, RestoredDefaultsGoWithTheSettings) {
  WriteProfile("[PROJDATA]\nCOLOR37=9,9,9\n");
  std::optional<DialogAnswer> again;
  Command(ProjDataEdit, [&again](GtkWidget* settings) {
    UsePaletteOfSettings(settings);
    PressButton(" 既定値に戻す ")(settings);
    again.emplace(SettingsTitle, [](GtkWidget* reopened) {
      EXPECT_EQ(ColrData[37].red, 9);
      CloseByManager(reopened);
    });
  });
  again.reset();
  EXPECT_EQ(ColrData[37].red, Orange.red);
  SaveColrFile();
  EXPECT_EQ(Folder.Read("open/PtrnColr")[37 * 12], '\xFF');
}
