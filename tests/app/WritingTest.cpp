#include <ctime>

#include "tests/app/AppTest.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/TestDatabase.h"

namespace {

class WritingTest : public AppTest {
 protected:
  void SetUp() override { makeSample(); }

  // Rows, variables and values of an invoice's items, in order.
  Rows cells(int invoice) const {
    return rows(
        "select position, row, t_itemvariable_1, value from t_invoiceitemdata d join t_invoiceitem i on "
        "d.t_invoiceitem_1=t_invoiceitem_id where t_invoice_1=" +
        std::to_string(invoice) + " order by position, row, t_itemvariable_1");
  }
  Rows items(int invoice) const {
    return rows("select position, name, goodskind, goods, quantity, unit, price from t_invoiceitem where t_invoice_1=" +
                std::to_string(invoice) + " order by position");
  }
  std::string contents() const { return TestDatabase::dumpOf(database); }
};

using SaveTest = WritingTest;
using DeriveTest = WritingTest;
using CopyTest = WritingTest;

std::string today() {
  const std::time_t now = std::time(nullptr);
  char text[sizeof "YYYY-MM-DD"] = "";
  EXPECT_EQ(std::strftime(text, sizeof text, "%Y-%m-%d", std::localtime(&now)), 10U);
  return text;
}

}  // namespace

TEST_F(SaveTest, LeavesEverythingButTheVersionAsItIs) {
  for (const char* invoice : {"1", "2", "5"}) {
    SCOPED_TRACE(invoice);
    const std::string where = std::string(" where t_invoice_id=") + invoice;
    const std::string before = contents();
    EXPECT_EQ(output({"save", invoice}), "");
    EXPECT_EQ(text("select version from t_invoice" + where), "2");
    exec("update t_invoice set version=1" + where);
    EXPECT_EQ(contents(), before);
  }
}

TEST_F(SaveTest, ClosedAndStornoInvoicesAreReadOnly) {
  expectRefused({"save", "3"}, "A számla lezárt vagy stornózott, ezért csak olvasható: 3.");
  exec("update t_invoice set t_invoicestatus_1=152 where t_invoice_id=4");
  expectRefused({"save", "4"}, "A számla lezárt vagy stornózott, ezért csak olvasható: 4.");
}

TEST_F(SaveTest, AFailureHalfWayChangesNothing) {
  exec(
      "create trigger refuse before update on t_invoiceitemdata when new.value='PL-004183' "
      "begin select raise(abort, 'no seals'); end");
  const std::string before = contents();
  const ProgramRun run = this->run({"save", "1"});
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_EQ(run.errors, "brontel-host: Az adatbázis nem fogadta el a módosítást, ezért nem változott: " + database +
                            " (no seals)\n");
  EXPECT_EQ(contents(), before);
}

TEST_F(SaveTest, ForeignKeysAreEnforced) {
  // An item of goods without data, so that nothing but the reference can be wrong.
  exec(
      "insert into t_invoice (t_invoice_id, number, t_invoicetype_1, t_invoicestatus_1) values (9, 'x', 101, 150); "
      "insert into t_invoiceitem (t_invoiceitem_id, t_invoice_1, name, goodskind, goods, quantity) "
      "values (90, 9, 'y', 0, 0, '1'); "
      "create trigger orphan after update on t_invoiceitem when new.t_invoiceitem_id=90 begin "
      "update t_invoiceitem set t_invoiceitem_1=12345 where t_invoiceitem_id=90; end");
  const std::string before = contents();
  const ProgramRun run = this->run({"save", "9"});
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_EQ(run.errors, "brontel-host: Az adatbázis nem fogadta el a módosítást, ezért nem változott: " + database +
                            " (FOREIGN KEY constraint failed)\n");
  EXPECT_EQ(contents(), before);
}

TEST_F(DeriveTest, MakesAnOpenInvoiceThatRefersToTheSourceItemByItem) {
  EXPECT_EQ(output({"derive", "4"}), "6\n");
  EXPECT_EQ(rows("select number, t_invoicetype_1, t_invoicestatus_1, t_invoice_1, partner, date, version from "
                 "t_invoice where t_invoice_id=6"),
            (Rows{{"K-2025/0096/J2", "101", "150", "4", "Bükkaljai Általános Iskola", today(), "1"}}));
  EXPECT_EQ(items(6), items(4));
  EXPECT_EQ(rows("select s.t_invoice_1, s.position=i.position from t_invoiceitem i join t_invoiceitem s on "
                 "s.t_invoiceitem_id=i.t_invoiceitem_1 where i.t_invoice_1=6"),
            (Rows{{"4", "1"}, {"4", "1"}, {"4", "1"}}));
  EXPECT_EQ(cells(6), cells(4));
  EXPECT_EQ(output({"check", "6"}), "");
}

