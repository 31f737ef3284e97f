// The marks: read into the drawing marks and painted. An input of odd size is a file as it is, one
// of even size is repeated to a whole file.
#include "fuzz/Fuzz.h"
#include "render/Marks.h"
#include "render/Primitives.h"
#include "support/Resource.h"
#include "tools/json/Convert.h"

namespace {

std::string Repeated(std::string_view input) {
  std::string whole(input);
  while (whole.size() < sizeof MarkData) whole += whole;
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
  const bool whole = size % 2 == 0 && size > 0;
  const std::string marks =
      whole ? Repeated(InputText(data, size)) : std::string(InputText(data, size));
  FuzzFolder::Get().Write("PtrnMark", marks);
  LoadMarkFile();
  UseMarks();
  // Showing 350 marks takes long, and always the same way.
  if (size % 128 == 0 || size % 128 == 63) JsonOfFile(FileKind::Marks, marks);
  return 0;
}
