#pragma once

#include <libintl.h>

#include "host/plugin/PanelProvider.h"
#include "host/plugin/PluginContainer.h"
#include "host/ui/Morvane.h"
#include "host/ui/WaitCursor.h"
#include "itemdata/Codes.h"
#include "ui/ItemDataAssociationPanel.h"

namespace Brontel {
class ProductDataWindow;
class ServiceDataWindow;
class SuiteDataWindow;
}  // namespace Brontel

namespace Brontel::Plugin::ItemData::ItemDataAssociationPanel {

/// Offers the panel "Tételadatok" for the three goods windows.
class Plugin : public ::Brontel::Plugin::PanelProvider::Plugin {
 public:
  using ::Brontel::Plugin::PanelProvider::Plugin::Plugin;

  bool acceptWindow(PanelisedWindow* window) override;
  ::Brontel::Plugin::PanelProvider::Handler* getHandler(PanelisedWindow* window) override;
};

/// The column that holds the goods in the association table of a window's kind.
template <class W>
constexpr const char* kKeyColumn = nullptr;
template <>
inline constexpr const char* kKeyColumn<ProductDataWindow> = "t_product_1";
template <>
inline constexpr const char* kKeyColumn<ServiceDataWindow> = "t_service_1";
template <>
inline constexpr const char* kKeyColumn<SuiteDataWindow> = "t_suite_1";

/// Builds the panel into one window and saves it at the window's OK.
template <class W>
class Handler : public ::Brontel::Plugin::PanelProvider::Handler {
 public:
  /// Borrows both.
  Handler(Plugin* plugin, W* window) : plugin_(plugin), window_(window) {}

  void createGUI(FX::FXComposite* parent) override {
    const Morvane* app = getApp();
    panel_ = new UI::ItemDataAssociationPanel(parent, window_, app == nullptr ? nullptr : app->getDB(), kKeyColumn<W>);
  }

  FX::FXString getPanelName() const override { return dgettext(kTextDomain, "Tételadatok"); }

  long onOKButton(FX::FXObject*, FX::FXSelector, void*) override {
    if (panel_ == nullptr) return 1;
    const WaitCursor waiting(getApp());
    panel_->save();
    return 1;
  }

  Plugin* getPlugin() const { return plugin_; }
  W* getWindow() const { return window_; }
  /// Null until createGUI.
  UI::ItemDataAssociationPanel* getAssociationPanel() const { return panel_; }

 private:
  Morvane* getApp() const {
    const PluginContainer* container = plugin_ == nullptr ? nullptr : plugin_->getContainer();
    return container == nullptr ? nullptr : container->getApp();
  }

  Plugin* plugin_;
  W* window_;
  UI::ItemDataAssociationPanel* panel_ = nullptr;  // a child of the window
};

}  // namespace Brontel::Plugin::ItemData::ItemDataAssociationPanel
