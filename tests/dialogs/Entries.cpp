// Text entries: what they let in, what they write, how they say no.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "dialogs/Kit.h"
#include "dialogs/kit/Cells.h"
#include "tests/dialogs/Controls.h"
#include "tests/dialogs/GridWindow.h"

namespace {

constexpr gint Limit = 10;  // bytes
constexpr const gchar* Hint = "半角 10 文字、全角 5 文字まで (10 バイト)";

// "日本" in EUC-JP.
constexpr gchar Nihon[] = "\xC6\xFC\xCB\xDC";

std::string TooltipOf(GtkWidget* entry) {
  gchar* text = gtk_widget_get_tooltip_text(entry);
  std::string tooltip = text != nullptr ? text : "";
  g_free(text);
  return tooltip;
}

bool IsRefused(GtkWidget* entry) {
  const bool marked = gtk_style_context_has_class(gtk_widget_get_style_context(entry),
                                                  GTK_STYLE_CLASS_ERROR) != FALSE;
  const bool icon = gtk_entry_get_icon_name(GTK_ENTRY(entry), GTK_ENTRY_ICON_SECONDARY) != nullptr;
  EXPECT_EQ(marked, icon);
  EXPECT_EQ(icon, TooltipOf(entry) != Hint);
  return marked;
}

}  // namespace

class Entries : public testing::Test {
 protected:
  // An entry of Limit bytes over Field.
  GtkWidget* NewEntry(const gchar* stored, gint readOnly = 0) {
    std::strncpy(Field, stored, sizeof Field - 1);
    Rows[0] = {0, 0, 0, Limit, readOnly, Field, nullptr};
    Rows[1] = {-1, 0, 0, 0, 0, nullptr, nullptr};
    Dlg_EditBox(Form.Window, Form.Grid, Rows);
    EXPECT_EQ(gtk_editable_get_position(GTK_EDITABLE(Rows[0].entry)), 0);
    Form.Show();
    return Rows[0].entry;
  }

  gchar Field[Limit + 2] = {};
  DLG_EDITBOX Rows[2] = {};
  GridWindow Form;
};

TEST_F(Entries, ShowWhatIsStored) {
  GtkWidget* entry = NewEntry(Nihon);
  EXPECT_EQ(EntryText(entry), "日本");
}

TEST_F(Entries, TellHowMuchTheyTake) {
  EXPECT_EQ(TooltipOf(NewEntry("")), Hint);
  EXPECT_EQ(TooltipOf(NewEntry("", 1)), "");
}

TEST_F(Entries, WriteEucJpAtOnce) {
  GtkWidget* entry = NewEntry("");
  Type(entry, "日本");
  EXPECT_STREQ(Field, Nihon);
  Type(entry, "x");
  EXPECT_STREQ(Field, "\xC6\xFC\xCB\xDCx");
}

TEST_F(Entries, AnEmptyTextIsStoredAtOnce) {
  GtkWidget* entry = NewEntry("abc");
  gtk_editable_delete_text(GTK_EDITABLE(entry), 0, -1);
  EXPECT_STREQ(Field, "");
}

TEST_F(Entries, TakeExactlyTheirLimit) {
  GtkWidget* entry = NewEntry("");
  Type(entry, "あいうえお");
  EXPECT_EQ(std::strlen(Field), 10U);
  EXPECT_FALSE(IsRefused(entry));
  Type(entry, "a");
  EXPECT_EQ(EntryText(entry), "あいうえお");
  EXPECT_EQ(std::strlen(Field), 10U);
  EXPECT_TRUE(IsRefused(entry));
}

TEST_F(Entries, StoreNoHalfCharacter) {
  GtkWidget* entry = NewEntry("");
  Type(entry, "abcdefghi");
  Type(entry, "日");
  EXPECT_STREQ(Field, "abcdefghi");
  EXPECT_EQ(EntryText(entry), "abcdefghi");
  EXPECT_TRUE(IsRefused(entry));
}

