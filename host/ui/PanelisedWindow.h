#pragma once

#include <fx.h>

namespace Brontel {

/// A window that edits one goods record and shows plug-ins' panels beside its own.
class PanelisedWindow : public FX::FXTopWindow {
  FXDECLARE_ABSTRACT(PanelisedWindow)

 public:
  /// The key of the record being edited; 0 until a new record has been saved.
  int getCurrentId() const { return currentId_; }
  void setCurrentId(int id) { currentId_ = id; }

 protected:
  PanelisedWindow() = default;
  PanelisedWindow(FX::FXApp* app, const FX::FXString& title);

 private:
  int currentId_ = 0;
};

}  // namespace Brontel
