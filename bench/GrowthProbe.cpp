// Runs one step of an item's life at one size, so that a profiler can count what it takes: growth_probe STEP ROWS.
// Only the step itself is counted.

#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <valgrind/callgrind.h>

#include "bench/Workload.h"
#include "host/database/Transaction.h"
#include "host/message/ListOfMessage.h"
#include "host/xml/Document.h"
#include "ui/ItemDataDialog.h"
#include "ui/ItemDataTable.h"

namespace {

using Brontel::Invoice;
using Brontel::InvoiceItem;
using Brontel::Database::Transaction;
using Brontel::Plugin::ItemData::ItemDataDialog;
using Brontel::Plugin::ItemData::UI::ItemDataTable;

void load(Workload& workload, int rows) {
  const std::unique_ptr<Invoice> stored = workload.load(workload.saveInvoice(rows));
  Invoice invoice;
  invoice.setTypeCode(stored->getTypeCode());
  auto* item = new InvoiceItem;
  invoice.appendItem(item);
  item->setId(Workload::itemOf(*stored)->getId());
  item->setGoods(Brontel::GOODS_PRODUCT, Workload::kProduct);
  CALLGRIND_TOGGLE_COLLECT;
  workload.plugins().load(item);
  CALLGRIND_TOGGLE_COLLECT;
}

void save(Workload& workload, Invoice& invoice) {
  Transaction transaction(workload.database());
  CALLGRIND_TOGGLE_COLLECT;
  workload.plugins().save(Workload::itemOf(invoice));
  CALLGRIND_TOGGLE_COLLECT;
  if (!transaction.commit()) std::abort();
}

void firstSave(Workload& workload, int rows) {
  const int id = workload.saveInvoice(0);
  const std::unique_ptr<Invoice> invoice = workload.makeInvoice(rows);
  Workload::itemOf(*invoice)->setId(Workload::itemOf(*workload.load(id))->getId());
  save(workload, *invoice);
}

void saveAgain(Workload& workload, int rows) {
  save(workload, *workload.load(workload.saveInvoice(rows)));
}

void removeRows(Workload& workload, int rows) {
  const std::unique_ptr<Invoice> invoice = workload.load(workload.saveInvoice(rows));
  auto& list = Workload::listOf(*invoice);
  for (FX::FXint i = 0; i < list.no(); ++i) list[i]->markForDelete(1);
  save(workload, *invoice);
}

void check(Workload& workload, int rows) {
  const std::unique_ptr<Invoice> invoice = workload.makeInvoice(rows);
  Brontel::ListOfMessage messages;
  CALLGRIND_TOGGLE_COLLECT;
  workload.plugins().checkInvoice(nullptr, invoice.get(), messages, "INVOICE");
  CALLGRIND_TOGGLE_COLLECT;
  if (messages.no() != 0) std::abort();
}

void print(Workload& workload, int rows) {
  const std::unique_ptr<Invoice> invoice = workload.makeInvoice(rows);
  CALLGRIND_TOGGLE_COLLECT;
  const FX::FXString text = workload.plugins().toString(Workload::itemOf(*invoice));
  CALLGRIND_TOGGLE_COLLECT;
  if (text.empty()) std::abort();
}

void printPerItem(Workload& workload, int rows) {
  const std::unique_ptr<Invoice> invoice = workload.makePerItemInvoice(rows * Workload::kCellsInARow);
  CALLGRIND_TOGGLE_COLLECT;
  const FX::FXString text = workload.plugins().toString(Workload::itemOf(*invoice));
  CALLGRIND_TOGGLE_COLLECT;
  if (text.empty()) std::abort();
}

void exportXml(Workload& workload, int rows) {
  const std::unique_ptr<Invoice> invoice = workload.makeInvoice(rows);
  CALLGRIND_TOGGLE_COLLECT;
  {
    XMLBuilder::Document document("invoice");
    workload.plugins().toXml(Workload::itemOf(*invoice), document.getRoot());
    if (document.toText().empty()) std::abort();
  }
  CALLGRIND_TOGGLE_COLLECT;
}

void copy(Workload& workload, int rows) {
  const std::unique_ptr<Invoice> invoice = workload.load(workload.saveInvoice(rows));
  CALLGRIND_TOGGLE_COLLECT;
  {
    const std::unique_ptr<InvoiceItem> copied(Workload::itemOf(*invoice)->copy());
    Brontel::Plugin::ItemData::ItemDataList::of(copied.get())->settle();
  }
  CALLGRIND_TOGGLE_COLLECT;
}

/// The dialog on a list of that many rows, in a window of its own on the display.
struct Opened {
  Opened(Workload& workload, int rows)
      : owner(new FX::FXMainWindow(FX::FXApp::instance(), "probe")), invoice(workload.makeInvoice(rows)) {
    owner->getApp()->create();
    CALLGRIND_TOGGLE_COLLECT;
    dialog = std::make_unique<ItemDataDialog>(owner, Workload::itemOf(*invoice));
    dialog->create();
    CALLGRIND_TOGGLE_COLLECT;
  }

  Opened(const Opened&) = delete;
  Opened& operator=(const Opened&) = delete;

  static ItemDataTable* tableIn(FX::FXWindow* window) {
    if (auto* table = dynamic_cast<ItemDataTable*>(window)) return table;
    for (FX::FXWindow* child = window->getFirst(); child != nullptr; child = child->getNext()) {
      if (ItemDataTable* table = tableIn(child)) return table;
    }
    return nullptr;
  }

  void send(FX::FXSelector message) {
    CALLGRIND_ZERO_STATS;
    CALLGRIND_TOGGLE_COLLECT;
    tableIn(dialog.get())->handle(nullptr, FXSEL(FX::SEL_COMMAND, message), nullptr);
    CALLGRIND_TOGGLE_COLLECT;
  }

  FX::FXMainWindow* owner;
  std::unique_ptr<Invoice> invoice;
  std::unique_ptr<ItemDataDialog> dialog;
};

void dialogOpen(Workload& workload, int rows) {
  const Opened opened(workload, rows);
}

void dialogAdd(Workload& workload, int rows) {
  Opened(workload, rows).send(ItemDataTable::ID_ADD_ROW);
}

void dialogDelete(Workload& workload, int rows) {
  Opened(workload, rows).send(ItemDataTable::ID_DELETE_ROW);
}

struct Step {
  const char* name;
  void (*run)(Workload&, int);
  bool needsDisplay = false;
};

constexpr Step kSteps[] = {{"load", load},
                           {"first-save", firstSave},
                           {"save-again", saveAgain},
                           {"delete", removeRows},
                           {"check", check},
                           {"print", print},
                           {"print-per-item", printPerItem},
                           {"export", exportXml},
                           {"copy", copy},
                           {"dialog-open", dialogOpen, true},
                           {"dialog-add", dialogAdd, true},
                           {"dialog-delete", dialogDelete, true}};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  for (const Step& step : kSteps) {
    if (std::string(step.name) != argv[1]) continue;
    Brontel::Morvane app;
    if (step.needsDisplay) app.init(argc, argv);
    Workload workload(app);
    step.run(workload, static_cast<int>(std::strtol(argv[2], nullptr, 10)));
    return 0;
  }
  std::cerr << "no such step: " << argv[1] << '\n';
  return 2;
}
