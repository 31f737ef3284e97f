// Layouts of any content survive show and build byte for byte.
#include <gtest/gtest.h>

#include <array>
#include <random>

#include "tests/tools/Files.h"
#include "tools/json/Convert.h"

namespace {

// Type codes in the order in which a layout file groups its items.
constexpr std::array<int, 15> FileOrder = {1, 3, 4, 5, 2, 12, 13, 14, 15, 9, 10, 11, 6, 7, 8};

// Characters of one, two and three bytes in EUC-JP: ASCII, half-width and full-width kana, kanji
// and one of the supplementary set.
constexpr std::array<std::string_view, 10> Characters = {
    "A", "\"", "\\", "/", "\x01", "\x8E\xB1", "\xA5\xA2", "\xC6\xFC", "\xF4\xA6", "\x8F\xB0\xA1"};

class Maker {
 public:
  explicit Maker(unsigned seed) : random_(seed) {}

  int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }
  int AnyNumber() { return static_cast<int>(random_()); }

  std::string Text(std::size_t limit) {
    std::string text;
    for (int left = Below(12); left > 0; --left) {
      const std::string_view character = Characters[static_cast<std::size_t>(Below(10))];
      if (text.size() + character.size() <= limit) text += character;
    }
    return text;
  }

  std::string Numbers(int count) {
    std::string bytes;
    for (int k = 0; k < count; ++k) bytes += Int(Below(3) == 0 ? AnyNumber() : Below(1000));
    return bytes;
  }

  // A whole file as the program leaves it: items grouped, counts right.
  std::string Layout() {
    std::string records;
    std::string texts;
    int count = 0;
    int undefined = 0;
    for (const int type : FileOrder) {
      for (int left = Below(4); left > 0; --left, ++count) {
        const int flag = Below(3);
        undefined += flag != 0;
        records += Int(type) + Numbers(30) + Numbers(2) + Int(flag);
        for (const std::size_t limit : {100, 100, 100, 80, 20}) texts += Terminated(Text(limit));
      }
    }
    return Int(1001) + Numbers(40) + Field(Text(80), 82) + Field(Text(80), 82) +
           Field(Text(80), 82) + Field(Text(20), 22) + Field(Text(20), 22) + Int(count) +
           Int(static_cast<int>(texts.size())) + Int(undefined) + records + texts;
  }

 private:
  std::mt19937 random_;
};

TEST(RandomLayouts, ShowBuildShowIsTheIdentity) {
  for (unsigned seed = 0; seed < 1000; ++seed) {
    const std::string bytes = Maker(seed).Layout();
    const Conversion json = JsonOfFile(FileKind::Layout, bytes);
    ASSERT_TRUE(json.Result) << "seed " << seed << ": " << json.Error;
    const Conversion built = FileOfJson(FileKind::Layout, *json.Result);
    ASSERT_TRUE(built.Result) << "seed " << seed << ": " << built.Error;
    ASSERT_TRUE(*built.Result == bytes) << "seed " << seed;
    ASSERT_EQ(JsonOfFile(FileKind::Layout, *built.Result).Result, json.Result) << "seed " << seed;
  }
}

}  // namespace
