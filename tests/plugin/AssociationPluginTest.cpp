#include <type_traits>

#include <fxkeys.h>

#include "fxext/widgets/FXDualList.h"
#include "host/ui/ProductDataWindow.h"
#include "host/ui/ServiceDataWindow.h"
#include "host/ui/SuiteDataWindow.h"
#include "plugin/ItemDataAssociationPanel.h"
#include "tests/plugin/WindowFixture.h"
#include "tests/support/FaultObserver.h"
#include "tests/support/RecordingObserver.h"

using Brontel::PanelisedWindow;
using Brontel::ProductDataWindow;
using Brontel::ServiceDataWindow;
using Brontel::SuiteDataWindow;
using FX::FXWindow;
using Result = Brontel::GoodsRepository::Result;

namespace Association = Brontel::Plugin::ItemData::ItemDataAssociationPanel;
using HostHandler = Brontel::Plugin::PanelProvider::Handler;
using FXExt::FXDualList;

static_assert(std::is_base_of_v<Brontel::Plugin::PanelProvider::Plugin, Association::Plugin>);
static_assert(std::is_base_of_v<HostHandler, Association::Handler<ProductDataWindow>>);
static_assert(std::is_base_of_v<HostHandler, Association::Handler<ServiceDataWindow>>);
static_assert(std::is_base_of_v<HostHandler, Association::Handler<SuiteDataWindow>>);

namespace {

/// A panelised window of no kind of goods.
class OtherWindow : public PanelisedWindow {
 public:
  explicit OtherWindow(FX::FXApp* app) : PanelisedWindow(app, "other") {}
};

/// A kind of product window.
class SpecialWindow : public ProductDataWindow {
 public:
  using ProductDataWindow::ProductDataWindow;
};

class AssociationPluginTest : public WindowFixture {
 protected:
  AssociationPluginTest() : plugin(dynamic_cast<Association::Plugin*>(container->getModules()[0])) {
    for (const char* table : {"t_product", "t_service", "t_suite"}) {
      database.exec(std::string("insert into ") + table + " (" + table + "_id, name, version) values (7, 'Szék', 1)");
    }
    database.exec(
        "insert into t_itemvariable (t_itemvariable_id, name, type, process, mandatory, vvalue) values "
        "(1,'Sarzs',1,1,0,''), (2,'Lejárat',2,0,0,''), (3,'Szín',3,0,1,'piros,kék')");
  }

  template <class W>
  void expectHandler(const char* keyColumn) {
    W window(application.get(), "window");
    EXPECT_TRUE(plugin->acceptWindow(&window));
    const std::unique_ptr<HostHandler> made(plugin->getHandler(&window));
    const std::unique_ptr<HostHandler> another(plugin->getHandler(&window));
    EXPECT_NE(made, another);
    auto* handler = dynamic_cast<Association::Handler<W>*>(made.get());
    ASSERT_NE(handler, nullptr);
    EXPECT_EQ(handler->getPlugin(), plugin);
    EXPECT_EQ(handler->getWindow(), &window);
    EXPECT_EQ(handler->getAssociationPanel(), nullptr);
    EXPECT_EQ(handler->onOKButton(nullptr, 0, nullptr), 1) << "before there is a panel";
    auto* frame = new FX::FXVerticalFrame(&window);
    handler->createGUI(frame);
    ASSERT_NE(handler->getAssociationPanel(), nullptr);
    EXPECT_EQ(frame->getFirst(), handler->getAssociationPanel());
    const RecordingObserver recorder(database.handle());
    window.setCurrentId(7);
    window.create();
    ASSERT_EQ(recorder.records().size(), 2u);
    EXPECT_NE(recorder.records()[0].sql.find(std::string(" and ") + keyColumn + "=%productid"), std::string::npos);
    EXPECT_EQ(handler->onOKButton(nullptr, 0, nullptr), 1);
    EXPECT_EQ(handler->onCancelButton(nullptr, 0, nullptr), 1);
    EXPECT_EQ(recorder.records().size(), 2u);
  }
  /// The product's window on the screen, and its panel.
  ProductDataWindow* open(int id) {
    auto* window = new ProductDataWindow(application.get(), "");
    EXPECT_EQ(window->open(database.handle(), registry, id), Result::Done);
    window->create();
    window->show(FX::PLACEMENT_SCREEN);
    user.giveKeyboardTo(window);
    return window;
  }
  static FXDualList* listOf(const FXWindow* window, size_t index) {
    return descendantsOf<FXDualList>(window).at(index);
  }
  static void choose(FXDualList* lists, const char* name) {
    lists->getFromList()->killSelection();
    lists->getFromList()->selectItem(lists->getFromList()->findItem(name));
    lists->handle(nullptr, FXSEL(FX::SEL_COMMAND, FXDualList::ID_MAKESELECTED), nullptr);
  }
  Texts stored() const {
    Texts texts;
    for (const auto& row : database.rows(
             "select t_product_1||' '||t_itemvariable_1||' '||position||' '||direction from t_productitemdata "
             "order by 1")) {
      texts.push_back(row[0]);
    }
    return texts;
  }

  Association::Plugin* plugin;
};

}  // namespace

