#include <set>
#include <type_traits>

#include <gtest/gtest.h>

#include "plugin/InvoiceCheck.h"
#include "plugin/RepairItemDataMessageEvent.h"
#include "tests/plugin/PluginWorld.h"
#include "tests/plugin/SpyEntry.h"
#include "tests/support/RecordingObserver.h"

using Brontel::Invoice;
using Brontel::InvoiceItem;
using Brontel::ListOfMessage;
using Brontel::Message;
using Brontel::MessageEvent;
using Brontel::Plugin::InvoiceCheckPlugin;
using Brontel::Plugin::ItemData::InvoiceCheck;
using Brontel::Plugin::ItemData::ItemDataStringEntry;
using Brontel::Plugin::ItemData::RepairItemDataMessageEvent;
using FX::FXint;
using Texts = std::vector<std::string>;

static_assert(std::is_base_of_v<InvoiceCheckPlugin, InvoiceCheck>);
static_assert(sizeof(InvoiceCheck) == sizeof(InvoiceCheckPlugin), "it keeps nothing of its own");

namespace {

/// Messages as the host has them after a check: it deletes them.
class Messages : public ListOfMessage {
 public:
  Messages() = default;
  ~Messages() override {
    for (FXint i = 0; i < no(); ++i) delete at(i);
  }
};

class InvoiceCheckTest : public testing::Test {
 protected:
  int check(Invoice* invoice, ListOfMessage& messages, FX::FXWindow* parent = nullptr) {
    auto* plugin = static_cast<InvoiceCheckPlugin*>(world_.container().getModules()[1]);
    return plugin->checkInvoice(parent, invoice, messages, "X");
  }
  InvoiceItem* addItem(Brontel::GoodsKind kind, int goods, const char* quantity = "1") {
    return world_.addItem(*invoice_, kind, goods, quantity);
  }
  InvoiceItem* addChair() { return addItem(Brontel::GOODS_PRODUCT, SampleGoods::CHAIR); }

  PluginWorld world_;
  std::unique_ptr<Invoice> invoice_ = newInvoice();
};

constexpr const char* kWantedNote =
    "1 T_ITEMDATAWANTED A(z) 1. tételhez rögzíteni kell néhány egyéb adatot!\\nMező neve:Megjegyzés";
constexpr const char* kPossibleDate =
    "0 T_ITEMDATAWANTED A(z) 1. tételhez lehet rögzíteni néhány egyéb adatot!\\nMező neve:Garancia";

}  // namespace

TEST_F(InvoiceCheckTest, findsNothingOnAnInvoiceWithoutItems) {
  Messages messages;
  EXPECT_EQ(check(invoice_.get(), messages), 1);
  EXPECT_EQ(check(nullptr, messages), 1);
  EXPECT_EQ(messages.no(), 0);
  EXPECT_EQ(messages.getFirstCounter(), 0);
  EXPECT_EQ(messages.getSecondCounter(), 0);
}

TEST_F(InvoiceCheckTest, findsNothingWhereAllIsRight) {
  world_.addSofa(*invoice_, "5", "A", {{"3", "S1", "kék"}, {"2", "S2", "piros"}});
  Messages messages;
  EXPECT_EQ(check(invoice_.get(), messages), 1);
  EXPECT_EQ(messages.no(), 0);
}

TEST_F(InvoiceCheckTest, tellsOfEmptyCellsByTheirWeight) {
  addChair();
  EXPECT_EQ(world_.check(*invoice_), (Texts{kWantedNote, kPossibleDate}));
}

TEST_F(InvoiceCheckTest, tellsOfQuantitiesThatDoNotAddUp) {
  InvoiceItem* item = world_.addSofa(*invoice_, "5", "A", {{"3", "S1", "kék"}, {"2.0001", "S2", "piros"}});
  EXPECT_EQ(world_.check(*invoice_),
            Texts{"1 T_ITEMDATAQUANTITYMORETHAN Egyéb tételadatok: Az összmennyiség (5.0001) több, mint a "
                  "tétellistában megadott (5)."});
  type(item, SampleGoods::QUANTITY, 2, "1.5");
  EXPECT_EQ(world_.check(*invoice_),
            Texts{"1 T_ITEMDATAQUANTITYLESSTHAN Egyéb tételadatok: Az összmennyiség (4.5) kevesebb, mint a "
                  "tétellistában megadott (5)."});
  type(item, SampleGoods::QUANTITY, 2, "2");
  EXPECT_EQ(world_.check(*invoice_), Texts());
}

