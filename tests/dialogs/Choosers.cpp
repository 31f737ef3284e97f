// The folder and file choosers over a home folder of the test's own.
#include "dialogs/Choosers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "support/Text.h"
#include "tests/common/TempFolder.h"
#include "tests/dialogs/Controls.h"
#include "tests/window/Widgets.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

constexpr const gchar* Title = "題名";
constexpr const gchar* MessageTitle = "フォルダー選択";

GtkWidget* ListNo(GtkWidget* dialog, gint number) {
  return FindWidget(
      dialog, [&number](GtkWidget* widget) { return GTK_IS_TREE_VIEW(widget) && number-- == 0; });
}

GtkWidget* TreeOf(GtkWidget* dialog) {
  return ListNo(dialog, 0);
}

GtkWidget* FilesOf(GtkWidget* dialog) {
  return ListNo(dialog, 1);
}

GtkWidget* EntryOf(GtkWidget* dialog) {
  return FindWidget(dialog, [](GtkWidget* widget) { return GTK_IS_ENTRY(widget) != FALSE; });
}

bool CanChoose(GtkWidget* dialog) {
  return gtk_widget_get_sensitive(FindLabel(dialog, " 選択 ")) != FALSE;
}

// The place of the row with this text below `parent` ("" = the top); "" when there is none.
std::string RowBelow(GtkWidget* tree, const std::string& parent, const std::string& text) {
  GtkTreeModel* model = gtk_tree_view_get_model(GTK_TREE_VIEW(tree));
  GtkTreeIter above;
  if (!gtk_tree_model_get_iter_from_string(model, &above, parent.c_str())) return "";
  GtkTreeIter row;
  std::string found;
  for (gboolean more = gtk_tree_model_iter_children(model, &row, &above); more;
       more = gtk_tree_model_iter_next(model, &row)) {
    gchar* place = gtk_tree_model_get_string_from_iter(model, &row);
    if (RowText(model, &row) == text) found = place;
    g_free(place);
  }
  return found;
}

std::vector<std::string> TextsBelow(GtkWidget* tree, const std::string& parent) {
  GtkTreeModel* model = gtk_tree_view_get_model(GTK_TREE_VIEW(tree));
  GtkTreeIter above;
  std::vector<std::string> texts;
  if (!gtk_tree_model_get_iter_from_string(model, &above, parent.c_str())) return texts;
  GtkTreeIter row;
  for (gboolean more = gtk_tree_model_iter_children(model, &row, &above); more;
       more = gtk_tree_model_iter_next(model, &row)) {
    texts.push_back(RowText(model, &row));
  }
  return texts;
}

void Unfold(GtkWidget* tree, const std::string& place) {
  GtkTreePath* path = gtk_tree_path_new_from_string(place.c_str());
  gtk_tree_view_expand_row(GTK_TREE_VIEW(tree), path, FALSE);
  gtk_tree_path_free(path);
}

// Selects the folder that the names lead to.
void SelectFolder(GtkWidget* dialog, std::initializer_list<std::string> names) {
  GtkWidget* tree = TreeOf(dialog);
  std::string place = "0";
  for (const std::string& name : names) {
    Unfold(tree, place);
    place = RowBelow(tree, place, name);
    ASSERT_NE(place, "") << name;
  }
  SelectRow(tree, place);
}

void SetPath(GtkWidget* dialog, const std::string& path) {
  gtk_entry_set_text(GTK_ENTRY(EntryOf(dialog)), path.c_str());
}

// Types behind what the entry shows.
void TypeBehind(GtkWidget* dialog, const std::string& text) {
  gtk_editable_set_position(GTK_EDITABLE(EntryOf(dialog)), -1);
  Type(EntryOf(dialog), text);
}

// Presses " 選択 " and has the folder made that is not there.
void ChooseNew(GtkWidget* dialog) {
  const DialogAnswer answer(MessageTitle, PressButton(" はい "));
  PressButton(" 選択 ")(dialog);
}

void ExpectTooLong(GtkWidget* dialog) {
  {
    const DialogAnswer answer(MessageTitle, [](GtkWidget* message) {
      EXPECT_NE(FindLabel(message, "フォルダーへのパスが長すぎます。"), nullptr);
      PressButton(" 確認 ")(message);
    });
    PressButton(" 選択 ")(dialog);
  }
  EXPECT_EQ(FindWindow(Title), dialog);
}