TEST_F(Entries, CountTheBytesThatAreStored) {
  GtkWidget* entry = NewEntry("");
  // Half-width kana take two bytes each, a character of the supplementary set three.
  Type(entry, "ｱｲｳ");
  EXPECT_EQ(std::strlen(Field), 6U);
  Type(entry, "丂");
  EXPECT_EQ(std::strlen(Field), 9U);
  Type(entry, "ｴ");
  EXPECT_TRUE(IsRefused(entry));
  Type(entry, "x");
  EXPECT_EQ(std::strlen(Field), 10U);
  EXPECT_FALSE(IsRefused(entry));
}

TEST_F(Entries, RefuseWhatEucJpCannotHold) {
  GtkWidget* entry = NewEntry("a");
  Type(entry, "\U0001F600");
  EXPECT_EQ(EntryText(entry), "a");
  EXPECT_STREQ(Field, "a");
  EXPECT_TRUE(IsRefused(entry));
}

TEST_F(Entries, TheNextChangeTakesTheMarkAway) {
  GtkWidget* entry = NewEntry("a");
  Type(entry, "\U0001F600");
  ASSERT_TRUE(IsRefused(entry));
  Type(entry, "b");
  EXPECT_FALSE(IsRefused(entry));
  Type(entry, "\U0001F600");
  ASSERT_TRUE(IsRefused(entry));
  gtk_editable_delete_text(GTK_EDITABLE(entry), 0, 1);
  EXPECT_FALSE(IsRefused(entry));
}

TEST_F(Entries, LookAlikesBecomeTheCharactersOfEucJp) {
  GtkWidget* entry = NewEntry("");
  Type(entry, "\uFF5E");  // full-width tilde, stored as the wave dash
  EXPECT_STREQ(Field, "\xA1\xC1");
  EXPECT_FALSE(IsRefused(entry));
}

TEST_F(Entries, TakeWhatFitsAndSayThatItIsNotAll) {
  GtkWidget* entry = NewEntry("");
  Type(entry, "あいうえおか");
  EXPECT_EQ(EntryText(entry), "あいうえお");
  EXPECT_STREQ(Field, "\xA4\xA2\xA4\xA4\xA4\xA6\xA4\xA8\xA4\xAA");
  EXPECT_TRUE(IsRefused(entry));
  EXPECT_EQ(TooltipOf(entry), "文字数の上限までを入力しました。残りは入りません。");
  gtk_editable_delete_text(GTK_EDITABLE(entry), 0, 1);
  EXPECT_FALSE(IsRefused(entry));
  EXPECT_STREQ(Field, "\xA4\xA4\xA4\xA6\xA4\xA8\xA4\xAA");
}

TEST_F(Entries, TakeWholeCharactersAtTheCursorAndMoveItBehindThem) {
  GtkWidget* entry = NewEntry("abcde");
  gtk_editable_set_position(GTK_EDITABLE(entry), 3);
  Type(entry, "日本語");
  EXPECT_EQ(EntryText(entry), "abc日本de");
  EXPECT_STREQ(Field, "abc\xC6\xFC\xCB\xDC\x64\x65");
  EXPECT_EQ(gtk_editable_get_position(GTK_EDITABLE(entry)), 5);
  Type(entry, "x");
  EXPECT_EQ(EntryText(entry), "abc日本xde");
}

TEST_F(Entries, CountWhatIsStoredForALookAlike) {
  GtkWidget* entry = NewEntry("12345678");
  // Three bytes of UTF-8 each, two as they are stored.
  Type(entry, "\uFF5E\uFF5E");
  EXPECT_STREQ(Field, "12345678\xA1\xC1");
  EXPECT_EQ(EntryText(entry), "12345678\uFF5E");
}

