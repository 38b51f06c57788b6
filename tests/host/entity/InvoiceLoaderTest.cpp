#include <climits>

#include <gtest/gtest.h>

#include "host/entity/Invoice.h"
#include "host/entity/InvoiceLoader.h"

using Brontel::Invoice;
using Brontel::InvoiceItem;
using Brontel::InvoiceItemLoader;
using Brontel::InvoiceLoader;

namespace {

void deliver(DataBaseValueLoader& loader, std::initializer_list<const char*> values) {
  int column = 0;
  for (const char* value : values) EXPECT_NE(loader.processValue(column++, "", value), 0);
}

}  // namespace

TEST(InvoiceLoaderTest, fillsTheHead) {
  Invoice invoice;
  InvoiceLoader loader(invoice);
  deliver(loader, {"7", "N/1", "201", "151", "3", "Kovács", "2024-01-02", "9"});
  EXPECT_EQ(invoice.getId(), 7);
  EXPECT_STREQ(invoice.getNumber().text(), "N/1");
  EXPECT_EQ(invoice.getTypeCode(), 201);
  EXPECT_EQ(invoice.getStatus(), 151);
  EXPECT_EQ(invoice.getReferencedInvoiceId(), 3);
  EXPECT_STREQ(invoice.getPartner().text(), "Kovács");
  EXPECT_STREQ(invoice.getDate().text(), "2024-01-02");
  EXPECT_EQ(invoice.getVersion(), 9);
  EXPECT_EQ(loader.getNumRows(), 1);
}

TEST(InvoiceLoaderTest, takesNullForNothing) {
  Invoice invoice;
  InvoiceLoader loader(invoice);
  deliver(loader, {"7", nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr});
  EXPECT_EQ(invoice.getId(), 7);
  EXPECT_TRUE(invoice.getNumber().empty());
  EXPECT_EQ(invoice.getTypeCode(), 0);
  EXPECT_EQ(invoice.getReferencedInvoiceId(), 0);
  EXPECT_EQ(invoice.getVersion(), 0);
}

TEST(InvoiceItemLoaderTest, appendsAnItemForEachRow) {
  Invoice invoice;
  InvoiceItemLoader loader(invoice);
  deliver(loader, {"5", "name", "2", "11", "2.50", "kg", "10.00", "4"});
  deliver(loader, {"6", nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr});
  ASSERT_EQ(invoice.getItems().no(), 2);
  const InvoiceItem* item = invoice.getItems()[0];
  EXPECT_EQ(item->getId(), 5);
  EXPECT_EQ(item->getInvoice(), &invoice);
  EXPECT_STREQ(item->getName().text(), "name");
  EXPECT_EQ(item->getGoodsKind(), 2);
  EXPECT_EQ(item->getGoodsId(), 11);
  EXPECT_STREQ(item->getQuantity().toString().text(), "2.5");
  EXPECT_STREQ(item->getUnit().text(), "kg");
  EXPECT_STREQ(item->getPrice().text(), "10.00");
  EXPECT_EQ(item->getReferencedItemId(), 4);
  EXPECT_EQ(item->getReferenceMode(), 0);
  const InvoiceItem* empty = invoice.getItems()[1];
  EXPECT_EQ(empty->getId(), 6);
  EXPECT_TRUE(empty->getName().empty());
  EXPECT_EQ(empty->getGoodsKind(), 0);
  EXPECT_TRUE(empty->getQuantity() == 0);
  EXPECT_EQ(loader.getNumRows(), 2);
}

TEST(InvoiceItemLoaderTest, survivesValuesOfAnotherKind) {
  Invoice invoice;
  InvoiceItemLoader loader(invoice);
  deliver(loader, {"x", "", "99999999999", "-1", "many", "", "", "abc"});
  const InvoiceItem* item = invoice.getItems()[0];
  EXPECT_EQ(item->getId(), 0);
  EXPECT_EQ(item->getGoodsKind(), INT_MAX);
  EXPECT_EQ(item->getGoodsId(), -1);
  EXPECT_TRUE(item->getQuantity() == 0);
  EXPECT_EQ(item->getReferencedItemId(), 0);
}
