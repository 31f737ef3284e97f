#include <gtest/gtest.h>

#include "PtrnData.h"
#include "tests/road/RoadTest.h"

namespace {

// Entries take what their record field can hold as EUC-JP, 100 bytes here, and nothing else.
class JapaneseText : public RoadTest {
 protected:
  void PlayInAnEntry(const std::function<void(GtkWidget* entry)>& part) {
    Play([&] {
      NewLayout(640, 480);
      ChooseMenu(MenuBar(), {"編集", "固定文字列"});
      ClickCanvas(100, 100);
      GtkWidget* entry = Panel("固定文字列").Control({"文字列"}, GTK_TYPE_ENTRY);
      PointAt(entry, 12, 12);
      ClickHere(LeftButton);
      ASSERT_TRUE(See([&] { return gtk_widget_has_focus(entry) != FALSE; }));
      part(entry);
    });
  }
};

std::string Repeated(const std::string& text, gint times) {
  std::string all;
  for (gint i = 0; i < times; i++) all += text;
  return all;
}

void Paste(const std::string& text) {
  Look([&] {
    gtk_clipboard_set_text(gtk_clipboard_get(GDK_SELECTION_CLIPBOARD), text.c_str(), -1);
  });
  PressKey(GDK_KEY_v, {GDK_KEY_Control_L});
}

bool EntryShows(GtkWidget* entry, const std::string& text) {
  return See([&] { return text == gtk_entry_get_text(GTK_ENTRY(entry)); });
}

bool Refuses(GtkWidget* entry) {
  return See([&] {
    return gtk_style_context_has_class(gtk_widget_get_style_context(entry), "error") != FALSE;
  });
}

// What an input method commits: a character by its number, as Ctrl+Shift+U takes it.
void Compose(const std::string& hex) {
  PressKey(GDK_KEY_u, {GDK_KEY_Control_L, GDK_KEY_Shift_L});
  TypeText(hex);
  PressKey(GDK_KEY_Return);
}

TEST_F(JapaneseText, ComesFromTheInputMethod) {
  PlayInAnEntry([this](GtkWidget* entry) {
    Compose("6e29");
    Compose("5ea6");
    TypeText(" T-1");
    Compose("ff76");
    EXPECT_TRUE(EntryShows(entry, "温度 T-1ｶ"));
    Panel("固定文字列").Press(" 登録 ");
    EXPECT_TRUE(See([] { return GetPtrnCount() == 1; }));
    SaveByKey();
    const nlohmann::json item = Saved(LayoutName)["Items"][0];
    EXPECT_EQ(item["Text1"], "温度 T-1ｶ");
    EXPECT_EQ(item["Parm"][16], 10);
  });
}

TEST_F(JapaneseText, FillsTheFieldToItsLastByte) {
  PlayInAnEntry([this](GtkWidget* entry) {
    const std::string fifty = Repeated("字", 50);
    Paste(fifty);
    EXPECT_TRUE(EntryShows(entry, fifty));
    TypeText("x");
    EXPECT_TRUE(Refuses(entry));
    EXPECT_TRUE(EntryShows(entry, fifty));
    Panel("固定文字列").Press(" 登録 ");
    EXPECT_TRUE(See([] { return GetPtrnCount() == 1; }));
    SaveByKey();
    EXPECT_EQ(Saved(LayoutName)["Items"][0]["Text1"], fifty);
  });
}

TEST_F(JapaneseText, IsNeverCutInHalf) {
  PlayInAnEntry([](GtkWidget* entry) {
    // One byte is left, a character needs two.
    const std::string almost = Repeated("字", 49) + "a";
    Paste(almost);
    EXPECT_TRUE(EntryShows(entry, almost));
    Compose("5b57");
    EXPECT_TRUE(Refuses(entry));
    EXPECT_TRUE(EntryShows(entry, almost));
    TypeText("b");
    EXPECT_TRUE(EntryShows(entry, almost + "b"));
  });
}

TEST_F(JapaneseText, RefusesWhatTheRecordCannotHold) {
  PlayInAnEntry([](GtkWidget* entry) {
    TypeText("ok");
    Paste("한국");
    EXPECT_TRUE(Refuses(entry));
    EXPECT_TRUE(EntryShows(entry, "ok"));
    Paste("～－∥");  // variants of characters that the record has
    EXPECT_TRUE(EntryShows(entry, "ok～－∥"));
  });
}

}  // namespace
