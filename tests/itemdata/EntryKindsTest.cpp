// The three kinds of cells: text (and quantity), date, list.

#include <memory>
#include <type_traits>

#include "itemdata/Codes.h"
#include "itemdata/ItemDataComboEntry.h"
#include "itemdata/ItemDataDateEntry.h"
#include "itemdata/ItemDataStringEntry.h"
#include "tests/itemdata/ListFixture.h"

using namespace Brontel::Plugin::ItemData;
using FX::FXMetaClass;

static_assert(sizeof(ItemDataStringEntry) == sizeof(ItemDataEntry));
static_assert(sizeof(ItemDataDateEntry) == sizeof(ItemDataEntry));
static_assert(sizeof(ItemDataComboEntry) == sizeof(ItemDataEntry));
static_assert(std::is_same_v<decltype(&ItemDataStringEntry::clone),
                             ItemDataStringEntry* (ItemDataStringEntry::*)(Brontel::Entity*) const>);
static_assert(std::is_same_v<decltype(&ItemDataDateEntry::clone),
                             ItemDataDateEntry* (ItemDataDateEntry::*)(Brontel::Entity*) const>);
static_assert(std::is_same_v<decltype(&ItemDataComboEntry::clone),
                             ItemDataComboEntry* (ItemDataComboEntry::*)(Brontel::Entity*) const>);

namespace {

class EntryKindsTest : public ListFixture {
 protected:
  static std::vector<const FXMetaClass*> metaClasses() {
    return {&ItemDataStringEntry::metaClass, &ItemDataDateEntry::metaClass, &ItemDataComboEntry::metaClass};
  }

  std::string printed(int type, const std::string& value) {
    const std::unique_ptr<ItemDataEntry> cell(newCell(type, 12, 1, value, 0, &item));
    return cell->getPrintableText().text();
  }

  static std::string valueOf(int type, const std::string& value) {
    const std::unique_ptr<ItemDataEntry> cell(newCell(type, 12, 1, value));
    return cell->getValue().text();
  }
};

template <class Kind>
std::vector<int> handledTypes() {
  const Kind kind;
  std::vector<int> types;
  for (int type = -5; type <= 100; ++type) {
    if (kind.canHandleType(type)) types.push_back(type);
  }
  return types;
}

}  // namespace

TEST_F(EntryKindsTest, haveMetaClassesOfTheirOwnOverThatOfMiscData) {
  const char* const names[] = {"ItemDataStringEntry", "ItemDataDateEntry", "ItemDataComboEntry"};
  for (size_t i = 0; i < 3; ++i) {
    const FXMetaClass* meta = metaClasses()[i];
    EXPECT_STREQ(meta->getClassName(), names[i]);
    EXPECT_EQ(meta->getBaseClass(), &Brontel::EntityMiscData::metaClass);
    EXPECT_EQ(FXMetaClass::getMetaClassFromName(names[i]), meta);
  }
}

TEST_F(EntryKindsTest, areManufacturedWithNothingInThem) {
  for (const FXMetaClass* meta : metaClasses()) {
    const std::unique_ptr<FX::FXObject> object(meta->makeInstance());
    const auto* cell = dynamic_cast<ItemDataEntry*>(object.get());
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(cell->getMetaClass(), meta);
    const FX::FXString expected = FX::FXStringFormat(
        "ItemDataEntry@%p: pk: 0, name: , itemvariable: 0, type:0, mandatory:0, process: 0, vvalue:, value: , row: 0, "
        "del: 0 ",
        static_cast<const void*>(cell));
    EXPECT_STREQ(cell->toDebugString().text(), expected.text());
    EXPECT_EQ(cell->auxiliary, nullptr);
    EXPECT_EQ(cell->getOwner(), nullptr);
  }
}

TEST_F(EntryKindsTest, handleNoMessages) {
  for (const FXMetaClass* meta : metaClasses()) {
    const std::unique_ptr<FX::FXObject> object(meta->makeInstance());
    for (const FX::FXuint id : {0u, 1u, 100u}) {
      EXPECT_EQ(object->handle(nullptr, FXSEL(FX::SEL_COMMAND, id), nullptr), 0);
    }
  }
}

TEST_F(EntryKindsTest, shareTheTypesAmongThem) {
  EXPECT_EQ(handledTypes<ItemDataStringEntry>(), (std::vector<int>{-1, 1}));
  EXPECT_EQ(handledTypes<ItemDataDateEntry>(), std::vector<int>{2});
  EXPECT_EQ(handledTypes<ItemDataComboEntry>(), std::vector<int>{3});
}

