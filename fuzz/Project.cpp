// Project files: opened, saved again, and brought into a runtime profile.
#include "Fuzz.h"
#include "project/model/RuntimeProfile.h"
#include "tools/json/Convert.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = InputText(data, size);
  const FuzzFolder& folder = FuzzFolder::Get();
  folder.Write("Plant.prj", input);
  folder.Write("VarnixMaster.ini", "[FONT]\nFONTNAME0=a,b\n[COLOR]\nCURSOR_BG=1,2,3\n");
  JsonOfFile(FileKind::Project, input);
  if (ProjFileRead(ProjPath, ProjName) == 0) return 0;
  std::string runtime = NewRuntimeProfile();
  UpdateRuntimeProfile(runtime, folder.Read("VarnixMaster.ini"), ProjData, ProjPath);
  Require(ProjFileWrite(ProjPath, ProjName) == 1);
  const std::string saved = folder.Read("Plant.prj");
  Require(ProjFileRead(ProjPath, ProjName) == 1 && ProjFileWrite(ProjPath, ProjName) == 1);
  Require(folder.Read("Plant.prj") == saved);
  return 0;
}
