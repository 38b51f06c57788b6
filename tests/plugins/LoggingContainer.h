#pragma once

#include "host/plugin/PluginContainer.h"
#include "tests/plugins/PluginLog.h"

/// A container that logs its life. TEST_PLUGIN_NAME is the plug-in's name, given by the build.
class LoggingContainer : public Brontel::Plugin::PluginContainer {
 public:
  /// initResult is what init answers.
  LoggingContainer(Brontel::Morvane* app, int initResult)
      : PluginContainer(app, "", TEST_PLUGIN_NAME, "1.0", "for tests"), initResult_(initResult) {}
  ~LoggingContainer() override { logPluginEvent(TEST_PLUGIN_NAME, "deleted"); }

  FX::FXIcon* getIcon16() override { return nullptr; }
  int init() override {
    logPluginEvent(TEST_PLUGIN_NAME, "init");
    modules_.append(new Brontel::Plugin::PluginModule(this));
    return initResult_;
  }
  int start() override {
    logPluginEvent(TEST_PLUGIN_NAME, "start");
    return PluginContainer::start();
  }
  long onSettings(FX::FXObject*, FX::FXSelector, void*) override {
    logPluginEvent(TEST_PLUGIN_NAME, "settings");
    return 1;
  }
  long onHasSettings(FX::FXObject*, FX::FXSelector, void*) override { return 1; }

 private:
  int initResult_;
};

/// Logs when the library's code goes.
struct UnloadLog {
  ~UnloadLog() { logPluginEvent(TEST_PLUGIN_NAME, "unloaded"); }
};
