#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "host/entity/InvoiceItem.h"
#include "host/plugin/PluginContainer.h"
#include "host/ui/Morvane.h"
#include "itemdata/ItemDataPluginList.h"
#include "itemdata/ItemDataStringEntry.h"
#include "plugin/GetPlugin.h"
#include "plugin/Prototypes.h"

using Brontel::InvoiceItem;
using Brontel::Plugin::PluginContainer;
using Brontel::Plugin::ItemData::ItemDataEntry;
using Brontel::Plugin::ItemData::ItemDataStringEntry;
using Brontel::Plugin::ItemData::plugins;
using FX::FXint;

namespace {

using Container = std::unique_ptr<PluginContainer>;
using Entry = std::unique_ptr<ItemDataEntry>;

Container newContainer() {
  return Container(get_plugin(nullptr));
}

Container newInitialisedContainer() {
  Container container = newContainer();
  EXPECT_EQ(container->init(), 1);
  return container;
}

std::string kindOf(int type) {
  const Entry entry(plugins.getByType(type, nullptr));
  return entry == nullptr ? "none" : entry->getClassName();
}

/// A prototype that notes its end.
class NotingEntry : public ItemDataStringEntry {
 public:
  NotingEntry(std::vector<std::string>& log, std::string name) : log_(log), name_(std::move(name)) {}
  ~NotingEntry() override { log_.push_back(name_); }

 private:
  std::vector<std::string>& log_;
  std::string name_;
};

}  // namespace

TEST(PrototypesTest, thereIsOneOfEachKindInOrderAndInItsDefaultState) {
  const FXint first = plugins.no();
  const Container container = newInitialisedContainer();
  ASSERT_EQ(plugins.no(), first + 3);
  EXPECT_STREQ(plugins[first]->getClassName(), "ItemDataStringEntry");
  EXPECT_STREQ(plugins[first + 1]->getClassName(), "ItemDataDateEntry");
  EXPECT_STREQ(plugins[first + 2]->getClassName(), "ItemDataComboEntry");
  for (FXint i = first; i < plugins.no(); ++i) {
    const ItemDataEntry& prototype = *plugins[i];
    EXPECT_EQ(prototype.getOwner(), nullptr);
    EXPECT_EQ(prototype.auxiliary, nullptr);
    EXPECT_TRUE(prototype.name.empty() && prototype.vvalue.empty() && prototype.value.empty());
    for (const int number : {prototype.pk, prototype.itemvariable, prototype.type, prototype.row}) EXPECT_EQ(number, 0);
    for (const int flag : {prototype.mandatory, prototype.process, prototype.del}) EXPECT_EQ(flag, 0);
  }
}

TEST(PrototypesTest, giveTheKindOfEachTypeCode) {
  EXPECT_EQ(kindOf(1), "none");
  const Container container = newInitialisedContainer();
  EXPECT_EQ(kindOf(1), "ItemDataStringEntry");
  EXPECT_EQ(kindOf(2), "ItemDataDateEntry");
  EXPECT_EQ(kindOf(3), "ItemDataComboEntry");
  EXPECT_EQ(kindOf(-1), "ItemDataStringEntry");
  for (const int type : {0, 4, 5, -2, 100, 2147483647, -2147483647 - 1}) EXPECT_EQ(kindOf(type), "none") << type;
}

TEST(PrototypesTest, giveEachCallerACellOfItsOwn) {
  const Container container = newInitialisedContainer();
  InvoiceItem item;
  const Entry first(plugins.getByType(-1, &item));
  const Entry second(plugins.getByType(-1, &item));
  EXPECT_NE(first, second);
  EXPECT_EQ(first->getOwner(), &item);
  EXPECT_EQ(first->type, -1);
  EXPECT_EQ(first->pk, 0);
  EXPECT_EQ(first->del, 0);
  EXPECT_EQ(plugins[plugins.no() - 3]->type, 0);
  EXPECT_EQ(plugins[plugins.no() - 3]->getOwner(), nullptr);
}

TEST(PrototypesTest, areSixWithTwoContainersAndTheFirstIsTaken) {
  const FXint before = plugins.no();
  const Container first = newInitialisedContainer();
  const Container second = newInitialisedContainer();
  ASSERT_EQ(plugins.no(), before + 6);
  plugins[before]->name = "the first";
  plugins[before + 3]->name = "the second";
  const Entry entry(plugins.getByType(1, nullptr));
  EXPECT_STREQ(entry->getClassName(), "ItemDataStringEntry");
  EXPECT_STREQ(entry->name.text(), "the first");
}

TEST(PrototypesTest, goFromTheLastToTheFirstAndLeaveTheirSlots) {
  std::vector<std::string> log;
  Container container = newInitialisedContainer();
  plugins.append(new NotingEntry(log, "one"));
  plugins.append(new NotingEntry(log, "two"));
  const FXint count = plugins.no();
  container.reset();
  EXPECT_EQ(log, (std::vector<std::string>{"two", "one"}));
  EXPECT_EQ(plugins.no(), count);
  for (FXint i = 0; i < count; ++i) EXPECT_EQ(plugins[i], nullptr);
}

TEST(PrototypesTest, areNotTakenAwayByAContainerThatAddedNone) {
  const Container working = newInitialisedContainer();
  newContainer().reset();
  EXPECT_EQ(kindOf(1), "ItemDataStringEntry");
  EXPECT_EQ(kindOf(3), "ItemDataComboEntry");
}

TEST(PrototypesTest, ofOneContainerOutliveThoseOfAnother) {
  for (const bool firstGoesFirst : {true, false}) {
    Container first = newInitialisedContainer();
    Container second = newInitialisedContainer();
    (firstGoesFirst ? first : second).reset();
    EXPECT_EQ(kindOf(1), "ItemDataStringEntry");
    EXPECT_EQ(kindOf(2), "ItemDataDateEntry");
    EXPECT_EQ(kindOf(3), "ItemDataComboEntry");
    (firstGoesFirst ? second : first).reset();
    EXPECT_EQ(kindOf(1), "none");
  }
}

TEST(PrototypesTest, ofOthersStayUntilTheLastContainerGoes) {
  std::vector<std::string> log;
  Container first = newInitialisedContainer();
  plugins.append(new NotingEntry(log, "foreign"));
  Container second = newInitialisedContainer();
  first.reset();
  EXPECT_EQ(log, std::vector<std::string>());
  second.reset();
  EXPECT_EQ(log, std::vector<std::string>{"foreign"});
}

TEST(PrototypesTest, comeBackWithANewContainer) {
  newInitialisedContainer().reset();
  EXPECT_EQ(kindOf(1), "none");
  const Container container = newInitialisedContainer();
  EXPECT_EQ(kindOf(1), "ItemDataStringEntry");
  EXPECT_EQ(kindOf(-1), "ItemDataStringEntry");
}

TEST(PrototypesTest, aLoneContainerThatWasNeverInitialisedDeletesWhatIsThere) {
  std::vector<std::string> log;
  Container container = newContainer();
  plugins.append(new NotingEntry(log, "left over"));
  container.reset();
  EXPECT_EQ(log, std::vector<std::string>{"left over"});
}
