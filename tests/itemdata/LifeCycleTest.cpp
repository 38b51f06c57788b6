// Item data from the first entry to the last reload.

#include "itemdata/Codes.h"
#include "tests/itemdata/LifeCycleFixture.h"
#include "tests/support/FaultObserver.h"

using namespace Brontel;
using namespace Brontel::Plugin::ItemData;

namespace {

using LifeCycleTest = LifeCycleFixture;
using Texts = std::vector<std::string>;

const Texts kAll = {"11/0=M", "-1/1=5", "12/1=S1", "13/1=kék", "-1/2=3", "12/2=S2", "13/2=piros"};
const char* const kPrinted = "M; 5 db S1, kék; 3 db S2, piros";

}  // namespace

TEST_F(LifeCycleTest, enteredSavedReloadedEditedSavedAndReloaded) {
  const auto invoice = newInvoice("8");
  EXPECT_EQ(cellsOf(listOf(*invoice)), Texts{"11/0="});
  EXPECT_EQ(problems(*invoice), (Texts{"less", "must Megjegyzés"}));
  setCell(listOf(*invoice), 11, 0, "M");
  addRow(*invoice, "5", "S1", "kék");
  addRow(*invoice, "3", "S2", "piros");
  EXPECT_TRUE(problems(*invoice).empty());
  EXPECT_EQ(printed(*invoice), kPrinted);
  save(*invoice);
  EXPECT_EQ(storedOf(*invoice), kAll);

  const auto loaded = reload(*invoice);
  ItemDataList& list = listOf(*loaded);
  EXPECT_EQ(cellsOf(list), kAll);
  EXPECT_EQ(list.rows, 2);
  EXPECT_EQ(list.columns, 3);
  EXPECT_EQ(list.firstRowIndex, 1);
  EXPECT_EQ(list.getRowNum(), 2);
  EXPECT_TRUE(problems(*loaded).empty());
  EXPECT_EQ(printed(*loaded), kPrinted);
  setCell(list, 12, 2, "S2b");
  setCell(list, 13, 2, " ");
  save(*loaded);

  const Texts edited = {"11/0=M", "-1/1=5", "12/1=S1", "13/1=kék", "-1/2=3", "12/2=S2b", "13/2="};
  EXPECT_EQ(storedOf(*invoice), edited);
  const auto again = reload(*invoice);
  EXPECT_EQ(cellsOf(listOf(*again)), edited);
  EXPECT_EQ(keysOf(listOf(*again)), keysOf(list));
  EXPECT_EQ(problems(*again), Texts{"may Szín"});
  EXPECT_EQ(printed(*again), "M; 5 db S1, kék; 3 db S2b");
}

TEST_F(LifeCycleTest, savedAgainAndAgain) {
  const auto invoice = savedInvoice();
  save(*invoice);
  setCell(listOf(*invoice), 12, 1, "S1b");
  save(*invoice);
  save(*invoice);
  EXPECT_EQ(storedOf(*invoice), (Texts{"11/0=M", "-1/1=5", "12/1=S1b", "13/1=kék", "-1/2=3", "12/2=S2", "13/2=piros"}));
}

TEST_F(LifeCycleTest, aDeletedRowIsGone) {
  const auto invoice = savedInvoice();
  const auto loaded = reload(*invoice);
  listOf(*loaded).markRowForDelete(1);
  EXPECT_EQ(printed(*loaded), "M; 3 db S2, piros");
  EXPECT_EQ(problems(*loaded), Texts{"less"});
  save(*loaded);
  const Texts left = {"11/0=M", "-1/2=3", "12/2=S2", "13/2=piros"};
  EXPECT_EQ(storedOf(*invoice), left);
  save(*loaded);
  const auto again = reload(*invoice);
  EXPECT_EQ(cellsOf(listOf(*again)), left);
  EXPECT_EQ(listOf(*again).rows, 2);
  EXPECT_EQ(listOf(*again).getRowNum(), 1);
  addRow(*again, "5", "S3", "kék");
  EXPECT_NE(findCell(listOf(*again), 12, 3), nullptr);
}

TEST_F(LifeCycleTest, aDeletedLastRowGivesItsNumberBack) {
  const auto invoice = savedInvoice();
  listOf(*invoice).markRowForDelete(2);
  save(*invoice);
  const auto loaded = reload(*invoice);
  EXPECT_EQ(cellsOf(listOf(*loaded)), (Texts{"11/0=M", "-1/1=5", "12/1=S1", "13/1=kék"}));
  EXPECT_EQ(listOf(*loaded).rows, 1);
  addRow(*loaded, "3", "S3", "kék");
  save(*loaded);
  EXPECT_EQ(storedOf(*invoice), (Texts{"11/0=M", "-1/1=5", "12/1=S1", "13/1=kék", "-1/2=3", "12/2=S3", "13/2=kék"}));
}

