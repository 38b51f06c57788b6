// Keys of deleted rows are given out again. A save must never take another item's rows for its own.

#include <gtest/gtest.h>

#include "host/database/StatementObserver.h"
#include "tests/plugin/PluginWorld.h"

using Brontel::Invoice;
using Brontel::InvoiceItem;
using Result = PluginWorld::Result;
using Texts = std::vector<std::string>;

namespace {

/// Lets everything happen but the commit.
class CommitRefuser : public Brontel::Database::StatementObserver {
 public:
  bool beforeRun(const FX::FXString& sql, const Brontel::Database::BoundValues&) override { return sql != "commit"; }
};

class SharedKeysTest : public testing::Test {
 protected:
  std::unique_ptr<Invoice> newSofa(const char* note, const std::vector<std::vector<const char*>>& rows) {
    std::unique_ptr<Invoice> invoice = newInvoice();
    world_.addSofa(*invoice, "2", note, rows);
    return invoice;
  }
  void save(Invoice& invoice) { EXPECT_EQ(world_.repository().save(invoice), Result::Done); }
  void saveInVain(Invoice& invoice) {
    CommitRefuser refuser;
    world_->setObserver(&refuser);
    EXPECT_EQ(world_.repository().save(invoice), Result::Failed);
    world_->setObserver(nullptr);
  }
  Texts keysOf(const Invoice& invoice) { return column("t_invoiceitemdata_id", invoice); }
  Texts valuesOf(const Invoice& invoice) { return column("value", invoice); }
  Texts keysInMemory(const Invoice& invoice) {
    Texts keys;
    for (const std::string& text : cells(invoice.getItems()[0], true)) {
      keys.push_back(text.substr(text.find("pk=") + 3));
    }
    return keys;
  }

 private:
  Texts column(const std::string& name, const Invoice& invoice) {
    Texts values;
    for (const auto& row :
         world_.database().rows("select " + name + " from t_invoiceitemdata where t_invoiceitem_1=" +
                                std::to_string(invoice.getItems()[0]->getId()) + " order by t_invoiceitemdata_id")) {
      values.push_back(row[0]);
    }
    return values;
  }

 protected:
  /// With the handle's operations within reach.
  struct World : PluginWorld {
    MorvaneDatabase* operator->() { return &handle(); }
  };
  World world_;
};

}  // namespace

TEST_F(SharedKeysTest, aDeletedRowsCellsDoNotDeleteWhatGotTheirKeys) {
  const std::unique_ptr<Invoice> first = newSofa("A", {{"1", "S1", "kék"}, {"1", "S2", "kék"}});
  save(*first);
  dataOf(first->getItems()[0])->markRowForDelete(2);
  save(*first);
  const std::unique_ptr<Invoice> second = newSofa("B", {{"2", "T1", "piros"}});
  save(*second);
  // The second got the keys of the first one's deleted row.
  EXPECT_EQ(keysOf(*second), (Texts{"5", "6", "7", "8"}));
  for (int i = 0; i < 2; ++i) {
    save(*first);
    EXPECT_EQ(valuesOf(*second), (Texts{"B", "2", "T1", "piros"}));
    EXPECT_EQ(valuesOf(*first), (Texts{"A", "1", "S1", "kék"}));
  }
}

TEST_F(SharedKeysTest, aReAddedRowDoesNotTakeWhatAnotherItemGot) {
  const std::unique_ptr<Invoice> first = newSofa("A", {{"1", "S1", "kék"}, {"1", "S2", "kék"}});
  save(*first);
  dataOf(first->getItems()[0])->markRowForDelete(2);
  save(*first);
  const std::unique_ptr<Invoice> second = newSofa("B", {{"2", "T1", "piros"}});
  save(*second);
  addRow(first->getItems()[0], {"1", "S3", "piros"});
  save(*first);
  save(*first);
  EXPECT_EQ(valuesOf(*second), (Texts{"B", "2", "T1", "piros"}));
  EXPECT_EQ(valuesOf(*first), (Texts{"A", "1", "S1", "kék", "1", "S3", "piros"}));
}

