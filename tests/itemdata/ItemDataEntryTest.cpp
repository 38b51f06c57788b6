#include <type_traits>

#include "itemdata/Codes.h"
#include "itemdata/ItemDataDateEntry.h"
#include "itemdata/ItemDataEntry.h"
#include "itemdata/ItemDataStringEntry.h"
#include "tests/itemdata/ListFixture.h"
#include "tests/itemdata/ProbeEntry.h"

using namespace Brontel::Plugin::ItemData;
using FX::FXint;
using FX::FXString;
using FX::FXuchar;

static_assert(std::is_base_of_v<Brontel::EntityMiscData, ItemDataEntry>);
static_assert(std::is_convertible_v<ItemDataEntry*, Brontel::EntityMiscData*>);
static_assert(std::is_convertible_v<ItemDataEntry*, FX::FXObject*>);
static_assert(std::is_abstract_v<ItemDataEntry>, "cells are made by the kinds only");
static_assert(std::has_virtual_destructor_v<ItemDataEntry>);
static_assert(std::is_same_v<decltype(ItemDataEntry::pk), FXint> && sizeof(FXint) == 4);
static_assert(std::is_same_v<decltype(ItemDataEntry::itemvariable), FXint>);
static_assert(std::is_same_v<decltype(ItemDataEntry::type), FXint>);
static_assert(std::is_same_v<decltype(ItemDataEntry::row), FXint>);
static_assert(std::is_same_v<decltype(ItemDataEntry::mandatory), FXuchar> && sizeof(FXuchar) == 1);
static_assert(std::is_same_v<decltype(ItemDataEntry::process), FXuchar>);
static_assert(std::is_same_v<decltype(ItemDataEntry::del), FXuchar>);
static_assert(std::is_same_v<decltype(ItemDataEntry::auxiliary), FX::FXObject*>);
static_assert(
    std::is_same_v<decltype(&ItemDataEntry::check), void (ItemDataEntry::*)(int, Brontel::ListOfMessage&, FXString)>);

namespace {

/// Counts its end.
class ProbeObject : public FX::FXObject {
 public:
  explicit ProbeObject(int& destroyed) : destroyed_(destroyed) {}
  ~ProbeObject() override { ++destroyed_; }

 private:
  int& destroyed_;
};

class ItemDataEntryTest : public ListFixture {
 protected:
  ItemDataEntryTest() {
    cell.pk = 7;
    cell.name = "Sarzs";
    cell.itemvariable = 12;
    cell.type = TYPE_TEXT;
    cell.mandatory = 1;
    cell.process = 1;
    cell.vvalue = "p";
    cell.value = "S1";
    cell.row = 3;
  }

  ItemDataStringEntry cell;
};

}  // namespace

TEST_F(ItemDataEntryTest, startsWithNothing) {
  const ItemDataDateEntry fresh;
  EXPECT_EQ(fresh.getOwner(), nullptr);
  EXPECT_EQ(fresh.pk, 0);
  EXPECT_TRUE(fresh.name.empty());
  EXPECT_EQ(fresh.itemvariable, 0);
  EXPECT_EQ(fresh.type, 0);
  EXPECT_EQ(fresh.mandatory, 0);
  EXPECT_EQ(fresh.process, 0);
  EXPECT_TRUE(fresh.vvalue.empty());
  EXPECT_TRUE(fresh.value.empty());
  EXPECT_EQ(fresh.auxiliary, nullptr);
  EXPECT_EQ(fresh.row, 0);
  EXPECT_EQ(fresh.del, 0);
}

TEST_F(ItemDataEntryTest, doesNotOwnTheItem) {
  delete newCell(TYPE_TEXT, 12, 1, "x", 0, &item);
  EXPECT_STREQ(item.getUnit().text(), "db");
}

TEST_F(ItemDataEntryTest, deletesItsAuxiliaryObjectOnceAndNeverCopiesIt) {
  int destroyed = 0;
  auto* original = new ItemDataStringEntry;
  original->auxiliary = new ProbeObject(destroyed);
  const std::unique_ptr<ItemDataEntry> copy(original->clone(nullptr));
  EXPECT_EQ(copy->auxiliary, nullptr);
  EXPECT_NE(original->auxiliary, nullptr);
  Brontel::EntityMiscData* base = original;
  delete base;
  EXPECT_EQ(destroyed, 1);
}

TEST_F(ItemDataEntryTest, givesItsValueAsItStands) {
  for (const char* value : {"2024.03.05", "1.10", " ", "", "0"}) {
    cell.value = value;
    EXPECT_STREQ(cell.getValue().text(), value);
    EXPECT_STREQ(cell.getPrintableText().text(), value);
  }
}

