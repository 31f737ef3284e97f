// Code registry and string lists.
#include <vector>

#include "layout/LayoutFile.h"
#include "support/RecordBytes.h"
#include "support/Text.h"
#include "tools/json/Kinds.h"
#include "tools/json/SourceReader.h"

namespace {

constexpr std::size_t EntryLimit = 1'000'000;

// Stricter than the program, which passes over what is left behind the last whole record.
template <class Record>
std::vector<Record> Decode(std::string_view bytes, const char* kind) {
  if (bytes.size() % sizeof(Record) != 0) {
    throw SourceError(std::string("not a whole ") + kind + ": no multiple of " +
                      std::to_string(sizeof(Record)) + " bytes");
  }
  return RecordsOf<Record>(bytes);
}

}  // namespace

Json ShowRegistry(std::string_view bytes) {
  Json list = Json::array();
  for (const PTRNCODE& record : Decode<PTRNCODE>(bytes, "code registry")) {
    list.push_back({{"ID_Code", DisplayText(FieldText(record.ID_Code))},
                    {"DataCount", gint{record.DataCount}},
                    {"DataNo", gint{record.DataNo}},
                    {"DispNo", gint{record.DispNo}}});
  }
  return list;
}

std::string BuildRegistry(const JsonSource& source) {
  std::string bytes;
  std::size_t no = 0;
  for (const JsonSource& entry : ListOf(source, "list", EntryLimit)) {
    ObjectReader reader(entry, EntryPlace("list", no++));
    PTRNCODE record{};
    reader.EucInto("ID_Code", TextLimit::Code, record.ID_Code);
    record.DataCount = reader.Number("DataCount");
    record.DataNo = reader.Number("DataNo");
    record.DispNo = reader.Number("DispNo");
    reader.Finish();
    bytes += BytesOfRecords(&record, 1);
  }
  return bytes;
}

Json ShowTexts(std::string_view bytes) {
  Json list = Json::array();
  for (const PTRNTEXT& record : Decode<PTRNTEXT>(bytes, "string list")) {
    list.push_back(DisplayText(FieldText(record.text)));
  }
  return list;
}

std::string BuildTexts(const JsonSource& source) {
  std::string bytes;
  std::size_t no = 0;
  for (const JsonSource& entry : ListOf(source, "list", EntryLimit)) {
    PTRNTEXT record{};
    CopyText(record.text, EucOf(entry, EntryPlace("list", no++), TextLimit::Text));
    bytes += BytesOfRecords(&record, 1);
  }
  return bytes;
}
