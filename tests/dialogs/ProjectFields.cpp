// Each control of the project settings, its browse buttons, and what becomes of the changes.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnMisc.h"
#include "layout/Screen.h"
#include "tests/common/TempFolder.h"
#include "tests/dialogs/Controls.h"
#include "tests/dialogs/Fields.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

namespace {

constexpr const gchar* Title = "プロジェクトの新規作成";

enum Page { General, Parent, Child, Other };
enum ParentFrame { ParentTitle, ParentWork, ParentButtons };
enum ChildFrame { ChildTitle, ChildWork, ChildFrame };
enum OtherFrame { Cursor, Keys, Grid };

// The controls of a frame of a page.
struct FrameFields {
  gint Page;
  gint Frame;
  std::vector<Field> Fields;
};

std::vector<FrameFields> AllFields() {
  gint* const general = EditData.Parm1;
  gint* const parent = EditData.Parm2;
  gint* const child = EditData.Parm3;
  gint* const other = EditData.Parm4;
  return {
      {General,
       0,
       {ChoiceField(3, 1, general + 0, 6), RadioField(4, 2, general + 1, 1),
        RadioField(4, 3, general + 1, 2), RadioField(4, 1, general + 1, 0),
        RadioField(5, 2, general + 2, 1), RadioField(5, 1, general + 2, 0)}},
      {Parent,
       ParentTitle,
       {NumberField(0, 0, parent + 0, 99), ColourField(0, 1, parent + 1, 11),
        ColourField(0, 2, parent + 2, 12), CheckField(1, 0, parent + 5),
        ChoiceField(2, 1, parent + 3, 2), RadioField(3, 2, parent + 4, 1),
        RadioField(3, 1, parent + 4, 0), ChoiceField(4, 1, parent + 9, 3),
        ChoiceField(5, 1, parent + 10, 1), CheckField(6, 0, parent + 7),
        CheckField(6, 1, parent + 8), CheckField(6, 2, parent + 6)}},
      {Parent, ParentWork, {ColourField(0, 0, parent + 11, 13)}},
      {Parent,
       ParentButtons,
       {NumberField(0, 0, parent + 12, 56), ColourField(0, 1, parent + 13, 14)}},
      {Child,
       ChildTitle,
       {NumberField(0, 0, child + 0, 31), ColourField(0, 1, child + 1, 15),
        ColourField(0, 2, child + 2, 16), ChoiceField(1, 1, child + 3, 2),
        RadioField(2, 2, child + 4, 1), RadioField(2, 1, child + 4, 0)}},
      {Child, ChildWork, {ColourField(0, 0, child + 5, 17)}},
      {Child, ChildFrame, {NumberField(0, 0, child + 6, 9), ColourField(0, 1, child + 7, 18)}},
      {Other,
       Cursor,
       {RadioField(0, 1, other + 0, 1), RadioField(0, 2, other + 0, 2),
        RadioField(0, 0, other + 0, 0)}},
      {Other, Keys, {ColourField(0, 0, other + 1, 21), ColourField(0, 1, other + 2, 22)}},
      {Other,
       Grid,
       {ChoiceField(0, 1, other + 3, 4), ChoiceField(0, 3, other + 4, 11),
        ColourField(0, 4, other + 5, 23)}},
  };
}

GtkWidget* PageOf(GtkWidget* dialog, gint number) {
  auto* notebook = GTK_NOTEBOOK(FindKind(dialog, GTK_TYPE_NOTEBOOK));
  gtk_notebook_set_current_page(notebook, number);
  return gtk_notebook_get_nth_page(notebook, number);
}

GtkWidget* GridOf(GtkWidget* dialog, gint page, gint frame) {
  return GridsOf(PageOf(dialog, page)).at(static_cast<gsize>(frame));
}

void UseAll(GtkWidget* dialog) {
  for (const FrameFields& frame : AllFields()) {
    SCOPED_TRACE("page " + std::to_string(frame.Page) + ", frame " + std::to_string(frame.Frame));
    ExpectBound(GridOf(dialog, frame.Page, frame.Frame), frame.Fields, &EditData, sizeof EditData);
  }
}

void PressBrowse(GtkWidget* dialog, gint page, gint line) {
  gtk_button_clicked(GTK_BUTTON(
      ControlAt(GridOf(dialog, page, 0), line, page == General ? 4 : 3, GTK_TYPE_BUTTON)));
}

// Takes the first folder of the home folder.
void ChooseFirstFolder(GtkWidget* chooser) {
  SelectRow(chooser, "0:0");
  PressButton(" 選択 ")(chooser);
}

const std::function<void(GtkWidget*)> Leavings[] = {PressButton(" 取消 "), CloseByManager};

}  // namespace

