#include "itemdata/Codes.h"
#include "itemdata/Reconciliation.h"
#include "tests/itemdata/ListFixture.h"
#include "tests/itemdata/ProbeEntry.h"

using namespace Brontel::Plugin::ItemData;
using Cells = std::vector<std::string>;

namespace {

/// A loaded list and the template of the goods as they are now.
class ReconciliationTest : public ListFixture {
 protected:
  ReconciliationTest() : settings(newTemplate()), list(newList()) {}

  Cells reconciled() {
    Reconciliation(list, *settings).apply();
    return cellsOf(list);
  }

  /// The settings change: the variable is recorded per item, per unit, or not at all.
  void leaveOut(int variable) {
    for (FX::FXint i = settings->no() - 1; i >= 0; --i) {
      if (settings->at(i)->itemvariable != variable) continue;
      if (i < settings->firstRowIndex) --settings->firstRowIndex;
      delete settings->at(i);
      settings->erase(i);
    }
  }

  std::unique_ptr<ItemDataList> settings;
  ItemDataList& list;
};

}  // namespace

TEST_F(ReconciliationTest, leavesACompleteListInOrderAsItIs) {
  add(list, TYPE_TEXT, 11, 0, "M", 1);
  addRow(list, 1, "5", "S1", "kék", 11);
  addRow(list, 3, "3", "S3", "", 31);
  const Cells before = cellsOf(list);
  EXPECT_EQ(reconciled(), before);
  EXPECT_EQ(keysOf(list), (std::vector<int>{1, 11, 12, 13, 31, 32, 33}));
  EXPECT_EQ(list.firstRowIndex, 1);
  EXPECT_EQ(list.rows, 3);
  EXPECT_EQ(reconciled(), before);
}

TEST_F(ReconciliationTest, givesCellsTheParameterOfTheTemplate) {
  addRow(list, 1, "5", "S1", "kék", 11);
  list[1]->vvalue = "old";
  list[2]->vvalue = "old";
  reconciled();
  EXPECT_STREQ(findCell(list, 12, 1)->vvalue.text(), "");
  EXPECT_STREQ(findCell(list, 13, 1)->vvalue.text(), "piros,kék");
}

TEST_F(ReconciliationTest, restoresTheConfiguredOrder) {
  add(list, TYPE_LIST, 13, 2, "c2", 23);
  add(list, TYPE_TEXT, 12, 1, "b1", 12);
  add(list, TYPE_QUANTITY, VARIABLE_QUANTITY, 2, "2", 21);
  add(list, TYPE_TEXT, 11, 0, "M", 1);
  add(list, TYPE_LIST, 13, 1, "c1", 13);
  add(list, TYPE_QUANTITY, VARIABLE_QUANTITY, 1, "1", 11);
  add(list, TYPE_TEXT, 12, 2, "b2", 22);
  EXPECT_EQ(reconciled(), (Cells{"11/0=M", "-1/1=1", "12/1=b1", "13/1=c1", "-1/2=2", "12/2=b2", "13/2=c2"}));
}

TEST_F(ReconciliationTest, addsWhatWasNeverStored) {
  add(list, TYPE_TEXT, 12, 1, "S1", 12);
  add(list, TYPE_QUANTITY, VARIABLE_QUANTITY, 4, "3", 41);
  settings->at(2)->value = "not this";
  EXPECT_EQ(reconciled(), (Cells{"11/0=", "-1/1=0", "12/1=S1", "13/1=", "-1/4=3", "12/4=", "13/4="}));
  EXPECT_EQ(keysOf(list), (std::vector<int>{0, 0, 12, 0, 41, 0, 0}));
  EXPECT_EQ(list.firstRowIndex, 1);
  EXPECT_EQ(list.rows, 4);
  const ItemDataEntry& added = *list[3];
  EXPECT_EQ(added.getOwner(), &item);
  EXPECT_STREQ(added.vvalue.text(), "piros,kék");
  EXPECT_STREQ(added.name.text(), "Szín");
}

