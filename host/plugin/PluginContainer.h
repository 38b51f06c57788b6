#pragma once

#include <fx.h>

#include "host/plugin/PluginModule.h"

namespace Brontel {

class Morvane;

namespace Plugin {

/// What a plug-in library hands to the host: its name, its icons and its modules. Made by the library's get_plugin,
/// owned by the host from then on, and deleted before the library is unloaded and before the application goes.
class PluginContainer : public FX::FXObject {
  FXDECLARE_ABSTRACT(PluginContainer)

 public:
  /// The application may be null, which leaves the plug-in without database and icons. Binds the text domain as the
  /// application wants it, so that the subclass can translate its name at once.
  PluginContainer(Morvane* app, const FX::FXString& textDomain, const FX::FXString& name, const FX::FXString& version,
                  const FX::FXString& description);
  PluginContainer(const PluginContainer&) = delete;
  PluginContainer& operator=(const PluginContainer&) = delete;

  /// Deletes the registered modules, last to first. Their destructors must not call back into the container.
  ~PluginContainer() override;

  /// Icons belong to the container and may be null.
  virtual FX::FXIcon* getIcon16() = 0;
  virtual FX::FXIcon* getIcon32();
  virtual FX::FXIcon* getIcon64();

  /// Called once, right after get_plugin: registers the modules and prepares the database. Zero means failure.
  virtual int init() = 0;
  /// Called once every container has been initialised. The result is the plug-in's own.
  virtual int start();

  /// The user wants to edit the settings.
  virtual long onSettings(FX::FXObject*, FX::FXSelector, void*);
  /// Non-zero when there are settings to edit.
  virtual long onHasSettings(FX::FXObject*, FX::FXSelector, void*);

  Morvane* getApp() const { return app_; }
  const FX::FXString& getTextDomain() const { return textDomain_; }
  const FX::FXString& getName() const { return name_; }
  const FX::FXString& getVersion() const { return version_; }
  const FX::FXString& getDescription() const { return description_; }
  bool getFlag() const { return flag_; }
  const FX::FXObjectListOf<PluginModule>& getModules() const { return modules_; }

 protected:
  PluginContainer() = default;

  Morvane* app_ = nullptr;  // not owned
  FX::FXString textDomain_;
  FX::FXString name_;  ///< a subclass may put the translation here
  FX::FXString version_;
  FX::FXString description_;                  ///< likewise
  bool flag_ = true;                          ///< part of the plug-in interface; this host reads nothing from it
  FX::FXObjectListOf<PluginModule> modules_;  ///< owned
};

}  // namespace Plugin
}  // namespace Brontel
