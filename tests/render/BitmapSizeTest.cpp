// Picture files that claim, or unpack to, more than any screen shows: nothing is drawn and no
// memory is taken for them.
#include <gio/gio.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/common/Child.h"
#include "tests/common/PeakMemory.h"
#include "tests/common/TempFolder.h"
#include "tests/render/AsciiPicture.h"
#include "tests/render/OnePixelBitmap.h"

namespace {

using namespace std::string_literals;

constexpr long MostGrowth = 32 * 1024;  // KiB; mostly code of the picture loaders

std::string BigEndian(guint32 value) {
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(value >> shift & 0xFF);
  return bytes;
}

std::string Packed(const std::string& plain) {
  const std::unique_ptr<GZlibCompressor, decltype(&g_object_unref)> zip(
      g_zlib_compressor_new(G_ZLIB_COMPRESSOR_FORMAT_ZLIB, 1), g_object_unref);
  std::string packed(plain.size() / 50 + 1000, '\0');
  gsize read = 0, written = 0;
  g_converter_convert(G_CONVERTER(zip.get()), plain.data(), plain.size(), packed.data(),
                      packed.size(), G_CONVERTER_INPUT_AT_END, &read, &written, nullptr);
  EXPECT_EQ(read, plain.size());
  packed.resize(written);
  return packed;
}

guint32 Checksum(std::string_view bytes) {
  guint32 sum = ~guint32{0};
  for (const char byte : bytes) {
    sum ^= static_cast<guchar>(byte);
    for (int bit = 0; bit < 8; ++bit) sum = sum >> 1 ^ (sum & 1 ? 0xEDB88320u : 0u);
  }
  return ~sum;
}

std::string Chunk(const std::string& type, const std::string& data) {
  return BigEndian(static_cast<guint32>(data.size())) + type + data +
         BigEndian(Checksum(type + data));
}

// A PNG of one bit a pixel; `rows` are its unpacked pixels, each row behind a filter byte.
std::string Png(guint32 side, const std::string& rows) {
  return "\x89PNG\r\n\x1a\n"s +
         Chunk("IHDR", BigEndian(side) + BigEndian(side) + "\x01\x00\x00\x00\x00"s) +
         Chunk("IDAT", Packed(rows)) + Chunk("IEND", "");
}

std::string LittleEndian(gint value) {
  return {static_cast<char>(value & 0xFF), static_cast<char>(value >> 8 & 0xFF)};
}

// A screen and a frame in it, both square, in black and white; one pixel of the frame is there.
std::string Gif(gint screen, gint frame) {
  return "GIF89a" + LittleEndian(screen) + LittleEndian(screen) +
         "\x80\x00\x00\x00\x00\x00\xff\xff\xff,\x00\x00\x00\x00"s + LittleEndian(frame) +
         LittleEndian(frame) + "\x00\x02\x02\x44\x01\x00;"s;
}

std::string Xpm(const std::string& side) {
  return "/* XPM */\nstatic char * x[] = {\n\"" + side + " " + side +
         " 1 1\",\n\". c #000000\",\n\".\"};\n";
}

class BitmapSize : public testing::Test {
 protected:
  // Whether the picture draws nothing and takes next to no memory, on the way with a transparent
  // colour, too.
  bool IsRefused(const std::string& name, const std::string& bytes) {
    folder_.Write(name, bytes);
    return HoldsInChild([&] {
      const long before = PeakMemory();
      return !Draws(name, -1) && !Draws(name, 0) && PeakMemory() - before < MostGrowth;
    });
  }
  bool Draws(const std::string& name, gint transparent) {
    FillPixels(&paper_.Surface, 0, 0, 4, 4, 0x123456);
    const std::string before = paper_.Text();
    DrawBmap(&paper_.Surface, &paper_.Gc, 0, 0, 4, 4, transparent, folder_.Path().c_str(),
             name.c_str());
    return paper_.Text() != before;
  }

  TempFolder folder_;
  Paper paper_{4, 4};
};

TEST_F(BitmapSize, ItsPicturesAreGoodWhenTheirSizesAre) {
  folder_.Write("a.png", Png(1, std::string(2, '\0')));
  folder_.Write("a.bmp", OnePixelBitmap());
  folder_.Write("a.gif", Gif(1, 1));
  folder_.Write("a.xpm", Xpm("1"));
  for (const char* name : {"a.png", "a.bmp", "a.gif", "a.xpm"}) {
    EXPECT_TRUE(Draws(name, -1)) << name;
  }
}

TEST_F(BitmapSize, HeadersThatClaimAbsurdSizes) {
  EXPECT_TRUE(IsRefused("a.png", Png(60000, std::string(100, '\0'))));
  EXPECT_TRUE(IsRefused("a.bmp", OnePixelBitmap(60000, 60000)));
  EXPECT_TRUE(IsRefused("b.bmp", OnePixelBitmap(60000, -60000)));
  EXPECT_TRUE(IsRefused("c.bmp", OnePixelBitmap(0x7fffffff, 1)));
  EXPECT_TRUE(IsRefused("a.gif", Gif(60000, 60000)));
#ifndef __SANITIZE_ADDRESS__
  // Its loader takes address space for all pixels and touches none; the sanitizer's notes on that
  // space would be touched.
  EXPECT_TRUE(IsRefused("a.xpm", Xpm("60000")));
#endif
}

TEST_F(BitmapSize, AFrameLargerThanItsScreen) {
  EXPECT_TRUE(IsRefused("a.gif", Gif(10, 60000)));
}

TEST_F(BitmapSize, ASmallFileThatUnpacksToHundredsOfMegabytes) {
  constexpr std::size_t Side = 16000;
  const std::string bytes = Png(Side, std::string(Side * (1 + Side / 8), '\0'));
  ASSERT_LT(bytes.size(), std::size_t{1} << 20);
  EXPECT_TRUE(IsRefused("a.png", bytes));
}

}  // namespace
