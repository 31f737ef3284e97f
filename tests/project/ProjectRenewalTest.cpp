#include <gtest/gtest.h>

#include <map>

#include "tests/project/ProjectFixture.h"

namespace {

class ProjectRenewalTest : public ProjectFixture {
 protected:
  void SetUp() override {
    ProjectFixture::SetUp();
    for (gint i = 0; i < 20; ++i) {
      ProjData.Parm1[i] = 100 + i;
      ProjData.Parm3[i] = 300 + i;
      ProjData.Parm4[i] = 400 + i;
    }
    for (gint i = 0; i < 30; ++i) ProjData.Parm2[i] = 200 + i;
    ProjData.Parm1[0] = 2;
    std::strcpy(ProjData.LogoName, "New.bmp");
  }

  // Settings count from 1000 on, so that every one which was not pushed can be told.
  static PTRNHEDR OldHeader(gint kind) {
    PTRNHEDR header{};
    for (gint i = 0; i < 30; ++i) header.Parm1[i] = 1000 + i;
    for (gint i = 0; i < 10; ++i) header.Parm2[i] = 2000 + i;
    header.Parm1[0] = kind;
    header.Parm1[29] = 0;
    std::strcpy(header.PtrnName1, "Title");
    std::strcpy(header.LogoName, "Old.bmp");
    return header;
  }
  static void ExpectFile(const gchar* name, gint kind, std::map<gint, gint> pushed) {
    SCOPED_TRACE(name);
    IntPtrnData();
    ASSERT_EQ(PtrnFileRead(ProjPath, name), 1);
    EXPECT_EQ(GetPtrnCount(), 1);
    pushed.insert({{0, kind}, {29, 0}});
    for (gint i = 0; i < 30; ++i) {
      EXPECT_EQ(PtrnHedr.Parm1[i], pushed.contains(i) ? pushed[i] : 1000 + i) << "Parm1 " << i;
    }
    const gint parm2[10] = {2000, 0, 403, 404, 2004, 2005, 405, 2007, 2008, 2009};
    for (gint i = 0; i < 10; ++i) EXPECT_EQ(PtrnHedr.Parm2[i], parm2[i]) << "Parm2 " << i;
    EXPECT_STREQ(PtrnHedr.PtrnName1, "Title");
  }
};

TEST_F(ProjectRenewalTest, EachKindTakesItsPart) {
  WriteLayout("Parent", OldHeader(0), {{"A", 1}});
  WriteLayout("Child", OldHeader(1), {{"B", 1}});
  WriteLayout("Other", OldHeader(2), {{"C", 1}});
  ProjFileRenew(ProjPath);
  EXPECT_EQ(GetPtrnCount(), 0);
  EXPECT_EQ(PtrnHedr.Parm1[1], 0) << "the layout in memory is left empty";

  ExpectFile("Parent", 0,
             {{1, 1280}, {2, 1024}, {3, 2},    {8, 200},  {9, 201},  {10, 202}, {11, 203},
              {12, 204}, {13, 205}, {14, 206}, {15, 207}, {16, 208}, {17, 209}, {18, 210},
              {19, 211}, {21, 212}, {22, 213}, {25, 400}, {27, 401}, {28, 402}});
  EXPECT_STREQ(PtrnHedr.LogoName, "New.bmp");
  ExpectFile("Child", 1,
             {{8, 300},
              {9, 301},
              {10, 302},
              {11, 303},
              {12, 304},
              {19, 305},
              {23, 306},
              {24, 307},
              {25, 400},
              {27, 401},
              {28, 402}});
  EXPECT_STREQ(PtrnHedr.LogoName, "Old.bmp");
  ExpectFile("Other", 2, {});
}

TEST_F(ProjectRenewalTest, ALayoutThatKeepsItsLookIsNotWritten) {
  PTRNHEDR header = OldHeader(0);
  header.Parm1[29] = 1;
  header.Parm2[1] = 1;
  WriteLayout("Fixed", header, {{"A", 1}});
  const std::string before = folder_.Read("project/Fixed.ptn");
  PtrnFileRenew(ProjPath, "Fixed");
  EXPECT_EQ(folder_.Read("project/Fixed.ptn"), before);
  EXPECT_EQ(GetPtrnCount(), 0);
}

TEST_F(ProjectRenewalTest, OnlyLayoutFilesOfTheFolderAreTouched) {
  folder_.Write("project/Notes.txt", "notes");
  folder_.Write("project/.Hidden.ptn", "hidden");
  std::filesystem::create_directory(folder_.Path("project/Folder.ptn"));
  WriteLayout("Main.v2", OldHeader(2), {{"A", 1}});
  ProjFileRenew(ProjPath);
  EXPECT_EQ(folder_.Read("project/Notes.txt"), "notes");
  EXPECT_EQ(folder_.Read("project/.Hidden.ptn"), "hidden");
  EXPECT_FALSE(folder_.Exists("project/Main.ptn"));
  ExpectFile("Main.v2", 2, {});
}

TEST_F(ProjectRenewalTest, ADamagedLayoutIsKeptBesideItsRenewal) {
  WriteLayout("Main", OldHeader(0), {{"A", 1}, {"B", 2}});
  const std::string damaged = folder_.Read("project/Main.ptn").substr(0, 466 + 136 + 50);
  folder_.Write("project/Main.ptn", damaged);
  PtrnFileRenew(ProjPath, "Main");
  EXPECT_EQ(folder_.Read("project/Main.ptn.bak"), damaged);
  IntPtrnData();
  ASSERT_EQ(PtrnFileRead(ProjPath, "Main"), 1);
  EXPECT_EQ(GetPtrnCount(), 1) << "what could be read is kept";
  EXPECT_EQ(PtrnHedr.Parm1[1], 1280);
}

TEST_F(ProjectRenewalTest, AWholeLayoutLeavesNoCopy) {
  WriteLayout("Main", OldHeader(0), {{"A", 1}});
  WriteLayout("Empty", OldHeader(0), {});
  ProjFileRenew(ProjPath);
  EXPECT_FALSE(folder_.Exists("project/Main.ptn.bak"));
  EXPECT_FALSE(folder_.Exists("project/Empty.ptn.bak"));
}

TEST_F(ProjectRenewalTest, AnEmptyFileIsRenewedFromNothing) {
  PtrnHedr = OldHeader(1);  // of a layout that was open before
  PtrnHedr.Parm1[29] = 1;
  folder_.Write("project/Main.ptn", "");
  PtrnFileRenew(ProjPath, "Main");
  EXPECT_FALSE(folder_.Exists("project/Main.ptn.bak"));
  const std::string file = folder_.Read("project/Main.ptn");
  ASSERT_EQ(file.size(), 466u);
  EXPECT_EQ(file.substr(0, 16), Bytes().Ints({1001, 0, 1280, 1024}).Str());
}

TEST_F(ProjectRenewalTest, ADamagedLayoutWithoutRoomForItsCopyStays) {
  folder_.Write("project/Main.ptn", "damaged");
  std::filesystem::create_directory(folder_.Path("project/Main.ptn.bak"));
  PtrnFileRenew(ProjPath, "Main");
  EXPECT_EQ(folder_.Read("project/Main.ptn"), "damaged");
}

TEST_F(ProjectRenewalTest, SavingTheProjectRenewsItsLayouts) {
  WriteLayout("Main", OldHeader(2), {{"A", 1}});
  ASSERT_EQ(ProjFileWrite(ProjPath, "Plant"), 1);
  ExpectFile("Main", 2, {});
}

}  // namespace
