// Making a list, its rows and its status.

#include <type_traits>

#include "itemdata/Codes.h"
#include "itemdata/ItemDataList.h"
#include "tests/itemdata/ListFixture.h"
#include "tests/itemdata/ProbeEntry.h"

using namespace Brontel::Plugin::ItemData;
using Cells = std::vector<std::string>;

static_assert(std::is_base_of_v<Brontel::ListOfEntityMiscData<ItemDataEntry>, ItemDataList>);
static_assert(std::is_convertible_v<ItemDataList*, Brontel::EntityMiscData*>);
static_assert(std::is_same_v<decltype(ItemDataList::columns), FX::FXint>);
static_assert(std::is_same_v<decltype(ItemDataList::firstRowIndex), FX::FXint>);
static_assert(std::is_same_v<decltype(ItemDataList::rows), FX::FXint>);
static_assert(std::is_same_v<decltype(ItemDataList::templateList), ItemDataList*>);
static_assert(!std::is_copy_constructible_v<ItemDataList> && !std::is_copy_assignable_v<ItemDataList>);

namespace {

class ItemDataListTest : public ListFixture {
 protected:
  /// How many cells hear of a status of the item's invoice.
  size_t told(unsigned int status, int referencedInvoice) {
    ProbeEntry::Notes notes;
    invoice.setReferencedInvoiceId(referencedInvoice);
    ItemDataList list(&item, nullptr);
    list.append(new ProbeEntry(notes));
    list.append(nullptr);
    list.append(new ProbeEntry(notes));
    list.setStatus(nullptr, status);
    for (const unsigned int heard : notes.statuses) EXPECT_EQ(heard, status);
    return notes.statuses.size();
  }
};

}  // namespace

TEST_F(ItemDataListTest, startsWithNothing) {
  const ItemDataList list;
  EXPECT_EQ(list.getOwner(), nullptr);
  EXPECT_EQ(list.no(), 0);
  EXPECT_EQ(list.columns, 0);
  EXPECT_EQ(list.firstRowIndex, -1);
  EXPECT_EQ(list.rows, 0);
  EXPECT_EQ(list.templateList, nullptr);
}

TEST_F(ItemDataListTest, withoutTemplateItHasNoShape) {
  const ItemDataList list(&item, nullptr);
  EXPECT_EQ(list.getOwner(), &item);
  EXPECT_EQ(list.no(), 0);
  EXPECT_EQ(list.columns, 0);
  EXPECT_EQ(list.firstRowIndex, -1);
  EXPECT_EQ(list.rows, 0);
  EXPECT_EQ(list.templateList, nullptr);
}

TEST_F(ItemDataListTest, aNewItemTakesShapeAndPerItemCellsOfTheTemplate) {
  const auto settings = newTemplate();
  settings->at(0)->pk = 9;
  settings->at(0)->vvalue = "p";
  const ItemDataList list(&item, settings.get());
  EXPECT_EQ(list.templateList, settings.get());
  EXPECT_EQ(list.firstRowIndex, 1);
  EXPECT_EQ(list.columns, 3);
  EXPECT_EQ(list.rows, 0);
  EXPECT_EQ(cellsOf(list), Cells{"11/0="});
  EXPECT_EQ(list[0]->pk, 0);
  EXPECT_EQ(list[0]->getOwner(), &item);
  EXPECT_STREQ(list[0]->vvalue.text(), "p");
  EXPECT_EQ(list[0]->mandatory, 1);
}

TEST_F(ItemDataListTest, onlyANewItemIsFilled) {
  const auto settings = newTemplate();
  item.setId(7);
  EXPECT_EQ(ItemDataList(&item, settings.get()).no(), 0);
  EXPECT_EQ(ItemDataList(&item, settings.get()).firstRowIndex, 1);
  EXPECT_EQ(ItemDataList(nullptr, settings.get()).no(), 0);
  item.setId(-1);
  EXPECT_EQ(ItemDataList(&item, settings.get()).no(), 1);
}

TEST_F(ItemDataListTest, theTemplatesFirstRowIndexSaysWhatIsPerItem) {
  const auto settings = newTemplate();
  settings->firstRowIndex = 0;
  EXPECT_EQ(ItemDataList(&item, settings.get()).no(), 0);
  settings->firstRowIndex = 2;
  EXPECT_EQ(cellsOf(ItemDataList(&item, settings.get())), (Cells{"11/0=", "-1/1="}));
  EXPECT_EQ(ItemDataList(&item, settings.get()).rows, 1);
  settings->firstRowIndex = -1;
  EXPECT_EQ(ItemDataList(&item, settings.get()).no(), 4);
  settings->firstRowIndex = 99;
  EXPECT_EQ(ItemDataList(&item, settings.get()).no(), 4);
}

