#include <type_traits>

#include <gtest/gtest.h>

#include "host/database/DataBaseValueLoader.h"
#include "host/database/DeleteStatement.h"
#include "host/database/InsertStatement.h"
#include "host/database/MorvaneDatabase.h"
#include "host/database/UpdateStatement.h"
#include "host/entity/Invoice.h"
#include "host/entity/ListOfEntityMiscData.h"
#include "host/message/ListOfMessage.h"
#include "host/plugin/EntityPlugin.h"
#include "host/plugin/InvoiceCheckPlugin.h"
#include "host/plugin/InvoiceItemMenuPlugin.h"
#include "host/plugin/PanelProvider.h"
#include "host/plugin/PluginContainer.h"
#include "host/schema/Schema.h"
#include "host/ui/DBTable.h"
#include "host/ui/DBTablePersister.h"
#include "host/ui/GoodsDataWindow.h"
#include "host/ui/InvoiceForm.h"
#include "host/ui/InvoiceItemTable.h"
#include "host/ui/Morvane.h"
#include "host/ui/PluginSettingsDialogBox.h"
#include "host/ui/ProductDataWindow.h"
#include "host/ui/ServiceDataWindow.h"
#include "host/ui/SuiteDataWindow.h"
#include "host/xml/Document.h"

// What plug-ins are compiled against: names, namespaces, signatures and classes as they are known to FOX.

using FX::FXMetaClass;
using FX::FXObject;
using FX::FXSelector;
using FX::FXString;

static_assert(std::is_base_of_v<::Statement, ::InsertStatement>);
static_assert(std::is_base_of_v<::Statement, ::UpdateStatement>);
static_assert(std::is_base_of_v<::Statement, ::DeleteStatement>);
static_assert(std::is_constructible_v<::Statement, ::MorvaneDatabase*>);
static_assert(std::is_constructible_v<::Statement, ::MorvaneDatabase*, const FXString&>);
static_assert(std::is_constructible_v<::InsertStatement, ::MorvaneDatabase*, const FXString&>);
static_assert(std::is_constructible_v<::UpdateStatement, ::MorvaneDatabase*, const FXString&, const FXString&>);
static_assert(std::is_constructible_v<::DeleteStatement, ::MorvaneDatabase*, const FXString&>);
static_assert(
    std::is_same_v<decltype(&::MorvaneDatabase::queryInt), int (::MorvaneDatabase::*)(const FXString&, int, int)>);
static_assert(std::is_same_v<decltype(&::Statement::queryInt), int (::Statement::*)(int)>);
static_assert(
    std::is_same_v<decltype(&::Statement::execute), int (::Statement::*)(::DataBaseValueLoader*, unsigned char)>);
static_assert(std::is_same_v<decltype(::Statement::database), ::MorvaneDatabase*>);
static_assert(std::is_same_v<decltype(::Statement::sql), FXString>);

namespace Model = Brontel::Model;
static_assert(std::is_base_of_v<FX::FXObjectListOf<Model::Table>, FX::FXManagedObjectListOf<Model::Table>>);
static_assert(std::is_base_of_v<FXObject, Model::Column> && std::is_base_of_v<FXObject, Model::Index>);
static_assert(
    std::is_same_v<decltype(&Model::Table::addReference),
                   void (Model::Table::*)(const FXString&, Model::Column::ColumnType, unsigned char, const FXString&,
                                          unsigned char, const FXString&, Model::Column::OnDeleteType)>);
static_assert(std::is_same_v<decltype(&Model::Schema::sync), int (Model::Schema::*)(::MorvaneDatabase*)>);

namespace Plugin = Brontel::Plugin;
using Handler = long (Plugin::PluginContainer::*)(FXObject*, FXSelector, void*);
static_assert(std::is_same_v<decltype(&Plugin::PluginContainer::onSettings), Handler>);
static_assert(std::is_same_v<decltype(&Plugin::PluginContainer::onHasSettings), Handler>);
static_assert(std::is_same_v<decltype(&Plugin::InvoiceCheckPlugin::checkInvoice),
                             int (Plugin::InvoiceCheckPlugin::*)(FX::FXWindow*, Brontel::Invoice*,
                                                                 Brontel::ListOfMessage&, FXString)>);