TEST_F(EntryKindsTest, clonesTakeWhatIsRecordedButNotWhatIsStored) {
  for (const int type : {TYPE_TEXT, TYPE_DATE, TYPE_LIST, TYPE_QUANTITY}) {
    const std::unique_ptr<ItemDataEntry> cell(newCell(type, 12, 3, "v", 7));
    cell->name = "n";
    cell->mandatory = 1;
    cell->process = 1;
    cell->vvalue = "p";
    cell->markForDelete(1);
    cell->value = "v";
    const std::string before = cell->toDebugString().text();
    const std::unique_ptr<ItemDataEntry> copy(cell->clone(&item));
    EXPECT_EQ(copy->getMetaClass(), cell->getMetaClass());
    EXPECT_EQ(copy->getOwner(), &item);
    const FX::FXString expected = FX::FXStringFormat(
        "ItemDataEntry@%p: pk: 0, name: n, itemvariable: 12, type:%d, mandatory:1, process: 1, vvalue:p, value: v, "
        "row: 3, del: 0 ",
        static_cast<const void*>(copy.get()), type);
    EXPECT_STREQ(copy->toDebugString().text(), expected.text());
    EXPECT_EQ(copy->auxiliary, nullptr);
    EXPECT_EQ(cell->toDebugString().text(), before);
    EXPECT_EQ(cell->getOwner(), nullptr);
  }
}

TEST_F(EntryKindsTest, aCloneMayHaveNoOwner) {
  const std::unique_ptr<ItemDataEntry> cell(newCell(TYPE_DATE, 12, 3, "v", 7, &item));
  const std::unique_ptr<ItemDataEntry> copy(cell->clone(nullptr));
  EXPECT_EQ(copy->getOwner(), nullptr);
  EXPECT_STREQ(copy->value.text(), "v");
}

TEST_F(EntryKindsTest, theLoneBlankOfAListIsNoValue) {
  EXPECT_EQ(valueOf(TYPE_LIST, " "), "");
  EXPECT_EQ(valueOf(TYPE_LIST, "  "), "  ");
  EXPECT_EQ(valueOf(TYPE_LIST, ""), "");
  EXPECT_EQ(valueOf(TYPE_LIST, "a"), "a");
  for (const int type : {TYPE_TEXT, TYPE_DATE, TYPE_QUANTITY}) EXPECT_EQ(valueOf(type, " "), " ");
}

TEST_F(EntryKindsTest, printTheirValue) {
  for (const char* value : {"", "0", "1", " ", "x y"}) {
    EXPECT_EQ(printed(TYPE_TEXT, value), value);
    EXPECT_EQ(printed(TYPE_DATE, value), value);
    EXPECT_EQ(printed(TYPE_LIST, value), value);
  }
}

TEST_F(EntryKindsTest, aQuantityPrintsWithTheUnitUnlessItGoesWithoutSaying) {
  EXPECT_EQ(printed(TYPE_QUANTITY, "3"), "3 db");
  EXPECT_EQ(printed(TYPE_QUANTITY, "0"), "");
  EXPECT_EQ(printed(TYPE_QUANTITY, "1"), "");
  EXPECT_EQ(printed(TYPE_QUANTITY, ""), "");
}

TEST_F(EntryKindsTest, aQuantityIsComparedAsText) {
  EXPECT_EQ(printed(TYPE_QUANTITY, "1.0"), "1.0 db");
  EXPECT_EQ(printed(TYPE_QUANTITY, "01"), "01 db");
  EXPECT_EQ(printed(TYPE_QUANTITY, "0.0"), "0.0 db");
  EXPECT_EQ(printed(TYPE_QUANTITY, "-1"), "-1 db");
  EXPECT_EQ(printed(TYPE_QUANTITY, " "), "  db");
}

TEST_F(EntryKindsTest, aQuantityWithoutUnitKeepsItsBlank) {
  item.setUnit("");
  EXPECT_EQ(printed(TYPE_QUANTITY, "3"), "3 ");
  const std::unique_ptr<ItemDataEntry> orphan(newCell(TYPE_QUANTITY, VARIABLE_QUANTITY, 1, "3"));
  EXPECT_STREQ(orphan->getPrintableText().text(), "3 ");
}