TEST_F(ItemDataListTest, deletesItsCellsOnce) {
  ProbeEntry::Notes notes;
  {
    ItemDataList list(&item, nullptr);
    list.append(new ProbeEntry(notes));
    list.append(new ProbeEntry(notes));
    EXPECT_EQ(list.no(), 2);
  }
  EXPECT_EQ(notes.destroyed, 2);
}

TEST_F(ItemDataListTest, deletesATemplateOnlyWhenItWasAdopted) {
  ProbeEntry::Notes notes;
  auto* settings = new ItemDataList;
  settings->append(new ProbeEntry(notes));
  { const ItemDataList list(nullptr, settings); }
  EXPECT_EQ(notes.destroyed, 0);
  EXPECT_EQ(settings->no(), 1);
  {
    ItemDataList list(nullptr, settings);
    list.adoptTemplate();
  }
  EXPECT_EQ(notes.destroyed, 1);
}

TEST_F(ItemDataListTest, isFoundOnItsItemOnly) {
  EXPECT_EQ(ItemDataList::of(nullptr), nullptr);
  EXPECT_EQ(ItemDataList::of(&item), nullptr);
  item.addMiscData("ItemData", new Brontel::EntityMiscData(&item));
  EXPECT_EQ(ItemDataList::of(&item), nullptr);
  const ItemDataList& list = newList();
  EXPECT_EQ(ItemDataList::of(&item), &list);
  EXPECT_EQ(ItemDataList::of(&invoice), nullptr);
}

TEST_F(ItemDataListTest, newRowsAreCopiesOfTheTemplatesRow) {
  ItemDataList& list = newListOf(newTemplate());
  list.rows = 3;
  list.addRows(2);
  EXPECT_EQ(list.rows, 5);
  EXPECT_EQ(cellsOf(list), (Cells{"11/0=", "-1/4=", "12/4=", "13/4=", "-1/5=", "12/5=", "13/5="}));
  for (FX::FXint i = 1; i < list.no(); ++i) {
    EXPECT_EQ(list[i]->pk, 0);
    EXPECT_EQ(list[i]->getOwner(), &item);
  }
  EXPECT_STREQ(list[3]->vvalue.text(), "piros,kék");
  EXPECT_STREQ(list[1]->name.text(), "Mennyiség");
}

TEST_F(ItemDataListTest, emptySlotsOfATemplateAreNotCopied) {
  auto settings = newTemplate();
  settings->insert(2, nullptr);
  settings->prepend(nullptr);
  settings->firstRowIndex = 2;
  ItemDataList& list = newListOf(std::move(settings));
  list.addRows(1);
  EXPECT_EQ(cellsOf(list), (Cells{"11/0=", "-1/1=", "12/1=", "13/1="}));
}

TEST_F(ItemDataListTest, addsNoRowsWithoutSomethingToCopy) {
  ItemDataList loose(&item, nullptr);
  loose.firstRowIndex = 0;
  loose.addRows(1);
  EXPECT_EQ(loose.no(), 0);
  ItemDataList& list = newListOf(newTemplate());
  list.addRows(0);
  list.addRows(-3);
  list.firstRowIndex = -1;
  list.addRows(1);
  list.firstRowIndex = 1;
  list.templateList->firstRowIndex = -1;
  list.addRows(1);
  EXPECT_EQ(list.no(), 1);
  EXPECT_EQ(list.rows, 0);
}

TEST_F(ItemDataListTest, deletingARowMarksWhatIsStoredAndDestroysTheRest) {
  ItemDataList& list = newList();
  ProbeEntry::Notes notes;
  add(list, TYPE_TEXT, 11, 0, "M", 1);
  addRow(list, 1, "5", "S1", "kék", 11);
  addRow(list, 2, "3", "S2", "kék", 21);
  list.append(new ProbeEntry(notes, 2));
  list.append(nullptr);
  list.markRowForDelete(2);
  EXPECT_EQ(cellsOf(list),
            (Cells{"11/0=M", "-1/1=5", "12/1=S1", "13/1=kék", "-1/2= marked", "12/2= marked", "13/2= marked", "null"}));
  EXPECT_EQ(keysOf(list), (std::vector<int>{1, 11, 12, 13, 21, 22, 23, 0}));
  EXPECT_EQ(notes.destroyed, 1);
  EXPECT_EQ(list.rows, 1);
}

