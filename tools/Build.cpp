#include "support/FileTools.h"
#include "tools/Commands.h"
#include "tools/InputFile.h"
#include "tools/Report.h"

namespace {

// No source that describes a file of the program comes near this size.
constexpr std::size_t SourceLimit = 256u << 20;

}  // namespace

int RunBuild(const BuildOptions& options) {
  const auto kind = KindOfFile(BaseName(options.Output));
  if (!kind) return Fail(options.Output, "its name is none of the program's files");
  const auto output = options.EucName ? EucPath(options.Output) : options.Output;
  if (!output) return Fail(options.Output, "EUC-JP cannot hold its name");
  const auto source = ReadWholeFile(options.Source, SourceLimit);
  if (!source) return Fail(options.Source, "cannot be read");
  const Conversion file = FileOfJson(*kind, *source);
  if (!file.Result) return Fail(options.Source, file.Error);
  if (!ReplaceFile(*output, *file.Result)) return Fail(*output, "cannot be written");
  return ExitDone;
}
