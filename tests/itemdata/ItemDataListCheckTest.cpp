#include "itemdata/Codes.h"
#include "itemdata/ItemDataList.h"
#include "tests/itemdata/ListFixture.h"
#include "tests/itemdata/ProbeEntry.h"

using namespace Brontel::Plugin::ItemData;
using Brontel::Message;
using Texts = std::vector<std::string>;

namespace {

/// The list of an item of 5, as the second of its invoice.
class ItemDataListCheckTest : public ListFixture {
 protected:
  ItemDataListCheckTest() : list(newListOf(newTemplate())) { list[0]->value = "M"; }

  /// In short, what the check says.
  Texts check() {
    Messages messages;
    EXPECT_EQ(list.check(2, messages, "INV"), 0);
    return messages.summary();
  }

  void expect(const std::string& quantity) { item.setQuantity(FXExt::FXDecimal(quantity.c_str(), 4)); }

  ItemDataList& list;
};

}  // namespace

TEST_F(ItemDataListCheckTest, saysNothingAboutACompleteList) {
  addRow(list, 1, "3", "S1", "kék");
  addRow(list, 2, "2", "S2", "piros");
  EXPECT_TRUE(check().empty());
}

TEST_F(ItemDataListCheckTest, moreThanTheItem) {
  addRow(list, 1, "5.0001", "S1", "kék");
  Messages messages;
  list.check(2, messages, "INV");
  ASSERT_EQ(messages.no(), 1);
  const Message& message = *messages[0];
  EXPECT_STREQ(message.getCode().text(), "INV_ITEMDATAQUANTITYMORETHAN");
  EXPECT_EQ(message.getLevel(), 1u);
  EXPECT_STREQ(message.getText().text(),
               "Egyéb tételadatok: Az összmennyiség (5.0001) több, mint a tétellistában megadott (5).");
  EXPECT_STREQ(message.getTitle().text(), "Számla: Tételek listája\n[A-1]\n");
  EXPECT_EQ(message.getEvent(), nullptr);
  EXPECT_EQ(message.getRepairEvent(), nullptr);
  EXPECT_EQ(message.getAction(), nullptr);
}

TEST_F(ItemDataListCheckTest, lessThanTheItem) {
  addRow(list, 1, "4.5", "S1", "kék");
  Messages messages;
  list.check(2, messages, "INV");
  ASSERT_EQ(messages.no(), 1);
  const Message& message = *messages[0];
  EXPECT_STREQ(message.getCode().text(), "INV_ITEMDATAQUANTITYLESSTHAN");
  EXPECT_EQ(message.getLevel(), 1u);
  EXPECT_STREQ(message.getText().text(),
               "Egyéb tételadatok: Az összmennyiség (4.5) kevesebb, mint a tétellistában megadott (5).");
  EXPECT_STREQ(message.getTitle().text(), "Számla: Tételek listája\n[A-1]\n");
}

TEST_F(ItemDataListCheckTest, quantitiesAreComparedAsNumbers) {
  addRow(list, 1, "1.50", "S1", "kék");
  expect("1.5");
  EXPECT_TRUE(check().empty());
  expect("1.5001");
  EXPECT_EQ(check(), Texts{"less"});
  expect("1.4999");
  EXPECT_EQ(check(), Texts{"more"});
}

TEST_F(ItemDataListCheckTest, negativeQuantitiesAreComparedAsTheyAre) {
  expect("-3");
  EXPECT_EQ(check(), Texts{"more"});
  addRow(list, 1, "-3", "S1", "kék");
  EXPECT_TRUE(check().empty());
}

TEST_F(ItemDataListCheckTest, withoutAnyRowTheSumIsZero) {
  EXPECT_EQ(check(), Texts{"less"});
  expect("0");
  EXPECT_TRUE(check().empty());
}

TEST_F(ItemDataListCheckTest, withoutPerUnitVariablesQuantitiesAreNotCompared) {
  list.firstRowIndex = -1;
  EXPECT_TRUE(check().empty());
}

TEST_F(ItemDataListCheckTest, comparesForEveryTypeButOne) {
  for (const int type : {101, 152, 201, 202, 0}) {
    invoice.setTypeCode(type);
    EXPECT_EQ(check(), Texts{"less"}) << type;
  }
  invoice.setTypeCode(102);
  list[0]->value = "";
  EXPECT_TRUE(check().empty());
}

TEST_F(ItemDataListCheckTest, closedInvoicesGetNoMessages) {
  list[0]->value = "";
  addRow(list, 1, "9", "", "");
  for (const int status : {Brontel::STATUS_CLOSED, Brontel::STATUS_STORNO}) {
    invoice.setStatus(status);
    EXPECT_TRUE(check().empty());
  }
  invoice.setStatus(Brontel::STATUS_OPEN);
  EXPECT_EQ(check().size(), 4u);
}

