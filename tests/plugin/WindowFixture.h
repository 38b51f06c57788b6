#pragma once

#include <memory>

#include <gtest/gtest.h>

#include "host/entity/EntityTables.h"
#include "host/plugin/PluginContainer.h"
#include "host/plugin/PluginRegistry.h"
#include "host/ui/DBTable.h"
#include "plugin/GetPlugin.h"
#include "tests/support/DialogUser.h"
#include "tests/support/TestDatabase.h"
#include "ui/ItemDataSettingsPanel.h"

/// The plug-in at work in a host with a display: the host's tables with foreign keys enforced, and the real container.
class WindowFixture : public ::testing::Test {
 protected:
  using Texts = std::vector<std::string>;
  using Panel = Brontel::Plugin::ItemData::ItemDataSettingsPanel;

  WindowFixture() : application(database.get()), user(application) {
    // Nothing here has to outlive a power failure.
    database.exec("pragma synchronous=off");
    EXPECT_EQ(Brontel::Model::initEntityTables(database.get()), 1);
    EXPECT_TRUE(database->setForeignKeys(true));
    container.reset(get_plugin(application.get()));
    EXPECT_EQ(container->init(), 1);
    registry.add(container.get());
    // The program's main window: without one, FOX ends the program with the last window.
    main = new FX::FXMainWindow(application.get(), "main", nullptr, nullptr, FX::DECOR_ALL, 0, 0, 100, 100);
    application.create();
  }

  /// Opens the settings and does a step for each modal window that comes; gives the result.
  long openSettings(std::vector<DialogUser::Step> steps) {
    long result = -1;
    user.run([&] { result = container->onSettings(nullptr, 0, nullptr); }, std::move(steps));
    return result;
  }
  static Brontel::DBTable& tableOf(FX::FXWindow* dialog) { return *dynamic_cast<Panel&>(*dialog).getTable(); }
  static void accept(FX::FXWindow* dialog) {
    dialog->handle(nullptr, FXSEL(FX::SEL_COMMAND, FX::FXDialogBox::ID_ACCEPT), nullptr);
  }
  static void cancel(FX::FXWindow* dialog) {
    dialog->handle(nullptr, FXSEL(FX::SEL_COMMAND, FX::FXDialogBox::ID_CANCEL), nullptr);
  }
  /// Appends a row with these values: name, type, per unit, mandatory, parameter.
  static void addVariable(FX::FXWindow* dialog, const Texts& values) {
    Brontel::DBTable& table = tableOf(dialog);
    const int row = table.appendNewRow();
    for (size_t i = 0; i < values.size(); ++i) table.setStoredValue(row, static_cast<int>(i), values[i].c_str());
  }
  /// Every variable of the user as "id name type process mandatory vvalue".
  Texts variables() const {
    Texts texts;
    for (const auto& row : database.rows("select t_itemvariable_id||' '||name||' '||type||' '||process||' '||"
                                         "mandatory||' '||ifnull(vvalue,'') from t_itemvariable where "
                                         "t_itemvariable_id>0 order by 1")) {
      texts.push_back(row[0]);
    }
    return texts;
  }

  TestDatabase database;
  TestApplication application;
  std::unique_ptr<Brontel::Plugin::PluginContainer> container;
  Brontel::Plugin::PluginRegistry registry;
  DialogUser user;
  FX::FXMainWindow* main = nullptr;
};
