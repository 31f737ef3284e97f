// The program reads the display's bitmap fonts itself: its texts equal those that the display
// draws, in every pixel and in their extents.
#include <gtest/gtest.h>

#include <random>

#include "render/FontTable.h"
#include "render/LayoutPicture.h"
#include "render/Primitives.h"
#include "support/Resource.h"
#include "support/Text.h"
#include "tests/window/ServerText.h"

namespace {

using namespace ServerTextPlace;

constexpr gint Font = 3;

constexpr const char* Descriptors[] = {"-shinonome-gothic-medium-r-normal--12-*-*-*-c-*-*-*",
                                       "-shinonome-gothic-bold-r-normal--16-*-*-*-c-*-*-*",
                                       "-shinonome-gothic-medium-i-normal--14-*-*-*-c-*-*-*",
                                       "-shinonome-mincho-medium-r-normal--16-*-*-*-c-*-*-*",
                                       "-mplus-gothic-medium-r-normal--10-*-*-*-c-*-*-*",
                                       "-*-fixed-medium-r-normal--24-*-*-*-c-*-*-*"};

// Characters of ASCII, half-width kana and the kanji of the first level.
std::vector<std::string> Texts() {
  std::mt19937 random(11);
  const auto pick = [&random](gint low, gint high) {
    return std::uniform_int_distribution<gint>(low, high)(random);
  };
  std::vector<std::string> texts = {",", "-", "***.*", "    ", "　", "Ag日", "運転ﾎﾟﾝﾌﾟ"};
  for (gint text = 0; text < 60; ++text) {
    std::string euc;
    for (gint count = pick(1, 12); count > 0; --count) {
      const gint kind = pick(0, 3);
      if (kind == 0) {
        euc += {'\x8e', static_cast<char>(pick(0xa1, 0xdf))};
      } else if (kind == 1) {
        euc += {static_cast<char>(pick(0xb0, 0xce)), static_cast<char>(pick(0xa1, 0xfe))};
      } else {
        euc += static_cast<char>(pick(' ', '~'));
      }
    }
    texts.push_back(DisplayText(euc));
  }
  return texts;
}

std::string PixelsOf(const std::string& euc) {
  Drawable picture(Width, Height);
  DrawGc gc;
  FillPixels(&picture, 0, 0, Width, Height, 0);
  DrawTextOnBaseline(&picture, &gc, X, Baseline, Font, ColourWhite, euc.c_str());
  std::string pixels;
  for (gint y = 0; y < Height; ++y) {
    for (gint x = 0; x < Width; ++x) pixels += picture.At(x, y) == 0 ? '.' : '#';
  }
  return pixels;
}

}  // namespace

class ServerFonts : public testing::Test {
 protected:
  ServerFonts() { InitDrawData(); }
  ~ServerFonts() override { Load(""); }
  static void Load(const char* descriptor) {
    g_strlcpy(FontName[Font], descriptor, sizeof FontName[Font]);
    SetDrawFont();
  }
};

TEST_F(ServerFonts, DrawAsTheDisplayDoes) {
  const std::vector<std::string> texts = Texts();
  for (const char* descriptor : Descriptors) {
    SCOPED_TRACE(descriptor);
    Load(descriptor);
    const std::vector<ServerText> drawn = TextsOfServer(descriptor, texts);
    ASSERT_EQ(drawn.size(), texts.size());
    for (gsize text = 0; text < texts.size(); ++text) {
      const std::string euc = EucFromUtf8(texts[text]).value();
      const SIZE size = GetTextSize(Font, euc.c_str());
      EXPECT_EQ(size.cx, drawn[text].Left + drawn[text].Right) << texts[text];
      EXPECT_EQ(size.cy, drawn[text].Ascent + drawn[text].Descent) << texts[text];
      EXPECT_TRUE(PixelsOf(euc) == drawn[text].Pixels) << texts[text];
    }
  }
}
