#include <gtest/gtest.h>

#include "Remark.h"
#include "host/xml/Document.h"
#include "host/xml/Element.h"
#include "tests/examples/RemarkWorld.h"

using Brontel::Invoice;
using Remarks::Remark;

namespace {

class RemarkTest : public ::testing::Test {
 protected:
  using Result = RemarkWorld::Result;
  using Texts = std::vector<std::string>;

  Brontel::Morvane app{"example-test", "Brontel"};
  RemarkWorld world{app};
};

}  // namespace

TEST_F(RemarkTest, isStoredWithItsItemAndReadAgain) {
  Remark::set(&world.item(0), "törékeny");
  ASSERT_EQ(world.repository().save(world.invoice()), Result::Done);
  EXPECT_EQ(world.stored(), Texts{"1 törékeny"});
  const std::unique_ptr<Invoice> loaded = world.reload();
  EXPECT_STREQ(Remark::textOf(loaded->getItems()[0]).text(), "törékeny");
  EXPECT_EQ(Remark::of(loaded->getItems()[1]), nullptr);
}

TEST_F(RemarkTest, isReplacedAndTakenBack) {
  Remark::set(&world.item(0), "törékeny");
  Remark::set(&world.item(1), "sürgős");
  ASSERT_EQ(world.repository().save(world.invoice()), Result::Done);
  Remark::set(&world.item(0), "nem törékeny");
  Remark::set(&world.item(1), "");
  ASSERT_EQ(world.repository().save(world.invoice()), Result::Done);
  EXPECT_EQ(world.stored(), Texts{"1 nem törékeny"});
}

TEST_F(RemarkTest, aSaveThatFailedCanBeRepeated) {
  Remark::set(&world.item(0), "törékeny");
  world.database().exec(
      "create trigger refuse before insert on t_invoiceitemremark begin select raise(abort,'no'); end");
  EXPECT_EQ(world.repository().save(world.invoice()), Result::Failed);
  EXPECT_EQ(world.database().text("select count(*) from t_invoice"), "0");
  EXPECT_STREQ(Remark::textOf(&world.item(0)).text(), "törékeny");
  world.database().exec("drop trigger refuse");
  ASSERT_EQ(world.repository().save(world.invoice()), Result::Done);
  EXPECT_EQ(world.stored(), Texts{"1 törékeny"});
}

TEST_F(RemarkTest, goesWithItsItem) {
  Remark::set(&world.item(0), "törékeny");
  ASSERT_EQ(world.repository().save(world.invoice()), Result::Done);
  world.invoice().removeItem(0);
  ASSERT_EQ(world.repository().save(world.invoice()), Result::Done);
  EXPECT_EQ(world.stored(), Texts());
}

TEST_F(RemarkTest, isCopiedButNotDerived) {
  Remark::set(&world.item(0), "törékeny");
  ASSERT_EQ(world.repository().save(world.invoice()), Result::Done);
  const std::unique_ptr<Invoice> copy(world.invoice().copy());
  Remark::set(&world.item(0), "sürgős");
  EXPECT_STREQ(Remark::textOf(copy->getItems()[0]).text(), "törékeny");
  EXPECT_EQ(Remark::of(copy->getItems()[0])->getOwner(), copy->getItems()[0]);
  const std::unique_ptr<Invoice> derived(world.invoice().derive());
  world.repository().loadPluginData(*derived);
  EXPECT_EQ(Remark::of(derived->getItems()[0]), nullptr);
}

TEST_F(RemarkTest, aQuestionHasToBeAnswered) {
  EXPECT_EQ(world.check(), Texts());
  Remark::set(&world.item(0), "rendben");
  Remark::set(&world.item(1), "Melyik szín?");
  EXPECT_EQ(world.check(), Texts{"1 T_REMARKQUESTION A(z) 2. tétel megjegyzése megválaszolatlan kérdés: Melyik szín?"});
}

TEST_F(RemarkTest, isPrintedAndExported) {
  EXPECT_STREQ(world.plugins().toString(&world.item(0)).text(), "");
  Remark::set(&world.item(0), "100% <új>");
  EXPECT_STREQ(world.plugins().toString(&world.item(0)).text(), "Megjegyzés: 100% <új>");
  XMLBuilder::Document document("item");
  world.plugins().toXml(&world.item(0), document.getRoot());
  world.plugins().toXml(&world.item(1), document.getRoot());
  EXPECT_STREQ(document.toText().text(),
               "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<item xmlns:remark=\"urn:example:remark\">\n"
               "  <remark:remark>100% &lt;új&gt;</remark:remark>\n</item>\n");
}

TEST_F(RemarkTest, aDatabaseThatCannotHaveItsTableIsRefused) {
  world.database().exec("drop table t_invoiceitemremark");
  world.database().exec("create view t_invoiceitemremark as select 1");
  EXPECT_EQ(world.container().init(), 0);
  app.setDB(nullptr);
  EXPECT_EQ(world.container().init(), 1);
}
