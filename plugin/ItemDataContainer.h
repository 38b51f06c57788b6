#pragma once

#include <fx.h>

#include "host/plugin/PluginContainer.h"

namespace Brontel::Plugin::ItemData {

/// The plug-in as the host sees it. Fills the registry of entry kinds and creates the tables when it is initialised.
class ItemDataContainer : public PluginContainer {
 public:
  /// Without an application there is no icon and no database.
  explicit ItemDataContainer(Morvane* app);
  /// Deletes the prototypes that it registered; the last container deletes all that are left.
  ~ItemDataContainer() override;

  FX::FXIcon* getIcon16() override;
  /// Always 1. Tables that could not be made show as missing data and are tried again at the next start; without memory
  /// for all modules and prototypes there are none. Again on the same container it only looks after what is missing.
  int init() override;
  /// Lets the user edit the item variables and stores them. 1 also when the user changes their mind.
  long onSettings(FX::FXObject*, FX::FXSelector, void*) override;
  long onHasSettings(FX::FXObject*, FX::FXSelector, void*) override;

 private:
  void registerAll();
  void removeAll();

  FX::FXIcon* icon16_ = nullptr;  // owned
};

}  // namespace Brontel::Plugin::ItemData
