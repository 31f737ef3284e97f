// Layout files of many items, against plain reading and writing of the same bytes.
#include <malloc.h>
#include <sys/stat.h>

#include <vector>

#include "Measure.h"
#include "PtrnMisc.h"
#include "SampleItems.h"
#include "layout/Store.h"
#include "support/BareMemory.h"
#include "support/FileHandle.h"
#include "support/FileTools.h"
#include "tests/common/TempFolder.h"

namespace {

// What reading a file into memory costs at the least.
void ReadPlainly(const std::string& path) {
  const FileHandle file = FileHandle::OpenToRead(path.c_str());
  struct stat status {};
  fstat(file.Get(), &status);
  const auto size = static_cast<std::size_t>(status.st_size);
  const std::vector<char, BareMemory<char>> bytes(size);
  benchmark::DoNotOptimize(file.ReadAt(const_cast<char*>(bytes.data()), size, 0));
}

// Gives what is free back to the system, so that the next run begins as a program does that reads
// its first layout.
void ForgetMemory() {
  ExtPtrnData();
  malloc_trim(0);
}

void Read(benchmark::State& state, void (*before)()) {
  const TempFolder folder;
  FillStore(0, static_cast<gint>(state.range(0)));
  PtrnFileWrite(folder.Path().c_str(), "Big");
  const std::string file = folder.Path("Big.ptn");
  CompareAfter(
      state, before,
      [&] {
        IntPtrnData();
        if (!PtrnFileRead(folder.Path().c_str(), "Big")) state.SkipWithError("not read");
      },
      [&] { ReadPlainly(file); });
  ExtPtrnData();
}

void ReadLayout(benchmark::State& state) {
  Read(state, ForgetMemory);
}
BENCHMARK(ReadLayout)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

// One layout after the other, in memory that was used before.
void ReadLayoutAgain(benchmark::State& state) {
  Read(state, [] {});
}
BENCHMARK(ReadLayoutAgain)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

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
