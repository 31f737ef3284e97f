// The texts of a layout file, wherever they end, against a reading byte by byte.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "support/Text.h"
#include "tests/layout/LayoutFixture.h"

namespace {

// Takes one text after the other off a block, byte by byte.
class PlainTexts {
 public:
  explicit PlainTexts(std::string_view block) : left_(block) {}

  std::string Next(std::size_t limit) {
    std::string text;
    while (!left_.empty() && text.size() <= limit) {
      const char byte = left_.front();
      left_.remove_prefix(1);
      if (byte == '\0') break;
      text += byte;
    }
    return std::string(CutEuc(text, limit));
  }

 private:
  std::string_view left_;
};

class LayoutFileTextsTest : public LayoutFixture {
 protected:
  gint Below(gint limit) { return static_cast<gint>(random_() % static_cast<unsigned>(limit)); }

  // Types around those that the store may hold.
  std::vector<gint> SomeTypes(gint count) {
    std::vector<gint> types(static_cast<std::size_t>(count));
    for (gint& type : types) type = Below(10) == 0 ? 16 * Below(2) : 1 + Below(15);
    return types;
  }
  // Texts of all lengths up to a little more than what a field takes.
  std::string SomeTexts(gint count) {
    std::string block;
    for (gint i = 0; i < count; ++i) {
      const gint length = Below(4) == 0 ? 0 : Below(Below(8) == 0 ? 210 : 25);
      const gint first = Below(2) == 0 ? 0xA1 : 0x20;
      for (gint at = 0; at < length; ++at) block += static_cast<char>(first + Below(94));
      block += '\0';
    }
    return block;
  }
  static std::string File(const std::vector<gint>& types, std::string_view block) {
    const gint size = static_cast<gint>(block.size());
    Bytes bytes = HeaderWithCounts(static_cast<gint>(types.size()), size, 0);
    for (const gint type : types) bytes.Int(type).Zeros(132);
    return bytes.Raw(block).Str();
  }
  void ExpectAsPlain(const std::vector<gint>& types, const std::string& block) {
    ASSERT_EQ(Read(File(types, block)), 1);
    PlainTexts texts(block);
    gint no = 0;
    for (const gint type : types) {
      const std::string wanted[] = {texts.Next(100), texts.Next(100), texts.Next(100),
                                    texts.Next(80), texts.Next(20)};
      if (type < 1 || type > 15) continue;
      SCOPED_TRACE(testing::Message() << "item " << no);
      PTRNDATA expected{};
      expected.Type = type;
      std::memcpy(expected.Text1, wanted[0].data(), wanted[0].size());
      std::memcpy(expected.Text2, wanted[1].data(), wanted[1].size());
      std::memcpy(expected.Text3, wanted[2].data(), wanted[2].size());
      std::memcpy(expected.ID_Name, wanted[3].data(), wanted[3].size());
      std::memcpy(expected.ID_Code, wanted[4].data(), wanted[4].size());
      const PTRNDATA item = Item(no++);
      ASSERT_EQ(std::memcmp(&item, &expected, sizeof item), 0);
    }
    ASSERT_EQ(GetPtrnCount(), no);
  }

  std::mt19937 random_{7};
};

TEST_F(LayoutFileTextsTest, OfFewItems) {
  for (gint layout = 0; layout < 300; ++layout) {
    const std::vector<gint> types = SomeTypes(1 + Below(40));
    std::string block = SomeTexts(static_cast<gint>(types.size()) * 5);
    block.resize(1 + static_cast<std::size_t>(Below(static_cast<gint>(block.size()))));
    ASSERT_NO_FATAL_FAILURE(ExpectAsPlain(types, block)) << "layout " << layout;
  }
}

TEST_F(LayoutFileTextsTest, OfManyItems) {
  const std::vector<gint> types = SomeTypes(5000);
  ExpectAsPlain(types, SomeTexts(25000));
}

TEST_F(LayoutFileTextsTest, WithoutAnyTerminator) {
  const std::vector<gint> types = SomeTypes(2000);
  ExpectAsPlain(types, std::string(2000 * 405, 'x'));
}

TEST_F(LayoutFileTextsTest, OfEveryLengthAtEveryPlace) {
  for (std::size_t before = 0; before < 9; ++before) {
    std::string block;
    for (std::size_t length = 0; length <= 103; ++length) {
      block += std::string(before, 'a') + '\0' + std::string(length, 'b') + '\0';
      block += std::string(length, 'c') + '\0' + std::string(length, 'd') + '\0';
    }
    ExpectAsPlain(std::vector<gint>(100, 1), block);
  }
}

// Fills a field's first `length` bytes, all without a terminator if that is more; the bytes that
// the file is to hold for it.
template <std::size_t Size>
std::string Fill(gchar (&field)[Size], std::size_t length, char byte) {
  const std::string text(std::min(length, Size), byte);
  std::memcpy(field, text.data(), text.size());
  return text + '\0';
}

std::string FillAll(PTRNDATA& item, std::size_t length) {
  return Fill(item.Text1, length, 'a') + Fill(item.Text2, length, 'b') +
         Fill(item.Text3, length, 'c') + Fill(item.ID_Name, length, 'd') +
         Fill(item.ID_Code, length, 'e');
}

TEST_F(LayoutFileTextsTest, AreWrittenWithNotAByteMore) {
  constexpr std::size_t lengths = 103;
  // The last frame's code ends where the texts of the first string begin, which are put before it.
  for (const std::size_t last : {0, 3, 7, 8, 10, 15, 21, 22}) {
    Clear();
    std::string frames, strings;
    for (std::size_t i = 1; i <= lengths; ++i) {
      PTRNDATA string = ItemOfType(6), frame = ItemOfType(1);
      strings += FillAll(string, i % lengths);
      frames += FillAll(frame, (last + i) % lengths);
      AddPtrnData(&string);
      AddPtrnData(&frame);
    }
    EXPECT_EQ(Written().substr(466 + 2 * lengths * 136), frames + strings) << last;
  }
}

}  // namespace
