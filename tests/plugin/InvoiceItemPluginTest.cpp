#include <type_traits>

#include <gtest/gtest.h>

#include "host/xml/Document.h"
#include "itemdata/Codes.h"
#include "itemdata/ItemDataPluginList.h"
#include "plugin/GetPlugin.h"
#include "plugin/InvoiceItemPlugin.h"
#include "tests/plugin/PluginWorld.h"
#include "tests/plugin/SpyEntry.h"
#include "tests/support/RecordingObserver.h"

using Brontel::EntityMiscData;
using Brontel::Invoice;
using Brontel::InvoiceItem;
using Brontel::Plugin::EntityPlugin;
using Brontel::Plugin::PluginContainer;
using Brontel::Plugin::ItemData::InvoiceItemPlugin;
using Brontel::Plugin::ItemData::ItemDataList;
using FX::FXint;
using Texts = std::vector<std::string>;

static_assert(std::is_base_of_v<EntityPlugin, InvoiceItemPlugin>);
static_assert(sizeof(InvoiceItemPlugin) == sizeof(EntityPlugin), "it keeps nothing of its own");

namespace {

/// Reaches what the base keeps for its subclasses.
struct Base : EntityPlugin {
  static Texts weightsOf(const EntityPlugin& plugin) {
    Texts weights;
    for (const auto field :
         {&Base::weight1_, &Base::weight2_, &Base::weight3_, &Base::xmlWeight_, &Base::stringWeight_}) {
      weights.push_back(std::to_string(plugin.*field));
    }
    return weights;
  }
};

/// An invoice item of a host's own.
class SpecialItem : public InvoiceItem {
  FXDECLARE(SpecialItem)
};
FXIMPLEMENT(SpecialItem, InvoiceItem, nullptr, 0)

class InvoiceItemPluginTest : public testing::Test {
 protected:
  InvoiceItemPluginTest() {
    for (Brontel::Plugin::PluginModule* module : world_.plugins().findModules(EntityPlugin::metaClass)) {
      plugin_ = static_cast<EntityPlugin*>(module);
    }
  }

  const EntityPlugin& plugin() const { return *plugin_; }

  /// A new item that the plug-in has not seen yet, on a new invoice.
  InvoiceItem* newItem(int kind, int goods, int typeCode = 101) {
    invoice_ = newInvoice(typeCode);
    auto* item = new InvoiceItem;
    item->setGoods(kind, goods);
    item->setUnit("db");
    item->setQuantity(FXExt::FXDecimal("5", 4));
    invoice_->appendItem(item);
    return item;
  }
  InvoiceItem* newSofa(int typeCode = 101) { return newItem(Brontel::GOODS_PRODUCT, SampleGoods::SOFA, typeCode); }
  /// A stored sofa with one row, read back.
  InvoiceItem* storedSofa() {
    std::unique_ptr<Invoice> invoice = newInvoice();
    world_.addSofa(*invoice, "5", "A", {{"5", "S1", "kék"}});
    EXPECT_EQ(world_.repository().save(*invoice), PluginWorld::Result::Done);
    invoice_ = world_.load(*invoice);
    return invoice_->getItems()[0];
  }
  std::string count() { return world_.database().text("select count(*) from t_invoiceitemdata"); }

  PluginWorld world_;
  EntityPlugin* plugin_ = nullptr;
  std::unique_ptr<Invoice> invoice_;
};

}  // namespace

TEST_F(InvoiceItemPluginTest, hasTheContainersWeights) {
  EXPECT_EQ(Base::weightsOf(plugin()), (Texts{"103", "103", "0", "103", "103"}));
  EXPECT_EQ(plugin().getXmlWeight(), 103);
  EXPECT_EQ(plugin().getStringWeight(), 103);
  EXPECT_EQ(plugin().getContainer(), &world_.container());
}

