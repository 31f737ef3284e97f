// Packed font files: an installed one is read, one that lies about its size is not.
#include <gtest/gtest.h>

#include <string>

#include "render/fonts/BitmapFont.h"
#include "render/fonts/FontCatalogue.h"
#include "tests/common/PeakMemory.h"
#include "tests/common/TempFolder.h"

namespace {

using namespace std::string_literals;

class BitmapFontTest : public testing::Test {
 protected:
  // Every file has a name of its own: a font is read once.
  bool Reads(const std::string& content) {
    const std::string name = "font" + std::to_string(++files_) + ".pcf.gz";
    folder_.Write(name, content);
    return OpenBitmapFont(folder_.Path(name)) != nullptr;
  }
  static std::string Installed() {
    const std::string path =
        FontCatalogue(SystemFonts).FindFile("-misc-fixed-medium-r-normal--14-*-jisx0208.1983-0");
    gchar* bytes = nullptr;
    gsize size = 0;
    EXPECT_TRUE(g_file_get_contents(path.c_str(), &bytes, &size, nullptr)) << path;
    const std::string content(bytes, size);
    g_free(bytes);
    return content;
  }

 private:
  static constexpr const char* SystemFonts = "/usr/share/fonts/X11";
  TempFolder folder_;
  int files_ = 0;
};

TEST_F(BitmapFontTest, ReadsAPackedFont) {
  EXPECT_TRUE(Reads(Installed()));
}

TEST_F(BitmapFontTest, APackedFontThatIsCutShortIsNone) {
  const std::string font = Installed();
  for (const std::size_t size : {std::size_t{2}, std::size_t{3}, std::size_t{5}, std::size_t{18},
                                 font.size() / 2, font.size() - 5}) {
    EXPECT_FALSE(Reads(font.substr(0, size))) << size;
  }
}

TEST_F(BitmapFontTest, ASizeThatLiesIsNotBelieved) {
  const std::string font = Installed();
  const std::string body = font.substr(0, font.size() - 4);
  for (const std::string& size : {"\0\0\0\0"s, "\1\0\0\0"s, "\0\0\0\4"s, "\xff\xff\xff\xff"s}) {
    EXPECT_FALSE(Reads(body + size));
  }
}

TEST_F(BitmapFontTest, ASmallFileTakesNoMemoryForALargeClaim) {
  const long before = PeakMemory();
  EXPECT_FALSE(Reads("\x1f\x8b\x08\0\0\0\0\0\0\0\0\0\0\3"s)) << "48 MiB in 14 bytes";
  EXPECT_LT(PeakMemory() - before, 32 * 1024);
}

}  // namespace
