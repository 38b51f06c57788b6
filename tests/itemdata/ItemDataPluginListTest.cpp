#include <memory>
#include <type_traits>

#include "itemdata/Codes.h"
#include "itemdata/ItemDataComboEntry.h"
#include "itemdata/ItemDataDateEntry.h"
#include "itemdata/ItemDataPluginList.h"
#include "itemdata/ItemDataStringEntry.h"
#include "tests/itemdata/ListFixture.h"

using namespace Brontel::Plugin::ItemData;

static_assert(std::is_base_of_v<FX::FXObjectListOf<ItemDataEntry>, ItemDataPluginList>);
static_assert(std::is_same_v<decltype(plugins), ItemDataPluginList>);

namespace {

using ItemDataPluginListTest = ListFixture;

/// The prototypes that the registry holds; a container that has gone leaves empty slots.
std::vector<const ItemDataEntry*> prototypes() {
  std::vector<const ItemDataEntry*> found;
  for (FX::FXint i = 0; i < plugins.no(); ++i) {
    if (plugins[i] != nullptr) found.push_back(plugins[i]);
  }
  return found;
}

/// A list with one text prototype of its own.
class OwnList : public ItemDataPluginList {
 public:
  OwnList() { append(&prototype); }

  ItemDataStringEntry prototype;
};

}  // namespace

TEST_F(ItemDataPluginListTest, holdsOnePrototypeOfEachKindInOrder) {
  ASSERT_EQ(prototypes().size(), 3u);
  EXPECT_EQ(prototypes()[0]->getMetaClass(), &ItemDataStringEntry::metaClass);
  EXPECT_EQ(prototypes()[1]->getMetaClass(), &ItemDataDateEntry::metaClass);
  EXPECT_EQ(prototypes()[2]->getMetaClass(), &ItemDataComboEntry::metaClass);
}

TEST_F(ItemDataPluginListTest, makesCellsOfEveryType) {
  const std::vector<std::pair<int, const FX::FXMetaClass*>> kinds = {{TYPE_TEXT, &ItemDataStringEntry::metaClass},
                                                                     {TYPE_QUANTITY, &ItemDataStringEntry::metaClass},
                                                                     {TYPE_DATE, &ItemDataDateEntry::metaClass},
                                                                     {TYPE_LIST, &ItemDataComboEntry::metaClass}};
  for (const auto& [type, meta] : kinds) {
    const std::unique_ptr<ItemDataEntry> cell(plugins.getByType(type, &item));
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(cell->getMetaClass(), meta);
    EXPECT_EQ(cell->type, type);
    EXPECT_EQ(cell->getOwner(), &item);
    for (const ItemDataEntry* prototype : prototypes()) EXPECT_EQ(prototype->type, 0);
  }
}

TEST_F(ItemDataPluginListTest, makesNothingOfOtherTypes) {
  for (const int type : {-2, 0, 4, 7, 99, 100, 2147483647, -2147483647}) {
    EXPECT_EQ(plugins.getByType(type, &item), nullptr) << type;
  }
}

TEST_F(ItemDataPluginListTest, anEmptyListMakesNothing) {
  const ItemDataPluginList empty;
  EXPECT_EQ(empty.getByType(TYPE_TEXT, &item), nullptr);
}

TEST_F(ItemDataPluginListTest, asksThePrototypesInOrder) {
  OwnList list;
  ItemDataStringEntry second;
  list.prototype.vvalue = "first";
  second.vvalue = "second";
  list.append(&second);
  const std::unique_ptr<ItemDataEntry> cell(list.getByType(TYPE_TEXT, nullptr));
  EXPECT_STREQ(cell->vvalue.text(), "first");
  EXPECT_EQ(cell->getOwner(), nullptr);
}

TEST_F(ItemDataPluginListTest, skipsEmptySlots) {
  OwnList list;
  list.prepend(nullptr);
  const std::unique_ptr<ItemDataEntry> cell(list.getByType(TYPE_QUANTITY, nullptr));
  ASSERT_NE(cell, nullptr);
  EXPECT_EQ(cell->type, TYPE_QUANTITY);
  EXPECT_EQ(list.getByType(TYPE_DATE, nullptr), nullptr);
}

TEST_F(ItemDataPluginListTest, cellsAndPrototypesAreIndependent) {
  const std::unique_ptr<ItemDataEntry> first(plugins.getByType(TYPE_TEXT, &item));
  first->value = "x";
  first->name = "n";
  const std::unique_ptr<ItemDataEntry> second(plugins.getByType(TYPE_TEXT, &item));
  EXPECT_TRUE(second->value.empty());
  EXPECT_TRUE(prototypes()[0]->name.empty());
  EXPECT_EQ(prototypes().size(), 3u);
}
