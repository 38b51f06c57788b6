#pragma once

#include <benchmark/benchmark.h>
#include <functional>
#include <string>

#include "bench/Workload.h"

/// Names a benchmark as bench/report wants it: "subject:who", where who is "ours" or a reference, at all sizes.
inline benchmark::internal::Benchmark* measure(const std::string& name, void (*function)(benchmark::State&)) {
  benchmark::internal::Benchmark* subject = benchmark::RegisterBenchmark(name.c_str(), function);
  for (const int size : Workload::kSizes) subject->Arg(size);
  return subject->Unit(benchmark::kMicrosecond);
}

/// The size to measure at.
inline int sizeOf(const benchmark::State& state) {
  return static_cast<int>(state.range(0));
}
