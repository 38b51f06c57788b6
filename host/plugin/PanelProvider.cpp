#include "host/plugin/PanelProvider.h"

namespace Brontel::Plugin::PanelProvider {

using FX::FXString;

FXIMPLEMENT_ABSTRACT(Handler, FXObject, nullptr, 0)

FX::FXIcon* Handler::getIcon16() const {
  return nullptr;
}

FX::FXWindow* Handler::getPanel() const {
  return nullptr;
}

FXString Handler::getPanelName() const {
  return FXString();
}

long Handler::onOKButton(FX::FXObject*, FX::FXSelector, void*) {
  return 1;
}

long Handler::onCancelButton(FX::FXObject*, FX::FXSelector, void*) {
  return 1;
}

FXString Handler::getCodeName() const {
  return FXString();
}

void Handler::onFocus() {}

FXIMPLEMENT_ABSTRACT(Plugin, PluginModule, nullptr, 0)

}  // namespace Brontel::Plugin::PanelProvider
