// A layout names pictures of its own folder and none elsewhere.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "render/pictures/PictureFiles.h"
#include "tests/common/TempFolder.h"
#include "tests/render/AsciiPicture.h"
#include "tests/render/OnePixelBitmap.h"

namespace {

class BitmapFolder : public testing::Test {
 protected:
  BitmapFolder() {
    outside_ = root_.Write("outside.bmp", OnePixelBitmap());
    root_.Write("Bitmaps/inside.bmp", OnePixelBitmap());
    root_.Write("Bitmaps2/beside.bmp", OnePixelBitmap());
  }
  bool Draws(const std::string& name) { return DrawsFrom(root_.Path("Bitmaps"), name); }
  bool DrawsFrom(const std::string& folder, const std::string& name) {
    FillPixels(&paper_.Surface, 0, 0, 1, 1, 0xffffff);
    const std::string before = paper_.Text();
    DrawBmap(&paper_.Surface, &paper_.Gc, 0, 0, 1, 1, -1, folder.c_str(), name.c_str());
    return paper_.Text() != before;
  }

  TempFolder root_;
  std::string outside_;
  Paper paper_{1, 1};
};

TEST_F(BitmapFolder, ItsOwnPicturesAreDrawn) {
  root_.Write("Bitmaps/deep/a.bmp", OnePixelBitmap());
  EXPECT_TRUE(Draws("inside.bmp"));
  EXPECT_TRUE(Draws("deep/a.bmp"));
}

TEST_F(BitmapFolder, ParentFoldersAreNotReached) {
  EXPECT_FALSE(Draws("../outside.bmp"));
  EXPECT_FALSE(Draws("./../outside.bmp"));
  EXPECT_FALSE(Draws("../Bitmaps2/beside.bmp")) << "a name that begins alike is another folder";
}

TEST_F(BitmapFolder, AbsoluteNamesDrawNothing) {
  EXPECT_FALSE(Draws(outside_));
  EXPECT_FALSE(Draws("/inside.bmp"));
  EXPECT_FALSE(DrawsFrom("", outside_)) << "no folder does not mean any folder";
}

TEST_F(BitmapFolder, LinksOutOfItDrawNothing) {
  std::filesystem::create_symlink(outside_, root_.Path("Bitmaps/link.bmp"));
  std::filesystem::create_directory_symlink(root_.Path(), root_.Path("Bitmaps/up"));
  EXPECT_FALSE(Draws("link.bmp"));
  EXPECT_FALSE(Draws("up/outside.bmp"));
}

TEST_F(BitmapFolder, LinksWithinItAndToItAreFollowed) {
  std::filesystem::create_symlink("inside.bmp", root_.Path("Bitmaps/link.bmp"));
  std::filesystem::create_directory_symlink(root_.Path("Bitmaps"), root_.Path("Other"));
  EXPECT_TRUE(Draws("link.bmp"));
  EXPECT_TRUE(DrawsFrom(root_.Path("Other"), "inside.bmp"));
}

TEST_F(BitmapFolder, AFolderThatIsNotThereHasNoPictures) {
  EXPECT_FALSE(DrawsFrom(root_.Path("None"), "inside.bmp"));
}

TEST_F(BitmapFolder, WhatAPaintingKeepsOfItEndsWithThePainting) {
  {
    const KeptPicturePaths outer;
    EXPECT_FALSE(Draws("new.bmp"));
    root_.Write("Bitmaps/new.bmp", OnePixelBitmap());
    const KeptPicturePaths inner;
    EXPECT_FALSE(Draws("new.bmp")) << "looked up once more";
    EXPECT_TRUE(Draws("inside.bmp"));
    EXPECT_FALSE(DrawsFrom(root_.Path("Bitmaps2"), "inside.bmp")) << "another folder";
  }
  EXPECT_TRUE(Draws("new.bmp"));
}

}  // namespace
