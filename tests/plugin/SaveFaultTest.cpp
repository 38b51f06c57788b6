// A save that fails at any statement changes nothing, and the same objects can be saved afterwards as if it had never
// happened.

#include <functional>

#include <gtest/gtest.h>

#include "tests/plugin/PluginWorld.h"
#include "tests/support/FaultObserver.h"

using Brontel::Invoice;
using Brontel::InvoiceItem;
using Result = PluginWorld::Result;
using Mode = FaultObserver::Mode;

namespace {

/// An invoice that is to be saved next.
using Scene = std::function<std::unique_ptr<Invoice>(PluginWorld&)>;

struct Outcome {
  std::string database;
  std::vector<std::string> cells;

  bool operator==(const Outcome&) const = default;
};

Outcome outcomeOf(PluginWorld& world, const Invoice& invoice) {
  Outcome outcome{world.database().dump(), {}};
  for (FX::FXint i = 0; i < invoice.getItems().no(); ++i) {
    for (const std::string& text : cells(invoice.getItems()[i], true)) {
      // What is marked and gone keeps no key worth comparing.
      if (text.find(" deleted") == std::string::npos) outcome.cells.push_back(text);
    }
  }
  return outcome;
}

void expectSame(const Outcome& actual, const Outcome& expected) {
  EXPECT_EQ(actual.database, expected.database);
  EXPECT_EQ(actual.cells, expected.cells);
}

/// Saves with a fault; true when it was met. A save that meets it fails and leaves the database as it was.
bool failingSave(PluginWorld& world, Invoice& invoice, int number, Mode mode) {
  const std::string before = world.database().dump();
  const FaultObserver fault(world.handle(), number, mode);
  const Result result = world.repository().save(invoice);
  if (fault.faults() == 0) return false;
  EXPECT_EQ(result, Result::Failed);
  EXPECT_EQ(world.database().dump(), before);
  return true;
}

Outcome outcomeWithoutFaults(const Scene& scene) {
  PluginWorld world;
  const std::unique_ptr<Invoice> invoice = scene(world);
  EXPECT_EQ(world.repository().save(*invoice), Result::Done);
  return outcomeOf(world, *invoice);
}

int statementsOf(const Scene& scene) {
  PluginWorld world;
  const std::unique_ptr<Invoice> invoice = scene(world);
  const FaultObserver counter(world.handle(), 0);
  EXPECT_EQ(world.repository().save(*invoice), Result::Done);
  return counter.count();
}

/// Saves with each of the faults in turn, and then without. A second save may need fewer statements than the first and
/// so be done before its fault.
void saveAfterFaults(const Scene& scene, const Outcome& expected, const std::vector<int>& numbers, Mode mode) {
  SCOPED_TRACE("faults at " + testing::PrintToString(numbers) + (mode == Mode::Once ? "" : " and from then on"));
  PluginWorld world;
  const std::unique_ptr<Invoice> invoice = scene(world);
  bool failed = true;
  for (size_t i = 0; i < numbers.size() && failed; ++i) {
    failed = failingSave(world, *invoice, numbers[i], mode);
    EXPECT_TRUE(failed || i > 0);
  }
  EXPECT_TRUE(!failed || world.repository().save(*invoice) == Result::Done);
  expectSame(outcomeOf(world, *invoice), expected);
  // What is stored is what comes back.
  const std::unique_ptr<Invoice> loaded = world.load(*invoice);
  ASSERT_NE(loaded, nullptr);
  EXPECT_EQ(outcomeOf(world, *loaded).cells, expected.cells);
}

void saveAfterEveryFault(const Scene& scene) {
  const Outcome expected = outcomeWithoutFaults(scene);
  const int statements = statementsOf(scene);
  ASSERT_GT(statements, 10);
  for (int number = 1; number <= statements && !testing::Test::HasFailure(); ++number) {
    saveAfterFaults(scene, expected, {number}, Mode::Once);
    saveAfterFaults(scene, expected, {number}, Mode::FromThenOn);
  }
}

/// Pairs of faults that meet every statement, in both saves.
void saveAfterTwoFaults(const Scene& scene) {
  const Outcome expected = outcomeWithoutFaults(scene);
  const int statements = statementsOf(scene);
  for (int number = 1; number <= statements && !testing::Test::HasFailure(); ++number) {
    saveAfterFaults(scene, expected, {number, number}, Mode::Once);
    saveAfterFaults(scene, expected, {number, statements + 1 - number}, Mode::Once);
  }
}

InvoiceItem* addAssembly(PluginWorld& world, Invoice& invoice, const char* date) {
  InvoiceItem* item = world.addItem(invoice, Brontel::GOODS_SERVICE, SampleGoods::ASSEMBLY, "1");
  type(item, SampleGoods::DATE, 0, date);
  return item;
}

std::unique_ptr<Invoice> firstSave(PluginWorld& world) {
  std::unique_ptr<Invoice> invoice = newInvoice();
  world.addSofa(*invoice, "5", "A", {{"3", "S1", "kék"}, {"2", "S2", "piros"}});
  world.addItem(*invoice, Brontel::GOODS_PRODUCT, SampleGoods::NAIL, "100");
  addAssembly(world, *invoice, "2024.01.31");
  return invoice;
}

/// Two sofas of several rows, a date and somebody else's invoice, all stored.
std::unique_ptr<Invoice> storedInvoice(PluginWorld& world) {
  std::unique_ptr<Invoice> invoice = newInvoice();
  world.addSofa(*invoice, "6", "A", {{"3", "S1", "kék"}, {"2", "S2", "piros"}, {"1", "S3", "kék"}});
  world.addSofa(*invoice, "2", "B", {{"1", "T1", "kék"}, {"1", "T2", "kék"}});
  addAssembly(world, *invoice, "2024.01.31");
  EXPECT_EQ(world.repository().save(*invoice), Result::Done);
  const std::unique_ptr<Invoice> other = newInvoice();
  world.addSofa(*other, "1", "C", {{"1", "U1", "piros"}});
  EXPECT_EQ(world.repository().save(*other), Result::Done);
  return invoice;
}

void editAll(PluginWorld& world, Invoice& invoice) {
  const auto& items = invoice.getItems();
  type(items[0], SampleGoods::NOTE, 0, "edited");
  type(items[0], SampleGoods::BATCH, 1, "edited");
  dataOf(items[0])->markRowForDelete(2);
  addRow(items[0], {"2", "S4", "piros"});
  dataOf(items[1])->markRowForDelete(2);
  type(items[1], SampleGoods::QUANTITY, 1, "2");
  invoice.removeItem(2);
  world.addSofa(invoice, "1", "new", {{"1", "V1", "kék"}});
}

std::unique_ptr<Invoice> editedSave(PluginWorld& world) {
  std::unique_ptr<Invoice> invoice = world.load(*storedInvoice(world));
  editAll(world, *invoice);
  return invoice;
}

/// The same without reading the invoice again after its first save.
std::unique_ptr<Invoice> secondSave(PluginWorld& world) {
  std::unique_ptr<Invoice> invoice = storedInvoice(world);
  editAll(world, *invoice);
  return invoice;
}

std::unique_ptr<Invoice> saveWithReAddedRows(PluginWorld& world) {
  std::unique_ptr<Invoice> invoice = world.load(*storedInvoice(world));
  const auto& items = invoice->getItems();
  dataOf(items[0])->markRowForDelete(3);
  dataOf(items[0])->markRowForDelete(2);
  addRow(items[0], {"3", "W1", "piros"});
  dataOf(items[1])->markRowForDelete(2);
  dataOf(items[1])->markRowForDelete(1);
  addRow(items[1], {"1", "W2", "kék"});
  addRow(items[1], {"1", "W3", "kék"});
  return invoice;
}

/// Deleted rows whose keys were the highest in the table, so that what is added gets them again.
std::unique_ptr<Invoice> saveWithReusedKeys(PluginWorld& world) {
  std::unique_ptr<Invoice> invoice = firstSave(world);
  invoice->removeItem(2);
  EXPECT_EQ(world.repository().save(*invoice), Result::Done);
  InvoiceItem* item = invoice->getItems()[0];
  dataOf(item)->markRowForDelete(2);
  dataOf(item)->markRowForDelete(1);
  addRow(item, {"4", "X1", "piros"});
  addRow(item, {"1", "X2", "kék"});
  return invoice;
}

std::unique_ptr<Invoice> saveOfACopy(PluginWorld& world) {
  return std::unique_ptr<Invoice>(world.load(*storedInvoice(world))->copy());
}

std::unique_ptr<Invoice> saveOfADerivedInvoice(PluginWorld& world) {
  const std::unique_ptr<Invoice> source = storedInvoice(world);
  EXPECT_EQ(world.repository().changeStatus(*source, Brontel::STATUS_CLOSED), Result::Done);
  std::unique_ptr<Invoice> invoice(source->derive());
  world.repository().loadPluginData(*invoice);
  type(invoice->getItems()[0], SampleGoods::QUANTITY, 1, "1.5");
  dataOf(invoice->getItems()[0])->markRowForDelete(3);
  return invoice;
}

}  // namespace