TEST_F(ItemDataListTest, deletingAMarkedRowAgainKeepsWhatIsStored) {
  ItemDataList& list = newList();
  addRow(list, 1, "5", "S1", "kék", 11);
  list.markRowForDelete(1);
  list[1]->pk = 0;
  list.rows = 0;
  list.markRowForDelete(1);
  EXPECT_EQ(keysOf(list), (std::vector<int>{11, 13}));
  EXPECT_EQ(list.rows, 0);
}

TEST_F(ItemDataListTest, onlyTheLastRowLowersTheCount) {
  ItemDataList& list = newListOf(newTemplate());
  list.addRows(5);
  list.markRowForDelete(2);
  EXPECT_EQ(list.rows, 5);
  EXPECT_EQ(list.no(), 1 + 4 * 3);
  list.markRowForDelete(5);
  EXPECT_EQ(list.rows, 4);
  list.markRowForDelete(9);
  EXPECT_EQ(list.rows, 4);
  EXPECT_EQ(list.getRowNum(), 3);
}

TEST_F(ItemDataListTest, theCountNeverFallsBelowZero) {
  ItemDataList& list = newListOf(newTemplate());
  list.markRowForDelete(0);
  EXPECT_EQ(list.rows, 0);
  list.addRows(1);
  EXPECT_EQ(list.rows, 1);
}

TEST_F(ItemDataListTest, tellsItsCellsOfAStatus) {
  for (const unsigned int always : {102u, 452u}) {
    for (const int reference : {0, -1, 5}) EXPECT_EQ(told(always, reference), 2u) << always << " " << reference;
  }
  for (const unsigned int whenReferring : {101u, 201u, 401u}) {
    EXPECT_EQ(told(whenReferring, 5), 2u) << whenReferring;
    EXPECT_EQ(told(whenReferring, 1), 2u) << whenReferring;
    EXPECT_EQ(told(whenReferring, 0), 0u) << whenReferring;
    EXPECT_EQ(told(whenReferring, -1), 0u) << whenReferring;
  }
  for (const unsigned int other : {0u, 100u, 202u, 252u, 451u, 801u, 0xffffffffu}) EXPECT_EQ(told(other, 5), 0u);
}

TEST_F(ItemDataListTest, aRowGoesFromItsLastCellToItsFirst) {
  ProbeEntry::Notes notes;
  ItemDataList list(&item, nullptr);
  for (const int variable : {11, 12, 13, 14}) {
    list.append(new ProbeEntry(notes, variable == 14 ? 2 : 1));
    list[list.no() - 1]->itemvariable = variable;
  }
  list.markRowForDelete(1);
  EXPECT_EQ(notes.destroyedVariables, (std::vector<int>{13, 12, 11}));
  EXPECT_EQ(list.no(), 1);
}

TEST_F(ItemDataListTest, markingRowZeroLeavesTheRowCountAlone) {
  ItemDataList list(&item, nullptr);
  add(list, 1, 11, 0, "x", 7);
  list.markRowForDelete(0);
  EXPECT_EQ(list[0]->del, 1);
  EXPECT_EQ(list.rows, 0);
}

TEST_F(ItemDataListTest, aListWithoutItemHearsWhatIsAlwaysTold) {
  ProbeEntry::Notes notes;
  ItemDataList list;
  list.append(new ProbeEntry(notes));
  list.setStatus(nullptr, 102);
  list.setStatus(nullptr, 101);
  EXPECT_EQ(notes.statuses, std::vector<unsigned int>{102});
}

TEST_F(ItemDataListTest, doesNothingWithoutDatabaseOrOwner) {
  ItemDataList list;
  list.loadSettings(nullptr, 101, &item);
  list.loadSavedItemData(nullptr);
  EXPECT_EQ(list.load(nullptr), 0);
  EXPECT_EQ(list.save(nullptr), 0);
  list.addRows(1);
  list.markRowForDelete(1);
  list.cloneItemsFrom(nullptr, 1);
  list.settle();
  list.toXml(nullptr);
  Messages messages;
  EXPECT_EQ(list.check(1, messages, "P"), 0);
  EXPECT_EQ(messages.no(), 0);
  EXPECT_STREQ(list.getPrintableText().text(), "");
  EXPECT_EQ(list.no(), 0);
}
