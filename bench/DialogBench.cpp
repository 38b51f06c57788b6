// The dialog in which rows are recorded, on a real display: opening, adding and deleting a row, scrolling, closing.

#include <benchmark/benchmark.h>
#include <memory>

#include "bench/Bench.h"
#include "bench/Workload.h"
#include "ui/ItemDataDialog.h"
#include "ui/ItemDataTable.h"

namespace {

using Brontel::Invoice;
using Brontel::Plugin::ItemData::ItemDataDialog;
using Brontel::Plugin::ItemData::UI::ItemDataTable;

std::unique_ptr<Workload> workload;
FX::FXMainWindow* owner;

/// Everything that has arrived and is due, painting included.
void settle() {
  owner->getApp()->refresh();
  owner->getApp()->flush(true);
  while (owner->getApp()->runOneEvent(false)) {
  }
}

ItemDataTable* tableIn(FX::FXWindow* window) {
  if (auto* table = dynamic_cast<ItemDataTable*>(window)) return table;
  for (FX::FXWindow* child = window->getFirst(); child != nullptr; child = child->getNext()) {
    if (ItemDataTable* table = tableIn(child)) return table;
  }
  return nullptr;
}

/// An open dialog on a list of that many rows.
struct Opened {
  explicit Opened(int rows) : invoice(workload->makeInvoice(rows)) { open(); }
  ~Opened() { close(); }

  void open() {
    dialog = std::make_unique<ItemDataDialog>(owner, Workload::itemOf(*invoice));
    dialog->create();
    dialog->show(FX::PLACEMENT_SCREEN);
    settle();
  }
  void close() {
    dialog.reset();
    settle();
  }
  ItemDataTable& table() const { return *tableIn(dialog.get()); }

  std::unique_ptr<Invoice> invoice;
  std::unique_ptr<ItemDataDialog> dialog;
};

void openAndClose(benchmark::State& state) {
  Opened opened(sizeOf(state));
  opened.close();
  for (auto _ : state) {
    opened.open();
    opened.close();
  }
}

void addRow(benchmark::State& state) {
  const Opened opened(sizeOf(state));
  ItemDataTable& table = opened.table();
  for (auto _ : state) {
    table.handle(nullptr, FXSEL(FX::SEL_COMMAND, ItemDataTable::ID_ADD_ROW), nullptr);
    settle();
  }
}

void deleteRow(benchmark::State& state) {
  const Opened opened(sizeOf(state));
  ItemDataTable& table = opened.table();
  for (auto _ : state) {
    state.PauseTiming();
    table.handle(nullptr, FXSEL(FX::SEL_COMMAND, ItemDataTable::ID_ADD_ROW), nullptr);
    state.ResumeTiming();
    table.handle(nullptr, FXSEL(FX::SEL_COMMAND, ItemDataTable::ID_DELETE_ROW), nullptr);
    settle();
  }
}

void scrollToEnd(benchmark::State& state) {
  const Opened opened(sizeOf(state));
  ItemDataTable& table = opened.table();
  for (auto _ : state) {
    table.setPosition(0, 0);
    settle();
    table.makePositionVisible(table.getNumRows() - 1, 0);
    settle();
  }
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  measure("dialog, open and close:ours", openAndClose);
  measure("dialog, add a row:ours", addRow);
  measure("dialog, delete a row:ours", deleteRow);
  measure("dialog, scroll to the end:ours", scrollToEnd);
  {
    Brontel::Morvane app;
    app.init(argc, argv);
    workload = std::make_unique<Workload>(app);
    owner = new FX::FXMainWindow(&app, "bench", nullptr, nullptr, FX::DECOR_ALL, 0, 0, 300, 200);
    app.create();
    owner->show(FX::PLACEMENT_SCREEN);
    settle();
    benchmark::RunSpecifiedBenchmarks();
    workload.reset();
  }
  return 0;
}
