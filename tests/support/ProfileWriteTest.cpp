#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "PtrnMisc.h"
#include "tests/common/Child.h"
#include "tests/common/TempFolder.h"

namespace {

class ProfileWrite : public testing::Test {
 protected:
  const gchar* With(const std::string& bytes) {
    folder_.Write("test.ini", bytes);
    return path_.c_str();
  }
  std::string File() const { return folder_.Read("test.ini"); }

  TempFolder folder_;
  const std::string path_ = folder_.Path("test.ini");
};

TEST_F(ProfileWrite, TheFirstKeyMakesFileAndSection) {
  const std::string path = folder_.Path("new.ini");
  ProfileWriteInt1(path.c_str(), "S", "K", 5);
  EXPECT_EQ("[S]\nK=5\n", folder_.Read("new.ini"));
}

TEST_F(ProfileWrite, ANewKeyStandsFirstInItsSection) {
  const gchar* profile = With("[R]\nA=0\n[S] ; note\n; about L\nL=1\n[T]\nK=9\n");
  ProfileWriteInt1(profile, "S", "K", 5);
  EXPECT_EQ("[R]\nA=0\n[S] ; note\nK=5\n; about L\nL=1\n[T]\nK=9\n", File());
}

TEST_F(ProfileWrite, ANewSectionStandsLastWithoutABlankLine) {
  ProfileWriteAsc1(With("[R]\nA=0\n"), "S", "K", "x");
  EXPECT_EQ("[R]\nA=0\n[S]\nK=x\n", File());
}

TEST_F(ProfileWrite, ALastLineWithoutItsEndGetsTheHeaderJoined) {
  ProfileWriteAsc1(With("[R]\nA=0"), "S", "K", "x");
  EXPECT_EQ("[R]\nA=0[S]\nK=x\n", File());
}

TEST_F(ProfileWrite, ReplacingTakesTheOldCommentAway) {
  ProfileWriteInt1(With("; top\n[S]\n\nK=1   ; old\n\n; end\n"), "S", "K", 2);
  EXPECT_EQ("; top\n[S]\n\nK=2\n\n; end\n", File());
}

TEST_F(ProfileWrite, ReplacingTheLastLineEndsIt) {
  ProfileWriteInt1(With("[S]\nK=1"), "S", "K", 2);
  EXPECT_EQ("[S]\nK=2\n", File());
}

TEST_F(ProfileWrite, ReplacingALongLineLeavesNoRest) {
  const std::string comment(600, 'c');
  ProfileWriteInt1(With("[S]\nK=1 ;" + comment + "\nL=3\n"), "S", "K", 2);
  EXPECT_EQ("[S]\nK=2\nL=3\n", File());
}

TEST_F(ProfileWrite, ALongHeaderLineStaysWhole) {
  const std::string header = "[S];" + std::string(600, 'c') + "\n";
  ProfileWriteInt1(With(header + "L=3\n"), "S", "K", 2);
  EXPECT_EQ(header + "K=2\nL=3\n", File());
}

TEST_F(ProfileWrite, OtherLinesKeepTheirCarriageReturns) {
  ProfileWriteInt1(With("[S]\r\nK=1\r\nL=2\r\n"), "S", "K", 5);
  EXPECT_EQ("[S]\r\nK=5\nL=2\r\n", File());
}

TEST_F(ProfileWrite, FieldsAreJoinedByCommas) {
  const gint width = 800;
  const gint height = -1;
  const guint16 mask = 0xBEEF;
  EXPECT_EQ(4, ProfileWrite1(With(""), "S", "K", "siih", "a b", &width, &height, &mask));
  EXPECT_EQ("[S]\nK=a b,800,-1,BEEF\n", File());
}

TEST_F(ProfileWrite, AnotherLetterOrANullPointerEndsTheList) {
  const gint one = 1;
  const gint two = 2;
  EXPECT_EQ(1, ProfileWrite1(With(""), "S", "K", "i,i", &one, &two));
  EXPECT_EQ("[S]\nK=1\n", File());
  EXPECT_EQ(0, ProfileWrite1(path_.c_str(), "S", "K", "i", static_cast<const gint*>(nullptr)));
  EXPECT_EQ("[S]\nK=\n", File());
}

TEST_F(ProfileWrite, HexadecimalIsPaddedWithBlanksAndThenUnreadable) {
  const gchar* profile = With("[S]\n");
  ProfileWriteHexa1(profile, "S", "K", 0x1A);
  EXPECT_EQ("[S]\nK=  1A\n", File());
  EXPECT_EQ(0, ProfileReadHex1(profile, "S", "K"));
  ProfileWriteHexa1(profile, "S", "K", 0x1000);
  EXPECT_EQ("[S]\nK=1000\n", File());
  EXPECT_EQ(0x1000, ProfileReadHex1(profile, "S", "K"));
}

TEST_F(ProfileWrite, NumberedKeys) {
  const gchar* profile = With("[S]\n");
  const gint data = 4;
  ProfileWriteAsc2(profile, "S", "K", 3, "three");
  ProfileWriteInt2(profile, "S", "K", 12, 0);
  ProfileWriteHexa2(profile, "S", "K", 1, 0xFFFF);
  EXPECT_EQ(1, ProfileWrite2(profile, "S", "K", 0, "i", &data));
  EXPECT_EQ("[S]\nK0=4\nK1=FFFF\nK12=0\nK3=three\n", File());
}

TEST_F(ProfileWrite, AnEmptySectionNameWritesToTheStartOfTheFile) {
  ProfileWriteInt1(With("[S]\nL=1\n"), "", "K", 5);
  EXPECT_EQ("K=5\n[S]\nL=1\n", File());
}

TEST_F(ProfileWrite, AnEmptyKeyNameWritesNoLine) {
  ProfileWriteInt1(With("[S]\nL=1\n"), "S", "", 5);
  EXPECT_EQ("[S]\nL=1\n", File());
  ProfileWriteInt1(path_.c_str(), "T", "", 5);
  EXPECT_EQ("[S]\nL=1\n[T]\n", File());
}

TEST_F(ProfileWrite, ACommentBeginsInItsColumn) {
  ProfileWrite3(With("[S]\n"), "S", "DISPSIZE", "0,0", 60, "; size");
  EXPECT_EQ("[S]\nDISPSIZE=0,0                                                ; size\n", File());
  EXPECT_EQ(60u, File().find(';') - 4);
  EXPECT_STREQ("0", ProfileReadAsc1(path_.c_str(), "S", "DISPSIZE"));
}

TEST_F(ProfileWrite, ANumberedCommentCountsTheNumber) {
  ProfileWrite4(With("[S]\n"), "S", "K", 12, "ab", 8, "; c");
  EXPECT_EQ("[S]\nK12=ab  ; c\n", File());
}

TEST_F(ProfileWrite, WithoutRoomTwoBlanksStandBeforeTheComment) {
  // "KEY=value" takes columns 0 to 8.
  const gchar* profile = With("[S]\n");
  ProfileWrite3(profile, "S", "KEY", "value", 9, "; c");
  EXPECT_EQ("[S]\nKEY=value; c\n", File());
  ProfileWrite3(profile, "S", "KEY", "value", 8, "; c");
  EXPECT_EQ("[S]\nKEY=value  ; c\n", File());
  ProfileWrite3(profile, "S", "KEY", "value", -100, "; c");
  EXPECT_EQ("[S]\nKEY=value  ; c\n", File());
}

TEST_F(ProfileWrite, CharactersOfACommentCountAsTheirBytes) {
  ProfileWrite3(With("[S]\n"), "S", "K", "\xC6\xFC\xCB\xDC", 8, "; \xC3\xB1");
  EXPECT_EQ("[S]\nK=\xC6\xFC\xCB\xDC  ; \xC3\xB1\n", File());
}

TEST_F(ProfileWrite, DeletingTakesTheWholeLineAndLeavesTheHeader) {
  const gchar* profile = With("[S]\nK=1 ; note\n[T]\nK2=5\n");
  ProfileDelete1(profile, "S", "K");
  EXPECT_EQ("[S]\n[T]\nK2=5\n", File());
  ProfileDelete2(profile, "T", "K", 2);
  EXPECT_EQ("[S]\n[T]\n", File());
}

TEST_F(ProfileWrite, DeletingAMissingKeyDoesNotTouchTheFile) {
  const gchar* profile = With("[S]\r\nL=1\n[T]\nK=2");
  struct stat before;
  ASSERT_EQ(0, stat(profile, &before));
  ProfileDelete1(profile, "S", "K");
  ProfileDelete1(profile, "U", "K");
  ProfileDelete2(profile, "T", "K", 1);
  ProfileDelete1(profile, "T", "");
  struct stat after;
  ASSERT_EQ(0, stat(profile, &after));
  EXPECT_EQ("[S]\r\nL=1\n[T]\nK=2", File());
  EXPECT_EQ(before.st_ino, after.st_ino);
  EXPECT_EQ(before.st_mtim.tv_nsec, after.st_mtim.tv_nsec);
}

TEST_F(ProfileWrite, DeletingFromAMissingFileMakesNone) {
  ProfileDelete1(folder_.Path("missing.ini").c_str(), "S", "K");
  EXPECT_FALSE(folder_.Exists("missing.ini"));
}

TEST_F(ProfileWrite, AnEmptyNameIsTheDesignersOwnProfile) {
  CopyText(PathName, folder_.Path());
  ProfileWriteAsc1("", "PROJECT", "PROJECT", "Sample");
  EXPECT_EQ("[PROJECT]\nPROJECT=Sample\n", folder_.Read("VarnixMaster.ini"));
}

TEST_F(ProfileWrite, WhereNothingCanBeWrittenTheValueIsLostSilently) {
  With("a file, not a folder");
  ProfileWriteInt1((path_ + "/test.ini").c_str(), "S", "K", 5);
  EXPECT_EQ("a file, not a folder", File());
  ProfileWriteInt1(folder_.Path().c_str(), "S", "K", 5);
  EXPECT_TRUE(std::filesystem::is_directory(folder_.Path()));
}

TEST_F(ProfileWrite, AWritableProfileInAReadOnlyFolderIsWritten) {
  With("[S]\nK=12345\n");
  chmod(path_.c_str(), 0666);
  chmod(folder_.Path().c_str(), 0555);
  EXPECT_TRUE(HoldsForPlainUser([this] {
    ProfileWriteInt1(path_.c_str(), "S", "K", 5);
    return ProfileReadInt1(path_.c_str(), "S", "K") == 5;
  }));
  chmod(folder_.Path().c_str(), 0755);
  EXPECT_EQ("[S]\nK=5\n", File());
}

TEST_F(ProfileWrite, AReadOnlyProfileIsReadAndKept) {
  With("[S]\nK=1\n");
  chmod(path_.c_str(), 0444);
  chmod(folder_.Path().c_str(), 0777);
  EXPECT_TRUE(HoldsForPlainUser([this] {
    ProfileWriteInt1(path_.c_str(), "S", "K", 5);
    ProfileDelete1(path_.c_str(), "S", "K");
    return ProfileReadInt1(path_.c_str(), "S", "K") == 1;
  }));
  EXPECT_EQ("[S]\nK=1\n", File());
}

TEST_F(ProfileWrite, AProfileThatCannotBeReadIsNotOverwritten) {
  With("[S]\nK=1\n");
  chmod(path_.c_str(), 0222);
  chmod(folder_.Path().c_str(), 0777);
  EXPECT_TRUE(HoldsForPlainUser([this] {
    ProfileWriteInt1(path_.c_str(), "S", "L", 5);
    return true;
  }));
  EXPECT_EQ("[S]\nK=1\n", File());
}

TEST_F(ProfileWrite, AHugeForeignFileIsNeitherSearchedNorOverwritten) {
  const gchar* path = With("[S]\nK=1\n");
  std::filesystem::resize_file(path, std::uintmax_t{1} << 30);  // takes no room on the disk
  EXPECT_EQ(0, ProfileReadInt1(path, "S", "K"));
  ProfileWriteInt1(path, "S", "K", 5);
  EXPECT_EQ(std::uintmax_t{1} << 30, std::filesystem::file_size(path));
}

TEST_F(ProfileWrite, TwoProgramsKeepEachOthersKeys) {
  constexpr gint Keys = 60;
  const gchar* profile = With("[S]\n");
  const pid_t other = fork();
  if (other == 0) {
    for (gint no = 0; no < Keys; ++no) ProfileWriteInt2(profile, "S", "THEIRS", no, no + 1);
    _exit(0);
  }
  ASSERT_GT(other, 0);
  for (gint no = 0; no < Keys; ++no) ProfileWriteInt2(profile, "S", "OURS", no, no + 1);
  int status = 0;
  ASSERT_EQ(other, waitpid(other, &status, 0));
  EXPECT_EQ(0, status);
  for (gint no = 0; no < Keys; ++no) {
    EXPECT_EQ(no + 1, ProfileReadInt2(profile, "S", "OURS", no));
    EXPECT_EQ(no + 1, ProfileReadInt2(profile, "S", "THEIRS", no));
  }
}

}  // namespace
