// Template lists: the variables of an item's goods.

#include "itemdata/Codes.h"
#include "itemdata/Direction.h"
#include "itemdata/ItemDataList.h"
#include "itemdata/ListSelect.h"
#include "tests/itemdata/ItemDataFixture.h"
#include "tests/support/RecordingObserver.h"

using namespace Brontel::Plugin::ItemData;
using namespace Brontel;

namespace {

class ItemDataListSettingsTest : public ItemDataFixture {
 protected:
  ItemDataListSettingsTest() { item.setGoods(GOODS_PRODUCT, 100); }

  /// The cells of a template for the item on an invoice of that type.
  Texts settings(int invoiceKind = 101) {
    ItemDataList list;
    list.loadSettings(database.get(), invoiceKind, &item);
    return cellsOf(list);
  }

  InvoiceItem item;
};

}  // namespace

TEST_F(ItemDataListSettingsTest, directionsGoByTheHundredsWithExceptions) {
  for (const int kind : {801, 401, 451, 100, 101, 102, 152, 199}) EXPECT_EQ(directionOf(kind), 100) << kind;
  for (const int kind : {202, 252, 200, 201, 299}) EXPECT_EQ(directionOf(kind), 200) << kind;
  EXPECT_EQ(directionOf(301), 300);
  EXPECT_EQ(directionOf(452), 400);
  EXPECT_EQ(directionOf(802), 800);
  EXPECT_EQ(directionOf(99), 0);
  EXPECT_EQ(directionOf(0), 0);
  EXPECT_EQ(directionOf(-150), -100);
}

TEST_F(ItemDataListSettingsTest, readsTheAssociationsOfTheGoods) {
  const std::vector<std::pair<int, std::string>> selects = {
      {GOODS_PRODUCT,
       "select type,null,t_itemvariable_1,name,mandatory,process,vvalue from t_productitemdata join t_itemvariable on  "
       "t_itemvariable_1= t_itemvariable_id where direction=%direction and t_product_1=%id order by process, position"},
      {GOODS_SERVICE,
       "select type,null,t_itemvariable_1,name,mandatory,process,vvalue from t_serviceitemdata join t_itemvariable on  "
       "t_itemvariable_1= t_itemvariable_id where direction=%direction and t_service_1=%id order by process, position"},
      {GOODS_SUITE,
       "select type,null,t_itemvariable_1,name,mandatory,process,vvalue from t_suiteitemdata join t_itemvariable on  "
       "t_itemvariable_1= t_itemvariable_id where direction=%direction and t_suite_1=%id order by process, position"}};
  for (const auto& [kind, select] : selects) {
    item.setGoods(kind, 55);
    RecordingObserver recorder(database.handle());
    settings(202);
    EXPECT_EQ(recorder.texts(), Texts{select + " [id=55, direction=200]"});
  }
}

TEST_F(ItemDataListSettingsTest, otherGoodsHaveNone) {
  RecordingObserver recorder(database.handle());
  for (const int kind : {0, 4, -1, 100}) {
    item.setGoods(kind, 100);
    EXPECT_TRUE(settings().empty());
    EXPECT_EQ(settingsSelect(kind), nullptr);
  }
  EXPECT_TRUE(recorder.texts().empty());
}

TEST_F(ItemDataListSettingsTest, standPerItemFirstThenTheQuantityThenPerUnit) {
  addGoods();
  ItemDataList list;
  list.columns = 9;
  list.loadSettings(database.get(), 101, &item);
  EXPECT_EQ(cellsOf(list), (Texts{"11/0=", "-1/1=", "12/1=", "13/1="}));
  EXPECT_EQ(list.firstRowIndex, 1);
  EXPECT_EQ(list.columns, 3);
  EXPECT_EQ(list.rows, 1);
  EXPECT_EQ(list.templateList, nullptr);
}

TEST_F(ItemDataListSettingsTest, carryTheVariablesFields) {
  addGoods();
  ItemDataList list;
  list.loadSettings(database.get(), 101, &item);
  const ItemDataEntry& note = *list[0];
  EXPECT_EQ(note.getOwner(), nullptr);
  EXPECT_EQ(note.pk, 0);
  EXPECT_STREQ(note.name.text(), "Megjegyzés");
  EXPECT_EQ(note.type, TYPE_TEXT);
  EXPECT_EQ(note.mandatory, 1);
  EXPECT_EQ(note.process, 0);
  EXPECT_STREQ(note.value.text(), "");
  const ItemDataEntry& colour = *list[3];
  EXPECT_EQ(colour.type, TYPE_LIST);
  EXPECT_EQ(colour.mandatory, 0);
  EXPECT_EQ(colour.process, 1);
  EXPECT_STREQ(colour.vvalue.text(), "piros,kék");
  EXPECT_STREQ(colour.value.text(), "");
}

TEST_F(ItemDataListSettingsTest, areOrderedByPositionWithinBothParts) {
  addVariable(21, "a", TYPE_TEXT, 1);
  addVariable(22, "b", TYPE_TEXT, 0);
  addVariable(23, "c", TYPE_DATE, 1);
  addVariable(24, "d", TYPE_LIST, 0);
  associate(21, 3);
  associate(22, 4);
  associate(23, 1);
  associate(24, 2);
  EXPECT_EQ(settings(), (Texts{"24/0=", "22/0=", "-1/1=", "23/1=", "21/1="}));
}

