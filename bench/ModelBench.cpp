// Layout files of 10,000 items, and code generation for 200 layouts of 100 items. Beside them the
// plain reading and the plain replacing of a file of the same size.
#include <benchmark/benchmark.h>

#include <cstring>
#include <string>

#include "ProjData.h"
#include "PtrnMisc.h"
#include "layout/Store.h"
#include "support/FileTools.h"
#include "tests/common/TempFolder.h"

namespace {

constexpr gint ItemCount = 10000;
constexpr gint LayoutCount = 200;
constexpr gint ItemsPerLayout = 100;

PTRNDATA MakeItem(gint number) {
  PTRNDATA item{};
  item.Type = 1 + number % 15;
  for (gint i = 0; i < 30; ++i) item.Parm[i] = number + i;
  std::strcpy(item.Text1, "Pressure before the pump");
  std::strcpy(item.Text2, "Druck vor der Pumpe");
  std::strcpy(item.Text3, "Pression avant la pompe");
  CopyText(item.ID_Code, "CODE_" + std::to_string(number));
  item.ID_No = number % 10;
  return item;
}

void FillStore(gint first, gint count) {
  PtrnHedr = PTRNHEDR{};
  IntPtrnData();
  for (gint number = first; number < first + count; ++number) {
    const PTRNDATA item = MakeItem(number);
    AddPtrnData(&item);
  }
}

void LayoutWrite(benchmark::State& state) {
  const TempFolder folder;
  FillStore(0, ItemCount);
  for (auto _ : state) PtrnFileWrite(folder.Path().c_str(), "Big");
  ExtPtrnData();
}
BENCHMARK(LayoutWrite)->Unit(benchmark::kMillisecond)->UseRealTime();

void LayoutRead(benchmark::State& state) {
  const TempFolder folder;
  FillStore(0, ItemCount);
  PtrnFileWrite(folder.Path().c_str(), "Big");
  for (auto _ : state) {
    IntPtrnData();
    if (!PtrnFileRead(folder.Path().c_str(), "Big")) state.SkipWithError("not read");
  }
  ExtPtrnData();
}
BENCHMARK(LayoutRead)->Unit(benchmark::kMillisecond)->UseRealTime();

void PlainReplace(benchmark::State& state) {
  const TempFolder folder;
  FillStore(0, ItemCount);
  PtrnFileWrite(folder.Path().c_str(), "Big");
  const std::string bytes = folder.Read("Big.ptn");
  for (auto _ : state) ReplaceFile(folder.Path("Copy"), bytes);
  ExtPtrnData();
}
BENCHMARK(PlainReplace)->Unit(benchmark::kMillisecond)->UseRealTime();

void PlainRead(benchmark::State& state) {
  const TempFolder folder;
  FillStore(0, ItemCount);
  PtrnFileWrite(folder.Path().c_str(), "Big");
  for (auto _ : state) benchmark::DoNotOptimize(ReadWholeFile(folder.Path("Big.ptn")));
  ExtPtrnData();
}
BENCHMARK(PlainRead)->Unit(benchmark::kMillisecond)->UseRealTime();

class Project {
 public:
  Project() {
    std::filesystem::create_directory(folder_.Path("source"));
    CopyText(PathName, folder_.Path());
    CopyText(ProjPath, folder_.Path());
    CopyText(ProjName, "Plant");
    ProjData = PROJDATA{};
    CopyText(ProjData.ProgPath, folder_.Path("source"));
    for (gint layout = 0; layout < LayoutCount; ++layout) {
      FillStore(layout * ItemsPerLayout, ItemsPerLayout);
      PtrnFileWrite(ProjPath, ("Screen " + std::to_string(1000 + layout)).c_str());
    }
    ExtPtrnData();
  }

 private:
  TempFolder folder_;
};

void Generate(benchmark::State& state) {
  const Project project;
  for (auto _ : state) {
    LogicDataEdit1();
    LogicDataEdit2();
    LogicDataEdit3();
    LogicDataEdit4();
  }
}
BENCHMARK(Generate)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