TEST_F(InvoiceCheckTest, tellsOfTheQuantityFirstAndOfCellsInOrder) {
  InvoiceItem* item = world_.addSofa(*invoice_, "5", "", {{"3", "", ""}});
  ASSERT_NE(item, nullptr);
  Messages messages;
  EXPECT_EQ(check(invoice_.get(), messages), 1);
  ASSERT_EQ(messages.no(), 4);
  EXPECT_STREQ(messages[0]->getCode().text(), "X_ITEMDATAQUANTITYLESSTHAN");
  const char* const names[] = {"Megjegyzés", "Sarzs", "Szín"};
  for (FXint i = 1; i < 4; ++i) {
    EXPECT_STREQ(messages[i]->getCode().text(), "X_ITEMDATAWANTED");
    EXPECT_NE(messages[i]->getText().find(names[i - 1]), -1);
  }
}

TEST_F(InvoiceCheckTest, namesTheInvoiceInEachTitle) {
  world_.addSofa(*invoice_, "5", "", {{"3", "", ""}});
  Messages messages;
  check(invoice_.get(), messages);
  ASSERT_EQ(messages.no(), 4);
  for (FXint i = 0; i < messages.no(); ++i) {
    EXPECT_STREQ(messages[i]->getTitle().text(), "Számla: Tételek listája\n[2024/1]\n");
  }
}

TEST_F(InvoiceCheckTest, countsEveryItemOfTheInvoice) {
  addItem(Brontel::GOODS_PRODUCT, SampleGoods::NAIL);
  addItem(Brontel::GOODS_NONE, 0);
  addChair();
  const Texts messages = world_.check(*invoice_);
  ASSERT_EQ(messages.size(), 2u);
  EXPECT_NE(messages[0].find("A(z) 3. tételhez"), std::string::npos) << messages[0];
}

TEST_F(InvoiceCheckTest, goesThroughTheItemsInOrder) {
  addChair();
  addChair();
  Messages messages;
  check(invoice_.get(), messages);
  ASSERT_EQ(messages.no(), 4);
  EXPECT_NE(messages[0]->getText().find("A(z) 1. "), -1);
  EXPECT_NE(messages[2]->getText().find("A(z) 2. "), -1);
}

TEST_F(InvoiceCheckTest, skipsItemsWithoutDataOrGoods) {
  InvoiceItem* withoutGoods = addChair();
  withoutGoods->setGoods(Brontel::GOODS_NONE, 0);
  auto* unread = new InvoiceItem;
  unread->setGoods(Brontel::GOODS_PRODUCT, SampleGoods::CHAIR);
  invoice_->appendItem(unread);
  EXPECT_EQ(world_.check(*invoice_), Texts());
  EXPECT_EQ(unread->getMiscData("ItemData"), nullptr);
}

TEST_F(InvoiceCheckTest, leavesClosedInvoicesAndOneTypeInPeace) {
  InvoiceItem* item = world_.addSofa(*invoice_, "5", "", {{"3", "", ""}});
  ASSERT_NE(item, nullptr);
  invoice_->setStatus(Brontel::STATUS_CLOSED);
  EXPECT_EQ(world_.check(*invoice_), Texts());
  invoice_->setStatus(Brontel::STATUS_STORNO);
  EXPECT_EQ(world_.check(*invoice_), Texts());
  invoice_->setStatus(Brontel::STATUS_OPEN);
  invoice_->setTypeCode(102);
  EXPECT_EQ(world_.check(*invoice_), Texts());
  invoice_->setTypeCode(101);
  EXPECT_EQ(world_.check(*invoice_).size(), 4u);
}

TEST_F(InvoiceCheckTest, givesEachMessageARepairEventOfItsOwn) {
  InvoiceItem* first = addChair();
  InvoiceItem* second = addChair();
  // Only handed on, so any address will do.
  auto* parent = reinterpret_cast<FX::FXWindow*>(this);
  Messages messages;
  check(invoice_.get(), messages, parent);
  ASSERT_EQ(messages.no(), 4);
  std::set<MessageEvent*> events;
  for (FXint i = 0; i < messages.no(); ++i) {
    auto* event = dynamic_cast<RepairItemDataMessageEvent*>(messages[i]->getRepairEvent());
    ASSERT_NE(event, nullptr);
    EXPECT_EQ(event->getParent(), parent);
    EXPECT_EQ(event->getItem(), i < 2 ? first : second);
    EXPECT_EQ(messages[i]->getEvent(), nullptr);
    EXPECT_EQ(messages[i]->getAction(), nullptr);
    events.insert(event);
  }
  EXPECT_EQ(events.size(), 4u);
}

