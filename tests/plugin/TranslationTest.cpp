// Which texts are looked up in which catalogue.

#include <gtest/gtest.h>
#include <libintl.h>

#include "plugin/GetPlugin.h"
#include "tests/plugin/PluginWorld.h"
#include "tests/support/MessageCatalog.h"
#include "tests/support/SpokenLanguage.h"
#include "tests/support/TemporaryDirectory.h"

using Brontel::Invoice;
using Brontel::Morvane;
using Brontel::Plugin::PluginContainer;
using Container = std::unique_ptr<PluginContainer>;
using Texts = std::vector<std::string>;

namespace {

constexpr const char* kPluginDomain = "BrontelPluginItemData";
constexpr const char* kName = "Egyéb tételadatok";
constexpr const char* kDescription =
    "Lehetőséget biztosít arra, hogy bizonyos áruk számlázásakor egyéb (saját) adatot is nyomtassunk a számlára.\n";
constexpr const char* kTitle = "Számla: Tételek listája\n[%s]\n";
constexpr const char* kWanted = "A(z) %d. tételhez rögzíteni kell néhány egyéb adatot!\nMező neve:%s";
constexpr const char* kPossible = "A(z) %d. tételhez lehet rögzíteni néhány egyéb adatot!\nMező neve:%s";
constexpr const char* kMore = "Egyéb tételadatok: Az összmennyiség (%s) több, mint a tétellistában megadott (%s).";
constexpr const char* kLess = "Egyéb tételadatok: Az összmennyiség (%s) kevesebb, mint a tétellistában megadott (%s).";

/// A user who reads English, on a host whose own domain is "host-domain".
class TranslationTest : public testing::Test {
 protected:
  void install(const char* domain, const std::vector<std::pair<const char*, const char*>>& texts) {
    MessageCatalog catalog;
    for (const auto& [text, translation] : texts) catalog.add(text, translation);
    ASSERT_TRUE(catalog.install(catalogs_.path(), "en", domain));
  }

  TemporaryDirectory catalogs_;
  SpokenLanguage english_{"en", catalogs_.path(), {"host-domain"}};
};

/// Messages of every kind that the check can give.
Texts allMessages() {
  PluginWorld world;
  const std::unique_ptr<Invoice> invoice = newInvoice();
  world.addSofa(*invoice, "5", "", {{"6", "S1", ""}});
  world.addSofa(*invoice, "5", "A", {{"4", "S1", "kék"}});
  return world.check(*invoice);
}

}  // namespace

TEST_F(TranslationTest, nameAndDescriptionComeFromThePluginsCatalogue) {
  install(kPluginDomain, {{kName, "Other item data"},
                          {kDescription, "Prints more.\n"},
                          {"2013.01.02", "never"},
                          {kPluginDomain, "never"}});
  Morvane app;
  app.setLocaleDirectory(catalogs_.path().c_str());
  const Container container(get_plugin(&app));
  EXPECT_STREQ(container->getName().text(), "Other item data");
  EXPECT_STREQ(container->getDescription().text(), "Prints more.\n");
  EXPECT_STREQ(container->getVersion().text(), "2013.01.02");
  EXPECT_STREQ(container->getTextDomain().text(), kPluginDomain);
}

TEST_F(TranslationTest, nameAndDescriptionAreNotLookedUpInTheHostsCatalogue) {
  install("host-domain", {{kName, "wrong"}, {kDescription, "wrong\n"}});
  Morvane app;
  app.setLocaleDirectory(catalogs_.path().c_str());
  const Container container(get_plugin(&app));
  EXPECT_STREQ(container->getName().text(), kName);
  EXPECT_STREQ(container->getDescription().text(), kDescription);
}

TEST_F(TranslationTest, theQuantityColumnIsNamedByThePluginsCatalogue) {
  install(kPluginDomain, {{"Mennyiség", "Quantity"}});
  install("host-domain", {{"Mennyiség", "wrong"}});
  PluginWorld world;
  bindtextdomain(kPluginDomain, catalogs_.path().c_str());
  const std::unique_ptr<Invoice> invoice = newInvoice();
  const Brontel::InvoiceItem* item = world.addSofa(*invoice, "5", "A", {{"5", "S1"}});
  EXPECT_STREQ(cell(item, SampleGoods::QUANTITY, 1)->name.text(), "Quantity");
}

TEST_F(TranslationTest, checkMessagesComeFromTheHostsCatalogue) {
  install("host-domain", {{kTitle, "Invoice: [%s]\n"},
                          {kWanted, "Item %d needs %s"},
                          {kPossible, "Item %d may have %s"},
                          {kMore, "%s is more than %s"},
                          {kLess, "%2$s is more than %1$s"}});
  EXPECT_EQ(allMessages(),
            (Texts{"1 T_ITEMDATAQUANTITYMORETHAN 6 is more than 5", "1 T_ITEMDATAWANTED Item 1 needs Megjegyzés",
                   "0 T_ITEMDATAWANTED Item 1 may have Szín", "1 T_ITEMDATAQUANTITYLESSTHAN 5 is more than 4"}));
}

TEST_F(TranslationTest, checkMessagesAreNotLookedUpInThePluginsCatalogue) {
  const Texts hungarian = allMessages();
  ASSERT_EQ(hungarian.size(), 4u);
  install(kPluginDomain,
          {{kTitle, "wrong\n"}, {kWanted, "wrong"}, {kPossible, "wrong"}, {kMore, "wrong"}, {kLess, "wrong"}});
  bindtextdomain(kPluginDomain, catalogs_.path().c_str());
  EXPECT_EQ(allMessages(), hungarian);
}

TEST_F(TranslationTest, titlesAreTranslatedToo) {
  install("host-domain", {{kTitle, "Invoice items [%s]\n"}});
  PluginWorld world;
  const std::unique_ptr<Invoice> invoice = newInvoice();
  world.addSofa(*invoice, "5", "", {{"5", "S1", "kék"}});
  Brontel::ListOfMessage messages;
  world.plugins().checkInvoice(nullptr, invoice.get(), messages, "T");
  ASSERT_EQ(messages.no(), 1);
  EXPECT_STREQ(messages[0]->getTitle().text(), "Invoice items [2024/1]\n");
  delete messages[0];
}