TEST_F(AssociationPluginTest, isThePluginsFirstModule) {
  ASSERT_NE(plugin, nullptr);
  EXPECT_EQ(plugin->getContainer(), container.get());
}

TEST_F(AssociationPluginTest, givesEachGoodsWindowAHandlerOfItsKind) {
  expectHandler<ProductDataWindow>("t_product_1");
  expectHandler<ServiceDataWindow>("t_service_1");
  expectHandler<SuiteDataWindow>("t_suite_1");
}

TEST_F(AssociationPluginTest, acceptsSubclassesAndNoOtherWindow) {
  SpecialWindow special(application.get(), "special");
  EXPECT_TRUE(plugin->acceptWindow(&special));
  const std::unique_ptr<HostHandler> handler(plugin->getHandler(&special));
  EXPECT_NE(dynamic_cast<Association::Handler<ProductDataWindow>*>(handler.get()), nullptr);
  OtherWindow other(application.get());
  EXPECT_FALSE(plugin->acceptWindow(&other));
  EXPECT_EQ(plugin->getHandler(&other), nullptr);
  EXPECT_FALSE(plugin->acceptWindow(nullptr));
  EXPECT_EQ(plugin->getHandler(nullptr), nullptr);
}

TEST_F(AssociationPluginTest, showsItsPanelUnderItsNameWithTheContainersIcon) {
  const ProductDataWindow* window = open(7);
  const auto tabs = descendantsOf<FX::FXTabItem>(window);
  ASSERT_EQ(tabs.size(), 2u);
  EXPECT_STREQ(tabs[1]->getText().text(), "Tételadatok");
  EXPECT_EQ(tabs[1]->getIcon(), container->getIcon16());
  EXPECT_EQ(descendantsOf<FXDualList>(window).size(), 2u);
}

TEST_F(AssociationPluginTest, savesWithTheRecord) {
  ProductDataWindow* window = open(7);
  EXPECT_FALSE(window->hasUnsavedChanges());
  choose(listOf(window, 0), "Szín");
  choose(listOf(window, 1), "Lejárat");
  choose(listOf(window, 1), "Sarzs");
  EXPECT_TRUE(window->hasUnsavedChanges());
  const RecordingObserver recorder(database.handle());
  user.key(FX::KEY_Return);
  EXPECT_EQ(stored(), (Texts{"7 1 2 100", "7 2 1 100", "7 3 1 200"}));
  EXPECT_EQ(recorder.count("begin"), 1);
  EXPECT_EQ(recorder.count("commit"), 1);
  EXPECT_EQ(database.text("select version from t_product"), "2");
}

TEST_F(AssociationPluginTest, storesChoicesForANewRecordUnderItsKey) {
  const ProductDataWindow* window = open(0);
  choose(listOf(window, 1), "Szín");
  user.type("asztal");
  user.key(FX::KEY_Return);
  EXPECT_EQ(stored(), Texts{"8 3 1 100"});
  const ProductDataWindow* again = open(8);
  EXPECT_STREQ(listOf(again, 1)->getToList()->getItemText(0).text(), "Szín");
}

TEST_F(AssociationPluginTest, cancelWritesNothing) {
  ProductDataWindow* window = open(7);
  choose(listOf(window, 0), "Szín");
  const RecordingObserver recorder(database.handle());
  user.run([&] { EXPECT_TRUE(window->close(TRUE)); },
           {[](FXWindow* box) { answer(box, FX::FXMessageBox::ID_CLICKED_NO); }});
  EXPECT_EQ(recorder.texts(), Texts());
}

TEST_F(AssociationPluginTest, storesAllOrNothing) {
  ProductDataWindow* window = open(7);
  choose(listOf(window, 0), "Szín");
  choose(listOf(window, 1), "Szín");
  window->getNameField()->setText("Zsámoly");
  const std::string dump = database.dump();
  for (int number = 1;; ++number) {
    const FaultObserver fault(database.handle(), number);
    const bool saved = window->save();
    if (fault.faults() == 0) {
      EXPECT_TRUE(saved);
      break;
    }
    EXPECT_FALSE(saved);
    EXPECT_EQ(database.dump(), dump) << number;
    EXPECT_TRUE(window->hasUnsavedChanges());
  }
  EXPECT_EQ(stored(), (Texts{"7 3 1 100", "7 3 1 200"}));
}

TEST_F(AssociationPluginTest, theSecondOfTwoWindowsDestroysNothing) {
  ProductDataWindow* first = open(7);
  ProductDataWindow* second = open(7);
  choose(listOf(first, 1), "Szín");
  choose(listOf(second, 1), "Lejárat");
  EXPECT_TRUE(first->save());
  user.run([&] { EXPECT_FALSE(second->save()); },
           {[](FXWindow* box) { answer(box, FX::FXMessageBox::ID_CLICKED_OK); }});
  EXPECT_EQ(stored(), Texts{"7 3 1 100"});
  EXPECT_STREQ(listOf(second, 1)->getToList()->getItemText(0).text(), "Lejárat");
  EXPECT_EQ(second->reload(), Result::Done);
  choose(listOf(second, 1), "Lejárat");
  EXPECT_TRUE(second->save());
  EXPECT_EQ(stored(), (Texts{"7 2 2 100", "7 3 1 100"}));
}
