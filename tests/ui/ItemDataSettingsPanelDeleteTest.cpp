#include <fxkeys.h>

#include "tests/ui/SettingsFixture.h"

using Brontel::Plugin::ItemData::ItemDataSettingsPanel;
using FX::FXWindow;

// Which variables can be deleted, and how.

namespace {

/// Notes what it is told, as the button behind a command.
class Sender : public FX::FXObject {
 public:
  long handle(FX::FXObject*, FX::FXSelector sel, void*) override {
    if (sel == FXSEL(FX::SEL_COMMAND, FXWindow::ID_ENABLE)) told += "+";
    if (sel == FXSEL(FX::SEL_COMMAND, FXWindow::ID_DISABLE)) told += "-";
    return 1;
  }

  std::string told;
};

class ItemDataSettingsPanelDeleteTest : public SettingsFixture {
 protected:
  ItemDataSettingsPanelDeleteTest() : panel(&container, application.get()) {
    storeVariables();
    database.exec("insert into t_product (t_product_id) values (1)");
    database.exec("insert into t_service (t_service_id) values (1)");
    database.exec("insert into t_suite (t_suite_id) values (1)");
    panel.create();
    panel.resize(600, 400);
  }

  DBTable& table() { return *panel.getTable(); }
  /// What the sender of the delete command hears when that row is the current one.
  std::string enabledAt(int row) {
    table().setCurrentItem(row, 0);
    Sender sender;
    EXPECT_EQ(panel.handle(&sender, FXSEL(FX::SEL_UPDATE, 90), nullptr), 1);
    return sender.told;
  }
  /// Deletes the selected rows and answers the question.
  void deleteSelected(FX::FXuint reply) {
    user.run([&] { panel.handle(nullptr, FXSEL(FX::SEL_COMMAND, 90), nullptr); }, {[reply](FXWindow* box) {
               EXPECT_EQ(boxTitle(box), "Törlés a táblázatból");
               EXPECT_EQ(boxText(box), "Biztos, hogy törli a kijelölt sorokat?");
               answer(box, reply);
             }});
  }
  void save() {
    ItemDataSettingsPersister persister(database.get());
    panel.save(&persister);
  }
  static void yes(FXWindow* box) { answer(box, FX::FXMessageBox::ID_CLICKED_YES); }
  static void cancel(FXWindow* dialog) {
    dialog->handle(nullptr, FXSEL(FX::SEL_COMMAND, FX::FXDialogBox::ID_CANCEL), nullptr);
  }
  Texts rows() {
    Texts texts;
    for (int row = 0; row < table().getNumRows(); ++row) texts.emplace_back(table().getRowText(row).text());
    return texts;
  }

  ItemDataSettingsPanel panel;
};

constexpr FX::FXuint kYes = FX::FXMessageBox::ID_CLICKED_YES;

constexpr const char* kUses =
    "select count(*) from t_itemvariable left join t_productitemdata pid on t_itemvariable_id=pid.t_itemvariable_1 "
    "left join t_serviceitemdata sid on t_itemvariable_id=sid.t_itemvariable_1 left join t_suiteitemdata suid on "
    "t_itemvariable_id=suid.t_itemvariable_1 where pid.t_itemvariable_1=%id or sid.t_itemvariable_1=%id or "
    "suid.t_itemvariable_1=%id; [id=2]";

}  // namespace

TEST_F(ItemDataSettingsPanelDeleteTest, asksTheDatabaseOncePerCurrentRow) {
  const RecordingObserver recorder(database.handle());
  EXPECT_EQ(enabledAt(1), "+");
  EXPECT_EQ(enabledAt(1), "+");
  EXPECT_EQ(recorder.texts(), Texts{kUses});
  enabledAt(0);
  EXPECT_EQ(recorder.records().size(), 2u);
}

TEST_F(ItemDataSettingsPanelDeleteTest, isImpossibleForAVariableOfAnyGoods) {
  for (const char* kind : {"product", "service", "suite"}) {
    const std::string table = std::string("t_") + kind + "itemdata";
    database.exec("insert into " + table + " (t_" + kind + "_1, t_itemvariable_1) values (1, 2)");
    EXPECT_EQ(enabledAt(0), "+") << kind;
    EXPECT_EQ(enabledAt(1), "-") << kind;
    database.exec("delete from " + table);
  }
}

TEST_F(ItemDataSettingsPanelDeleteTest, isPossibleForARecordedVariableWhoseValuesStay) {
  database.exec("insert into t_invoice (t_invoice_id) values (1)");
  database.exec("insert into t_invoiceitem (t_invoiceitem_id, t_invoice_1) values (1, 1)");
  database.exec("insert into t_invoiceitemdata (t_itemvariable_1, t_invoiceitem_1, row, value) values (2, 1, 0, 'x')");
  EXPECT_EQ(enabledAt(1), "+");
  table().selectRow(1);
  deleteSelected(kYes);
  save();
  EXPECT_EQ(variables().size(), 2u);
  EXPECT_EQ(database.rows("select t_itemvariable_1, value from t_invoiceitemdata"),
            (std::vector<Texts>{{"NULL", "x"}}));
}

TEST_F(ItemDataSettingsPanelDeleteTest, looksAtTheCurrentRowOnly) {
  database.exec("insert into t_productitemdata (t_product_1, t_itemvariable_1) values (1, 1)");
  table().selectRange(0, 1, 0, 4);
  EXPECT_EQ(enabledAt(1), "+");
  deleteSelected(kYes);
  EXPECT_EQ(rows(), Texts{"3"});
  save();
  EXPECT_EQ(variables(), Texts{"3 Szín 3 0 1 piros,kék"});
}

