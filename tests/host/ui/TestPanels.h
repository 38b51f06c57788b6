#pragma once

#include <string>
#include <vector>

#include "host/database/MorvaneDatabase.h"
#include "host/plugin/PanelProvider.h"
#include "host/plugin/PluginContainer.h"
#include "host/ui/PanelisedWindow.h"

/// A plug-in's panel of one text field. It stores the field's text in a table of its own, and notes what it is told.
class TestPanel : public Brontel::Plugin::PanelProvider::Handler {
 public:
  TestPanel(Brontel::PanelisedWindow* window, MorvaneDatabase* database, std::vector<std::string>& log)
      : window_(window), database_(database), log_(log) {}
  ~TestPanel() override { log_.push_back("gone"); }

  void createGUI(FX::FXComposite* parent) override { field = new FX::FXTextField(parent, 10); }
  FX::FXString getPanelName() const override { return "Teszt"; }
  long onOKButton(FX::FXObject*, FX::FXSelector, void*) override {
    log_.push_back("ok " + std::to_string(window_->getCurrentId()));
    if (database_ == nullptr) return 1;
    const FX::FXString id = FX::FXStringVal(window_->getCurrentId());
    database_->run("insert into t_test (goods, text) values (" + id + ", '" + field->getText() + "')");
    return 1;
  }
  long onCancelButton(FX::FXObject*, FX::FXSelector, void*) override {
    log_.push_back("cancel");
    return 1;
  }
  void onFocus() override { log_.push_back("focus"); }

  FX::FXTextField* field = nullptr;

 private:
  Brontel::PanelisedWindow* window_;
  MorvaneDatabase* database_;
  std::vector<std::string>& log_;
};

/// Offers that panel for every window that it accepts.
class TestPanelPlugin : public Brontel::Plugin::PanelProvider::Plugin {
 public:
  using Brontel::Plugin::PanelProvider::Plugin::Plugin;

  bool acceptWindow(Brontel::PanelisedWindow*) override { return accepts; }
  Brontel::Plugin::PanelProvider::Handler* getHandler(Brontel::PanelisedWindow* window) override {
    if (!gives) return nullptr;
    last = new TestPanel(window, database, log);
    return last;
  }

  bool accepts = true;
  bool gives = true;
  MorvaneDatabase* database = nullptr;
  std::vector<std::string> log;
  TestPanel* last = nullptr;  // the panel that was made last
};
