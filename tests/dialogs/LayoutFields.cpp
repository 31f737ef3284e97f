// Each control of the layout settings, and what becomes of the changes.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnMisc.h"
#include "layout/LayoutCommands.h"
#include "tests/common/TempFolder.h"
#include "tests/dialogs/Controls.h"
#include "tests/dialogs/Fields.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

namespace {

constexpr const gchar* ParentTitle = "レイアウト情報の設定［親ウィンドウ］";
constexpr const gchar* ChildTitle = "レイアウト情報の設定［子ウィンドウ］";
constexpr const gchar* OtherTitle = "レイアウト情報の設定［その他］";

gint* Parm1(gint no) {
  return EditHedr.Parm1 + no;
}

gint* Parm2(gint no) {
  return EditHedr.Parm2 + no;
}

std::vector<Field> ParentFields() {
  return {NumberField(0, 1, Parm1(8), 30),     ColourField(0, 2, Parm1(10), 11),
          TextField(1, 1, EditHedr.PtrnName1), TextField(2, 1, EditHedr.PtrnName2),
          TextField(3, 1, EditHedr.PtrnName3), ChoiceField(4, 1, Parm1(11), 2),
          RadioField(5, 2, Parm1(4), 1),       RadioField(5, 1, Parm1(4), 0),
          ColourField(5, 3, Parm1(9), 12),     ColourField(6, 1, Parm1(19), 13),
          CheckField(6, 3, Parm1(20)),         TextField(7, 1, EditHedr.BmapName),
          NumberField(8, 1, Parm1(21), 99),    ColourField(8, 2, Parm1(22), 14),
          RadioField(9, 2, Parm1(25), 1),      RadioField(9, 3, Parm1(25), 2),
          RadioField(9, 1, Parm1(25), 0),      ColourField(10, 1, Parm1(27), 15),
          ColourField(10, 2, Parm1(28), 16),   CheckField(11, 1, Parm2(7)),
          CheckField(11, 3, Parm1(29))};
}

std::vector<Field> ChildFields() {
  return {NumberField(0, 1, Parm1(1), 9999),   NumberField(0, 2, Parm1(2), 400),
          NumberField(1, 1, Parm1(5), 21),     NumberField(1, 2, Parm1(6), 22),
          CheckField(1, 4, Parm1(7)),          NumberField(2, 1, Parm1(8), 30),
          ColourField(2, 2, Parm1(10), 11),    TextField(3, 1, EditHedr.PtrnName1),
          TextField(4, 1, EditHedr.PtrnName2), TextField(5, 1, EditHedr.PtrnName3),
          ChoiceField(6, 1, Parm1(11), 2),     RadioField(7, 2, Parm1(4), 1),
          RadioField(7, 1, Parm1(4), 0),       ColourField(7, 3, Parm1(9), 12),
          ColourField(8, 1, Parm1(19), 13),    CheckField(8, 3, Parm1(20)),
          TextField(9, 1, EditHedr.BmapName),  NumberField(10, 1, Parm1(23), 7),
          ColourField(10, 2, Parm1(24), 14),   RadioField(11, 2, Parm1(25), 1),
          RadioField(11, 3, Parm1(25), 2),     RadioField(11, 1, Parm1(25), 0),
          CheckField(12, 1, Parm1(26)),        ColourField(13, 1, Parm1(27), 15),
          ColourField(13, 2, Parm1(28), 16),   CheckField(14, 1, Parm2(8)),
          CheckField(14, 3, Parm1(29))};
}

std::vector<Field> OtherFields() {
  return {NumberField(0, 1, Parm1(1), 9999), NumberField(0, 2, Parm1(2), 400),
          NumberField(1, 1, Parm1(5), 21),   NumberField(1, 2, Parm1(6), 22),
          CheckField(1, 3, Parm1(4)),        TextField(2, 1, EditHedr.PtrnName1),
          ColourField(3, 1, Parm1(19), 13),  NumberField(4, 1, Parm1(23), 7),
          ColourField(4, 2, Parm1(24), 14),  RadioField(5, 2, Parm1(25), 1),
          RadioField(5, 3, Parm1(25), 2),    RadioField(5, 1, Parm1(25), 0),
          CheckField(6, 1, Parm1(26)),       ColourField(7, 1, Parm1(27), 15),
          ColourField(7, 2, Parm1(28), 16),  CheckField(8, 1, Parm1(29))};
}

struct Page {
  gint Kind;
  const gchar* Title;
  std::vector<Field> (*Fields)();
};
constexpr Page Pages[] = {
    {0, ParentTitle, ParentFields}, {1, ChildTitle, ChildFields}, {2, OtherTitle, OtherFields}};

const std::function<void(GtkWidget*)> Leavings[] = {PressButton(" 取消 "), CloseByManager};

}  // namespace

