// The load of an item that was made from another one, of which 50 closed invoices have taken their part already.

#include <benchmark/benchmark.h>
#include <memory>

#include "bench/Bench.h"
#include "bench/Workload.h"

namespace {

using Brontel::Invoice;

constexpr int kDerivedInvoices = 50;
constexpr int kClosed = 151;

std::unique_ptr<Workload> workload;

/// A new invoice whose item refers to the stored one; its data are to be loaded.
std::unique_ptr<Invoice> derive(const Invoice& from) {
  auto invoice = std::make_unique<Invoice>();
  invoice->setTypeCode(from.getTypeCode());
  invoice->appendItem(from.getItems()[0]->derive());
  return invoice;
}

void loadDerived(benchmark::State& state) {
  workload->removeAll();
  const std::unique_ptr<Invoice> source = workload->load(workload->saveInvoice(sizeOf(state)));
  for (int i = 0; i < kDerivedInvoices; ++i) {
    const std::unique_ptr<Invoice> derived = derive(*source);
    workload->invoices().loadPluginData(*derived);
    for (FX::FXint cell = 0; cell < Workload::listOf(*derived).no(); ++cell) {
      auto* entry = Workload::listOf(*derived)[cell];
      if (entry->itemvariable == -1) entry->value = "0.001";
    }
    if (!workload->save(*derived)) state.SkipWithError("not saved");
  }
  workload->database().run("update t_invoice set t_invoicestatus_1=" + FX::FXStringVal(kClosed));
  for (auto _ : state) {
    const std::unique_ptr<Invoice> derived = derive(*source);
    workload->plugins().load(Workload::itemOf(*derived));
  }
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  for (const int rows : {10, 100, 1000}) {
    benchmark::RegisterBenchmark("load of a derived item:ours", loadDerived)->Arg(rows)->Unit(benchmark::kMicrosecond);
  }
  {
    Brontel::Morvane app;
    workload = std::make_unique<Workload>(app);
    benchmark::RunSpecifiedBenchmarks();
    workload.reset();
  }
  return 0;
}