// A chooser that a failed test leaves open would not come back from its loop.
std::function<void(GtkWidget*)> Closing(const std::function<void(GtkWidget*)>& act) {
  return [act](GtkWidget* dialog) {
    act(dialog);
    if (GtkWidget* left = FindWindow(Title)) CloseByManager(left);
  };
}

}  // namespace

class Choosers : public testing::Test {
 protected:
  Choosers() {
    const gchar* home = g_getenv("HOME");
    OldHome = home != nullptr ? home : "";
    g_setenv("HOME", Home.Path().c_str(), TRUE);
  }
  ~Choosers() override { g_setenv("HOME", OldHome.c_str(), TRUE); }

  void MakeFolder(const std::string& name) const { fs::create_directories(Home.Path(name)); }
  static std::string Folder(const std::function<void(GtkWidget*)>& act) {
    const DialogAnswer answer(Title, Closing(act));
    return Dlg_FolderSelect(nullptr, Title);
  }
  static std::string File(gint type, const std::function<void(GtkWidget*)>& act) {
    const DialogAnswer answer(Title, Closing(act));
    return Dlg_FileSelect(nullptr, Title, type);
  }

  TempFolder Home;
  std::string OldHome;
};

// Folders.

TEST_F(Choosers, TheTreeBeginsAtTheHomeFolder) {
  MakeFolder("b/c");
  MakeFolder("a");
  MakeFolder(".hidden");
  Home.Write("file", "x");
  EXPECT_EQ(Folder([this](GtkWidget* dialog) {
              EXPECT_EQ(EntryText(EntryOf(dialog)), Home.Path());
              EXPECT_FALSE(CanChoose(dialog));
              EXPECT_THAT(RowTexts(TreeOf(dialog)), ElementsAre(Home.Path()));
              EXPECT_THAT(TextsBelow(TreeOf(dialog), "0"), UnorderedElementsAre("a", "b"));
              PressButton(" 取消 ")(dialog);
            }),
            "");
}

TEST_F(Choosers, FoldersStandInTheOrderOfTheSystem) {
  for (const gchar* name : {"zeta", "alpha", "mike", "bravo"}) MakeFolder(name);
  std::vector<std::string> order;
  for (const auto& entry : fs::directory_iterator(Home.Path())) {
    order.push_back(entry.path().filename().string());
  }
  Folder([&order](GtkWidget* dialog) {
    EXPECT_EQ(TextsBelow(TreeOf(dialog), "0"), order);
    CloseByManager(dialog);
  });
}

TEST_F(Choosers, ASelectedFolderIsTheAnswer) {
  MakeFolder("b/c");
  EXPECT_EQ(Folder([this](GtkWidget* dialog) {
              SelectFolder(dialog, {"b", "c"});
              EXPECT_EQ(EntryText(EntryOf(dialog)), Home.Path("b/c"));
              EXPECT_TRUE(CanChoose(dialog));
              PressButton(" 選択 ")(dialog);
            }),
            Home.Path("b/c"));
}

TEST_F(Choosers, TheHomeFolderItselfIsNoChoice) {
  Folder([](GtkWidget* dialog) {
    SelectRow(TreeOf(dialog), "0");
    EXPECT_FALSE(CanChoose(dialog));
    CloseByManager(dialog);
  });
}

TEST_F(Choosers, AClosedFolderChooserAnswersNothing) {
  MakeFolder("b");
  EXPECT_EQ(Folder([](GtkWidget* dialog) {
              SelectFolder(dialog, {"b"});
              CloseByManager(dialog);
            }),
            "");
}

TEST_F(Choosers, ATypedFolderIsTheAnswer) {
  MakeFolder("typed");
  EXPECT_EQ(Folder([this](GtkWidget* dialog) {
              SetPath(dialog, "");
              EXPECT_FALSE(CanChoose(dialog));
              SetPath(dialog, Home.Path("typed"));
              EXPECT_TRUE(CanChoose(dialog));
              PressButton(" 選択 ")(dialog);
            }),
            Home.Path("typed"));
}

