// Building files from JSON. What was built can be shown.
#include "fuzz/Fuzz.h"
#include "tools/json/Convert.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = InputText(data, size);
  for (const FileKind kind : {FileKind::Layout, FileKind::Project, FileKind::Palette,
                              FileKind::Marks, FileKind::Registry, FileKind::Texts}) {
    const Conversion built = FileOfJson(kind, input);
    Require(built.Result.has_value() != !built.Error.empty());
    if (built.Result) Require(JsonOfFile(kind, *built.Result).Result.has_value());
  }
  return 0;
}
