#pragma once

#include <fx.h>

#include "host/plugin/PluginModule.h"

namespace Brontel {

class PanelisedWindow;

namespace Plugin::PanelProvider {

/// A panel that a plug-in shows in one goods window. Made by Plugin::getHandler, owned by the window.
class Handler : public FX::FXObject {
  FXDECLARE(Handler)

 public:
  Handler() = default;
  Handler(const Handler&) = delete;
  Handler& operator=(const Handler&) = delete;

  /// May be null; owned by the handler or its plug-in.
  virtual FX::FXIcon* getIcon16() const;
  virtual FX::FXWindow* getPanel() const;
  /// Builds the panel's widgets into parent, which owns them. Called once.
  virtual void createGUI(FX::FXComposite* parent);
  /// As shown to the user.
  virtual FX::FXString getPanelName() const;
  /// The window's OK: called after the window's record has been saved and has its key, in the same transaction.
  virtual long onOKButton(FX::FXObject*, FX::FXSelector, void*);
  virtual long onCancelButton(FX::FXObject*, FX::FXSelector, void*);
  virtual FX::FXString getCodeName() const;
  /// The panel has come to the front.
  virtual void onFocus();
};

/// Offers panels for the goods windows.
class Plugin : public PluginModule {
  FXDECLARE_ABSTRACT(Plugin)

 public:
  using PluginModule::PluginModule;

  virtual bool acceptWindow(PanelisedWindow* window) = 0;
  /// A new handler for an accepted window, which owns it; null for any other.
  virtual Handler* getHandler(PanelisedWindow* window) = 0;

 protected:
  Plugin() = default;
};

}  // namespace Plugin::PanelProvider
}  // namespace Brontel
