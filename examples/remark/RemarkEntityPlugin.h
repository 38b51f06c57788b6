#pragma once

#include "host/plugin/EntityPlugin.h"

class MorvaneDatabase;

namespace Remarks {

/// Reads, writes, prints and exports the remarks of invoice items.
class RemarkEntityPlugin : public Brontel::Plugin::EntityPlugin {
 public:
  explicit RemarkEntityPlugin(Brontel::Plugin::PluginContainer* container);

  bool canHandle(const FX::FXMetaClass& meta) const override;
  int load(Brontel::Entity* item) const override;
  int save(Brontel::Entity* item) const override;
  int del(Brontel::Entity* item) const override;
  FX::FXString toString(Brontel::Entity* item) const override;
  int toXml(Brontel::Entity* item, XMLBuilder::Element* element) const override;

 private:
  MorvaneDatabase* getDatabase() const;
};

}  // namespace Remarks
