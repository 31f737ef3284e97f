#include <algorithm>
#include <array>
#include <cstring>
#include <new>
#include <vector>

#include "layout/Guards.h"
#include "layout/ItemTypes.h"
#include "layout/LayoutFile.h"
#include "layout/model/file/StoredItem.h"
#include "layout/model/file/TextWords.h"
#include "support/FileTools.h"
#include "support/Program.h"
#include "support/Text.h"

namespace {

std::array<std::string_view, 5> TextsOf(const PTRNDATA& item) {
  return {FieldText(item.Text1), FieldText(item.Text2), FieldText(item.Text3),
          FieldText(item.ID_Name), FieldText(item.ID_Code)};
}

// The items of one type stand together in the file: their number, and where their next record and
// its texts go.
struct TypeGroup {
  std::size_t Count = 0;
  std::size_t TextSize = 0;
  std::size_t NextRecord = 0;
  std::size_t NextText = 0;
};

// Index = type code.
using TypeGroups = std::array<TypeGroup, ItemTypeCount + 1>;

// Fills the header's counts and measures the groups. The header counts every item, those of no
// known type included, which are not written.
TypeGroups CountItems(PTRNHEDR& header, std::span<const PTRNDATA> items) {
  TypeGroups groups;
  std::size_t textSize = 0;
  header.DataCount = static_cast<gint>(items.size());
  header.UndfFlag = 0;
  for (const PTRNDATA& item : items) {
    std::size_t size = 0;
    for (const std::string_view text : TextsOf(item)) size += text.size() + 1;
    textSize += size;
    header.UndfFlag += item.UndfFlag != 0;
    if (IsItemType(item.Type)) {
      TypeGroup& group = groups[static_cast<std::size_t>(item.Type)];
      ++group.Count;
      group.TextSize += size;
    }
  }
  header.TextSize = static_cast<gint>(textSize);
  return groups;
}

// Gives the groups their places: in painting order, all records before all texts. The end of both.
std::size_t PlaceGroups(TypeGroups& groups) {
  std::size_t next = sizeof(PTRNHEDR);
  for (const gint type : PtrnTable) {
    TypeGroup& group = groups[static_cast<std::size_t>(type)];
    group.NextRecord = next;
    next += group.Count * sizeof(PTRNFILE);
  }
  for (const gint type : PtrnTable) {
    TypeGroup& group = groups[static_cast<std::size_t>(type)];
    group.NextText = next;
    next += group.TextSize;
  }
  return next;
}

// Puts a field's text with its terminator and not a byte more; where the next one goes.
template <std::size_t Size>
char* PutText(char* to, const gchar (&field)[Size]) {
  std::size_t at = CopyFullWords(to, field, Size);
  if (at + sizeof(TextWord) > Size) {
    for (; at < Size && field[at] != '\0'; ++at) to[at] = field[at];
    to[at] = '\0';
    return to + at + 1;
  }
  const std::size_t size = at + BytesBeforeZero(WordAt(field + at)) + 1;
  if (size >= sizeof(TextWord)) {
    // The last word once more overlaps what has been copied.
    PutWord(to + size - sizeof(TextWord), WordAt(field + size - sizeof(TextWord)));
  } else {
    std::copy_n(field, size, to);
  }
  return to + size;
}

void PutItem(char* bytes, TypeGroup& group, const PTRNDATA& item) {
  PutRecord(bytes + group.NextRecord, item);
  group.NextRecord += sizeof(PTRNFILE);
  char* to = bytes + group.NextText;
  to = PutText(to, item.Text1);
  to = PutText(to, item.Text2);
  to = PutText(to, item.Text3);
  to = PutText(to, item.ID_Name);
  to = PutText(to, item.ID_Code);
  group.NextText = static_cast<std::size_t>(to - bytes);
}

}  // namespace

LayoutBytes EncodeLayout(PTRNHEDR& header, std::span<const PTRNDATA> items) {
  TypeGroups groups = CountItems(header, items);
  const std::size_t end = PlaceGroups(groups);
  const std::size_t recordsEnd = groups[static_cast<std::size_t>(PtrnTable[0])].NextText;
  LayoutBytes bytes(recordsEnd + static_cast<std::size_t>(header.TextSize));
  std::memcpy(bytes.data(), &header, sizeof header);
  for (const PTRNDATA& item : items) {
    if (IsItemType(item.Type)) {
      PutItem(bytes.data(), groups[static_cast<std::size_t>(item.Type)], item);
    }
  }
  std::memset(bytes.data() + end, 0, bytes.size() - end);
  return bytes;
}

bool WriteLayoutFile(const gchar* path, const gchar* name, PTRNHEDR& header,
                     std::span<const PTRNDATA> items) {
  // A layout without a name would become a hidden file, one without a folder a file somewhere.
  if (*path == '\0' || *name == '\0') return false;
  try {
    header.Version = Version;
    const LayoutBytes bytes = EncodeLayout(header, items);
    return ReplaceFile(JoinPath(path, name, "ptn"), {bytes.data(), bytes.size()});
  } catch (const std::bad_alloc&) {
    return false;
  }
}