TEST_F(ItemDataEntryTest, markingEmptiesTheValueAndChangesNothingElse) {
  cell.markForDelete(1);
  EXPECT_EQ(cell.del, 1);
  EXPECT_STREQ(cell.value.text(), "");
  cell.value = "again";
  cell.markForDelete(0);
  EXPECT_EQ(cell.del, 0);
  EXPECT_STREQ(cell.value.text(), "");
  EXPECT_EQ(cell.pk, 7);
  EXPECT_STREQ(cell.name.text(), "Sarzs");
  EXPECT_EQ(cell.itemvariable, 12);
  EXPECT_EQ(cell.type, TYPE_TEXT);
  EXPECT_EQ(cell.mandatory, 1);
  EXPECT_EQ(cell.process, 1);
  EXPECT_STREQ(cell.vvalue.text(), "p");
  EXPECT_EQ(cell.row, 3);
}

TEST_F(ItemDataEntryTest, statusAndQuantityChangesLeaveItAlone) {
  const FXString before = cell.toDebugString();
  cell.setStatus(102);
  cell.onQuantityChanged("3");
  EXPECT_STREQ(cell.toDebugString().text(), before.text());
}

TEST_F(ItemDataEntryTest, hasNoQuantityWithoutAList) {
  EXPECT_STREQ(cell.getQuantity().toString().text(), "0");
  const std::unique_ptr<ItemDataEntry> owned(cell.clone(&item));
  EXPECT_STREQ(owned->getQuantity().toString().text(), "0");
  item.addMiscData("Itemdata", new ItemDataList(&item, nullptr));
  item.addMiscData("ItemData", new Brontel::EntityMiscData(&item));
  EXPECT_STREQ(owned->getQuantity().toString().text(), "0");
}

TEST_F(ItemDataEntryTest, hasTheQuantityOfItsRow) {
  ItemDataList& list = newList();
  addRow(list, 2, "3", "S1", "");
  EXPECT_STREQ(list[1]->getQuantity().toString().text(), "3");
  list[1]->row = 9;
  EXPECT_STREQ(list[1]->getQuantity().toString().text(), "0");
}

TEST_F(ItemDataEntryTest, isKeptUnderTheKeyItemData) {
  EXPECT_STREQ(kMiscDataKey, "ItemData");
  ItemDataList& list = newList();
  EXPECT_EQ(item.getMiscData("ItemData"), &list);
  EXPECT_EQ(ItemDataList::of(&item), &list);
}

TEST_F(ItemDataEntryTest, describesItselfWithItsFields) {
  cell.mandatory = 1;
  cell.process = 0;
  cell.del = 1;
  const FXString expected = FX::FXStringFormat(
      "ItemDataEntry@%p: pk: 7, name: Sarzs, itemvariable: 12, type:1, mandatory:1, process: 0, vvalue:p, value: S1, "
      "row: 3, del: 1 ",
      static_cast<const void*>(&cell));
  EXPECT_STREQ(cell.toDebugString().text(), expected.text());
}

TEST_F(ItemDataEntryTest, describesItsRawValue) {
  const std::unique_ptr<ItemDataEntry> list(newCell(TYPE_LIST, 13, 1, " "));
  const std::string text = list->toDebugString().text();
  EXPECT_NE(text.find("value:  , row"), std::string::npos) << text;
  EXPECT_EQ(text.back(), ' ');
}

TEST_F(ItemDataEntryTest, isReachedThroughItsBase) {
  const Brontel::EntityMiscData& base = cell;
  const std::unique_ptr<Brontel::EntityMiscData> copy(base.clone(&item));
  ASSERT_NE(dynamic_cast<ItemDataStringEntry*>(copy.get()), nullptr);
  EXPECT_EQ(copy->getOwner(), &item);
}

TEST_F(ItemDataEntryTest, letsKindsOverrideItsOperations) {
  ProbeEntry::Notes notes;
  const std::unique_ptr<ItemDataEntry> probe = std::make_unique<ProbeEntry>(notes, 4);
  Messages messages;
  probe->setStatus(9);
  probe->check(1, messages, "P");
  probe->load(nullptr);
  probe->save(nullptr);
  EXPECT_EQ(notes.statuses, std::vector<unsigned int>{9});
  EXPECT_EQ(notes.checkedRows, std::vector<int>{4});
  EXPECT_EQ(notes.loadedRows, std::vector<int>{4});
  EXPECT_EQ(notes.savedRows, std::vector<int>{4});
}

TEST_F(ItemDataEntryTest, livesUnlessItIsMarkedOrMissing) {
  EXPECT_TRUE(ItemDataEntry::isLive(&cell));
  cell.markForDelete(1);
  EXPECT_FALSE(ItemDataEntry::isLive(&cell));
  EXPECT_FALSE(ItemDataEntry::isLive(nullptr));
}
