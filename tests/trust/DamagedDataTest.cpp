// Data as only damage, other programs or malice leave it.

#include "tests/trust/HostileTest.h"

namespace {

using DamagedDataTest = HostileTest;

}  // namespace

TEST_F(DamagedDataTest, ValuesOfOtherTypes) {
  spoil(
      "update t_invoiceitemdata set value=x'00ff4100' where t_invoiceitemdata_id%5=0; "
      "update t_invoiceitemdata set value=12.5 where t_invoiceitemdata_id%5=1; "
      "update t_invoice set date=20250303, partner=x'ff'; update t_invoiceitem set price=1e300, quantity=2.5");
  expectSavesKeepAllData();
  expectAllCommandsSurvive();
}

TEST_F(DamagedDataTest, TextsWhereNumbersShouldBe) {
  spoil(
      "update t_invoiceitemdata set row='abc' where t_invoiceitemdata_id%5=0; "
      "update t_itemvariable set type='one', process='yes', mandatory='no' where t_itemvariable_id%2=0; "
      "update t_productitemdata set position='first', direction='out' where t_productitemdata_id%3=0; "
      "update t_invoiceitem set goods='x', goodskind='y' where t_invoiceitem_id%4=0; "
      "update t_invoice set version='v', t_invoicetype_1='t' where t_invoice_id=2");
  expectSavesKeepAllData();
  expectAllCommandsSurvive();
}

TEST_F(DamagedDataTest, NullsInEveryColumn) {
  spoil(
      "update t_itemvariable set name=null, type=null, process=null, mandatory=null, vvalue=null "
      "where t_itemvariable_id%2=0; update t_productitemdata set position=null, direction=null "
      "where t_productitemdata_id%3=0; update t_invoice set number=null, partner=null, date=null, version=null, "
      "t_invoicetype_1=null; update t_invoiceitem set name=null, quantity=null, unit=null, price=null, goods=null, "
      "goodskind=null, position=null where t_invoiceitem_id%2=0; "
      "update t_invoiceitemdata set value=null, row=null where t_invoiceitemdata_id%3=0");
  expectAllCommandsSurvive();
}

TEST_F(DamagedDataTest, KeysThatPointNowhere) {
  spoil(
      "delete from t_itemvariable where t_itemvariable_id>0 and t_itemvariable_id%2=0; delete from t_product where "
      "t_product_id%2=0; update t_invoice set t_invoice_1=777 where t_invoice_id=5; "
      "update t_invoiceitem set t_invoiceitem_1=888 where t_invoice_1=5; "
      "insert into t_invoiceitem (t_invoice_1, name) values (999, 'lost')");
  expectSavesKeepAllData();
  expectAllCommandsSurvive();
}

TEST_F(DamagedDataTest, EveryCellTwice) {
  spoil(
      "insert into t_invoiceitemdata (t_itemvariable_1, t_invoiceitem_1, row, value) "
      "select t_itemvariable_1, t_invoiceitem_1, row, value || '?' from t_invoiceitemdata");
  expectSavesKeepAllData();
  expectAllCommandsSurvive();
}

TEST_F(DamagedDataTest, UnknownCodes) {
  spoil(
      "update t_itemvariable set type=case t_itemvariable_id%5 when 0 then 77 when 1 then -5 when 2 then 0 "
      "when 3 then 2147483648 else 9223372036854775807 end where t_itemvariable_id>0; "
      "update t_invoice set t_invoicetype_1=-2147483648 where t_invoice_id=1; "
      "update t_invoice set t_invoicestatus_1=7 where t_invoice_id=2; update t_invoiceitem set goodskind=99 "
      "where t_invoiceitem_id%2=0");
  expectSavesKeepAllData();
  expectAllCommandsSurvive();
}

TEST_F(DamagedDataTest, NegativeAndHugeRows) {
  spoil(
      "update t_invoiceitemdata set row=case t_invoiceitemdata_id%6 when 0 then -1 when 1 then -2147483648 "
      "when 2 then 2147483647 when 3 then 9999999999 when 4 then -9223372036854775808 else 1000000 end where row>0");
  expectSavesKeepAllData();
  expectAllCommandsSurvive();
}

