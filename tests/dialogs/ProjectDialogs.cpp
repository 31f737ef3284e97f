// Opening a project and its settings.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include "ProjData.h"
#include "PtrnMisc.h"
#include "layout/Screen.h"
#include "tests/common/TempFolder.h"
#include "tests/dialogs/Controls.h"
#include "tests/window/Widgets.h"
#include "tests/window/WindowTest.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr const gchar* OpenTitle = "プロジェクトを開く";
constexpr const gchar* SettingsTitle = "設定の題名";
constexpr const gchar* ErrorTitle = "入力エラー";

GtkWidget* ListOf(GtkWidget* dialog) {
  return FindKind(dialog, GTK_TYPE_TREE_VIEW);
}

GtkWidget* EntryOf(GtkWidget* dialog) {
  return FindWidget(dialog, [](GtkWidget* widget) { return GTK_IS_ENTRY(widget) != FALSE; });
}

// A dialog that a failed test leaves open would not come back from its loop.
std::function<void(GtkWidget*)> Closing(const std::function<void(GtkWidget*)>& act) {
  return [act](GtkWidget* dialog) {
    act(dialog);
    for (const gchar* title : {OpenTitle, SettingsTitle}) {
      if (FindWindow(title) == dialog) CloseByManager(dialog);
    }
  };
}

}  // namespace

class ProjectDialogs : public WindowTest {
 protected:
  ProjectDialogs() {
    WriteProfile("");
    OpenWindow();
    EditData = {};
    CopyText(EditName, "works");
    CopyText(EditPath, Folder.Path());
    CopyText(EditData.ProgPath, Folder.Path());
  }
  ~ProjectDialogs() override {
    EditData = {};
    EditName[0] = EditPath[0] = '\0';
  }
  static gint Open(const std::function<void(GtkWidget*)>& act) {
    const DialogAnswer answer(OpenTitle, Closing(act));
    return ProjFileOpen(PtrnWnd);
  }
  static gint Settings(const std::function<void(GtkWidget*)>& act) {
    const DialogAnswer answer(SettingsTitle, Closing(act));
    return EditProjData(PtrnWnd, SettingsTitle);
  }
  // What the settings complain about; "" when they are accepted.
  static std::string Complaint() {
    std::string text;
    Settings([&text](GtkWidget* dialog) {
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
      PressButton(" 登録 ")(dialog);
      g_source_remove(poll);
    });
    return text;
  }

  TempFolder Folder;
};

TEST_F(ProjectDialogs, OpenListsKnownProjectsAndForgetsLostOnes) {
  Folder.Write("three.prj", "x");
  Folder.Write("seven.prj", "x");
  WriteProfile("[PROJNAME]\nPROJNAME3=three," + Folder.Path() + "\nPROJNAME5=lost," +
               Folder.Path() + "\nPROJNAME7=seven," + Folder.Path() + "\n");
  EXPECT_EQ(Open([this](GtkWidget* dialog) {
              EXPECT_THAT(RowTexts(ListOf(dialog)), ElementsAre("three", "seven"));
              EXPECT_FALSE(gtk_widget_get_sensitive(FindLabel(dialog, " 開く ")));
              SelectRow(dialog, "1");
              EXPECT_TRUE(gtk_widget_get_sensitive(FindLabel(dialog, " 開く ")));
              EXPECT_EQ(EntryText(EntryOf(dialog)), Folder.Path());
              PressButton(" 開く ")(dialog);
            }),
            1);
  EXPECT_STREQ(EditName, "seven");
  EXPECT_EQ(EditPath, Folder.Path());
  EXPECT_THAT(Program.Read("VarnixMaster.ini"), Not(HasSubstr("lost")));
  EXPECT_THAT(Program.Read("VarnixMaster.ini"), HasSubstr("three"));
}

TEST_F(ProjectDialogs, AnUnselectedProjectIsForgotten) {
  Folder.Write("three.prj", "x");
  WriteProfile("[PROJNAME]\nPROJNAME3=three," + Folder.Path() + "\n");
  EXPECT_EQ(
      Open([](GtkWidget* dialog) {
        SelectRow(dialog, "0");
        gtk_tree_selection_unselect_all(gtk_tree_view_get_selection(GTK_TREE_VIEW(ListOf(dialog))));
        EXPECT_EQ(EntryText(EntryOf(dialog)), "");
        EXPECT_FALSE(gtk_widget_get_sensitive(FindLabel(dialog, " 開く ")));
        PressButton(" 取消 ")(dialog);
      }),
      0);
  EXPECT_STREQ(EditName, "");
  EXPECT_STREQ(EditPath, "");
}