TEST_F(DeriveTest, TakesOverWhatClosedInvoicesHaveLeft) {
  output({"close", "5"});
  EXPECT_EQ(output({"derive", "4"}), "6\n");
  EXPECT_EQ(output({"print", "6"}),
            "1\tFélautomata defibrillátor\t4\tdb\t489000\n"
            "    DF5-240881, 2027.08.31; DF5-240883–885, 2027.09.30\n"
            "2\tKontaktgél 250 ml\t10\tflakon\t1450\n"
            "    KG-2501/12\n"
            "3\tÉves felülvizsgálat\t2\tóra\t12500\n"
            "    Telephely\n");
  EXPECT_EQ(text("select value from t_invoiceitemdata d join t_invoiceitem on d.t_invoiceitem_1=t_invoiceitem_id where "
                 "t_invoice_1=6 and row=2 and t_itemvariable_1=-1"),
            "1");
  output({"storno", "5"});
  EXPECT_EQ(output({"derive", "4"}), "7\n");
  EXPECT_EQ(cells(7), cells(4));
}

TEST_F(DeriveTest, TheNumberIsTheFirstFreeOne) {
  exec("insert into t_invoice (number) values ('K-2025/0096/J3'), ('K-2025/0096/J10')");
  output({"derive", "4"});
  output({"derive", "4"});
  EXPECT_EQ(rows("select number from t_invoice where t_invoice_1=4 order by t_invoice_id"),
            (Rows{{"K-2025/0096/J1"}, {"K-2025/0096/J2"}, {"K-2025/0096/J4"}}));
}

TEST_F(DeriveTest, TheSourceStaysAsItIs) {
  const Rows before = cells(4);
  const std::string invoice = "select * from t_invoice where t_invoice_id=4";
  const Rows head = rows(invoice);
  output({"derive", "4"});
  EXPECT_EQ(cells(4), before);
  EXPECT_EQ(rows(invoice), head);
}

TEST_F(DeriveTest, AFailureLeavesNoHalfInvoice) {
  exec(
      "create trigger refuse before insert on t_invoiceitemdata when new.value='Telephely' "
      "begin select raise(abort, 'nowhere'); end");
  const std::string before = contents();
  const ProgramRun run = this->run({"derive", "4"});
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(run.errors, "brontel-host: Az adatbázis nem fogadta el a módosítást, ezért nem változott: " + database +
                            " (nowhere)\n");
  EXPECT_EQ(contents(), before);
}

TEST_F(CopyTest, IsAnOpenInvoiceWithTheSameDataThatRefersToNone) {
  EXPECT_EQ(output({"copy", "4"}), "6\n");
  EXPECT_EQ(rows("select number, t_invoicetype_1, t_invoicestatus_1, t_invoice_1, partner, date, version from "
                 "t_invoice where t_invoice_id=6"),
            (Rows{{"K-2025/0096/M1", "101", "150", "NULL", "Bükkaljai Általános Iskola", today(), "1"}}));
  EXPECT_EQ(items(6), items(4));
  EXPECT_EQ(cells(6), cells(4));
  EXPECT_EQ(text("select count(*) from t_invoiceitem where t_invoice_1=6 and t_invoiceitem_1 is not null"), "0");
}

TEST_F(CopyTest, EachHasANumberOfItsOwn) {
  EXPECT_EQ(output({"copy", "1"}), "6\n");
  EXPECT_EQ(output({"copy", "1"}), "7\n");
  EXPECT_EQ(output({"copy", "6"}), "8\n");
  EXPECT_EQ(rows("select number from t_invoice where t_invoice_id>5 order by t_invoice_id"),
            (Rows{{"K-2025/0117/M1"}, {"K-2025/0117/M2"}, {"K-2025/0117/M1/M1"}}));
}

TEST_F(WritingTest, AWriteThatTheSystemRefusesChangesNothing) {
  const std::string before = contents();
  // Nothing may be written behind the beginning of the file, as if the disk went no further.
  const std::string limit = "--fsize=" + std::to_string(readFile(database).size() / 4);
  Arguments all{"sh", "-c", "trap '' XFSZ; exec prlimit \"$@\"", "sh", limit};
  for (const std::string& argument : commandLine({"derive", "4"})) all.push_back(argument);
  ChildProcess child(all);
  EXPECT_EQ(child.run(), 2);
  EXPECT_EQ(child.getOutput(), "");
  EXPECT_EQ(child.getErrors(), "brontel-host: Adatbázishiba: " + database + " (disk I/O error)\n");
  EXPECT_EQ(contents(), before);
}

TEST_F(WritingTest, WithoutTheQuantityVariableNothingIsWritten) {
  exec(
      "delete from t_itemvariable where t_itemvariable_id=-1; "
      "create trigger refuse before insert on t_itemvariable begin select raise(ignore); end");
  for (const Arguments& arguments :
       {Arguments{"init"}, {"save", "1"}, {"derive", "4"}, {"copy", "1"}, {"close", "1"}}) {
    expectRefused(arguments, "Az adatbázisból hiányzik a „Mennyiség” változó (-1), ezért nem módosítható: " + database +
                                 ". Állítsa vissza egy biztonsági mentésből.");
  }
  EXPECT_NE(output({"print", "1"}), "");
}
