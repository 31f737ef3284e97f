#include <gtest/gtest.h>

#include "render/fonts/FontCatalogue.h"
#include "tests/common/TempFolder.h"

namespace {

TEST(FontPattern, StarStandsForAnyText) {
  EXPECT_TRUE(MatchesPattern("*", ""));
  EXPECT_TRUE(MatchesPattern("-*-fixed-*-14-*", "-misc-fixed-medium-r-normal--14-130"));
  EXPECT_TRUE(MatchesPattern("a*b*c", "a-b-b-c"));
  EXPECT_FALSE(MatchesPattern("-*-fixed-*-16-*", "-misc-fixed-medium-r-normal--14-130"));
  EXPECT_FALSE(MatchesPattern("abc*", "ab"));
}

TEST(FontPattern, QuestionMarkStandsForOneCharacter) {
  EXPECT_TRUE(MatchesPattern("k1?", "k14"));
  EXPECT_FALSE(MatchesPattern("k1?", "k1"));
  EXPECT_FALSE(MatchesPattern("k?", "k14"));
}

TEST(FontCatalogue, FindsAFileByItsNameInEitherCase) {
  const TempFolder root;
  root.Write("misc/fonts.dir", "1\nk14.pcf.gz -Misc-Fixed-Medium-R-Normal--14-JISX0208.1983-0\n");
  FontCatalogue catalogue(root.Path());
  EXPECT_EQ(catalogue.FindFile("-misc-FIXED-medium-r-normal--14-jisx0208.1983-0"),
            root.Path("misc/k14.pcf.gz"));
  EXPECT_EQ(catalogue.FindFile("-*-14-jisx0208.*-0"), root.Path("misc/k14.pcf.gz"));
  EXPECT_EQ(catalogue.FindFile("-*-16-jisx0208.*-0"), "");
}

TEST(FontCatalogue, FirstNameInOrderWins) {
  const TempFolder root;
  root.Write("misc/fonts.dir", "2\nb.pcf.gz -b-fixed\na.pcf.gz -a-fixed\n");
  root.Write("extra/fonts.dir", "1\nc.pcf.gz -a-a-fixed\n");
  FontCatalogue catalogue(root.Path());
  EXPECT_EQ(catalogue.FindFile("-*-fixed"), root.Path("misc/a.pcf.gz"));
  EXPECT_EQ(catalogue.FindFile("-a-a-*"), root.Path("extra/c.pcf.gz"));
}

TEST(FontCatalogue, FollowsAliases) {
  const TempFolder root;
  root.Write("misc/fonts.dir", "1\nk14.pcf.gz -misc-fixed-14\n");
  root.Write("misc/fonts.alias",
             "! a comment\n\nk14   -misc-*-14\n\"long name\" \"k14\"\nnowhere -gone\n");
  FontCatalogue catalogue(root.Path());
  EXPECT_EQ(catalogue.FindFile("K14"), root.Path("misc/k14.pcf.gz"));
  EXPECT_EQ(catalogue.FindFile("long name"), root.Path("misc/k14.pcf.gz"));
  EXPECT_EQ(catalogue.FindFile("nowhere"), "");
  EXPECT_EQ(catalogue.ResolveAlias("k14"), "-misc-*-14");
  EXPECT_EQ(catalogue.ResolveAlias("fixed"), "fixed");
}

TEST(FontCatalogue, CircularAliasesLeadNowhere) {
  const TempFolder root;
  root.Write("misc/fonts.alias", "a b\nb a\nc c\n");
  FontCatalogue catalogue(root.Path());
  EXPECT_EQ(catalogue.FindFile("a"), "");
  EXPECT_EQ(catalogue.FindFile("c"), "");
}

// Every alias matches "*", so following each match of each match would never end.
TEST(FontCatalogue, ManyAliasesToEverythingEndSoon) {
  const TempFolder root;
  std::string aliases;
  for (int i = 0; i < 1000; ++i) aliases += "x" + std::to_string(i) + " *\n";
  root.Write("misc/fonts.alias", aliases);
  EXPECT_EQ(FontCatalogue(root.Path()).FindFile("*"), "");
}

TEST(FontCatalogue, BrokenListsAndOtherFontsArePassedOver) {
  const TempFolder root;
  root.Write("misc/fonts.dir", "nonsense\n\nonlyfile.pcf.gz\nscaled.pfb -x-fixed\nb.pcf -x-fixed");
  FontCatalogue catalogue(root.Path());
  EXPECT_EQ(catalogue.FindFile("-x-fixed"), root.Path("misc/b.pcf"));
  EXPECT_EQ(catalogue.FindFile("only*"), "");
}

TEST(FontCatalogue, MissingFolderHoldsNoFonts) {
  EXPECT_EQ(FontCatalogue("/nonexistent").FindFile("*"), "");
}

}  // namespace
