// What one invoice item with many rows of recorded data costs, beside the same statements in plain C.

#include <benchmark/benchmark.h>
#include <memory>
#include <optional>

#include "bench/Bench.h"
#include "bench/PlainList.h"
#include "bench/Workload.h"
#include "host/database/StatementObserver.h"
#include "host/database/Transaction.h"
#include "host/message/ListOfMessage.h"
#include "host/xml/Document.h"
#include "itemdata/ItemDataList.h"

namespace {

using Brontel::Invoice;
using Brontel::InvoiceItem;
using Brontel::Database::Transaction;

std::unique_ptr<Workload> workload;
std::unique_ptr<PlainDatabase> plainDatabase;
std::unique_ptr<PlainList> plain;

/// A stored invoice; gone again when it goes.
struct Stored {
  explicit Stored(int rows) : invoice(workload->load(workload->saveInvoice(rows))) {}
  ~Stored() { workload->removeAll(); }

  int itemId() const { return Workload::itemOf(*invoice)->getId(); }

  std::unique_ptr<Invoice> invoice;
};

/// Counts the statements that run while it lives.
class StatementCount : public Brontel::Database::StatementObserver {
 public:
  explicit StatementCount(MorvaneDatabase& database) : database_(database) { database_.setObserver(this); }
  ~StatementCount() override { database_.setObserver(nullptr); }

  bool beforeRun(const FX::FXString&, const Brontel::Database::BoundValues&) override {
    ++count_;
    return true;
  }
  int get() const { return count_; }

