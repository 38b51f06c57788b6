#include <memory>

#include <gtest/gtest.h>

#include "host/entity/Invoice.h"
#include "host/entity/InvoiceItem.h"
#include "tests/host/entity/TestMiscData.h"

using Brontel::Entity;
using Brontel::Invoice;
using Brontel::InvoiceItem;
using FXExt::FXDecimal;

TEST(InvoiceItemTest, hasAMetaClassOfItsOwn) {
  EXPECT_TRUE(InvoiceItem::metaClass.isSubClassOf(&Entity::metaClass));
  EXPECT_FALSE(Invoice::metaClass.isSubClassOf(&InvoiceItem::metaClass));
  EXPECT_EQ(InvoiceItem().getMetaClass(), &InvoiceItem::metaClass);
}

TEST(InvoiceItemTest, isEmptyAtFirst) {
  const InvoiceItem item;
  EXPECT_EQ(item.getId(), 0);
  EXPECT_EQ(item.getInvoice(), nullptr);
  EXPECT_EQ(item.getGoodsKind(), Brontel::GOODS_NONE);
  EXPECT_EQ(item.getGoodsId(), 0);
  EXPECT_TRUE(item.getQuantity() == FXDecimal(0, 0, 4));
  EXPECT_EQ(item.getReferenceMode(), 0);
  EXPECT_EQ(item.getReferencedItemId(), 0);
  EXPECT_TRUE(item.getName().empty());
  EXPECT_TRUE(item.getUnit().empty());
  EXPECT_TRUE(item.getPrice().empty());
}

TEST(InvoiceItemTest, offersWhatPlugInsRead) {
  Invoice invoice;
  InvoiceItem item;
  item.setInvoice(&invoice);
  item.setGoods(Brontel::GOODS_SUITE, 12);
  item.setQuantity(FXDecimal("0.0001", 4));
  item.setUnit("db");
  item.setName("név");
  item.setReferenceMode(InvoiceItem::MODE_DERIVED);
  item.setReferencedItemId(5);
  EXPECT_EQ(item.getInvoice(), &invoice);
  EXPECT_EQ(item.getGoodsKind(), 3);
  EXPECT_EQ(item.getGoodsId(), 12);
  FXDecimal quantity = item.getQuantity();
  EXPECT_STREQ(quantity.toString().text(), "0.0001");
  EXPECT_STREQ(item.getUnit().text(), "db");
  EXPECT_STREQ(item.getName().text(), "név");
  EXPECT_EQ(item.getReferenceMode(), 1);
  EXPECT_EQ(item.getReferencedItemId(), 5);
}

namespace {

class InvoiceItemCopyTest : public ::testing::Test {
 protected:
  InvoiceItemCopyTest() {
    item.setId(7);
    item.setInvoice(&invoice);
    item.setGoods(Brontel::GOODS_PRODUCT, 3);
    item.setName("name");
    item.setQuantity(FXDecimal("2.5", 4));
    item.setUnit("kg");
    item.setPrice("10.00");
    item.setReferencedItemId(4);
    item.addMiscData("data", new TestMiscData(&item, living, 9));
  }

  static void expectSameFields(const InvoiceItem& other) {
    EXPECT_EQ(other.getId(), 0);
    EXPECT_EQ(other.getInvoice(), nullptr);
    EXPECT_EQ(other.getGoodsKind(), Brontel::GOODS_PRODUCT);
    EXPECT_EQ(other.getGoodsId(), 3);
    EXPECT_STREQ(other.getName().text(), "name");
    EXPECT_STREQ(other.getQuantity().toString().text(), "2.5");
    EXPECT_STREQ(other.getUnit().text(), "kg");
    EXPECT_STREQ(other.getPrice().text(), "10.00");
  }

  int living = 0;
  Invoice invoice;
  InvoiceItem item;
};

}  // namespace

TEST_F(InvoiceItemCopyTest, copiesDataAndRefersToNothing) {
  const std::unique_ptr<InvoiceItem> copy(item.copy());
  expectSameFields(*copy);
  EXPECT_EQ(copy->getReferenceMode(), 0);
  EXPECT_EQ(copy->getReferencedItemId(), 0);
  const auto* data = static_cast<TestMiscData*>(copy->getMiscData("data"));
  ASSERT_NE(data, nullptr);
  EXPECT_EQ(data->value, 9);
  EXPECT_EQ(data->getOwner(), copy.get());
  EXPECT_EQ(living, 2);
}

TEST_F(InvoiceItemCopyTest, derivesAReferenceWithoutData) {
  const std::unique_ptr<InvoiceItem> derived(item.derive());
  expectSameFields(*derived);
  EXPECT_EQ(derived->getReferenceMode(), InvoiceItem::MODE_DERIVED);
  EXPECT_EQ(derived->getReferencedItemId(), 7);
  EXPECT_EQ(derived->getMiscData("data"), nullptr);
  EXPECT_EQ(living, 1);
}
