#include <gtest/gtest.h>

#include <string>

#include "PtrnMisc.h"
#include "tests/common/TempFolder.h"

namespace {

class ProfileRead : public testing::Test {
 protected:
  // The profile that holds just these bytes.
  const gchar* With(const std::string& bytes) {
    folder_.Write("test.ini", bytes);
    return path_.c_str();
  }
  // The first field of key K of section S, read as text.
  std::string Text(const std::string& bytes) { return ProfileReadAsc1(With(bytes), "S", "K"); }
  gint Number(const std::string& bytes) { return ProfileReadInt1(With(bytes), "S", "K"); }

  TempFolder folder_;
  const std::string path_ = folder_.Path("test.ini");
};

TEST_F(ProfileRead, GivesEveryFieldAndTheirNumber) {
  gchar name[100];
  gchar path[100];
  EXPECT_EQ(2, ProfileRead1(With("[PROJECT]\nPROJECT=Sample,/home/user/Sample\n"), "PROJECT",
                            "PROJECT", "ss", name, path));
  EXPECT_STREQ("Sample", name);
  EXPECT_STREQ("/home/user/Sample", path);
}

TEST_F(ProfileRead, AMissingFieldIsEmptyAndNotCounted) {
  gchar name[100] = "old";
  gchar path[100] = "old";
  EXPECT_EQ(
      1, ProfileRead1(With("[PROJECT]\nPROJECT=Sample\n"), "PROJECT", "PROJECT", "ss", name, path));
  EXPECT_STREQ("Sample", name);
  EXPECT_STREQ("", path);
}

TEST_F(ProfileRead, AMissingSectionOrKeyEmptiesEveryDestination) {
  for (const gchar* bytes : {"[T]\nK=x,1,1\n", "[S]\nL=x,1,1\n"}) {
    gchar text[100] = "old";
    gint decimal = 7;
    guint16 hexadecimal = 7;
    EXPECT_EQ(0, ProfileRead1(With(bytes), "S", "K", "sih", text, &decimal, &hexadecimal));
    EXPECT_STREQ("", text);
    EXPECT_EQ(0, decimal);
    EXPECT_EQ(0, hexadecimal);
  }
}

TEST_F(ProfileRead, AMissingFileReadsAsEmptyAndIsNotMade) {
  gchar text[100] = "old";
  EXPECT_EQ(0, ProfileRead1(path_.c_str(), "S", "K", "s", text));
  EXPECT_STREQ("", text);
  EXPECT_FALSE(folder_.Exists("test.ini"));
}

TEST_F(ProfileRead, AnEmptyFileOrAFolderHasNoSections) {
  EXPECT_EQ("", Text(""));
  EXPECT_STREQ("", ProfileReadAsc1(folder_.Path().c_str(), "S", "K"));
}

TEST_F(ProfileRead, LettersOfBothCasesAndFieldsOfMixedKinds) {
  gchar text[100];
  gint decimal = 0;
  guint16 hexadecimal = 0;
  EXPECT_EQ(
      3, ProfileRead1(With("[S]\nK=abc,12,1aF\n"), "S", "K", "SIH", text, &decimal, &hexadecimal));
  EXPECT_STREQ("abc", text);
  EXPECT_EQ(12, decimal);
  EXPECT_EQ(0x1AF, hexadecimal);
}

TEST_F(ProfileRead, AnotherLetterOrANullPointerEndsTheList) {
  gint first = 0;
  gint second = 7;
  const gchar* profile = With("[S]\nK=1,2\n");
  EXPECT_EQ(1, ProfileRead1(profile, "S", "K", "ixi", &first, &second));
  EXPECT_EQ(7, second);
  EXPECT_EQ(1, ProfileRead1(profile, "S", "K", "ii", &first, static_cast<gint*>(nullptr)));
}

TEST_F(ProfileRead, EmptyFieldsBetweenCommasKeepTheirPlace) {
  gint fields[3] = {7, 7, 7};
  EXPECT_EQ(
      2, ProfileRead1(With("[S]\nK=1,,3\n"), "S", "K", "iii", &fields[0], &fields[1], &fields[2]));
  EXPECT_EQ(1, fields[0]);
  EXPECT_EQ(0, fields[1]);
  EXPECT_EQ(3, fields[2]);
}

TEST_F(ProfileRead, ANumberIsAllDigitsOrNothing) {
  EXPECT_EQ(12, Number("[S]\nK=12\n"));
  EXPECT_EQ(0, Number("[S]\nK=-5\n"));
  EXPECT_EQ(0, Number("[S]\nK=+5\n"));
  EXPECT_EQ(0, Number("[S]\nK= 12\n"));
  EXPECT_EQ(0, Number("[S]\nK=1.5\n"));
  EXPECT_EQ(0, Number("[S]\nK=0x10\n"));
  EXPECT_EQ(10, Number("[S]\nK=0010\n"));
  gint data = 7;
  EXPECT_EQ(0, ProfileRead1(With("[S]\nK=-5\n"), "S", "K", "i", &data));
  EXPECT_EQ(0, data);
}

TEST_F(ProfileRead, ANumberBeyondItsTypeIsTheLargest) {
  EXPECT_EQ(2147483647, Number("[S]\nK=2147483647\n"));
  EXPECT_EQ(2147483647, Number("[S]\nK=2147483648\n"));
  EXPECT_EQ(2147483647, Number("[S]\nK=" + std::string(90, '9') + "\n"));
}

TEST_F(ProfileRead, HexadecimalTakesFourDigits) {
  EXPECT_EQ(0x1234, ProfileReadHex1(With("[S]\nK=12345\n"), "S", "K"));
  EXPECT_EQ(0xABCD, ProfileReadHex1(With("[S]\nK=abCD\n"), "S", "K"));
  EXPECT_EQ(0, ProfileReadHex1(With("[S]\nK=  1A\n"), "S", "K"));
  EXPECT_EQ(0, ProfileReadHex1(With("[S]\nK=12G\n"), "S", "K"));
}

TEST_F(ProfileRead, ACommentAndTheBlanksBeforeItDoNotCount) {
  EXPECT_EQ(12, Number("[S]\nK=12 ; note\n"));
  EXPECT_EQ("a b", Text("[S]\nK=a b\t \t;x;y\n"));
  EXPECT_EQ("12", Text("[S] ; header with a note\n;K=1\nK=12;3\n"));
  EXPECT_EQ("", Text("[S]\nK=;12\n"));
}

TEST_F(ProfileRead, LeadingBlanksOfAValueStay) {
  EXPECT_EQ("  a", Text("[S]\nK=  a  \n"));
}

TEST_F(ProfileRead, OtherLinesInsideASectionArePassedOver) {
  EXPECT_EQ("1", Text("before\n[S]\n\n \n; note\nno key\nKK=2\n=3\nK=1\n"));
}

TEST_F(ProfileRead, BlanksBeforeTheBracketOrAroundTheSignAreNotAccepted) {
  EXPECT_EQ("", Text(" [S]\nK=1\n"));
  EXPECT_EQ("", Text("[S]\nK =1\n"));
  EXPECT_EQ("", Text("[S]\n K=1\n"));
  EXPECT_EQ(0, ProfileReadInt1(With("[S]\nWINDOW = 1\n"), "S", "WINDOW"));
}

TEST_F(ProfileRead, NamesAreCaseSensitive) {
  EXPECT_EQ("", Text("[s]\nK=1\n"));
  EXPECT_EQ("", Text("[S]\nk=1\n"));
}

TEST_F(ProfileRead, AHeaderMatchesWhateverFollowsIt) {
  EXPECT_EQ("1", Text("[S]xyz\nK=1\n"));
}

TEST_F(ProfileRead, ASectionEndsAtTheNextBracket) {
  EXPECT_EQ("", Text("[S]\nL=1\n[T]\nK=2\n"));
  EXPECT_EQ("", Text("[S]\nL=1\n[not a header\nK=2\n"));
}

TEST_F(ProfileRead, TheFirstOfEqualSectionsAndKeysCounts) {
  EXPECT_EQ("", Text("[S]\nL=1\n[S]\nK=2\n"));
  EXPECT_EQ("1", Text("[S]\nK=1\nK=2\n"));
}

TEST_F(ProfileRead, AnEmptySectionOrKeyIsNeverFound) {
  const gchar* profile = With("[]\nK=1\n=2\n[S]\n=3\n");
  EXPECT_STREQ("", ProfileReadAsc1(profile, "", "K"));
  EXPECT_STREQ("", ProfileReadAsc1(profile, "S", ""));
}

TEST_F(ProfileRead, ACarriageReturnBelongsToTheValue) {
  EXPECT_EQ("12\r", Text("[S]\r\nK=12\r\n"));
  EXPECT_EQ(0, Number("[S]\r\nK=12\r\n"));
}

TEST_F(ProfileRead, AZeroByteEndsALine) {
  EXPECT_EQ("1", Text(std::string("[S]\nK=1\0L=2\n", 12)));
  EXPECT_EQ("2", Text(std::string("[S]\nL=1\0K=2\n", 12)));
}

TEST_F(ProfileRead, TheLastLineNeedsNoLineFeed) {
  EXPECT_EQ("12", Text("[S]\nK=12"));
  EXPECT_EQ("", Text("[S]"));
}

TEST_F(ProfileRead, ATextIsCutAt99Bytes) {
  EXPECT_EQ(std::string(99, 'x'), Text("[S]\nK=" + std::string(99, 'x') + "\n"));
  EXPECT_EQ(std::string(99, 'x'), Text("[S]\nK=" + std::string(150, 'x') + "\n"));
}

TEST_F(ProfileRead, ATextIsNotCutInsideACharacter) {
  std::string kanji;
  for (int i = 0; i < 60; ++i) kanji += "\xC6\xFC";
  EXPECT_EQ(kanji.substr(0, 98), Text("[S]\nK=" + kanji + "\n"));
}

TEST_F(ProfileRead, ALineOfMoreThan256BytesCountsAsSeveral) {
  // 254 bytes of text behind "K=" fill the first piece.
  const std::string first(254, '1');
  EXPECT_EQ(99u, Text("[S]\nK=" + first + "tail\n").size());
  EXPECT_EQ("5", Text("[S]\n" + std::string(256, 'x') + "K=5\n"));
  // A comment, too, ends with its piece.
  EXPECT_EQ("5", Text("[S]\n;" + std::string(255, 'x') + "K=5\n"));
  EXPECT_EQ("", Text("[S]\n" + std::string(256, 'x') + "[T]\nK=5\n"));
}

TEST_F(ProfileRead, NumberedKeysHaveNoPadding) {
  const gchar* profile = With("[FONT]\nFONTNAME3=three,3\nFONTNAME12=twelve,1234\nFONTNAME-1=m\n");
  EXPECT_STREQ("three", ProfileReadAsc2(profile, "FONT", "FONTNAME", 3));
  EXPECT_STREQ("twelve", ProfileReadAsc2(profile, "FONT", "FONTNAME", 12));
  EXPECT_STREQ("m", ProfileReadAsc2(profile, "FONT", "FONTNAME", -1));
  EXPECT_STREQ("", ProfileReadAsc2(profile, "FONT", "FONTNAME", 1));
  gchar name[100];
  gint size = 0;
  EXPECT_EQ(2, ProfileRead2(profile, "FONT", "FONTNAME", 12, "si", name, &size));
  EXPECT_EQ(1234, size);
}

TEST_F(ProfileRead, TypedReadersTakeTheFirstField) {
  const gchar* profile = With("[S]\nK=12,13\nK1=F0F0,1\n");
  EXPECT_EQ(12, ProfileReadInt1(profile, "S", "K"));
  EXPECT_EQ(0, ProfileReadInt2(profile, "S", "K", 1));
  EXPECT_EQ(0x12, ProfileReadHex1(profile, "S", "K"));
  EXPECT_EQ(0xF0F0, ProfileReadHex2(profile, "S", "K", 1));
  EXPECT_EQ(0, ProfileReadInt2(profile, "S", "K", 2));
  EXPECT_STREQ("12", ProfileReadAsc1(profile, "S", "K"));
}

TEST_F(ProfileRead, AnEmptyNameIsTheDesignersOwnProfile) {
  CopyText(PathName, folder_.Path());
  folder_.Write("VarnixMaster.ini", "[VARNIXPACK]\nLANGUAGE=2\n");
  EXPECT_EQ(2, ProfileReadInt1("", "VARNIXPACK", "LANGUAGE"));
}

TEST_F(ProfileRead, ReadingLeavesTheFileAlone) {
  Text("[S]\r\nK=12 ; note");
  EXPECT_EQ("[S]\r\nK=12 ; note", folder_.Read("test.ini"));
}

}  // namespace
