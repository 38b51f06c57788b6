#include <gtest/gtest.h>

#include "host/database/Transaction.h"
#include "host/entity/EntityTables.h"
#include "host/entity/GoodsRepository.h"
#include "tests/support/CollectingErrorSink.h"
#include "tests/support/FaultObserver.h"
#include "tests/support/TestDatabase.h"

using Brontel::Goods;
using Brontel::GoodsRepository;
using Result = GoodsRepository::Result;

namespace {

class GoodsRepositoryTest : public ::testing::Test {
 protected:
  GoodsRepositoryTest() { EXPECT_EQ(Brontel::Model::initEntityTables(database.get()), 1); }

  static Goods chair() {
    Goods goods;
    goods.code = "SZ-1";
    goods.name = "Szék";
    goods.unit = "db";
    goods.price = "12.5";
    return goods;
  }
  std::string find(const char* text) {
    std::string names;
    for (const Goods& goods : products.find(text)) names += std::string(goods.name.text()) + "|";
    return names;
  }

  TestDatabase database;
  GoodsRepository products{database.handle(), Brontel::GOODS_PRODUCT};
};

}  // namespace

TEST_F(GoodsRepositoryTest, storesEachKindInItsTable) {
  using Kind = Brontel::GoodsKind;
  for (const auto& [kind, table] : {std::pair<Kind, const char*>{Brontel::GOODS_PRODUCT, "t_product"},
                                    {Brontel::GOODS_SERVICE, "t_service"},
                                    {Brontel::GOODS_SUITE, "t_suite"}}) {
    GoodsRepository repository(database.handle(), kind);
    EXPECT_STREQ(repository.getTable().text(), table);
    Goods goods = chair();
    EXPECT_EQ(repository.save(goods), Result::Done);
    EXPECT_EQ(goods.id, 1);
    EXPECT_EQ(goods.version, 1);
    const std::string select = std::string("select code, name, unit, price, version from ") + table;
    EXPECT_EQ(database.rows(select), (std::vector<std::vector<std::string>>{{"SZ-1", "Szék", "db", "12.5", "1"}}));
    Goods loaded;
    EXPECT_EQ(repository.load(1, loaded), Result::Done);
    EXPECT_TRUE(loaded == goods);
  }
}

TEST_F(GoodsRepositoryTest, changesItsOwnRowOnly) {
  Goods first = chair();
  Goods second = chair();
  ASSERT_EQ(products.save(first), Result::Done);
  ASSERT_EQ(products.save(second), Result::Done);
  EXPECT_EQ(second.id, 2);
  first.name = "Asztal";
  EXPECT_EQ(products.save(first), Result::Done);
  EXPECT_EQ(first.version, 2);
  EXPECT_EQ(database.text("select group_concat(name||version) from t_product"), "Asztal2,Szék1");
}

TEST_F(GoodsRepositoryTest, refusesToOverwriteWhatSomebodyElseHasSaved) {
  Goods mine = chair();
  ASSERT_EQ(products.save(mine), Result::Done);
  Goods theirs;
  ASSERT_EQ(products.load(mine.id, theirs), Result::Done);
  theirs.name = "Övék";
  ASSERT_EQ(products.save(theirs), Result::Done);
  mine.name = "Enyém";
  const Goods before = mine;
  EXPECT_EQ(products.save(mine), Result::Overtaken);
  EXPECT_TRUE(mine == before);
  EXPECT_EQ(database.text("select name from t_product"), "Övék");
  database.exec("delete from t_product");
  EXPECT_EQ(products.save(theirs), Result::Overtaken);
  EXPECT_EQ(database.text("select count(*) from t_product"), "0");
}

TEST_F(GoodsRepositoryTest, takesRowsWithoutVersionAndWithNulls) {
  database.exec("insert into t_product (t_product_id, name) values (7, 'régi')");
  Goods goods;
  ASSERT_EQ(products.load(7, goods), Result::Done);
  EXPECT_EQ(goods.version, 0);
  EXPECT_TRUE(goods.code.empty());
  EXPECT_EQ(products.save(goods), Result::Done);
  EXPECT_EQ(database.text("select version from t_product"), "1");
}

TEST_F(GoodsRepositoryTest, findsPartsOfCodeAndNameInWhateverCase) {
  database.exec(
      "insert into t_product (code, name) values ('A-1','Ülőgarnitúra'), ('B-2','asztal'), ('c%3','100%_pamut'), "
      "(null,'névtelen'), ('x',null)");
  EXPECT_EQ(find(""), "|100%_pamut|asztal|névtelen|Ülőgarnitúra|");
  EXPECT_EQ(find("ÜLŐ"), "Ülőgarnitúra|");
  EXPECT_EQ(find("b-"), "asztal|");
  EXPECT_EQ(find("%_"), "100%_pamut|");
  EXPECT_EQ(find("'"), "");
  EXPECT_EQ(find("nincs"), "");
}

TEST_F(GoodsRepositoryTest, keepsHostileTextAsItIs) {
  Goods goods = chair();
  goods.name = "a & b 'c' \"d\" %id 😀";
  for (int i = 0; i < 500; ++i) goods.code += "ű";
  ASSERT_EQ(products.save(goods), Result::Done);
  Goods loaded;
  ASSERT_EQ(products.load(goods.id, loaded), Result::Done);
  EXPECT_TRUE(loaded == goods);
}

TEST_F(GoodsRepositoryTest, tellsWhatIsMissingAndWhatFailed) {
  Goods goods = chair();
  EXPECT_EQ(products.load(99, goods), Result::NotFound);
  EXPECT_STREQ(goods.name.text(), "Szék");
  for (int number = 1;; ++number) {
    const FaultObserver fault(database.handle(), number);
    goods = chair();
    const Result result = products.save(goods);
    if (fault.faults() == 0) break;
    EXPECT_EQ(result, Result::Failed) << number;
    EXPECT_EQ(goods.id, 0);
    EXPECT_EQ(goods.version, 0);
  }
  const FaultObserver fault(database.handle(), 1);
  EXPECT_EQ(products.load(1, goods), Result::Failed);
}
