#include "layout/ProjectRecord.h"
#include "support/Program.h"
#include "support/RecordBytes.h"
#include "support/Text.h"
#include "tools/json/Kinds.h"
#include "tools/json/SourceReader.h"

namespace {

// A path is the file system's own bytes: UTF-8 where it can be, else as any other text.
std::string ShowPath(std::string_view path) {
  const bool utf8 = g_utf8_validate(path.data(), static_cast<gssize>(path.size()), nullptr);
  return utf8 ? std::string(path) : DisplayText(path);
}

enum : std::size_t {
  PathLimit = sizeof(PROJDATA::ProgPath) - 1,
  NameLimit = 80,
  PictureLimit = 20
};

}  // namespace

Json ShowProject(std::string_view bytes) {
  PROJFILE file;
  if (!FillRecords(&file, 1, bytes)) throw SourceError("not a whole project file");
  const PROJDATA& data = file.Data;
  return {{"Version", gint{file.Version}},
          {"Parm1", NumbersOf<20>(data.Parm1)},
          {"Parm2", NumbersOf<30>(data.Parm2)},
          {"Parm3", NumbersOf<20>(data.Parm3)},
          {"Parm4", NumbersOf<20>(data.Parm4)},
          {"ProgPath", ShowPath(FieldText(data.ProgPath))},
          {"LogoName", DisplayText(FieldText(data.LogoName))},
          {"PtrnStart", DisplayText(FieldText(data.PtrnStart))},
          {"PtrnStop", DisplayText(FieldText(data.PtrnStop))}};
}

std::string BuildProject(const JsonSource& source) {
  ObjectReader reader(source, "");
  PROJFILE file{};
  PROJDATA& data = file.Data;
  file.Version = reader.Number("Version", Version);
  reader.ParmInto<20>("Parm1", ProjectParameters(), data.Parm1);
  reader.ParmInto<30>("Parm2", ParentParameters(), data.Parm2);
  reader.ParmInto<20>("Parm3", ChildParameters(), data.Parm3);
  reader.ParmInto<20>("Parm4", CommonParameters(), data.Parm4);
  const std::string path = reader.Bytes("ProgPath", PathLimit);
  path.copy(data.ProgPath, PathLimit);
  reader.EucInto("LogoName", PictureLimit, data.LogoName);
  reader.EucInto("PtrnStart", NameLimit, data.PtrnStart);
  reader.EucInto("PtrnStop", NameLimit, data.PtrnStop);
  reader.Finish();
  return std::string(BytesOfRecords(&file, 1));
}