TEST_F(InvoiceItemPluginTest, isForInvoiceItemsAndTheirSubclassesOnly) {
  EXPECT_TRUE(plugin().canHandle(InvoiceItem::metaClass));
  EXPECT_TRUE(plugin().canHandle(SpecialItem::metaClass));
  EXPECT_FALSE(plugin().canHandle(Invoice::metaClass));
  EXPECT_FALSE(plugin().canHandle(Brontel::Entity::metaClass));
  EXPECT_FALSE(plugin().canHandle(FX::FXObject::metaClass));
  EXPECT_FALSE(plugin().canHandle(FX::FXWindow::metaClass));
}

TEST_F(InvoiceItemPluginTest, attachesTheDataUnderItsKey) {
  InvoiceItem* item = newSofa();
  EXPECT_EQ(plugin().load(item), 0);
  EXPECT_NE(dynamic_cast<ItemDataList*>(item->getMiscData("ItemData")), nullptr);
  for (const char* other : {"itemdata", "ITEMDATA", "ItemData ", "Itemdata", ""}) {
    EXPECT_EQ(item->getMiscData(other), nullptr) << other;
  }
  EXPECT_EQ(dataOf(item)->getOwner(), item);
  EXPECT_EQ(cells(item, true), (Texts{"11/0= pk=0"}));
}

TEST_F(InvoiceItemPluginTest, attachesTheDataToSubclassesToo) {
  invoice_ = newInvoice();
  auto* item = new SpecialItem;
  item->setGoods(Brontel::GOODS_PRODUCT, SampleGoods::SOFA);
  invoice_->appendItem(item);
  world_.plugins().load(item);
  EXPECT_NE(dataOf(item), nullptr);
}

TEST_F(InvoiceItemPluginTest, readsTheVariablesOfTheGoodsForTheTypeCode) {
  InvoiceItem* item = newSofa(252);
  invoice_->setStatus(101);
  const RecordingObserver recorder(world_.handle());
  EXPECT_EQ(plugin().load(item), 0);
  ASSERT_FALSE(recorder.records().empty());
  const RecordingObserver::Record& first = recorder.records()[0];
  EXPECT_NE(first.sql.find("from t_productitemdata join"), std::string::npos) << first.sql;
  EXPECT_EQ(first.value("direction"), "200");
  EXPECT_EQ(first.value("id"), std::to_string(SampleGoods::SOFA));
  const ItemDataList* settings = dataOf(item)->templateList;
  ASSERT_EQ(settings->no(), 2);
  EXPECT_EQ(settings->at(1)->itemvariable, SampleGoods::BATCH);
}

TEST_F(InvoiceItemPluginTest, hasAListOfVariablesForEachKindOfGoods) {
  struct {
    int kind, goods, cells;
  } const kinds[] = {{Brontel::GOODS_PRODUCT, SampleGoods::SOFA, 4},
                     {Brontel::GOODS_SERVICE, SampleGoods::ASSEMBLY, 1},
                     {Brontel::GOODS_SUITE, SampleGoods::SET, 2}};
  for (const auto& kind : kinds) {
    InvoiceItem* item = newItem(kind.kind, kind.goods);
    EXPECT_EQ(plugin().load(item), 0);
    ASSERT_NE(dataOf(item), nullptr) << kind.kind;
    const ItemDataList* settings = dataOf(item)->templateList;
    ASSERT_NE(settings, nullptr);
    EXPECT_EQ(settings->getOwner(), nullptr);
    EXPECT_EQ(settings->templateList, nullptr);
    EXPECT_EQ(settings->no(), kind.cells) << kind.kind;
    for (FXint i = 0; i < settings->no(); ++i) EXPECT_FALSE(settings->at(i)->name.empty());
  }
}

TEST_F(InvoiceItemPluginTest, leavesItemsWithoutVariablesAlone) {
  struct {
    int kind, goods, typeCode;
  } const items[] = {{Brontel::GOODS_PRODUCT, SampleGoods::NAIL, 101},
                     {Brontel::GOODS_PRODUCT, 99, 101},
                     {Brontel::GOODS_PRODUCT, SampleGoods::CHAIR, 202},
                     {Brontel::GOODS_PRODUCT, SampleGoods::SOFA, 301},
                     {Brontel::GOODS_NONE, SampleGoods::SOFA, 101},
                     {7, SampleGoods::SOFA, 101},
                     {-1, SampleGoods::SOFA, 101}};
  for (const auto& each : items) {
    InvoiceItem* item = newItem(each.kind, each.goods, each.typeCode);
    EXPECT_EQ(plugin().load(item), 0);
    EXPECT_EQ(item->getMiscData("ItemData"), nullptr) << each.kind << " " << each.goods << " " << each.typeCode;
    EXPECT_EQ(plugin().save(item), 0);
  }
}

