#include "host/plugin/EntityPlugin.h"

namespace Brontel::Plugin {

FXIMPLEMENT_ABSTRACT(EntityPlugin, PluginModule, nullptr, 0)

EntityPlugin::EntityPlugin(PluginContainer* container, int weight1, int weight2, int weight3, int xmlWeight,
                           int stringWeight)
    : PluginModule(container),
      weight1_(weight1),
      weight2_(weight2),
      weight3_(weight3),
      xmlWeight_(xmlWeight),
      stringWeight_(stringWeight) {}

int EntityPlugin::del(Entity*) const {
  return 0;
}

void* EntityPlugin::getParser(const FX::FXMetaClass*, FX::FXDict&) const {
  return nullptr;
}

int EntityPlugin::getXmlWeight() const {
  return xmlWeight_;
}

int EntityPlugin::getStringWeight() const {
  return stringWeight_;
}

}  // namespace Brontel::Plugin
