#pragma once

#include <fx.h>

#include "host/plugin/PluginModule.h"

namespace XMLBuilder {
class Element;
}

namespace Brontel {

class Entity;

namespace Plugin {

/// Takes part when entities are loaded, saved, printed and exported. Several of them contribute in the order of their
/// weights, lightest first.
class EntityPlugin : public PluginModule {
  FXDECLARE_ABSTRACT(EntityPlugin)

 public:
  /// Only the last two weights are read by this host.
  EntityPlugin(PluginContainer* container, int weight1, int weight2, int weight3, int xmlWeight, int stringWeight);

  /// Called after the host has loaded the entity, or has made a new one.
  virtual int load(Entity* entity) const = 0;
  /// Called after the host has saved the entity, which has its key by then, inside the host's transaction.
  virtual int save(Entity* entity) const = 0;
  /// Called before the host deletes the entity's row.
  virtual int del(Entity* entity) const;
  /// Whether entities of that class are this plug-in's business. Nothing else is called for the others.
  virtual bool canHandle(const FX::FXMetaClass& meta) const = 0;
  /// Adds the entity's data below the element that stands for it.
  virtual int toXml(Entity* entity, XMLBuilder::Element* element) const = 0;
  /// Reads such data back from a document. This host imports nothing and never asks; null.
  virtual void* getParser(const FX::FXMetaClass* meta, FX::FXDict& parsers) const;
  /// Where its data stand among those of other plug-ins in an export.
  virtual int getXmlWeight() const;
  /// What is to be printed with the entity; empty for nothing.
  virtual FX::FXString toString(Entity* entity) const = 0;
  /// The same for what is printed.
  virtual int getStringWeight() const;

 protected:
  EntityPlugin() = default;

  int weight1_ = 0;
  int weight2_ = 0;
  int weight3_ = 0;
  int xmlWeight_ = 0;
  int stringWeight_ = 0;
};

}  // namespace Plugin
}  // namespace Brontel