TEST_F(LifeCycleTest, theLastRowReplacedByAFreshOne) {
  const auto invoice = savedInvoice();
  const auto loaded = reload(*invoice);
  listOf(*loaded).markRowForDelete(2);
  addRow(*loaded, "3", "new", "kék");
  EXPECT_TRUE(problems(*loaded).empty());
  EXPECT_TRUE(problems(*loaded).empty());
  EXPECT_EQ(printed(*loaded), "M; 5 db S1, kék; 3 db new, kék");
  save(*loaded);
  const Texts replaced = {"11/0=M", "-1/1=5", "12/1=S1", "13/1=kék", "-1/2=3", "12/2=new", "13/2=kék"};
  EXPECT_EQ(storedOf(*invoice), replaced);
  save(*loaded);
  EXPECT_EQ(cellsOf(listOf(*reload(*invoice))), replaced);
  setCell(listOf(*loaded), 12, 2, "newer");
  save(*loaded);
  EXPECT_STREQ(findCell(listOf(*reload(*invoice)), 12, 2)->value.text(), "newer");
}

TEST_F(LifeCycleTest, aRowAddedSavedAndDeletedInOneSession) {
  const auto invoice = savedInvoice();
  addRow(*invoice, "1", "S3", "");
  save(*invoice);
  listOf(*invoice).markRowForDelete(3);
  save(*invoice);
  EXPECT_EQ(storedOf(*invoice), kAll);
  EXPECT_EQ(cellsOf(listOf(*reload(*invoice))), kAll);
}

TEST_F(LifeCycleTest, allRowsDeleted) {
  dissociate(11);
  const auto invoice = newInvoice();
  addRow(*invoice, "5", "S1", "kék");
  save(*invoice);
  listOf(*invoice).markRowForDelete(1);
  save(*invoice);
  EXPECT_TRUE(storedOf(*invoice).empty());
  const auto loaded = reload(*invoice);
  EXPECT_EQ(listOf(*loaded).no(), 0);
  EXPECT_EQ(listOf(*loaded).rows, 0);
  addRow(*loaded, "5", "S2", "kék");
  save(*loaded);
  EXPECT_EQ(storedOf(*invoice), (Texts{"-1/1=5", "12/1=S2", "13/1=kék"}));
}

TEST_F(LifeCycleTest, aRowOfNoneKeepsItsShape) {
  const auto invoice = newInvoice("5");
  setCell(listOf(*invoice), 11, 0, "M");
  addRow(*invoice, "0", "S1", "kék");
  addRow(*invoice, "5", "S2", "");
  save(*invoice);
  EXPECT_EQ(storedOf(*invoice), (Texts{"11/0=M", "12/1=S1", "13/1=kék", "-1/2=5", "12/2=S2", "13/2="}));
  for (int i = 0; i < 2; ++i) {
    const auto loaded = reload(*invoice);
    EXPECT_EQ(cellsOf(listOf(*loaded)),
              (Texts{"11/0=M", "-1/1=0", "12/1=S1", "13/1=kék", "-1/2=5", "12/2=S2", "13/2="}));
    EXPECT_EQ(printed(*loaded), "M; S1, kék; 5 db S2");
    EXPECT_EQ(problems(*loaded), Texts{"may Szín"});
    save(*loaded);
    EXPECT_EQ(storedOf(*invoice).size(), 6u);
  }
  const auto loaded = reload(*invoice);
  setCell(listOf(*loaded), VARIABLE_QUANTITY, 1, "2");
  save(*loaded);
  save(*loaded);
  EXPECT_EQ(cellsOf(listOf(*reload(*invoice))),
            (Texts{"11/0=M", "-1/1=2", "12/1=S1", "13/1=kék", "-1/2=5", "12/2=S2", "13/2="}));
}

TEST_F(LifeCycleTest, variableTwoOfARowOfNoneIsNotStored) {
  addVariable(2, "Kísérő", TYPE_TEXT, 1);
  associate(2, 4);
  const auto invoice = newInvoice();
  addRow(*invoice, "0", "S1", "kék");
  setCell(listOf(*invoice), 2, 1, "x");
  save(*invoice);
  EXPECT_EQ(storedOf(*invoice), (Texts{"11/0=", "12/1=S1", "13/1=kék"}));
  EXPECT_EQ(cellsOf(listOf(*reload(*invoice))), (Texts{"11/0=", "-1/1=0", "12/1=S1", "13/1=kék", "2/1="}));
}

TEST_F(LifeCycleTest, aStoredQuantityChangedToZeroComesBack) {
  const auto invoice = savedInvoice();
  setCell(listOf(*invoice), VARIABLE_QUANTITY, 1, "0");
  save(*invoice);
  EXPECT_EQ(storedOf(*invoice), kAll);
  EXPECT_EQ(cellsOf(listOf(*reload(*invoice))), kAll);
}

