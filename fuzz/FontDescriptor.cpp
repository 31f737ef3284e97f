// Font descriptors: their height, the names looked for, and the fonts found. The first line is a
// descriptor, the second a text in it.
#include "fuzz/Fuzz.h"
#include "render/fonts/FontCatalogue.h"
#include "render/fonts/FontSet.h"
#include "support/Resource.h"

namespace {

// What a descriptor stands for is kept by the catalogue; forgotten from time to time, as a
// program meets a few descriptors and the fuzzer millions.
void ForgetFonts() {
  static int inputs = 0;
  if (++inputs % 2000 != 0) return;
  g_setenv("VARNIX_FONT_PATH", "/nowhere", 1);
  FontCatalogue::Get();
  g_unsetenv("VARNIX_FONT_PATH");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view text = InputText(data, size);
  // A descriptor comes from a profile field.
  const std::string descriptor(TakeLine(text).substr(0, 99));
  Require(FontDescriptorHeight(descriptor.c_str()) >= 0);
  Require(ExactNames(descriptor, "jisx0208.*-0").size() == 2);
  RelatedNames(descriptor, "iso8859-1");
  MatchesPattern(descriptor, text);
  FontSet font(descriptor);
  if (font.NamesBitmapFont()) font.Measure(text.substr(0, 99));
  ForgetFonts();
  return 0;
}
