#pragma once

#include <vector>

#include <fx.h>

#include "app/HostDatabase.h"
#include "app/window/LongWork.h"
#include "host/database/DatabaseError.h"
#include "host/entity/InvoiceRepository.h"
#include "host/plugin/PluginLoader.h"
#include "host/plugin/PluginRegistry.h"
#include "host/ui/Morvane.h"

namespace Brontel::App {

class OpenWindow;

/// What all windows share. Everything is borrowed and outlives it; the windows go before it.
///
/// While it lives, every failure of the database is shown to the person: by whoever caused it, with showErrors, or, if
/// nobody does, in a box of its own as soon as the application is idle.
class Workspace : public FX::FXObject, public Database::DatabaseErrorSink {
  FXDECLARE_ABSTRACT(Workspace)

 public:
  enum { ID_SHOW_ERRORS = 1, ID_LAST };

  /// editable is false when invoices may be looked at only.
  Workspace(Morvane& app, HostDatabase& database, const Plugin::PluginRegistry& plugins,
            const Plugin::PluginLoader& loader, bool editable = true);
  Workspace(const Workspace&) = delete;
  Workspace& operator=(const Workspace&) = delete;
  ~Workspace() override;

  Morvane& getApp() const { return app_; }
  HostDatabase& getHostDatabase() const { return database_; }
  MorvaneDatabase& getDatabase() const { return database_.handle(); }
  const Plugin::PluginRegistry& getPlugins() const { return plugins_; }
  const Plugin::PluginLoader& getLoader() const { return loader_; }
  InvoiceRepository& getRepository() { return repository_; }
  bool isEditable() const { return editable_; }
  /// Watches what the database does, and whatever else is told to it.
  LongWork& getLongWork() { return longWork_; }

  /// Windows enter and leave by themselves.
  void addWindow(OpenWindow* window);
  void removeWindow(OpenWindow* window);
  /// In the order in which they were opened.
  const std::vector<OpenWindow*>& getWindows() const { return windows_; }
  /// Closes them all, newest first, asking about unsaved changes. False as soon as the person wants to keep one.
  bool closeWindows();

  /// Shows the first failure of the database since the last call and forgets the others, which are usually its
  /// consequences. False when there was none.
  bool showErrors(FX::FXWindow* owner);
  /// Shows why something that was done to the invoice of that number failed. True, and nothing shown, when it did not.
  bool tellResult(FX::FXWindow* owner, InvoiceRepository::Result result, const FX::FXString& number);
  bool hasErrors() const { return database_.errors().hasError(); }
  void databaseFailed(const Database::DatabaseError& error) override;

  /// Lists that show stored data hear of changes as SEL_CHANGED with their selector. Null takes the listener away.
  void setListener(FX::FXObject* listener, FX::FXSelector selector);
  /// Something has been stored or deleted.
  void notifyChanged();

  long onShowErrors(FX::FXObject*, FX::FXSelector, void*);

 private:
  Morvane& app_;
  HostDatabase& database_;
  const Plugin::PluginRegistry& plugins_;
  const Plugin::PluginLoader& loader_;
  InvoiceRepository repository_;
  LongWork longWork_;
  bool editable_;
  std::vector<OpenWindow*> windows_;
  FX::FXObject* listener_ = nullptr;
  FX::FXSelector selector_ = 0;
};

}  // namespace Brontel::App
