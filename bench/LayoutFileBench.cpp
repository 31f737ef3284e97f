// Layout files of many items, against plain reading and writing of the same bytes.
#include <malloc.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <vector>

#include "PtrnMisc.h"
#include "bench/Measure.h"
#include "bench/SampleItems.h"
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

// As a program finds it that reads its first layout: what is free goes back to the system.
void ForgetMemory() {
  ExtPtrnData();
  malloc_trim(0);
}

// As a person finds it who opens a layout: the processor's caches hold other things, too.
void ForgetCaches() {
  static const std::vector<char> other(std::size_t{96} << 20, 1);
  benchmark::DoNotOptimize(std::count(other.begin(), other.end(), 2));
}

// Memory used before, by one layout after the other.
void KeepMemory() {}

void Read(benchmark::State& state, void (*before)()) {
  const TempFolder folder;
  FillStore(0, static_cast<gint>(state.range(0)));
  PtrnFileWrite(folder.Path().c_str(), "Big");
  const std::string file = folder.Path("Big.ptn");
  CompareByTurns(
      state, before,
      [&] {
        IntPtrnData();
        if (!PtrnFileRead(folder.Path().c_str(), "Big")) state.SkipWithError("not read");
      },
      [&] { ReadPlainly(file); });
  ExtPtrnData();
}

// In a folder in memory, if there is one, so that no device's time counts.
TempFolder FolderInMemory() {
  const char* const memory = "/dev/shm";
  return std::filesystem::is_directory(memory) ? TempFolder(memory) : TempFolder();
}

void Write(benchmark::State& state, void (*before)()) {
  const TempFolder folder = FolderInMemory();
  FillStore(0, static_cast<gint>(state.range(0)));
  PtrnFileWrite(folder.Path().c_str(), "Big");
  const std::string bytes = folder.Read("Big.ptn");
  CompareByTurns(
      state, before, [&] { PtrnFileWrite(folder.Path().c_str(), "Big"); },
      [&] { ReplaceFile(folder.Path("Copy"), bytes); });
  ExtPtrnData();
}

void ReadLayout(benchmark::State& state) {
  Read(state, ForgetMemory);
}

void ReadLayoutCold(benchmark::State& state) {
  Read(state, [] {
    ForgetMemory();
    ForgetCaches();
  });
}

void ReadLayoutAgain(benchmark::State& state) {
  Read(state, KeepMemory);
}

void WriteLayout(benchmark::State& state) {
  Write(state, KeepMemory);
}

void WriteLayoutCold(benchmark::State& state) {
  Write(state, ForgetCaches);
}

BENCHMARK(ReadLayout)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadLayoutCold)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadLayoutAgain)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(WriteLayout)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(WriteLayoutCold)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace
