#include "host/xml/Document.h"
#include "itemdata/Codes.h"
#include "itemdata/ItemDataList.h"
#include "tests/itemdata/ListFixture.h"

using namespace Brontel::Plugin::ItemData;

namespace {

using ItemDataListXmlTest = ListFixture;

const std::string kHead = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
const std::string kRoot = "<r xmlns:itemdata=\"urn:brontel:plugin:itemdata\">\n";

}  // namespace

TEST_F(ItemDataListXmlTest, isOneContainerWithAnElementForEachCell) {
  ItemDataList& list = newList();
  add(list, TYPE_TEXT, 11, 0, "M")->name = "Megjegyzés";
  addRow(list, 1, "5", "S1", " ", 11);
  addRow(list, 2, "3", "", "kék", 21);
  XMLBuilder::Document document("r");
  list.toXml(document.getRoot());
  EXPECT_STREQ(document.toText().text(), (kHead + kRoot +
                                          "  <itemdata:itemdata>\n"
                                          "    <itemdata:itemdata row=\"0\" name=\"Megjegyzés\">M</itemdata:itemdata>\n"
                                          "    <itemdata:itemdata row=\"1\" name=\"Mennyiség\">5</itemdata:itemdata>\n"
                                          "    <itemdata:itemdata row=\"1\" name=\"Sarzs\">S1</itemdata:itemdata>\n"
                                          "    <itemdata:itemdata row=\"1\" name=\"Szín\"> </itemdata:itemdata>\n"
                                          "    <itemdata:itemdata row=\"2\" name=\"Mennyiség\">3</itemdata:itemdata>\n"
                                          "    <itemdata:itemdata row=\"2\" name=\"Sarzs\"/>\n"
                                          "    <itemdata:itemdata row=\"2\" name=\"Szín\">kék</itemdata:itemdata>\n"
                                          "  </itemdata:itemdata>\n"
                                          "</r>\n")
                                             .c_str());
}

TEST_F(ItemDataListXmlTest, anEmptyListIsAnEmptyContainer) {
  XMLBuilder::Document document("r");
  newList().toXml(document.getRoot());
  EXPECT_STREQ(document.toText().text(), (kHead + kRoot + "  <itemdata:itemdata/>\n</r>\n").c_str());
}

TEST_F(ItemDataListXmlTest, deletedCellsStandThereEmpty) {
  ItemDataList& list = newList();
  add(list, TYPE_TEXT, 12, 1, "S1", 7)->name = "Sarzs";
  list.append(nullptr);
  list.markRowForDelete(1);
  XMLBuilder::Document document("r");
  list.toXml(document.getRoot());
  EXPECT_STREQ(document.toText().text(), (kHead + kRoot +
                                          "  <itemdata:itemdata>\n"
                                          "    <itemdata:itemdata row=\"1\" name=\"Sarzs\"/>\n"
                                          "  </itemdata:itemdata>\n</r>\n")
                                             .c_str());
}

TEST_F(ItemDataListXmlTest, severalItemsShareOneDeclaration) {
  const ItemDataList& list = newList();
  XMLBuilder::Document document("r");
  list.toXml(document.getRoot()->createElement("item", ""));
  list.toXml(document.getRoot()->createElement("item", ""));
  EXPECT_STREQ(document.toText().text(), (kHead + kRoot +
                                          "  <item>\n    <itemdata:itemdata/>\n  </item>\n"
                                          "  <item>\n    <itemdata:itemdata/>\n  </item>\n</r>\n")
                                             .c_str());
}

TEST_F(ItemDataListXmlTest, exportingChangesNothing) {
  ItemDataList& list = newList();
  addRow(list, 1, "5", "S1", " ", 11);
  list.markRowForDelete(2);
  const std::vector<std::string> before = cellsOf(list);
  XMLBuilder::Document document("r");
  list.toXml(document.getRoot());
  EXPECT_EQ(cellsOf(list), before);
  EXPECT_EQ(keysOf(list), (std::vector<int>{11, 12, 13}));
}

TEST_F(ItemDataListXmlTest, exportsWithoutItemToo) {
  ItemDataList loose;
  loose.append(newCell(TYPE_QUANTITY, VARIABLE_QUANTITY, 1, "3"));
  XMLBuilder::Document document("r");
  loose.toXml(document.getRoot());
  EXPECT_STREQ(document.toText().text(), (kHead + kRoot +
                                          "  <itemdata:itemdata>\n"
                                          "    <itemdata:itemdata row=\"1\" name=\"\">3</itemdata:itemdata>\n"
                                          "  </itemdata:itemdata>\n</r>\n")
                                             .c_str());
}
