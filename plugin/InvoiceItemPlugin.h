#pragma once

#include "host/plugin/EntityPlugin.h"

class MorvaneDatabase;

namespace Brontel::Plugin::ItemData {

/// Attaches an ItemDataList to every invoice item whose goods carry variables, and lets it take part in loading,
/// saving, printing and exporting. Entities of other classes are left alone, and an item without invoice gets no list.
class InvoiceItemPlugin : public EntityPlugin {
 public:
  using EntityPlugin::EntityPlugin;

  /// 1 when the item had its data already; their status is brought up to date then, and nothing is read again. Else 0.
  int load(Entity* item) const override;
  /// 1 when the item has data, else 0. Can be repeated, also after the host has rolled a save back.
  int save(Entity* item) const override;
  bool canHandle(const FX::FXMetaClass& meta) const override;
  int toXml(Entity* item, XMLBuilder::Element* element) const override;
  FX::FXString toString(Entity* item) const override;

 private:
  MorvaneDatabase* getDatabase() const;
};

}  // namespace Brontel::Plugin::ItemData
