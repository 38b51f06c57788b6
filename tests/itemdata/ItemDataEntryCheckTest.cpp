#include "itemdata/Codes.h"
#include "itemdata/ItemDataEntry.h"
#include "tests/itemdata/ListFixture.h"

using namespace Brontel::Plugin::ItemData;
using Brontel::Message;

namespace {

class ItemDataEntryCheckTest : public ListFixture {
 protected:
  /// The messages of a cell's check, as the third item of the invoice.
  void check(int type, const std::string& value, bool mandatory) {
    const std::unique_ptr<ItemDataEntry> cell(newCell(type, 12, 1, value, 0, &item));
    cell->name = "Sarzs";
    cell->mandatory = mandatory ? 1 : 0;
    cell->check(3, messages, "INV");
  }

  Messages messages;
};

}  // namespace

TEST_F(ItemDataEntryCheckTest, saysNothingAboutAFilledCell) {
  check(TYPE_TEXT, "x", true);
  check(TYPE_DATE, "2024.03.05", true);
  check(TYPE_LIST, "kék", true);
  check(TYPE_TEXT, "0", false);
  EXPECT_EQ(messages.no(), 0);
}

TEST_F(ItemDataEntryCheckTest, anEmptyMandatoryCellBlocks) {
  check(TYPE_TEXT, "", true);
  ASSERT_EQ(messages.no(), 1);
  const Message& message = *messages[0];
  EXPECT_STREQ(message.getCode().text(), "INV_ITEMDATAWANTED");
  EXPECT_EQ(message.getLevel(), 1u);
  EXPECT_STREQ(message.getText().text(), "A(z) 3. tételhez rögzíteni kell néhány egyéb adatot!\nMező neve:Sarzs");
  EXPECT_STREQ(message.getTitle().text(), "Számla: Tételek listája\n[A-1]\n");
  EXPECT_EQ(message.getEvent(), nullptr);
  EXPECT_EQ(message.getRepairEvent(), nullptr);
  EXPECT_EQ(message.getAction(), nullptr);
}

TEST_F(ItemDataEntryCheckTest, anEmptyOptionalCellIsANotice) {
  check(TYPE_TEXT, "", false);
  ASSERT_EQ(messages.no(), 1);
  const Message& message = *messages[0];
  EXPECT_STREQ(message.getCode().text(), "INV_ITEMDATAWANTED");
  EXPECT_EQ(message.getLevel(), 0u);
  EXPECT_STREQ(message.getText().text(), "A(z) 3. tételhez lehet rögzíteni néhány egyéb adatot!\nMező neve:Sarzs");
  EXPECT_STREQ(message.getTitle().text(), "Számla: Tételek listája\n[A-1]\n");
}

TEST_F(ItemDataEntryCheckTest, bothLevelsCountInTheFirstCounter) {
  check(TYPE_TEXT, "", true);
  check(TYPE_TEXT, "", false);
  EXPECT_EQ(messages.getFirstCounter(), 2);
  EXPECT_EQ(messages.getSecondCounter(), 0);
}

TEST_F(ItemDataEntryCheckTest, theLoneBlankIsEmptyInAListOnly) {
  check(TYPE_LIST, " ", true);
  EXPECT_EQ(messages.no(), 1);
  check(TYPE_LIST, "  ", true);
  check(TYPE_TEXT, " ", true);
  check(TYPE_DATE, " ", true);
  EXPECT_EQ(messages.no(), 1);
}

TEST_F(ItemDataEntryCheckTest, saysNothingOnInvoicesOfTheUncheckedType) {
  invoice.setTypeCode(102);
  check(TYPE_TEXT, "", true);
  check(TYPE_TEXT, "", false);
  EXPECT_EQ(messages.no(), 0);
}

TEST_F(ItemDataEntryCheckTest, looksNeitherAtTheMarkNorAtTheInvoicesStatus) {
  invoice.setStatus(Brontel::STATUS_CLOSED);
  check(TYPE_TEXT, "", true);
  const std::unique_ptr<ItemDataEntry> marked(newCell(TYPE_TEXT, 12, 1, "x", 7, &item));
  marked->markForDelete(1);
  marked->check(1, messages, "INV");
  EXPECT_EQ(messages.no(), 2);
}

TEST_F(ItemDataEntryCheckTest, namesAnInvoiceWithoutNumberByItsKey) {
  invoice.setNumber("");
  invoice.setId(77);
  check(TYPE_TEXT, "", true);
  EXPECT_STREQ(messages[0]->getTitle().text(), "Számla: Tételek listája\n[#77]\n");
}

TEST_F(ItemDataEntryCheckTest, saysNothingWithoutOwnerOrInvoice) {
  const std::unique_ptr<ItemDataEntry> orphan(newCell(TYPE_TEXT, 12, 1));
  orphan->check(1, messages, "INV");
  Brontel::InvoiceItem loose;
  const std::unique_ptr<ItemDataEntry> looseCell(newCell(TYPE_TEXT, 12, 1, "", 0, &loose));
  looseCell->check(1, messages, "INV");
  EXPECT_EQ(messages.no(), 0);
}