TEST_F(Choosers, AMissingFolderIsMadeOnRequest) {
  EXPECT_EQ(Folder([this](GtkWidget* dialog) {
              SetPath(dialog, Home.Path("new/deep"));
              const DialogAnswer answer(MessageTitle, [](GtkWidget* message) {
                EXPECT_NE(FindLabel(message, "フォルダーが存在しません。"), nullptr);
                EXPECT_NE(FindLabel(message, "フォルダーを作成しますか ？。"), nullptr);
                PressButton(" はい ")(message);
              });
              PressButton(" 選択 ")(dialog);
            }),
            Home.Path("new/deep"));
  EXPECT_TRUE(fs::is_directory(Home.Path("new/deep")));
}

TEST_F(Choosers, AMissingFolderThatIsNotWantedKeepsTheChooser) {
  EXPECT_EQ(Folder([this](GtkWidget* dialog) {
              SetPath(dialog, Home.Path("new"));
              {
                const DialogAnswer answer(MessageTitle, PressButton(" いいえ "));
                PressButton(" 選択 ")(dialog);
              }
              EXPECT_EQ(FindWindow(Title), dialog);
              PressButton(" 取消 ")(dialog);
            }),
            "");
  EXPECT_FALSE(Home.Exists("new"));
}

// 90 characters of three bytes each.
TEST_F(Choosers, APathThatNoRecordHoldsIsRefusedNotCut) {
  std::string path = "/";
  for (gint count = 0; count < 90; count++) path += "あ";
  EXPECT_EQ(Folder([&path](GtkWidget* dialog) {
              SetPath(dialog, path);
              {
                const DialogAnswer answer(MessageTitle, [](GtkWidget* message) {
                  EXPECT_NE(FindLabel(message, "フォルダーへのパスが長すぎます。"), nullptr);
                  PressButton(" 確認 ")(message);
                });
                PressButton(" 選択 ")(dialog);
              }
              EXPECT_EQ(FindWindow(Title), dialog);
              CloseByManager(dialog);
            }),
            "");
}

// "日本", "語" and "新" in EUC-JP.
constexpr const gchar* Nihon = "\xC6\xFC\xCB\xDC";
constexpr const gchar* Go = "\xB8\xEC";
constexpr const gchar* Shin = "\xBF\xB7";

TEST_F(Choosers, WhatIsTypedBelowAnEucJpFolderIsEucJpAndTheFolderTheSame) {
  MakeFolder(Nihon);
  const std::string wanted = Home.Path(std::string(Nihon) + "/" + Shin + "/x");
  EXPECT_EQ(Folder([](GtkWidget* dialog) {
              SelectFolder(dialog, {"日本"});
              TypeBehind(dialog, "/新/x");
              ChooseNew(dialog);
            }),
            wanted);
  EXPECT_TRUE(fs::is_directory(wanted));
  EXPECT_FALSE(Home.Exists("日本"));
}

TEST_F(Choosers, WhatIsTypedRightBehindAnEucJpNameGoesOnInIt) {
  MakeFolder(Nihon);
  MakeFolder(std::string(Nihon) + Go);
  EXPECT_EQ(Folder([](GtkWidget* dialog) {
              SelectFolder(dialog, {"日本"});
              TypeBehind(dialog, "語");
              PressButton(" 選択 ")(dialog);
            }),
            Home.Path(std::string(Nihon) + Go));
}

TEST_F(Choosers, WhatEucJpCannotHoldIsUtf8BelowAnEucJpFolder) {
  MakeFolder(Nihon);
  EXPECT_EQ(Folder([](GtkWidget* dialog) {
              SelectFolder(dialog, {"日本"});
              TypeBehind(dialog, "/新\U0001F600");
              ChooseNew(dialog);
            }),
            Home.Path(std::string(Nihon) + "/新\U0001F600"));
}

TEST_F(Choosers, WhatIsTypedBelowOtherFoldersIsUtf8) {
  for (const std::string folder : {"plain", "にほん"}) {
    MakeFolder(folder);
    EXPECT_EQ(Folder([&folder](GtkWidget* dialog) {
                SelectFolder(dialog, {folder});
                TypeBehind(dialog, "/新");
                ChooseNew(dialog);
              }),
              Home.Path(folder + "/新"));
  }
}

TEST_F(Choosers, AShortenedPathKeepsTheBytesOfWhatIsLeft) {
  MakeFolder(std::string(Nihon) + "/sub");
  EXPECT_EQ(Folder([](GtkWidget* dialog) {
              SelectFolder(dialog, {"日本", "sub"});
              GtkEditable* entry = GTK_EDITABLE(EntryOf(dialog));
              const auto length = static_cast<gint>(gtk_entry_get_text_length(GTK_ENTRY(entry)));
              gtk_editable_delete_text(entry, length - 4, length);
              PressButton(" 選択 ")(dialog);
            }),
            Home.Path(Nihon));
}

