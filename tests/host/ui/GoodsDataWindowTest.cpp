#include <fxkeys.h>
#include <gtest/gtest.h>

#include "host/entity/EntityTables.h"
#include "host/plugin/PluginRegistry.h"
#include "host/ui/ProductDataWindow.h"
#include "host/ui/ServiceDataWindow.h"
#include "host/ui/SuiteDataWindow.h"
#include "tests/host/plugin/TestContainer.h"
#include "tests/host/ui/TestPanels.h"
#include "tests/support/CollectingErrorSink.h"
#include "tests/support/DialogUser.h"
#include "tests/support/FaultObserver.h"
#include "tests/support/FileConnection.h"
#include "tests/support/TestDatabase.h"

using Brontel::GoodsDataWindow;
using Brontel::ProductDataWindow;
using FX::FXWindow;
using Log = std::vector<std::string>;
using Result = Brontel::GoodsRepository::Result;

namespace {

class GoodsDataWindowTest : public ::testing::Test {
 protected:
  GoodsDataWindowTest() : container(application.get()), plugin(container.add(new TestPanelPlugin(&container))) {
    registry.add(&container);
    plugin->database = database.get();
    EXPECT_EQ(Brontel::Model::initEntityTables(database.get()), 1);
    database.exec("create table t_test (goods integer, text text)");
    database.exec(
        "insert into t_product (t_product_id, code, name, unit, price, version) values (7,'SZ','Szék','db','12',1)");
    // The program's main window: without one, FOX ends the program with the last window.
    main = new FX::FXMainWindow(application.get(), "main", nullptr, nullptr, FX::DECOR_ALL, 0, 0, 100, 100);
    application.create();
    windows = windowCount();
  }
  ~GoodsDataWindowTest() override {
    while (windowCount() > windows) delete application->getRootWindow()->getLast();
  }

  /// A window on the screen, with the keyboard.
  ProductDataWindow* open(int id) {
    auto* window = new ProductDataWindow(application.get(), "");
    EXPECT_EQ(window->open(database.handle(), registry, id), Result::Done);
    window->create();
    window->show(FX::PLACEMENT_SCREEN);
    user.giveKeyboardTo(window);
    return window;
  }
  int windowCount() { return application->getRootWindow()->numChildren(); }
  bool isClosed() { return windowCount() == windows; }
  std::string stored() const {
    return database.text(
        "select group_concat(t_product_id||' '||code||' '||name||' '||unit||' '||price||' '||version,'|') from "
        "t_product");
  }
  std::string panels() const { return database.text("select group_concat(goods||text) from t_test"); }

  TestDatabase database;
  TestApplication application;
  TestContainer container;
  TestPanelPlugin* plugin;
  Brontel::Plugin::PluginRegistry registry;
  DialogUser user{application};
  FX::FXMainWindow* main;
  int windows = 0;
};

constexpr const char* kBefore = "7 SZ Szék db 12 1";

}  // namespace

TEST_F(GoodsDataWindowTest, showsTheRecordFirstAndThenThePanels) {
  const ProductDataWindow* window = open(7);
  EXPECT_STREQ(window->getCodeField()->getText().text(), "SZ");
  EXPECT_STREQ(window->getNameField()->getText().text(), "Szék");
  EXPECT_STREQ(window->getUnitField()->getText().text(), "db");
  EXPECT_STREQ(window->getPriceField()->getText().text(), "12");
  EXPECT_STREQ(window->getTitle().text(), "Termék: Szék");
  EXPECT_EQ(window->getCurrentId(), 7);
  const std::vector<FX::FXTabItem*> tabs = descendantsOf<FX::FXTabItem>(window);
  ASSERT_EQ(tabs.size(), 2u);
  EXPECT_STREQ(tabs[0]->getText().text(), "Termék");
  EXPECT_STREQ(tabs[1]->getText().text(), "Teszt");
  EXPECT_FALSE(window->hasUnsavedChanges());
}

TEST_F(GoodsDataWindowTest, savesTheRecordThenThePanelsAndCloses) {
  ProductDataWindow* window = open(7);
  user.key(FX::KEY_a, {FX::KEY_Control_L});
  user.type("Karosszék & 'tsa'");
  plugin->last->field->setText("x");
  EXPECT_TRUE(window->hasUnsavedChanges());
  user.key(FX::KEY_o, {FX::KEY_Alt_L});
  EXPECT_TRUE(isClosed());
  EXPECT_EQ(stored(), "7 SZ Karosszék & 'tsa' db 12 2");
  EXPECT_EQ(panels(), "7x");
  EXPECT_EQ(plugin->log, (Log{"ok 7", "gone"}));
}

