#include "host/plugin/PluginContainer.h"

#include "host/ui/Morvane.h"

namespace Brontel::Plugin {

using FX::FXint;
using FX::FXString;

FXIMPLEMENT_ABSTRACT(PluginContainer, FXObject, nullptr, 0)

PluginContainer::PluginContainer(Morvane* app, const FXString& textDomain, const FXString& name,
                                 const FXString& version, const FXString& description)
    : app_(app), textDomain_(textDomain), name_(name), version_(version), description_(description) {
  if (app_ != nullptr) app_->bindTextDomain(textDomain_);
}

PluginContainer::~PluginContainer() {
  for (FXint i = modules_.no() - 1; i >= 0; --i) delete modules_[i];
}

FX::FXIcon* PluginContainer::getIcon32() {
  return nullptr;
}

FX::FXIcon* PluginContainer::getIcon64() {
  return nullptr;
}

int PluginContainer::start() {
  return 1;
}

long PluginContainer::onSettings(FX::FXObject*, FX::FXSelector, void*) {
  return 0;
}

long PluginContainer::onHasSettings(FX::FXObject*, FX::FXSelector, void*) {
  return 0;
}

}  // namespace Brontel::Plugin
