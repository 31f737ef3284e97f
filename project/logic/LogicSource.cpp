#include "project/logic/LogicSource.h"

#include "support/Text.h"

namespace {

constexpr std::size_t CodeColumns = 24;
constexpr std::size_t ClosingColumn = 52;

std::string Padded(std::string text, std::size_t columns, std::size_t least) {
  const std::size_t pad = text.size() <= columns ? columns - text.size() : least;
  return text.append(pad, ' ');
}

}  // namespace

std::string CodeHeader(std::span<const PTRNCODE> registry) {
  std::string text;
  for (const PTRNCODE& record : registry) {
    text += "#define     " + Padded(std::string(FieldText(record.ID_Code)), CodeColumns, 0) +
            std::to_string(record.DataNo) + "\n";
  }
  return text;
}

std::string ProjectHeader() {
  return "#include\t<VarnixPack.h>\n"
         "#include\t\"VarnixCode.h\"\n";
}

std::string ProjectSource(std::string_view project) {
  return "#include\t\"" + std::string(project) +
         ".h\"\n"
         "#include\t<string.h>\n\n\n"
         "BOOL  UserInit ()\n"
         "{\n"
         "\treturn TRUE;\n"
         "}\n\n\n"
         "void  UserExit ()\n"
         "{\n"
         "}\n\n\n"
         "void  UserTimr ()\n"
         "{\n"
         "}\n\n\n"
         "CPtrnDisp*  GetPtrnWnd (const char* name)\n"
         "{\n"
         "\treturn NULL;\n"
         "}\n";
}

std::string DispatchLine(std::string_view layout) {
  return Padded("\tif (strcmp(name, \"" + std::string(layout) + "\")", ClosingColumn, 2) +
         " == 0) return (new CPtrnDisp());\n";
}
