// A benchmark beside its reference: both measured in the same run, their ratio reported.
#pragma once

#include <benchmark/benchmark.h>

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

// Runs the benchmark's body; the counter "ratio" is its best time in units of the reference's best.
template <typename Body, typename Reference>
void Compare(benchmark::State& state, Body body, Reference reference) {
  double best = 1e9;
  for (auto _ : state) best = std::min(best, Seconds(body));
  const double plain = BestSeconds(20, reference);
  state.counters["reference_ms"] = plain * 1e3;
  state.counters["ratio"] = best / plain;
}
