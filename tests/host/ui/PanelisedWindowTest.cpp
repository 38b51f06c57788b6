#include <gtest/gtest.h>

#include "host/plugin/PluginRegistry.h"
#include "host/ui/HostIcons.h"
#include "host/ui/ProductDataWindow.h"
#include "host/ui/ServiceDataWindow.h"
#include "host/ui/SuiteDataWindow.h"
#include "tests/host/plugin/TestContainer.h"
#include "tests/host/ui/TestPanels.h"
#include "tests/support/TestApplication.h"

using Brontel::PanelisedWindow;
using Log = std::vector<std::string>;

namespace {

/// A container with an icon.
class IconContainer : public TestContainer {
 public:
  using TestContainer::TestContainer;
  FX::FXIcon* getIcon16() override { return icon; }
  FX::FXIcon* icon = nullptr;
};

class PanelisedWindowTest : public ::testing::Test {
 protected:
  PanelisedWindowTest() : container(application.get()), plugin(container.add(new TestPanelPlugin(&container))) {
    registry.add(&container);
  }

  TestApplication application;
  IconContainer container;
  Brontel::Plugin::PluginRegistry registry;
  TestPanelPlugin* plugin;
  Brontel::ProductDataWindow window{application.get(), "product"};
};

}  // namespace

TEST_F(PanelisedWindowTest, knowsTheRecordThatItShows) {
  Brontel::ServiceDataWindow service(application.get(), "service");
  Brontel::SuiteDataWindow suite(application.get(), "suite");
  for (PanelisedWindow* each : {static_cast<PanelisedWindow*>(&window), static_cast<PanelisedWindow*>(&service),
                                static_cast<PanelisedWindow*>(&suite)}) {
    EXPECT_EQ(each->getCurrentId(), 0);
    each->setCurrentId(12);
    EXPECT_EQ(each->getCurrentId(), 12);
    EXPECT_TRUE(each->isMemberOf(&PanelisedWindow::metaClass));
  }
  EXPECT_STREQ(suite.getTitle().text(), "suite");
}

TEST_F(PanelisedWindowTest, showsEachPanelUnderItsNameWithItsPluginsIcon) {
  container.icon = application->getDeleteIcon();
  window.addPanel("Adatok", nullptr);
  window.addPluginPanels(registry);
  ASSERT_NE(window.getTabs(), nullptr);
  ASSERT_EQ(window.getTabs()->numChildren(), 4);
  const auto* own = dynamic_cast<FX::FXTabItem*>(window.getTabs()->childAtIndex(0));
  const auto* plugins = dynamic_cast<FX::FXTabItem*>(window.getTabs()->childAtIndex(2));
  ASSERT_NE(plugins, nullptr);
  EXPECT_STREQ(own->getText().text(), "Adatok");
  EXPECT_STREQ(plugins->getText().text(), "Teszt");
  EXPECT_EQ(plugins->getIcon(), application->getDeleteIcon());
  EXPECT_EQ(plugin->last->field->getParent(), window.getTabs()->childAtIndex(3));
  window.removePanels();
  EXPECT_EQ(plugin->log, Log{"gone"});
}

TEST_F(PanelisedWindowTest, showsNoPanelOfAPluginThatHasNoneForIt) {
  plugin->accepts = false;
  window.addPluginPanels(registry);
  EXPECT_EQ(window.getTabs(), nullptr);
  plugin->accepts = true;
  plugin->gives = false;
  window.addPluginPanels(registry);
  EXPECT_EQ(window.getTabs(), nullptr);
  window.acceptPanels();
  window.cancelPanels();
  EXPECT_TRUE(window.getPluginPanelState().empty());
}

TEST_F(PanelisedWindowTest, passesOkAndCancelOn) {
  window.addPluginPanels(registry);
  window.setCurrentId(7);
  window.acceptPanels();
  window.cancelPanels();
  EXPECT_EQ(plugin->log, (Log{"ok 7", "cancel"}));
  window.removePanels();
}

TEST_F(PanelisedWindowTest, tellsAPanelThatItHasComeToTheFront) {
  window.addPanel("Adatok", nullptr);
  window.addPluginPanels(registry);
  application.create();
  window.getTabs()->setCurrent(1, TRUE);
  EXPECT_EQ(plugin->log, Log{"focus"});
  window.getTabs()->setCurrent(0, TRUE);
  EXPECT_EQ(plugin->log, Log{"focus"});
  window.removePanels();
}

TEST_F(PanelisedWindowTest, ownsTheHandlers) {
  {
    Brontel::SuiteDataWindow suite(application.get(), "suite");
    suite.addPluginPanels(registry);
    EXPECT_EQ(plugin->log, Log{});
  }
  EXPECT_EQ(plugin->log, Log{"gone"});
}

TEST_F(PanelisedWindowTest, comparesWhatThePanelsHold) {
  window.addPluginPanels(registry);
  const FX::FXString before = window.getPluginPanelState();
  plugin->last->field->setText("x");
  EXPECT_NE(std::string(window.getPluginPanelState().text()), before.text());
  plugin->last->field->setText("");
  EXPECT_STREQ(window.getPluginPanelState().text(), before.text());
  window.removePanels();
}
