#include "plugin/InvoiceItemPlugin.h"

#include <memory>

#include "host/database/MorvaneDatabase.h"
#include "host/entity/Invoice.h"
#include "host/plugin/PluginContainer.h"
#include "host/ui/Morvane.h"
#include "itemdata/Codes.h"
#include "itemdata/ItemDataList.h"
#include "itemdata/StoredKeys.h"

namespace Brontel::Plugin::ItemData {

int InvoiceItemPlugin::load(Entity* entity) const {
  auto* item = dynamic_cast<InvoiceItem*>(entity);
  if (item == nullptr || item->getInvoice() == nullptr) return 0;
  MorvaneDatabase* db = getDatabase();
  const int code = item->getInvoice()->getTypeCode();
  if (ItemDataList* list = ItemDataList::of(item)) {
    list->setStatus(db, static_cast<unsigned int>(code));
    return 1;
  }
  // What somebody else keeps under the key is not ours to replace.
  if (item->getMiscData(kMiscDataKey) != nullptr) return 0;
  auto settings = std::make_unique<ItemDataList>();
  settings->loadSettings(db, code, item);
  if (settings->no() == 0) return 0;
  auto* list = new ItemDataList(item, settings.release());
  list->adoptTemplate();
  item->addMiscData(kMiscDataKey, list);
  list->load(db);
  return 0;
}

int InvoiceItemPlugin::save(Entity* item) const {
  ItemDataList* list = ItemDataList::of(item);
  if (list == nullptr) return 0;
  MorvaneDatabase* db = getDatabase();
  const FX::FXlong failures = db == nullptr ? 0 : db->getFailures();
  list->settle();
  StoredKeys(db, *list).repair(*list);
  list->save(db);
  StoredKeys(db, *list).assign(*list);
  // A trigger can swallow a row without an error.
  if (db != nullptr && db->getFailures() == failures && !StoredKeys::hasAll(*list)) {
    db->fail(Database::ErrorKind::Other, "a recorded value was not stored");
  }
  return 1;
}

bool InvoiceItemPlugin::canHandle(const FX::FXMetaClass& meta) const {
  return meta.isSubClassOf(&InvoiceItem::metaClass);
}

int InvoiceItemPlugin::toXml(Entity* item, XMLBuilder::Element* element) const {
  ItemDataList* list = ItemDataList::of(item);
  if (list == nullptr) return 1;
  list->settle();
  list->toXml(element);
  return 1;
}

FX::FXString InvoiceItemPlugin::toString(Entity* item) const {
  ItemDataList* list = ItemDataList::of(item);
  if (list == nullptr) return FX::FXString();
  list->settle();
  return list->getPrintableText();
}

MorvaneDatabase* InvoiceItemPlugin::getDatabase() const {
  const Morvane* app = container_ == nullptr ? nullptr : container_->getApp();
  return app == nullptr ? nullptr : app->getDB();
}

}  // namespace Brontel::Plugin::ItemData
