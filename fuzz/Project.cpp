// Project files: opened, saved again, and brought into a runtime profile.
#include "fuzz/Fuzz.h"
#include "layout/ProjectSlots.h"
#include "project/logic/RuntimeProfile.h"
#include "tools/json/Convert.h"

namespace {

constexpr const char* Designer = "[FONT]\nFONTNAME0=a,b\n[COLOR]\nCURSOR_BG=1,2,3\n";

// Made anew when what goes into it has changed, as that takes longer than all the rest.
void UseInRuntimeProfile() {
  static std::string before;
  std::string settings = std::to_string(+ProjData.Parm1[ProjectSlot::DisplaySize]) + "\n" +
                         ProjData.PtrnStart + "\n" + ProjData.PtrnStop;
  if (settings == before) return;
  std::string runtime = NewRuntimeProfile();
  UpdateRuntimeProfile(runtime, Designer, ProjData, ProjPath);
  before = std::move(settings);
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = InputText(data, size);
  const FuzzFolder& folder = FuzzFolder::Get();
  folder.Write("Plant.prj", input);
  JsonOfFile(FileKind::Project, input);
  if (ProjFileRead(ProjPath, ProjName) == 0) return 0;
  UseInRuntimeProfile();
  Require(ProjFileWrite(ProjPath, ProjName) == 1);
  const std::string saved = folder.Read("Plant.prj");
  Require(ProjFileRead(ProjPath, ProjName) == 1 && ProjFileWrite(ProjPath, ProjName) == 1);
  Require(folder.Read("Plant.prj") == saved);
  return 0;
}
