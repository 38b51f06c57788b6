#include "host/ui/PanelisedWindow.h"

#include <cstdint>

#include "host/plugin/PanelProvider.h"
#include "host/plugin/PluginContainer.h"
#include "host/plugin/PluginRegistry.h"
#include "host/ui/PanelState.h"

namespace Brontel {

using FX::FXString;
using Plugin::PanelProvider::Handler;

FXDEFMAP(PanelisedWindow)
panelisedWindowMap[] = {
    FXMAPFUNC(FX::SEL_COMMAND, PanelisedWindow::ID_PANELS, PanelisedWindow::onCmdPanels),
};

FXIMPLEMENT_ABSTRACT(PanelisedWindow, FXTopWindow, panelisedWindowMap, ARRAYNUMBER(panelisedWindowMap))

PanelisedWindow::PanelisedWindow() = default;

PanelisedWindow::PanelisedWindow(FX::FXApp* app, const FXString& title)
    : FXTopWindow(app, title, nullptr, nullptr, FX::DECOR_ALL, 0, 0, 0, 0, 0, 0, 0, 0, 4, 4) {}

PanelisedWindow::~PanelisedWindow() = default;

FX::FXVerticalFrame* PanelisedWindow::addPanel(const FXString& name, FX::FXIcon* icon) {
  if (tabs_ == nullptr) {
    tabs_ = new FX::FXTabBook(this, this, ID_PANELS, FX::TABBOOK_NORMAL | FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y, 0, 0,
                              0, 0, 4, 4, 4, 0);
  }
  new FX::FXTabItem(tabs_, name, icon, FX::TAB_TOP_NORMAL | FX::ICON_BEFORE_TEXT);
  return new FX::FXVerticalFrame(tabs_, FX::FRAME_RAISED | FX::FRAME_THICK | FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y, 0,
                                 0, 0, 0, 4, 4, 4, 4);
}

void PanelisedWindow::addPluginPanels(const Plugin::PluginRegistry& plugins) {
  for (Plugin::PluginModule* module : plugins.findModules(Plugin::PanelProvider::Plugin::metaClass)) {
    auto* provider = static_cast<Plugin::PanelProvider::Plugin*>(module);
    if (!provider->acceptWindow(this)) continue;
    std::unique_ptr<Handler> handler(provider->getHandler(this));
    Plugin::PluginContainer* container = provider->getContainer();
    if (handler != nullptr) addPluginPanel(std::move(handler), container == nullptr ? nullptr : container->getIcon16());
  }
}

void PanelisedWindow::addPluginPanel(std::unique_ptr<Handler> handler, FX::FXIcon* pluginIcon) {
  FX::FXIcon* icon = handler->getIcon16() == nullptr ? pluginIcon : handler->getIcon16();
  FX::FXVerticalFrame* frame = addPanel(handler->getPanelName(), icon);
  handler->createGUI(frame);
  pluginPanels_.push_back({tabs_->numChildren() / 2 - 1, frame, std::move(handler)});
}

void PanelisedWindow::removePanels() {
  // The widgets first: what they show may belong to their handlers.
  delete tabs_;
  tabs_ = nullptr;
  pluginPanels_.clear();
}

void PanelisedWindow::acceptPanels() {
  for (const PluginPanel& panel : pluginPanels_) panel.handler->onOKButton(this, FXSEL(FX::SEL_COMMAND, 0), nullptr);
}

void PanelisedWindow::cancelPanels() {
  for (const PluginPanel& panel : pluginPanels_) {
    panel.handler->onCancelButton(this, FXSEL(FX::SEL_COMMAND, 0), nullptr);
  }
}

FXString PanelisedWindow::getPluginPanelState() const {
  FXString state;
  for (const PluginPanel& panel : pluginPanels_) state += panelState(panel.frame) + "|";
  return state;
}

long PanelisedWindow::onCmdPanels(FX::FXObject*, FX::FXSelector, void* index) {
  const auto tab = static_cast<int>(reinterpret_cast<std::intptr_t>(index));
  for (const PluginPanel& panel : pluginPanels_) {
    if (panel.tab == tab) panel.handler->onFocus();
  }
  return 1;
}

}  // namespace Brontel
