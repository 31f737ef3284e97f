// String lists: read and added to. The first line of the input is also entered.
#include "fuzz/Fuzz.h"
#include "layout/Registry.h"
#include "tools/json/Convert.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = InputText(data, size);
  const FuzzFolder& folder = FuzzFolder::Get();
  folder.Write("PtrnText1", input);
  std::string_view rest = input;
  const std::string text(TakeLine(rest));
  RegstPtrnText(text.c_str(), 2);
  const std::string entered = folder.Read("PtrnText1");
  RegstPtrnText(text.c_str(), 2);
  Require(folder.Read("PtrnText1") == entered);
  JsonOfFile(FileKind::Texts, input);
  return 0;
}
