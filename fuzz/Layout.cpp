// Layout files: what has been read is written, and reads back the same. The conversion to JSON
// takes the same bytes from memory.
#include <vector>

#include "fuzz/Fuzz.h"
#include "layout/Guards.h"
#include "layout/Store.h"
#include "tools/json/Convert.h"

namespace {

std::vector<PTRNDATA> ReadItems(const char* name) {
  PtrnHedr = PTRNHEDR{};
  IntPtrnData();
  PtrnFileRead(ProjPath, name);
  std::vector<PTRNDATA> items(static_cast<std::size_t>(GetPtrnCount()));
  for (std::size_t no = 0; no < items.size(); ++no) {
    Require(GetPtrnData(static_cast<gint>(no), &items[no]) == 1);
    Require(IsItemType(items[no].Type));
  }
  return items;
}

bool SameTexts(const PTRNDATA& a, const PTRNDATA& b) {
  return std::string_view(a.Text1) == b.Text1 && std::string_view(a.ID_Name) == b.ID_Name &&
         std::string_view(a.ID_Code) == b.ID_Code;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = InputText(data, size);
  FuzzFolder::Get().Write("Main.ptn", input);
  CheckPtrnFile(ProjPath, "Main");
  ReadItems("Main");
  Require(WritePtrnFile(ProjPath, "Copy"));
  const std::vector<PTRNDATA> first = ReadItems("Copy");
  Require(CheckPtrnFile(ProjPath, "Copy") == LayoutFileState::Whole);
  Require(WritePtrnFile(ProjPath, "Copy"));
  const std::vector<PTRNDATA> second = ReadItems("Copy");
  Require(first.size() == second.size());
  for (std::size_t no = 0; no < first.size(); ++no) Require(SameTexts(first[no], second[no]));
  ExtPtrnData();
  JsonOfFile(FileKind::Layout, input);
  return 0;
}