class ProjectFields : public WindowTest {
 protected:
  ProjectFields() {
    const gchar* home = g_getenv("HOME");
    OldHome = home != nullptr ? home : "";
    g_setenv("HOME", Home.Path().c_str(), TRUE);
    WriteProfile(
        "[FONT]\nFONTNAME0=A,-*-fixed-medium-r-normal--14-*\n"
        "FONTNAME1=B,-*-fixed-medium-r-normal--14-*\n"
        "FONTNAME2=C,-*-fixed-medium-r-normal--14-*\n");
    OpenWindow();
    ProjFlag = 1;
    CopyText(ProjName, "works");
    CopyText(ProjPath, Works.Path());
    CopyText(ProjData.ProgPath, Works.Path("sources"));
    SetBmapPath();
    CreateFolder(BmapPath);
    ProjFileWrite(ProjPath, ProjName);
  }
  ~ProjectFields() override { g_setenv("HOME", OldHome.c_str(), TRUE); }

  // Opens the settings as the menu does: those of the open project, or of a new one.
  static void Edit(const std::function<void(GtkWidget*)>& act) { Open(ProjDataEdit, act); }
  static void Create(const std::function<void(GtkWidget*)>& act) { Open(ProjDataNew, act); }
  static void Open(void (*command)(GtkWidget*, gpointer),
                   const std::function<void(GtkWidget*)>& act) {
    const DialogAnswer answer(Title, [&](GtkWidget* dialog) {
      act(dialog);
      if (FindWindow(Title) == dialog) CloseByManager(dialog);
    });
    command(nullptr, nullptr);
  }

  TempFolder Home;
  TempFolder Works;
  std::string OldHome;
};

TEST_F(ProjectFields, EachControlWritesItsFieldAlone) {
  Edit([](GtkWidget* dialog) {
    UseAll(dialog);
    GtkWidget* name = ControlAt(GridOf(dialog, General, 0), 0, 1, GTK_TYPE_ENTRY);
    gtk_entry_set_text(GTK_ENTRY(name), TypedText);
    EXPECT_STREQ(EditName, StoredText);
  });
}

TEST_F(ProjectFields, PagesAndFramesStandInTheirOrder) {
  Edit([](GtkWidget* dialog) {
    auto* notebook = GTK_NOTEBOOK(FindKind(dialog, GTK_TYPE_NOTEBOOK));
    const gchar* tabs[] = {"全般", "親ウィンドウ", "子ウィンドウ", "その他"};
    ASSERT_EQ(gtk_notebook_get_n_pages(notebook), 4);
    const std::vector<std::string> frames[] = {{},
                                               {"タイトル領域", "作業領域", "ボタン領域"},
                                               {"タイトル領域", "作業領域", "外枠"},
                                               {"マウスカーソル形状", "キー入力時", "方眼表示"}};
    for (gint page = 0; page < 4; page++) {
      GtkWidget* child = gtk_notebook_get_nth_page(notebook, page);
      EXPECT_STREQ(gtk_notebook_get_tab_label_text(notebook, child), tabs[page]);
      std::vector<std::string> titles;
      FindWidget(child, [&titles](GtkWidget* widget) {
        const gchar* title = GTK_IS_FRAME(widget) && !GTK_IS_SCROLLED_WINDOW(widget)
                                 ? gtk_frame_get_label(GTK_FRAME(widget))
                                 : nullptr;
        if (title != nullptr) titles.emplace_back(title);
        return false;
      });
      EXPECT_EQ(titles, frames[page]);
    }
  });
}

TEST_F(ProjectFields, FoldersAndLogoAreNotTyped) {
  Edit([](GtkWidget* dialog) {
    const struct {
      gint Page;
      gint Line;
      bool Editable;
    } entries[] = {
        {General, 0, true}, {General, 1, false}, {General, 2, false}, {Parent, 1, false}};
    for (const auto& entry : entries) {
      GtkWidget* widget = ControlAt(GridOf(dialog, entry.Page, 0), entry.Line, 1, GTK_TYPE_ENTRY);
      EXPECT_EQ(gtk_editable_get_editable(GTK_EDITABLE(widget)) != FALSE, entry.Editable);
    }
  });
}

TEST_F(ProjectFields, RegisterKeepsTheChanges) {
  PROJDATA edited{};
  Edit([&edited](GtkWidget* dialog) {
    UseAll(dialog);
    CopyText(EditData.LogoName, "logo.png");
    edited = EditData;
    PressButton(" 登録 ")(dialog);
  });
  EXPECT_EQ(std::memcmp(&ProjData, &edited, sizeof edited), 0);
  EXPECT_EQ(Works.Read("works.prj").substr(4),
            std::string(reinterpret_cast<const char*>(&edited), sizeof edited));
}

