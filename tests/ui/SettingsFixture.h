#pragma once

#include <gtest/gtest.h>

#include "host/entity/EntityTables.h"
#include "host/ui/DBTable.h"
#include "model/InitDB.h"
#include "tests/host/plugin/TestContainer.h"
#include "tests/support/DialogUser.h"
#include "tests/support/RecordingObserver.h"
#include "tests/support/TestDatabase.h"
#include "ui/ItemDataSettingsPanel.h"
#include "ui/ItemDataSettingsPersister.h"

/// The settings dialog over a database with variables of every type.
class SettingsFixture : public ::testing::Test {
 protected:
  using ItemDataSettingsPanel = Brontel::Plugin::ItemData::ItemDataSettingsPanel;
  using ItemDataSettingsPersister = Brontel::Plugin::ItemData::ItemDataSettingsPersister;
  using DBTable = Brontel::DBTable;
  using Texts = std::vector<std::string>;

  SettingsFixture() : application(database.get()), user(application), container(application.get(), "Beállítások") {
    // Nothing here has to outlive a power failure.
    database.exec("pragma synchronous=off");
    EXPECT_EQ(Brontel::Model::initEntityTables(database.get()), 1);
    Brontel::Plugin::ItemData::Model::initDB(database.get());
    EXPECT_TRUE(database->setForeignKeys(true));
    application.create();
  }

  /// Three variables with the keys 1 to 3: a text per unit, a date, and a list that must be recorded.
  void storeVariables() {
    database.exec(
        "insert into t_itemvariable (t_itemvariable_id, name, type, process, mandatory, vvalue) values "
        "(1,'Sarzs',1,1,0,null), (2,'Lejárat',2,0,0,''), (3,'Szín',3,0,1,'piros,kék')");
  }
  /// Every variable of the user as "id name type process mandatory vvalue".
  Texts variables() const {
    Texts texts;
    for (const auto& row : database.rows("select t_itemvariable_id||' '||name||' '||ifnull(type,'-')||' '||"
                                         "ifnull(process,'-')||' '||ifnull(mandatory,'-')||' '||ifnull(vvalue,'-') "
                                         "from t_itemvariable where t_itemvariable_id>0 order by 1")) {
      texts.push_back(row[0]);
    }
    return texts;
  }

  static std::string row(const DBTable& table, int index) {
    std::string text = table.getRowText(index).text();
    for (int column = 0; column < 5; ++column) text += std::string("|") + table.getStoredValue(index, column).text();
    return text;
  }
  static void fill(DBTable& table, int index, const Texts& values) {
    for (size_t i = 0; i < values.size(); ++i) {
      table.setStoredValue(index, static_cast<int>(i), values[i].c_str());
    }
  }

  TestDatabase database;
  TestApplication application;
  DialogUser user;
  TestContainer container;
};
