// Start-up to the first painted window, and the memory of the whole program. Both are measured on
// processes of their own.
#include <benchmark/benchmark.h>
#include <glib.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/window/Program.h"

namespace {

struct Run {
  double Seconds = 0;  // of the processor
  double Elapsed = 0;
  double Megabytes = 0;
};

double SecondsOf(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

// Runs the probe to its end; all zeros when it fails.
Run Probe(std::vector<std::string> words) {
  words.insert(words.begin(), START_PROBE);
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  int ends[2];
  if (pipe(ends) != 0) return {};
  const gint64 begin = g_get_monotonic_time();
  const pid_t child = fork();
  if (child == 0) {
    dup2(ends[1], STDOUT_FILENO);
    execv(arguments[0], arguments.data());
    _exit(127);
  }
  close(ends[1]);
  char text[64] = "";
  const ssize_t length = read(ends[0], text, sizeof text - 1);
  Run run;
  run.Elapsed = static_cast<double>(g_get_monotonic_time() - begin) * 1e-6;
  close(ends[0]);
  int status = 0;
  rusage usage{};
  wait4(child, &status, 0, &usage);
  if (status != 0 || length <= 0) return {};
  run.Seconds = SecondsOf(usage.ru_utime) + SecondsOf(usage.ru_stime);
  run.Megabytes = std::stod(text);
  return run;
}

// The better figures of two runs.
void KeepBest(Run& best, const Run& other) {
  if (other.Seconds == 0) return;
  if (best.Seconds == 0) best = other;
  best.Seconds = std::min(best.Seconds, other.Seconds);
  best.Elapsed = std::min(best.Elapsed, other.Elapsed);
}

// The two in turn, so that other work of the machine meets both.
void StartUp(benchmark::State& state) {
  const ProgramFolder folder;
  Run program;
  Run bare;
  Probe({"bare"});  // the first window of a display makes caches that the later ones use
  for (auto _ : state) {
    KeepBest(program, Probe({"program", folder.Path()}));
    KeepBest(bare, Probe({"bare"}));
  }
  if (program.Seconds == 0 || bare.Seconds == 0) return state.SkipWithError("not started");
  state.counters["ratio"] = program.Seconds / bare.Seconds;
  state.counters["processor_ms"] = program.Seconds * 1e3;
  state.counters["reference_ms"] = bare.Seconds * 1e3;
  state.counters["elapsed_ratio"] = program.Elapsed / bare.Elapsed;
  state.counters["elapsed_ms"] = program.Elapsed * 1e3;
  state.counters["resident_mb"] = program.Megabytes;
  state.counters["bare_mb"] = bare.Megabytes;
}

BENCHMARK(StartUp)->Iterations(20)->Unit(benchmark::kMillisecond);

// The start-up layout of the sample project, shown in a size and zoom and scrolled through.
void Memory(benchmark::State& state) {
  const ProgramFolder folder;
  std::vector<std::string> words = {"program", folder.Path()};
  for (int no = 0; no < 3; ++no) words.push_back(std::to_string(state.range(no)));
  Run run;
  for (auto _ : state) run = Probe(words);
  if (run.Megabytes == 0) return state.SkipWithError("not shown");
  state.counters["resident_mb"] = run.Megabytes;
}

BENCHMARK(Memory)
    ->Args({800, 600, 2})
    ->Args({1600, 1200, 0})
    ->Args({9999, 9999, 2})
    ->Args({9999, 9999, 0})
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

}  // namespace