// Also where another folder shows the same name.
TEST_F(Choosers, AShortenedPathStaysInTheFolderThatWasChosen) {
  MakeFolder(std::string(Nihon) + "/sub");
  EXPECT_EQ(Folder([this](GtkWidget* dialog) {
              SelectFolder(dialog, {"日本", "sub"});
              MakeFolder("日本");
              GtkEditable* entry = GTK_EDITABLE(EntryOf(dialog));
              const auto length = static_cast<gint>(gtk_entry_get_text_length(GTK_ENTRY(entry)));
              gtk_editable_delete_text(entry, length - 4, length);
              PressButton(" 選択 ")(dialog);
            }),
            Home.Path(Nihon));
}

TEST_F(Choosers, ATypedNameLeadsToTheFolderThatShowsIt) {
  MakeFolder(Nihon);
  EXPECT_EQ(Folder([](GtkWidget* dialog) {
              TypeBehind(dialog, "/日本");
              PressButton(" 選択 ")(dialog);
            }),
            Home.Path(Nihon));
  MakeFolder("日本");
  EXPECT_EQ(Folder([](GtkWidget* dialog) {
              TypeBehind(dialog, "/日本");
              PressButton(" 選択 ")(dialog);
            }),
            Home.Path("日本"));
}

TEST_F(Choosers, AChosenFolderThatNoRecordHoldsIsRefusedNotCut) {
  const gsize room = 256 - Home.Path().size() - 1 - 202;
  const std::string parent(200, 'p');
  const std::string fits(room + 1, 'f');
  const std::string over(room + 2, 'o');
  MakeFolder(parent + "/" + fits);
  MakeFolder(parent + "/" + over);
  MakeFolder(parent + "/" + over.substr(0, over.size() - 1));
  EXPECT_EQ(Folder([&](GtkWidget* dialog) {
              SelectFolder(dialog, {parent, over});
              ExpectTooLong(dialog);
              SelectFolder(dialog, {parent, fits});
              PressButton(" 選択 ")(dialog);
            }),
            Home.Path(parent + "/" + fits));
}

TEST_F(Choosers, APathIsAsLongAsItsBytes) {
  // 130 characters, 260 bytes.
  std::string shown;
  std::string bytes;
  for (gint count = 0; count < 65; count++) {
    shown += "日本";
    bytes += Nihon;
  }
  const std::string half = bytes.substr(0, bytes.size() / 2);
  MakeFolder(half + "/" + half);
  EXPECT_EQ(Folder([&](GtkWidget* dialog) {
              const std::string name = DisplayText(half);
              SelectFolder(dialog, {name, name});
              ExpectTooLong(dialog);
              CloseByManager(dialog);
            }),
            "");
}

TEST_F(Choosers, ANameThatShowsLongerThanTheEntryIsChosenWhole) {
  const std::string odd(100, '\xFF');
  MakeFolder(odd);
  EXPECT_EQ(Folder([](GtkWidget* dialog) {
              std::string shown;
              for (gint count = 0; count < 100; count++) shown += "\\xFF";
              SelectFolder(dialog, {shown});
              PressButton(" 選択 ")(dialog);
            }),
            Home.Path(odd));
}

// All of it is chosen, so there is nothing to complain of.
TEST_F(Choosers, ANameThatShowsLongerThanTheEntryIsNotMarked) {
  MakeFolder(std::string(100, '\xFF'));
  Folder([](GtkWidget* dialog) {
    std::string shown;
    for (gint count = 0; count < 100; count++) shown += "\\xFF";
    SelectFolder(dialog, {shown});
    GtkEntry* entry = GTK_ENTRY(EntryOf(dialog));
    EXPECT_EQ(gtk_entry_get_text_length(entry), 256);
    EXPECT_EQ(gtk_entry_get_icon_name(entry, GTK_ENTRY_ICON_SECONDARY), nullptr);
    CloseByManager(dialog);
  });
}