// The list of known projects holds 99 bytes of a name or a folder.
TEST_F(ProjectDialogs, AnotherProjectWhereAFolderWasCutIsNotOpened) {
  const std::string other = Folder.Path() + "/" + std::string(98 - Folder.Path().size(), 'f');
  ASSERT_EQ(other.size(), 99U);
  const std::string name = "works";
  std::filesystem::create_directory(other);
  std::filesystem::create_directory(other + "f");
  for (const std::string& folder : {other, other + "f"}) {
    std::ofstream(folder + "/" + name + ".prj") << "x";
  }
  WriteProfile("[PROJNAME]\nPROJNAME1=works," + other + "f\nPROJNAME2=works," + other + "\n");
  EXPECT_EQ(Open([&](GtkWidget* dialog) {
              EXPECT_THAT(RowTexts(ListOf(dialog)), ElementsAre("works", "works"));
              ExpectUnusable(
                  ListOf(dialog), "works",
                  "パスが長すぎるため、一覧からは開けません。「フォルダーより探す」で開きます。");
              SelectRow(dialog, "1");
              PressButton(" 開く ")(dialog);
            }),
            1);
  EXPECT_EQ(EditPath, other);
}

TEST_F(ProjectDialogs, OpenWithoutKnownProjectsIsEmpty) {
  EXPECT_EQ(Open([](GtkWidget* dialog) {
              EXPECT_TRUE(RowTexts(ListOf(dialog)).empty());
              CloseByManager(dialog);
            }),
            0);
}

TEST_F(ProjectDialogs, SettingsHaveFourPages) {
  EXPECT_EQ(Settings([](GtkWidget* dialog) {
              EXPECT_EQ(gtk_grab_get_current(), nullptr);
              for (const gchar* tab : {"全般", "親ウィンドウ", "子ウィンドウ", "その他"}) {
                EXPECT_NE(FindLabel(dialog, tab), nullptr) << tab;
              }
              PressButton(" 取消 ")(dialog);
            }),
            0);
}

TEST_F(ProjectDialogs, SettingsAnswerOnlyRegisterWithOne) {
  EXPECT_EQ(Settings(PressButton(" 登録 ")), 1);
  EXPECT_EQ(Settings(PressButton(" 取消 ")), 0);
  EXPECT_EQ(Settings(CloseByManager), 0);
}

TEST_F(ProjectDialogs, SettingsComplainInTheirOrder) {
  EditName[0] = EditPath[0] = EditData.ProgPath[0] = '\0';
  EditData.Parm2[5] = 1;
  EditData.Parm2[0] = EditData.Parm2[12] = EditData.Parm3[0] = EditData.Parm3[6] = 100;
  EXPECT_EQ(Complaint(), "プロジェクト名が設定されていません。");
  CopyText(EditName, "works");
  EXPECT_EQ(Complaint(), "プロジェクトデータを格納するフォルダーが設定されていません。");
  CopyText(EditPath, Folder.Path());
  EXPECT_EQ(Complaint(), "ロジックデータを格納するフォルダーが設定されていません。");
  CopyText(EditData.ProgPath, Folder.Path());
  EXPECT_EQ(Complaint(), "ロゴマーク名称が設定されていません。");
  EditData.Parm2[5] = 0;
  EXPECT_EQ(Complaint(), "タイトル領域の高さ (設定範囲 0 〜 99)");
  EditData.Parm2[0] = 99;
  EXPECT_EQ(Complaint(), "ボタン領域の高さ (設定範囲 0 〜 99)");
  EditData.Parm2[12] = 99;
  EXPECT_EQ(Complaint(), "タイトル領域の高さ (設定範囲 0 〜 99)");
  EditData.Parm3[0] = 99;
  EXPECT_EQ(Complaint(), "外形枠幅 (設定範囲 0 〜 99)");
  EditData.Parm3[6] = 99;
  EXPECT_EQ(Complaint(), "");
}

TEST_F(ProjectDialogs, DefaultsComeFromTheProfileAndKeepTheProgramFolder) {
  EditData.Parm1[1] = 2;
  EXPECT_EQ(Settings(PressButton(" 既定値に戻す ")), 2);
  EXPECT_EQ(EditData.Parm1[1], 0);
  EXPECT_EQ(EditData.ProgPath, Folder.Path());
  EXPECT_STREQ(EditName, "works");
}

TEST_F(ProjectDialogs, ControlsWriteTheWorkingCopyAtOnce) {
  Settings([](GtkWidget* dialog) {
    GtkWidget* name =
        FindWidget(dialog, [](GtkWidget* widget) { return EntryText(widget) == "works"; });
    ASSERT_NE(name, nullptr);
    gtk_entry_set_text(GTK_ENTRY(name), "日本");
    EXPECT_STREQ(EditName, "\xC6\xFC\xCB\xDC");
    const struct {
      const gchar* Label;
      gint* Field;
      gint Value;
    } buttons[] = {
        {"２ヶ国", EditData.Parm1 + 1, 1},       {"４系統", EditData.Parm1 + 2, 1},
        {"ロゴマーク", EditData.Parm2 + 5, 1},   {"バージョン情報画面", EditData.Parm2 + 7, 1},
        {"デバッグ画面", EditData.Parm2 + 8, 1}, {"ハードコピーボタン", EditData.Parm2 + 6, 1},
        {"十字", EditData.Parm4 + 0, 1}};
    for (const auto& button : buttons) {
      gtk_button_clicked(GTK_BUTTON(FindLabel(dialog, button.Label)));
      EXPECT_EQ(*button.Field, button.Value) << button.Label;
    }
  });
}
