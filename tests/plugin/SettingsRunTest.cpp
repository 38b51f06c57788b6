#include <fxkeys.h>

#include "tests/plugin/WindowFixture.h"
#include "tests/support/CollectingErrorSink.h"
#include "tests/support/FaultObserver.h"
#include "tests/support/FileConnection.h"
#include "tests/support/RecordingObserver.h"

using FX::FXWindow;

namespace {

class SettingsRunTest : public WindowFixture {
 protected:
  SettingsRunTest() {
    database.exec(
        "insert into t_itemvariable (t_itemvariable_id, name, type, process, mandatory, vvalue) values "
        "(1,'Sarzs',1,1,0,''), (2,'Lejárat',2,0,0,''), (3,'Szín',3,0,1,'piros,kék')");
  }

  /// Changes the first row, deletes the second and adds one.
  static void edit(FXWindow* dialog) {
    Brontel::DBTable& table = tableOf(dialog);
    table.setStoredValue(0, 0, "Tétel");
    table.appendDeletedId(2);
    table.removeRows(1);
    addVariable(dialog, {"Garancia", "2", "0", "0", ""});
  }
  /// That all of it is still there.
  static void expectEdited(FXWindow* dialog) {
    const Brontel::DBTable& table = tableOf(dialog);
    ASSERT_EQ(table.getNumRows(), 3);
    EXPECT_STREQ(table.getStoredValue(0, 0).text(), "Tétel");
    EXPECT_EQ(table.getDeletedIds(), std::vector<int>{2});
    EXPECT_TRUE(table.isNewRow(2));
  }
  int windowCount() { return application->getRootWindow()->numChildren(); }

  const Texts before{"1 Sarzs 1 1 0 ", "2 Lejárat 2 0 0 ", "3 Szín 3 0 1 piros,kék"};
  const Texts edited{"1 Tétel 1 1 0 ", "3 Szín 3 0 1 piros,kék", "4 Garancia 2 0 0 "};
};

}  // namespace

TEST_F(SettingsRunTest, runsTheSettingsDialogInItsSize) {
  EXPECT_EQ(openSettings({[this](FXWindow* dialog) {
              EXPECT_STREQ(dialog->getClassName(), "ItemDataSettingsPanel");
              EXPECT_EQ(dialog->getWidth(), 600);
              EXPECT_EQ(dialog->getHeight(), 400);
              EXPECT_EQ(application->getModalWindow(), dialog);
              EXPECT_EQ(dynamic_cast<Panel*>(dialog)->getContainer(), container.get());
              EXPECT_EQ(tableOf(dialog).getNumRows(), 3);
              cancel(dialog);
            }}),
            1);
}

TEST_F(SettingsRunTest, cancelTouchesNothing) {
  const std::string dump = database.dump();
  const int windows = windowCount();
  const auto byEscape = [this](FXWindow* dialog) {
    edit(dialog);
    user.giveKeyboardTo(dialog);
    user.key(FX::KEY_Escape);
  };
  const auto byButton = [](FXWindow* dialog) {
    edit(dialog);
    answer(dialog, FX::FXDialogBox::ID_CANCEL);
  };
  const auto byWindow = [](FXWindow* dialog) {
    edit(dialog);
    dialog->handle(nullptr, FXSEL(FX::SEL_CLOSE, 0), nullptr);
  };
  // The button says itself that nothing is wanted.
  const auto leave = [](FXWindow* box) { answer(box, FX::FXMessageBox::ID_CLICKED_YES); };
  EXPECT_EQ(openSettings({byEscape, leave}), 1);
  EXPECT_EQ(openSettings({byButton}), 1);
  EXPECT_EQ(openSettings({byWindow, leave}), 1);
  EXPECT_EQ(database.dump(), dump);
  EXPECT_EQ(windowCount(), windows);
}

TEST_F(SettingsRunTest, acceptingStoresEverythingInOneTransaction) {
  const int windows = windowCount();
  const RecordingObserver recorder(database.handle());
  EXPECT_EQ(openSettings({[](FXWindow* dialog) {
              edit(dialog);
              accept(dialog);
            }}),
            1);
  EXPECT_EQ(variables(), edited);
  EXPECT_EQ(recorder.count("begin"), 1);
  EXPECT_EQ(recorder.count("commit"), 1);
  EXPECT_EQ(windowCount(), windows);
  EXPECT_EQ(openSettings({[](FXWindow* dialog) { accept(dialog); }}), 1);
  EXPECT_EQ(variables(), edited);
}

