#include "host/xml/Document.h"
#include "itemdata/Codes.h"
#include "itemdata/ItemDataEntry.h"
#include "tests/itemdata/ListFixture.h"

using namespace Brontel::Plugin::ItemData;

namespace {

class ItemDataEntryXmlTest : public ListFixture {
 protected:
  /// The exported element of a cell.
  std::string exported(int type, int row, const std::string& name, const std::string& value) {
    const std::unique_ptr<ItemDataEntry> cell(newCell(type, 12, row, value));
    cell->name = name.c_str();
    XMLBuilder::Document document("r");
    document.addNamespace("i", "urn:brontel:plugin:itemdata");
    cell->toXml(document.getRoot());
    const std::string text = document.toText().text();
    const size_t begin = text.find("  <");
    return text.substr(begin + 2, text.find("\n</r>") - begin - 2);
  }
};

}  // namespace

TEST_F(ItemDataEntryXmlTest, isAnElementWithRowNameAndValue) {
  EXPECT_EQ(exported(TYPE_TEXT, 3, "Sarzs", "S1"), "<i:itemdata row=\"3\" name=\"Sarzs\">S1</i:itemdata>");
}

TEST_F(ItemDataEntryXmlTest, anEmptyCellIsAnEmptyElement) {
  EXPECT_EQ(exported(TYPE_TEXT, 0, "Megjegyzés", ""), "<i:itemdata row=\"0\" name=\"Megjegyzés\"/>");
}

TEST_F(ItemDataEntryXmlTest, exportsTheStoredFieldNotWhatItCountsAs) {
  EXPECT_EQ(exported(TYPE_LIST, 1, "Szín", " "), "<i:itemdata row=\"1\" name=\"Szín\"> </i:itemdata>");
}

TEST_F(ItemDataEntryXmlTest, escapesMarkup) {
  EXPECT_EQ(exported(TYPE_TEXT, 1, "<\"&>", "<a&b>"),
            "<i:itemdata row=\"1\" name=\"&lt;&quot;&amp;&gt;\">&lt;a&amp;b&gt;</i:itemdata>");
}

TEST_F(ItemDataEntryXmlTest, doesNothingWithoutParent) {
  const std::unique_ptr<ItemDataEntry> cell(newCell(TYPE_TEXT, 12, 1, "x"));
  cell->toXml(nullptr);
  EXPECT_STREQ(cell->value.text(), "x");
}
