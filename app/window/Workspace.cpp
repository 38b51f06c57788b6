#include "app/window/Workspace.h"

#include <algorithm>

#include <libintl.h>

#include "app/ErrorText.h"
#include "app/window/Dialogs.h"
#include "app/window/OpenWindow.h"
#include "host/message/FillIn.h"

namespace Brontel::App {

FXDEFMAP(Workspace)
workspaceMap[] = {
    FXMAPFUNC(FX::SEL_CHORE, Workspace::ID_SHOW_ERRORS, Workspace::onShowErrors),
};

FXIMPLEMENT_ABSTRACT(Workspace, FXObject, workspaceMap, ARRAYNUMBER(workspaceMap))

Workspace::Workspace(Morvane& app, HostDatabase& database, const Plugin::PluginRegistry& plugins,
                     const Plugin::PluginLoader& loader, bool editable)
    : app_(app),
      database_(database),
      plugins_(plugins),
      loader_(loader),
      repository_(database.handle(), plugins),
      longWork_(app),
      editable_(editable) {
  database_.handle().setErrorSink(this);
  database_.handle().setObserver(&longWork_);
}

Workspace::~Workspace() {
  database_.handle().setObserver(nullptr);
  database_.handle().setErrorSink(&database_.errors());
  app_.removeChore(this, ID_SHOW_ERRORS);
}

void Workspace::addWindow(OpenWindow* window) {
  if (window != nullptr && std::find(windows_.begin(), windows_.end(), window) == windows_.end()) {
    windows_.push_back(window);
  }
}

void Workspace::removeWindow(OpenWindow* window) {
  std::erase(windows_, window);
}

bool Workspace::closeWindows() {
  while (!windows_.empty()) {
    // What is asked is asked about this one.
    windows_.back()->bringForward();
    if (!windows_.back()->getWindow()->close(TRUE)) return false;
  }
  return true;
}

bool Workspace::showErrors(FX::FXWindow* owner) {
  app_.removeChore(this, ID_SHOW_ERRORS);
  if (!hasErrors()) return false;
  const FX::FXString text = database_.describeError();
  database_.errors().forget();
  Dialogs::showError(owner, text);
  return true;
}

bool Workspace::tellResult(FX::FXWindow* owner, InvoiceRepository::Result result, const FX::FXString& number) {
  if (showErrors(owner)) return false;
  if (result == InvoiceRepository::Result::Done) return true;
  const FX::FXString text = describe(result, number);
  Dialogs::showError(owner, text.empty() ? fillIn(gettext("A művelet nem sikerült: %s."), {number}) : text);
  return false;
}

void Workspace::databaseFailed(const Database::DatabaseError& error) {
  database_.errors().databaseFailed(error);
  app_.addChore(this, ID_SHOW_ERRORS);
}

void Workspace::setListener(FX::FXObject* listener, FX::FXSelector selector) {
  listener_ = listener;
  selector_ = selector;
}

void Workspace::notifyChanged() {
  if (listener_ != nullptr) listener_->tryHandle(this, FXSEL(FX::SEL_CHANGED, selector_), nullptr);
}

long Workspace::onShowErrors(FX::FXObject*, FX::FXSelector, void*) {
  FX::FXWindow* active = app_.getActiveWindow();
  showErrors(active != nullptr && active->id() != 0 ? active : nullptr);
  return 1;
}

}  // namespace Brontel::App
