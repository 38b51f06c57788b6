#pragma once

#include <memory>

#include <gtest/gtest.h>

#include "host/entity/Invoice.h"
#include "plugin/ItemDataContainer.h"
#include "tests/itemdata/Cells.h"

/// An open outgoing invoice with one item that was never saved, the entry kinds registered, and no database.
class ListFixture : public ::testing::Test {
 protected:
  ListFixture();

  /// The variables of goods as a template: 11 "Megjegyzés", mandatory, per item; then per unit the quantity, 12
  /// "Sarzs", mandatory, and 13 "Szín", a list of "piros,kék".
  std::unique_ptr<Brontel::Plugin::ItemData::ItemDataList> newTemplate() const;

  /// Makes a new list of the item without template; the item owns it.
  Brontel::Plugin::ItemData::ItemDataList& newList();
  /// The same with a template, which goes with the list.
  Brontel::Plugin::ItemData::ItemDataList& newListOf(std::unique_ptr<Brontel::Plugin::ItemData::ItemDataList> settings);

  /// Appends a cell of the item to a list. Type and variable as in newCell.
  Brontel::Plugin::ItemData::ItemDataEntry* add(Brontel::Plugin::ItemData::ItemDataList& list, int type, int variable,
                                                int row, const std::string& value = "", int key = 0);
  /// Appends a row of quantity, 12 and 13; keys count from the given one up, or are all 0.
  void addRow(Brontel::Plugin::ItemData::ItemDataList& list, int row, const std::string& quantity,
              const std::string& batch, const std::string& colour, int firstKey = 0);

  Brontel::Plugin::ItemData::ItemDataContainer container{nullptr};
  Brontel::Invoice invoice;    // number "A-1", type 101
  Brontel::InvoiceItem& item;  // the first one; quantity 5, unit "db"
};
