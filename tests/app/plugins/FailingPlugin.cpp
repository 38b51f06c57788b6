#include "host/database/MorvaneDatabase.h"
#include "host/plugin/PluginContainer.h"
#include "host/ui/Morvane.h"

// A plug-in whose initialisation meets a wrong statement of its own and gives up.

namespace {

class FailingContainer : public Brontel::Plugin::PluginContainer {
 public:
  explicit FailingContainer(Brontel::Morvane* app) : PluginContainer(app, "", "Failing", "1.0", "") {}

  FX::FXIcon* getIcon16() override { return nullptr; }
  int init() override {
    MorvaneDatabase* database = getApp() == nullptr ? nullptr : getApp()->getDB();
    if (database != nullptr) database->run("select * from a_table_that_is_not_there");
    return 0;
  }
};

}  // namespace

extern "C" __attribute__((visibility("default"))) Brontel::Plugin::PluginContainer* get_plugin(Brontel::Morvane* app) {
  return new FailingContainer(app);
}