TEST_F(Entries, APasteOverASelectionTakesWhatFits) {
  GtkWidget* entry = NewEntry("abc");
  GtkClipboard* clipboard = gtk_widget_get_clipboard(entry, GDK_SELECTION_CLIPBOARD);
  gtk_clipboard_set_text(clipboard, "いろはにほへと", -1);
  gtk_widget_grab_focus(entry);
  gtk_editable_select_region(GTK_EDITABLE(entry), 0, 1);
  gtk_editable_paste_clipboard(GTK_EDITABLE(entry));
  EXPECT_TRUE(WaitFor([entry] { return IsRefused(entry); }));
  EXPECT_EQ(EntryText(entry), "いろはにbc");
  EXPECT_STREQ(Field, "\xA4\xA4\xA4\xED\xA4\xCF\xA4\xCB\x62\x63");
}

TEST_F(Entries, APasteOfWhichNothingFitsLeavesTheSelection) {
  GtkWidget* entry = NewEntry("0123456789");
  GtkClipboard* clipboard = gtk_widget_get_clipboard(entry, GDK_SELECTION_CLIPBOARD);
  gtk_clipboard_set_text(clipboard, "日", -1);
  gtk_widget_grab_focus(entry);
  gtk_editable_select_region(GTK_EDITABLE(entry), 0, 1);
  gtk_editable_paste_clipboard(GTK_EDITABLE(entry));
  EXPECT_TRUE(WaitFor([entry] { return IsRefused(entry); }));
  EXPECT_EQ(EntryText(entry), "0123456789");
  EXPECT_STREQ(Field, "0123456789");
}

TEST_F(Entries, ATextThatReplacesAnotherIsTakenAsFarAsItFits) {
  GtkWidget* entry = NewEntry("before");
  gtk_entry_set_text(GTK_ENTRY(entry), "0123456789abc");
  EXPECT_EQ(EntryText(entry), "0123456789");
  EXPECT_STREQ(Field, "0123456789");
  EXPECT_TRUE(IsRefused(entry));
}

TEST_F(Entries, ADraggedTextStaysWhereItWasUnlessAllOfItWentIn) {
  GtkWidget* entry = NewEntry("0123456789");
  const auto dragged = [entry](const gchar* text, gint to) {
    gtk_editable_select_region(GTK_EDITABLE(entry), 0, 2);
    gtk_editable_insert_text(GTK_EDITABLE(entry), text, -1, &to);
    g_signal_emit_by_name(entry, "drag-data-delete", nullptr);
  };
  dragged("01", 10);
  EXPECT_STREQ(Field, "0123456789");
  gtk_editable_delete_text(GTK_EDITABLE(entry), 5, 10);
  dragged("01", 5);
  EXPECT_STREQ(Field, "23401");
}

TEST_F(Entries, ATextThatDidNotGoInHoldsNoLaterDragBack) {
  GtkWidget* entry = NewEntry("0123456789");
  gint end = 10;
  gtk_editable_insert_text(GTK_EDITABLE(entry), "x", -1, &end);
  ASSERT_TRUE(IsRefused(entry));
  gtk_editable_select_region(GTK_EDITABLE(entry), 0, 0);
  g_signal_emit_by_name(entry, "drag-begin", nullptr);
  gtk_editable_select_region(GTK_EDITABLE(entry), 0, 2);
  // Dropped elsewhere.
  g_signal_emit_by_name(entry, "drag-data-delete", nullptr);
  EXPECT_STREQ(Field, "23456789");
}

TEST_F(Entries, ARefusedTextLeavesTheOneItWasToReplace) {
  GtkWidget* entry = NewEntry(Nihon);
  gtk_entry_set_text(GTK_ENTRY(entry), "\U0001F600");
  EXPECT_EQ(EntryText(entry), "日本");
  EXPECT_STREQ(Field, Nihon);
  EXPECT_TRUE(IsRefused(entry));
  gtk_entry_set_text(GTK_ENTRY(entry), "今日");
  EXPECT_STREQ(Field, "\xBA\xA3\xC6\xFC");
  EXPECT_FALSE(IsRefused(entry));
  gtk_editable_delete_text(GTK_EDITABLE(entry), 0, -1);
  EXPECT_STREQ(Field, "");
}

