#pragma once

#include <vector>

#include <fx.h>

#include "host/message/ListOfMessage.h"

namespace XMLBuilder {
class Element;
}

namespace Brontel {

class Entity;
class Invoice;

namespace Plugin {

class EntityPlugin;
class PluginContainer;
class PluginModule;

/// The plug-ins at work: finds their modules by class and calls them when their occasion comes.
/// Borrows the containers; whoever loads them adds and removes them here.
class PluginRegistry {
 public:
  /// An initialised container. Null and what is here already are ignored.
  void add(PluginContainer* container);
  void remove(PluginContainer* container);

  const std::vector<PluginContainer*>& getContainers() const { return containers_; }

  /// All modules whose class is, or derives from, the given one, in the order of the containers and their lists.
  std::vector<PluginModule*> findModules(const FX::FXMetaClass& meta) const;

  /// The containers that say they have settings to edit.
  std::vector<PluginContainer*> findWithSettings() const;

  /// Each calls the entity plug-ins that accept the entity's class; a null entity does nothing.
  void load(Entity* entity) const;
  void save(Entity* entity) const;
  void del(Entity* entity) const;
  void toXml(Entity* entity, XMLBuilder::Element* element) const;

  /// What the plug-ins want printed with the entity, one text a line; empty when there is nothing.
  FX::FXString toString(Entity* entity) const;

  /// Runs every check plug-in. The caller owns the messages that arrive in the list.
  void checkInvoice(FX::FXWindow* parent, Invoice* invoice, ListOfMessage& messages, const FX::FXString& prefix) const;

 private:
  std::vector<const EntityPlugin*> findEntityPlugins(const Entity* entity) const;

  std::vector<PluginContainer*> containers_;
};

}  // namespace Plugin
}  // namespace Brontel