TEST_F(DamagedDataTest, KeysBeyondWhatFitsAnInteger) {
  spoil(
      "insert into t_invoiceitemdata (t_invoiceitemdata_id, t_itemvariable_1, t_invoiceitem_1, row, value) "
      "values (9999999999, 1, 1, 50, 'far'), (-7, 1, 1, 51, 'below'); "
      "insert into t_invoice (t_invoice_id, number) values (9999999999, 'far')");
  expectSavesKeepAllData();
  expectAllCommandsSurvive();
}

TEST_F(DamagedDataTest, QuantitiesThatAreNone) {
  for (const char* quantity : {"1e400", "-1e400", "NaN", "99999999999999999999999999", "1.2.3", "--", "-", ".", "0x10",
                               "9223372036854775807", "-9223372036854775808", "1,5", "  "}) {
    SCOPED_TRACE(quantity);
    spoil(std::string("update t_invoiceitem set quantity='") + quantity +
          "' where t_invoice_1 in (1,4); update t_invoiceitemdata set value='" + quantity +
          "' where t_itemvariable_1=-1");
    expectSavesKeepAllData();
    EXPECT_LE(run({"check", "1"}).exitCode, 1);
    EXPECT_EQ(run({"print", "1"}).exitCode, 0);
    EXPECT_EQ(run({"export", "1"}).exitCode, 0);
    EXPECT_EQ(run({"derive", "4"}).exitCode, 0);
    ASSERT_EQ(std::remove(database.c_str()), 0);
  }
}

TEST_F(DamagedDataTest, TablesWithOtherColumns) {
  spoil(
      "alter table t_invoiceitemdata add column extra text default 'x'; alter table t_itemvariable add column more; "
      "alter table t_invoice add column \"a\"\"b; drop\" text; create table t_other (t_invoiceitem_1, "
      "t_itemvariable_1)");
  expectSavesKeepAllData();
  expectAllCommandsSurvive();
}

TEST_F(DamagedDataTest, TablesWithoutSomeColumns) {
  for (const char* damage :
       {"alter table t_invoiceitemdata drop column value", "alter table t_itemvariable drop column vvalue",
        "alter table t_itemvariable drop column type", "drop table t_productitemdata",
        "drop table t_invoiceitemdata"}) {
    SCOPED_TRACE(damage);
    spoil(damage);
    // The plug-in adds what its tables lack whenever it starts.
    EXPECT_LE(run({"check", "1"}).exitCode, 1);
    expectAllCommandsSurvive();
    ASSERT_EQ(std::remove(database.c_str()), 0);
    ASSERT_EQ(std::remove(directory.path("copy.db").c_str()), 0);
  }
}

TEST_F(DamagedDataTest, TriggersThatRefuseOrRollBack) {
  for (const char* action : {"abort", "fail", "rollback"}) {
    SCOPED_TRACE(action);
    spoil(std::string("create trigger nasty before update on t_invoiceitemdata begin select raise(") + action +
          ", '%s%n no'); end");
    const std::string before = content();
    for (const char* invoice : {"1", "2", "5"}) {
      const ProgramRun run = this->run({"save", invoice});
      EXPECT_EQ(run.exitCode, 2);
      EXPECT_NE(run.errors.find("%s%n no"), std::string::npos) << run.errors;
    }
    EXPECT_TRUE(content() == before);
    ASSERT_EQ(std::remove(database.c_str()), 0);
  }
}

TEST_F(DamagedDataTest, TriggersThatSwallowWhatIsSaved) {
  spoil(
      "create trigger swallow before insert on t_invoiceitemdata begin select raise(ignore); end; "
      "create trigger meddle after update on t_invoice begin update t_invoice set partner='?' "
      "where t_invoice_id=new.t_invoice_id+100; end");
  // A copy without its recorded data must not pass for a copy.
  const ProgramRun run = this->run({"copy", "1"});
  EXPECT_EQ(run.exitCode, 2) << run.output;
  EXPECT_EQ(text("select count(*) from t_invoice"), "5");
  expectAllCommandsSurvive();
}

TEST_F(DamagedDataTest, ViewsInPlaceOfTables) {
  for (const char* table : {"t_invoiceitemdata", "t_itemvariable", "t_productitemdata", "t_product", "t_invoiceitem"}) {
    SCOPED_TRACE(table);
    const std::string name = table;
    spoil("pragma legacy_alter_table=on; alter table " + name + " rename to real_one; create view " + name +
          " as select * from real_one");
    expectAllCommandsSurvive();
    ASSERT_EQ(std::remove(database.c_str()), 0);
    std::remove(directory.path("copy.db").c_str());
  }
}