TEST_F(Entries, APasteEndsAtTheLine) {
  GtkWidget* entry = NewEntry("");
  GtkClipboard* clipboard = gtk_widget_get_clipboard(entry, GDK_SELECTION_CLIPBOARD);
  gtk_clipboard_set_text(clipboard, "one\ntwo", -1);
  gtk_editable_paste_clipboard(GTK_EDITABLE(entry));
  EXPECT_TRUE(WaitFor([entry] { return EntryText(entry) == "one"; }));
  EXPECT_STREQ(Field, "one");
}

TEST_F(Entries, BytesThatAreNoTextAreShownEscapedAndLeftAlone) {
  GtkWidget* entry = NewEntry("A\xFF\x80Z");
  EXPECT_EQ(EntryText(entry), "A\\xFF\\x80Z");
  EXPECT_STREQ(Field, "A\xFF\x80Z");
}

TEST_F(Entries, EscapedBytesStayStoredUntilTheTextFits) {
  GtkWidget* entry = NewEntry("\xFF\xFF\xFFx");
  EXPECT_EQ(EntryText(entry), "\\xFF\\xFF\\xFFx");
  gtk_editable_delete_text(GTK_EDITABLE(entry), 12, 13);
  EXPECT_STREQ(Field, "\xFF\xFF\xFFx");
  EXPECT_TRUE(IsRefused(entry));
  gtk_editable_delete_text(GTK_EDITABLE(entry), 4, 12);
  EXPECT_STREQ(Field, "\\xFF");
  EXPECT_FALSE(IsRefused(entry));
}

TEST_F(Entries, AFieldWithoutItsEndIsReadNoFurther) {
  gchar field[] = "0123456789abcdef";
  DLG_EDITBOX rows[] = {{0, 0, 0, Limit, 0, field, nullptr}, {-1, 0, 0, 0, 0, nullptr, nullptr}};
  GridWindow form;
  Dlg_EditBox(form.Window, form.Grid, rows);
  EXPECT_EQ(EntryText(rows[0].entry), "0123456789a");
}

TEST_F(Entries, ReadOnlyOnesAreNotEditable) {
  GtkWidget* entry = NewEntry("abc", 1);
  EXPECT_FALSE(gtk_editable_get_editable(GTK_EDITABLE(entry)));
  Type(entry, "x");
  EXPECT_STREQ(Field, "abc");
}

TEST_F(Entries, ReadOnlyOnesLookSo) {
  gchar other[Limit + 2] = "";
  DLG_EDITBOX rows[] = {{1, 0, 0, Limit, 0, other, nullptr}, {-1, 0, 0, 0, 0, nullptr, nullptr}};
  Dlg_EditBox(Form.Window, Form.Grid, rows);
  GtkWidget* readOnly = NewEntry("", 1);
  const auto ground = [](GtkWidget* entry) {
    const gint width = gtk_widget_get_allocated_width(entry);
    const gint height = gtk_widget_get_allocated_height(entry);
    cairo_surface_t* picture = cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, height);
    cairo_t* cairo = cairo_create(picture);
    gtk_widget_draw(entry, cairo);
    cairo_destroy(cairo);
    cairo_surface_flush(picture);
    const unsigned char* row =
        cairo_image_surface_get_data(picture) +
        static_cast<ptrdiff_t>(height / 2) * cairo_image_surface_get_stride(picture);
    guint32 pixel = 0;
    std::memcpy(&pixel, row + static_cast<ptrdiff_t>(width / 2) * 4, sizeof pixel);
    cairo_surface_destroy(picture);
    return pixel & 0xffffff;
  };
  EXPECT_EQ(ground(rows[0].entry), 0xffffffU);
  EXPECT_NE(ground(readOnly), 0xffffffU);
}

TEST_F(Entries, ShowingRecordBytesWritesNothing) {
  GtkWidget* entry = NewEntry("abc");
  ShowRecordText(entry,
                 "\xFF"
                 "too long for the field");
  EXPECT_EQ(EntryText(entry), "\\xFFtoo long for the field");
  EXPECT_STREQ(Field, "abc");
  EXPECT_FALSE(IsRefused(entry));
}
