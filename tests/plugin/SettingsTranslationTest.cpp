// In which catalogue the texts of the settings dialog and the association panel are looked up.

#include "fxext/widgets/FXDualList.h"
#include "host/ui/ProductDataWindow.h"
#include "tests/plugin/WindowFixture.h"
#include "tests/support/MessageCatalog.h"
#include "tests/support/SpokenLanguage.h"
#include "tests/support/TemporaryDirectory.h"

using FX::FXWindow;

namespace {

constexpr const char* kPluginDomain = "BrontelPluginItemData";
constexpr const char* kHostDomain = "host-domain";

using Translations = std::vector<std::pair<const char*, const char*>>;

/// Of the host's catalogue.
const Translations kHosts = {{"Bejövő", "Incoming"},
                             {"Kimenő", "Outgoing"},
                             {"Választható mezők", "Available"},
                             {"Kiválasztott mezők", "Chosen"}};
/// Of the plug-in's.
const Translations kPlugins = {{"Név", "Name"},
                               {"Típus", "Type"},
                               {"Egységenként rögzítendő", "Per unit"},
                               {"Kötelező", "Mandatory"},
                               {"Paraméter", "Parameter"},
                               {"1\tSzöveg\n2\tDátum\n3\tLista", "1\tText\n2\tDate\n3\tList"},
                               {"Törlés a táblázatból", "Deleting"},
                               {"Biztos, hogy törli a kijelölt sorokat?", "100% sure?"},
                               {"A lista elemei hiányosak!", "Incomplete!"},
                               {"Kérem töltse ki a hiányzó adatokat!", "Fill in %s!"},
                               {"Tételadatok", "Item data"}};

class SettingsTranslationTest : public WindowFixture {
 protected:
  SettingsTranslationTest() {
    database.exec("insert into t_itemvariable (t_itemvariable_id, name, type) values (1, 'a', 3)");
  }

  void install(const char* domain, const Translations& texts) {
    MessageCatalog catalog;
    for (const auto& [text, translation] : texts) catalog.add(text, translation);
    ASSERT_TRUE(catalog.install(catalogs.path(), "en", domain));
  }

  /// Headers, the shown type, and the two boxes.
  Texts settingsTexts() {
    Texts texts;
    const auto box = [&](FXWindow* window) {
      texts.push_back(boxTitle(window) + " " + boxText(window));
      answer(window, texts.size() == 7 ? FX::FXMessageBox::ID_CLICKED_OK : FX::FXMessageBox::ID_CLICKED_NO);
    };
    openSettings({[&](FXWindow* dialog) {
                    Brontel::DBTable& table = tableOf(dialog);
                    for (int i = 0; i < 5; ++i) texts.emplace_back(table.getColumnText(i).text());
                    texts.emplace_back(table.getItemText(0, 1).text());
                    accept(dialog);
                    table.selectRow(0);
                    dialog->handle(nullptr, FXSEL(FX::SEL_COMMAND, Panel::ID_DELETE), nullptr);
                    cancel(dialog);
                  },
                  box, box});
    return texts;
  }
  /// The panel's name and titles.
  Texts panelTexts() {
    auto* window = new Brontel::ProductDataWindow(application.get(), "");
    EXPECT_EQ(window->open(database.handle(), registry, 0), Brontel::GoodsRepository::Result::Done);
    window->create();
    Texts texts{descendantsOf<FX::FXTabItem>(window).at(1)->getText().text()};
    for (const FX::FXGroupBox* group : descendantsOf<FX::FXGroupBox>(window)) {
      texts.emplace_back(group->getText().text());
      for (const FX::FXLabel* label : descendantsOf<FX::FXLabel>(group)) texts.emplace_back(label->getText().text());
    }
    return texts;
  }

  TemporaryDirectory catalogs;
  SpokenLanguage english{"en", catalogs.path(), {kHostDomain, kPluginDomain}};
};

}  // namespace

TEST_F(SettingsTranslationTest, eachTextHasItsCatalogue) {
  install(kHostDomain, kHosts);
  install(kPluginDomain, kPlugins);
  EXPECT_EQ(settingsTexts(), (Texts{"Name", "Type", "Per unit", "Mandatory", "Parameter", "List",
                                    "Incomplete! Fill in %s!", "Deleting 100% sure?"}));
  EXPECT_EQ(panelTexts(), (Texts{"Item data", "Incoming", "Available", "Chosen", "Outgoing", "Available", "Chosen"}));
}

TEST_F(SettingsTranslationTest, noneIsLookedUpInTheOther) {
  install(kHostDomain, kPlugins);
  install(kPluginDomain, kHosts);
  EXPECT_EQ(settingsTexts(), (Texts{"Név", "Típus", "Egységenként rögzítendő", "Kötelező", "Paraméter", "Lista",
                                    "A lista elemei hiányosak! Kérem töltse ki a hiányzó adatokat!",
                                    "Törlés a táblázatból Biztos, hogy törli a kijelölt sorokat?"}));
  EXPECT_EQ(panelTexts(), (Texts{"Tételadatok", "Bejövő", "Választható mezők", "Kiválasztott mezők", "Kimenő",
                                 "Választható mezők", "Kiválasztott mezők"}));
}
