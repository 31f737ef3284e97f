#include "tools/Commands.h"
#include "tools/InputFile.h"
#include "tools/Report.h"

int RunShow(const std::string& file, bool names) {
  const std::string path = ExistingPath(file);
  const auto kind = KindOfFile(BaseName(path));
  if (!kind) return Fail(file, "its name is none of the program's files");
  const FileBytes input = ReadFileOfKind(*kind, path);
  if (!input.Bytes) return Fail(file, input.Error);
  const Conversion json = JsonOfFile(*kind, *input.Bytes, names ? Numbers::Named : Numbers::Listed);
  return json.Result ? Print(*json.Result) : Fail(file, json.Error);
}
