// A benchmark beside its reference: both measured in the same run, their ratio reported.
#pragma once

#include <benchmark/benchmark.h>
#include <valgrind/callgrind.h>

#include <algorithm>
#include <ctime>

// Of processor time, so that a shared machine's other work does not count. A virtual machine's
// processor time jumps, though: what the host takes away is taken off whatever runs when the system
// notices, and the best of many short runs may be one that seems too short. For these, the best of
// elapsed times is of a run that nothing disturbed.
template <typename Body>
double Seconds(Body body, clockid_t clock = CLOCK_PROCESS_CPUTIME_ID) {
  const auto now = [clock] {
    std::timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
  };
  const double begin = now();
  body();
  benchmark::ClobberMemory();
  return now() - begin;
}

// The best of `runs` runs.
template <typename Body>
double BestSeconds(int runs, Body body) {
  double best = Seconds(body);
  for (int run = 1; run < runs; ++run) best = std::min(best, Seconds(body));
  return best;
}

// Under callgrind, lets it count the instructions of the body's second run, and nothing else,
// however often the benchmark is called. False without callgrind.
template <typename Body>
bool CountInstructions(benchmark::State& state, Body body) {
  if (RUNNING_ON_VALGRIND == 0) return false;
  static bool counted = false;
  if (!counted) {
    counted = true;
    body();
    CALLGRIND_START_INSTRUMENTATION;
    body();
    CALLGRIND_STOP_INSTRUMENTATION;
  }
  while (state.KeepRunning()) continue;
  return true;
}

inline void Report(benchmark::State& state, double best, double reference) {
  state.counters["best_ms"] = best * 1e3;
  state.counters["reference_ms"] = reference * 1e3;
  state.counters["ratio"] = best / reference;
}

// Runs the benchmark's body; the counter "ratio" is its best time in units of the reference's best.
template <typename Body, typename Reference>
void Compare(benchmark::State& state, Body body, Reference reference) {
  if (CountInstructions(state, body)) return;
  double best = 1e9;
  for (auto _ : state) best = std::min(best, Seconds(body));
  Report(state, best, BestSeconds(20, reference));
}

// The same by elapsed time, body and reference by turns. `before` goes ahead of every run of both,
// and does not count.
template <typename Body, typename Reference, typename Before>
void CompareByTurns(benchmark::State& state, Before before, Body body, Reference reference) {
  if (CountInstructions(state, body)) return;
  double best = 1e9;
  double plain = 1e9;
  for (auto _ : state) {
    before();
    best = std::min(best, Seconds(body, CLOCK_MONOTONIC));
    before();
    plain = std::min(plain, Seconds(reference, CLOCK_MONOTONIC));
  }
  Report(state, best, plain);
}
