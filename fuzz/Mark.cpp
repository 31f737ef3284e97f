// The marks: read into the drawing marks and painted. A short input stands for a cut file, and
// repeated to the full size for a whole one.
#include "Fuzz.h"
#include "render/Primitives.h"
#include "support/Resource.h"
#include "tools/json/Convert.h"

namespace {

std::string Repeated(std::string_view input) {
  std::string whole;
  while (whole.size() < sizeof MarkData) whole.append(input);
  return whole;
}

void UseMarks() {
  Drawable paper(64, 64);
  DrawGc gc;
  for (gint mark = -1; mark < MarkCount; mark += 49) {
    DrawMark(&paper, &gc, 1, 1, 62, 62, mark, 0, 1);
    for (gint place = -1; place < 70; ++place) {
      const MARKDATA* bits = &MarkData[std::max(mark, 0)];
      MarkDataGet(mark, bits, place, place);
    }
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = InputText(data, size);
  FuzzFolder::Get().Write("PtrnMark", input);
  LoadMarkFile();
  UseMarks();
  if (input.empty()) return 0;
  const std::string whole = Repeated(input);
  FuzzFolder::Get().Write("PtrnMark", whole);
  LoadMarkFile();
  UseMarks();
  JsonOfFile(FileKind::Marks, whole);
  return 0;
}