 private:
  MorvaneDatabase& database_;
  int count_ = 0;
};

void load(benchmark::State& state) {
  const Stored stored(sizeOf(state));
  for (auto _ : state) {
    Invoice invoice;
    invoice.setTypeCode(stored.invoice->getTypeCode());
    auto* item = new InvoiceItem;
    invoice.appendItem(item);
    item->setId(stored.itemId());
    item->setGoods(Brontel::GOODS_PRODUCT, Workload::kProduct);
    workload->plugins().load(item);
  }
}

void plainLoad(benchmark::State& state) {
  const Stored stored(sizeOf(state));
  for (auto _ : state) benchmark::DoNotOptimize(plain->load(Workload::kProduct, stored.itemId()));
}

void savePlugin(benchmark::State& state, Invoice& invoice) {
  Transaction transaction(workload->database());
  workload->plugins().save(Workload::itemOf(invoice));
  if (!transaction.commit()) state.SkipWithError("not saved");
}

void firstSave(benchmark::State& state) {
  const Stored stored(0);
  for (auto _ : state) {
    state.PauseTiming();
    workload->database().run("delete from t_invoiceitemdata");
    const std::unique_ptr<Invoice> invoice = workload->makeInvoice(sizeOf(state));
    Workload::itemOf(*invoice)->setId(stored.itemId());
    state.ResumeTiming();
    savePlugin(state, *invoice);
  }
}

void plainFirstSave(benchmark::State& state) {
  const Stored stored(sizeOf(state));
  const std::vector<PlainList::Cell> cells = plain->load(Workload::kProduct, stored.itemId());
  for (auto _ : state) {
    state.PauseTiming();
    workload->database().run("delete from t_invoiceitemdata");
    state.ResumeTiming();
    plain->insert(stored.itemId(), cells);
  }
}

/// Changes what is recorded before each save.
template <bool CHANGED>
void saveAgain(benchmark::State& state) {
  const Stored stored(sizeOf(state));
  Brontel::Plugin::ItemData::ItemDataList& list = Workload::listOf(*stored.invoice);
  int change = 0;
  for (auto _ : state) {
    state.PauseTiming();
    ++change;
    for (FX::FXint i = 0; CHANGED && i < list.no(); ++i) {
      if (list[i]->itemvariable > 0) list[i]->value = FX::FXStringVal(change * 100000 + i) + "C";
    }
    state.ResumeTiming();
    savePlugin(state, *stored.invoice);
  }
  StatementCount count(workload->database());
  savePlugin(state, *stored.invoice);
  state.counters["statements"] = count.get();
}

template <bool CHANGED>
void plainSaveAgain(benchmark::State& state) {
  const Stored stored(sizeOf(state));
  std::vector<PlainList::Cell> cells = plain->load(Workload::kProduct, stored.itemId());
  int change = 0;
  for (auto _ : state) {
    state.PauseTiming();
    ++change;
    for (size_t i = 0; CHANGED && i < cells.size(); ++i) {
      if (cells[i].variable > 0) cells[i].value = std::to_string(change * 100000 + static_cast<int>(i)) + "C";
    }
    state.ResumeTiming();
    plain->update(stored.itemId(), cells);
  }
}

void removeRows(benchmark::State& state) {
  std::optional<Stored> stored;
  for (auto _ : state) {
    state.PauseTiming();
    stored.reset();
    stored.emplace(sizeOf(state));
    Brontel::Plugin::ItemData::ItemDataList& list = Workload::listOf(*stored->invoice);
    for (FX::FXint i = 0; i < list.no(); ++i) list[i]->markForDelete(1);
    state.ResumeTiming();
    savePlugin(state, *stored->invoice);
  }
}

void plainRemoveRows(benchmark::State& state) {
  std::optional<Stored> stored;
  for (auto _ : state) {
    state.PauseTiming();
    stored.reset();
    stored.emplace(sizeOf(state));
    const std::vector<PlainList::Cell> cells = plain->load(Workload::kProduct, stored->itemId());
    state.ResumeTiming();
    plain->remove(stored->itemId(), cells);
  }
}

void check(benchmark::State& state) {
  const Stored stored(sizeOf(state));
  for (auto _ : state) {
    Brontel::ListOfMessage messages;
    workload->plugins().checkInvoice(nullptr, stored.invoice.get(), messages, "INVOICE");
    if (messages.no() != 0) state.SkipWithError("the invoice is not complete");
  }
}

void print(benchmark::State& state) {
  const Stored stored(sizeOf(state));
  for (auto _ : state) benchmark::DoNotOptimize(workload->plugins().toString(Workload::itemOf(*stored.invoice)));
}

/// As many variables as there are cells else, each recorded once with a value of its own.
void printPerItem(benchmark::State& state) {
  const std::unique_ptr<Invoice> invoice = workload->makePerItemInvoice(sizeOf(state) * Workload::kCellsInARow);
  for (auto _ : state) benchmark::DoNotOptimize(workload->plugins().toString(Workload::itemOf(*invoice)));
}

void exportXml(benchmark::State& state) {
  const Stored stored(sizeOf(state));
  for (auto _ : state) {
    XMLBuilder::Document document("invoice");
    workload->plugins().toXml(Workload::itemOf(*stored.invoice), document.getRoot());
    benchmark::DoNotOptimize(document.toText());
  }
}

/// From the file to the paper and back: load, 100 rows more, check, print, export, save.
void journey(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    const int id = workload->saveInvoice(sizeOf(state));
    state.ResumeTiming();
    const std::unique_ptr<Invoice> invoice = workload->load(id);
    Brontel::Plugin::ItemData::ItemDataList& list = Workload::listOf(*invoice);
    const FX::FXint before = list.no();
    list.addRows(100);
    for (FX::FXint i = before; i < list.no(); ++i) list[i]->value = "1";
    Brontel::ListOfMessage messages;
    workload->plugins().checkInvoice(nullptr, invoice.get(), messages, "INVOICE");
    for (FX::FXint i = 0; i < messages.no(); ++i) delete messages[i];
    benchmark::DoNotOptimize(workload->plugins().toString(Workload::itemOf(*invoice)));
    XMLBuilder::Document document("invoice");
    workload->plugins().toXml(Workload::itemOf(*invoice), document.getRoot());
    benchmark::DoNotOptimize(document.toText());
    if (!workload->save(*invoice)) state.SkipWithError("not saved");
    state.PauseTiming();
    workload->removeAll();
    state.ResumeTiming();
  }
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  measure("load:ours", load);
  measure("load:plain", plainLoad);
  measure("first save:ours", firstSave);
  measure("first save:plain", plainFirstSave);
  measure("changed save:ours", saveAgain<true>);
  measure("changed save:plain", plainSaveAgain<true>);
  measure("unchanged save:ours", saveAgain<false>);
  measure("unchanged save:plain", plainSaveAgain<false>);
  measure("delete of all rows:ours", removeRows);
  measure("delete of all rows:plain", plainRemoveRows);
  measure("check:ours", check);
  measure("printable text:ours", print);
  measure("printable text, no rows:ours", printPerItem);
  measure("XML export:ours", exportXml);
  measure("whole journey:ours", journey);
  {
    Brontel::Morvane app;
    workload = std::make_unique<Workload>(app);
    plainDatabase = std::make_unique<PlainDatabase>(workload->file().text());
    plain = std::make_unique<PlainList>(*plainDatabase);
    benchmark::RunSpecifiedBenchmarks();
    plain.reset();
    plainDatabase.reset();
    workload.reset();
  }
  return 0;
}
