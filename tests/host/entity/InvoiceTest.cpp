#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "host/entity/Invoice.h"
#include "tests/host/entity/TestMiscData.h"

using Brontel::Entity;
using Brontel::Invoice;
using Brontel::InvoiceItem;

namespace {

InvoiceItem* makeItem(int id, const char* name, int* living = nullptr) {
  auto* item = new InvoiceItem;
  item->setId(id);
  item->setName(name);
  if (living != nullptr) item->addMiscData("data", new TestMiscData(item, *living, id));
  return item;
}

}  // namespace

TEST(InvoiceTest, isAnOpenEntityAtFirst) {
  const Invoice invoice;
  EXPECT_TRUE(Invoice::metaClass.isSubClassOf(&Entity::metaClass));
  EXPECT_EQ(invoice.getStatus(), Brontel::STATUS_OPEN);
  EXPECT_FALSE(invoice.isStatusClosed());
  EXPECT_EQ(invoice.getItems().no(), 0);
  EXPECT_EQ(invoice.getTypeCode(), 0);
  EXPECT_EQ(invoice.getReferencedInvoiceId(), 0);
  EXPECT_EQ(invoice.getVersion(), 0);
  EXPECT_EQ(invoice.getLoadedDataMarker(), 0);
}

TEST(InvoiceTest, isClosedWhenClosedOrCancelled) {
  Invoice invoice;
  const auto isClosed = [&invoice](int status) {
    invoice.setStatus(status);
    return invoice.isStatusClosed();
  };
  EXPECT_TRUE(isClosed(151));
  EXPECT_TRUE(isClosed(152));
  for (const int status : {150, 0, -1, 149, 153}) EXPECT_FALSE(isClosed(status)) << status;
}

TEST(InvoiceTest, isCalledByItsNumberOrItsKey) {
  Invoice invoice;
  EXPECT_STREQ(invoice.getDisplayText().text(), "#0");
  invoice.setId(12);
  EXPECT_STREQ(invoice.getDisplayText().text(), "#12");
  invoice.setNumber("2024/Ő-7");
  EXPECT_STREQ(invoice.getDisplayText().text(), "2024/Ő-7");
}

TEST(InvoiceTest, offersAMarkerOfOneByte) {
  Invoice invoice;
  invoice.setLoadedDataMarker(255);
  EXPECT_EQ(invoice.getLoadedDataMarker(), 255);
  EXPECT_EQ(sizeof(invoice.getLoadedDataMarker()), 1u);
}

TEST(InvoiceTest, ownsItsItemsInTheirOrder) {
  int living = 0;
  {
    Invoice invoice;
    invoice.appendItem(makeItem(3, "a", &living));
    invoice.appendItem(makeItem(1, "b", &living));
    invoice.appendItem(nullptr);
    ASSERT_EQ(invoice.getItems().no(), 2);
    EXPECT_STREQ(invoice.getItems()[0]->getName().text(), "a");
    EXPECT_STREQ(invoice.getItems()[1]->getName().text(), "b");
    EXPECT_EQ(invoice.getItems()[1]->getInvoice(), &invoice);
  }
  EXPECT_EQ(living, 0);
}

TEST(InvoiceTest, takesAnItemInBetween) {
  Invoice invoice;
  invoice.insertItem(7, makeItem(1, "b"));
  invoice.insertItem(0, makeItem(2, "a"));
  invoice.insertItem(-3, makeItem(3, "first"));
  invoice.insertItem(2, makeItem(4, "between"));
  invoice.insertItem(0, nullptr);
  std::string names;
  for (int i = 0; i < invoice.getItems().no(); ++i) {
    names.append(invoice.getItems()[i]->getName().text()).append(" ");
    EXPECT_EQ(invoice.getItems()[i]->getInvoice(), &invoice);
  }
  EXPECT_EQ(names, "first a between b ");
}

TEST(InvoiceTest, deletesARemovedItemThatWasNeverStored) {
  int living = 0;
  Invoice invoice;
  invoice.appendItem(makeItem(0, "new", &living));
  invoice.removeItem(0);
  EXPECT_EQ(living, 0);
  EXPECT_EQ(invoice.getItems().no(), 0);
  EXPECT_EQ(invoice.getRemovedItems().no(), 0);
}