TEST_F(Choosers, ThePathSaysWhenItTakesNoMore) {
  Folder([](GtkWidget* dialog) {
    GtkWidget* entry = EntryOf(dialog);
    const auto marked = [entry] {
      return gtk_entry_get_icon_name(GTK_ENTRY(entry), GTK_ENTRY_ICON_SECONDARY) != nullptr;
    };
    SetPath(dialog, "");
    Type(entry, std::string(256, 'x'));
    EXPECT_FALSE(marked());
    Type(entry, "yz");
    EXPECT_EQ(EntryText(entry), std::string(256, 'x'));
    EXPECT_TRUE(marked());
    gtk_editable_delete_text(GTK_EDITABLE(entry), 0, 1);
    EXPECT_FALSE(marked());
    CloseByManager(dialog);
  });
}

TEST_F(Choosers, RightOpensAFolderAndGoesIntoItLeftGoesOutAndCloses) {
  MakeFolder("a/b/c");
  Folder([this](GtkWidget* dialog) {
    GtkWidget* tree = TreeOf(dialog);
    gtk_window_present(GTK_WINDOW(dialog));
    gtk_widget_grab_focus(tree);
    ASSERT_TRUE(WaitFor([tree] { return gtk_widget_has_focus(tree) != FALSE; }));
    const auto at = [tree] {
      GtkTreePath* path = nullptr;
      gtk_tree_view_get_cursor(GTK_TREE_VIEW(tree), &path, nullptr);
      gchar* text = path != nullptr ? gtk_tree_path_to_string(path) : g_strdup("");
      const bool open = path != nullptr && gtk_tree_view_row_expanded(GTK_TREE_VIEW(tree), path);
      const std::string place = std::string(text) + (open ? " open" : "");
      g_free(text);
      gtk_tree_path_free(path);
      return place;
    };
    const auto after = [&](guint key) {
      PressKey(dialog, key);
      return at();
    };
    EXPECT_EQ(at(), "0 open");
    EXPECT_EQ(after(GDK_KEY_Right), "0:0");
    EXPECT_EQ(EntryText(EntryOf(dialog)), Home.Path("a"));
    EXPECT_EQ(after(GDK_KEY_Right), "0:0 open");
    EXPECT_EQ(after(GDK_KEY_KP_Right), "0:0:0");
    EXPECT_EQ(after(GDK_KEY_Right), "0:0:0 open");
    EXPECT_EQ(after(GDK_KEY_Right), "0:0:0:0");
    EXPECT_EQ(after(GDK_KEY_Right), "0:0:0:0") << "nothing is in it";
    EXPECT_EQ(EntryText(EntryOf(dialog)), Home.Path("a/b/c"));
    EXPECT_EQ(after(GDK_KEY_Left), "0:0:0 open");
    EXPECT_EQ(EntryText(EntryOf(dialog)), Home.Path("a/b"));
    EXPECT_EQ(after(GDK_KEY_KP_Left), "0:0:0");
    EXPECT_EQ(after(GDK_KEY_Left), "0:0 open");
    EXPECT_EQ(after(GDK_KEY_Left), "0:0");
    EXPECT_EQ(EntryText(EntryOf(dialog)), Home.Path("a"));
    EXPECT_EQ(after(GDK_KEY_Left), "0 open");
    GtkTreeSelection* selection = gtk_tree_view_get_selection(GTK_TREE_VIEW(tree));
    EXPECT_EQ(gtk_tree_selection_count_selected_rows(selection), 0) << "the root is no choice";
    EXPECT_EQ(EntryText(EntryOf(dialog)), Home.Path("a")) << "what is given stays to be seen";
    EXPECT_EQ(after(GDK_KEY_Left), "0");
    EXPECT_EQ(after(GDK_KEY_Left), "0");
    EXPECT_EQ(after(GDK_KEY_Right), "0 open");
    CloseByManager(dialog);
  });
}

// Its rows beyond the first hundred are looked into once they are painted, which a key may precede.
TEST_F(Choosers, RightOpensAFolderThatIsNotYetPainted) {
  for (gint no = 0; no < 150; no++) MakeFolder("f" + std::to_string(no) + "/below");
  Folder([](GtkWidget* dialog) {
    GtkTreeView* tree = GTK_TREE_VIEW(TreeOf(dialog));
    gtk_window_present(GTK_WINDOW(dialog));
    gtk_widget_grab_focus(GTK_WIDGET(tree));
    ASSERT_TRUE(WaitFor([tree] { return gtk_widget_has_focus(GTK_WIDGET(tree)) != FALSE; }));
    GtkTreePath* last = gtk_tree_path_new_from_string("0:149");
    gtk_tree_view_set_cursor(tree, last, nullptr, FALSE);
    PressKey(dialog, GDK_KEY_Right);
    EXPECT_TRUE(gtk_tree_view_row_expanded(tree, last));
    gtk_tree_path_free(last);
    CloseByManager(dialog);
  });
}

