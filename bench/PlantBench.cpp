// The sample project PowerPlant, 40 layouts with 3,000 items, as the build ships it. The reference
// is the plain reading of all its layout files.
#include "ProjData.h"
#include "PtrnDraw.h"
#include "PtrnMisc.h"
#include "bench/Measure.h"
#include "layout/ItemSlots.h"
#include "layout/Store.h"
#include "project/check/Check.h"
#include "project/model/LayoutNames.h"
#include "support/FileTools.h"

namespace {

// Opens the project in the program folder; false = it is not there.
bool OpenPlant(benchmark::State& state) {
  CopyText(PathName, VARNIX_PROGRAM_FOLDER);
  EnterProject(VARNIX_PROGRAM_FOLDER "/PowerSample", "PowerPlant");
  PROJFILE file{};
  if (FileRead(ProjPath, ProjName, "prj", &file, sizeof file, 0) != 1) {
    state.SkipWithError("the sample project has not been built");
    return false;
  }
  ProjData = file.Data;
  InitDrawData();
  LoadColrFile();
  LoadMarkFile();
  FontDataInit(0);
  return true;
}

void ReadFilesPlainly() {
  for (const std::string& name : LayoutNames(ProjPath)) {
    benchmark::DoNotOptimize(ReadWholeFile(JoinPath(ProjPath, name, "ptn")));
  }
}

// Reads the project's layouts one after the other; `use` finds each in the store.
void ReadLayouts(void (*use)()) {
  for (const std::string& name : LayoutNames(ProjPath)) {
    IntPtrnData();
    PtrnFileRead(ProjPath, name.c_str());
    use();
  }
}

void PaintLayout() {
  Drawable picture(PtrnHedr.Parm1[HedrSlot::Width], PtrnHedr.Parm1[HedrSlot::Height]);
  DrawGc gc;
  DrawWindow1(&picture, &gc);
}

void ReadPlant(benchmark::State& state) {
  if (!OpenPlant(state)) return;
  Compare(
      state, [] { ReadLayouts([] {}); }, ReadFilesPlainly);
  ExtPtrnData();
}

BENCHMARK(ReadPlant)->Unit(benchmark::kMillisecond);

void CheckPlant(benchmark::State& state) {
  if (!OpenPlant(state)) return;
  Compare(
      state, [] { benchmark::DoNotOptimize(CheckProject(LoadCheckedProject())); },
      ReadFilesPlainly);
}

BENCHMARK(CheckPlant)->Unit(benchmark::kMillisecond);

void PaintPlant(benchmark::State& state) {
  if (!OpenPlant(state)) return;
  Compare(
      state, [] { ReadLayouts(PaintLayout); }, ReadFilesPlainly);
  ExtPtrnData();
}

BENCHMARK(PaintPlant)->Unit(benchmark::kMillisecond);

}  // namespace
