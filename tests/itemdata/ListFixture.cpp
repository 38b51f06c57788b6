#include "tests/itemdata/ListFixture.h"

#include "itemdata/Codes.h"

using Brontel::Plugin::ItemData::ItemDataEntry;
using Brontel::Plugin::ItemData::ItemDataList;
using namespace Brontel::Plugin::ItemData;

ListFixture::ListFixture() : item(*new Brontel::InvoiceItem) {
  container.init();
  invoice.setNumber("A-1");
  invoice.setTypeCode(101);
  invoice.appendItem(&item);
  item.setQuantity(FXExt::FXDecimal(5, 0, 4));
  item.setUnit("db");
}

std::unique_ptr<ItemDataList> ListFixture::newTemplate() const {
  auto settings = std::make_unique<ItemDataList>();
  const auto append = [&settings](int type, int variable, int row, const char* name, bool mandatory) {
    ItemDataEntry* cell = newCell(type, variable, row);
    cell->name = name;
    cell->mandatory = mandatory ? 1 : 0;
    settings->append(cell);
  };
  append(TYPE_TEXT, 11, 0, "Megjegyzés", true);
  append(TYPE_QUANTITY, VARIABLE_QUANTITY, 1, "Mennyiség", true);
  append(TYPE_TEXT, 12, 1, "Sarzs", true);
  append(TYPE_LIST, 13, 1, "Szín", false);
  settings->at(3)->vvalue = "piros,kék";
  settings->firstRowIndex = 1;
  settings->columns = 3;
  settings->rows = 1;
  return settings;
}

ItemDataList& ListFixture::newList() {
  auto* list = new ItemDataList(&item, nullptr);
  item.addMiscData(kMiscDataKey, list);
  return *list;
}

ItemDataList& ListFixture::newListOf(std::unique_ptr<ItemDataList> settings) {
  auto* list = new ItemDataList(&item, settings.release());
  list->adoptTemplate();
  item.addMiscData(kMiscDataKey, list);
  return *list;
}

ItemDataEntry* ListFixture::add(ItemDataList& list, int type, int variable, int row, const std::string& value,
                                int key) {
  ItemDataEntry* cell = newCell(type, variable, row, value, key, &item);
  list.append(cell);
  return cell;
}

void ListFixture::addRow(ItemDataList& list, int row, const std::string& quantity, const std::string& batch,
                         const std::string& colour, int firstKey) {
  const auto key = [firstKey](int place) { return firstKey == 0 ? 0 : firstKey + place; };
  add(list, TYPE_QUANTITY, VARIABLE_QUANTITY, row, quantity, key(0))->name = "Mennyiség";
  add(list, TYPE_TEXT, 12, row, batch, key(1))->name = "Sarzs";
  add(list, TYPE_LIST, 13, row, colour, key(2))->name = "Szín";
  if (list.firstRowIndex < 0) list.firstRowIndex = list.no() - 3;
  list.rows = std::max(list.rows, row);
}
