#include <gtest/gtest.h>

#include "support/Text.h"
#include "tests/project/ProjectFixture.h"

namespace {

class LogicProfileTest : public ProjectFixture {
 protected:
  void SetUp() override {
    ProjectFixture::SetUp();
    std::strcpy(ProjPath, "/home/plant");
  }
  std::string Runtime() const {
    return Utf8FromEuc(folder_.Read("source/Plant.ini")).value_or("not EUC-JP");
  }
  // The line of a key in a profile.
  static std::string Line(const std::string& profile, const std::string& key) {
    const std::size_t start = profile.find("\n" + key + "=");
    if (start == std::string::npos) return "";
    return profile.substr(start + 1, profile.find('\n', start + 1) - start - 1);
  }
};

std::string At60(std::string line, std::string_view comment) {
  line.resize(60, ' ');
  return line.append(comment) + "\n";
}

TEST_F(LogicProfileTest, ANewProfileHasItsSectionsAndDefaults) {
  InitProjIni(folder_.Path("source").c_str(), "Plant");
  EXPECT_EQ(Runtime(),
            "[VARNIXPACK]\n" +                                             //
                At60("PROJECT=", "; プロジェクト格納フォルダー") +         //
                At60("DISPSIZE=0,0", "; ＣＲＴ画面の大きさ") +             //
                At60("SHUTDOWN=0", "; シャットダウン処理") +               //
                At60("WAITTIMER=0", "; システム停止時の待ち時間（秒）") +  //
                At60("LANGUAGE=0", "; 言語") +                             //
                "\n\n[PTRN]\n" +                                           //
                At60("PTRNSTART=", "; 起動時画面名称") +                   //
                At60("PTRNSTOP=", "; 停止時画面名称") +                    //
                "\n\n[FONT]\n\n\n[COLOR]\n\n\n[PRINTER]\n\n\n[WINDOW]\n\n\n[LOG]\n" +
                At60("LOGFILE=", "; ログファイルへのパス") +           //
                At60("LOGSIZE=500", "; ログファイル保存行数") +        //
                At60("LOGTIMR=180", "; ログファイル保存周期（秒）") +  //
                At60("LOGSAVE=200", "; ログファイル保存日数"));
}

TEST_F(LogicProfileTest, TheProjectsSettingsAreWritten) {
  ProjData.Parm1[0] = 6;
  std::strcpy(ProjData.PtrnStart, "Start");
  std::strcpy(ProjData.PtrnStop, "Stop");
  LogicDataEdit4();
  const std::string runtime = Runtime();
  const std::pair<const char*, std::string> lines[] = {
      {"DISPSIZE", At60("DISPSIZE=1600,1200", "; ＣＲＴ画面の大きさ")},
      {"PROJECT", At60("PROJECT=/home/plant", "; プロジェクト格納フォルダー")},
      {"PTRNSTART", At60("PTRNSTART=Start", "; 起動時の画面")},
      {"PTRNSTOP", At60("PTRNSTOP=Stop", "; 停止時の画面")},
      {"WAITTIMER", At60("WAITTIMER=5", "; システム停止時の待ち時間（秒）")},
      {"LOGFILE", At60("LOGFILE=/home/plant", "; ログファイル")},
  };
  for (const auto& [key, line] : lines) EXPECT_EQ(Line(runtime, key) + "\n", line);
}

TEST_F(LogicProfileTest, WithoutStopLayoutTheWaitingTimeStays) {
  LogicDataEdit4();
  EXPECT_TRUE(Line(Runtime(), "WAITTIMER").starts_with("WAITTIMER=0 "));
}

TEST_F(LogicProfileTest, AFolderTooLongForTheColumnLeavesTwoBlanks) {
  const std::string folder(80, 'd');
  std::strcpy(ProjPath, folder.c_str());
  LogicDataEdit4();
  EXPECT_EQ(Line(Runtime(), "PROJECT"), "PROJECT=" + folder + "  ; プロジェクト格納フォルダー");
}

TEST_F(LogicProfileTest, WhatTheUserSetIsKept) {
  LogicDataEdit4();
  std::string text = folder_.Read("source/Plant.ini");
  const auto replace = [&text](std::string_view from, std::string_view to) {
    text.replace(text.find(from), from.size(), to);
  };
  replace("LANGUAGE=0", "LANGUAGE=2");
  replace("WAITTIMER=0", "WAITTIMER=9");
  replace("LOGFILE=/home/plant", "LOGFILE=/var/log");
  replace("LOGSIZE=500", "LOGSIZE=7");
  replace("[PRINTER]\n", "[PRINTER]\nNAME=lp\n");
  folder_.Write("source/Plant.ini", text);
  std::strcpy(ProjData.PtrnStop, "Stop");
  LogicDataEdit4();
  const std::string runtime = Runtime();
  EXPECT_TRUE(Line(runtime, "LANGUAGE").starts_with("LANGUAGE=2 "));
  EXPECT_TRUE(Line(runtime, "WAITTIMER").starts_with("WAITTIMER=9 "));
  EXPECT_TRUE(Line(runtime, "LOGFILE").starts_with("LOGFILE=/var/log "));
  EXPECT_TRUE(Line(runtime, "LOGSIZE").starts_with("LOGSIZE=7 "));
  EXPECT_EQ(Line(runtime, "NAME"), "NAME=lp");
}

TEST_F(LogicProfileTest, ASecondRunChangesNothing) {
  WriteProfile("[FONT]\nFONTNAME0=a,b\nFONTNAME1=c,d\n[COLOR]\nCURSOR_BG=1,2,3\n");
  LogicDataEdit4();
  const std::string first = Runtime();
  LogicDataEdit4();
  EXPECT_EQ(Runtime(), first);
}

TEST_F(LogicProfileTest, FontsAreReplacedByTheDesigners) {
  WriteProfile(
      "[FONT]\nFONTNAME0=Small,-a-gothic-14\nFONTNAME1=Large,\nFONTNAME2=,-b\n"
      "FONTNAME20=Mid,-c-mincho-16\nFONTNAME59=Last,-d\n");
  folder_.Write("source/Plant.ini", "[FONT]\nFONTNAME7=old\nOTHER=1\nFONTNAME0=old\n");
  LogicDataEdit4();
  EXPECT_TRUE(Runtime().starts_with(
      "[FONT]\nFONTNAME0=-a-gothic-14\nFONTNAME20=-c-mincho-16\nFONTNAME59=-d\nOTHER=1\n"))
      << Runtime();
}

TEST_F(LogicProfileTest, ColoursAreCopiedWhereTheDesignerHasThem) {
  WriteProfile(
      "[COLOR]\nCURSOR_BG=1,2,65535\nCURSOR_FG=4,5\nXPM_COLR1=#112233\nXPM_COLR3=red,green\n");
  folder_.Write("source/Plant.ini", "[COLOR]\nCURSOR_FG=9,9,9\nXPM_COLR2=kept\n");
  LogicDataEdit4();
  EXPECT_TRUE(Runtime().starts_with(
      "[COLOR]\nXPM_COLR1=#112233\nXPM_COLR3=red\nCURSOR_BG=1,2,65535\nCURSOR_FG=9,9,9\n"
      "XPM_COLR2=kept\n"))
      << Runtime();
}

TEST_F(LogicProfileTest, AnUnknownDisplaySizeTakesTheFirst) {
  ProjData.Parm1[0] = -1;
  LogicDataEdit4();
  EXPECT_TRUE(Line(Runtime(), "DISPSIZE").starts_with("DISPSIZE=800,600 "));
}

TEST_F(LogicProfileTest, WithoutProgramFolderNothingIsWritten) {
  std::strcpy(ProjData.ProgPath, folder_.Path("none").c_str());
  LogicDataEdit3();
  LogicDataEdit4();
  EXPECT_FALSE(folder_.Exists("none"));
}

TEST_F(LogicProfileTest, AFileTooLargeForAProfileIsLeftAlone) {
  const std::string path = folder_.Write("source/Plant.ini", "[PTRN]\n");
  std::filesystem::resize_file(path, 17 << 20);
  LogicDataEdit4();
  EXPECT_EQ(std::filesystem::file_size(path), 17u << 20);
}

}  // namespace