TEST(InvoiceTest, keepsARemovedItemThatIsStoredUntilItsRowIsGone) {
  int living = 0;
  Invoice invoice;
  invoice.appendItem(makeItem(5, "stored", &living));
  invoice.appendItem(makeItem(6, "other", &living));
  invoice.removeItem(0);
  ASSERT_EQ(invoice.getItems().no(), 1);
  EXPECT_STREQ(invoice.getItems()[0]->getName().text(), "other");
  ASSERT_EQ(invoice.getRemovedItems().no(), 1);
  EXPECT_EQ(invoice.getRemovedItems()[0]->getId(), 5);
  EXPECT_EQ(living, 2);
  invoice.deleteRemovedItems();
  EXPECT_EQ(living, 1);
  EXPECT_EQ(invoice.getRemovedItems().no(), 0);
}

TEST(InvoiceTest, removesNothingOutsideItsList) {
  Invoice invoice;
  invoice.removeItem(0);
  invoice.appendItem(makeItem(5, "a"));
  for (const int index : {-1, 1, 1000000}) invoice.removeItem(index);
  EXPECT_EQ(invoice.getItems().no(), 1);
  EXPECT_EQ(invoice.getRemovedItems().no(), 0);
}

namespace {

class InvoiceCopyTest : public ::testing::Test {
 protected:
  InvoiceCopyTest() {
    invoice.setId(4);
    invoice.setTypeCode(101);
    invoice.setStatus(Brontel::STATUS_CLOSED);
    invoice.setNumber("N");
    invoice.setPartner("P");
    invoice.setDate("2024-01-02");
    invoice.setVersion(8);
    invoice.setReferencedInvoiceId(3);
    invoice.setLoadedDataMarker(1);
    for (const int id : {21, 22, 23}) invoice.appendItem(makeItem(id, "item", &living));
    invoice.removeItem(2);
  }

  static void expectNewHead(const Invoice& other) {
    EXPECT_EQ(other.getId(), 0);
    EXPECT_EQ(other.getVersion(), 0);
    EXPECT_EQ(other.getStatus(), Brontel::STATUS_OPEN);
    EXPECT_EQ(other.getTypeCode(), 101);
    EXPECT_STREQ(other.getPartner().text(), "P");
    EXPECT_EQ(other.getLoadedDataMarker(), 0);
    ASSERT_EQ(other.getItems().no(), 2);
    EXPECT_EQ(other.getRemovedItems().no(), 0);
    EXPECT_EQ(other.getItems()[0]->getInvoice(), &other);
    EXPECT_EQ(other.getItems()[0]->getId(), 0);
  }

  int living = 0;
  Invoice invoice;
};

}  // namespace

TEST_F(InvoiceCopyTest, copiesWithTheItemsData) {
  const std::unique_ptr<Invoice> copy(invoice.copy());
  expectNewHead(*copy);
  EXPECT_EQ(copy->getReferencedInvoiceId(), 0);
  for (int i = 0; i < 2; ++i) {
    const InvoiceItem* item = copy->getItems()[i];
    EXPECT_EQ(item->getReferencedItemId(), 0);
    EXPECT_EQ(item->getReferenceMode(), 0);
    ASSERT_NE(item->getMiscData("data"), nullptr);
    EXPECT_EQ(item->getMiscData("data")->getOwner(), item);
  }
  EXPECT_EQ(living, 5);
}

TEST_F(InvoiceCopyTest, derivesItemByItem) {
  const std::unique_ptr<Invoice> derived(invoice.derive());
  expectNewHead(*derived);
  EXPECT_EQ(derived->getReferencedInvoiceId(), 4);
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(derived->getItems()[i]->getReferencedItemId(), 21 + i);
    EXPECT_EQ(derived->getItems()[i]->getReferenceMode(), InvoiceItem::MODE_DERIVED);
    EXPECT_EQ(derived->getItems()[i]->getMiscData("data"), nullptr);
  }
  EXPECT_EQ(living, 3);
}
