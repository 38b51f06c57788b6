#include "host/ui/PluginSettingsDialogBox.h"

#include <libintl.h>

#include "host/plugin/PluginContainer.h"
#include "host/ui/DBTable.h"
#include "host/ui/Morvane.h"

namespace Brontel::Plugin::UI {

using FX::FXString;

FXDEFMAP(PluginSettingsDialogBox)
pluginSettingsDialogBoxMap[] = {
    FXMAPFUNC(FX::SEL_RIGHTBUTTONRELEASE, PluginSettingsDialogBox::ID_TABLE, PluginSettingsDialogBox::onContextMenu),
};

FXIMPLEMENT(PluginSettingsDialogBox, FXDialogBox, pluginSettingsDialogBoxMap, ARRAYNUMBER(pluginSettingsDialogBoxMap))

namespace {

FX::FXWindow* ownerFor(FX::FXApp* app) {
  FX::FXWindow* active = app->getActiveWindow();
  return active != nullptr && active->id() != 0 ? active : app->getRootWindow();
}

}  // namespace

PluginSettingsDialogBox::PluginSettingsDialogBox(PluginContainer* container, FX::FXApp* app)
    : FXDialogBox(ownerFor(app), container == nullptr ? FXString() : container->getName(), FX::DECOR_ALL),
      container_(container),
      contentFrame_(new FX::FXVerticalFrame(this, FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y, 0, 0, 0, 0, 0, 0, 0, 0)) {
  new FX::FXHorizontalSeparator(this, FX::SEPARATOR_GROOVE | FX::LAYOUT_FILL_X);
  auto* buttons = new FX::FXHorizontalFrame(this, FX::LAYOUT_FILL_X | FX::PACK_UNIFORM_WIDTH);
  constexpr FX::FXuint kButton = FX::BUTTON_NORMAL | FX::LAYOUT_RIGHT;
  new FX::FXButton(buttons, gettext("Mé&gsem"), nullptr, this, ID_CANCEL, kButton, 0, 0, 0, 0, 20, 20, 2, 2);
  new FX::FXButton(buttons, gettext("&OK"), nullptr, this, ID_ACCEPT, kButton | FX::BUTTON_INITIAL, 0, 0, 0, 0, 20, 20,
                   2, 2);
}

PluginSettingsDialogBox::~PluginSettingsDialogBox() = default;

long PluginSettingsDialogBox::onContextMenu(FX::FXObject* sender, FX::FXSelector, void* ptr) {
  auto* table = dynamic_cast<DBTable*>(sender);
  const auto* event = static_cast<const FX::FXEvent*>(ptr);
  if (table == nullptr || event == nullptr || event->moved) return 0;
  auto* app = dynamic_cast<Morvane*>(getApp());
  FX::FXMenuPane pane(this);
  new FX::FXMenuCommand(&pane, gettext("Új &sor"), app == nullptr ? nullptr : app->getNewRowIcon(), table,
                        DBTable::ID_NEW_ROW);
  new FX::FXMenuCommand(&pane, gettext("&Törlés"), app == nullptr ? nullptr : app->getDeleteIcon(), this, ID_DELETE);
  pane.create();
  pane.popup(nullptr, event->root_x, event->root_y);
  getApp()->runModalWhileShown(&pane);
  return 1;
}

}  // namespace Brontel::Plugin::UI