TEST_F(ItemDataListCheckTest, emptyCellsAreNamedInOrderAfterTheQuantity) {
  list[0]->value = "";
  addRow(list, 1, "", "S1", "");
  addRow(list, 2, "3", "", "kék");
  for (FX::FXint i = 0; i < list.no(); ++i) list[i]->mandatory = list[i]->type == TYPE_LIST ? 0 : 1;
  EXPECT_EQ(check(), (Texts{"less", "must Megjegyzés", "must Mennyiség", "may Szín", "must Sarzs"}));
}

TEST_F(ItemDataListCheckTest, tellsThePositionOfTheItem) {
  list[0]->value = "";
  list.firstRowIndex = -1;
  Messages messages;
  list.check(7, messages, "X");
  EXPECT_EQ(messages.texts(),
            Texts{"X_ITEMDATAWANTED 1 A(z) 7. tételhez rögzíteni kell néhány egyéb adatot!\nMező neve:Megjegyzés"});
}

TEST_F(ItemDataListCheckTest, cellsAreCheckedByTheirKind) {
  ProbeEntry::Notes notes;
  Messages messages;
  ItemDataList probes(&item, nullptr);
  probes.append(new ProbeEntry(notes, 3));
  probes.append(nullptr);
  probes.append(new ProbeEntry(notes, 1));
  auto* marked = new ProbeEntry(notes, 2, 7);
  marked->markForDelete(1);
  probes.append(marked);
  probes.check(1, messages, "P");
  EXPECT_EQ(notes.checkedRows, (std::vector<int>{3, 1}));
}

TEST_F(ItemDataListCheckTest, completesTheDeletionOfARowBeforeItsCellsAreChecked) {
  addRow(list, 1, "5", "S1", "kék", 11);
  addRow(list, 2, "", "", "", 21);
  list[4]->markForDelete(1);
  EXPECT_TRUE(check().empty());
  EXPECT_EQ(cellsOf(list),
            (Texts{"11/0=M", "-1/1=5", "12/1=S1", "13/1=kék", "-1/2= marked", "12/2= marked", "13/2= marked"}));
  EXPECT_EQ(list.rows, 1);
}

TEST_F(ItemDataListCheckTest, theSumIsTakenBeforeTheTidying) {
  addRow(list, 1, "5", "S1", "kék", 11);
  addRow(list, 2, "3", "S2", "kék", 21);
  list[5]->markForDelete(1);
  EXPECT_EQ(check(), Texts{"more"});
  EXPECT_TRUE(check().empty());
}

TEST_F(ItemDataListCheckTest, tidiesWhereNothingIsSaid) {
  addRow(list, 1, "5", "S1", "kék", 11);
  addRow(list, 2, "3", "S2", "kék", 21);
  list[4]->markForDelete(1);
  invoice.setStatus(Brontel::STATUS_CLOSED);
  EXPECT_TRUE(check().empty());
  EXPECT_EQ(list.getRowNum(), 1);
  list[1]->markForDelete(1);
  invoice.setStatus(Brontel::STATUS_OPEN);
  invoice.setTypeCode(102);
  EXPECT_TRUE(check().empty());
  EXPECT_EQ(list.getRowNum(), 0);
}

TEST_F(ItemDataListCheckTest, aFreshRowInPlaceOfADeletedOneSurvives) {
  addRow(list, 1, "2", "S1", "kék", 11);
  addRow(list, 2, "3", "S2", "kék", 21);
  list.markRowForDelete(2);
  list.addRows(1);
  setCell(list, VARIABLE_QUANTITY, 2, "3");
  setCell(list, 12, 2, "new");
  setCell(list, 13, 2, "kék");
  for (int i = 0; i < 3; ++i) {
    EXPECT_TRUE(check().empty());
    EXPECT_STREQ(findCell(list, 12, 2)->value.text(), "new");
    EXPECT_EQ(list.rows, 2);
  }
}

TEST_F(ItemDataListCheckTest, saysNothingWithoutItemOrInvoice) {
  Messages messages;
  ItemDataList loose;
  loose.firstRowIndex = 0;
  loose.append(newCell(TYPE_TEXT, 11, 0));
  EXPECT_EQ(loose.check(1, messages, "P"), 0);
  Brontel::InvoiceItem single;
  ItemDataList ofSingle(&single, nullptr);
  ofSingle.firstRowIndex = 0;
  EXPECT_EQ(ofSingle.check(1, messages, "P"), 0);
  ItemDataList ofInvoice(&invoice, nullptr);
  EXPECT_EQ(ofInvoice.check(1, messages, "P"), 0);
  EXPECT_EQ(messages.no(), 0);
}