TEST_F(Choosers, ArrowsWithAnotherKeyHeldNeitherOpenNorClose) {
  MakeFolder("a/b");
  Folder([](GtkWidget* dialog) {
    GtkTreeView* tree = GTK_TREE_VIEW(TreeOf(dialog));
    gtk_window_present(GTK_WINDOW(dialog));
    gtk_widget_grab_focus(GTK_WIDGET(tree));
    ASSERT_TRUE(WaitFor([tree] { return gtk_widget_has_focus(GTK_WIDGET(tree)) != FALSE; }));
    GtkTreePath* home = gtk_tree_path_new_from_string("0");
    GtkTreePath* folder = gtk_tree_path_new_from_string("0:0");
    gtk_tree_view_set_cursor(tree, folder, nullptr, FALSE);
    PressKey(dialog, GDK_KEY_Right, GDK_CONTROL_MASK);
    EXPECT_FALSE(gtk_tree_view_row_expanded(tree, folder));
    gtk_tree_view_set_cursor(tree, home, nullptr, FALSE);
    PressKey(dialog, GDK_KEY_Left, GDK_CONTROL_MASK);
    EXPECT_TRUE(gtk_tree_view_row_expanded(tree, home));
    gtk_tree_path_free(home);
    gtk_tree_path_free(folder);
    CloseByManager(dialog);
  });
}

TEST_F(Choosers, AFileIsNoFolder) {
  Home.Write("plain", "x");
  EXPECT_EQ(Folder([this](GtkWidget* dialog) {
              SetPath(dialog, Home.Path("plain"));
              // The failure comes up under the title of the question, once that is answered.
              std::unique_ptr<DialogAnswer> failure;
              {
                const DialogAnswer answer(MessageTitle, [&failure](GtkWidget* question) {
                  failure = std::make_unique<DialogAnswer>(MessageTitle, [](GtkWidget* message) {
                    EXPECT_NE(FindLabel(message, "フォルダーの作成に失敗しました。"), nullptr);
                    PressButton(" 確認 ")(message);
                  });
                  PressButton(" はい ")(question);
                });
                PressButton(" 選択 ")(dialog);
              }
              EXPECT_EQ(FindWindow(Title), dialog);
              CloseByManager(dialog);
            }),
            "");
  EXPECT_EQ(Home.Read("plain"), "x");
}

TEST_F(Choosers, ALinkBackIsUnfoldedOnlyOnce) {
  MakeFolder("a");
  fs::create_directory_symlink(Home.Path(), Home.Path("a/loop"));
  Folder([](GtkWidget* dialog) {
    GtkWidget* tree = TreeOf(dialog);
    std::string place = RowBelow(tree, "0", "a");
    Unfold(tree, place);
    place = RowBelow(tree, place, "loop");
    ASSERT_NE(place, "");
    Unfold(tree, place);
    EXPECT_THAT(TextsBelow(tree, place), IsEmpty());
    SelectRow(tree, place);
    EXPECT_TRUE(CanChoose(dialog));
    CloseByManager(dialog);
  });
}

TEST_F(Choosers, ANameThatIsNoTextIsShownEscapedAndChosenAsItIs) {
  const std::string odd = "x\xFF\xFEy";
  MakeFolder(odd);
  EXPECT_EQ(Folder([](GtkWidget* dialog) {
              SelectFolder(dialog, {"x\\xFF\\xFEy"});
              PressButton(" 選択 ")(dialog);
            }),
            Home.Path(odd));
}