TEST_F(InvoiceItemPluginTest, readsWhatIsStored) {
  InvoiceItem* item = storedSofa();
  EXPECT_EQ(cells(item, true), (Texts{"11/0=A pk=1", "-1/1=5 pk=2", "12/1=S1 pk=3", "13/1=kék pk=4"}));
}

TEST_F(InvoiceItemPluginTest, doesNotReadAgainWhatIsThere) {
  InvoiceItem* item = storedSofa();
  const ItemDataList* list = dataOf(item);
  type(item, SampleGoods::BATCH, 1, "typed");
  world_.database().exec(
      "insert into t_productitemdata (t_product_1, t_itemvariable_1, position, direction) "
      "values (1,14,9,100)");
  const Texts before = cells(item, true);
  const RecordingObserver recorder(world_.handle());
  EXPECT_EQ(plugin().load(item), 1);
  EXPECT_EQ(plugin().load(item), 1);
  EXPECT_EQ(dataOf(item), list);
  EXPECT_EQ(cells(item, true), before);
  EXPECT_EQ(recorder.texts(), Texts());
}

TEST_F(InvoiceItemPluginTest, tellsThePresentDataTheTypeCode) {
  SpyEntry::Log log;
  InvoiceItem* item = newSofa(102);
  plugin().load(item);
  dataOf(item)->append(new SpyEntry(log, item));
  EXPECT_EQ(plugin().load(item), 1);
  EXPECT_EQ(log, (Texts{"status 102"}));
}

TEST_F(InvoiceItemPluginTest, attachesTheListBeforeItIsReadAndReadsItOnce) {
  SpyEntry::Log log;
  Brontel::Plugin::ItemData::plugins.append(new SpyEntry(log, nullptr));
  world_.database().exec("insert into t_itemvariable (t_itemvariable_id, name, type) values (50,'spy'," +
                         std::to_string(SpyEntry::kType) + ")");
  world_.database().exec(
      "insert into t_productitemdata (t_product_1, t_itemvariable_1, position, direction) "
      "values (2,50,1,100)");
  InvoiceItem* item = newItem(Brontel::GOODS_PRODUCT, SampleGoods::NAIL);
  SpyEntry::expectedDatabase = world_.database().get();
  EXPECT_EQ(plugin().load(item), 0);
  EXPECT_EQ(log, (Texts{"load attached"}));
  log.clear();
  EXPECT_EQ(plugin().save(item), 1);
  EXPECT_EQ(log, (Texts{"save attached"}));
  SpyEntry::expectedDatabase = nullptr;
}

TEST_F(InvoiceItemPluginTest, savesOnlyWhatIsAttached) {
  InvoiceItem* item = newSofa();
  const RecordingObserver recorder(world_.handle());
  EXPECT_EQ(plugin().save(item), 0);
  EXPECT_STREQ(plugin().toString(item).text(), "");
  EXPECT_EQ(plugin().toString(item).length(), 0);
  XMLBuilder::Document document("item");
  const std::string empty = document.toText().text();
  EXPECT_EQ(plugin().toXml(item, document.getRoot()), 1);
  EXPECT_STREQ(document.toText().text(), empty.c_str());
  EXPECT_EQ(item->getMiscData("ItemData"), nullptr);
  EXPECT_EQ(recorder.texts(), Texts());
}

TEST_F(InvoiceItemPluginTest, savesTheList) {
  InvoiceItem* item = storedSofa();
  type(item, SampleGoods::COLOUR, 1, "piros");
  EXPECT_EQ(plugin().save(item), 1);
  EXPECT_EQ(world_.stored(*item), (Texts{"11/0=A", "-1/1=5", "12/1=S1", "13/1=piros"}));
}

