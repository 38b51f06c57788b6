#include "app/window/GoodsWindow.h"

#include <libintl.h>

#include "app/window/Dialogs.h"
#include "app/window/OpenWindow.h"
#include "app/window/Workspace.h"
#include "host/ui/ProductDataWindow.h"
#include "host/ui/ServiceDataWindow.h"
#include "host/ui/SuiteDataWindow.h"

namespace Brontel::App {

namespace {

using Result = GoodsRepository::Result;

/// One of the host's goods windows in the workspace. It has no metaclass of its own: plug-ins go by the host's.
template <class W>
class GoodsWindow : public W, public OpenWindow {
 public:
  explicit GoodsWindow(Workspace& workspace) : W(&workspace.getApp(), FX::FXString()), workspace_(workspace) {
    workspace_.addWindow(this);
  }
  GoodsWindow(const GoodsWindow&) = delete;
  GoodsWindow& operator=(const GoodsWindow&) = delete;
  ~GoodsWindow() override { workspace_.removeWindow(this); }

  FX::FXTopWindow* getWindow() override { return this; }
  bool hasUnsavedChanges() override { return W::hasUnsavedChanges(); }
  bool saveChanges() override {
    if (W::save()) return reloadOrTell();
    workspace_.showErrors(this);
    return false;
  }
  void reload() override { reloadOrTell(); }

 protected:
  void recordSaved() override { workspace_.notifyChanged(); }

 private:
  bool reloadOrTell() {
    if (W::reload() == Result::Done) return true;
    workspace_.showErrors(this);
    return false;
  }

  Workspace& workspace_;
};

GoodsDataWindow* makeWindow(Workspace& workspace, GoodsKind kind) {
  switch (kind) {
    case GOODS_SERVICE:
      return new GoodsWindow<ServiceDataWindow>(workspace);
    case GOODS_SUITE:
      return new GoodsWindow<SuiteDataWindow>(workspace);
    case GOODS_PRODUCT:
    case GOODS_NONE:
      break;
  }
  return new GoodsWindow<ProductDataWindow>(workspace);
}

// The window of goods that are open already, in front; null without one.
GoodsDataWindow* bringForward(const Workspace& workspace, GoodsKind kind, int id) {
  for (OpenWindow* window : workspace.getWindows()) {
    auto* goods = dynamic_cast<GoodsDataWindow*>(window->getWindow());
    if (goods != nullptr && id != 0 && goods->getKind() == kind && goods->getCurrentId() == id && goods->shown()) {
      window->bringForward();
      return goods;
    }
  }
  return nullptr;
}

}  // namespace

GoodsDataWindow* openGoodsWindow(Workspace& workspace, FX::FXWindow* owner, GoodsKind kind, int id) {
  if (GoodsDataWindow* there = bringForward(workspace, kind, id)) return there;
  GoodsDataWindow* window = makeWindow(workspace, kind);
  const Result result = window->open(workspace.getDatabase(), workspace.getPlugins(), id);
  if (result == Result::Done) {
    window->create();
    window->show(FX::PLACEMENT_SCREEN);
    return window;
  }
  delete window;
  if (!workspace.showErrors(owner) && result == Result::NotFound) {
    Dialogs::showError(owner, gettext("Közben más törölte. Frissítse a listát."));
    workspace.notifyChanged();
  }
  return nullptr;
}

}  // namespace Brontel::App
