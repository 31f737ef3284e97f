// Palette and marks.
#include <array>
#include <set>
#include <vector>

#include "support/RecordBytes.h"
#include "support/Resource.h"
#include "tools/json/Kinds.h"
#include "tools/json/SourceReader.h"

namespace {

using Palette = std::array<COLRDATA, ColrCount>;
using Marks = std::vector<MARKDATA>;

// A table of fixed size, as its file holds it.
template <class Table>
void Decode(std::string_view bytes, Table& table, const char* kind) {
  if (!FillRecords(table.data(), table.size(), bytes)) {
    throw SourceError(std::string("not a whole ") + kind);
  }
}

template <class Table>
std::string Encode(const Table& table) {
  return std::string(BytesOfRecords(table.data(), table.size()));
}

std::string HexOf(const MARKDATA& mark) {
  static constexpr char Digits[] = "0123456789abcdef";
  std::string hex;
  for (const guint8 byte : mark.mark) {
    hex += Digits[byte >> 4];
    hex += Digits[byte & 15];
  }
  return hex;
}

MARKDATA MarkOfHex(const std::string& hex, const std::string& place) {
  MARKDATA mark{};
  bool good = hex.size() == 2 * sizeof(mark.mark);
  for (std::size_t k = 0; good && k < hex.size(); ++k) {
    const gint digit = g_ascii_xdigit_value(hex[k]);
    good = digit >= 0;
    mark.mark[k / 2] = static_cast<guint8>(mark.mark[k / 2] << 4 | (digit & 15));
  }
  if (!good) throw SourceError(place, "1024 hexadecimal digits are expected");
  return mark;
}

// Draws rows of "#" (set) and "." (clear); what they leave out stays clear.
void DrawRows(const JsonSource& rows, const std::string& place, gint no, MARKDATA& mark) {
  const SIZE size = MarkDataSize[no / 50];
  ListOf(rows, place, static_cast<std::size_t>(size.cy));
  for (std::size_t y = 0; y < rows.size(); ++y) {
    const std::string row =
        BytesOf(rows[y], EntryPlace(place, y), static_cast<std::size_t>(size.cx));
    for (std::size_t x = 0; x < row.size(); ++x) {
      if (row[x] != '#' && row[x] != '.') {
        throw SourceError(EntryPlace(place, y), "a row is written in \"#\" and \".\"");
      }
      if (row[x] == '#') MarkDataSet(no, &mark, static_cast<gint>(x), static_cast<gint>(y), 1);
    }
  }
}

void BuildDrawnMark(const JsonSource& source, const std::string& place, Marks& marks,
                    std::set<gint>& drawn) {
  ObjectReader reader(source, place);
  const gint no = reader.Number("No");
  if (no < 0 || no >= MarkCount) {
    throw SourceError(reader.Place("No"), "a mark number is 0 to " + std::to_string(MarkCount - 1));
  }
  if (!drawn.insert(no).second) {
    throw SourceError(reader.Place("No"), "mark " + std::to_string(no) + " is there twice");
  }
  if (const JsonSource* name = reader.Find("Name"); name && !name->is_string()) {
    throw SourceError(reader.Place("Name"), "a text is expected");
  }
  if (const JsonSource* rows = reader.Find("Rows")) {
    DrawRows(*rows, reader.Place("Rows"), no, marks[static_cast<std::size_t>(no)]);
  }
  reader.Finish();
}

Marks MarksOfHex(const JsonSource& list) {
  if (list.size() != MarkCount) {
    throw SourceError("list", std::to_string(MarkCount) + " hexadecimal texts are expected");
  }
  Marks marks;
  for (const JsonSource& entry : list) {
    const std::string place = EntryPlace("list", marks.size());
    marks.push_back(MarkOfHex(BytesOf(entry, place, 2 * sizeof(MARKDATA)), place));
  }
  return marks;
}

}  // namespace

Json ShowPalette(std::string_view bytes) {
  Palette palette{};
  Decode(bytes, palette, "palette");
  Json list = Json::array();
  for (const COLRDATA& colour : palette) {
    list.push_back({gint{colour.red}, gint{colour.green}, gint{colour.blue}});
  }
  return list;
}

std::string BuildPalette(const JsonSource& source) {
  Palette palette{};
  std::size_t no = 0;
  for (const JsonSource& entry : ListOf(source, "list", ColrCount)) {
    gint channels[3];
    ReadParm(entry, EntryPlace("list", no), {}, channels);
    palette[no++] = {channels[0], channels[1], channels[2]};
  }
  return Encode(palette);
}

Json ShowMarks(std::string_view bytes) {
  Marks marks(MarkCount);
  Decode(bytes, marks, "mark table");
  Json list = Json::array();
  for (const MARKDATA& mark : marks) list.push_back(HexOf(mark));
  return list;
}

std::string BuildMarks(const JsonSource& source) {
  ListOf(source, "list", MarkCount);
  if (!source.empty() && source.front().is_string()) return Encode(MarksOfHex(source));
  Marks marks(MarkCount);
  std::set<gint> drawn;
  std::size_t no = 0;
  for (const JsonSource& entry : source) {
    BuildDrawnMark(entry, EntryPlace("list", no++), marks, drawn);
  }
  return Encode(marks);
}
