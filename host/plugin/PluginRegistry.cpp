#include "host/plugin/PluginRegistry.h"

#include <algorithm>

#include "host/entity/Entity.h"
#include "host/plugin/EntityPlugin.h"
#include "host/plugin/InvoiceCheckPlugin.h"
#include "host/plugin/PluginContainer.h"

namespace Brontel::Plugin {

using FX::FXint;
using FX::FXString;

void PluginRegistry::add(PluginContainer* container) {
  if (container == nullptr || std::find(containers_.begin(), containers_.end(), container) != containers_.end()) return;
  containers_.push_back(container);
}

void PluginRegistry::remove(PluginContainer* container) {
  std::erase(containers_, container);
}

std::vector<PluginModule*> PluginRegistry::findModules(const FX::FXMetaClass& meta) const {
  std::vector<PluginModule*> found;
  for (const PluginContainer* container : containers_) {
    const FX::FXObjectListOf<PluginModule>& modules = container->getModules();
    for (FXint i = 0; i < modules.no(); ++i) {
      if (modules[i] != nullptr && modules[i]->isMemberOf(&meta)) found.push_back(modules[i]);
    }
  }
  return found;
}

std::vector<PluginContainer*> PluginRegistry::findWithSettings() const {
  std::vector<PluginContainer*> found;
  for (PluginContainer* container : containers_) {
    if (container->onHasSettings(nullptr, 0, nullptr) != 0) found.push_back(container);
  }
  return found;
}

void PluginRegistry::load(Entity* entity) const {
  for (const EntityPlugin* plugin : findEntityPlugins(entity)) plugin->load(entity);
}

void PluginRegistry::save(Entity* entity) const {
  for (const EntityPlugin* plugin : findEntityPlugins(entity)) plugin->save(entity);
}

void PluginRegistry::del(Entity* entity) const {
  for (const EntityPlugin* plugin : findEntityPlugins(entity)) plugin->del(entity);
}

void PluginRegistry::toXml(Entity* entity, XMLBuilder::Element* element) const {
  std::vector<const EntityPlugin*> plugins = findEntityPlugins(entity);
  std::stable_sort(plugins.begin(), plugins.end(),
                   [](const EntityPlugin* a, const EntityPlugin* b) { return a->getXmlWeight() < b->getXmlWeight(); });
  for (const EntityPlugin* plugin : plugins) plugin->toXml(entity, element);
}

FXString PluginRegistry::toString(Entity* entity) const {
  std::vector<const EntityPlugin*> plugins = findEntityPlugins(entity);
  std::stable_sort(plugins.begin(), plugins.end(), [](const EntityPlugin* a, const EntityPlugin* b) {
    return a->getStringWeight() < b->getStringWeight();
  });
  FXString text;
  for (const EntityPlugin* plugin : plugins) {
    const FXString part = plugin->toString(entity);
    if (part.empty()) continue;
    if (!text.empty()) text += "\n";
    text += part;
  }
  return text;
}

void PluginRegistry::checkInvoice(FX::FXWindow* parent, Invoice* invoice, ListOfMessage& messages,
                                  const FXString& prefix) const {
  if (invoice == nullptr) return;
  for (PluginModule* module : findModules(InvoiceCheckPlugin::metaClass)) {
    static_cast<InvoiceCheckPlugin*>(module)->checkInvoice(parent, invoice, messages, prefix);
  }
}

std::vector<const EntityPlugin*> PluginRegistry::findEntityPlugins(const Entity* entity) const {
  std::vector<const EntityPlugin*> found;
  if (entity == nullptr) return found;
  for (const PluginModule* module : findModules(EntityPlugin::metaClass)) {
    const auto* plugin = static_cast<const EntityPlugin*>(module);
    if (plugin->canHandle(*entity->getMetaClass())) found.push_back(plugin);
  }
  return found;
}

}  // namespace Brontel::Plugin
