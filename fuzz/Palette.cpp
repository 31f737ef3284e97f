// The palette: read into the drawing colours, and written as it was read.
#include "render/Palette.h"

#include "fuzz/Fuzz.h"
#include "render/Primitives.h"
#include "support/Resource.h"
#include "tools/json/Convert.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = InputText(data, size);
  FuzzFolder::Get().Write("PtrnColr", input);
  LoadColrFile();
  for (gint colour = 0; colour < ColrCount; ++colour) Require(DrawColr[colour].pixel <= 0xffffff);
  SaveColrFile();
  if (input.size() >= sizeof ColrData) {
    Require(FuzzFolder::Get().Read("PtrnColr") == input.substr(0, sizeof ColrData));
  }
  JsonOfFile(FileKind::Palette, input);
  return 0;
}
