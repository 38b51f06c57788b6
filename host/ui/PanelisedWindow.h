#pragma once

#include <memory>
#include <vector>

#include <fx.h>

namespace Brontel {

namespace Plugin {
class PluginRegistry;

namespace PanelProvider {
class Handler;
}
}  // namespace Plugin

/// A window that edits one goods record and shows plug-ins' panels beside its own, each under a tab. It goes before the
/// plug-ins do.
class PanelisedWindow : public FX::FXTopWindow {
  FXDECLARE_ABSTRACT(PanelisedWindow)

 public:
  enum { ID_PANELS = FX::FXTopWindow::ID_LAST, ID_LAST };

  PanelisedWindow(const PanelisedWindow&) = delete;
  PanelisedWindow& operator=(const PanelisedWindow&) = delete;
  ~PanelisedWindow() override;

  /// The key of the record being edited; 0 until a new record has been saved.
  int getCurrentId() const { return currentId_; }
  void setCurrentId(int id) { currentId_ = id; }

  /// Adds a tab and returns the frame under it. The icon is borrowed and may be null.
  FX::FXVerticalFrame* addPanel(const FX::FXString& name, FX::FXIcon* icon);
  /// Adds a tab for each panel that the plug-ins have for this window, under the panel's name and with its icon or, if
  /// it has none, its plug-in's.
  void addPluginPanels(const Plugin::PluginRegistry& plugins);
  /// Takes all tabs away with everything in them.
  void removePanels();

  /// Tells every plug-in's panel that the window's OK or Cancel was pressed. The record has been saved by then.
  void acceptPanels();
  void cancelPanels();

  /// What the plug-ins' panels hold: see panelState.
  FX::FXString getPluginPanelState() const;
  /// The tabs; null until there is a panel.
  FX::FXTabBook* getTabs() const { return tabs_; }

  long onCmdPanels(FX::FXObject*, FX::FXSelector, void* index);

 protected:
  PanelisedWindow();
  PanelisedWindow(FX::FXApp* app, const FX::FXString& title);

 private:
  struct PluginPanel {
    int tab;  // its place among the tabs
    FX::FXVerticalFrame* frame;
    std::unique_ptr<Plugin::PanelProvider::Handler> handler;
  };

  void addPluginPanel(std::unique_ptr<Plugin::PanelProvider::Handler> handler, FX::FXIcon* pluginIcon);

  int currentId_ = 0;
  FX::FXTabBook* tabs_ = nullptr;  // a child
  std::vector<PluginPanel> pluginPanels_;
};

}  // namespace Brontel
