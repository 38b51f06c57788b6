// Which catalogue each text comes from.

#include "itemdata/Codes.h"
#include "itemdata/ItemDataListLoader.h"
#include "tests/itemdata/ListFixture.h"
#include "tests/support/MessageCatalog.h"
#include "tests/support/SpokenLanguage.h"
#include "tests/support/TemporaryDirectory.h"

using namespace Brontel::Plugin::ItemData;
using Texts = std::vector<std::string>;

namespace {

const char* const kWanted = "A(z) %d. tételhez rögzíteni kell néhány egyéb adatot!\nMező neve:%s";
const char* const kWelcome = "A(z) %d. tételhez lehet rögzíteni néhány egyéb adatot!\nMező neve:%s";
const char* const kMore = "Egyéb tételadatok: Az összmennyiség (%s) több, mint a tétellistában megadott (%s).";
const char* const kLess = "Egyéb tételadatok: Az összmennyiség (%s) kevesebb, mint a tétellistában megadott (%s).";
const char* const kTitle = "Számla: Tételek listája\n[%s]\n";

/// Catalogues of the host's and of the plug-in's domain.
class TextDomainTest : public ListFixture {
 protected:
  void install(const MessageCatalog& catalog, const char* domain) {
    ASSERT_TRUE(catalog.install(directory.path(), "xx", domain));
  }

  /// The host's catalogue has this text for each of the check's, the plug-in's has another.
  void installChecks(const std::string& wanted, const std::string& quantity) {
    MessageCatalog host;
    MessageCatalog plugin;
    for (const char* text : {kWanted, kWelcome}) host.add(text, wanted);
    for (const char* text : {kMore, kLess}) host.add(text, quantity);
    host.add(kTitle, "Title [%s]\n");
    host.add("Mennyiség", "host's");
    for (const char* text : {kWanted, kWelcome, kMore, kLess}) plugin.add(text, "plug-in's");
    plugin.add(kTitle, "plug-in's\n");
    plugin.add("Mennyiség", "Quantité");
    install(host, "brontel-host");
    install(plugin, kTextDomain);
  }

  Texts checked() {
    ItemDataList& list = newListOf(newTemplate());
    addRow(list, 1, "9", "S1", "");
    Messages messages;
    list.check(3, messages, "P");
    return messages.texts();
  }

  TemporaryDirectory directory;
  SpokenLanguage language{"xx", directory.path(), {"brontel-host", kTextDomain}};
};

}  // namespace

TEST_F(TextDomainTest, theQuantityIsNamedByThePlugIn) {
  installChecks("", "");
  ItemDataList list;
  ItemDataListLoader loader(list, nullptr);
  int column = 0;
  for (const char* value : {"1", "0", "12", "Sarzs", "1", "1", ""}) loader.processValue(column++, "c", value);
  ASSERT_EQ(list.no(), 2);
  EXPECT_STREQ(list[0]->name.text(), "Quantité");
  EXPECT_STREQ(list[1]->name.text(), "Sarzs");
}

TEST_F(TextDomainTest, checksSpeakTheHostsLanguage) {
  installChecks("item %d: %s", "%s against %s");
  EXPECT_EQ(checked(), (Texts{"P_ITEMDATAQUANTITYMORETHAN 1 9 against 5", "P_ITEMDATAWANTED 1 item 3: Megjegyzés",
                              "P_ITEMDATAWANTED 0 item 3: Szín"}));
  Messages messages;
  newListOf(newTemplate()).check(1, messages, "P");
  EXPECT_EQ(messages.texts()[0], "P_ITEMDATAQUANTITYLESSTHAN 1 0 against 5");
  EXPECT_STREQ(messages[0]->getTitle().text(), "Title [A-1]\n");
  EXPECT_STREQ(messages[1]->getTitle().text(), "Title [A-1]\n");
}

TEST_F(TextDomainTest, aTranslationMayPutTheValuesInAnotherOrder) {
  installChecks("%2$s of %1$d", "%2$s, not %1$s");
  EXPECT_EQ(checked()[0], "P_ITEMDATAQUANTITYMORETHAN 1 5, not 9");
  EXPECT_EQ(checked()[1], "P_ITEMDATAWANTED 1 Megjegyzés of 3");
}

TEST_F(TextDomainTest, aFaultyTranslationDoesNoHarm) {
  installChecks("%s%n%d%s%999$s%", "%d %s %n %s %*d %");
  EXPECT_EQ(checked()[0], "P_ITEMDATAQUANTITYMORETHAN 1 9 5 %n %s %*d %");
  EXPECT_EQ(checked()[1], "P_ITEMDATAWANTED 1 3%nMegjegyzés%s%999$s%");
}

TEST_F(TextDomainTest, withoutCataloguesTextsAreHungarian) {
  Messages messages;
  newListOf(newTemplate()).check(1, messages, "P");
  EXPECT_EQ(messages.summary(), (Texts{"less", "must Megjegyzés"}));
}