TEST_F(SharedKeysTest, aRolledBackFirstSaveLeavesNoClaimOnItsKeys) {
  const std::unique_ptr<Invoice> first = newSofa("A", {{"2", "S1", "kék"}});
  saveInVain(*first);
  const std::unique_ptr<Invoice> second = newSofa("B", {{"2", "T1", "piros"}});
  save(*second);
  save(*first);
  EXPECT_EQ(valuesOf(*second), (Texts{"B", "2", "T1", "piros"}));
  EXPECT_EQ(valuesOf(*first), (Texts{"A", "2", "S1", "kék"}));
  EXPECT_EQ(keysInMemory(*first), keysOf(*first));
}

TEST_F(SharedKeysTest, aRolledBackLaterSaveLeavesNoClaimOnItsKeys) {
  const std::unique_ptr<Invoice> first = newSofa("A", {{"1", "S1", "kék"}});
  save(*first);
  addRow(first->getItems()[0], {"1", "S2", "kék"});
  saveInVain(*first);
  EXPECT_EQ(keysOf(*first), (Texts{"1", "2", "3", "4"}));
  const std::unique_ptr<Invoice> second = newSofa("B", {{"2", "T1", "piros"}});
  save(*second);
  save(*first);
  save(*first);
  EXPECT_EQ(valuesOf(*second), (Texts{"B", "2", "T1", "piros"}));
  EXPECT_EQ(valuesOf(*first), (Texts{"A", "1", "S1", "kék", "1", "S2", "kék"}));
  EXPECT_EQ(keysInMemory(*first), keysOf(*first));
}

TEST_F(SharedKeysTest, aRolledBackDeletionIsRepeated) {
  const std::unique_ptr<Invoice> invoice = newSofa("A", {{"1", "S1", "kék"}, {"1", "S2", "kék"}});
  save(*invoice);
  dataOf(invoice->getItems()[0])->markRowForDelete(1);
  saveInVain(*invoice);
  EXPECT_EQ(keysOf(*invoice).size(), 7u);
  save(*invoice);
  EXPECT_EQ(valuesOf(*invoice), (Texts{"A", "1", "S2", "kék"}));
}

TEST_F(SharedKeysTest, keysThatCannotBeReadStayAsTheyAre) {
  const std::unique_ptr<Invoice> invoice = newSofa("A", {{"1", "S1", "kék"}, {"1", "S2", "kék"}});
  save(*invoice);
  dataOf(invoice->getItems()[0])->markRowForDelete(2);
  const Texts before = cells(invoice->getItems()[0], true);
  MorvaneDatabase closed;
  world_.app().setDB(&closed);
  world_.plugins().save(invoice->getItems()[0]);
  world_.app().setDB(&world_.handle());
  EXPECT_EQ(cells(invoice->getItems()[0], true), before);
  save(*invoice);
  EXPECT_EQ(valuesOf(*invoice), (Texts{"A", "1", "S1", "kék"}));
}

TEST_F(SharedKeysTest, aQuantityOfNoneDoesNotHoldARowThatCouldNotBeDeleted) {
  /// Refuses the first deletion only.
  struct : Brontel::Database::StatementObserver {
    bool beforeRun(const FX::FXString& sql, const Brontel::Database::BoundValues&) override {
      return sql.find("delete") != 0 || ++deletions > 1;
    }
    int deletions = 0;
  } refuser;
  const std::unique_ptr<Invoice> invoice = newSofa("A", {{"1", "S1", "kék"}, {"1", "S2", "kék"}});
  save(*invoice);
  InvoiceItem* item = invoice->getItems()[0];
  dataOf(item)->markRowForDelete(2);
  addRow(item, {"0", "S3", "piros"});
  world_->setObserver(&refuser);
  EXPECT_EQ(world_.repository().save(*invoice), Result::Failed);
  world_->setObserver(nullptr);
  save(*invoice);
  EXPECT_EQ(valuesOf(*invoice), (Texts{"A", "1", "S1", "kék", "S3", "piros"}));
}