class LayoutFields : public WindowTest {
 protected:
  LayoutFields() {
    WriteProfile(
        "[FONT]\nFONTNAME0=A,-*-fixed-medium-r-normal--14-*\n"
        "FONTNAME1=B,-*-fixed-medium-r-normal--14-*\n"
        "FONTNAME2=C,-*-fixed-medium-r-normal--14-*\n");
    OpenWindow();
    CopyText(ProjPath, Project.Path());
    CopyText(ProjName, "works");
    Language = 2;
    OpenLayout();
  }
  static void OpenLayout() {
    PtrnFlag = 1;
    PtrnHedr = {};
    PtrnHedr.Parm1[1] = 640;
    PtrnHedr.Parm1[2] = 480;
    CopyText(PtrnHedr.PtrnName1, "one");
    CopyText(PtrnHedr.PtrnName2, "two");
    CopyText(PtrnHedr.PtrnName3, "three");
    CopyText(PtrnName, "one");
  }
  // Opens the settings of the open layout as the menu does.
  static void Edit(const Page& page, const std::function<void(GtkWidget*)>& act) {
    PtrnHedr.Parm1[0] = page.Kind;
    const DialogAnswer answer(page.Title, [&](GtkWidget* dialog) {
      act(dialog);
      if (FindWindow(page.Title) == dialog) CloseByManager(dialog);
    });
    PtrnDataEdit(nullptr, nullptr);
  }
  static void UseAll(const Page& page, GtkWidget* dialog) {
    ExpectBound(FindGrid(dialog), page.Fields(), &EditHedr, sizeof EditHedr);
  }

  TempFolder Project;
};

TEST_F(LayoutFields, EachControlWritesItsFieldAlone) {
  for (const Page& page : Pages) {
    SCOPED_TRACE(page.Title);
    Edit(page, [&page](GtkWidget* dialog) { UseAll(page, dialog); });
  }
}

TEST_F(LayoutFields, NothingElseCanBeEdited) {
  for (const Page& page : Pages) {
    Edit(page, [&page](GtkWidget* dialog) {
      gint editable = 0;
      for (const Field& field : page.Fields()) {
        if (!(field.Kind == FieldKind::Radio && field.Value == 0)) editable++;
      }
      // A group of radio buttons has one for the value 0.
      gint zeros = 0;
      for (const Field& field : page.Fields()) {
        if (field.Kind == FieldKind::Radio && field.Value == 0) zeros++;
      }
      // The child's "中央" shares its field with the title position.
      const gint shared = page.Kind == 1 ? 1 : 0;
      EXPECT_EQ(CountOf(dialog, GTK_TYPE_ENTRY) + CountOf(dialog, GTK_TYPE_CHECK_BUTTON) +
                    CountOf(dialog, GTK_TYPE_COMBO_BOX) + CountOf(dialog, GTK_TYPE_DRAWING_AREA),
                editable + zeros + shared)
          << page.Title;
    });
  }
}

TEST_F(LayoutFields, SetKeepsTheChanges) {
  for (const Page& page : Pages) {
    PTRNHEDR edited{};
    OpenLayout();
    Edit(page, [&](GtkWidget* dialog) {
      UseAll(page, dialog);
      edited = EditHedr;
      PressButton(" 設定 ")(dialog);
    });
    EXPECT_EQ(std::memcmp(&PtrnHedr, &edited, sizeof edited), 0) << page.Title;
    EXPECT_EQ(PtrnFlag, 2);
    EXPECT_STREQ(PtrnName, StoredText);
  }
}

TEST_F(LayoutFields, CancelAndCloseRestoreTheLayout) {
  for (const Page& page : Pages) {
    for (const auto& leave : Leavings) {
      PtrnHedr.Parm1[0] = page.Kind;
      const PTRNHEDR before = PtrnHedr;
      Edit(page, [&](GtkWidget* dialog) {
        UseAll(page, dialog);
        leave(dialog);
      });
      EXPECT_EQ(std::memcmp(&PtrnHedr, &before, sizeof before), 0) << page.Title;
      EXPECT_EQ(PtrnFlag, 1);
      EXPECT_STREQ(PtrnName, "one");
    }
  }
}

