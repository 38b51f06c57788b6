#include "tests/app/AppTest.h"

namespace {

using SampleDataTest = AppTest;

}  // namespace

TEST_F(SampleDataTest, VariablesCoverEveryTypeAndBothWaysOfRecording) {
  makeSample();
  EXPECT_EQ(rows("select t_itemvariable_id, name, type, process, mandatory, vvalue from t_itemvariable "
                 "where t_itemvariable_id>0 order by t_itemvariable_id"),
            (Rows{{"1", "Gyári szám", "1", "1", "1", ""},
                  {"2", "Elektróda lejárata", "2", "1", "0", ""},
                  {"3", "Gyártási tétel", "1", "0", "1", ""},
                  {"4", "Helyszín", "3", "0", "0", "Kiszállás,Telephely,Távoli"},
                  {"5", "Plomba száma", "1", "0", "0", ""}}));
}

TEST_F(SampleDataTest, GoodsOfEveryKindCarryVariables) {
  makeSample();
  EXPECT_EQ(rows("select t_product_1, t_itemvariable_1, direction, position from t_productitemdata order by 1, 3, 4"),
            (Rows{{"1", "1", "100", "1"},
                  {"1", "2", "100", "2"},
                  {"1", "1", "200", "1"},
                  {"1", "2", "200", "2"},
                  {"2", "3", "100", "1"},
                  {"2", "3", "200", "1"}}));
  EXPECT_EQ(rows("select t_service_1, t_itemvariable_1, direction from t_serviceitemdata"), (Rows{{"1", "4", "100"}}));
  EXPECT_EQ(rows("select t_suite_1, t_itemvariable_1, direction from t_suiteitemdata"), (Rows{{"1", "5", "100"}}));
}

TEST_F(SampleDataTest, EveryReferenceHasItsTarget) {
  makeSample();
  EXPECT_EQ(rows("pragma foreign_key_check"), Rows{});
  EXPECT_EQ(text("pragma integrity_check"), "ok");
  EXPECT_EQ(text("select count(*) from t_invoiceitem i where not exists (select 1 from t_product where goodskind=1 and "
                 "t_product_id=goods union all select 1 from t_service where goodskind=2 and t_service_id=goods union "
                 "all select 1 from t_suite where goodskind=3 and t_suite_id=goods)"),
            "0");
}

TEST_F(SampleDataTest, TheReturnRefersToItsSourceItemByItem) {
  makeSample();
  EXPECT_EQ(text("select t_invoice_1 from t_invoice where t_invoice_id=5"), "4");
  EXPECT_EQ(rows("select i.position, s.position, s.t_invoice_1, i.quantity, s.quantity from t_invoiceitem i join "
                 "t_invoiceitem s on s.t_invoiceitem_id=i.t_invoiceitem_1 where i.t_invoice_1=5 order by 1"),
            (Rows{{"1", "1", "4", "2", "4"}, {"2", "2", "4", "4", "10"}}));
}

TEST_F(SampleDataTest, AllInvoicesButTheFaultyOnePassTheCheck) {
  makeSample();
  for (const char* invoice : {"1", "3", "4", "5"}) {
    SCOPED_TRACE(invoice);
    EXPECT_EQ(output({"check", invoice}), "");
  }
  EXPECT_EQ(run({"check", "2"}).exitCode, 1);
}
