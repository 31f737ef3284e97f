// Opening and closing a layout, and its settings.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnMisc.h"
#include "layout/Screen.h"
#include "tests/common/Bytes.h"
#include "tests/common/TempFolder.h"
#include "tests/dialogs/Controls.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

constexpr const gchar* OpenTitle = "レイアウトを開く";
constexpr const gchar* UndefinedTitle = "レイアウトを開く [未設定]";
constexpr const gchar* CloseTitle = "レイアウトを閉じる";
constexpr const gchar* SaveTitle = "レイアウト保存";
constexpr const gchar* ErrorTitle = "入力エラー";
constexpr const gchar* ParentTitle = "レイアウト情報の設定［親ウィンドウ］";
constexpr const gchar* ChildTitle = "レイアウト情報の設定［子ウィンドウ］";
constexpr const gchar* OtherTitle = "レイアウト情報の設定［その他］";

GtkWidget* ListOf(GtkWidget* dialog) {
  return FindKind(dialog, GTK_TYPE_TREE_VIEW);
}

GtkWidget* EntryOf(GtkWidget* dialog) {
  return FindWidget(dialog, [](GtkWidget* widget) { return GTK_IS_ENTRY(widget) != FALSE; });
}

bool IsSensitive(GtkWidget* dialog, const gchar* label) {
  return gtk_widget_get_sensitive(FindLabel(dialog, label)) != FALSE;
}

// A header with this number of incomplete items.
std::string Header(gint incomplete) {
  return Bytes().Zeros(466 - 4).Int(incomplete).Str();
}

// A dialog that a failed test leaves open would not come back from its loop.
std::function<void(GtkWidget*)> Closing(const std::function<void(GtkWidget*)>& act) {
  return [act](GtkWidget* dialog) {
    act(dialog);
    for (const gchar* title :
         {OpenTitle, UndefinedTitle, CloseTitle, ParentTitle, ChildTitle, OtherTitle}) {
      if (FindWindow(title) == dialog) CloseByManager(dialog);
    }
  };
}

}  // namespace

class LayoutDialogs : public WindowTest {
 protected:
  LayoutDialogs() {
    WriteProfile("");
    OpenWindow();
    CopyText(ProjPath, Project.Path());
    CopyText(ProjName, "works");
    EditHedr = {};
    EditHedr.Parm1[1] = 640;
    EditHedr.Parm1[2] = 480;
    CopyText(EditHedr.PtrnName1, "one");
    CopyText(EditHedr.PtrnName2, "two");
    CopyText(EditHedr.PtrnName3, "three");
  }
  static gint Open(const std::function<void(GtkWidget*)>& act) {
    const DialogAnswer answer(OpenTitle, Closing(act));
    return PtrnFileOpen(PtrnWnd);
  }
  static gint Close(const std::function<void(GtkWidget*)>& act) {
    const DialogAnswer answer(CloseTitle, Closing(act));
    return PtrnFileClose(PtrnWnd);
  }
  static gint Settings(const gchar* title, const std::function<void(GtkWidget*)>& act) {
    const DialogAnswer answer(title, Closing(act));
    return EditPtrnData(PtrnWnd);
  }
  // What the settings of EditHedr complain about; "" when they are accepted.
  static std::string Complaint() {
    std::string text;
    Settings(ParentTitle, [&text](GtkWidget* dialog) {
      const guint poll = g_timeout_add(
          5,
          [](gpointer message) -> gboolean {
            GtkWidget* box = FindWindow(ErrorTitle);
            if (box == nullptr) return G_SOURCE_CONTINUE;
            *static_cast<std::string*>(message) = LabelText(
                FindWidget(box, [](GtkWidget* widget) { return GTK_IS_LABEL(widget) != FALSE; }));
            PressButton(" 確認 ")(box);
            return G_SOURCE_CONTINUE;
          },
          &text);
      PressButton(" 設定 ")(dialog);
      g_source_remove(poll);
    });
    return text;
  }

  TempFolder Project;
};

// Opening.

TEST_F(LayoutDialogs, OpenListsTheProjectsLayouts) {
  Project.Write("first.ptn", "x");
  Project.Write("a.b.ptn", "x");
  Project.Write("\xC6\xFC\xCB\xDC.ptn", "x");
  Project.Write("works.prj", "x");
  EXPECT_EQ(Open([](GtkWidget* dialog) {
              EXPECT_THAT(RowTexts(ListOf(dialog)), UnorderedElementsAre("first", "a", "日本"));
              EXPECT_FALSE(IsSensitive(dialog, " 開く "));
              EXPECT_FALSE(IsSensitive(dialog, " 削除 "));
              PressButton(" 取消 ")(dialog);
            }),
            0);
}

