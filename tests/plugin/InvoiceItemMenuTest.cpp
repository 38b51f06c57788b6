#include <type_traits>

#include "host/plugin/PluginRegistry.h"
#include "host/ui/InvoiceItemTable.h"
#include "plugin/InvoiceItemMenu.h"
#include "tests/plugin/FormFixture.h"
#include "tests/support/RecordingObserver.h"
#include "tests/support/TestDatabase.h"
#include "ui/ItemDataTable.h"

using Brontel::Invoice;
using Brontel::InvoiceItem;
using Brontel::InvoiceItemTable;
using Brontel::Plugin::InvoiceItemMenuPlugin;
using Brontel::Plugin::ItemData::InvoiceItemMenu;
using FX::FXint;

static_assert(std::is_base_of_v<InvoiceItemMenuPlugin, InvoiceItemMenu>);
static_assert(sizeof(InvoiceItemMenu) == sizeof(InvoiceItemMenuPlugin), "it keeps nothing of its own");

namespace {

/// Reaches what the base keeps for its subclasses.
struct Base : InvoiceItemMenuPlugin {
  static const void* dataOf(const InvoiceItemMenuPlugin& menu) { return menu.*(&Base::data_); }
};

/// Five items in the form's table, of which the first has data, and the table's menu.
class InvoiceItemMenuTest : public FormFixture {
 protected:
  explicit InvoiceItemMenuTest(MorvaneDatabase* database = nullptr) : FormFixture(database) {
    for (const char* name : {"1", "2", "3", "4"}) {
      auto* further = new InvoiceItem;
      further->setName(name);
      invoice.appendItem(further);
    }
    registry.add(&container);
    table = new InvoiceItemTable(form, form, nullptr, 0, FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y);
    table->setTableSize(5, 2);
    pane.reset(table->createMenu(registry));
    show();
  }

  /// Chooses the entry and closes each dialog that comes; their titles in order.
  Texts choose(size_t expected) {
    Texts titles;
    const int before = form->proposals;
    for (size_t i = 0; i < expected; ++i) {
      user.whenModal([this, &titles, i, before](FX::FXWindow& modal) {
        auto& dialog = dynamic_cast<ItemDataDialog&>(modal);
        titles.emplace_back(dialog.getTitle().text());
        EXPECT_EQ(dialog.getOwner(), form);
        EXPECT_EQ(dialogs().size(), 1u) << "the one before is still there";
        EXPECT_EQ(form->proposals, before);
        // However it ends, the next one comes.
        i % 2 == 0 ? cancel(modal) : accept(modal);
      });
    }
    EXPECT_EQ(menu().onCmdMenuItem(entry(), 0, nullptr), 1);
    EXPECT_EQ(user.scriptsLeft(), 0u);
    EXPECT_EQ(dialogs().size(), 0u);
    return titles;
  }

  InvoiceItemMenu& menu() { return *dynamic_cast<InvoiceItemMenu*>(container.getModules()[2]); }
  FX::FXMenuCommand* entry() { return dynamic_cast<FX::FXMenuCommand*>(pane->getFirst()); }
  static Texts titlesOf(const Texts& names) {
    Texts titles;
    for (const std::string& name : names) titles.push_back(name + " egyéb tételadatai");
    return titles;
  }

  Brontel::Plugin::PluginRegistry registry;
  InvoiceItemTable* table;
  std::unique_ptr<FX::FXMenuPane> pane;
};

}  // namespace

TEST_F(InvoiceItemMenuTest, isAnEntryWithoutKeyAndHelp) {
  EXPECT_STREQ(menu().getLabel().text(),
               "Egy\xC3\xA9"
               "b t\xC3\xA9teladatok...\t\t");
  EXPECT_EQ(Base::dataOf(menu()), nullptr);
  EXPECT_STREQ(entry()->getText().text(), "Egyéb tételadatok...");
  EXPECT_STREQ(entry()->getAccelText().text(), "");
  EXPECT_STREQ(entry()->getHelpText().text(), "");
}

