#include "tests/trust/FaultWorld.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "tests/support/FileConnection.h"

using Brontel::Invoice;
using Brontel::InvoiceItem;

FaultWorld::FaultWorld(Journal journal) : journal_(journal) {
  storeInvoices();
  pristine_ = world_.database().directory().path("pristine.db");
  handle().close();
  std::filesystem::copy_file(path(), pristine_);
  restore();
}

void FaultWorld::storeInvoices() {
  const std::unique_ptr<Invoice> stored = newInvoice();
  world_.addSofa(*stored, "6", "A", {{"3", "S1", "kék"}, {"2", "S2", "piros"}, {"1", "S3", "kék"}});
  world_.addSofa(*stored, "2", "B", {{"1", "T1", "kék"}, {"1", "T2", "kék"}});
  InvoiceItem* assembly = world_.addItem(*stored, Brontel::GOODS_SERVICE, SampleGoods::ASSEMBLY, "1");
  type(assembly, SampleGoods::DATE, 0, "2024.01.31");
  world_.addItem(*stored, Brontel::GOODS_PRODUCT, SampleGoods::NAIL, "100");
  EXPECT_EQ(world_.repository().save(*stored), PluginWorld::Result::Done);
  storedInvoice_ = stored->getId();
  const std::unique_ptr<Invoice> other = newInvoice();
  world_.addSofa(*other, "1", "C", {{"1", "U1", "piros"}});
  EXPECT_EQ(world_.repository().save(*other), PluginWorld::Result::Done);
}

void FaultWorld::restore() {
  invoice.reset();
  handle().close();
  for (const char* companion : {"-wal", "-shm", "-journal"}) std::filesystem::remove(path() + companion);
  std::filesystem::copy_file(pristine_, path(), std::filesystem::copy_options::overwrite_existing);
  EXPECT_TRUE(reopen());
}

bool FaultWorld::reopen() {
  if (!handle().open(path().c_str(), MorvaneDatabase::OpenMode::Existing)) return false;
  if (journal_ == Journal::WriteAhead && !handle().useWriteAheadJournal()) return false;
  return handle().setForeignKeys(true);
}

std::string FaultWorld::damage() {
  FileConnection connection(path());
  std::string damage;
  for (const auto& row : connection.rows("pragma integrity_check")) {
    if (row[0] != "ok") damage += row[0] + "\n";
  }
  for (const auto& row : connection.rows("pragma foreign_key_check")) damage += "dangling in " + row[0] + "\n";
  return damage;
}

std::vector<std::string> cellsOf(const Invoice& invoice) {
  std::vector<std::string> all;
  for (FX::FXint i = 0; i < invoice.getItems().no(); ++i) {
    for (const std::string& text : cells(invoice.getItems()[i])) all.push_back(std::to_string(i) + ": " + text);
  }
  return all;
}
