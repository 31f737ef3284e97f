#include "layout/ItemTypes.h"
#include "layout/LayoutFile.h"
#include "support/Program.h"
#include "support/Text.h"
#include "tools/json/Kinds.h"
#include "tools/json/SourceReader.h"

namespace {

// The most items whose records and texts still count in 32 bits.
constexpr std::size_t ItemLimit = 1'000'000;

Json ShowItem(const PTRNDATA& item) {
  return {{"Type", gint{item.Type}},
          {"Parm", NumbersOf<30>(item.Parm)},
          {"Text1", DisplayText(FieldText(item.Text1))},
          {"Text2", DisplayText(FieldText(item.Text2))},
          {"Text3", DisplayText(FieldText(item.Text3))},
          {"ID_Type", gint{item.ID_Type}},
          {"ID_Name", DisplayText(FieldText(item.ID_Name))},
          {"ID_Code", DisplayText(FieldText(item.ID_Code))},
          {"ID_No", gint{item.ID_No}},
          {"UndfFlag", gint{item.UndfFlag}}};
}

gint TypeOf(const JsonSource* value, const std::string& place) {
  if (value == nullptr) throw SourceError(place, "missing");
  if (value->is_string()) {
    const auto& name = value->get_ref<const std::string&>();
    for (const ItemTypeRow& row : ItemTypes()) {
      if (row.Name == name) return row.Type;
    }
    throw SourceError(place, "unknown item type \"" + name + "\"");
  }
  const gint type = NumberOf(*value, place);
  if (!IsItemType(type)) {
    throw SourceError(place, "an item type is 1 to " + std::to_string(ItemTypeCount));
  }
  return type;
}

PTRNDATA BuildItem(const JsonSource& source, const std::string& place) {
  ObjectReader reader(source, place);
  PTRNDATA item{};
  item.Type = TypeOf(reader.Find("Type"), reader.Place("Type"));
  reader.ParmInto<30>("Parm", ItemParameters(item.Type), item.Parm);
  reader.EucInto("Text1", TextLimit::Text, item.Text1);
  reader.EucInto("Text2", TextLimit::Text, item.Text2);
  reader.EucInto("Text3", TextLimit::Text, item.Text3);
  item.ID_Type = reader.Number("ID_Type");
  reader.EucInto("ID_Name", TextLimit::Name, item.ID_Name);
  reader.EucInto("ID_Code", TextLimit::Code, item.ID_Code);
  item.ID_No = reader.Number("ID_No");
  item.UndfFlag = reader.Number("UndfFlag");
  reader.Finish();
  return item;
}

}  // namespace

Json ShowLayout(std::string_view bytes) {
  const auto layout = DecodeLayout(bytes);
  if (!layout) throw SourceError("not a whole layout file");
  const PTRNHEDR& header = layout->Header;
  Json items = Json::array();
  for (const PTRNDATA& item : layout->Items) items.push_back(ShowItem(item));
  return {{"Version", gint{header.Version}},
          {"Parm1", NumbersOf<30>(header.Parm1)},
          {"Parm2", NumbersOf<10>(header.Parm2)},
          {"PtrnName1", DisplayText(FieldText(header.PtrnName1))},
          {"PtrnName2", DisplayText(FieldText(header.PtrnName2))},
          {"PtrnName3", DisplayText(FieldText(header.PtrnName3))},
          {"LogoName", DisplayText(FieldText(header.LogoName))},
          {"BmapName", DisplayText(FieldText(header.BmapName))},
          {"DataCount", gint{header.DataCount}},
          {"TextSize", gint{header.TextSize}},
          {"UndfFlag", gint{header.UndfFlag}},
          {"Items", std::move(items)}};
}

std::string BuildLayout(const JsonSource& source) {
  ObjectReader reader(source, "");
  Layout layout;
  PTRNHEDR& header = layout.Header;
  header.Version = reader.Number("Version", Version);
  reader.ParmInto<30>("Parm1", HeaderParameters(), header.Parm1);
  reader.ParmInto<10>("Parm2", ViewParameters(), header.Parm2);
  reader.EucInto("PtrnName1", TextLimit::Name, header.PtrnName1);
  reader.EucInto("PtrnName2", TextLimit::Name, header.PtrnName2);
  reader.EucInto("PtrnName3", TextLimit::Name, header.PtrnName3);
  reader.EucInto("LogoName", TextLimit::Picture, header.LogoName);
  reader.EucInto("BmapName", TextLimit::Picture, header.BmapName);
  for (const char* counted : {"DataCount", "TextSize", "UndfFlag"}) reader.Number(counted);
  if (const JsonSource* items = reader.Find("Items")) {
    std::size_t no = 0;
    for (const JsonSource& item : ListOf(*items, "Items", ItemLimit)) {
      layout.Items.push_back(BuildItem(item, EntryPlace("Items", no++)));
    }
  }
  reader.Finish();
  const LayoutBytes bytes = EncodeLayout(header, layout.Items);
  return {bytes.data(), bytes.size()};
}
