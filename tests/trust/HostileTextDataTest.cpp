// Texts that were meant to be taken for something else.

#include "tests/support/MessageCatalog.h"
#include "tests/trust/HostileTest.h"

namespace {

/// Sets every text of goods, variables, invoices and cells.
class HostileTextDataTest : public HostileTest {
 protected:
  // text is an SQL expression.
  void setAllTexts(const std::string& text) const {
    spoil("update t_itemvariable set name=" + text + ", vvalue=" + text + " where t_itemvariable_id>0; " +
          "update t_product set code=" + text + ", name=" + text + ", unit=" + text +
          "; update t_invoice set number=" + text + "||t_invoice_id, partner=" + text + ", date=" + text +
          "; update t_invoiceitem set name=" + text + ", unit=" + text + ", price=" + text +
          "; update t_invoiceitemdata set value=" + text + " where t_itemvariable_1>0");
  }

  void expectHarmless(const std::string& text, const Environment& environment = {}) const {
    SCOPED_TRACE(text.substr(0, 200));
    setAllTexts(text);
    expectSavesKeepAllData();
    expectAllCommandsSurvive(environment);
    ASSERT_EQ(std::remove(database.c_str()), 0);
    ASSERT_EQ(std::remove(directory.path("copy.db").c_str()), 0);
  }
};

}  // namespace

TEST_F(HostileTextDataTest, FormatStrings) {
  expectHarmless("'%s%n%d%1$n%5000000d%*.*f%'");
}

TEST_F(HostileTextDataTest, Sql) {
  expectHarmless("'''; drop table t_invoice; -- \" %id %row %t_invoiceitem_1 ?1 :a @b $c'");
}

TEST_F(HostileTextDataTest, XmllintSeesWhatIsNotWellFormed) {
  EXPECT_EQ(complaintOfXmllint("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a b=\"ő&lt;\">&#10;</a>\n"), "");
  for (const char* wrong :
       {"", "<a>", "<a>&#1;</a>", "<a>\x01</a>", "<a>\xff</a>", "<a b=\"<\"/>", "<a/><b/>", "<a>&n;</a>"}) {
    EXPECT_NE(complaintOfXmllint(wrong), "") << wrong;
  }
}

TEST_F(HostileTextDataTest, Xml) {
  expectHarmless("'<a b=\"c\">&amp;&#0;]]><!-- --><?x?></invoice>'");
}

TEST_F(HostileTextDataTest, ControlCharacters) {
  expectHarmless("cast(x'0102030405060708090a0b0c0d0e0f101112131415161718191a1b1c1d1e1f7f' as text)");
}

TEST_F(HostileTextDataTest, InvalidUtf8) {
  expectHarmless("cast(x'41ffc328e28228f0288cbcedA080c0af80fe' as text)");
}

TEST_F(HostileTextDataTest, NoncharactersAndOthersThatXmlForbids) {
  expectHarmless("cast(x'efbfbeefbfbff48fbfbff09f98800ae280a8' as text)");
}

TEST_F(HostileTextDataTest, AMillionCharacters) {
  // In a few places: a hundred times as much makes a test of patience.
  spoil(
      "create table long (text); insert into long values (replace(hex(zeroblob(500000)), '0', 'ő')); "
      "update t_itemvariable set name=(select text from long) where t_itemvariable_id=1; "
      "update t_product set name=(select text from long) where t_product_id=1; "
      "update t_invoice set partner=(select text from long) where t_invoice_id=1; "
      "update t_invoiceitem set name=(select text from long) where t_invoiceitem_id=1; "
      "update t_invoiceitemdata set value=(select text from long) where t_invoiceitemdata_id=2; drop table long");
  expectSavesKeepAllData();
  expectAllCommandsSurvive();
}

TEST_F(HostileTextDataTest, AHundredThousandChoices) {
  expectHarmless("replace(hex(zeroblob(50000)), '0', 'a,')");
}

TEST_F(HostileTextDataTest, TranslationsFullOfFormatStrings) {
  const char* const nasty = "%s%s%s%s%n%n%d%5000000d%1$n%*c'; drop table t_invoice; --";
  MessageCatalog catalog;
  for (const char* text : {"A(z) %d. tételhez rögzíteni kell néhány egyéb adatot!\nMező neve:%s",
                           "A(z) %d. tételhez lehet rögzíteni néhány egyéb adatot!\nMező neve:%s",
                           "Egyéb tételadatok: Az összmennyiség (%s) több, mint a tétellistában megadott (%s).",
                           "Egyéb tételadatok: Az összmennyiség (%s) kevesebb, mint a tétellistában megadott (%s).",
                           "Mennyiség", "Nincs ilyen számla: %s. A számlákat ez sorolja fel: brontel-host list",
                           "Egyéb tételadatok", "A számla lezárt vagy stornózott, ezért csak olvasható: %s."}) {
    catalog.add(text, nasty);
  }
  const std::string folder = directory.path("locales");
  ASSERT_TRUE(catalog.install(folder, "xx", "brontel-host"));
  ASSERT_TRUE(catalog.install(folder, "xx", "BrontelPluginItemData"));
  const Environment speaking = {{"BRONTEL_LOCALE_PATH", folder}, {"LANGUAGE", "xx"}, {"LC_ALL", "C.UTF-8"}};
  makeSample();
  const ProgramRun check = run({"check", "2"}, speaking);
  EXPECT_EQ(check.exitCode, 1);
  EXPECT_NE(check.output.find("%n%n%d%5000000d%1$n%*c"), std::string::npos) << check.output;
  expectHarmless("'%s%n'", speaking);
}
