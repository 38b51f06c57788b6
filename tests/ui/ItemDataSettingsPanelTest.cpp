#include <type_traits>

#include <fxkeys.h>

#include "tests/ui/SettingsFixture.h"

using Brontel::Plugin::ItemData::ItemDataSettingsPanel;
using Brontel::Plugin::UI::PluginSettingsDialogBox;
using FX::FXWindow;

static_assert(std::is_base_of_v<PluginSettingsDialogBox, ItemDataSettingsPanel>);

// What the dialog shows, and how it is filled in and accepted.

namespace {

class ItemDataSettingsPanelTest : public SettingsFixture {
 protected:
  ItemDataSettingsPanelTest() { storeVariables(); }

  static void accept(FXWindow* dialog) {
    dialog->handle(nullptr, FXSEL(FX::SEL_COMMAND, FX::FXDialogBox::ID_ACCEPT), nullptr);
  }
  static void cancel(FXWindow* dialog) {
    dialog->handle(nullptr, FXSEL(FX::SEL_COMMAND, FX::FXDialogBox::ID_CANCEL), nullptr);
  }
  /// Runs the dialog with rows instead of those that are stored, accepts it, and gives what became of it. A box that
  /// refuses them is answered, and then the dialog is cancelled.
  std::string acceptWith(const std::vector<Texts>& rows) {
    ItemDataSettingsPanel panel(&container, application.get());
    std::string outcome = "accepted";
    const auto work = [&](FXWindow* dialog) {
      DBTable& table = *panel.getTable();
      table.setTableSize(0, 5);
      for (const Texts& values : rows) fill(table, table.appendNewRow(), values);
      accept(dialog);
      if (!dialog->shown()) return;
      outcome = std::to_string(table.getCurrentRow()) + "/" + std::to_string(table.getCurrentColumn());
      EXPECT_TRUE(table.hasFocus());
      EXPECT_TRUE(table.isItemSelected(table.getCurrentRow(), table.getCurrentColumn()));
      for (size_t i = 0; i < rows.size(); ++i) {
        for (size_t column = 0; column < rows[i].size(); ++column) {
          EXPECT_EQ(rows[i][column], table.getStoredValue(static_cast<int>(i), static_cast<int>(column)).text());
        }
      }
      cancel(dialog);
    };
    const auto box = [](FXWindow* window) {
      EXPECT_EQ(boxTitle(window), "A lista elemei hiányosak!");
      EXPECT_EQ(boxText(window), "Kérem töltse ki a hiányzó adatokat!");
      answer(window, FX::FXMessageBox::ID_CLICKED_OK);
    };
    FX::FXuint result = 0;
    std::vector<DialogUser::Step> steps{work};
    if (expectRefusal) steps.emplace_back(box);
    user.run([&] { result = panel.execute(FX::PLACEMENT_CURSOR); }, steps);
    EXPECT_EQ(result, outcome == "accepted" ? 1u : 0u);
    return outcome;
  }

  bool expectRefusal = false;
};

constexpr const char* kLoad =
    "select t_itemvariable_id, name, type, process, mandatory, vvalue from t_itemvariable where type < 100 and type>0;";

}  // namespace

TEST_F(ItemDataSettingsPanelTest, isADialogOfItsOwnClass) {
  const ItemDataSettingsPanel panel(&container, application.get());
  EXPECT_STREQ(panel.getClassName(), "ItemDataSettingsPanel");
  EXPECT_EQ(ItemDataSettingsPanel::metaClass.getBaseClass(), &PluginSettingsDialogBox::metaClass);
  EXPECT_EQ(panel.getContainer(), &container);
}

TEST_F(ItemDataSettingsPanelTest, holdsItsTableInALinedFrame) {
  const RecordingObserver recorder(database.handle());
  const ItemDataSettingsPanel panel(&container, application.get());
  const auto* frame = dynamic_cast<FX::FXHorizontalFrame*>(panel.getContentFrame()->getFirst());
  ASSERT_NE(frame, nullptr);
  EXPECT_EQ(frame->getNext(), nullptr);
  EXPECT_EQ(frame->getLayoutHints() & (FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y), FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y);
  EXPECT_EQ(frame->getFrameStyle(), FX::FRAME_LINE);
  EXPECT_EQ(frame->getPadLeft() + frame->getPadRight() + frame->getPadTop() + frame->getPadBottom(), 0);
  EXPECT_EQ(frame->getHSpacing(), 4);
  EXPECT_EQ(frame->getVSpacing(), 4);
  const DBTable* table = panel.getTable();
  EXPECT_EQ(table->getParent(), frame);
  EXPECT_EQ(table->getTarget(), &panel);
  EXPECT_EQ(table->getSelector(), 103u);
  EXPECT_EQ(table->getLayoutHints() & (FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y), FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y);
  EXPECT_EQ(table->getTableStyle() & FX::TABLE_COL_SIZABLE, static_cast<FX::FXuint>(FX::TABLE_COL_SIZABLE));
  EXPECT_EQ(table->getTableStyle() & FX::TABLE_ROW_SIZABLE, 0u);
  for (const FX::FXint margin :
       {table->getMarginLeft(), table->getMarginRight(), table->getMarginTop(), table->getMarginBottom()}) {
    EXPECT_EQ(margin, 2);
  }
  EXPECT_EQ(table->getNumRows(), 0);
  EXPECT_EQ(recorder.texts(), Texts());
}