TEST_F(Choosers, ALeafCannotBeUnfolded) {
  MakeFolder("leaf");
  MakeFolder("branch/leaf");
  Folder([](GtkWidget* dialog) {
    GtkWidget* tree = TreeOf(dialog);
    GtkTreeModel* model = gtk_tree_view_get_model(GTK_TREE_VIEW(tree));
    for (const gchar* name : {"leaf", "branch"}) {
      GtkTreeIter row;
      gtk_tree_model_get_iter_from_string(model, &row, RowBelow(tree, "0", name).c_str());
      EXPECT_EQ(gtk_tree_model_iter_has_child(model, &row) != FALSE, std::string(name) == "branch");
    }
    CloseByManager(dialog);
  });
}

TEST_F(Choosers, ManyFoldersOpenAtOnce) {
  for (gint no = 0; no < 3000; no++) MakeFolder("f" + std::to_string(no));
  Folder([](GtkWidget* dialog) {
    EXPECT_EQ(TextsBelow(TreeOf(dialog), "0").size(), 3000U);
    CloseByManager(dialog);
  });
}

TEST_F(Choosers, RowsAreLookedIntoWhenTheyComeIntoView) {
  for (gint no = 0; no < 400; no++) MakeFolder("f" + std::to_string(no) + "/below");
  Folder([](GtkWidget* dialog) {
    GtkWidget* tree = TreeOf(dialog);
    GtkTreeModel* model = gtk_tree_view_get_model(GTK_TREE_VIEW(tree));
    const auto unfoldable = [model](const gchar* place) {
      GtkTreeIter row;
      return gtk_tree_model_get_iter_from_string(model, &row, place) &&
             gtk_tree_model_iter_has_child(model, &row);
    };
    EXPECT_TRUE(unfoldable("0:0"));
    EXPECT_FALSE(unfoldable("0:399"));
    GtkTreePath* last = gtk_tree_path_new_from_string("0:399");
    gtk_tree_view_scroll_to_cell(GTK_TREE_VIEW(tree), last, nullptr, FALSE, 0, 0);
    gtk_tree_path_free(last);
    EXPECT_TRUE(WaitFor([&] { return unfoldable("0:399"); }));
    EXPECT_FALSE(unfoldable("0:200"));
    CloseByManager(dialog);
  });
}

// Files.

TEST_F(Choosers, FilesWhoseNameOrPathNoFieldHoldsAreShownAndNotChosen) {
  const std::string name(81, 'n');
  const std::string folder(255 - Home.Path().size() - 82, 'f');
  Home.Write("short/" + name + ".ptn", "x");
  Home.Write("short/" + name + "n.ptn", "x");
  MakeFolder(folder);
  Home.Write(folder + "/" + std::string(79, 'n') + ".ptn", "x");
  Home.Write(folder + "/" + std::string(78, 'n') + ".ptn", "x");
  EXPECT_EQ(File(1,
                 [&](GtkWidget* dialog) {
                   SelectFolder(dialog, {"short"});
                   ExpectUnusable(FilesOf(dialog), name + "n", "名称が長すぎるため、選べません。");
                   SelectFolder(dialog, {folder});
                   ExpectUnusable(FilesOf(dialog), std::string(79, 'n'),
                                  "パスが長すぎるため、選べません。");
                   EXPECT_FALSE(CanChoose(dialog));
                   SelectText(FilesOf(dialog), std::string(78, 'n'));
                   PressButton(" 選択 ")(dialog);
                 }),
            Home.Path(folder + "/" + std::string(78, 'n') + ".ptn"));
}

TEST_F(Choosers, AProjectsNameIsAsLongAsItsField) {
  Home.Write("one/" + std::string(82, 'n') + ".prj", "x");
  Home.Write("one/" + std::string(81, 'n') + ".prj", "x");
  EXPECT_EQ(File(0,
                 [&](GtkWidget* dialog) {
                   SelectFolder(dialog, {"one"});
                   ExpectUnusable(FilesOf(dialog), std::string(82, 'n'),
                                  "名称が長すぎるため、選べません。");
                   SelectText(FilesOf(dialog), std::string(81, 'n'));
                   PressButton(" 選択 ")(dialog);
                 }),
            Home.Path("one/" + std::string(81, 'n') + ".prj"));
}