TEST_F(InvoiceCheckTest, countsTheLevelsApartAndLeavesEarlierMessagesAlone) {
  world_.addSofa(*invoice_, "5", "", {{"5", "S1", ""}});
  addChair();
  Messages messages;
  auto* earlier = new Message("EARLIER", Message::LEVEL_BLOCKING, "text", "title", nullptr, nullptr, nullptr);
  messages.append(earlier);
  const FXint before = messages.getFirstCounter();
  check(invoice_.get(), messages);
  EXPECT_EQ(messages.no(), 5);
  EXPECT_EQ(messages.getFirstCounter(), before + 2);
  EXPECT_EQ(messages.getSecondCounter(), 2);
  EXPECT_EQ(messages[0], earlier);
  EXPECT_EQ(earlier->getRepairEvent(), nullptr);
}

TEST_F(InvoiceCheckTest, checksEachItemOnceIntoAListOfItsOwn) {
  SpyEntry::Log log;
  for (int i = 0; i < 2; ++i) {
    InvoiceItem* item = addChair();
    type(item, SampleGoods::NOTE, 0, "A");
    dataOf(item)->append(new SpyEntry(log, item));
  }
  Messages messages;
  check(invoice_.get(), messages);
  // Only the item's own missing date stands in the list by then.
  EXPECT_EQ(log, (Texts{"check 1 X 1", "check 2 X 1"}));
}

TEST_F(InvoiceCheckTest, isNotConfusedWhenTheInvoiceChangesMeanwhile) {
  struct RemovingEntry : ItemDataStringEntry {
    explicit RemovingEntry(Invoice& invoice) : invoice_(invoice) {}
    void check(int, ListOfMessage&, FX::FXString) override {
      if (invoice_.getItems().no() == 3) invoice_.removeItem(1);
    }
    Invoice& invoice_;
  };
  InvoiceItem* first = addChair();
  // Stored items outlive their removal.
  addChair()->setId(70);
  addChair();
  dataOf(first)->append(new RemovingEntry(*invoice_));
  Messages messages;
  EXPECT_EQ(check(invoice_.get(), messages), 1);
  EXPECT_EQ(invoice_->getItems().no(), 2);
  ASSERT_EQ(messages.no(), 6);
  for (FXint i = 0; i < 6; ++i) {
    const FX::FXString position = "A(z) " + FX::FXStringVal(i / 2 + 1) + ". ";
    EXPECT_NE(messages[i]->getText().find(position), -1) << messages[i]->getText().text();
  }
}

TEST_F(InvoiceCheckTest, touchesNeitherDatabaseNorItemsThatAreRight) {
  InvoiceItem* item = world_.addSofa(*invoice_, "5", "A", {{"5", "S1", "kék"}});
  const Texts before = cells(item, true);
  const RecordingObserver recorder(world_.handle());
  EXPECT_EQ(world_.check(*invoice_), Texts());
  EXPECT_EQ(cells(item, true), before);
  EXPECT_EQ(recorder.texts(), Texts());
}

TEST_F(InvoiceCheckTest, doesNotMissWhatACopyHolds) {
  InvoiceItem* item = world_.addSofa(*invoice_, "5", "A", {{"5", "S1", "kék"}});
  ASSERT_NE(item, nullptr);
  const std::unique_ptr<Invoice> copy(invoice_->copy());
  EXPECT_EQ(world_.check(*copy), Texts());
  EXPECT_EQ(cells(copy->getItems()[0]), (Texts{"11/0=A", "-1/1=5", "12/1=S1", "13/1=kék"}));
}

TEST_F(InvoiceCheckTest, findsNothingAfterTheDataHaveBeenFilledIn) {
  InvoiceItem* item = addChair();
  EXPECT_EQ(world_.check(*invoice_).size(), 2u);
  type(item, SampleGoods::NOTE, 0, "A");
  type(item, SampleGoods::DATE, 0, "2024-01-01");
  EXPECT_EQ(world_.check(*invoice_), Texts());
}

TEST_F(InvoiceCheckTest, keepsARowTypedInAfterTheLastStoredOneWasDeleted) {
  world_.addSofa(*invoice_, "5", "A", {{"3", "S1", "kék"}, {"2", "S2", "piros"}});
  ASSERT_EQ(world_.repository().save(*invoice_), PluginWorld::Result::Done);
  InvoiceItem* item = invoice_->getItems()[0];
  dataOf(item)->markRowForDelete(2);
  addRow(item, {"2", "S3", "kék"});
  EXPECT_EQ(world_.check(*invoice_), Texts());
  EXPECT_EQ(world_.print(*item), "A; 3 db S1, kék; 2 db S3, kék");
}