TEST_F(LayoutFields, TheTwoControlsOfTheTitlePositionShareTheirField) {
  Edit(Pages[1], [](GtkWidget* dialog) {
    GtkWidget* grid = FindGrid(dialog);
    GtkWidget* check = ControlAt(grid, 1, 3, GTK_TYPE_CHECK_BUTTON);
    gtk_button_clicked(GTK_BUTTON(check));
    EXPECT_EQ(+EditHedr.Parm1[4], 1);
    gtk_button_clicked(GTK_BUTTON(check));
    EXPECT_EQ(+EditHedr.Parm1[4], 0);
    gtk_button_clicked(GTK_BUTTON(ControlAt(grid, 7, 2, GTK_TYPE_RADIO_BUTTON)));
    EXPECT_EQ(+EditHedr.Parm1[4], 1);
  });
}

TEST_F(LayoutFields, NumbersKeepTheirRanges) {
  Edit(Pages[1], [](GtkWidget* dialog) {
    GtkWidget* grid = FindGrid(dialog);
    const struct {
      gint Line;
      gint Column;
      gint Slot;
      gint Least;
      gint Greatest;
    } ranges[] = {{0, 1, 1, 10, 9999}, {0, 2, 2, 10, 9999}, {1, 1, 5, 10, 9999},
                  {1, 2, 6, 10, 9999}, {2, 1, 8, 0, 99},    {10, 1, 23, 0, 99}};
    for (const auto& range : ranges) {
      auto* spin = GTK_SPIN_BUTTON(ControlAt(grid, range.Line, range.Column, GTK_TYPE_SPIN_BUTTON));
      gtk_spin_button_set_value(spin, 123456);
      EXPECT_EQ(+EditHedr.Parm1[range.Slot], range.Greatest);
      gtk_spin_button_set_value(spin, -5);
      EXPECT_EQ(+EditHedr.Parm1[range.Slot], range.Least);
    }
  });
}

TEST_F(LayoutFields, TextsAreLimitedInBytes) {
  Edit(Pages[0], [](GtkWidget* dialog) {
    GtkWidget* grid = FindGrid(dialog);
    GtkWidget* title = ControlAt(grid, 1, 1, GTK_TYPE_ENTRY);
    gtk_entry_set_text(GTK_ENTRY(title), std::string(80, 'x').c_str());
    Type(title, "x");
    EXPECT_STREQ(EditHedr.PtrnName1, std::string(80, 'x').c_str());
    GtkWidget* bitmap = ControlAt(grid, 7, 1, GTK_TYPE_ENTRY);
    gtk_entry_set_text(GTK_ENTRY(bitmap), std::string(20, 'x').c_str());
    Type(bitmap, "x");
    EXPECT_STREQ(EditHedr.BmapName, std::string(20, 'x').c_str());
  });
}

// The bitmap's browse button.

TEST_F(LayoutFields, BrowsingCopiesThePictureAndNamesIt) {
  const std::string home = g_getenv("HOME") != nullptr ? g_getenv("HOME") : "";
  TempFolder folder;
  folder.Write("pictures/sea.png", "picture");
  g_setenv("HOME", folder.Path().c_str(), TRUE);
  SetBmapPath();
  CreateFolder(BmapPath);
  for (const gint kind : {0, 1}) {
    Edit(Pages[kind], [kind](GtkWidget* dialog) {
      {
        const DialogAnswer answer("画像ファイル選択", ChooseFirstFile);
        PressButton("参照")(dialog);
      }
      EXPECT_STREQ(EditHedr.BmapName, "sea.png");
      EXPECT_EQ(EntryText(ControlAt(FindGrid(dialog), kind == 0 ? 7 : 9, 1, GTK_TYPE_ENTRY)),
                "sea.png");
    });
  }
  EXPECT_EQ(Project.Read("Bitmap/sea.png"), "picture");
  g_setenv("HOME", home.c_str(), TRUE);
}

TEST_F(LayoutFields, ACancelledBrowseChangesNothing) {
  CopyText(PtrnHedr.BmapName, "old.png");
  Edit(Pages[0], [](GtkWidget* dialog) {
    {
      const DialogAnswer answer("画像ファイル選択", CloseByManager);
      PressButton("参照")(dialog);
    }
    EXPECT_STREQ(EditHedr.BmapName, "old.png");
  });
}
