// Layout files of many items, against plain reading and writing of the same bytes.
#include <cstring>

#include "Measure.h"
#include "PtrnMisc.h"
#include "SampleItems.h"
#include "layout/Store.h"
#include "support/FileTools.h"
#include "tests/common/TempFolder.h"

namespace {

void ReadLayout(benchmark::State& state) {
  const TempFolder folder;
  FillStore(0, static_cast<gint>(state.range(0)));
  PtrnFileWrite(folder.Path().c_str(), "Big");
  const std::string file = folder.Path("Big.ptn");
  Compare(
      state,
      [&] {
        IntPtrnData();
        if (!PtrnFileRead(folder.Path().c_str(), "Big")) state.SkipWithError("not read");
      },
      [&] { benchmark::DoNotOptimize(ReadWholeFile(file)); });
  ExtPtrnData();
}
BENCHMARK(ReadLayout)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

void WriteLayout(benchmark::State& state) {
  const TempFolder folder;
  FillStore(0, static_cast<gint>(state.range(0)));
  PtrnFileWrite(folder.Path().c_str(), "Big");
  const std::string bytes = folder.Read("Big.ptn");
  Compare(
      state, [&] { PtrnFileWrite(folder.Path().c_str(), "Big"); },
      [&] { ReplaceFile(folder.Path("Copy"), bytes); });
  ExtPtrnData();
}
BENCHMARK(WriteLayout)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace
