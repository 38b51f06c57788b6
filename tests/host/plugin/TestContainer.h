#pragma once

#include <functional>
#include <string>

#include "host/plugin/PluginContainer.h"

/// A container that is filled from outside and counts what the host asks of it.
class TestContainer : public Brontel::Plugin::PluginContainer {
 public:
  explicit TestContainer(Brontel::Morvane* app = nullptr, const FX::FXString& name = "test")
      : PluginContainer(app, "test-domain", name, "1.2", "a description") {}

  FX::FXIcon* getIcon16() override { return nullptr; }
  int init() override {
    ++inits;
    return 1;
  }
  long onSettings(FX::FXObject*, FX::FXSelector, void*) override {
    ++settingsCalls;
    return 1;
  }
  long onHasSettings(FX::FXObject*, FX::FXSelector, void*) override {
    ++hasSettingsCalls;
    return hasSettings ? 1 : 0;
  }

  /// Takes the module over and returns it.
  template <class T>
  T* add(T* module) {
    modules_.append(module);
    return module;
  }
  void setName(const FX::FXString& name) { name_ = name; }

  int inits = 0;
  int settingsCalls = 0;
  int hasSettingsCalls = 0;
  bool hasSettings = false;
};
