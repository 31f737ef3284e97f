// The pickers behind the tool box's browse buttons.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnMisc.h"
#include "dialogs/ToolBox.h"
#include "tests/common/Bytes.h"
#include "tests/common/TempFolder.h"
#include "tests/dialogs/Controls.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

constexpr const gchar* PageTitle = "画面名称選択";
constexpr const gchar* CodeTitle = "識別コード選択";
constexpr const gchar* Text1Title = "固定文字列 (言語１) 選択";
constexpr const gchar* PictureTitle = "画像ファイル選択";

GtkWidget* ListOf(GtkWidget* picker) {
  return FindKind(picker, GTK_TYPE_TREE_VIEW);
}

// Clicks a row of the picker's list.
void ClickRow(GtkWidget* picker, gint row) {
  auto* list = GTK_TREE_VIEW(ListOf(picker));
  GtkTreePath* path = gtk_tree_path_new_from_indices(row, -1);
  gtk_tree_view_row_activated(list, path, gtk_tree_view_get_column(list, 0));
  gtk_tree_path_free(path);
}

// The browse button of a row of the open panel.
void Browse(gint line, gint culm = 4) {
  GtkWidget* button = ControlAt(FindGrid(ToolBox), line, culm, GTK_TYPE_BUTTON);
  ASSERT_NE(button, nullptr);
  gtk_button_clicked(GTK_BUTTON(button));
}

GtkWidget* EntryAt(gint line) {
  return ControlAt(FindGrid(ToolBox), line, 1, GTK_TYPE_ENTRY);
}

std::string CodeRecord(const std::string& code) {
  return Bytes().Field(code, 22).Ints({1, 2, 3}).Str();
}

}  // namespace

class Pickers : public WindowTest {
 protected:
  Pickers() {
    WriteProfile("");
    OpenWindow();
    CopyText(ProjPath, Project.Path());
    SetBmapPath();
    std::filesystem::create_directory(Project.Path("Bitmap"));
  }
  void Open(gint type, gint language = 0) {
    Language = language;
    Dlg_ToolBox(PtrnWnd, type);
  }

  TempFolder Project;
};

TEST_F(Pickers, ScreenNamesAreTheProjectsLayouts) {
  Project.Write("first.ptn", "x");
  Project.Write("\xC6\xFC\xCB\xDC.ptn", "x");
  Project.Write(".hidden.ptn", "x");
  Project.Write("other.prj", "x");
  Open(2);
  std::string chosen;
  {
    const DialogAnswer answer(PageTitle, [&chosen](GtkWidget* picker) {
      EXPECT_THAT(RowTexts(ListOf(picker)), UnorderedElementsAre("first", "日本"));
      chosen = RowTexts(ListOf(picker))[1];
      ClickRow(picker, 1);
    });
    Browse(8);
  }
  EXPECT_EQ(EntryText(EntryAt(8)), chosen);
  EXPECT_STREQ(PtrnData.ID_Name, chosen == "first" ? "first" : "\xC6\xFC\xCB\xDC");
}

constexpr const gchar* TooLong = "長すぎるため、この欄には入りません。";

TEST_F(Pickers, ANameThatTheFieldCannotHoldIsShownAndNotTaken) {
  const std::string fits(80, 'x');
  Project.Write(fits + ".ptn", "x");
  Project.Write(fits + "y.ptn", "x");
  Open(2);
  const DialogAnswer answer(PageTitle, [&](GtkWidget* picker) {
    ExpectUnusable(ListOf(picker), fits + "y", TooLong);
    ActivateText(ListOf(picker), fits);
  });
  Browse(8);
  EXPECT_EQ(PtrnData.ID_Name, fits);
}

TEST_F(Pickers, ACodeOrTextThatTheFieldCannotHoldIsShownAndNotTaken) {
  const std::string code(20, 'C');
  const std::string text(100, 't');
  Project.Write("PtrnCode", CodeRecord(code + "D") + CodeRecord(code));
  Project.Write("PtrnText1", Bytes().Field(text + "u", 102).Field(text, 102).Str());
  Open(6);
  {
    const DialogAnswer answer(CodeTitle, [&](GtkWidget* picker) {
      ExpectUnusable(ListOf(picker), code + "D", TooLong);
      ActivateText(ListOf(picker), code);
    });
    Browse(9);
  }
  EXPECT_EQ(PtrnData.ID_Code, code);
  const DialogAnswer answer(Text1Title, [&](GtkWidget* picker) {
    ExpectUnusable(ListOf(picker), text + "u", TooLong);
    ActivateText(ListOf(picker), text);
  });
  Browse(1);
  EXPECT_EQ(PtrnData.Text1, text);
}

TEST_F(Pickers, AProjectWithoutLayoutsGivesAnEmptyList) {
  Open(2);
  const DialogAnswer answer(PageTitle, [](GtkWidget* picker) {
    EXPECT_THAT(RowTexts(ListOf(picker)), IsEmpty());
    CloseByManager(picker);
  });
  Browse(8);
}

TEST_F(Pickers, ClosingAListEmptiesTheField) {
  CopyText(PtrnData.ID_Name, "before");
  Open(2);
  const DialogAnswer answer(PageTitle, CloseByManager);
  Browse(8);
  EXPECT_STREQ(PtrnData.ID_Name, "");
  EXPECT_EQ(EntryText(EntryAt(8)), "");
}

