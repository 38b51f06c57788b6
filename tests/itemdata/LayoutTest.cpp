// Where the operations and fields of cells and lists stand: those who derive from them elsewhere reach them by
// position.

#include <algorithm>
#include <cstddef>
#include <vector>

#include <gtest/gtest.h>

#include "itemdata/ItemDataList.h"
#include "itemdata/ItemDataStringEntry.h"
#include "tests/support/Slots.h"

using Brontel::Plugin::ItemData::ItemDataEntry;
using Brontel::Plugin::ItemData::ItemDataList;
using Brontel::Plugin::ItemData::ItemDataStringEntry;

namespace {

/// Addresses that rise without a repetition.
bool rise(const std::vector<const void*>& addresses) {
  return std::is_sorted(addresses.begin(), addresses.end(), std::less_equal<>());
}

}  // namespace

TEST(LayoutTest, operationsOfCellsFollowThoseOfMiscDataInOrder) {
  using Save = int (ItemDataEntry::*)(MorvaneDatabase*);
  using Load = int (ItemDataEntry::*)(MorvaneDatabase*);
  const std::vector<std::ptrdiff_t> slots{slotOf(&ItemDataEntry::clone),
                                          slotOf(Save(&ItemDataEntry::save)),
                                          slotOf(Load(&ItemDataEntry::load)),
                                          slotOf(&ItemDataEntry::markForDelete),
                                          slotOf(&ItemDataEntry::setStatus),
                                          slotOf(&ItemDataEntry::check),
                                          slotOf(&ItemDataEntry::canHandleType),
                                          slotOf(&ItemDataEntry::addWidget),
                                          slotOf(&ItemDataEntry::getTableItem),
                                          slotOf(&ItemDataEntry::getValue),
                                          slotOf(&ItemDataEntry::toXml),
                                          slotOf(&ItemDataEntry::getPrintableText),
                                          slotOf(&ItemDataEntry::toDebugString),
                                          slotOf(&ItemDataEntry::getQuantity),
                                          slotOf(&ItemDataEntry::onQuantityChanged)};
  // clone has the base's slot, or a new one for its own kind of result.
  const std::ptrdiff_t afterBase = slotOf(&Brontel::EntityMiscData::clone) + 1;
  EXPECT_GE(slots[0], afterBase - 1);
  EXPECT_LE(slots[0], afterBase);
  for (size_t i = 1; i < slots.size(); ++i) EXPECT_EQ(slots[i], slots[0] + static_cast<std::ptrdiff_t>(i)) << i;
}

TEST(LayoutTest, fieldsOfCellsStandInOrder) {
  const ItemDataStringEntry cell;
  EXPECT_TRUE(rise({&cell, &cell.pk, &cell.name, &cell.itemvariable, &cell.type, &cell.mandatory, &cell.process,
                    &cell.vvalue, &cell.value, &cell.auxiliary, &cell.row, &cell.del}));
}

TEST(LayoutTest, fieldsOfListsStandBehindTheBasesInOrder) {
  const ItemDataList list;
  const FX::FXObjectListOf<ItemDataEntry>& last = list;
  EXPECT_TRUE(rise({&list, &last, &list.columns, &list.firstRowIndex, &list.rows, &list.templateList}));
}
