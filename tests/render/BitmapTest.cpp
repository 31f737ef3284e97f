#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>

#include "tests/common/Bytes.h"
#include "tests/common/TempFolder.h"
#include "tests/render/AsciiPicture.h"

namespace {

using namespace std::string_literals;

// 2 x 2 pixels: red, green above; black, white below.
std::string FourPixels() {
  return Bytes()
      .Raw("BM")
      .Ints({70, 0, 54})                         // file size, reserved, place of the pixels
      .Ints({40, 2, 2})                          // header size, width, height
      .Raw("\x01\x00\x18\x00"s)                  // planes, 24 bits a pixel
      .Ints({0, 16, 0, 0, 0, 0})                 // no compression, bytes of pixels
      .Raw("\x00\x00\x00\xff\xff\xff\x00\x00"s)  // bottom row: blue, green, red; padding
      .Raw("\x00\x00\xff\x00\xff\x00\x00\x00"s)
      .Str();
}

class Bitmap : public testing::Test {
 protected:
  void Draw(gint x, gint y, gint width, gint height, gint transparent = -1,
            const char* name = "a.bmp") {
    DrawBmap(&paper_.Surface, &paper_.Gc, x, y, width, height, transparent, folder_.Path().c_str(),
             name);
  }

  TempFolder folder_;
  Paper paper_{4, 3};
};

TEST_F(Bitmap, AtItsOwnSizeIsExact) {
  folder_.Write("a.bmp", FourPixels());
  FillPixels(&paper_.Surface, 0, 0, 4, 3, 0x808080);
  Draw(1, 1, 2, 2);
  EXPECT_EQ(paper_.Text(), R"(
oooo
orgo
o#.o
)");
}

TEST_F(Bitmap, IsClipped) {
  folder_.Write("a.bmp", FourPixels());
  Draw(-1, -1, 2, 2);
  Draw(3, 2, 2, 2);
  FillPixels(&paper_.Surface, 0, 0, 1, 1, 0x808080);
  EXPECT_EQ(paper_.Text(), R"(
o...
....
...r
)");
}

TEST_F(Bitmap, TransparentKeyIsTheLowByteOfTheColour) {
  folder_.Write("a.bmp", FourPixels());
  FillPixels(&paper_.Surface, 0, 0, 4, 3, 0x808080);
  DrawColr[5] = {0x12ff, 0x3400, 0x5600, 0x123456};  // low bytes: pure red
  Draw(0, 0, 2, 2, 5);
  EXPECT_EQ(paper_.Text(), R"(
ogoo
#.oo
oooo
)");
}

TEST_F(Bitmap, HighByteAloneIsNoKey) {
  folder_.Write("a.bmp", FourPixels());
  DrawColr[5] = {0xff00, 0x0001, 0x0001, 0xff0000};
  Draw(0, 0, 2, 2, 5);
  EXPECT_EQ(paper_.Text(), R"(
rg..
#...
....
)");
}

TEST_F(Bitmap, UnreadableFilesDrawNothing) {
  folder_.Write("broken.bmp", FourPixels().substr(0, 30));
  folder_.Write("text.png", "no picture");
  folder_.Write("empty.jpg", "");
  for (const char* name : {"broken.bmp", "text.png", "empty.jpg", "missing.bmp", "", "."}) {
    Draw(0, 0, 4, 3, -1, name);
    Draw(0, 0, 4, 3, ColourRed, name);
  }
  EXPECT_EQ(paper_.Text(), R"(
....
....
....
)");
}

TEST_F(Bitmap, PipesAreNotWaitedFor) {
  ASSERT_EQ(mkfifo(folder_.Path("pipe.bmp").c_str(), 0600), 0);
  Draw(0, 0, 4, 3, -1, "pipe.bmp");
  EXPECT_EQ(paper_.Surface.At(0, 0), 0xffffffu);
}

TEST_F(Bitmap, EmptyBoxesAndUnknownColoursDrawNothing) {
  folder_.Write("a.bmp", FourPixels());
  Draw(0, 0, 0, 2);
  Draw(3, 2, -2, -2);
  Draw(0, 0, 2, 2, 103);
  EXPECT_EQ(paper_.Text(), R"(
....
....
....
)");
}

TEST_F(Bitmap, ChangedFileIsReadAgain) {
  folder_.Write("a.bmp", FourPixels());
  Draw(0, 0, 2, 2);
  std::string changed = FourPixels();
  changed.replace(62, 3, "\x00\x00\x00"s);  // the red pixel
  folder_.Write("b.bmp", changed);
  ASSERT_EQ(std::rename(folder_.Path("b.bmp").c_str(), folder_.Path("a.bmp").c_str()), 0);
  Draw(0, 0, 2, 2);
  EXPECT_EQ(paper_.Surface.At(0, 0), 0x000000u);
}

// A header of 30,000 x 30,000 pixels in a file of 70 bytes.
TEST_F(Bitmap, SizeClaimedByAHeaderIsNotTrusted) {
  std::string bomb = FourPixels();
  bomb.replace(18, 8, Bytes().Ints({30000, 30000}).Str());
  folder_.Write("a.bmp", bomb);
  Draw(0, 0, 4, 3);
  EXPECT_EQ(paper_.Surface.At(0, 0), 0xffffffu);
}

TEST_F(Bitmap, OneColourStaysOneColourAtAnySize) {
  std::string black = FourPixels();
  black.replace(54, 16, 16, '\0');
  folder_.Write("a.bmp", black);
  Draw(-1000000, 1, G_MAXINT, 1);
  EXPECT_EQ(paper_.Text(), R"(
....
####
....
)");
}

}  // namespace