TEST_F(ItemDataSettingsPanelTest, showsTheVariablesOfTheUser) {
  database.exec(
      "insert into t_itemvariable (t_itemvariable_id, name, type) values (10,'nulla',0), (11,'negatív',-2), "
      "(12,'száz',100), (13,'kilencvenkilenc',99), (14,'nincs',null)");
  ItemDataSettingsPanel panel(&container, application.get());
  const RecordingObserver recorder(database.handle());
  panel.create();
  EXPECT_EQ(recorder.texts(), Texts{kLoad});
  DBTable& table = *panel.getTable();
  const char* const headers[] = {"Név", "Típus", "Egységenként rögzítendő", "Kötelező", "Paraméter"};
  ASSERT_EQ(table.getNumColumns(), 5);
  for (int column = 0; column < 5; ++column) EXPECT_STREQ(table.getColumnText(column).text(), headers[column]);
  ASSERT_EQ(table.getNumRows(), 4);
  EXPECT_EQ(row(table, 0), "1|Sarzs|1|1|0|");
  EXPECT_EQ(row(table, 1), "2|Lejárat|2|0|0|");
  EXPECT_EQ(row(table, 2), "3|Szín|3|0|1|piros,kék");
  EXPECT_EQ(row(table, 3), "13|kilencvenkilenc|99|0|0|");
  EXPECT_STREQ(table.getItemText(2, 1).text(), "Lista");
  panel.create();
  EXPECT_EQ(table.getNumRows(), 4);
  panel.setColumnTexts();
  EXPECT_EQ(table.getNumRows(), 0);
  EXPECT_EQ(table.getNumColumns(), 5);
}

TEST_F(ItemDataSettingsPanelTest, writesNothingWhenNothingWasChanged) {
  ItemDataSettingsPanel panel(&container, application.get());
  panel.create();
  ItemDataSettingsPersister persister(database.get());
  const RecordingObserver recorder(database.handle());
  EXPECT_TRUE(panel.save(&persister));
  EXPECT_EQ(recorder.texts(), Texts());
}

TEST_F(ItemDataSettingsPanelTest, keepsTheFieldsThatWereNotChanged) {
  ItemDataSettingsPanel panel(&container, application.get());
  panel.create();
  panel.getTable()->setStoredValue(0, 0, "Tétel");
  const RecordingObserver recorder(database.handle());
  EXPECT_EQ(recorder.texts(), Texts()) << "nothing before save";
  ItemDataSettingsPersister persister(database.get());
  EXPECT_TRUE(panel.save(&persister));
  EXPECT_EQ(recorder.count("update"), 1);
  EXPECT_EQ(variables(), (Texts{"1 Tétel 1 1 0 ", "2 Lejárat 2 0 0 ", "3 Szín 3 0 1 piros,kék"}));
}

TEST_F(ItemDataSettingsPanelTest, acceptsCompleteRows) {
  EXPECT_EQ(acceptWith({}), "accepted");
  EXPECT_EQ(acceptWith({{"a", "1", "0", "0", ""}, {"b", "2", "1", "1", ""}, {"c", "3", "0", "0", " ,x,,"}}),
            "accepted");
  EXPECT_EQ(acceptWith({{"a", "99", "0", "0", ""}}), "accepted");
}

TEST_F(ItemDataSettingsPanelTest, goesToTheFirstCellThatIsMissing) {
  expectRefusal = true;
  EXPECT_EQ(acceptWith({{"a", "1", "0", "0", ""}, {"", "1", "0", "0", "x"}}), "1/0");
  EXPECT_EQ(acceptWith({{"a", "", "0", "0", "x"}}), "0/1");
  EXPECT_EQ(acceptWith({{"a", "1", "0", "0", ""}, {"b", "3", "0", "0", ""}}), "1/4");
  EXPECT_EQ(acceptWith({{"a", "3", "0", "0", ""}, {"", "", "0", "0", ""}}), "0/4") << "one box for two faults";
}

