// A benchmark beside its reference: both measured in the same run, their ratio reported.
#pragma once

#include <benchmark/benchmark.h>
#include <valgrind/callgrind.h>

#include <algorithm>
#include <ctime>

// Processor time, so that a shared machine's other work does not count.
inline double ProcessorSeconds() {
  std::timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

template <typename Body>
double Seconds(Body body) {
  const double begin = ProcessorSeconds();
  body();
  benchmark::ClobberMemory();
  return ProcessorSeconds() - begin;
}

// The best of `runs` runs.
template <typename Body>
double BestSeconds(int runs, Body body) {
  double best = Seconds(body);
  for (int run = 1; run < runs; ++run) best = std::min(best, Seconds(body));
  return best;
}

// Under callgrind, lets it count the instructions of the body's second run, and nothing else. False
// without callgrind.
template <typename Body>
bool CountInstructions(benchmark::State& state, Body body) {
  if (RUNNING_ON_VALGRIND == 0) return false;
  body();
  CALLGRIND_START_INSTRUMENTATION;
  body();
  CALLGRIND_STOP_INSTRUMENTATION;
  while (state.KeepRunning()) continue;
  return true;
}

inline void Report(benchmark::State& state, double best, double reference) {
  state.counters["best_ms"] = best * 1e3;
  state.counters["reference_ms"] = reference * 1e3;
  state.counters["ratio"] = best / reference;
}

// Runs the benchmark's body; the counter "ratio" is its best time in units of the reference's best.
// `before` goes ahead of every run of both, and does not count.
template <typename Body, typename Reference, typename Before>
void CompareAfter(benchmark::State& state, Before before, Body body, Reference reference) {
  if (CountInstructions(state, body)) return;
  double best = 1e9;
  for (auto _ : state) {
    before();
    best = std::min(best, Seconds(body));
  }
  double plain = 1e9;
  for (int run = 0; run < 20; ++run) {
    before();
    plain = std::min(plain, Seconds(reference));
  }
  Report(state, best, plain);
}

template <typename Body, typename Reference>
void Compare(benchmark::State& state, Body body, Reference reference) {
  CompareAfter(
      state, [] {}, body, reference);
}
