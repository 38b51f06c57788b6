#include "tests/app/AppTest.h"
#include "tests/support/TestDatabase.h"

namespace {

class StatusTest : public AppTest {
 protected:
  void SetUp() override { makeSample(); }

  std::string status(int invoice) const {
    return text("select t_invoicestatus_1 from t_invoice where t_invoice_id=" + std::to_string(invoice));
  }
};

using CloseTest = StatusTest;
using StornoTest = StatusTest;

}  // namespace

TEST_F(CloseTest, AnInvoiceThatPassesTheCheckIsClosed) {
  const std::string before = TestDatabase::dumpOf(database);
  EXPECT_EQ(output({"close", "1"}), "");
  EXPECT_EQ(status(1), "151");
  exec("update t_invoice set t_invoicestatus_1=150, version=1 where t_invoice_id=1");
  EXPECT_EQ(TestDatabase::dumpOf(database), before) << "more than the status has changed";
}

TEST_F(CloseTest, NoticesArePrintedAndDoNotHinderIt) {
  exec("update t_invoiceitemdata set value='' where value='Kiszállás'");
  EXPECT_EQ(output({"close", "1"}),
            "0\tINVOICE_ITEMDATAWANTED\tA(z) 3. tételhez lehet rögzíteni néhány egyéb adatot!\\nMező "
            "neve:Helyszín\n");
  EXPECT_EQ(status(1), "151");
}

TEST_F(CloseTest, WhileSomethingIsWrongItStaysOpen) {
  const auto before = files();
  const std::string check = run({"check", "2"}).output;
  const ProgramRun run = this->run({"close", "2"});
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(run.output, check);
  EXPECT_TRUE(files() == before);
}

TEST_F(CloseTest, OnlyAnOpenInvoiceIsClosed) {
  expectRefused({"close", "4"}, "Ez a számla már nem nyitott, nem lehet lezárni: 4.");
  exec("update t_invoice set t_invoicestatus_1=152 where t_invoice_id=4");
  expectRefused({"close", "4"}, "Ez a számla már nem nyitott, nem lehet lezárni: 4.");
}

TEST_F(StornoTest, AClosedInvoiceBecomesStornoAndNothingElseChanges) {
  const std::string before = TestDatabase::dumpOf(database);
  EXPECT_EQ(output({"storno", "4"}), "");
  EXPECT_EQ(status(4), "152");
  exec("update t_invoice set t_invoicestatus_1=151, version=1 where t_invoice_id=4");
  EXPECT_EQ(TestDatabase::dumpOf(database), before);
}

TEST_F(StornoTest, OnlyAClosedInvoiceIsStornoed) {
  expectRefused({"storno", "1"}, "Csak lezárt számlát lehet stornózni, ez nem az: 1.");
  output({"storno", "4"});
  expectRefused({"storno", "4"}, "Csak lezárt számlát lehet stornózni, ez nem az: 4.");
}
