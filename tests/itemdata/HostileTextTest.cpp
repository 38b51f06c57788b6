// Texts that mean something to a printf, to SQL, to XML or to nobody: names and values are never more than texts.

#include <libxml/parser.h>

#include "host/xml/Document.h"
#include "itemdata/Codes.h"
#include "tests/itemdata/LifeCycleFixture.h"

using namespace Brontel;
using namespace Brontel::Plugin::ItemData;

namespace {

using Texts = std::vector<std::string>;

const Texts& hostileTexts() {
  static const Texts texts = {"%s%s%s%n%d%999999d",
                              "%row %id %value %t_invoiceitem_1",
                              "'; drop table t_invoiceitemdata; --",
                              "\"quoted\" `ticked` [bracketed]",
                              "line\nbreak\r\n\ttab",
                              "not \xff UTF-8 \xc3",
                              "\x1d"
                              "0109506000134352\x1d"
                              "10ABC",
                              "\x01\x08\x7f",
                              "<itemdata row=\"1\">&amp;]]></itemdata><!-- -->",
                              "O'Neil 5%row ő",
                              "árvíztűrő tükörfúrógép 🔩",
                              "\\0 \\n \\",
                              " leading and trailing ",
                              std::string(100000, 'x')};
  return texts;
}

class HostileTextTest : public LifeCycleFixture {
 protected:
  /// Renames a variable and gives it another parameter.
  void rename(int variable, const std::string& name, const std::string& parameter) {
    const Database::BoundValues values = {Database::BoundValue{"name", true, 0, name.c_str()},
                                          Database::BoundValue{"parameter", true, 0, parameter.c_str()},
                                          Database::BoundValue{"id", false, variable, {}}};
    EXPECT_TRUE(
        database->run("update t_itemvariable set name=%name, vvalue=%parameter where t_itemvariable_id=%id", values));
  }

  std::string exported(const Invoice& invoice) const {
    XMLBuilder::Document document("r");
    registry.toXml(&itemOf(invoice), document.getRoot());
    return document.toText().text();
  }
};

bool isWellFormed(const std::string& xml) {
  xmlDoc* document = xmlReadMemory(xml.data(), static_cast<int>(xml.size()), "export.xml", nullptr,
                                   XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_HUGE);
  xmlFreeDoc(document);
  return document != nullptr;
}

}  // namespace

TEST_F(HostileTextTest, valuesComeBackAsTheyWereTyped) {
  for (const std::string& text : hostileTexts()) {
    const auto invoice = newInvoice("1");
    setCell(listOf(*invoice), 11, 0, text);
    addRow(*invoice, "1", text, text);
    EXPECT_TRUE(problems(*invoice).empty());
    EXPECT_EQ(printed(*invoice), text + "; " + text + ", " + text);
    save(*invoice);
    save(*invoice);
    EXPECT_EQ(storedOf(*invoice), (Texts{"11/0=" + text, "-1/1=1", "12/1=" + text, "13/1=" + text}));
    const auto loaded = reload(*invoice);
    EXPECT_EQ(cellsOf(listOf(*loaded)), (Texts{"11/0=" + text, "-1/1=1", "12/1=" + text, "13/1=" + text}));
    EXPECT_EQ(printed(*loaded), text + "; " + text + ", " + text);
  }
}

TEST_F(HostileTextTest, namesAreSaidAsTheyAre) {
  for (const std::string& text : hostileTexts()) {
    rename(11, text, text);
    rename(13, text, text);
    const auto invoice = newInvoice("1");
    addRow(*invoice, "1", "S1", "");
    EXPECT_EQ(problems(*invoice), (Texts{"must " + text, "may " + text}));
    const ItemDataEntry* list = findCell(listOf(*invoice), 13, 1);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(std::string(list->vvalue.text()), text);
    EXPECT_NE(std::string(list->toDebugString().text()).find(", name: " + text + ", "), std::string::npos);
  }
}

TEST_F(HostileTextTest, numbersOfInvoicesAndPrefixesAreTextsToo) {
  for (const std::string& text : hostileTexts()) {
    const auto invoice = newInvoice("1");
    invoice->setNumber(text.c_str());
    Messages messages;
    registry.checkInvoice(nullptr, invoice.get(), messages, text.c_str());
    ASSERT_EQ(messages.no(), 2);
    EXPECT_EQ(std::string(messages[0]->getCode().text()), text + "_ITEMDATAQUANTITYLESSTHAN");
    EXPECT_EQ(std::string(messages[1]->getTitle().text()), "Számla: Tételek listája\n[" + text + "]\n");
  }
}

TEST_F(HostileTextTest, anExportCanAlwaysBeRead) {
  for (const std::string& text : hostileTexts()) {
    rename(12, text, "");
    const auto invoice = newInvoice("1");
    addRow(*invoice, text, text, text);
    EXPECT_TRUE(isWellFormed(exported(*invoice))) << exported(*invoice);
  }
  EXPECT_FALSE(isWellFormed("<r>\x1d</r>"));
}

TEST_F(HostileTextTest, aUnitIsATextToo) {
  const auto invoice = newInvoice("3");
  itemOf(*invoice).setUnit("%s%n");
  addRow(*invoice, "3", "S1", "");
  EXPECT_EQ(printed(*invoice), "3 %s%n S1");
  listOf(*invoice).markRowForDelete(1);
  setCell(listOf(*invoice), 11, 0, "%d");
  listOf(*invoice).append(newCell(TYPE_TEXT, 14, 0, "%d", 0, &itemOf(*invoice)));
  EXPECT_EQ(printed(*invoice), "%d (2 %s%n)");
}

TEST_F(HostileTextTest, quantitiesThatAreNoNumbersAreKeptAndPrinted) {
  for (const std::string& text : hostileTexts()) {
    const auto invoice = newInvoice("1");
    addRow(*invoice, text, "S1", "");
    EXPECT_EQ(printed(*invoice), text + " db S1");
    save(*invoice);
    EXPECT_EQ(std::string(findCell(listOf(*reload(*invoice)), VARIABLE_QUANTITY, 1)->value.text()), text);
    EXPECT_EQ(problems(*invoice).size(), 3u);
  }
}
