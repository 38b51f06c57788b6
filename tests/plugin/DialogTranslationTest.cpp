// In which catalogue the texts of the dialog, its table and the item menu are looked up.

#include "plugin/InvoiceItemMenu.h"
#include "tests/plugin/FormFixture.h"
#include "tests/support/MessageCatalog.h"
#include "tests/support/SpokenLanguage.h"
#include "tests/support/TemporaryDirectory.h"

namespace {

constexpr const char* kPluginDomain = "BrontelPluginItemData";
constexpr const char* kHostDomain = "host-domain";

using Translations = std::vector<std::pair<const char*, const char*>>;

/// Of the host's catalogue.
const Translations kHosts = {{"%s egyéb tételadatai", "Other data of %s"}, {"&OK", "&Done"}};
/// Of the plug-in's.
const Translations kPlugins = {{"&Új sor\tIns", "&New row\tIns"},
                               {"&Törlés\tDel", "&Delete\tDel"},
                               {"Egyéb tételadatok...\t\t", "Other item data...\t\t"}};

class DialogTranslationTest : public FormFixture {
 protected:
  void install(const char* domain, const Translations& texts) {
    MessageCatalog catalog;
    for (const auto& [text, translation] : texts) catalog.add(text, translation);
    ASSERT_TRUE(catalog.install(catalogs.path(), "en", domain));
  }

  /// Title, button and menu of the dialog, and the entry of the item menu.
  Texts texts() {
    app.create();
    const ItemDataDialog dialog(form, &item);
    Texts found = {dialog.getTitle().text()};
    for (const FX::FXButton* button : descendantsOf<FX::FXButton>(&dialog)) {
      if (button->getTarget() == &dialog) found.emplace_back(button->getText().text());
    }
    for (FX::FXWindow* child = app->getRootWindow()->getFirst(); child != nullptr; child = child->getNext()) {
      if (child->getOwner() != &dialog) continue;
      for (const auto* command : descendantsOf<FX::FXMenuCommand>(child)) {
        found.push_back(std::string(command->getText().text()) + " " + command->getAccelText().text());
      }
    }
    found.emplace_back(Brontel::Plugin::ItemData::InvoiceItemMenu(nullptr).getLabel().text());
    return found;
  }

  TemporaryDirectory catalogs;
  SpokenLanguage english{"en", catalogs.path(), {kHostDomain, kPluginDomain}};
};

}  // namespace

TEST_F(DialogTranslationTest, eachTextHasItsCatalogue) {
  install(kHostDomain, kHosts);
  install(kPluginDomain, kPlugins);
  EXPECT_EQ(texts(), (Texts{"Other data of 0", "Done", "New row Ins", "Delete Del", "Other item data...\t\t"}));
}

TEST_F(DialogTranslationTest, noneIsLookedUpInTheOther) {
  install(kHostDomain, kPlugins);
  install(kPluginDomain, kHosts);
  EXPECT_EQ(texts(), (Texts{"0 egyéb tételadatai", "OK", "Új sor Ins", "Törlés Del", "Egyéb tételadatok...\t\t"}));
}
