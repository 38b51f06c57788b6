#include <type_traits>

#include <gtest/gtest.h>

#include "host/plugin/PanelProvider.h"

using Brontel::Plugin::PluginModule;
using Brontel::Plugin::PanelProvider::Handler;
using Brontel::Plugin::PanelProvider::Plugin;

namespace {

/// What a plug-in at least has to say.
class MinimalHandler : public Handler {
 public:
  void createGUI(FX::FXComposite*) override {}
  FX::FXString getPanelName() const override { return "panel"; }
  long onOKButton(FX::FXObject*, FX::FXSelector, void*) override { return 1; }
};

}  // namespace

TEST(PanelProviderTest, handlerHasUsableDefaults) {
  MinimalHandler handler;
  EXPECT_EQ(handler.getIcon16(), nullptr);
  EXPECT_EQ(handler.getPanel(), nullptr);
  EXPECT_EQ(handler.onCancelButton(nullptr, 0, nullptr), 1);
  EXPECT_TRUE(handler.getCodeName().empty());
  handler.onFocus();
  EXPECT_TRUE(Handler::metaClass.isSubClassOf(&FX::FXObject::metaClass));
}

TEST(PanelProviderTest, aHandlerHasToBuildItsPanel) {
  EXPECT_TRUE(std::is_abstract_v<Handler>);
  EXPECT_FALSE(std::is_abstract_v<MinimalHandler>);
}

TEST(PanelProviderTest, pluginIsAModuleThatSubclassesComplete) {
  EXPECT_TRUE(Plugin::metaClass.isSubClassOf(&PluginModule::metaClass));
  EXPECT_TRUE(std::is_abstract_v<Plugin>);
}