TEST_F(ItemDataListSettingsTest, withoutPerUnitVariablesThereIsNoQuantity) {
  addVariable(11, "a", TYPE_TEXT, 0);
  associate(11, 1);
  ItemDataList list;
  list.loadSettings(database.get(), 101, &item);
  EXPECT_EQ(cellsOf(list), Texts{"11/0="});
  EXPECT_EQ(list.firstRowIndex, -1);
  EXPECT_EQ(list.columns, 0);
  EXPECT_EQ(list.rows, 0);
}

TEST_F(ItemDataListSettingsTest, withoutPerItemVariablesTheQuantityIsFirst) {
  addVariable(12, "a", TYPE_TEXT, 1);
  associate(12, 1);
  ItemDataList list;
  list.loadSettings(database.get(), 101, &item);
  EXPECT_EQ(cellsOf(list), (Texts{"-1/1=", "12/1="}));
  EXPECT_EQ(list.firstRowIndex, 0);
  EXPECT_EQ(list.columns, 2);
}

TEST_F(ItemDataListSettingsTest, goodsWithoutVariablesHaveNone) {
  addGoods();
  item.setGoods(GOODS_PRODUCT, 101);
  EXPECT_TRUE(settings().empty());
}

TEST_F(ItemDataListSettingsTest, holdForOneDirection) {
  addVariable(21, "out", TYPE_TEXT, 0);
  addVariable(22, "in", TYPE_TEXT, 0);
  associate(21, 1, 100, "product", 100);
  associate(22, 1, 100, "product", 200);
  for (const int kind : {101, 801, 401, 451}) EXPECT_EQ(settings(kind), Texts{"21/0="}) << kind;
  for (const int kind : {201, 202, 252}) EXPECT_EQ(settings(kind), Texts{"22/0="}) << kind;
  for (const int kind : {301, 452, 99}) EXPECT_TRUE(settings(kind).empty()) << kind;
}

TEST_F(ItemDataListSettingsTest, goodsOfDifferentKindsDoNotMix) {
  addVariable(21, "a", TYPE_TEXT, 0);
  addVariable(22, "b", TYPE_TEXT, 0);
  addVariable(23, "c", TYPE_TEXT, 0);
  associate(21, 1, 100, "product");
  associate(22, 1, 100, "service");
  associate(23, 1, 100, "suite");
  EXPECT_EQ(settings(), Texts{"21/0="});
  item.setGoods(GOODS_SERVICE, 100);
  EXPECT_EQ(settings(), Texts{"22/0="});
  item.setGoods(GOODS_SUITE, 100);
  EXPECT_EQ(settings(), Texts{"23/0="});
}

TEST_F(ItemDataListSettingsTest, anyProcessButZeroIsPerUnit) {
  addVariable(21, "null", TYPE_TEXT, 0);
  database.exec("update t_itemvariable set process=null where t_itemvariable_id=21");
  addVariable(22, "zero", TYPE_TEXT, 0);
  addVariable(23, "one", TYPE_TEXT, 1);
  addVariable(24, "two", TYPE_TEXT, 2);
  for (int variable = 21; variable <= 24; ++variable) associate(variable, variable);
  EXPECT_EQ(settings(), (Texts{"21/0=", "22/0=", "-1/1=", "23/1=", "24/2="}));
}

TEST_F(ItemDataListSettingsTest, variablesOfUnknownTypeAreLeftOut) {
  addVariable(21, "unknown", 7, 1);
  addVariable(22, "known", TYPE_TEXT, 0);
  associate(21, 1);
  associate(22, 2);
  EXPECT_EQ(settings(), Texts{"22/0="});
}

TEST_F(ItemDataListSettingsTest, aListWithOwnerGivesItToItsCells) {
  addGoods();
  ItemDataList list(&item, nullptr);
  list.loadSettings(database.get(), 101, &item);
  for (FX::FXint i = 0; i < list.no(); ++i) EXPECT_EQ(list[i]->getOwner(), &item);
}

TEST_F(ItemDataListSettingsTest, nothingIsReadWithoutItem) {
  RecordingObserver recorder(database.handle());
  ItemDataList list;
  list.loadSettings(database.get(), 101, nullptr);
  EXPECT_TRUE(recorder.texts().empty());
  EXPECT_EQ(list.no(), 0);
}

TEST_F(ItemDataListSettingsTest, theStatementsForStoredCellsAreFixed) {
  EXPECT_STREQ(kStoredCells,
               "select type,t_invoiceitemdata_id,t_itemvariable_1,name,mandatory,row,value from t_invoiceitemdata left "
               "join t_itemvariable on t_itemvariable_1=t_itemvariable_id where t_invoiceitem_1=%id order by row, "
               "t_invoiceitemdata_id");
  EXPECT_STREQ(
      kDerivedCells,
      "select type,0,t_itemvariable_1,name,mandatory,row,value from t_invoiceitemdata left join t_itemvariable on "
      "t_itemvariable_1=t_itemvariable_id where t_invoiceitem_1=%id order by row, t_invoiceitemdata_id");
}