TEST_F(ItemDataSettingsPanelDeleteTest, tellsTheSenderNothingWithoutACurrentRow) {
  table().setCurrentItem(-1, -1);
  Sender sender;
  EXPECT_EQ(panel.handle(&sender, FXSEL(FX::SEL_UPDATE, 90), nullptr), 1);
  EXPECT_EQ(sender.told, "");
  EXPECT_EQ(panel.handle(nullptr, FXSEL(FX::SEL_UPDATE, 90), nullptr), 1);
}

TEST_F(ItemDataSettingsPanelDeleteTest, isPossibleForANewRow) {
  EXPECT_EQ(enabledAt(table().appendNewRow()), "+");
}

TEST_F(ItemDataSettingsPanelDeleteTest, asksNothingWithoutASelection) {
  table().setCurrentItem(1, 0);
  panel.handle(nullptr, FXSEL(FX::SEL_COMMAND, 90), nullptr);
  EXPECT_EQ(table().getNumRows(), 3);
}

TEST_F(ItemDataSettingsPanelDeleteTest, changesNothingUnlessTheAnswerIsYes) {
  table().selectRow(1);
  deleteSelected(FX::FXMessageBox::ID_CLICKED_NO);
  user.run([&] { panel.handle(nullptr, FXSEL(FX::SEL_COMMAND, 90), nullptr); },
           {[](FXWindow* box) { box->handle(nullptr, FXSEL(FX::SEL_CLOSE, 0), nullptr); }});
  EXPECT_EQ(rows(), (Texts{"1", "2", "3"}));
  EXPECT_TRUE(table().getDeletedIds().empty());
}

TEST_F(ItemDataSettingsPanelDeleteTest, forgetsNewRowsAndRemembersStoredOnes) {
  table().appendNewRow();
  table().selectRange(1, 3, 0, 0);
  deleteSelected(kYes);
  EXPECT_EQ(rows(), Texts{"1"});
  EXPECT_EQ(table().getDeletedIds(), (std::vector<int>{2, 3}));
  EXPECT_EQ(variables().size(), 3u) << "nothing before save";
  const RecordingObserver recorder(database.handle());
  save();
  EXPECT_EQ(recorder.records().size(), 2u);
  EXPECT_EQ(variables().size(), 1u);
}

TEST_F(ItemDataSettingsPanelDeleteTest, doesNotCheckRemovedRows) {
  fill(table(), table().appendNewRow(), {"bad"});
  table().selectRow(3);
  deleteSelected(kYes);
  user.run([&] { EXPECT_EQ(panel.execute(FX::PLACEMENT_CURSOR), 1u); }, {[](FXWindow* dialog) {
             dialog->handle(nullptr, FXSEL(FX::SEL_COMMAND, FX::FXDialogBox::ID_ACCEPT), nullptr);
           }});
}

TEST_F(ItemDataSettingsPanelDeleteTest, worksByKey) {
  database.exec("insert into t_productitemdata (t_product_1, t_itemvariable_1) values (1, 1)");
  const auto work = [&](FXWindow* dialog) {
    user.giveKeyboardTo(dialog);
    user.clickCell(panel.getTable(), 0, 0);
    user.key(FX::KEY_Delete);
    EXPECT_EQ(rows(), (Texts{"1", "2", "3"})) << "it belongs to a product";
    user.key(FX::KEY_Down);
    user.key(FX::KEY_Delete);
    EXPECT_EQ(rows(), (Texts{"1", "3"}));
    cancel(dialog);
  };
  user.run([&] { panel.execute(FX::PLACEMENT_CURSOR); }, {work, yes});
}

TEST_F(ItemDataSettingsPanelDeleteTest, worksByButton) {
  database.exec("insert into t_productitemdata (t_product_1, t_itemvariable_1) values (1, 1)");
  const auto work = [&](FXWindow* dialog) {
    user.giveKeyboardTo(dialog);
    FX::FXButton* button = nullptr;
    for (FX::FXButton* each : descendantsOf<FX::FXButton>(dialog)) {
      if (each->getText() == "Törlés") button = each;
    }
    ASSERT_NE(button, nullptr);
    user.clickCell(panel.getTable(), 0, 0);
    EXPECT_FALSE(button->isEnabled());
    user.clickCell(panel.getTable(), 2, 0);
    EXPECT_TRUE(button->isEnabled());
    user.click(button);
    EXPECT_EQ(rows(), (Texts{"1", "2"}));
    cancel(dialog);
  };
  user.run([&] { panel.execute(FX::PLACEMENT_CURSOR); }, {work, yes});
}

TEST_F(ItemDataSettingsPanelDeleteTest, theMenuIsAboutTheRowUnderThePointer) {
  database.exec("insert into t_productitemdata (t_product_1, t_itemvariable_1) values (1, 1)");
  Texts after;
  const auto work = [&](FXWindow* dialog) {
    user.giveKeyboardTo(dialog);
    user.clickCell(panel.getTable(), 0, 0);
    user.clickCell(panel.getTable(), 2, 1, 3);
    after = rows();
    cancel(dialog);
  };
  const auto menu = [&](FXWindow* pane) {
    user.settle();
    const auto entries = descendantsOf<FX::FXMenuCommand>(pane);
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_TRUE(entries[1]->isEnabled());
    EXPECT_EQ(panel.getTable()->getCurrentRow(), 2);
    user.click(entries[1]);
  };
  user.run([&] { panel.execute(FX::PLACEMENT_CURSOR); }, {work, menu, yes});
  EXPECT_EQ(after, (Texts{"1", "2"}));
}
