#pragma once

#include <string>
#include <vector>

#include "host/entity/Entity.h"
#include "host/entity/InvoiceItem.h"
#include "host/plugin/EntityPlugin.h"

/// Writes down what the host asks of it, as "name.operation key".
class RecordingEntityPlugin : public Brontel::Plugin::EntityPlugin {
 public:
  using Log = std::vector<std::string>;

  RecordingEntityPlugin(Brontel::Plugin::PluginContainer* container, Log& log, const std::string& name = "p",
                        int xmlWeight = 0, int stringWeight = 0)
      : EntityPlugin(container, 1, 2, 3, xmlWeight, stringWeight), log_(log), name_(name) {}

  int load(Brontel::Entity* entity) const override { return note("load", entity); }
  int save(Brontel::Entity* entity) const override { return note("save", entity); }
  int del(Brontel::Entity* entity) const override { return note("del", entity); }
  bool canHandle(const FX::FXMetaClass& meta) const override { return meta.isSubClassOf(accepted); }
  int toXml(Brontel::Entity* entity, XMLBuilder::Element*) const override { return note("toXml", entity); }
  FX::FXString toString(Brontel::Entity* entity) const override {
    note("toString", entity);
    return text;
  }

  const FX::FXMetaClass* accepted = &Brontel::InvoiceItem::metaClass;
  FX::FXString text;

 protected:
  int note(const char* operation, const Brontel::Entity* entity) const {
    log_.push_back(name_ + "." + operation + " " + std::to_string(entity->getId()));
    return 1;
  }

 private:
  Log& log_;
  std::string name_;
};