TEST_F(InvoiceItemMenuTest, isEnabledWhateverIsSelected) {
  entry()->disable();
  EXPECT_EQ(menu().onUpdMenuItem(entry(), 0, nullptr), 1);
  EXPECT_TRUE(entry()->isEnabled());
  table->setTableSize(0, 0);
  entry()->disable();
  EXPECT_EQ(menu().handle(entry(), FXSEL(FX::SEL_UPDATE, InvoiceItemMenuPlugin::ID_MENU_ITEM), nullptr), 1);
  EXPECT_TRUE(entry()->isEnabled());
}

TEST_F(InvoiceItemMenuTest, opensADialogForEachSelectedRow) {
  table->selectRange(2, 4, 0, 1);
  EXPECT_EQ(choose(3), titlesOf({"2", "3", "4"}));
  EXPECT_EQ(form->proposals, 1);
}

TEST_F(InvoiceItemMenuTest, aSelectionCountsByItsRows) {
  table->setCurrentItem(0, 0);
  table->selectRange(1, 2, 1, 1);
  EXPECT_EQ(choose(2), titlesOf({"1", "2"}));
}

TEST_F(InvoiceItemMenuTest, theCurrentRowCountsOnlyWithoutSelection) {
  table->setCurrentItem(0, 0);
  table->selectRange(2, 2, 0, 1);
  EXPECT_EQ(choose(1), titlesOf({"2"}));
  table->killSelection();
  table->setCurrentItem(1, 1);
  EXPECT_EQ(choose(1), titlesOf({"1"}));
}

TEST_F(InvoiceItemMenuTest, onlyProposesTheCheckWithoutAnyRow) {
  table->setTableSize(5, 2);
  ASSERT_EQ(table->getCurrentRow(), -1);
  EXPECT_EQ(choose(0), Texts());
  EXPECT_EQ(form->proposals, 1);
}

TEST_F(InvoiceItemMenuTest, onlyProposesTheCheckForARangeTurnedRound) {
  struct OddTable : InvoiceItemTable {
    using InvoiceItemTable::InvoiceItemTable;
    void turn() {
      selection.fm.row = 3;
      selection.to.row = 1;
    }
  };
  auto* odd = new OddTable(form, form);
  odd->setTableSize(5, 1);
  odd->turn();
  ASSERT_EQ(odd->getSelStartRow(), 3);
  const std::unique_ptr<FX::FXMenuPane> oddPane(odd->createMenu(registry));
  EXPECT_EQ(menu().onCmdMenuItem(oddPane->getFirst(), 0, nullptr), 1);
  EXPECT_EQ(form->proposals, 1);
}

TEST_F(InvoiceItemMenuTest, passesOverRowsWithoutItem) {
  invoice.removeItem(4);
  table->selectRange(2, 4, 0, 1);
  EXPECT_EQ(choose(2), titlesOf({"2", "3"}));
  EXPECT_EQ(form->proposals, 1);
}

TEST_F(InvoiceItemMenuTest, itemsWithoutVariablesGetADialogToo) {
  invoice.getItems()[3]->setGoods(Brontel::GOODS_NONE, 0);
  table->selectRow(3);
  user.whenModal([](FX::FXWindow& modal) {
    EXPECT_TRUE(descendantsOf<FX::FXTable>(&modal).empty());
    EXPECT_EQ(descendantsOf<FX::FXButton>(&modal).size(), 1u);
    cancel(modal);
  });
  EXPECT_EQ(menu().onCmdMenuItem(entry(), 0, nullptr), 1);
}

TEST_F(InvoiceItemMenuTest, leavesSelectionAndItemsAsTheyAre) {
  table->selectRange(1, 2, 0, 1);
  table->setCurrentItem(4, 0);
  choose(2);
  EXPECT_EQ(table->getSelStartRow(), 1);
  EXPECT_EQ(table->getSelEndRow(), 2);
  EXPECT_EQ(table->getCurrentRow(), 4);
  EXPECT_EQ(invoice.getItems().no(), 5);
}

