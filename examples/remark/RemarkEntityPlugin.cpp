#include "RemarkEntityPlugin.h"

#include "Remark.h"
#include "RemarkTable.h"
#include "Texts.h"
#include "host/database/DataBaseValueLoader.h"
#include "host/database/DeleteStatement.h"
#include "host/database/InsertStatement.h"
#include "host/database/Statement.h"
#include "host/entity/InvoiceItem.h"
#include "host/message/FillIn.h"
#include "host/plugin/PluginContainer.h"
#include "host/ui/Morvane.h"
#include "host/xml/Document.h"
#include "host/xml/Element.h"

namespace Remarks {

namespace {

// Behind what lighter plug-ins print and export.
constexpr int kWeight = 200;

constexpr const char* kXmlPrefix = "remark";
constexpr const char* kXmlNamespace = "urn:example:remark";

/// Keeps the text that a query finds.
class TextLoader : public DataBaseValueLoader {
 public:
  int processValue(int column, const char* name, const char* value) override {
    text = value;
    return DataBaseValueLoader::processValue(column, name, value);
  }

  FX::FXString text;
};

}  // namespace

RemarkEntityPlugin::RemarkEntityPlugin(Brontel::Plugin::PluginContainer* container)
    : EntityPlugin(container, 0, 0, 0, kWeight, kWeight) {}

// [entity]
bool RemarkEntityPlugin::canHandle(const FX::FXMetaClass& meta) const {
  return meta.isSubClassOf(&Brontel::InvoiceItem::metaClass);
}

int RemarkEntityPlugin::load(Brontel::Entity* item) const {
  if (Remark::of(item) != nullptr) return 1;
  Statement query(getDatabase(), "select text from t_invoiceitemremark where t_invoiceitem_1=%item");
  query.setInt("item", item->getId());
  TextLoader loader;
  query.execute(&loader, 1);
  if (loader.getNumRows() > 0) Remark::set(item, loader.text);
  return 1;
}

int RemarkEntityPlugin::save(Brontel::Entity* item) const {
  del(item);
  const FX::FXString text = Remark::textOf(item);
  if (text.empty()) return 1;
  InsertStatement insert(getDatabase(), RemarkTable::kName);
  insert.setInt("t_invoiceitem_1", item->getId());
  insert.setString("text", text);
  return insert.execute(nullptr, 1);
}

int RemarkEntityPlugin::del(Brontel::Entity* item) const {
  DeleteStatement rows(getDatabase(), RemarkTable::kName);
  rows.setInt("t_invoiceitem_1", item->getId());
  return rows.execute(nullptr, 1);
}
// [entity]

// [output]
FX::FXString RemarkEntityPlugin::toString(Brontel::Entity* item) const {
  const FX::FXString text = Remark::textOf(item);
  return text.empty() ? text : Brontel::fillIn(translate("Megjegyzés: %s"), {text});
}

int RemarkEntityPlugin::toXml(Brontel::Entity* item, XMLBuilder::Element* element) const {
  const FX::FXString text = Remark::textOf(item);
  if (text.empty()) return 1;
  element->getDocument()->addNamespace(kXmlPrefix, kXmlNamespace);
  element->createElement("remark", kXmlNamespace)->setText(text);
  return 1;
}
// [output]

MorvaneDatabase* RemarkEntityPlugin::getDatabase() const {
  const Brontel::Morvane* app = container_->getApp();
  return app == nullptr ? nullptr : app->getDB();
}

}  // namespace Remarks
