// What one invoice item with many rows of recorded data costs, journey by journey.

#include <benchmark/benchmark.h>
#include <filesystem>
#include <memory>
#include <string>

#include "bench/Workload.h"
#include "host/message/ListOfMessage.h"
#include "host/xml/Document.h"

namespace {

std::unique_ptr<Workload> workload;

int rowsOf(const benchmark::State& state) {
  return static_cast<int>(state.range(0));
}

void load(benchmark::State& state) {
  const int invoice = workload->saveInvoice(rowsOf(state));
  for (auto _ : state) benchmark::DoNotOptimize(workload->load(invoice));
}

void check(benchmark::State& state) {
  const auto invoice = workload->load(workload->saveInvoice(rowsOf(state)));
  for (auto _ : state) {
    Brontel::ListOfMessage messages;
    workload->getPlugins().checkInvoice(nullptr, invoice.get(), messages, "INVOICE");
    if (messages.no() != 0) state.SkipWithError("the invoice is not complete");
  }
}

void print(benchmark::State& state) {
  const auto invoice = workload->load(workload->saveInvoice(rowsOf(state)));
  for (auto _ : state) benchmark::DoNotOptimize(workload->getPlugins().toString(invoice->getItems()[0]));
}

void exportXml(benchmark::State& state) {
  const auto invoice = workload->load(workload->saveInvoice(rowsOf(state)));
  for (auto _ : state) {
    XMLBuilder::Document document("invoice");
    workload->getPlugins().toXml(invoice->getItems()[0], document.getRoot());
    benchmark::DoNotOptimize(document.toText());
  }
}

void firstSave(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    const auto invoice = workload->makeInvoice(rowsOf(state));
    state.ResumeTiming();
    if (!workload->save(*invoice)) state.SkipWithError("not saved");
  }
}

void saveAgain(benchmark::State& state) {
  const auto invoice = workload->load(workload->saveInvoice(rowsOf(state)));
  for (auto _ : state) {
    if (!workload->save(*invoice)) state.SkipWithError("not saved");
  }
}

void sizes(benchmark::internal::Benchmark* subject) {
  subject->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->Teardown([](const benchmark::State&) {
    workload->removeAll();
  });
}

BENCHMARK(load)->Apply(sizes);
BENCHMARK(check)->Apply(sizes);
BENCHMARK(print)->Apply(sizes);
BENCHMARK(exportXml)->Apply(sizes);
BENCHMARK(firstSave)->Apply(sizes);
BENCHMARK(saveAgain)->Apply(sizes);

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  const std::filesystem::path file =
      std::filesystem::temp_directory_path() / ("itemdata_bench." + std::to_string(FX::fxgetpid()) + ".db");
  {
    Brontel::Morvane app;
    workload = std::make_unique<Workload>(app, file.c_str());
    benchmark::RunSpecifiedBenchmarks();
    workload.reset();
  }
  std::filesystem::remove(file);
  return 0;
}