TEST_F(ReconciliationTest, anEmptyListGetsThePerItemCells) {
  EXPECT_EQ(reconciled(), Cells{"11/0="});
  EXPECT_EQ(list.firstRowIndex, 1);
  EXPECT_EQ(list.rows, 0);
}

TEST_F(ReconciliationTest, addsNothingOnAClosedInvoice) {
  for (const int status : {Brontel::STATUS_CLOSED, Brontel::STATUS_STORNO}) {
    invoice.setStatus(status);
    list.clear();
    std::unique_ptr<ItemDataEntry> colour(add(list, TYPE_LIST, 13, 1, "kék", 13));
    std::unique_ptr<ItemDataEntry> batch(add(list, TYPE_TEXT, 12, 1, "S1", 12));
    EXPECT_EQ(reconciled(), (Cells{"12/1=S1", "13/1=kék"}));
    EXPECT_EQ(list.firstRowIndex, 0);
    EXPECT_STREQ(colour->vvalue.text(), "piros,kék");
    list.clear();
  }
}

TEST_F(ReconciliationTest, aClosedListMayLackPerItemCells) {
  invoice.setStatus(Brontel::STATUS_CLOSED);
  settings->insert(0, newCell(TYPE_TEXT, 10, 0));
  settings->firstRowIndex = 2;
  add(list, TYPE_TEXT, 11, 0, "M", 1);
  addRow(list, 1, "5", "S1", "", 11);
  EXPECT_EQ(reconciled(), (Cells{"11/0=M", "-1/1=5", "12/1=S1", "13/1="}));
  EXPECT_EQ(list.firstRowIndex, 1);
}

TEST_F(ReconciliationTest, filledCellsOfVariablesThatWentStayBehindTheOthers) {
  leaveOut(11);
  leaveOut(12);
  add(list, TYPE_TEXT, 11, 0, "M", 1);
  addRow(list, 1, "5", "S1", "kék", 11);
  addRow(list, 2, "3", "S2", "", 21);
  EXPECT_EQ(reconciled(), (Cells{"-1/1=5", "13/1=kék", "12/1=S1", "-1/2=3", "13/2=", "12/2=S2", "11/0=M"}));
  EXPECT_EQ(list.firstRowIndex, 0);
  EXPECT_EQ(list.getRowNum(), 2);
}

TEST_F(ReconciliationTest, emptyCellsOfVariablesThatWentLeaveTheList) {
  ProbeEntry::Notes notes;
  add(list, TYPE_TEXT, 11, 0, "M", 1);
  addRow(list, 1, "5", "S1", "kék", 11);
  auto* gone = new ProbeEntry(notes, 1, 14);
  gone->itemvariable = 99;
  list.append(gone);
  add(list, TYPE_LIST, 98, 0, " ", 15);
  EXPECT_EQ(reconciled(), (Cells{"11/0=M", "-1/1=5", "12/1=S1", "13/1=kék"}));
  EXPECT_EQ(notes.destroyed, 1);
}

TEST_F(ReconciliationTest, aRowOfEmptyCellsOfVariablesThatWentIsNoRow) {
  add(list, TYPE_TEXT, 99, 7, "", 5);
  EXPECT_EQ(reconciled(), Cells{"11/0="});
  EXPECT_EQ(list.rows, 0);
}

TEST_F(ReconciliationTest, allPerUnitVariablesWent) {
  leaveOut(VARIABLE_QUANTITY);
  leaveOut(12);
  leaveOut(13);
  settings->firstRowIndex = -1;
  add(list, TYPE_TEXT, 11, 0, "M", 1);
  addRow(list, 1, "5", "S1", "", 11);
  EXPECT_EQ(reconciled(), (Cells{"11/0=M", "-1/1=5", "12/1=S1"}));
  EXPECT_EQ(list.firstRowIndex, -1);
  EXPECT_EQ(list.getRowNum(), 0);
  EXPECT_EQ(list.rows, 1);
}