TEST_F(ItemDataSettingsPanelTest, countsWhatIsStillBeingTyped) {
  ItemDataSettingsPanel panel(&container, application.get());
  panel.resize(600, 400);
  FX::FXuint result = 0;
  user.run([&] { result = panel.execute(FX::PLACEMENT_CURSOR); }, {[&](FXWindow* dialog) {
             user.giveKeyboardTo(dialog);
             user.key(FX::KEY_Insert);
             user.type("uj változó");
             user.key(FX::KEY_Return);
             user.clickCell(panel.getTable(), 3, 1);
             user.key(FX::KEY_F2);
             user.key(FX::KEY_Down);
             user.key(FX::KEY_Return);
             user.clickCell(panel.getTable(), 0, 0);
             user.type("Nyitott");
             user.events.pressKey(FX::KEY_Alt_L);
             user.events.pressKey(FX::KEY_o);
             user.settle();
             user.events.releaseKey(FX::KEY_o);
             user.events.releaseKey(FX::KEY_Alt_L);
             user.settle();
           }});
  EXPECT_EQ(result, 1u);
  ItemDataSettingsPersister persister(database.get());
  panel.save(&persister);
  EXPECT_EQ(variables().front(), "1 Nyitott 1 1 0 ");
  EXPECT_EQ(variables().back(), "4 uj változó 1 0 0 ");
}

TEST_F(ItemDataSettingsPanelTest, acceptsAnOpenEditorWhenAcceptedByProgram) {
  ItemDataSettingsPanel panel(&container, application.get());
  panel.resize(600, 400);
  user.run([&] { EXPECT_EQ(panel.execute(FX::PLACEMENT_CURSOR), 1u); }, {[&](FXWindow* dialog) {
             user.giveKeyboardTo(dialog);
             user.clickCell(panel.getTable(), 1, 0);
             user.type("Gépelt");
             accept(dialog);
           }});
  EXPECT_STREQ(panel.getTable()->getStoredValue(1, 0).text(), "Gépelt");
}

TEST_F(ItemDataSettingsPanelTest, cancelWritesNothing) {
  const std::string before = database.dump();
  ItemDataSettingsPanel panel(&container, application.get());
  panel.resize(600, 400);
  const auto change = [&](FXWindow* dialog) {
    user.giveKeyboardTo(dialog);
    panel.getTable()->setStoredValue(0, 0, "x");
  };
  const auto leave = [](FXWindow* box) { answer(box, FX::FXMessageBox::ID_CLICKED_YES); };
  const auto execute = [&] { EXPECT_EQ(panel.execute(FX::PLACEMENT_CURSOR), 0u); };
  user.run(execute, {[&](FXWindow* dialog) {
                       change(dialog);
                       user.key(FX::KEY_Escape);
                     },
                     leave});
  EXPECT_EQ(database.dump(), before);
  // The button says itself that nothing is wanted.
  user.run(execute, {[&](FXWindow* dialog) {
             change(dialog);
             dialog->handle(dialog, FXSEL(FX::SEL_COMMAND, FX::FXDialogBox::ID_CANCEL), nullptr);
           }});
  EXPECT_EQ(database.dump(), before);
}

TEST_F(ItemDataSettingsPanelTest, takesTwoHundredVariables) {
  for (int i = 0; i < 200; ++i) {
    database.exec("insert into t_itemvariable (name, type, process, mandatory) values ('v" + std::to_string(i) +
                  "', 1, 0, 0)");
  }
  ItemDataSettingsPanel panel(&container, application.get());
  panel.resize(600, 400);
  user.run([&] { EXPECT_EQ(panel.execute(FX::PLACEMENT_CURSOR), 1u); }, {[&](FXWindow* dialog) {
             user.giveKeyboardTo(dialog);
             EXPECT_EQ(panel.getTable()->getNumRows(), 203);
             user.key(FX::KEY_End, {FX::KEY_Control_L});
             user.key(FX::KEY_Home);
             user.type("utolsó");
             accept(dialog);
           }});
  EXPECT_STREQ(panel.getTable()->getStoredValue(202, 0).text(), "utolsó");
  ItemDataSettingsPersister persister(database.get());
  const RecordingObserver recorder(database.handle());
  panel.save(&persister);
  EXPECT_EQ(recorder.records().size(), 1u);
}

TEST_F(ItemDataSettingsPanelTest, isEmptyWithoutADatabase) {
  application->setDB(nullptr);
  ItemDataSettingsPanel panel(&container, application.get());
  panel.create();
  EXPECT_EQ(panel.getTable()->getNumRows(), 0);
  EXPECT_TRUE(panel.getOvertakenNames().empty());
  ItemDataSettingsPersister persister(nullptr);
  EXPECT_TRUE(panel.save(&persister));
}

TEST_F(ItemDataSettingsPanelTest, namesVariablesThatWereChangedElsewhereAsWell) {
  ItemDataSettingsPanel panel(&container, application.get());
  panel.create();
  panel.getTable()->setStoredValue(0, 0, "x");
  panel.getTable()->setStoredValue(2, 4, "y");
  EXPECT_TRUE(panel.getOvertakenNames().empty());
  database.exec("update t_itemvariable set mandatory=1 where t_itemvariable_id in (1, 2)");
  EXPECT_STREQ(panel.getOvertakenNames().text(), "Sarzs");
  database.exec("delete from t_itemvariable where t_itemvariable_id=3");
  EXPECT_STREQ(panel.getOvertakenNames().text(), "Sarzs\nSzín");
}
