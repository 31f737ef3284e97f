// The code registry: read, a code entered, written, brought into the code header.
#include "layout/Registry.h"

#include "fuzz/Fuzz.h"
#include "project/logic/LogicSource.h"
#include "tools/json/Convert.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = InputText(data, size);
  FuzzFolder::Get().Write("PtrnCode", input);
  const std::vector<PTRNCODE> read = ReadPtrnCode();
  Require(read.size() == input.size() / sizeof(PTRNCODE));
  CodeHeader(read);
  RegstPtrnCode("PUMP", 7);
  const std::vector<PTRNCODE> entered = ReadPtrnCode();
  Require(entered.size() >= read.size() && entered.size() <= read.size() + 2);
  std::vector<PTRNCODE> registry = entered;
  Require(!RegisterCode(registry, "PUMP", 7));
  JsonOfFile(FileKind::Registry, input);
  return 0;
}