TEST_F(LifeCycleTest, anItemTakesItsDataAlong) {
  const auto invoice = savedInvoice();
  const int item = itemOf(*invoice).getId();
  invoice->removeItem(0);
  save(*invoice);
  EXPECT_TRUE(stored(item).empty());
  EXPECT_EQ(database.text("select count(*) from t_invoiceitemdata"), "0");
}

TEST_F(LifeCycleTest, itemsDoNotMix) {
  const auto first = savedInvoice();
  const auto second = savedInvoice();
  const auto loaded = reload(*first);
  setCell(listOf(*loaded), 11, 0, "only here");
  listOf(*loaded).markRowForDelete(1);
  listOf(*loaded).markRowForDelete(2);
  save(*loaded);
  EXPECT_EQ(storedOf(*first), Texts{"11/0=only here"});
  EXPECT_EQ(storedOf(*second), kAll);
  save(*loaded);
  EXPECT_EQ(storedOf(*second), kAll);
}

TEST_F(LifeCycleTest, closedInvoicesStayAsTheyAre) {
  const auto invoice = savedInvoice();
  changeStatus(*invoice, STATUS_CLOSED);
  addVariable(14, "Új", TYPE_TEXT, 0, 1);
  associate(14, 4);
  const auto loaded = reload(*invoice);
  EXPECT_EQ(cellsOf(listOf(*loaded)), kAll);
  EXPECT_TRUE(problems(*loaded).empty());
  EXPECT_EQ(printed(*loaded), kPrinted);
  EXPECT_EQ(repository.save(*loaded), InvoiceRepository::Result::ReadOnly);
  EXPECT_EQ(storedOf(*invoice), kAll);
}

TEST_F(LifeCycleTest, closedWithoutData) {
  const auto invoice = newInvoice();
  itemOf(*invoice).addMiscData(kMiscDataKey, new ItemDataList(&itemOf(*invoice), nullptr));
  save(*invoice);
  changeStatus(*invoice, STATUS_CLOSED);
  const auto loaded = reload(*invoice);
  EXPECT_EQ(listOf(*loaded).no(), 0);
  EXPECT_EQ(listOf(*loaded).firstRowIndex, 0);
  EXPECT_EQ(listOf(*loaded).getRowNum(), 0);
  EXPECT_EQ(printed(*loaded), "");
  EXPECT_TRUE(problems(*loaded).empty());
}

TEST_F(LifeCycleTest, doubledStoredCellsCanBeSeenAndRemoved) {
  const auto invoice = savedInvoice();
  const int item = itemOf(*invoice).getId();
  insertRow(item, 1, "2", "S1 again", "");
  insertCell(item, 11, 0, "M again");
  const auto loaded = reload(*invoice);
  EXPECT_EQ(cellsOf(listOf(*loaded)), (Texts{"11/0=M", "-1/1=5", "12/1=S1", "13/1=kék", "-1/1=2", "12/1=S1 again",
                                             "13/1=", "-1/2=3", "12/2=S2", "13/2=piros", "11/0=M again"}));
  EXPECT_EQ(printed(*loaded), "M; 5 db S1, kék, 2 db S1 again; 3 db S2, piros; M again");
  EXPECT_EQ(problems(*loaded), (Texts{"more", "may Szín"}));
  save(*loaded);
  EXPECT_EQ(storedOf(*invoice).size(), 11u);
  listOf(*loaded).markRowForDelete(1);
  save(*loaded);
  EXPECT_EQ(storedOf(*invoice), (Texts{"11/0=M", "11/0=M again", "-1/2=3", "12/2=S2", "13/2=piros"}));
}

TEST_F(LifeCycleTest, aSaveThatFailsAnywhereIsRepeatedWhole) {
  const auto invoice = savedInvoice();
  Texts before = kAll;
  int number = 1;
  for (int faults = 1; faults > 0; ++number) {
    const std::string batch = "S" + std::to_string(number);
    listOf(*invoice).markRowForDelete(2);
    addRow(*invoice, "3", batch, "piros");
    {
      FaultObserver fault(database.handle(), number);
      const bool done = repository.save(*invoice) == InvoiceRepository::Result::Done;
      faults = fault.faults();
      EXPECT_EQ(done, faults == 0) << number;
    }
    const Texts after = {"11/0=M", "-1/1=5", "12/1=S1", "13/1=kék", "-1/2=3", "12/2=" + batch, "13/2=piros"};
    EXPECT_EQ(storedOf(*invoice), faults > 0 ? before : after) << number;
    save(*invoice);
    EXPECT_EQ(storedOf(*invoice), after) << number;
    EXPECT_EQ(cellsOf(listOf(*reload(*invoice))), after) << number;
    before = after;
  }
  EXPECT_GT(number, 10);
}
