// Work grows with the number of cells and no faster: so many statements are run, and each finds its row by an index.

#include "host/database/Transaction.h"
#include "itemdata/Codes.h"
#include "itemdata/EntrySelect.h"
#include "itemdata/ListSelect.h"
#include "tests/itemdata/LifeCycleFixture.h"
#include "tests/support/RecordingObserver.h"

using namespace Brontel;
using namespace Brontel::Plugin::ItemData;

namespace {

constexpr size_t kCellsInARow = 3;

class GrowthTest : public LifeCycleFixture {
 protected:
  std::unique_ptr<Invoice> invoiceOf(int rows) {
    std::unique_ptr<Invoice> invoice = newInvoice(std::to_string(rows));
    setCell(listOf(*invoice), 11, 0, "M");
    for (int row = 1; row <= rows; ++row) addRow(*invoice, "1", "S" + std::to_string(row), "kék");
    return invoice;
  }

  /// What the engine plans to do for a statement, whose parameters stand for any value.
  std::string planOf(std::string sql) {
    for (size_t at = sql.find('%'); at != std::string::npos; at = sql.find('%', at)) sql[at] = ':';
    std::string plan;
    for (const auto& row : database.rows("explain query plan " + sql)) plan += row[3] + "\n";
    return plan;
  }
};

}  // namespace

TEST_F(GrowthTest, eachCellIsReadOnceAndWrittenOnce) {
  for (const int rows : {1, 10, 100}) {
    const auto invoice = invoiceOf(rows);
    save(*invoice);
    const size_t cells = 1 + kCellsInARow * static_cast<size_t>(rows);
    InvoiceItem& item = itemOf(*invoice);
    for (int repetition = 0; repetition < 2; ++repetition) {
      const Database::Transaction transaction(database.handle());
      RecordingObserver recorder(database.handle());
      registry.save(&item);
      EXPECT_EQ(recorder.records().size(), cells + 2) << rows;
      EXPECT_EQ(recorder.count("update"), static_cast<int>(cells));
    }
    Invoice other;
    other.setTypeCode(101);
    auto* loaded = new InvoiceItem;
    other.appendItem(loaded);
    loaded->setId(item.getId());
    loaded->setGoods(GOODS_PRODUCT, 100);
    RecordingObserver recorder(database.handle());
    registry.load(loaded);
    EXPECT_EQ(recorder.records().size(), cells + 2) << rows;
  }
}

TEST_F(GrowthTest, aNewItemIsInsertedCellByCell) {
  for (const int rows : {1, 10, 100}) {
    const auto invoice = invoiceOf(rows);
    invoice->setId(1000 + rows);
    database.exec("insert into t_invoice (t_invoice_id) values (" + std::to_string(1000 + rows) + ")");
    database.exec("insert into t_invoiceitem (t_invoiceitem_id, t_invoice_1) values (" + std::to_string(1000 + rows) +
                  "," + std::to_string(1000 + rows) + ")");
    itemOf(*invoice).setId(1000 + rows);
    const Database::Transaction transaction(database.handle());
    RecordingObserver recorder(database.handle());
    registry.save(&itemOf(*invoice));
    EXPECT_EQ(recorder.count("insert"), 1 + static_cast<int>(kCellsInARow) * rows);
    EXPECT_EQ(recorder.records().size(), 3 + kCellsInARow * static_cast<size_t>(rows));
  }
}

TEST_F(GrowthTest, checkingPrintingAndExportingRunNoStatements) {
  const auto invoice = invoiceOf(10);
  RecordingObserver recorder(database.handle());
  EXPECT_TRUE(problems(*invoice).empty());
  EXPECT_FALSE(printed(*invoice).empty());
  const std::unique_ptr<Invoice> copy(invoice->copy());
  EXPECT_FALSE(printed(*copy).empty());
  EXPECT_TRUE(recorder.texts().empty());
}

TEST_F(GrowthTest, everyStatementFindsItsRowsByAnIndex) {
  const std::vector<std::string> statements = {entrySelect(false, 12),
                                               entrySelect(false, VARIABLE_NONE),
                                               entrySelect(true, 12),
                                               entrySelect(true, VARIABLE_NONE),
                                               entrySelect(true, VARIABLE_QUANTITY),
                                               settingsSelect(GOODS_PRODUCT),
                                               settingsSelect(GOODS_SERVICE),
                                               settingsSelect(GOODS_SUITE),
                                               kStoredCells,
                                               kDerivedCells};
  for (const std::string& statement : statements) {
    const std::string plan = planOf(statement);
    EXPECT_NE(plan.find("SEARCH"), std::string::npos) << plan;
    for (const char* table : {"SCAN t_", "SCAN iid", "SCAN ii", "SCAN i\n"}) {
      EXPECT_EQ(plan.find(table), std::string::npos) << statement << "\n" << plan;
    }
  }
}

TEST_F(GrowthTest, aCellIsFoundByAllItsKeysAtOnce) {
  for (const bool derived : {false, true}) {
    const std::string plan = planOf(entrySelect(derived, 12));
    EXPECT_NE(plan.find("t_invoiceitem_1=? AND"), std::string::npos) << plan;
    EXPECT_NE(plan.find("t_itemvariable_1=?"), std::string::npos) << plan;
    EXPECT_NE(plan.find("row=?"), std::string::npos) << plan;
  }
}