TEST_F(LayoutDialogs, OpenTakesTheSelectedName) {
  Project.Write("\xC6\xFC\xCB\xDC.ptn", "x");
  CopyText(PtrnName, "before");
  EXPECT_EQ(Open([](GtkWidget* dialog) {
              SelectText(ListOf(dialog), "日本");
              EXPECT_TRUE(IsSensitive(dialog, " 開く "));
              EXPECT_TRUE(IsSensitive(dialog, " 削除 "));
              PressButton(" 開く ")(dialog);
            }),
            1);
  EXPECT_STREQ(PtrnName, "\xC6\xFC\xCB\xDC");
}

TEST_F(LayoutDialogs, OpenClosedByTheWindowManagerOpensNothing) {
  Project.Write("first.ptn", "x");
  CopyText(PtrnName, "before");
  EXPECT_EQ(Open([](GtkWidget* dialog) {
              SelectText(ListOf(dialog), "first");
              CloseByManager(dialog);
            }),
            0);
  EXPECT_STREQ(PtrnName, "before");
}

TEST_F(LayoutDialogs, OpenDeletesWithoutAsking) {
  Project.Write("first.ptn", "x");
  Project.Write("second.ptn", "x");
  Open([](GtkWidget* dialog) {
    SelectText(ListOf(dialog), "first");
    PressButton(" 削除 ")(dialog);
    EXPECT_THAT(RowTexts(ListOf(dialog)), ElementsAre("second"));
    EXPECT_FALSE(IsSensitive(dialog, " 開く "));
    EXPECT_FALSE(IsSensitive(dialog, " 削除 "));
  });
  EXPECT_FALSE(Project.Exists("first.ptn"));
  EXPECT_TRUE(Project.Exists("second.ptn"));
}

TEST_F(LayoutDialogs, OpenCanShowOnlyIncompleteLayouts) {
  Project.Write("whole.ptn", Header(0));
  Project.Write("holes.ptn", Header(3));
  Project.Write("short.ptn", "x");
  Open([](GtkWidget* dialog) {
    SelectText(ListOf(dialog), "whole");
    PressButton(" 未設定 ")(dialog);
    EXPECT_STREQ(gtk_window_get_title(GTK_WINDOW(dialog)), UndefinedTitle);
    EXPECT_THAT(RowTexts(ListOf(dialog)), ElementsAre("holes"));
    EXPECT_FALSE(IsSensitive(dialog, " 開く "));
    PressButton(" 未設定 ")(dialog);
    EXPECT_STREQ(gtk_window_get_title(GTK_WINDOW(dialog)), OpenTitle);
    EXPECT_THAT(RowTexts(ListOf(dialog)), UnorderedElementsAre("whole", "holes", "short"));
  });
}

constexpr const gchar* TooLong = "名称が長すぎるため、開くことも削除することもできません。";

TEST_F(LayoutDialogs, AFileWhoseNameIsTooLongIsListedAndNeitherOpenedNorDeleted) {
  const std::string fits(81, 'x');
  const std::string over(82, 'x');
  std::string kanji;
  for (gint count = 0; count < 41; count++) kanji += "\xC6\xFC";
  for (const std::string& name : {fits, over, kanji}) Project.Write(name + ".ptn", "x");
  CopyText(PtrnName, "before");
  EXPECT_EQ(Open([&](GtkWidget* dialog) {
              GtkWidget* list = ListOf(dialog);
              for (const std::string& name : {over, DisplayText(kanji)}) {
                ExpectUnusable(list, name, TooLong);
                EXPECT_FALSE(IsSensitive(dialog, " 開く "));
                EXPECT_FALSE(IsSensitive(dialog, " 削除 "));
              }
              SelectText(list, fits);
              ActivateText(list, over);
              ASSERT_EQ(FindWindow(OpenTitle), dialog) << "another one was selected";
              PressButton(" 削除 ")(dialog);
            }),
            0);
  EXPECT_FALSE(Project.Exists(fits + ".ptn"));
  EXPECT_TRUE(Project.Exists(over + ".ptn"));
  EXPECT_TRUE(Project.Exists(kanji + ".ptn"));
  EXPECT_STREQ(PtrnName, "before");
}

