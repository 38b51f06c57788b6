#include <algorithm>
#include <cstddef>
#include <vector>

#include <gtest/gtest.h>

#include "host/database/DataBaseValueLoader.h"
#include "host/database/MorvaneDatabase.h"
#include "host/entity/EntityMiscData.h"
#include "host/message/ListOfMessage.h"
#include "host/plugin/EntityPlugin.h"
#include "host/plugin/InvoiceCheckPlugin.h"
#include "host/plugin/InvoiceItemMenuPlugin.h"
#include "host/plugin/PanelProvider.h"
#include "host/plugin/PluginContainer.h"
#include "host/schema/Table.h"
#include "host/ui/DBTablePersister.h"
#include "tests/support/Slots.h"

// Plug-ins are built apart from the host and call it by position: the order of virtual operations is part of the
// interface.

namespace {

namespace Plugin = Brontel::Plugin;

using Slots = std::vector<std::ptrdiff_t>;

void expectConsecutive(const Slots& slots, std::ptrdiff_t first) {
  for (size_t i = 0; i < slots.size(); ++i) EXPECT_EQ(slots[i], first + static_cast<std::ptrdiff_t>(i));
}

/// The first slot behind those of FXObject, its destructor's two included.
std::ptrdiff_t afterObject() {
  return slotOf(&Plugin::PluginModule::init);
}

}  // namespace

TEST(SlotOrderTest, ownOperationsComeAfterThoseOfTheBase) {
  using FX::FXObject;
  using Save = void (FXObject::*)(FX::FXStream&) const;
  using Load = void (FXObject::*)(FX::FXStream&);
  const Slots base{slotOf(&FXObject::handle),    slotOf(&FXObject::getMetaClass), slotOf(&FXObject::onDefault),
                   slotOf(&FXObject::tryHandle), slotOf(Save(&FXObject::save)),   slotOf(Load(&FXObject::load))};
  EXPECT_LT(*std::max_element(base.begin(), base.end()), afterObject());
  EXPECT_EQ(afterObject(), 8);
}

TEST(SlotOrderTest, plainInterfaces) {
  expectConsecutive({slotOf(&DataBaseValueLoader::processValue), slotOf(&DataBaseValueLoader::getNumRows)}, 0);
  expectConsecutive({slotOf(&Brontel::MessageEvent::execute)}, 0);
  using Brontel::DBTablePersister;
  expectConsecutive({slotOf(&DBTablePersister::updateItem), slotOf(&DBTablePersister::deleteItem),
                     slotOf(&DBTablePersister::insertItem), slotOf(&DBTablePersister::getColName)},
                    2);
  expectConsecutive({slotOf(&MorvaneDatabase::queryInt)}, 2);
}

TEST(SlotOrderTest, listOfMessage) {
  using Brontel::ListOfMessage;
  using AppendList = void (ListOfMessage::*)(ListOfMessage&);
  using AppendOne = void (ListOfMessage::*)(Brontel::Message*);
  expectConsecutive({slotOf(AppendList(&ListOfMessage::append)), slotOf(AppendOne(&ListOfMessage::append)),
                     slotOf(&ListOfMessage::clear)},
                    2);
}

TEST(SlotOrderTest, entitiesAndTables) {
  expectConsecutive({slotOf(&Brontel::EntityMiscData::clone)}, afterObject());
  expectConsecutive({slotOf(&Brontel::Model::Table::init)}, afterObject());
}

TEST(SlotOrderTest, pluginContainer) {
  using Plugin::PluginContainer;
  expectConsecutive(
      {slotOf(&PluginContainer::getIcon16), slotOf(&PluginContainer::getIcon32), slotOf(&PluginContainer::getIcon64),
       slotOf(&PluginContainer::init), slotOf(&PluginContainer::start), slotOf(&PluginContainer::onSettings),
       slotOf(&PluginContainer::onHasSettings)},
      afterObject());
}

TEST(SlotOrderTest, entityPlugin) {
  using Plugin::EntityPlugin;
  using Load = int (EntityPlugin::*)(Brontel::Entity*) const;
  using Save = int (EntityPlugin::*)(Brontel::Entity*) const;
  expectConsecutive(
      {slotOf(Load(&EntityPlugin::load)), slotOf(Save(&EntityPlugin::save)), slotOf(&EntityPlugin::del),
       slotOf(&EntityPlugin::canHandle), slotOf(&EntityPlugin::toXml), slotOf(&EntityPlugin::getParser),
       slotOf(&EntityPlugin::getXmlWeight), slotOf(&EntityPlugin::toString), slotOf(&EntityPlugin::getStringWeight)},
      afterObject() + 1);
}

TEST(SlotOrderTest, otherModules) {
  expectConsecutive({slotOf(&Plugin::InvoiceCheckPlugin::checkInvoice)}, afterObject() + 1);
  expectConsecutive(
      {slotOf(&Plugin::InvoiceItemMenuPlugin::onCmdMenuItem), slotOf(&Plugin::InvoiceItemMenuPlugin::onUpdMenuItem)},
      afterObject() + 1);
  expectConsecutive(
      {slotOf(&Plugin::PanelProvider::Plugin::acceptWindow), slotOf(&Plugin::PanelProvider::Plugin::getHandler)},
      afterObject() + 1);
  using Plugin::PanelProvider::Handler;
  expectConsecutive({slotOf(&Handler::getIcon16), slotOf(&Handler::getPanel), slotOf(&Handler::createGUI),
                     slotOf(&Handler::getPanelName), slotOf(&Handler::onOKButton), slotOf(&Handler::onCancelButton),
                     slotOf(&Handler::getCodeName), slotOf(&Handler::onFocus)},
                    afterObject());
}

namespace {

/// Reaches the fields that plug-ins reach by deriving.
class ContainerFields : public Plugin::PluginContainer {
 public:
  ContainerFields() : PluginContainer(nullptr, "", "", "", "") {}
  FX::FXIcon* getIcon16() override { return nullptr; }
  int init() override { return 1; }

  std::vector<const void*> fields() const {
    return {&app_, &textDomain_, &name_, &version_, &description_, &flag_, &modules_};
  }
};

class MenuFields : public Plugin::InvoiceItemMenuPlugin {
 public:
  MenuFields() : InvoiceItemMenuPlugin(nullptr, "label") {}
  long onCmdMenuItem(FX::FXObject*, FX::FXSelector, void*) override { return 1; }

  std::vector<const void*> fields() const { return {&container_, &data_, &label_}; }
  void* data() const { return data_; }
};

}  // namespace

TEST(FieldOrderTest, pluginContainer) {
  const ContainerFields container;
  const auto fields = container.fields();
  EXPECT_TRUE(std::is_sorted(fields.begin(), fields.end()));
}

TEST(FieldOrderTest, invoiceItemMenuPlugin) {
  const MenuFields plugin;
  const auto fields = plugin.fields();
  EXPECT_TRUE(std::is_sorted(fields.begin(), fields.end()));
  EXPECT_EQ(plugin.data(), nullptr);
  EXPECT_STREQ(plugin.getLabel().text(), "label");
}