TEST_F(ReconciliationTest, aVariableThatIsRecordedPerItemNow) {
  leaveOut(12);
  settings->insert(1, newCell(TYPE_TEXT, 12, 0));
  settings->firstRowIndex = 2;
  add(list, TYPE_TEXT, 11, 0, "M", 1);
  addRow(list, 1, "5", "S1", "kék", 11);
  addRow(list, 2, "3", "", "kék", 21);
  EXPECT_EQ(reconciled(), (Cells{"11/0=M", "12/0=", "-1/1=5", "13/1=kék", "12/1=S1", "-1/2=3", "13/2=kék"}));
  EXPECT_EQ(list.firstRowIndex, 2);
}

TEST_F(ReconciliationTest, aVariableThatIsRecordedPerUnitNow) {
  leaveOut(11);
  settings->append(newCell(TYPE_TEXT, 11, 1));
  add(list, TYPE_TEXT, 11, 0, "M", 1);
  addRow(list, 1, "5", "S1", "kék", 11);
  EXPECT_EQ(reconciled(), (Cells{"-1/1=5", "12/1=S1", "13/1=kék", "11/1=", "11/0=M"}));
  EXPECT_EQ(list.firstRowIndex, 0);
}

TEST_F(ReconciliationTest, ofStoredCellsForOnePlaceNoneIsLost) {
  add(list, TYPE_TEXT, 11, 0, "first", 1);
  add(list, TYPE_TEXT, 11, 0, "second", 2);
  addRow(list, 1, "5", "S1", "kék", 11);
  addRow(list, 1, "6", "S1b", "", 21);
  EXPECT_EQ(reconciled(),
            (Cells{"11/0=first", "-1/1=5", "12/1=S1", "13/1=kék", "-1/1=6", "12/1=S1b", "13/1=", "11/0=second"}));
  EXPECT_EQ(keysOf(list), (std::vector<int>{1, 11, 12, 13, 21, 22, 23, 2}));
  EXPECT_EQ(list.firstRowIndex, 1);
}

TEST_F(ReconciliationTest, aRepetitionInADerivedItemLeaves) {
  item.setReferenceMode(Brontel::InvoiceItem::MODE_DERIVED);
  item.setReferencedItemId(10);
  add(list, TYPE_TEXT, 11, 0, "M");
  addRow(list, 1, "5", "S1", "kék");
  addRow(list, 1, "5", "S1", "");
  EXPECT_EQ(reconciled(), (Cells{"11/0=M", "-1/1=5", "12/1=S1", "13/1=kék"}));
}

TEST_F(ReconciliationTest, aRowThatRepeatsAnotherStays) {
  add(list, TYPE_TEXT, 11, 0, "M");
  addRow(list, 1, "5", "S1", "kék");
  addRow(list, 1, "5", "S1", "kék");
  EXPECT_EQ(reconciled().size(), 7U);
}

TEST_F(ReconciliationTest, anotherValueThatWasNeverStoredStays) {
  add(list, TYPE_TEXT, 11, 0, "M");
  add(list, TYPE_TEXT, 11, 0, "N");
  EXPECT_EQ(reconciled(), (Cells{"11/0=M", "11/0=N"}));
}

TEST_F(ReconciliationTest, emptySlotsLeave) {
  list.append(nullptr);
  add(list, TYPE_TEXT, 11, 0, "M", 1);
  list.append(nullptr);
  settings->append(nullptr);
  EXPECT_EQ(reconciled(), Cells{"11/0=M"});
}

TEST_F(ReconciliationTest, aTemplateWithNothingKeepsWhatIsFilled) {
  settings = std::make_unique<ItemDataList>();
  add(list, TYPE_TEXT, 11, 0, "M", 1);
  add(list, TYPE_TEXT, 14, 0, "", 2);
  addRow(list, 1, "5", "S1", "", 11);
  EXPECT_EQ(reconciled(), (Cells{"-1/1=5", "12/1=S1", "11/0=M"}));
  EXPECT_EQ(list.firstRowIndex, -1);
}

TEST_F(ReconciliationTest, aTemplateWhoseFirstRowIndexIsBeyondItsEnd) {
  settings->firstRowIndex = 99;
  add(list, TYPE_TEXT, 11, 0, "M", 1);
  reconciled();
  EXPECT_EQ(cellsOf(list), (Cells{"11/0=M", "-1/0=0", "12/0=", "13/0="}));
}