TEST_F(SettingsRunTest, comesBackAsItWasLeftWhateverTheDatabaseRefuses) {
  int number = 1;
  for (bool met = true; met; ++number) {
    std::unique_ptr<FaultObserver> fault;
    const CollectingErrorSink sink(database.handle());
    std::vector<DialogUser::Step> steps{[&](FXWindow* dialog) {
                                          edit(dialog);
                                          fault = std::make_unique<FaultObserver>(database.handle(), number);
                                          accept(dialog);
                                        },
                                        [&](FXWindow* dialog) {
                                          EXPECT_EQ(fault->faults(), 1);
                                          EXPECT_FALSE(sink.errors().empty());
                                          EXPECT_EQ(variables(), before) << number;
                                          expectEdited(dialog);
                                          fault.reset();
                                          accept(dialog);
                                        }};
    // Nine statements: begin, the comparison, a delete, an update, four for the new row, and commit.
    met = number <= 9;
    if (!met) steps.pop_back();
    EXPECT_EQ(openSettings(steps), 1);
    EXPECT_EQ(variables(), edited) << number;
    fault.reset();
    database.exec("delete from t_itemvariable where t_itemvariable_id=4");
    database.exec("insert into t_itemvariable values (2,'Lejárat',2,0,0,'')");
    database.exec("update t_itemvariable set name='Sarzs' where t_itemvariable_id=1");
  }
}

TEST_F(SettingsRunTest, waitsForAnotherProgramAndThenComesBack) {
  FileConnection other(database.path());
  const CollectingErrorSink sink(database.handle());
  EXPECT_EQ(openSettings({[&](FXWindow* dialog) {
                            edit(dialog);
                            other.exec("begin immediate");
                            accept(dialog);
                          },
                          [&](FXWindow* dialog) {
                            ASSERT_FALSE(sink.errors().empty());
                            EXPECT_EQ(sink.errors().front().kind, Brontel::Database::ErrorKind::Busy);
                            expectEdited(dialog);
                            other.exec("rollback");
                            accept(dialog);
                          }}),
            1);
  EXPECT_EQ(variables(), edited);
}

TEST_F(SettingsRunTest, asksBeforeItOverwritesWhatAnotherProgramHasStored) {
  FileConnection other(database.path());
  const auto change = [&](FXWindow* dialog) {
    edit(dialog);
    other.exec("update t_itemvariable set name='Övék' where t_itemvariable_id=1");
    accept(dialog);
  };
  const auto no = [&](FXWindow* box) {
    EXPECT_NE(boxText(box).find("Ezeket közben más is módosította:\n\nSarzs\n"), std::string::npos) << boxText(box);
    answer(box, FX::FXMessageBox::ID_CLICKED_NO);
  };
  const auto again = [&](FXWindow* dialog) {
    EXPECT_EQ(variables().front(), "1 Övék 1 1 0 ");
    EXPECT_EQ(variables().size(), 3u);
    expectEdited(dialog);
    accept(dialog);
  };
  const auto yes = [](FXWindow* box) { answer(box, FX::FXMessageBox::ID_CLICKED_YES); };
  EXPECT_EQ(openSettings({change, no, again, yes}), 1);
  EXPECT_EQ(variables(), edited);
}

TEST_F(SettingsRunTest, takesWhatAnotherProgramHasAddedOrLeftAloneWithoutQuestion) {
  FileConnection other(database.path());
  EXPECT_EQ(openSettings({[&](FXWindow* dialog) {
              edit(dialog);
              other.exec("update t_itemvariable set name='Fény' where t_itemvariable_id=3");
              other.exec(
                  "insert into t_itemvariable (t_itemvariable_id, name, type, process, mandatory) values "
                  "(4,'Másé',1,0,0)");
              accept(dialog);
            }}),
            1);
  EXPECT_EQ(variables(), (Texts{"1 Tétel 1 1 0 ", "3 Fény 3 0 1 piros,kék", "4 Másé 1 0 0 ", "5 Garancia 2 0 0 "}));
}

TEST_F(SettingsRunTest, opensEmptyWithoutADatabase) {
  application->setDB(nullptr);
  EXPECT_EQ(openSettings({[](FXWindow* dialog) {
              EXPECT_EQ(tableOf(dialog).getNumRows(), 0);
              accept(dialog);
            }}),
            1);
}