TEST_F(InvoiceItemMenuTest, anItemThatGoesMeanwhileGetsNoDialog) {
  table->selectRange(3, 4, 0, 1);
  user.whenModal([this](FX::FXWindow& modal) {
    invoice.removeItem(4);
    accept(modal);
  });
  EXPECT_EQ(menu().onCmdMenuItem(entry(), 0, nullptr), 1);
  EXPECT_EQ(form->proposals, 1);
}

TEST_F(InvoiceItemMenuTest, withoutInvoiceOnlyProposesTheCheck) {
  form->invoice = nullptr;
  table->selectRow(1);
  EXPECT_EQ(choose(0), Texts());
  EXPECT_EQ(form->proposals, 1);
}

TEST_F(InvoiceItemMenuTest, doesNothingForWhomIsNotInItsTable) {
  EXPECT_EQ(menu().onCmdMenuItem(nullptr, 0, nullptr), 1);
  EXPECT_EQ(menu().onCmdMenuItem(&invoice, 0, nullptr), 1);
  EXPECT_EQ(menu().onCmdMenuItem(form, 0, nullptr), 1);
  auto* foreign = new FX::FXTable(form);
  const auto foreignPane = std::make_unique<FX::FXMenuPane>(foreign);
  EXPECT_EQ(menu().onCmdMenuItem(new FX::FXMenuCommand(foreignPane.get(), "foreign"), 0, nullptr), 1);
  auto* formless = new InvoiceItemTable(form, nullptr);
  const std::unique_ptr<FX::FXMenuPane> formlessPane(formless->createMenu(registry));
  EXPECT_EQ(menu().onCmdMenuItem(formlessPane->getFirst(), 0, nullptr), 1);
  EXPECT_EQ(form->proposals, 0);
}

TEST_F(InvoiceItemMenuTest, opensNothingOverAFormThatIsNotOnTheScreen) {
  Form hidden(app.get(), &invoice);
  auto* its = new InvoiceItemTable(&hidden, &hidden);
  its->setTableSize(5, 1);
  its->selectRow(0);
  const std::unique_ptr<FX::FXMenuPane> hiddenPane(its->createMenu(registry));
  EXPECT_EQ(menu().onCmdMenuItem(hiddenPane->getFirst(), 0, nullptr), 1);
  EXPECT_EQ(hidden.proposals, 1);
}

TEST_F(InvoiceItemMenuTest, isChosenWithTheMouse) {
  pane->create();
  table->selectRow(0);
  pane->popup(nullptr, 200, 150);
  user.settle();
  user.whenModal([this](FX::FXWindow& modal) {
    auto* rows = descendantsOf<Brontel::Plugin::ItemData::UI::ItemDataTable>(&modal).front();
    rows->setFocus();
    user.settle();
    user.type("S1");
    for (FX::FXButton* button : descendantsOf<FX::FXButton>(&modal)) {
      if (button->getTarget() == &modal) user.click(button);
    }
  });
  user.click(entry());
  EXPECT_EQ(user.scriptsLeft(), 0u);
  EXPECT_EQ(form->proposals, 1);
  EXPECT_EQ(cellsOf(*Brontel::Plugin::ItemData::ItemDataList::of(&item)),
            (Texts{"11/0=", "-1/1=5", "12/1=S1", "13/1="}));
}

TEST(InvoiceItemMenuSavingTest, nothingRunsOnTheDatabase) {
  struct Fixture : InvoiceItemMenuTest {
    explicit Fixture(MorvaneDatabase* handle) : InvoiceItemMenuTest(handle) {}
    void TestBody() override {
      table->selectRow(0);
      EXPECT_EQ(choose(1).size(), 1u);
    }
  };
  TestDatabase database;
  const RecordingObserver recorder(database.handle());
  Fixture(database.get()).TestBody();
  EXPECT_EQ(recorder.texts(), std::vector<std::string>());
}
