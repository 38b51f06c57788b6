#include "tests/app/AppTest.h"
#include "tests/xsd/ExportSchema.h"

// Exports are what the schemas say, and the schemas refuse what is not.

namespace {

class ExportSchemaTest : public AppTest {
 protected:
  using Faults = std::vector<std::string>;

  Faults faultsOf(int invoice) const { return schema.findFaults(output({"export", std::to_string(invoice)})); }

  /// Expects that an invoice of the sample is refused once a part of its export has been replaced, and only then.
  void expectRefused(const std::string& part, const std::string& replacement) const {
    std::string document = output({"export", "1"});
    ASSERT_EQ(schema.findFaults(document), Faults());
    const size_t place = document.find(part);
    ASSERT_NE(place, std::string::npos) << part;
    document.replace(place, part.size(), replacement);
    EXPECT_NE(schema.findFaults(document), Faults()) << document;
  }

  const ExportSchema schema;
};

}  // namespace

TEST_F(ExportSchemaTest, everyInvoiceOfTheSampleIsValid) {
  makeSample();
  for (int invoice = 1; invoice <= 5; ++invoice) EXPECT_EQ(faultsOf(invoice), Faults()) << invoice;
}

TEST_F(ExportSchemaTest, derivedCopiedClosedAndCancelledInvoicesAre) {
  makeSample();
  for (const AppTest::Arguments& command : {AppTest::Arguments{"derive", "4"}, AppTest::Arguments{"copy", "1"},
                                            AppTest::Arguments{"close", "1"}, AppTest::Arguments{"storno", "1"}}) {
    output(command);
  }
  for (const int invoice : {1, 6, 7}) EXPECT_EQ(faultsOf(invoice), Faults()) << invoice;
}

TEST_F(ExportSchemaTest, anInvoiceOfNothingIs) {
  output({"init"});
  exec("insert into t_invoice (number, t_invoicetype_1, t_invoicestatus_1) values ('x', 101, 150)");
  EXPECT_EQ(faultsOf(1), Faults());
  exec("insert into t_invoiceitem (t_invoice_1, position) values (1, 1)");
  EXPECT_EQ(faultsOf(1), Faults());
}

TEST_F(ExportSchemaTest, noTextMakesAnExportInvalid) {
  makeSample();
  for (const char* text :
       {"''", "' '", "'<&]]>\"'''", "'</itemdata:itemdata>'", "char(9)||'a'||char(10)||'b'||char(13)", "char(29)||'A'",
        "char(1,2,3,11,12,31,127)", "char(65534,65535)", "x'ff41fe'", "'&#0;&amp;<!-- -->'", "'őű€'||char(128512)",
        "replace(hex(zeroblob(50000)),'0','á')", "12.5", "x'00'"}) {
    SCOPED_TRACE(text);
    exec(std::string("update t_invoiceitemdata set value=") + text + "; update t_itemvariable set name=" + text +
         " where t_itemvariable_id>0; update t_invoiceitem set name=" + text + ", unit=" + text + ", price=" + text +
         "; update t_invoice set partner=" + text + ", date=" + text);
    for (int invoice = 1; invoice <= 5; ++invoice) EXPECT_EQ(faultsOf(invoice), Faults()) << invoice;
  }
}

TEST_F(ExportSchemaTest, noNumberMakesAnExportInvalid) {
  makeSample();
  for (const char* number : {"0", "-7", "2147483647", "-2147483648", "4294967297", "'abc'", "null", "1.5"}) {
    SCOPED_TRACE(number);
    exec(std::string("update t_invoiceitemdata set row=") + number + "; update t_invoiceitem set quantity=" + number +
         ", position=" + number + ", goodskind=" + number);
    for (int invoice = 1; invoice <= 5; ++invoice) EXPECT_EQ(faultsOf(invoice), Faults()) << invoice;
  }
}

TEST_F(ExportSchemaTest, aBrokenCellIsRefused) {
  makeSample();
  expectRefused(" row=\"1\"", "");
  expectRefused(" row=\"1\"", " row=\"one\"");
  expectRefused(" row=\"1\"", " row=\"\"");
  expectRefused(" row=\"1\"", " row=\"1\" column=\"1\"");
  expectRefused(" row=\"1\"", " itemdata:row=\"1\"");
  expectRefused(" name=\"Gyári szám\"", "");
  expectRefused(">DF5-240871<", "><itemdata:itemdata row=\"1\" name=\"x\"/><");
  expectRefused(">DF5-240871<", "><b>DF5-240871</b><");
  expectRefused("<itemdata:itemdata row=\"1\" name=\"Gyári szám\">DF5-240871</itemdata:itemdata>",
                "<itemdata:cell row=\"1\" name=\"Gyári szám\">DF5-240871</itemdata:cell>");
}

TEST_F(ExportSchemaTest, aBrokenListOfCellsIsRefused) {
  makeSample();
  expectRefused("<itemdata:itemdata>", "<itemdata:itemdata rows=\"2\">");
  expectRefused("<itemdata:itemdata>", "<itemdata:itemdata>text");
  expectRefused("<itemdata:itemdata>", "<itemdata:itemdata><note/>");
}

TEST_F(ExportSchemaTest, aBrokenInvoiceIsRefused) {
  makeSample();
  expectRefused(" number=\"K-2025/0117\"", "");
  expectRefused(" status=\"150\"", " status=\"open\"");
  expectRefused(" quantity=\"2\"", " quantity=\"two\"");
  expectRefused(" position=\"1\"", " position=\"0\"");
  expectRefused("<items>", "<items><items/>");
  expectRefused("<item ", "<note/><item ");
}
