// The memory that a loaded list takes, per recorded cell. Reported as a counter, since it is no time.

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <memory>

#include "bench/Bench.h"
#include "bench/Workload.h"

namespace {

std::unique_ptr<Workload> workload;

void memoryOfList(benchmark::State& state) {
  const int id = workload->saveInvoice(sizeOf(state));
  workload->load(id);  // what is only set up once is there from now on
  double bytes = 0;
  for (auto _ : state) {
    const size_t before = mallinfo2().uordblks;
    const auto invoice = workload->load(id);
    bytes = static_cast<double>(mallinfo2().uordblks - before);
  }
  state.counters["bytes per cell"] = bytes / (sizeOf(state) * Workload::kCellsInARow);
  workload->removeAll();
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  measure("memory:ours", memoryOfList);
  {
    Brontel::Morvane app;
    workload = std::make_unique<Workload>(app);
    benchmark::RunSpecifiedBenchmarks();
    workload.reset();
  }
  return 0;
}