TEST_F(LayoutDialogs, TheLongestNameOpens) {
  const std::string name(81, 'x');
  Project.Write(name + ".ptn", "x");
  EXPECT_EQ(Open([&](GtkWidget* dialog) {
              SelectText(ListOf(dialog), name);
              ActivateText(ListOf(dialog), name);
            }),
            1);
  EXPECT_EQ(PtrnName, name);
}

// Closing.

TEST_F(LayoutDialogs, CloseTellsSaveDiscardAndCancelApart) {
  CopyText(PtrnName, "fresh");
  EXPECT_EQ(Close([](GtkWidget* dialog) {
              EXPECT_EQ(EntryText(EntryOf(dialog)), "fresh");
              PressButton(" 保存 ")(dialog);
            }),
            1);
  EXPECT_EQ(Close(PressButton(" 破棄 ")), 2);
  EXPECT_EQ(Close(PressButton(" 取消 ")), 0);
  EXPECT_EQ(Close(CloseByManager), 0);
}

TEST_F(LayoutDialogs, CloseAsksBeforeALayoutIsReplaced) {
  Project.Write("there.ptn", "x");
  CopyText(PtrnName, "there");
  const auto save = [](const gchar* reply) {
    return [reply](GtkWidget* dialog) {
      const DialogAnswer answer(SaveTitle, PressButton(reply));
      PressButton(" 保存 ")(dialog);
    };
  };
  EXPECT_EQ(Close(save(" はい ")), 1);
  EXPECT_EQ(Close(save(" いいえ ")), 0);
}

TEST_F(LayoutDialogs, CloseNeverRenamesTheLayout) {
  CopyText(PtrnName, "fresh");
  EXPECT_EQ(Close([](GtkWidget* dialog) {
              gtk_entry_set_text(GTK_ENTRY(EntryOf(dialog)), "");
              EXPECT_FALSE(IsSensitive(dialog, " 保存 "));
              EXPECT_FALSE(IsSensitive(dialog, " 破棄 "));
              gtk_entry_set_text(GTK_ENTRY(EntryOf(dialog)), "other");
              EXPECT_TRUE(IsSensitive(dialog, " 破棄 "));
              PressButton(" 保存 ")(dialog);
            }),
            1);
  EXPECT_STREQ(PtrnName, "fresh");
}

TEST_F(LayoutDialogs, ANamelessLayoutIsNamedBeforeItIsSaved) {
  CopyText(PtrnName, "");
  EXPECT_EQ(Close([](GtkWidget* dialog) {
              EXPECT_FALSE(IsSensitive(dialog, " 保存 "));
              EXPECT_FALSE(IsSensitive(dialog, " 破棄 "));
              EXPECT_TRUE(IsSensitive(dialog, " 取消 "));
              Type(EntryOf(dialog), "named");
              EXPECT_TRUE(IsSensitive(dialog, " 保存 "));
              PressButton(" 破棄 ")(dialog);
            }),
            2);
}

TEST_F(LayoutDialogs, CloseListsTheProjectsLayouts) {
  Project.Write("first.ptn", "x");
  Project.Write("a.b.ptn", "x");
  Close([](GtkWidget* dialog) {
    EXPECT_NE(FindLabel(dialog, "画面/帳票名"), nullptr);
    EXPECT_NE(FindLabel(dialog, "フォルダー"), nullptr);
    EXPECT_THAT(RowTexts(ListOf(dialog)), UnorderedElementsAre("first", "a"));
    CloseByManager(dialog);
  });
}

TEST_F(LayoutDialogs, TheNameToCloseUnderHoldsEightyBytes) {
  CopyText(PtrnName, "");
  Close([](GtkWidget* dialog) {
    GtkWidget* entry = EntryOf(dialog);
    Type(entry, std::string(80, 'x'));
    Type(entry, "x");
    EXPECT_EQ(EntryText(entry), std::string(80, 'x'));
    CloseByManager(dialog);
  });
}

TEST_F(LayoutDialogs, AnUnselectedLayoutIsNeitherOpenedNorDeleted) {
  Project.Write("first.ptn", "x");
  EXPECT_EQ(
      Open([](GtkWidget* dialog) {
        SelectText(ListOf(dialog), "first");
        gtk_tree_selection_unselect_all(gtk_tree_view_get_selection(GTK_TREE_VIEW(ListOf(dialog))));
        EXPECT_FALSE(IsSensitive(dialog, " 開く "));
        EXPECT_FALSE(IsSensitive(dialog, " 削除 "));
        PressButton(" 取消 ")(dialog);
      }),
      0);
  EXPECT_TRUE(Project.Exists("first.ptn"));
}