TEST(SaveFaultTest, aFirstSaveCanBeRepeatedWhicheverStatementFails) {
  saveAfterEveryFault(firstSave);
}

TEST(SaveFaultTest, aFirstSaveCanBeRepeatedAfterTwoFailures) {
  saveAfterTwoFaults(firstSave);
}

TEST(SaveFaultTest, anEditedSaveCanBeRepeatedWhicheverStatementFails) {
  saveAfterEveryFault(editedSave);
}

TEST(SaveFaultTest, anEditedSaveCanBeRepeatedAfterTwoFailures) {
  saveAfterTwoFaults(editedSave);
}

TEST(SaveFaultTest, aSecondSaveCanBeRepeatedWhicheverStatementFails) {
  saveAfterEveryFault(secondSave);
}

TEST(SaveFaultTest, aSecondSaveCanBeRepeatedAfterTwoFailures) {
  saveAfterTwoFaults(secondSave);
}

TEST(SaveFaultTest, aSaveWithReAddedRowsCanBeRepeatedWhicheverStatementFails) {
  saveAfterEveryFault(saveWithReAddedRows);
}

TEST(SaveFaultTest, aSaveWithReAddedRowsCanBeRepeatedAfterTwoFailures) {
  saveAfterTwoFaults(saveWithReAddedRows);
}

TEST(SaveFaultTest, aSaveThatReusesKeysCanBeRepeatedWhicheverStatementFails) {
  saveAfterEveryFault(saveWithReusedKeys);
}

TEST(SaveFaultTest, aSaveThatReusesKeysCanBeRepeatedAfterTwoFailures) {
  saveAfterTwoFaults(saveWithReusedKeys);
}

TEST(SaveFaultTest, aCopysSaveCanBeRepeatedWhicheverStatementFails) {
  saveAfterEveryFault(saveOfACopy);
}

TEST(SaveFaultTest, aCopysSaveCanBeRepeatedAfterTwoFailures) {
  saveAfterTwoFaults(saveOfACopy);
}

TEST(SaveFaultTest, aDerivedInvoicesSaveCanBeRepeatedWhicheverStatementFails) {
  saveAfterEveryFault(saveOfADerivedInvoice);
}

TEST(SaveFaultTest, aDerivedInvoicesSaveCanBeRepeatedAfterTwoFailures) {
  saveAfterTwoFaults(saveOfADerivedInvoice);
}
