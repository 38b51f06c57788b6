// What becomes of recorded data when the variables of the goods change between a save and a reload. Each test follows
// the same invoice through both, and through a save of what was loaded.

#include "itemdata/Codes.h"
#include "tests/itemdata/LifeCycleFixture.h"

using namespace Brontel;
using namespace Brontel::Plugin::ItemData;

namespace {

using Texts = std::vector<std::string>;

const Texts kAll = {"11/0=M", "-1/1=5", "12/1=S1", "13/1=kék", "-1/2=3", "12/2=S2", "13/2=piros"};

class GoodsChangedTest : public LifeCycleFixture {
 protected:
  GoodsChangedTest() : invoice(savedInvoice()) {}

  /// Loads the invoice and expects these cells, also after they were saved and loaded once more.
  std::unique_ptr<Invoice> expectLoaded(const Texts& cells) {
    std::unique_ptr<Invoice> loaded = reload(*invoice);
    EXPECT_EQ(cellsOf(listOf(*loaded)), cells);
    save(*loaded);
    save(*loaded);
    EXPECT_EQ(cellsOf(listOf(*reload(*invoice))), cells);
    return loaded;
  }

  std::unique_ptr<Invoice> invoice;
};

}  // namespace

TEST_F(GoodsChangedTest, aPerItemVariableWasAdded) {
  addVariable(14, "Új", TYPE_TEXT, 0, 1);
  associate(14, 4);
  const auto loaded =
      expectLoaded({"11/0=M", "14/0=", "-1/1=5", "12/1=S1", "13/1=kék", "-1/2=3", "12/2=S2", "13/2=piros"});
  EXPECT_EQ(listOf(*loaded).firstRowIndex, 2);
  EXPECT_EQ(problems(*loaded), Texts{"must Új"});
  EXPECT_EQ(printed(*loaded), "M; 5 db S1, kék; 3 db S2, piros");
  setCell(listOf(*loaded), 14, 0, "N");
  save(*loaded);
  EXPECT_EQ(printed(*reload(*invoice)), "M; N; 5 db S1, kék; 3 db S2, piros");
}

TEST_F(GoodsChangedTest, aFilledPerItemVariableWasRemoved) {
  dissociate(11);
  const auto loaded = expectLoaded({"-1/1=5", "12/1=S1", "13/1=kék", "-1/2=3", "12/2=S2", "13/2=piros", "11/0=M"});
  EXPECT_EQ(listOf(*loaded).firstRowIndex, 0);
  EXPECT_EQ(listOf(*loaded).getRowNum(), 2);
  EXPECT_TRUE(problems(*loaded).empty());
  EXPECT_EQ(printed(*loaded), "5 db S1, kék; 3 db S2, piros; M");
  EXPECT_EQ(storedOf(*invoice), kAll);
}

TEST_F(GoodsChangedTest, anEmptyVariableWasRemoved) {
  setCell(listOf(*invoice), 11, 0, "");
  setCell(listOf(*invoice), 12, 1, "");
  setCell(listOf(*invoice), 12, 2, "");
  save(*invoice);
  dissociate(11);
  dissociate(12);
  const auto loaded = expectLoaded({"-1/1=5", "13/1=kék", "-1/2=3", "13/2=piros"});
  EXPECT_TRUE(problems(*loaded).empty());
  EXPECT_EQ(storedOf(*invoice).size(), 7u);
}

TEST_F(GoodsChangedTest, aPerUnitVariableWasAdded) {
  addVariable(14, "Új", TYPE_TEXT, 1, 1);
  associate(14, 0);
  const auto loaded =
      expectLoaded({"11/0=M", "-1/1=5", "14/1=", "12/1=S1", "13/1=kék", "-1/2=3", "14/2=", "12/2=S2", "13/2=piros"});
  EXPECT_EQ(listOf(*loaded).columns, 4);
  EXPECT_EQ(problems(*loaded), (Texts{"must Új", "must Új"}));
  addRow(*loaded, "1", "S3", "kék");
  EXPECT_NE(findCell(listOf(*loaded), 14, 3), nullptr);
}

TEST_F(GoodsChangedTest, aFilledPerUnitVariableWasRemoved) {
  dissociate(12);
  const auto loaded = expectLoaded({"11/0=M", "-1/1=5", "13/1=kék", "12/1=S1", "-1/2=3", "13/2=piros", "12/2=S2"});
  EXPECT_EQ(listOf(*loaded).columns, 2);
  EXPECT_EQ(listOf(*loaded).getRowNum(), 2);
  EXPECT_TRUE(problems(*loaded).empty());
  EXPECT_EQ(printed(*loaded), "M; 5 db kék, S1; 3 db piros, S2");
  listOf(*loaded).markRowForDelete(2);
  save(*loaded);
  EXPECT_EQ(storedOf(*invoice), (Texts{"11/0=M", "-1/1=5", "12/1=S1", "13/1=kék"}));
}

TEST_F(GoodsChangedTest, aRemovedVariableCameBack) {
  dissociate(12);
  save(*reload(*invoice));
  associate(12, 2);
  expectLoaded(kAll);
  EXPECT_EQ(storedOf(*invoice), kAll);
}

TEST_F(GoodsChangedTest, theOrderWasChanged) {
  database.exec("update t_productitemdata set position=9 where t_itemvariable_1=12");
  const auto loaded = expectLoaded({"11/0=M", "-1/1=5", "13/1=kék", "12/1=S1", "-1/2=3", "13/2=piros", "12/2=S2"});
  EXPECT_EQ(printed(*loaded), "M; 5 db kék, S1; 3 db piros, S2");
}

