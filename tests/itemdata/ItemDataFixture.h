#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "host/entity/Invoice.h"
#include "host/plugin/PluginRegistry.h"
#include "host/ui/Morvane.h"
#include "plugin/ItemDataContainer.h"
#include "tests/itemdata/Cells.h"
#include "tests/support/TestDatabase.h"

/// A database with the tables of the host and of the plug-in, and the plug-in at work in a host without windows.
class ItemDataFixture : public ::testing::Test {
 protected:
  using Texts = std::vector<std::string>;

  ItemDataFixture();

  /// A variable of the user.
  void addVariable(int id, const std::string& name, int type, int process, int mandatory = 0,
                   const std::string& parameter = "");
  /// Puts it on goods, "product", "service" or "suite".
  void associate(int variable, int position, int goods = 100, const std::string& kind = "product", int direction = 100);
  void dissociate(int variable);
  /// Product 100 carries 11 "Megjegyzés", mandatory, per item; per unit 12 "Sarzs", mandatory, and 13 "Szín", a list
  /// of "piros,kék".
  void addGoods();

  /// An invoice and an item of the database; the item refers to another one when that is not 0.
  void insertItem(int invoice, int status, int item, int source = 0);
  /// A stored cell; the engine chooses a key of 0.
  void insertCell(int item, int variable, int row, const std::string& value, int key = 0);
  /// A stored row of quantity, 12 and 13.
  void insertRow(int item, int row, const std::string& quantity, const std::string& batch, const std::string& colour);

  /// The stored cells of an item by row and key, "12/1=S1".
  Texts stored(int item) const;

  TestDatabase database;
  Brontel::Morvane app;
  Brontel::Plugin::ItemData::ItemDataContainer container{&app};
  Brontel::Plugin::PluginRegistry registry;

 private:
  void run(const std::string& sql, const std::vector<std::string>& texts);
};
