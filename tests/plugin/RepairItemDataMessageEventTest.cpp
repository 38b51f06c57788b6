#include <memory>
#include <type_traits>

#include <gtest/gtest.h>

#include "host/entity/InvoiceItem.h"
#include "host/message/Message.h"
#include "host/ui/DBForm.h"
#include "plugin/RepairItemDataMessageEvent.h"
#include "tests/support/TestApplication.h"

using Brontel::DBForm;
using Brontel::InvoiceItem;
using Brontel::Message;
using Brontel::MessageEvent;
using Brontel::Plugin::ItemData::RepairItemDataMessageEvent;

static_assert(std::is_base_of_v<MessageEvent, RepairItemDataMessageEvent>);
static_assert(std::is_same_v<decltype(std::declval<RepairItemDataMessageEvent>().execute(nullptr, 0)), void>);

namespace {

/// Counts the proposals, and deletes the message meanwhile when it is told to.
class CountingForm : public DBForm {
 public:
  explicit CountingForm(FX::FXApp* app) : DBForm(app, "form") {}

  void proposeCheckAll() override {
    ++proposals;
    message.reset();
  }

  int proposals = 0;
  std::unique_ptr<Message> message;

 protected:
  void checkAll() override {}
};

}  // namespace

TEST(RepairItemDataMessageEventTest, knowsItsKindParentAndItem) {
  InvoiceItem item;
  auto* parent = reinterpret_cast<FX::FXWindow*>(&item);
  const RepairItemDataMessageEvent event(parent, &item);
  EXPECT_EQ(event.getKind(), 2);
  EXPECT_EQ(event.getParent(), parent);
  EXPECT_EQ(event.getItem(), &item);
}

TEST(RepairItemDataMessageEventTest, goesWithItsMessageButLeavesTheItem) {
  InvoiceItem item;
  item.setName("still there");
  auto message = std::make_unique<Message>("C", 1, "text", "title", nullptr,
                                           new RepairItemDataMessageEvent(nullptr, &item), nullptr);
  EXPECT_NE(message->getRepairEvent(), nullptr);
  message.reset();
  EXPECT_STREQ(item.getName().text(), "still there");
}

TEST(RepairItemDataMessageEventTest, doesNothingWithoutAForm) {
  TestApplication application;
  InvoiceItem item;
  RepairItemDataMessageEvent(nullptr, &item).execute(nullptr, 0);
  FX::FXMainWindow foreign(application.get(), "no form");
  RepairItemDataMessageEvent(&foreign, &item).execute(nullptr, 0);
  EXPECT_STREQ(foreign.getTitle().text(), "no form");
}

TEST(RepairItemDataMessageEventTest, makesTheFormCheckAgainEachTime) {
  TestApplication application;
  CountingForm form(application.get());
  InvoiceItem item;
  RepairItemDataMessageEvent event(&form, &item);
  event.execute(nullptr, 0);
  EXPECT_EQ(form.proposals, 1);
  event.execute(nullptr, 99);
  EXPECT_EQ(form.proposals, 2);
}

TEST(RepairItemDataMessageEventTest, mayBeDeletedByTheCheckThatItProposes) {
  TestApplication application;
  CountingForm form(application.get());
  InvoiceItem item;
  auto* event = new RepairItemDataMessageEvent(&form, &item);
  form.message = std::make_unique<Message>("C", 1, "text", "title", nullptr, event, nullptr);
  event->execute(form.message.get(), 0);
  EXPECT_EQ(form.proposals, 1);
  EXPECT_EQ(form.message, nullptr);
}