TEST_F(InvoiceItemPluginTest, savesAnEmptyListToo) {
  InvoiceItem* item = newSofa(201);
  plugin().load(item);
  ASSERT_NE(dataOf(item), nullptr);
  EXPECT_EQ(dataOf(item)->no(), 0);
  EXPECT_EQ(plugin().save(item), 1);
  EXPECT_EQ(count(), "0");
}

TEST_F(InvoiceItemPluginTest, printsAndExportsWhatTheListGives) {
  InvoiceItem* item = storedSofa();
  const Texts before = cells(item, true);
  const std::string stored = world_.database().dump();
  const RecordingObserver recorder(world_.handle());
  EXPECT_STREQ(plugin().toString(item).text(), "A; 5 db S1, kék");
  EXPECT_EQ(plugin().toString(item), dataOf(item)->getPrintableText());
  XMLBuilder::Document document("item");
  XMLBuilder::Document expected("item");
  EXPECT_EQ(plugin().toXml(item, document.getRoot()), 1);
  dataOf(item)->toXml(expected.getRoot());
  EXPECT_STREQ(document.toText().text(), expected.toText().text());
  EXPECT_NE(document.toText().find("<itemdata:itemdata row=\"1\" name=\"Sarzs\">S1</itemdata:itemdata>"), -1);
  EXPECT_EQ(cells(item, true), before);
  EXPECT_EQ(recorder.texts(), Texts());
  EXPECT_EQ(world_.database().dump(), stored);
}

TEST_F(InvoiceItemPluginTest, keepsOutOfDeletingAndParsing) {
  InvoiceItem* item = storedSofa();
  const ItemDataList* list = dataOf(item);
  EXPECT_EQ(plugin().del(item), 0);
  EXPECT_EQ(dataOf(item), list);
  EXPECT_EQ(count(), "4");
  FX::FXDict parsers;
  EXPECT_EQ(plugin().getParser(&InvoiceItem::metaClass, parsers), nullptr);
}

TEST_F(InvoiceItemPluginTest, keepsTwoItemsApart) {
  InvoiceItem* first = newSofa();
  auto* second = new InvoiceItem;
  second->setGoods(Brontel::GOODS_PRODUCT, SampleGoods::SOFA);
  invoice_->appendItem(second);
  EXPECT_EQ(plugin().load(first), 0);
  EXPECT_EQ(plugin().load(second), 0);
  EXPECT_EQ(plugin().load(first), 1);
  EXPECT_NE(dataOf(first), dataOf(second));
  EXPECT_NE(dataOf(first)->templateList, dataOf(second)->templateList);
  type(first, SampleGoods::NOTE, 0, "first");
  EXPECT_EQ(cells(second), (Texts{"11/0="}));
}

TEST_F(InvoiceItemPluginTest, lendsACopyNothing) {
  InvoiceItem* item = storedSofa();
  const std::unique_ptr<InvoiceItem> copy(item->copy());
  ASSERT_NE(dataOf(copy.get()), nullptr);
  EXPECT_NE(dataOf(copy.get()), dataOf(item));
  EXPECT_EQ(dataOf(copy.get())->getOwner(), copy.get());
  EXPECT_NE(dataOf(copy.get())->templateList, dataOf(item)->templateList);
  invoice_.reset();
  EXPECT_STREQ(dataOf(copy.get())->templateList->at(0)->name.text(), "Megjegyzés");
  EXPECT_STREQ(plugin().toString(copy.get()).text(), "A; 5 db S1, kék");
}