TEST_F(ProjectFields, CancelAndCloseRestoreTheProject) {
  const std::string file = Works.Read("works.prj");
  const PROJDATA before = ProjData;
  for (const auto& leave : Leavings) {
    Edit([&leave](GtkWidget* dialog) {
      UseAll(dialog);
      CopyText(EditName, "other");
      leave(dialog);
    });
    EXPECT_EQ(std::memcmp(&ProjData, &before, sizeof before), 0);
    EXPECT_STREQ(ProjName, "works");
    EXPECT_EQ(Works.Read("works.prj"), file);
  }
}

TEST_F(ProjectFields, ARefusedRegistrationKeepsEveryEnteredValue) {
  Edit([](GtkWidget* dialog) {
    UseAll(dialog);
    GtkWidget* name = ControlAt(GridOf(dialog, General, 0), 0, 1, GTK_TYPE_ENTRY);
    gtk_entry_set_text(GTK_ENTRY(name), "");
    const PROJDATA entered = EditData;
    {
      const DialogAnswer answer("入力エラー", [](GtkWidget* box) {
        EXPECT_NE(FindLabel(box, "プロジェクト名が設定されていません。"), nullptr);
        PressButton(" 確認 ")(box);
      });
      PressButton(" 登録 ")(dialog);
    }
    EXPECT_EQ(FindWindow(Title), dialog);
    EXPECT_EQ(std::memcmp(&EditData, &entered, sizeof entered), 0);
    EXPECT_EQ(EntryText(name), "");
  });
}

// Browse buttons.

TEST_F(ProjectFields, FoldersComeFromTheChooser) {
  CreateFolder(Home.Path("chosen").c_str());
  const struct {
    gint Line;
    const gchar* Title;
    gchar* Text;
  } buttons[] = {{1, "プロジェクト領域へのパス", EditPath},
                 {2, "プログラム領域へのパス", EditData.ProgPath}};
  Edit([&](GtkWidget* dialog) {
    for (const auto& button : buttons) {
      const std::string before = button.Text;
      GtkWidget* entry = ControlAt(GridOf(dialog, General, 0), button.Line, 1, GTK_TYPE_ENTRY);
      {
        const DialogAnswer answer(button.Title, CloseByManager);
        PressBrowse(dialog, General, button.Line);
      }
      EXPECT_EQ(button.Text, before);
      EXPECT_EQ(EntryText(entry), before);
      {
        const DialogAnswer answer(button.Title, ChooseFirstFolder);
        PressBrowse(dialog, General, button.Line);
      }
      EXPECT_EQ(button.Text, Home.Path("chosen"));
      EXPECT_EQ(EntryText(entry), Home.Path("chosen"));
    }
  });
}

TEST_F(ProjectFields, TheLogoIsCopiedIntoTheBitmapFolder) {
  Home.Write("pictures/logo.png", "picture");
  Edit([this](GtkWidget* dialog) {
    {
      const DialogAnswer answer("ロゴマーク選択", ChooseFirstFile);
      PressBrowse(dialog, Parent, 1);
    }
    EXPECT_STREQ(EditData.LogoName, "logo.png");
    EXPECT_EQ(EntryText(ControlAt(GridOf(dialog, Parent, 0), 1, 1, GTK_TYPE_ENTRY)), "logo.png");
    EXPECT_EQ(Works.Read("Bitmap/logo.png"), "picture");
  });
}

TEST_F(ProjectFields, TheLogoFollowsTheProjectToAnotherFolder) {
  Home.Write("pictures/logo.png", "picture");
  TempFolder other;
  Edit([&other](GtkWidget* dialog) {
    {
      const DialogAnswer answer("ロゴマーク選択", ChooseFirstFile);
      PressBrowse(dialog, Parent, 1);
    }
    CopyText(EditPath, other.Path());
    PressButton(" 登録 ")(dialog);
  });
  EXPECT_EQ(other.Read("Bitmap/logo.png"), "picture");
}

// It waits for the folder that the project will have.
TEST_F(ProjectFields, TheLogoOfANewProjectStaysOutOfTheOpenOne) {
  Home.Write("pictures/logo.png", "picture");
  TempFolder fresh;
  Create([&fresh](GtkWidget* dialog) {
    CopyText(EditName, "fresh");
    CopyText(EditPath, fresh.Path());
    CopyText(EditData.ProgPath, fresh.Path());
    {
      const DialogAnswer answer("ロゴマーク選択", ChooseFirstFile);
      PressBrowse(dialog, Parent, 1);
    }
    EXPECT_STREQ(EditData.LogoName, "logo.png");
    PressButton(" 登録 ")(dialog);
  });
  EXPECT_EQ(fresh.Read("Bitmap/logo.png"), "picture");
  EXPECT_FALSE(Works.Exists("Bitmap/logo.png"));
}