// Settings.

TEST_F(LayoutDialogs, SettingsShowATitleForEachLanguage) {
  for (gint language = 0; language < 3; language++) {
    Language = language;
    for (const gint kind : {0, 1}) {
      EditHedr.Parm1[0] = kind;
      Settings(kind == 0 ? ParentTitle : ChildTitle, [language](GtkWidget* dialog) {
        EXPECT_EQ(FindLabel(dialog, "タイトル") != nullptr, language == 0);
        EXPECT_EQ(FindLabel(dialog, "タイトル１") != nullptr, language >= 1);
        EXPECT_EQ(FindLabel(dialog, "タイトル２") != nullptr, language >= 1);
        EXPECT_EQ(FindLabel(dialog, "タイトル３") != nullptr, language == 2);
      });
    }
  }
  EditHedr.Parm1[0] = 7;
  Settings(OtherTitle,
           [](GtkWidget* dialog) { EXPECT_NE(FindLabel(dialog, "レイアウト名"), nullptr); });
}

TEST_F(LayoutDialogs, SettingsAnswerOnlySetWithOne) {
  EXPECT_EQ(Settings(ParentTitle, PressButton(" 設定 ")), 1);
  EXPECT_EQ(Settings(ParentTitle, PressButton(" 取消 ")), 0);
  EXPECT_EQ(Settings(ParentTitle, CloseByManager), 0);
}

TEST_F(LayoutDialogs, SettingsComplainInTheirOrder) {
  Language = 2;
  EditHedr = {};
  EditHedr.Parm1[5] = EditHedr.Parm1[6] = EditHedr.Parm1[8] = EditHedr.Parm1[21] = -1;
  for (const auto& name : {EditHedr.PtrnName1, EditHedr.PtrnName2, EditHedr.PtrnName3}) {
    EXPECT_EQ(Complaint(), "タイトルが設定されていません。");
    g_strlcpy(name, "x", 82);
  }
  EXPECT_EQ(Complaint(), "Ｘ方向 領域の大きさ");
  EditHedr.Parm1[1] = 1;
  EXPECT_EQ(Complaint(), "Ｙ方向 領域の大きさ");
  EditHedr.Parm1[2] = 1;
  EXPECT_EQ(Complaint(), "Ｘ方向 表示開始位置");
  EditHedr.Parm1[5] = 0;
  EXPECT_EQ(Complaint(), "Ｙ方向 表示開始位置");
  EditHedr.Parm1[6] = 0;
  EXPECT_EQ(Complaint(), "タイトル領域の高さ");
  EditHedr.Parm1[8] = 0;
  EXPECT_EQ(Complaint(), "ボタン領域の高さ");
  EditHedr.Parm1[21] = 0;
  EditHedr.Parm1[16] = 1;
  EXPECT_EQ(Complaint(), "タイトル領域/ボタン領域 が大きすぎます。");
  EditHedr.Parm1[2] = 2;
  EXPECT_EQ(Complaint(), "");
}

TEST_F(LayoutDialogs, TheStartScreenIsNotedInTheProject) {
  CopyText(ProjData.PtrnStart, "one");
  PROJFILE file = {};
  CopyText(file.Data.PtrnStart, "one");
  FileWrite(ProjPath, ProjName, "prj", &file, sizeof file, 0);
  const auto stored = [] {
    PROJFILE now = {};
    FileRead(ProjPath, ProjName, "prj", &now, sizeof now, 0);
    return std::string(now.Data.PtrnStart);
  };
  CopyText(EditHedr.PtrnName1, "other");
  Settings(ParentTitle, PressButton(" 設定 "));
  EXPECT_EQ(stored(), "one") << "another layout is the start screen";
  CopyText(EditHedr.PtrnName1, "one");
  Settings(ParentTitle, PressButton(" 設定 "));
  EXPECT_EQ(stored(), "") << "it is not the start screen any more";
  Settings(ParentTitle, [](GtkWidget* dialog) {
    gtk_button_clicked(GTK_BUTTON(FindLabel(dialog, "起動時画面")));
    PressButton(" 設定 ")(dialog);
  });
  EXPECT_EQ(stored(), "one");
}