TEST_F(GoodsDataWindowTest, givesANewRecordItsKeyBeforeThePanelsSave) {
  const ProductDataWindow* window = open(0);
  EXPECT_STREQ(window->getTitle().text(), "Termék: új");
  EXPECT_FALSE(window->hasUnsavedChanges());
  user.type("uj cikk");
  plugin->last->field->setText("y");
  user.key(FX::KEY_Return);
  EXPECT_TRUE(isClosed());
  EXPECT_EQ(panels(), "8y");
  EXPECT_EQ(database.text("select name from t_product where t_product_id=8"), "uj cikk");
}

TEST_F(GoodsDataWindowTest, storesPricesWithADecimalPoint) {
  const ProductDataWindow* window = open(7);
  window->getPriceField()->setText(" 99,50 ");
  user.key(FX::KEY_o, {FX::KEY_Alt_L});
  EXPECT_EQ(stored(), "7 SZ Szék db 99.50 2");
}

TEST_F(GoodsDataWindowTest, leavesAStoredPriceThatIsNoneAsItIs) {
  database.exec("update t_product set price='1.23456' where t_product_id=7");
  open(7)->getUnitField()->setText("fő");
  user.key(FX::KEY_o, {FX::KEY_Alt_L});
  EXPECT_EQ(stored(), "7 SZ Szék fő 1.23456 2");
}

TEST_F(GoodsDataWindowTest, goesToWhatIsMissingOrWrong) {
  ProductDataWindow* window = open(7);
  window->getTabs()->setCurrent(1, TRUE);
  for (const auto& [name, price, field] : {std::tuple{"", "1", window->getNameField()},
                                           {"  ", "1", window->getNameField()},
                                           {"a", "sok", window->getPriceField()},
                                           {"a", "1,", window->getPriceField()},
                                           {"a", "1.2.3", window->getPriceField()},
                                           {"a", "1,23456", window->getPriceField()},
                                           {"a", "-", window->getPriceField()}}) {
    window->getNameField()->setText(name);
    window->getPriceField()->setText(price);
    user.run([&] { window->handle(nullptr, FXSEL(FX::SEL_COMMAND, GoodsDataWindow::ID_OK), nullptr); },
             {[](FXWindow* box) {
               EXPECT_EQ(boxTitle(box), "Hiányos adatok");
               answer(box, FX::FXMessageBox::ID_CLICKED_OK);
             }});
    EXPECT_TRUE(field->hasFocus()) << name << "/" << price;
    EXPECT_EQ(window->getTabs()->getCurrent(), 0);
    EXPECT_STREQ(window->getPriceField()->getText().text(), price);
  }
  EXPECT_EQ(stored(), kBefore);
  EXPECT_EQ(panels(), "NULL");
}

TEST_F(GoodsDataWindowTest, cancelTellsThePanelsAndWritesNothing) {
  open(7);
  user.key(FX::KEY_Escape);
  EXPECT_TRUE(isClosed());
  EXPECT_EQ(plugin->log, (Log{"cancel", "gone"}));
  EXPECT_EQ(stored(), kBefore);
}

TEST_F(GoodsDataWindowTest, cancelAsksBeforeChangesAreLost) {
  const ProductDataWindow* window = open(7);
  plugin->last->field->setText("x");
  for (const FX::FXuint reply : {FX::FXMessageBox::ID_CLICKED_NO, FX::FXMessageBox::ID_CLICKED_YES}) {
    EXPECT_FALSE(isClosed());
    EXPECT_TRUE(window->shown());
    user.run([&] { user.key(FX::KEY_Escape); }, {[&](FXWindow* box) { answer(box, reply); }});
  }
  EXPECT_TRUE(isClosed());
  EXPECT_EQ(plugin->log, (Log{"cancel", "gone"}));
  EXPECT_EQ(panels(), "NULL");
}

TEST_F(GoodsDataWindowTest, closingAsksWhetherToSave) {
  ProductDataWindow* window = open(7);
  window->getNameField()->setText("Zsámoly");
  user.run([&] { EXPECT_FALSE(window->close(TRUE)); },
           {[](FXWindow* box) { answer(box, FX::FXMessageBox::ID_CLICKED_CANCEL); }});
  EXPECT_STREQ(window->getNameField()->getText().text(), "Zsámoly");
  user.run([&] { EXPECT_TRUE(window->close(TRUE)); },
           {[](FXWindow* box) { answer(box, FX::FXMessageBox::ID_CLICKED_SAVE); }});
  EXPECT_EQ(stored(), "7 SZ Zsámoly db 12 2");
  EXPECT_EQ(plugin->log, (Log{"ok 7", "gone"}));
  window = open(7);
  window->getNameField()->setText("Hokedli");
  user.run([&] { EXPECT_TRUE(window->close(TRUE)); },
           {[](FXWindow* box) { answer(box, FX::FXMessageBox::ID_CLICKED_NO); }});
  EXPECT_EQ(stored(), "7 SZ Zsámoly db 12 2");
  EXPECT_TRUE(isClosed());
}

