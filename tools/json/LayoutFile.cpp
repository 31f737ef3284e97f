#include "tools/json/LayoutFile.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "Constant.h"
#include "layout/Guards.h"
#include "support/Text.h"

namespace {

// The texts of an item in the order of the text block.
struct TextField {
  gchar* Field;
  std::size_t Size;
  std::size_t Limit;
};

std::array<TextField, 5> TextFields(PTRNDATA& item) {
  return {{{item.Text1, sizeof(item.Text1), TextLimit::Text},
           {item.Text2, sizeof(item.Text2), TextLimit::Text},
           {item.Text3, sizeof(item.Text3), TextLimit::Text},
           {item.ID_Name, sizeof(item.ID_Name), TextLimit::Name},
           {item.ID_Code, sizeof(item.ID_Code), TextLimit::Code}}};
}

template <class Record>
Record RecordAt(std::string_view bytes, std::size_t offset) {
  Record record;
  std::memcpy(&record, bytes.data() + offset, sizeof(record));
  return record;
}

template <class Record>
void AppendRecord(std::string& bytes, const Record& record) {
  bytes.append(reinterpret_cast<const char*>(&record), sizeof(record));
}

PTRNDATA ItemOf(const PTRNFILE& record) {
  PTRNDATA item{};
  item.Type = record.Type;
  std::memcpy(item.Parm, record.Parm, sizeof(item.Parm));
  item.ID_Type = record.ID_Type;
  item.ID_No = record.ID_No;
  item.UndfFlag = record.UndfFlag;
  item.Point1 = {record.Parm[0], record.Parm[1]};
  item.Point2 = {record.Parm[2], record.Parm[3]};
  return item;
}

PTRNFILE RecordOf(const PTRNDATA& item) {
  PTRNFILE record{};
  record.Type = item.Type;
  std::memcpy(record.Parm, item.Parm, sizeof(record.Parm));
  record.ID_Type = item.ID_Type;
  record.ID_No = item.ID_No;
  record.UndfFlag = item.UndfFlag;
  return record;
}

// Takes the item's five texts from the front of the block. Of a text that is longer than its field
// what is left past one more byte is taken for the next text, as when the program reads it.
void TakeTexts(std::string_view& block, PTRNDATA& item) {
  for (const TextField& text : TextFields(item)) {
    const std::string_view whole = block.substr(0, block.find('\0'));
    CopyText(text.Field, text.Size, CutEuc(whole, text.Limit));
    block.remove_prefix(std::min(std::min(whole.size(), text.Limit) + 1, block.size()));
  }
}

void AppendTexts(std::string& block, PTRNDATA item) {
  for (const TextField& text : TextFields(item)) {
    block += FieldText(text.Field, text.Size);
    block += '\0';
  }
}

}  // namespace

std::optional<guint64> LayoutFileSize(std::string_view bytes) {
  if (bytes.size() < sizeof(PTRNHEDR)) return std::nullopt;
  const auto header = RecordAt<PTRNHEDR>(bytes, 0);
  const gint count = header.DataCount;
  const gint texts = header.TextSize;
  if (count < 0 || texts < 0) return std::nullopt;
  return sizeof(PTRNHEDR) + static_cast<guint64>(count) * sizeof(PTRNFILE) +
         static_cast<guint64>(texts);
}

std::optional<LayoutFile> DecodeLayout(std::string_view bytes) {
  const auto size = LayoutFileSize(bytes);
  if (!size || *size > bytes.size()) return std::nullopt;
  LayoutFile layout;
  layout.Header = RecordAt<PTRNHEDR>(bytes, 0);
  const auto count = static_cast<std::size_t>(layout.Header.DataCount);
  const std::size_t texts = sizeof(PTRNHEDR) + count * sizeof(PTRNFILE);
  std::string_view block = bytes.substr(texts, static_cast<std::size_t>(*size) - texts);
  for (std::size_t k = 0; k < count; ++k) {
    PTRNDATA item = ItemOf(RecordAt<PTRNFILE>(bytes, sizeof(PTRNHEDR) + k * sizeof(PTRNFILE)));
    TakeTexts(block, item);
    if (IsItemType(item.Type)) layout.Items.push_back(item);
  }
  return layout;
}

std::string EncodeLayout(const LayoutFile& layout) {
  std::string records;
  std::string texts;
  gint undefined = 0;
  for (const gint type : PtrnTable)
    for (const PTRNDATA& item : layout.Items)
      if (item.Type == type) {
        AppendRecord(records, RecordOf(item));
        AppendTexts(texts, item);
        if (item.UndfFlag != 0) ++undefined;
      }
  PTRNHEDR header = layout.Header;
  header.DataCount = static_cast<gint>(records.size() / sizeof(PTRNFILE));
  header.TextSize = static_cast<gint>(texts.size());
  header.UndfFlag = undefined;
  std::string bytes;
  AppendRecord(bytes, header);
  return bytes + records + texts;
}