TEST_F(Pickers, CodesStandInTheOrderOfTheRegistry) {
  Project.Write("PtrnCode", CodeRecord("ZULU") + CodeRecord("") + CodeRecord("ALFA") + "rest");
  Open(2);
  {
    const DialogAnswer answer(CodeTitle, [](GtkWidget* picker) {
      EXPECT_THAT(RowTexts(ListOf(picker)), ElementsAre("ZULU", "", "ALFA"));
      ClickRow(picker, 1);
      EXPECT_EQ(FindWindow(CodeTitle), picker) << "an empty row is no choice";
      ClickRow(picker, 2);
    });
    Browse(9);
  }
  EXPECT_STREQ(PtrnData.ID_Code, "ALFA");
  EXPECT_EQ(EntryText(EntryAt(9)), "ALFA");
}

TEST_F(Pickers, AMissingRegistryGivesAnEmptyList) {
  Open(2);
  const DialogAnswer answer(CodeTitle, [](GtkWidget* picker) {
    EXPECT_THAT(RowTexts(ListOf(picker)), IsEmpty());
    CloseByManager(picker);
  });
  Browse(9);
}

TEST_F(Pickers, StringsComeFromTheListOfTheFirstLanguage) {
  Project.Write("PtrnText1",
                Bytes().Field("one", 102).Field("", 102).Field("\xC6\xFC\xCB\xDC", 102).Str());
  Project.Write("PtrnText2", Bytes().Field("two", 102).Str());
  const struct {
    gint Type;
    gint Line;
  } pages[] = {{6, 1}, {9, 2}, {10, 1}, {11, 1}};
  for (const auto& page : pages) {
    for (gint language = 0; language < 3; language++) {
      SCOPED_TRACE(testing::Message() << "type " << page.Type << ", language " << language);
      PtrnData = {};
      Open(page.Type, language);
      {
        const DialogAnswer answer(Text1Title, [](GtkWidget* picker) {
          EXPECT_THAT(RowTexts(ListOf(picker)), ElementsAre("one", "", "日本"));
          ClickRow(picker, 2);
        });
        Browse(page.Line, language + 4);
      }
      EXPECT_STREQ(PtrnData.Text1, "\xC6\xFC\xCB\xDC");
      EXPECT_EQ(EntryText(EntryAt(page.Line)), "日本");
    }
  }
}

TEST_F(Pickers, EachLanguageHasItsList) {
  Project.Write("PtrnText2", Bytes().Field("two", 102).Str());
  Project.Write("PtrnText3", Bytes().Field("three", 102).Str());
  gchar field[102] = "";
  DLG_EDITBOX row = {0, 0, 0, 100, 0, field, nullptr};
  {
    const DialogAnswer answer("固定文字列 (言語２) 選択",
                              [](GtkWidget* picker) { ClickRow(picker, 0); });
    ToolBox_Text2(nullptr, &row);
  }
  EXPECT_STREQ(field, "two");
  {
    const DialogAnswer answer("固定文字列 (言語３) 選択",
                              [](GtkWidget* picker) { ClickRow(picker, 0); });
    ToolBox_Text3(nullptr, &row);
  }
  EXPECT_STREQ(field, "three");
}

TEST_F(Pickers, ATextThatIsNoneReachesTheRecordAsItIs) {
  Project.Write("PtrnText1", Bytes().Field("a\xFF", 102).Str());
  Open(6);
  {
    const DialogAnswer answer(Text1Title, [](GtkWidget* picker) { ClickRow(picker, 0); });
    Browse(1);
  }
  EXPECT_STREQ(PtrnData.Text1, "a\xFF");
  EXPECT_EQ(EntryText(EntryAt(1)), "a\\xFF");
}

TEST_F(Pickers, APictureIsCopiedIntoTheProject) {
  TempFolder home;
  home.Write("from/pump.PNG", "picture");
  const std::string oldHome = g_getenv("HOME") != nullptr ? g_getenv("HOME") : "";
  g_setenv("HOME", home.Path().c_str(), TRUE);
  Open(12);
  {
    const DialogAnswer answer(PictureTitle, [](GtkWidget* chooser) {
      SelectRow(chooser, "0:0");
      GtkWidget* tree = ListOf(chooser);
      GtkWidget* files = FindWidget(chooser, [tree](GtkWidget* widget) {
        return GTK_IS_TREE_VIEW(widget) && widget != tree;
      });
      SelectRow(files, "0");
      PressButton(" 選択 ")(chooser);
    });
    Browse(2);
  }
  EXPECT_STREQ(PtrnData.Text1, "pump.PNG");
  EXPECT_EQ(EntryText(EntryAt(2)), "pump.PNG");
  EXPECT_EQ(Project.Read("Bitmap/pump.PNG"), "picture");
  {
    const DialogAnswer answer(PictureTitle, CloseByManager);
    Browse(2);
  }
  EXPECT_STREQ(PtrnData.Text1, "pump.PNG");
  g_setenv("HOME", oldHome.c_str(), TRUE);
}