static_assert(std::is_constructible_v<Plugin::UI::PluginSettingsDialogBox, Plugin::PluginContainer*, FX::FXApp*>);
static_assert(static_cast<int>(Plugin::UI::PluginSettingsDialogBox::ID_DELETE) == 90);
static_assert(static_cast<int>(Plugin::UI::PluginSettingsDialogBox::ID_TABLE) == 103);
static_assert(
    std::is_same_v<decltype(&XMLBuilder::Node::getDocument), XMLBuilder::Document* (XMLBuilder::Node::*)() const>);
static_assert(std::is_constructible_v<Brontel::DBTable, FX::FXComposite*, FXObject*, FXSelector, FX::FXuint, int, int,
                                      int, int, int, int, int, int>);

namespace {

struct Known {
  const FXMetaClass& meta;
  const FXMetaClass& base;
  const char* name;
};

}  // namespace

TEST(HostInterfaceTest, classesAreKnownToFoxWithTheirBases) {
  const Known classes[] = {
      {Brontel::Morvane::metaClass, FX::FXApp::metaClass, "Morvane"},
      {Model::Schema::metaClass, FXObject::metaClass, "Schema"},
      {Model::Table::metaClass, FXObject::metaClass, "Table"},
      {Brontel::Entity::metaClass, FXObject::metaClass, "Entity"},
      {Brontel::EntityMiscData::metaClass, FXObject::metaClass, "EntityMiscData"},
      {Brontel::Invoice::metaClass, Brontel::Entity::metaClass, "Invoice"},
      {Brontel::InvoiceItem::metaClass, Brontel::Entity::metaClass, "InvoiceItem"},
      {Plugin::PluginContainer::metaClass, FXObject::metaClass, "PluginContainer"},
      {Plugin::PluginModule::metaClass, FXObject::metaClass, "PluginModule"},
      {Plugin::EntityPlugin::metaClass, Plugin::PluginModule::metaClass, "EntityPlugin"},
      {Plugin::InvoiceCheckPlugin::metaClass, Plugin::PluginModule::metaClass, "InvoiceCheckPlugin"},
      {Plugin::InvoiceItemMenuPlugin::metaClass, Plugin::PluginModule::metaClass, "InvoiceItemMenuPlugin"},
      {Plugin::PanelProvider::Plugin::metaClass, Plugin::PluginModule::metaClass, "Plugin"},
      {Plugin::PanelProvider::Handler::metaClass, FXObject::metaClass, "Handler"},
      {Plugin::UI::PluginSettingsDialogBox::metaClass, FX::FXDialogBox::metaClass, "PluginSettingsDialogBox"},
      {Brontel::DBForm::metaClass, FX::FXTopWindow::metaClass, "DBForm"},
      {Brontel::InvoiceForm::metaClass, Brontel::DBForm::metaClass, "InvoiceForm"},
      {Brontel::DBTable::metaClass, FX::FXTable::metaClass, "DBTable"},
      {Brontel::InvoiceItemTable::metaClass, FX::FXTable::metaClass, "InvoiceItemTable"},
      {Brontel::PanelisedWindow::metaClass, FX::FXTopWindow::metaClass, "PanelisedWindow"},
      {Brontel::GoodsDataWindow::metaClass, Brontel::PanelisedWindow::metaClass, "GoodsDataWindow"},
      {Brontel::ProductDataWindow::metaClass, Brontel::GoodsDataWindow::metaClass, "ProductDataWindow"},
      {Brontel::ServiceDataWindow::metaClass, Brontel::GoodsDataWindow::metaClass, "ServiceDataWindow"},
      {Brontel::SuiteDataWindow::metaClass, Brontel::GoodsDataWindow::metaClass, "SuiteDataWindow"},
  };
  for (const Known& known : classes) {
    EXPECT_STREQ(known.meta.getClassName(), known.name);
    EXPECT_EQ(known.meta.getBaseClass(), &known.base) << known.name;
    EXPECT_EQ(FXMetaClass::getMetaClassFromName(known.name), &known.meta);
  }
}

TEST(HostInterfaceTest, goodsWindowsAreToldApart) {
  const FXMetaClass* windows[] = {&Brontel::ProductDataWindow::metaClass, &Brontel::ServiceDataWindow::metaClass,
                                  &Brontel::SuiteDataWindow::metaClass};
  for (const FXMetaClass* one : windows) {
    for (const FXMetaClass* other : windows) EXPECT_EQ(one->isSubClassOf(other), one == other);
    EXPECT_FALSE(Brontel::PanelisedWindow::metaClass.isSubClassOf(one));
  }
}