TEST_F(ProjectFields, ALogoOfTheBitmapFolderIsNotCopiedASecondTime) {
  Works.Write("Bitmap/logo.png", "picture");
  g_setenv("HOME", Works.Path().c_str(), TRUE);
  Edit([this](GtkWidget* dialog) {
    {
      const DialogAnswer answer("ロゴマーク選択", ChooseFirstFile);
      PressBrowse(dialog, Parent, 1);
    }
    EXPECT_STREQ(EditData.LogoName, "logo.png");
    // Were it copied, the source would be missed.
    Works.Write("Bitmap/logo.png", "changed since");
    PressButton(" 登録 ")(dialog);
  });
  EXPECT_EQ(Works.Read("Bitmap/logo.png"), "changed since");
}

TEST_F(ProjectFields, ALogoWithTooLongANameIsRefused) {
  Home.Write("pictures/seventeen-letters.png", "picture");  // 21 bytes
  Edit([this](GtkWidget* dialog) {
    CopyText(EditData.LogoName, "old.png");
    const DialogAnswer error("入力エラー", [](GtkWidget* box) {
      EXPECT_NE(FindLabel(box, "画像ファイルの名称が長すぎます。"), nullptr);
      EXPECT_NE(FindLabel(box, "拡張子を含めて 20 バイト以内の名称にしてください。"), nullptr);
      PressButton(" 確認 ")(box);
    });
    const DialogAnswer answer("ロゴマーク選択", ChooseFirstFile);
    PressBrowse(dialog, Parent, 1);
    EXPECT_STREQ(EditData.LogoName, "old.png");
    EXPECT_FALSE(Works.Exists("Bitmap/seventeen-letters.png"));
  });
}

TEST_F(ProjectFields, ThePaletteEditorOpensOverTheSettings) {
  Edit([](GtkWidget* dialog) {
    const DialogAnswer answer("表示色設定", [dialog](GtkWidget* palette) {
      EXPECT_EQ(gtk_window_get_transient_for(GTK_WINDOW(palette)), GTK_WINDOW(dialog));
      CloseByManager(palette);
    });
    PressButton(" 表示色設定 ")(dialog);
  });
}

TEST_F(ProjectFields, ProjectsAreFoundByFolder) {
  Home.Write("elsewhere/found.prj", Works.Read("works.prj"));
  const DialogAnswer answer("プロジェクトを開く", [](GtkWidget* dialog) {
    // The chooser has the title of the dialog.
    gtk_window_set_title(GTK_WINDOW(dialog), "listed");
    const DialogAnswer chooser("プロジェクトを開く", ChooseFirstFile);
    PressButton(" フォルダーより探す ")(dialog);
  });
  EXPECT_EQ(ProjFileOpen(PtrnWnd), 1);
  EXPECT_STREQ(EditName, "found");
  EXPECT_EQ(EditPath, Home.Path("elsewhere"));
}

TEST_F(ProjectFields, ACancelledSearchKeepsTheDialog) {
  const DialogAnswer answer("プロジェクトを開く", [](GtkWidget* dialog) {
    gtk_window_set_title(GTK_WINDOW(dialog), "listed");
    {
      const DialogAnswer chooser("プロジェクトを開く", CloseByManager);
      PressButton(" フォルダーより探す ")(dialog);
    }
    EXPECT_EQ(FindWindow("listed"), dialog);
    CloseByManager(dialog);
  });
  EXPECT_EQ(ProjFileOpen(PtrnWnd), 0);
}

TEST_F(ProjectFields, LayoutsAreFetchedFromAFolder) {
  Home.Write("elsewhere/fetched.ptn", "layout");
  CopyText(PtrnName, "before");
  const DialogAnswer answer("レイアウトを開く", [](GtkWidget* dialog) {
    gtk_window_set_title(GTK_WINDOW(dialog), "listed");
    const DialogAnswer chooser("レイアウトを開く", ChooseFirstFile);
    PressButton(" フォルダーより探す ")(dialog);
  });
  EXPECT_EQ(PtrnFileOpen(PtrnWnd), 1);
  EXPECT_EQ(Works.Read("fetched.ptn"), "layout");
  EXPECT_STREQ(PtrnName, "before");
}