TEST_F(GoodsDataWindowTest, closesUnchangedWithoutQuestion) {
  EXPECT_TRUE(open(7)->close(TRUE));
  EXPECT_EQ(plugin->log, (Log{"cancel", "gone"}));
}

TEST_F(GoodsDataWindowTest, refusesToOverwriteWhatAnotherWindowHasSaved) {
  ProductDataWindow* first = open(7);
  ProductDataWindow* second = open(7);
  first->getNameField()->setText("Első");
  EXPECT_TRUE(first->save());
  second->getNameField()->setText("Második");
  plugin->last->field->setText("x");
  user.run([&] { EXPECT_FALSE(second->save()); }, {[](FXWindow* box) {
             EXPECT_NE(boxText(box).find("Közben más módosította vagy törölte"), std::string::npos);
             answer(box, FX::FXMessageBox::ID_CLICKED_OK);
           }});
  EXPECT_EQ(stored(), "7 SZ Első db 12 2");
  EXPECT_EQ(panels(), "7");
  EXPECT_STREQ(second->getNameField()->getText().text(), "Második");
  EXPECT_TRUE(second->hasUnsavedChanges());
  EXPECT_EQ(second->reload(), Result::Done);
  EXPECT_STREQ(second->getNameField()->getText().text(), "Első");
  EXPECT_FALSE(second->hasUnsavedChanges());
  second->getNameField()->setText("Második");
  EXPECT_TRUE(second->save());
  EXPECT_EQ(stored(), "7 SZ Második db 12 3");
}

TEST_F(GoodsDataWindowTest, keepsEverythingWhenTheDatabaseRefuses) {
  ProductDataWindow* window = open(0);
  window->getNameField()->setText("Új");
  plugin->last->field->setText("x");
  int number = 1;
  for (;; ++number) {
    const CollectingErrorSink sink(database.handle());
    const FaultObserver fault(database.handle(), number);
    const bool saved = window->save();
    if (fault.faults() == 0) {
      EXPECT_TRUE(saved);
      break;
    }
    EXPECT_FALSE(saved) << number;
    EXPECT_FALSE(sink.errors().empty());
    EXPECT_EQ(window->getCurrentId(), 0);
    EXPECT_TRUE(window->hasUnsavedChanges());
    EXPECT_EQ(stored(), kBefore) << number;
    EXPECT_EQ(panels(), "NULL") << number;
  }
  EXPECT_GT(number, 4);
  EXPECT_EQ(stored(), std::string(kBefore) + "|8  Új   1");
  EXPECT_EQ(panels(), "8x");
}

TEST_F(GoodsDataWindowTest, waitsForAnotherProgramsLockAndThenKeepsEverything) {
  const ProductDataWindow* window = open(7);
  window->getNameField()->setText("Később");
  FileConnection other(database.path());
  other.exec("begin immediate");
  const CollectingErrorSink sink(database.handle());
  user.key(FX::KEY_o, {FX::KEY_Alt_L});
  EXPECT_FALSE(isClosed());
  ASSERT_FALSE(sink.errors().empty());
  EXPECT_EQ(sink.errors().front().kind, Brontel::Database::ErrorKind::Busy);
  EXPECT_STREQ(window->getNameField()->getText().text(), "Később");
  other.exec("rollback");
  user.key(FX::KEY_o, {FX::KEY_Alt_L});
  EXPECT_TRUE(isClosed());
  EXPECT_EQ(stored(), "7 SZ Később db 12 2");
}

TEST_F(GoodsDataWindowTest, opensNothingThatIsNotThere) {
  ProductDataWindow window(application.get(), "");
  EXPECT_EQ(window.open(database.handle(), registry, 99), Result::NotFound);
  EXPECT_FALSE(window.hasUnsavedChanges());
  EXPECT_FALSE(window.save());
  EXPECT_EQ(window.reload(), Result::NotFound);
}

TEST_F(GoodsDataWindowTest, worksForEveryKind) {
  Brontel::ServiceDataWindow service(application.get(), "");
  Brontel::SuiteDataWindow suite(application.get(), "");
  const std::pair<GoodsDataWindow*, const char*> kinds[] = {{&service, "t_service"}, {&suite, "t_suite"}};
  for (const auto& [window, table] : kinds) {
    ASSERT_EQ(window->open(database.handle(), registry, 0), Result::Done);
    window->create();
    window->getNameField()->setText("Új");
    EXPECT_TRUE(window->save());
    EXPECT_EQ(database.text(std::string("select name from ") + table), "Új");
  }
  EXPECT_STREQ(service.getTitle().text(), "Szolgáltatás: új");
  EXPECT_STREQ(suite.getTitle().text(), "Készlet: új");
}
