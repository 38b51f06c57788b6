#include <memory>
#include <type_traits>

#include <gtest/gtest.h>

#include "host/message/Message.h"
#include "tests/host/message/CountingEvent.h"

using Brontel::Message;
using Brontel::MessageCheckAction;
using Brontel::MessageEvent;

namespace {

Message plain(MessageEvent* event = nullptr, MessageEvent* repairEvent = nullptr) {
  return Message("CODE", 1, "text", "title", event, repairEvent, nullptr);
}

}  // namespace

TEST(MessageTest, keepsWhatItIsGiven) {
  int living = 0;
  auto* event = new CountingEvent(living);
  auto* repair = new CountingEvent(living);
  // Never looked into, so that any address will do.
  auto* action = reinterpret_cast<MessageCheckAction*>(&living);
  const Message message("X_CODE", 7, "szöveg", "cím\n", event, repair, action);
  EXPECT_STREQ(message.getCode().text(), "X_CODE");
  EXPECT_EQ(message.getLevel(), 7u);
  EXPECT_STREQ(message.getText().text(), "szöveg");
  EXPECT_STREQ(message.getTitle().text(), "cím\n");
  EXPECT_EQ(message.getEvent(), event);
  EXPECT_EQ(message.getRepairEvent(), repair);
  EXPECT_EQ(message.getAction(), action);
}

TEST(MessageTest, canBeChangedAfterConstruction) {
  int living = 0;
  Message message = plain();
  message.setLevel(Message::LEVEL_NOTICE);
  message.setText("other");
  EXPECT_EQ(message.getLevel(), 0u);
  EXPECT_STREQ(message.getText().text(), "other");
  EXPECT_EQ(message.getEvent(), nullptr);
  EXPECT_EQ(message.getRepairEvent(), nullptr);
  auto* event = new CountingEvent(living);
  message.setRepairEvent(event);
  EXPECT_EQ(message.getRepairEvent(), event);
}

TEST(MessageTest, deletesItsEvents) {
  int living = 0;
  {
    const Message message = plain(new CountingEvent(living), new CountingEvent(living));
    EXPECT_EQ(living, 2);
  }
  EXPECT_EQ(living, 0);
}

TEST(MessageTest, deletesAnEventThatServesBothPurposesOnce) {
  int living = 0;
  {
    auto* both = new CountingEvent(living);
    const Message message = plain(both, both);
    EXPECT_EQ(living, 1);
  }
  EXPECT_EQ(living, 0);
}

TEST(MessageTest, deletesTheRepairEventThatIsReplaced) {
  int living = 0;
  {
    auto* event = new CountingEvent(living);
    Message message = plain(event, new CountingEvent(living));
    message.setRepairEvent(new CountingEvent(living));
    EXPECT_EQ(living, 2);
    message.setRepairEvent(message.getRepairEvent());
    EXPECT_EQ(living, 2);
    message.setRepairEvent(event);
    EXPECT_EQ(living, 1);
    message.setRepairEvent(nullptr);
    EXPECT_EQ(living, 1);
    EXPECT_EQ(message.getEvent(), event);
    message.setRepairEvent(nullptr);
  }
  EXPECT_EQ(living, 0);
}

TEST(MessageTest, isAnObjectThatCannotBeCopied) {
  EXPECT_TRUE((std::is_base_of_v<FX::FXObject, Message>));
  EXPECT_FALSE(std::is_copy_constructible_v<Message>);
  const auto message = std::make_unique<Message>("", 0, "", "", nullptr, nullptr, nullptr);
  EXPECT_EQ(static_cast<void*>(static_cast<FX::FXObject*>(message.get())), static_cast<void*>(message.get()));
}

TEST(MessageEventTest, isExecutedWithItsMessage) {
  int living = 0;
  auto* event = new CountingEvent(living);
  Message message = plain(event);
  message.getEvent()->execute(&message, 5);
  EXPECT_EQ(event->lastMessage, &message);
  EXPECT_EQ(event->lastArg, 5);
  EXPECT_EQ(event->getKind(), 2);
  EXPECT_TRUE(std::is_abstract_v<MessageEvent>);
  EXPECT_TRUE(std::has_virtual_destructor_v<MessageEvent>);
}

TEST(MessageEventTest, mayLeadToItsOwnEnd) {
  int living = 0;
  std::unique_ptr<Message> message;
  message = std::make_unique<Message>("", 0, "", "", new CountingEvent(living, [&message] { message.reset(); }),
                                      nullptr, nullptr);
  message->getEvent()->execute(message.get(), 0);
  EXPECT_EQ(living, 0);
}