TEST_F(GoodsChangedTest, aVariableIsRecordedPerItemNow) {
  database.exec("update t_itemvariable set process=0 where t_itemvariable_id=12");
  const auto loaded =
      expectLoaded({"11/0=M", "12/0=", "-1/1=5", "13/1=kék", "12/1=S1", "-1/2=3", "13/2=piros", "12/2=S2"});
  EXPECT_EQ(listOf(*loaded).firstRowIndex, 2);
  EXPECT_EQ(problems(*loaded), Texts{"must Sarzs"});
  setCell(listOf(*loaded), 12, 0, "S");
  save(*loaded);
  EXPECT_EQ(printed(*reload(*invoice)), "M; S; 5 db kék, S1; 3 db piros, S2");
}

TEST_F(GoodsChangedTest, aVariableIsRecordedPerUnitNow) {
  database.exec("update t_itemvariable set process=1 where t_itemvariable_id=11");
  const auto loaded =
      expectLoaded({"-1/1=5", "11/1=", "12/1=S1", "13/1=kék", "-1/2=3", "11/2=", "12/2=S2", "13/2=piros", "11/0=M"});
  EXPECT_EQ(listOf(*loaded).firstRowIndex, 0);
  EXPECT_EQ(problems(*loaded), (Texts{"must Megjegyzés", "must Megjegyzés"}));
}

TEST_F(GoodsChangedTest, nothingIsRecordedPerUnitAnyMore) {
  dissociate(12);
  dissociate(13);
  const auto loaded = expectLoaded(kAll);
  EXPECT_EQ(listOf(*loaded).firstRowIndex, -1);
  EXPECT_EQ(listOf(*loaded).getRowNum(), 0);
  EXPECT_TRUE(problems(*loaded).empty());
  EXPECT_EQ(printed(*loaded), "M; 5 db S1, kék; 3 db S2, piros");
  listOf(*loaded).addRows(1);
  EXPECT_EQ(listOf(*loaded).no(), 7);
}

TEST_F(GoodsChangedTest, nothingIsRecordedAnyMore) {
  for (const int variable : {11, 12, 13}) dissociate(variable);
  const auto loaded = reload(*invoice);
  EXPECT_EQ(ItemDataList::of(&itemOf(*loaded)), nullptr);
  EXPECT_EQ(printed(*loaded), "");
  EXPECT_TRUE(problems(*loaded).empty());
  save(*loaded);
  EXPECT_EQ(storedOf(*invoice), kAll);
}

TEST_F(GoodsChangedTest, aVariableWasDeleted) {
  for (const int variable : {11, 12}) dissociate(variable);
  database.exec("delete from t_itemvariable where t_itemvariable_id in (11,12)");
  const auto loaded = expectLoaded({"-1/1=5", "13/1=kék", "-1/2=3", "13/2=piros"});
  EXPECT_EQ(printed(*loaded), "5 db kék; 3 db piros");
  EXPECT_EQ(storedOf(*invoice),
            (Texts{"NULL/0=M", "-1/1=5", "NULL/1=S1", "13/1=kék", "-1/2=3", "NULL/2=S2", "13/2=piros"}));
}

TEST_F(GoodsChangedTest, theChoicesWereChanged) {
  database.exec("update t_itemvariable set vvalue='zöld' where t_itemvariable_id=13");
  const auto loaded = expectLoaded(kAll);
  EXPECT_STREQ(findCell(listOf(*loaded), 13, 1)->vvalue.text(), "zöld");
  EXPECT_STREQ(findCell(listOf(*loaded), 13, 1)->value.text(), "kék");
}

TEST_F(GoodsChangedTest, nameKindAndNecessityWereChanged) {
  database.exec("update t_itemvariable set name='Méret', type=3, mandatory=0 where t_itemvariable_id=12");
  setCell(listOf(*invoice), 12, 2, "");
  save(*invoice);
  const auto loaded = reload(*invoice);
  EXPECT_EQ(problems(*loaded), Texts{"may Méret"});
  EXPECT_EQ(findCell(listOf(*loaded), 12, 1)->type, TYPE_LIST);
}

TEST_F(GoodsChangedTest, variablesCameWhereNothingWasStored) {
  for (const int variable : {11, 12, 13}) dissociate(variable);
  const auto bare = newInvoice();
  save(*bare);
  EXPECT_TRUE(storedOf(*bare).empty());
  for (const int variable : {11, 12, 13}) associate(variable, variable);
  const auto loaded = reload(*bare);
  EXPECT_EQ(cellsOf(listOf(*loaded)), Texts{"11/0="});
  EXPECT_EQ(listOf(*loaded).firstRowIndex, 1);
  EXPECT_EQ(problems(*loaded), (Texts{"less", "must Megjegyzés"}));
}

TEST_F(GoodsChangedTest, theOtherDirectionHasOtherVariables) {
  associate(11, 1, 100, "product", 200);
  invoice->setTypeCode(202);
  save(*invoice);
  expectLoaded(kAll);
  EXPECT_EQ(storedOf(*invoice), kAll);
}

TEST_F(GoodsChangedTest, emptyCellsOfARemovedVariableDoNotKeepADeletedRowAlive) {
  setCell(listOf(*invoice), 12, 2, "");
  save(*invoice);
  dissociate(12);
  const auto loaded = reload(*invoice);
  listOf(*loaded).markRowForDelete(2);
  save(*loaded);
  const auto again = reload(*invoice);
  EXPECT_EQ(cellsOf(listOf(*again)), (Texts{"11/0=M", "-1/1=5", "13/1=kék", "12/1=S1"}));
  EXPECT_EQ(listOf(*again).rows, 1);
}
