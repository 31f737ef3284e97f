#include <gtest/gtest.h>

#include <string>

#include "support/Text.h"

namespace {

TEST(Text, AsciiIsTheSameInBoth) {
  std::string ascii;
  for (char byte = 0; byte < 0x7F; ++byte) ascii += byte;
  EXPECT_EQ(ascii, EucFromUtf8(ascii));
  EXPECT_EQ(ascii, Utf8FromEuc(ascii));
  EXPECT_EQ("", EucFromUtf8(""));
  EXPECT_EQ("", Utf8FromEuc(""));
}

TEST(Text, ConvertsEveryPlaneOfEucBothWays) {
  struct {
    const char* Utf8;
    const char* Euc;
  } const pairs[] = {
      {"日本", "\xC6\xFC\xCB\xDC"},             // JIS X 0208
      {"Ａあア", "\xA3\xC1\xA4\xA2\xA5\xA2"},   // JIS X 0208, full width
      {"ｱﾟ", "\x8E\xB1\x8E\xDF"},               // half-width kana
      {"éß", "\x8F\xAB\xB1\x8F\xA9\xCE"},       // JIS X 0212
      {"鷗", "\x8F\xEC\xBF"},                   // JIS X 0212, kanji
      {"　×￥", "\xA1\xA1\xA1\xDF\xA1\xEF"},    // signs
      {"Ω Ж ─", "\xA6\xB8 \xA7\xA8 \xA8\xA1"},  // Greek, Cyrillic, frame
  };
  for (const auto& pair : pairs) {
    EXPECT_EQ(pair.Euc, EucFromUtf8(pair.Utf8)) << pair.Utf8;
    EXPECT_EQ(pair.Utf8, Utf8FromEuc(pair.Euc)) << pair.Utf8;
  }
}

TEST(Text, FoldsLookAlikes) {
  EXPECT_EQ("a\xA1\xC1z", EucFromUtf8("a\uFF5Ez"));  // full-width tilde, wave dash
  EXPECT_EQ("\xA1\xC1", EucFromUtf8("\u301C"));
  EXPECT_EQ("\xA1\xDD", EucFromUtf8("\uFF0D"));  // full-width minus
  EXPECT_EQ("\xA1\xDD", EucFromUtf8("\u2212"));
  EXPECT_EQ("\xA1\xC2", EucFromUtf8("\u2225"));  // parallel
  EXPECT_EQ("\xA1\xBD", EucFromUtf8("\u2014"));  // dash
  EXPECT_EQ("\xA1\xBD", EucFromUtf8("\u2015"));
  EXPECT_EQ("\xA1\xF1\xA1\xF2\xA2\xCC", EucFromUtf8("\uFFE0\uFFE1\uFFE2"));
}

TEST(Text, RefusesWhatEucDoesNotHave) {
  for (const char* text : {"😀", "日本😀", "한", "€", "\u200B", "\uFFFD"}) {
    EXPECT_EQ(std::nullopt, EucFromUtf8(text)) << text;
  }
}

TEST(Text, RefusesWhatWouldComeBackAsSomethingElse) {
  EXPECT_EQ(std::nullopt, EucFromUtf8("\u00A5"));       // yen, not a backslash
  EXPECT_EQ(std::nullopt, EucFromUtf8("\u203E"));       // overline, not a tilde
  EXPECT_EQ(std::nullopt, EucFromUtf8("\u0085"));       // control character
  EXPECT_EQ(std::nullopt, EucFromUtf8("a\U000E0041"));  // tag, not nothing
}

TEST(Text, RefusesBrokenUtf8) {
  for (const char* text : {"\xE6\x97", "\x80", "a\xFF", "\xC0\x80", "\xED\xA0\x80"}) {
    EXPECT_EQ(std::nullopt, EucFromUtf8(text));
  }
}

TEST(Text, RefusesBrokenEuc) {
  for (const char* text : {"\xC6", "a\xC6z", "\x8E", "\x8E\x41", "\x8F\xA2", "\x8F\xA2\x41", "\x80",
                           "\xFF\xFF", "\xA0\xA1", "\xC6\xFC\x85"}) {
    EXPECT_EQ(std::nullopt, Utf8FromEuc(text));
  }
  EXPECT_EQ(std::nullopt, Utf8FromEuc("\xA9\xA1"));      // no character there
  EXPECT_EQ(std::nullopt, Utf8FromEuc("\x8E\xF0"));      // beyond the kana
  EXPECT_EQ(std::nullopt, Utf8FromEuc("\x8F\xA1\xA1"));  // no character there
}

TEST(Text, ARefusalDoesNotHarmTheNextText) {
  EXPECT_EQ(std::nullopt, Utf8FromEuc("\xC6\xFC\xCB"));
  EXPECT_EQ("日本", Utf8FromEuc("\xC6\xFC\xCB\xDC"));
  EXPECT_EQ(std::nullopt, EucFromUtf8("日\xE6\x9C"));
  EXPECT_EQ("\xC6\xFC", EucFromUtf8("日"));
}

TEST(DisplayText, PrefersEucThenUtf8ThenEscapes) {
  EXPECT_EQ("plain", DisplayText("plain"));
  EXPECT_EQ("日本", DisplayText("\xC6\xFC\xCB\xDC"));
  EXPECT_EQ("日本語", DisplayText("日本語"));
  EXPECT_EQ("/home/桁/画面", DisplayText("/home/桁/画面"));
  EXPECT_EQ("a\\xC6z\\xFF", DisplayText("a\xC6z\xFF"));
  EXPECT_EQ("", DisplayText(""));
}

TEST(CutEuc, KeepsAShortText) {
  EXPECT_EQ("abc", CutEuc("abc", 3));
  EXPECT_EQ("abc", CutEuc("abc", 100));
  EXPECT_EQ("", CutEuc("", 0));
}

TEST(CutEuc, NeverSplitsACharacter) {
  const std::string_view text = "a\xC6\xFC\x8E\xB1\x8F\xAB\xB1z";
  const std::size_t lengths[] = {0, 1, 1, 3, 3, 5, 5, 5, 8, 9, 9};
  for (std::size_t limit = 0; limit <= 10; ++limit) {
    EXPECT_EQ(text.substr(0, lengths[limit]), CutEuc(text, limit)) << "limit " << limit;
  }
}

TEST(CutEuc, TakesBrokenBytesOneByOne) {
  EXPECT_EQ("\x8F\xA2", CutEuc("\x8F\xA2z", 2));
  EXPECT_EQ("\xC6", CutEuc("\xC6z\xFC", 1));
  EXPECT_EQ("\x80\x80", CutEuc("\x80\x80\x80", 2));
}

TEST(CopyText, FillsTheFieldToItsEnd) {
  gchar field[6] = {'#', '#', '#', '#', '#', '#'};
  CopyText(field, "ab");
  EXPECT_EQ(std::string("ab\0\0\0\0", 6), std::string(field, 6));
}

TEST(CopyText, CutsBetweenCharactersAndTerminates) {
  gchar field[6];
  CopyText(field, "abcdefgh");
  EXPECT_STREQ("abcde", field);
  CopyText(field, "a\xC6\xFC\xCB\xDC\xB8\xEC");
  EXPECT_STREQ("a\xC6\xFC\xCB\xDC", field);
  CopyText(field, "ab\xC6\xFC\xCB\xDC");
  EXPECT_EQ(std::string("ab\xC6\xFC\0\0", 6), std::string(field, 6));
}

TEST(CopyText, StopsAtATerminatorInTheText) {
  gchar field[6] = {};
  CopyText(field, std::string_view("ab\0cd", 5));
  EXPECT_EQ(std::string("ab\0\0\0\0", 6), std::string(field, 6));
}

TEST(CopyText, MayCopyAFieldOntoItself) {
  gchar field[6] = "abcde";
  CopyText(field, FieldText(field).substr(1));
  EXPECT_STREQ("bcde", field);
}

TEST(CopyText, TakesAViewOfNothing) {
  gchar field[3] = "ab";
  CopyText(field, std::string_view());
  EXPECT_STREQ("", field);
  EXPECT_EQ("", DisplayText(std::string_view()));
}

TEST(CopyText, LeavesAFieldWithoutRoomAlone) {
  gchar field = '#';
  CopyText(&field, 0, "ab");
  EXPECT_EQ('#', field);
}

TEST(FieldText, EndsAtTheTerminatorOrTheField) {
  const gchar whole[4] = {'a', 'b', 'c', 'd'};
  const gchar part[4] = {'a', 'b', '\0', 'd'};
  EXPECT_EQ("abcd", FieldText(whole));
  EXPECT_EQ("ab", FieldText(part));
}

}  // namespace
