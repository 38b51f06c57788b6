#include "plugin/ItemDataContainer.h"

#include <libintl.h>

#include "host/ui/Morvane.h"
#include "itemdata/Codes.h"
#include "model/InitDB.h"
#include "plugin/InvoiceCheck.h"
#include "plugin/InvoiceItemMenu.h"
#include "plugin/InvoiceItemPlugin.h"
#include "plugin/ItemDataAssociationPanel.h"
#include "plugin/Prototypes.h"
#include "ui/ItemDataIcons.h"
#include "ui/SettingsRun.h"

namespace Brontel::Plugin::ItemData {

namespace {

// How the host orders the contributions of several plug-ins.
constexpr int kWeight = 103;

// Marks a text for the plug-in's catalogue that the constructor translates.
constexpr const char* dgettext_noop(const char* text) {
  return text;
}

}  // namespace

ItemDataContainer::ItemDataContainer(Morvane* app)
    : PluginContainer(app, kTextDomain, dgettext_noop("Egyéb tételadatok"), "2013.01.02",
                      dgettext_noop("Lehetőséget biztosít arra, hogy bizonyos áruk számlázásakor egyéb (saját) adatot "
                                    "is nyomtassunk a számlára.\n")) {
  flag_ = false;
  name_ = dgettext(kTextDomain, name_.text());
  description_ = dgettext(kTextDomain, description_.text());
  icon16_ = makeIcon(app, icon_itemdata);
}

ItemDataContainer::~ItemDataContainer() {
  Prototypes::remove(this);
  delete icon16_;
}

FX::FXIcon* ItemDataContainer::getIcon16() {
  return icon16_;
}

int ItemDataContainer::init() {
  bool registered = Prototypes::isRegistered(this);
  try {
    if (!registered) registerAll();
    registered = true;
    if (getApp() != nullptr) Model::initDB(getApp()->getDB());
  } catch (...) {
    // Out of memory. Half of what is registered would show what is stored as missing.
    if (!registered) removeAll();
  }
  return 1;
}

void ItemDataContainer::registerAll() {
  modules_.append(new ItemDataAssociationPanel::Plugin(this));
  modules_.append(new InvoiceCheck(this));
  modules_.append(new InvoiceItemMenu(this));
  modules_.append(new InvoiceItemPlugin(this, kWeight, kWeight, 0, kWeight, kWeight));
  Prototypes::add(this);
}

void ItemDataContainer::removeAll() {
  Prototypes::remove(this);
  for (FX::FXint i = modules_.no() - 1; i >= 0; --i) delete modules_[i];
  modules_.clear();
}

long ItemDataContainer::onSettings(FX::FXObject*, FX::FXSelector, void*) {
  return getApp() == nullptr ? 1 : SettingsRun(*this, *getApp()).run();
}

long ItemDataContainer::onHasSettings(FX::FXObject*, FX::FXSelector, void*) {
  return 1;
}

}  // namespace Brontel::Plugin::ItemData
