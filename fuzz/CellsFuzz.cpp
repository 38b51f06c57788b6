// Stored cells of any kind through load, check, print, export and save.

#include <string>

#include <libxml/parser.h>

#include "fuzz/CellsWorld.h"
#include "fuzz/FuzzInput.h"
#include "host/entity/Invoice.h"
#include "host/message/ListOfMessage.h"
#include "host/xml/Document.h"
#include "host/xml/Element.h"

using Brontel::Invoice;
using Result = Brontel::InvoiceRepository::Result;

namespace {

constexpr const char* kTypes[] = {"1", "2", "3", "1", "-1", "4", "0", "x"};
constexpr const char* kRows[] = {"0",  "1",          "2",          "3",           "1", "2",
                                 "-1", "2147483647", "2147483648", "-2147483649", "x", ""};
constexpr const char* kVariables[] = {"-1", "1", "2", "3", "4", "-1", "2", "99"};

// A line each: choices and name of a variable, or variable, row and value of a cell.
void fill(CellsWorld& world, FuzzInput& input) {
  const int type = input.below(4) == 0 ? 201 : 101;
  world.clear(type, input.until('\n'));
  const int variables = input.below(4);
  for (int id = 1; id <= variables; ++id) {
    const char* kind = kTypes[input.below(8)];
    const int process = input.below(2);
    const std::string name = input.until('\n');
    world.addVariable(id, kind, process, name, input.until('\n'));
  }
  for (int cells = 0; !input.empty() && cells < 40; ++cells) {
    const char* variable = kVariables[input.below(8)];
    const char* row = kRows[input.below(12)];
    world.addCell(variable, row, input.until('\n'));
  }
}

void check(CellsWorld& world, Invoice& invoice) {
  Brontel::ListOfMessage messages;
  world.plugins().checkInvoice(nullptr, &invoice, messages, "F");
  for (FX::FXint i = 0; i < messages.no(); ++i) {
    require(!messages[i]->getText().empty(), "a message with a text");
    delete messages[i];
  }
}

void exportXml(CellsWorld& world, Invoice& invoice) {
  XMLBuilder::Document document("invoice");
  for (FX::FXint i = 0; i < invoice.getItems().no(); ++i) {
    world.plugins().toXml(invoice.getItems()[i], document.getRoot());
  }
  const FX::FXString text = document.toText();
  xmlDoc* parsed = xmlReadMemory(text.text(), text.length(), nullptr, nullptr, XML_PARSE_NONET | XML_PARSE_HUGE);
  require(parsed != nullptr, "well-formed XML");
  xmlFreeDoc(parsed);
}

std::string print(CellsWorld& world, Invoice& invoice) {
  return world.plugins().toString(invoice.getItems()[0]).text();
}

std::unique_ptr<Invoice> load(CellsWorld& world) {
  Result result = Result::Failed;
  std::unique_ptr<Invoice> invoice = world.repository().load(CellsWorld::kInvoice, result);
  require(result == Result::Done && invoice->getItems().no() == 1, "an invoice that loads");
  return invoice;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
  static CellsWorld world;
  FuzzInput input(data, size);
  fill(world, input);
  const std::string before = world.stored();
  const std::unique_ptr<Invoice> invoice = load(world);
  const std::string printed = print(world, *invoice);
  check(world, *invoice);
  exportXml(world, *invoice);
  require(world.stored() == before, "looking changes nothing");
  const Result saved = world.repository().save(*invoice);
  if (saved == Result::Failed) {
    // What no cell can hold is told and left alone.
    require(world.database().getLastError().kind == Brontel::Database::ErrorKind::Damaged, "a reason not to save");
    require(world.stored() == before, "a refused save changes nothing");
    return 0;
  }
  require(saved == Result::Done, "a save");
  const std::string once = world.stored();
  require(world.repository().save(*invoice) == Result::Done, "a second save");
  require(world.stored() == once, "saving twice is saving once");
  const std::unique_ptr<Invoice> again = load(world);
  require(print(world, *again) == printed, "the same text after saving");
  return 0;
}
