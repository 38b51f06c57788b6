// Copies of invoices, stored and unstored ones.

#include "host/xml/Document.h"
#include "itemdata/Codes.h"
#include "tests/itemdata/LifeCycleFixture.h"

using namespace Brontel;
using namespace Brontel::Plugin::ItemData;

namespace {

using CopyLifeCycleTest = LifeCycleFixture;
using Texts = std::vector<std::string>;

const Texts kAll = {"11/0=M", "-1/1=5", "12/1=S1", "13/1=kék", "-1/2=3", "12/2=S2", "13/2=piros"};

std::unique_ptr<Invoice> copyOf(const Invoice& invoice) {
  return std::unique_ptr<Invoice>(invoice.copy());
}

}  // namespace

TEST_F(CopyLifeCycleTest, showsChecksPrintsAndStoresEachCellOnce) {
  const auto invoice = savedInvoice();
  const auto copy = copyOf(*invoice);
  EXPECT_EQ(listOf(*copy).no(), 8);
  EXPECT_TRUE(problems(*copy).empty());
  EXPECT_EQ(cellsOf(listOf(*copy)), kAll);
  EXPECT_EQ(printed(*copy), "M; 5 db S1, kék; 3 db S2, piros");
  save(*copy);
  EXPECT_EQ(storedOf(*copy), kAll);
  EXPECT_EQ(storedOf(*invoice), kAll);
  save(*copy);
  EXPECT_EQ(cellsOf(listOf(*reload(*copy))), kAll);
}

TEST_F(CopyLifeCycleTest, whateverTouchesACopyFirstFindsEachCellOnce) {
  const auto invoice = savedInvoice();
  const auto savedFirst = copyOf(*invoice);
  save(*savedFirst);
  EXPECT_EQ(storedOf(*savedFirst), kAll);
  const auto printedFirst = copyOf(*invoice);
  EXPECT_EQ(printed(*printedFirst), "M; 5 db S1, kék; 3 db S2, piros");
  const auto exportedFirst = copyOf(*invoice);
  XMLBuilder::Document document("r");
  registry.toXml(&itemOf(*exportedFirst), document.getRoot());
  EXPECT_EQ(cellsOf(listOf(*exportedFirst)), kAll);
}

TEST_F(CopyLifeCycleTest, copiesOfCopies) {
  const auto invoice = savedInvoice();
  const auto first = copyOf(*invoice);
  const auto second = copyOf(*first);
  const auto third = copyOf(*second);
  save(*third);
  EXPECT_EQ(storedOf(*third), kAll);
  save(*first);
  EXPECT_EQ(storedOf(*first), kAll);
  const auto ofReloaded = copyOf(*reload(*third));
  save(*ofReloaded);
  EXPECT_EQ(cellsOf(listOf(*reload(*ofReloaded))), kAll);
}

TEST_F(CopyLifeCycleTest, aCopyIsChangedOnItsOwn) {
  const auto invoice = savedInvoice();
  const auto copy = copyOf(*invoice);
  save(*copy);
  setCell(listOf(*copy), 12, 1, "changed");
  listOf(*copy).markRowForDelete(2);
  save(*copy);
  EXPECT_EQ(storedOf(*copy), (Texts{"11/0=M", "-1/1=5", "12/1=changed", "13/1=kék"}));
  EXPECT_EQ(storedOf(*invoice), kAll);
}

TEST_F(CopyLifeCycleTest, whatIsTypedButNotSavedIsCopied) {
  const auto invoice = savedInvoice();
  listOf(*invoice).markRowForDelete(2);
  addRow(*invoice, "3", "new", "kék");
  setCell(listOf(*invoice), 11, 0, "N");
  const auto copy = copyOf(*invoice);
  EXPECT_TRUE(problems(*copy).empty());
  save(*copy);
  EXPECT_EQ(storedOf(*copy), (Texts{"11/0=N", "-1/1=5", "12/1=S1", "13/1=kék", "-1/2=3", "12/2=new", "13/2=kék"}));
  EXPECT_EQ(storedOf(*invoice), kAll);
}

TEST_F(CopyLifeCycleTest, aDeletedRowIsNotCopied) {
  const auto invoice = savedInvoice();
  listOf(*invoice).markRowForDelete(2);
  const auto copy = copyOf(*invoice);
  itemOf(*copy).setQuantity(FXExt::FXDecimal(5, 0, 4));
  EXPECT_TRUE(problems(*copy).empty());
  save(*copy);
  addRow(*copy, "1", "S3", "kék");
  EXPECT_EQ(listOf(*copy).rows, 2);
  save(*copy);
  EXPECT_EQ(cellsOf(listOf(*reload(*copy))),
            (Texts{"11/0=M", "-1/1=5", "12/1=S1", "13/1=kék", "-1/2=1", "12/2=S3", "13/2=kék"}));
}

TEST_F(CopyLifeCycleTest, aCopyOfAnEmptyInvoiceHasItsPerItemCells) {
  const auto copy = copyOf(*newInvoice());
  EXPECT_EQ(problems(*copy), (Texts{"less", "must Megjegyzés"}));
  EXPECT_EQ(cellsOf(listOf(*copy)), Texts{"11/0="});
}

TEST_F(CopyLifeCycleTest, aCopyOfAClosedInvoiceCanBeFilledInCompletely) {
  const auto invoice = savedInvoice();
  changeStatus(*invoice, STATUS_CLOSED);
  addVariable(14, "Új", TYPE_TEXT, 0, 1);
  associate(14, 0);
  addVariable(15, "Hossz", TYPE_TEXT, 1, 1);
  associate(15, 9);
  dissociate(13);
  const auto copy = copyOf(*reload(*invoice));
  EXPECT_EQ(problems(*copy), (Texts{"must Új", "must Hossz", "must Hossz"}));
  ItemDataList& list = listOf(*copy);
  EXPECT_EQ(cellsOf(list), (Texts{"14/0=", "11/0=M", "-1/1=5", "12/1=S1", "15/1=", "13/1=kék", "-1/2=3", "12/2=S2",
                                  "15/2=", "13/2=piros"}));
  EXPECT_EQ(list.firstRowIndex, 2);
  setCell(list, 14, 0, "N");
  setCell(list, 15, 1, "1 m");
  setCell(list, 15, 2, "2 m");
  EXPECT_TRUE(problems(*copy).empty());
  save(*copy);
  EXPECT_EQ(cellsOf(listOf(*reload(*copy))), cellsOf(list));
  EXPECT_EQ(storedOf(*invoice), kAll);
}

TEST_F(CopyLifeCycleTest, aCopyOutlivesItsSource) {
  std::unique_ptr<Invoice> copy;
  copy = copyOf(*savedInvoice());
  addRow(*copy, "1", "S3", "kék");
  save(*copy);
  EXPECT_EQ(storedOf(*copy).size(), 10u);
}

TEST_F(CopyLifeCycleTest, aCopyWithDoubledCellsLosesNone) {
  const auto invoice = savedInvoice();
  insertCell(itemOf(*invoice).getId(), 12, 1, "S1 again");
  const auto copy = copyOf(*reload(*invoice));
  save(*copy);
  EXPECT_EQ(storedOf(*copy),
            (Texts{"11/0=M", "-1/1=5", "12/1=S1", "13/1=kék", "12/1=S1 again", "-1/2=3", "12/2=S2", "13/2=piros"}));
}
