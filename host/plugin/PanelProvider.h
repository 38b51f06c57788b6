#pragma once

#include <fx.h>

#include "host/plugin/PluginModule.h"

namespace Brontel {

class PanelisedWindow;

namespace Plugin::PanelProvider {

/// A panel that a plug-in shows in one goods window. Made by Plugin::getHandler, owned by the window.
class Handler : public FX::FXObject {
  FXDECLARE_ABSTRACT(Handler)

 public:
  Handler() = default;
  Handler(const Handler&) = delete;
  Handler& operator=(const Handler&) = delete;

  /// May be null, and the tab shows the plug-in's icon then; owned by the handler or its plug-in.
  virtual FX::FXIcon* getIcon16() const;
  /// The panel, or null. This host goes by what createGUI builds and does not ask.
  virtual FX::FXWindow* getPanel() const;
  /// Builds the panel's widgets into parent, which owns them. Called once.
  virtual void createGUI(FX::FXComposite* parent) = 0;
  /// As shown to the user.
  virtual FX::FXString getPanelName() const;
  /// The window's OK: called after the window's record has been saved and has its key, in the same transaction.
  virtual long onOKButton(FX::FXObject*, FX::FXSelector, void*);
  /// The window goes without having been saved.
  virtual long onCancelButton(FX::FXObject*, FX::FXSelector, void*);
  /// A name for the panel that no translation changes; this host does not ask for it.
  virtual FX::FXString getCodeName() const;
  /// The panel has come to the front.
  virtual void onFocus();
};

/// Offers panels for the goods windows.
class Plugin : public PluginModule {
  FXDECLARE_ABSTRACT(Plugin)

 public:
  using PluginModule::PluginModule;

  /// Whether there is a panel for that window.
  virtual bool acceptWindow(PanelisedWindow* window) = 0;
  /// A new handler for an accepted window, which owns it; null for any other.
  virtual Handler* getHandler(PanelisedWindow* window) = 0;

 protected:
  Plugin() = default;
};

}  // namespace Plugin::PanelProvider
}  // namespace Brontel
