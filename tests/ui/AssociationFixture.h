#pragma once

#include <gtest/gtest.h>

#include "fxext/widgets/FXDualList.h"
#include "host/entity/EntityTables.h"
#include "host/ui/ProductDataWindow.h"
#include "model/InitDB.h"
#include "tests/support/DialogUser.h"
#include "tests/support/RecordingObserver.h"
#include "tests/support/TestDatabase.h"
#include "ui/ItemDataAssociationPanel.h"
#include "ui/ItemDataVariable.h"

/// A goods window with an association panel, over variables and goods of each kind (1 and 2).
class AssociationFixture : public ::testing::Test {
 protected:
  using ItemDataAssociationPanel = Brontel::Plugin::ItemData::UI::ItemDataAssociationPanel;
  using ItemDataVariable = Brontel::Plugin::ItemData::UI::ItemDataVariable;
  using FXDualList = FXExt::FXDualList;
  using Texts = std::vector<std::string>;

  AssociationFixture()
      : application(database.get()),
        user(application),
        window(new Brontel::ProductDataWindow(application.get(), "Termék")) {
    database.exec("pragma synchronous=off");
    EXPECT_EQ(Brontel::Model::initEntityTables(database.get()), 1);
    Brontel::Plugin::ItemData::Model::initDB(database.get());
    EXPECT_TRUE(database->setForeignKeys(true));
    for (const char* table : {"t_product", "t_service", "t_suite"}) {
      database.exec(std::string("insert into ") + table + " (" + table + "_id, name) values (1, 'a'), (2, 'b')");
    }
    database.exec(
        "insert into t_itemvariable (t_itemvariable_id, name, type, process, mandatory) values (1,'Sarzs',1,1,1), "
        "(2,'Lejárat',2,1,0), (3,'Szín',3,0,1), (4,'Más',100,0,0), (5,'Nulla',0,0,0)");
    // A name that is not there yet.
    database.exec("insert into t_itemvariable (t_itemvariable_id, type) values (6, 1)");
    application.create();
  }

  /// Associations of product 1: "variable position direction".
  void associate(const Texts& associations) {
    for (const std::string& text : associations) {
      std::string values(text);
      for (char& c : values) c = c == ' ' ? ',' : c;
      database.exec("insert into t_productitemdata (t_product_1, t_itemvariable_1, position, direction) values (1," +
                    values + ")");
    }
  }
  ItemDataAssociationPanel* open(int record, const char* keyColumn = "t_product_1") {
    window->setCurrentId(record);
    panel = new ItemDataAssociationPanel(window, window, database.get(), keyColumn);
    window->resize(500, 400);
    window->create();
    return panel;
  }

  static Texts items(const FX::FXList* list) {
    Texts texts;
    for (FX::FXint i = 0; i < list->getNumItems(); ++i) texts.emplace_back(list->getItemText(i).text());
    return texts;
  }
  static ItemDataVariable* variable(const FX::FXList* list, int item) {
    return static_cast<ItemDataVariable*>(list->getItemData(item));
  }
  /// Moves the item of that name to the other side.
  static void choose(FXDualList* lists, const char* name) {
    move(lists, lists->getFromList(), name, FXDualList::ID_MAKESELECTED);
  }
  static void giveBack(FXDualList* lists, const char* name) {
    move(lists, lists->getToList(), name, FXDualList::ID_MAKEUNSELECTED);
  }
  static void moveUp(FXDualList* lists, const char* name) {
    move(lists, lists->getToList(), name, FXDualList::ID_MOVEUP);
  }

  /// What is stored, in order: "id goods variable position direction".
  Texts stored(const char* kind = "product") const {
    const std::string table = std::string("t_") + kind;
    Texts texts;
    for (const auto& row : database.rows("select " + table + "itemdata_id||' '||" + table +
                                         "_1||' '||t_itemvariable_1||' '||position||' '||direction from " + table +
                                         "itemdata order by 1")) {
      texts.push_back(row[0]);
    }
    return texts;
  }

  TestDatabase database;
  TestApplication application;
  DialogUser user;
  Brontel::ProductDataWindow* window;
  ItemDataAssociationPanel* panel = nullptr;

 private:
  static void move(FXDualList* lists, FX::FXList* list, const char* name, FX::FXuint command) {
    list->killSelection();
    const FX::FXint item = list->findItem(name);
    ASSERT_GE(item, 0) << name;
    list->selectItem(item);
    lists->handle(nullptr, FXSEL(FX::SEL_COMMAND, command), nullptr);
    list->killSelection();
  }
};
