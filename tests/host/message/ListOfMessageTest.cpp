#include <memory>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "host/message/ListOfMessage.h"
#include "tests/host/message/CountingEvent.h"

using Brontel::ListOfMessage;
using Brontel::Message;

namespace {

class ListOfMessageTest : public ::testing::Test {
 protected:
  Message* message(unsigned int level) {
    messages_.push_back(std::make_unique<Message>("CODE", level, "", "", new CountingEvent(living), nullptr, nullptr));
    return messages_.back().get();
  }

  static void expectCounters(const ListOfMessage& list, int first, int second) {
    EXPECT_EQ(list.getFirstCounter(), first);
    EXPECT_EQ(list.getSecondCounter(), second);
  }

  int living = 0;

 private:
  std::vector<std::unique_ptr<Message>> messages_;
};

}  // namespace

TEST_F(ListOfMessageTest, startsEmpty) {
  const ListOfMessage list;
  EXPECT_EQ(list.no(), 0);
  expectCounters(list, 0, 0);
  EXPECT_TRUE((std::is_base_of_v<FX::FXObjectListOf<Message>, ListOfMessage>));
  EXPECT_TRUE((std::is_same_v<decltype(list.getFirstCounter()), FX::FXint>));
}

TEST_F(ListOfMessageTest, ignoresNull) {
  ListOfMessage list;
  list.append(static_cast<Message*>(nullptr));
  EXPECT_EQ(list.no(), 0);
  expectCounters(list, 0, 0);
}

TEST_F(ListOfMessageTest, countsSingleMessagesOfBothLevelsInTheFirstCounter) {
  ListOfMessage list;
  Message* blocking = message(1);
  Message* notice = message(0);
  list.append(blocking);
  expectCounters(list, 1, 0);
  list.append(notice);
  expectCounters(list, 2, 0);
  ASSERT_EQ(list.no(), 2);
  EXPECT_EQ(list[0], blocking);
  EXPECT_EQ(list[1], notice);
}

TEST_F(ListOfMessageTest, appendsOtherLevelsWithoutCounting) {
  ListOfMessage list;
  list.append(message(2));
  list.append(message(0xFFFFFFFFu));
  EXPECT_EQ(list.no(), 2);
  expectCounters(list, 0, 0);
}

TEST_F(ListOfMessageTest, countsTheMessagesOfAnotherListByTheirLevel) {
  ListOfMessage other;
  for (const unsigned int level : {1u, 0u, 0u, 5u}) other.append(message(level));
  expectCounters(other, 3, 0);
  ListOfMessage list;
  list.append(message(1));
  list.append(other);
  EXPECT_EQ(list.no(), 5);
  expectCounters(list, 2, 2);
  EXPECT_EQ(list[1], other[0]);
  EXPECT_EQ(list[4], other[3]);
  EXPECT_EQ(other.no(), 4);
  expectCounters(other, 3, 0);
}

TEST_F(ListOfMessageTest, appendsAnEmptyListAndOneWithEmptySlots) {
  ListOfMessage list;
  ListOfMessage other;
  list.append(other);
  expectCounters(list, 0, 0);
  other.append(message(1));
  static_cast<FX::FXObjectList&>(other).append(static_cast<FX::FXObject*>(nullptr));
  list.append(other);
  expectCounters(list, 1, 0);
}

TEST_F(ListOfMessageTest, doesNothingWithItself) {
  ListOfMessage list;
  for (int i = 0; i < 100; ++i) list.append(message(1));
  list.append(list);
  EXPECT_EQ(list.no(), 100);
  expectCounters(list, 100, 0);
}

TEST_F(ListOfMessageTest, takesTheSameListTwice) {
  ListOfMessage other;
  other.append(message(0));
  ListOfMessage list;
  list.append(other);
  list.append(other);
  EXPECT_EQ(list.no(), 2);
  expectCounters(list, 0, 2);
}

TEST_F(ListOfMessageTest, forgetsItsMessagesButNotItsCountersWhenCleared) {
  ListOfMessage list;
  ListOfMessage other;
  other.append(message(0));
  list.append(message(1));
  list.append(other);
  list.clear();
  EXPECT_EQ(list.no(), 0);
  expectCounters(list, 1, 1);
  EXPECT_EQ(living, 2);
  list.clear();
  list.append(message(1));
  expectCounters(list, 2, 1);
}

TEST_F(ListOfMessageTest, deletesNoMessage) {
  {
    ListOfMessage list;
    list.append(message(1));
    list.append(message(0));
  }
  EXPECT_EQ(living, 2);
}
