#include "plugin/ItemDataAssociationPanel.h"

#include "host/ui/ProductDataWindow.h"
#include "host/ui/ServiceDataWindow.h"
#include "host/ui/SuiteDataWindow.h"

namespace Brontel::Plugin::ItemData::ItemDataAssociationPanel {

namespace {

template <class W>
W* windowAs(PanelisedWindow* window) {
  return window != nullptr && window->isMemberOf(&W::metaClass) ? static_cast<W*>(window) : nullptr;
}

}  // namespace

bool Plugin::acceptWindow(PanelisedWindow* window) {
  return windowAs<ProductDataWindow>(window) != nullptr || windowAs<SuiteDataWindow>(window) != nullptr ||
         windowAs<ServiceDataWindow>(window) != nullptr;
}

::Brontel::Plugin::PanelProvider::Handler* Plugin::getHandler(PanelisedWindow* window) {
  if (auto* product = windowAs<ProductDataWindow>(window)) return new Handler<ProductDataWindow>(this, product);
  if (auto* suite = windowAs<SuiteDataWindow>(window)) return new Handler<SuiteDataWindow>(this, suite);
  if (auto* service = windowAs<ServiceDataWindow>(window)) return new Handler<ServiceDataWindow>(this, service);
  return nullptr;
}

}  // namespace Brontel::Plugin::ItemData::ItemDataAssociationPanel
