// Pictures kept beside the tests and compared pixel for pixel. With VARNIX_UPDATE_GOLDEN=1 in the
// environment they are written instead; look at each before it is committed.
#pragma once

#include <gdk-pixbuf/gdk-pixbuf.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "render/Surface.h"

inline guint32 PixbufPixel(const GdkPixbuf* pixbuf, gint x, gint y) {
  const guint8* pixel = gdk_pixbuf_read_pixels(pixbuf) + y * gdk_pixbuf_get_rowstride(pixbuf) +
                        x * gdk_pixbuf_get_n_channels(pixbuf);
  return (guint32{pixel[0]} << 16) | (guint32{pixel[1]} << 8) | pixel[2];
}

// Where the picture differs from the kept one; empty = nowhere.
inline std::string GoldenDifference(const Drawable& picture, const std::string& path) {
  const PixbufPtr kept(gdk_pixbuf_new_from_file(path.c_str(), nullptr));
  if (!kept) return "no such picture";
  if (gdk_pixbuf_get_width(kept.get()) != picture.Width() ||
      gdk_pixbuf_get_height(kept.get()) != picture.Height()) {
    return "another size";
  }
  int count = 0;
  std::string first;
  for (gint y = 0; y < picture.Height(); ++y) {
    for (gint x = 0; x < picture.Width(); ++x) {
      if (PixbufPixel(kept.get(), x, y) == picture.At(picture.X() + x, picture.Y() + y)) continue;
      if (count++ == 0) first = std::to_string(x) + ", " + std::to_string(y);
    }
  }
  return count == 0 ? "" : std::to_string(count) + " pixels, the first at " + first;
}

inline void ExpectGolden(const Drawable& picture, const std::string& name) {
  const std::string path = std::string(TEST_SOURCE_DIR "/tests/golden/") + name + ".png";
  if (const char* update = std::getenv("VARNIX_UPDATE_GOLDEN");
      update != nullptr && std::string(update) == "1") {
    ASSERT_TRUE(WritePng(picture, path.c_str()));
    return;
  }
  const std::string difference = GoldenDifference(picture, path);
  if (difference.empty()) return;
  const std::string folder = TEST_BUILD_DIR "/golden-failed";
  std::filesystem::create_directories(folder);
  WritePng(picture, (folder + "/" + name + ".png").c_str());
  ADD_FAILURE() << path << ": " << difference << "; painted now: " << folder << "/" << name
                << ".png";
}