TEST_F(Choosers, PicturesAreListedWhole) {
  for (const gchar* name : {"a.bmp", "b.BMP", "c.jpg", "d.JPG", "e.png", "f.PNG", "g.Png", "h.txt",
                            ".i.png", "k.ptn"}) {
    Home.Write(std::string("files/") + name, "x");
  }
  MakeFolder("files/folder.png");
  EXPECT_EQ(File(2,
                 [](GtkWidget* dialog) {
                   EXPECT_FALSE(CanChoose(dialog));
                   SelectFolder(dialog, {"files"});
                   EXPECT_THAT(
                       RowTexts(FilesOf(dialog)),
                       UnorderedElementsAre("a.bmp", "b.BMP", "c.jpg", "d.JPG", "e.png", "f.PNG"));
                   EXPECT_FALSE(CanChoose(dialog));
                   CloseByManager(dialog);
                 }),
            "");
}

TEST_F(Choosers, LayoutsAreListedByName) {
  Home.Write("files/one.ptn", "x");
  Home.Write("files/two.PTN", "x");
  Home.Write("files/three.prj", "x");
  EXPECT_EQ(File(1,
                 [](GtkWidget* dialog) {
                   SelectFolder(dialog, {"files"});
                   EXPECT_THAT(RowTexts(FilesOf(dialog)), ElementsAre("one"));
                   SelectRow(FilesOf(dialog), "0");
                   EXPECT_TRUE(CanChoose(dialog));
                   PressButton(" 選択 ")(dialog);
                 }),
            Home.Path("files/one.ptn"));
}

TEST_F(Choosers, ProjectsAreListedByName) {
  Home.Write("files/one.ptn", "x");
  Home.Write("files/three.prj", "x");
  File(0, [](GtkWidget* dialog) {
    SelectFolder(dialog, {"files"});
    EXPECT_THAT(RowTexts(FilesOf(dialog)), ElementsAre("three"));
    CloseByManager(dialog);
  });
}

TEST_F(Choosers, OtherKindsListNothing) {
  Home.Write("files/one.ptn", "x");
  for (const gint type : {-1, 3, 99}) {
    File(type, [](GtkWidget* dialog) {
      SelectFolder(dialog, {"files"});
      EXPECT_THAT(RowTexts(FilesOf(dialog)), IsEmpty());
      CloseByManager(dialog);
    });
  }
}

TEST_F(Choosers, AnotherFolderForgetsTheFile) {
  Home.Write("one/a.png", "x");
  Home.Write("two/b.png", "x");
  EXPECT_EQ(File(2,
                 [](GtkWidget* dialog) {
                   SelectFolder(dialog, {"one"});
                   SelectRow(FilesOf(dialog), "0");
                   EXPECT_TRUE(CanChoose(dialog));
                   SelectFolder(dialog, {"two"});
                   EXPECT_FALSE(CanChoose(dialog));
                   EXPECT_THAT(RowTexts(FilesOf(dialog)), ElementsAre("b.png"));
                   gtk_tree_selection_unselect_all(
                       gtk_tree_view_get_selection(GTK_TREE_VIEW(TreeOf(dialog))));
                   EXPECT_THAT(RowTexts(FilesOf(dialog)), IsEmpty());
                   CloseByManager(dialog);
                 }),
            "");
}

TEST_F(Choosers, ASelectedFileThatIsNotConfirmedIsNoAnswer) {
  Home.Write("one/a.png", "x");
  for (const std::function<void(GtkWidget*)>& leave :
       {PressButton(" 取消 "), std::function<void(GtkWidget*)>(CloseByManager)}) {
    EXPECT_EQ(File(2,
                   [&leave](GtkWidget* dialog) {
                     SelectFolder(dialog, {"one"});
                     SelectRow(FilesOf(dialog), "0");
                     leave(dialog);
                   }),
              "");
  }
}

TEST_F(Choosers, FilesInTheHomeFolderAreNotOffered) {
  Home.Write("a.png", "x");
  File(2, [](GtkWidget* dialog) {
    SelectRow(TreeOf(dialog), "0");
    EXPECT_THAT(RowTexts(FilesOf(dialog)), IsEmpty());
    CloseByManager(dialog);
  });
}

TEST_F(Choosers, FileNamesThatAreNoTextStillOpen) {
  Home.Write("one/\xFF.png", "x");
  EXPECT_EQ(File(2,
                 [](GtkWidget* dialog) {
                   SelectFolder(dialog, {"one"});
                   EXPECT_THAT(RowTexts(FilesOf(dialog)), ElementsAre("\\xFF.png"));
                   SelectRow(FilesOf(dialog), "0");
                   PressButton(" 選択 ")(dialog);
                 }),
            Home.Path("one/\xFF.png"));
}