TEST_F(InvoiceItemPluginTest, doesNothingForWhatIsNotItsBusiness) {
  Invoice invoice;
  InvoiceItem alone;
  alone.setGoods(Brontel::GOODS_PRODUCT, SampleGoods::SOFA);
  for (Brontel::Entity* entity : {static_cast<Brontel::Entity*>(nullptr), static_cast<Brontel::Entity*>(&invoice),
                                  static_cast<Brontel::Entity*>(&alone)}) {
    EXPECT_EQ(plugin().load(entity), 0);
    EXPECT_EQ(plugin().save(entity), 0);
    EXPECT_STREQ(plugin().toString(entity).text(), "");
    XMLBuilder::Document document("item");
    EXPECT_EQ(plugin().toXml(entity, document.getRoot()), 1);
    EXPECT_EQ(plugin().toXml(entity, nullptr), 1);
    EXPECT_TRUE(entity == nullptr || entity->getMiscData("ItemData") == nullptr);
  }
}

TEST_F(InvoiceItemPluginTest, leavesForeignDataUnderItsKeyAlone) {
  InvoiceItem* item = newSofa();
  auto* foreign = new EntityMiscData(item);
  item->addMiscData("ItemData", foreign);
  EXPECT_EQ(plugin().load(item), 0);
  EXPECT_EQ(item->getMiscData("ItemData"), foreign);
  EXPECT_EQ(plugin().save(item), 0);
  EXPECT_STREQ(plugin().toString(item).text(), "");
}

TEST_F(InvoiceItemPluginTest, givesTheDataAwayForGood) {
  InvoiceItem* item = newSofa();
  {
    const std::unique_ptr<PluginContainer> other(get_plugin(&world_.app()));
    other->init();
    static_cast<EntityPlugin*>(other->getModules()[3])->load(item);
  }
  ASSERT_NE(dataOf(item), nullptr);
  addRow(item, {"5", "S1"});
  EXPECT_STREQ(dataOf(item)->getPrintableText().text(), "5 db S1");
}

TEST_F(InvoiceItemPluginTest, findsNothingWithoutADatabase) {
  InvoiceItem* item = newSofa();
  world_.app().setDB(nullptr);
  EXPECT_EQ(plugin().load(item), 0);
  EXPECT_EQ(item->getMiscData("ItemData"), nullptr);
  MorvaneDatabase closed;
  world_.app().setDB(&closed);
  EXPECT_EQ(plugin().load(item), 0);
  EXPECT_EQ(item->getMiscData("ItemData"), nullptr);
  const std::unique_ptr<PluginContainer> lost(get_plugin(nullptr));
  lost->init();
  EXPECT_EQ(static_cast<EntityPlugin*>(lost->getModules()[3])->load(item), 0);
  world_.app().setDB(world_.database().get());
}

TEST_F(InvoiceItemPluginTest, keepsTheDataForLaterWithoutADatabase) {
  InvoiceItem* item = storedSofa();
  ItemDataList& list = *dataOf(item);
  list[0]->value = "B";
  world_.app().setDB(nullptr);
  EXPECT_EQ(plugin().save(item), 1);
  const InvoiceItemPlugin orphan(nullptr, 1, 1, 0, 1, 1);
  EXPECT_EQ(orphan.save(item), 1);
  world_.app().setDB(world_.database().get());
  EXPECT_EQ(world_.stored(*item), (Texts{"11/0=A", "-1/1=5", "12/1=S1", "13/1=kék"}));
  EXPECT_EQ(plugin().save(item), 1);
  EXPECT_EQ(world_.stored(*item), (Texts{"11/0=B", "-1/1=5", "12/1=S1", "13/1=kék"}));
  EXPECT_EQ(count(), "4");
  InvoiceItem* another = newSofa();
  EXPECT_EQ(orphan.load(another), 0);
  EXPECT_EQ(dataOf(another), nullptr);
}

TEST_F(InvoiceItemPluginTest, saysNothingWhenTheDatabaseFails) {
  InvoiceItem* item = storedSofa();
  MorvaneDatabase closed;
  world_.app().setDB(&closed);
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  EXPECT_EQ(plugin().save(item), 1);
  EXPECT_EQ(plugin().load(item), 1);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  world_.app().setDB(world_.database().get());
  EXPECT_EQ(plugin().save(item), 1);
  EXPECT_EQ(world_.stored(*item), (Texts{"11/0=A", "-1/1=5", "12/1=S1", "13/1=kék"}));
  EXPECT_EQ(count(), "4");
}
