#include <fxkeys.h>
#include <gtest/gtest.h>

#include "host/database/DataBaseValueLoader.h"
#include "host/database/Statement.h"
#include "host/ui/DBTable.h"
#include "host/ui/DBTablePersister.h"
#include "tests/support/DialogUser.h"
#include "tests/support/TestDatabase.h"

using Brontel::DBTable;
using FX::FXString;

// The table under somebody's hands, and what comes from elsewhere.

namespace {

using Values = std::map<FXString, FXString>;

/// Counts what it is told to store.
class CountingPersister : public Brontel::DBTablePersister {
 public:
  void updateItem(int, Values) override { ++updates; }
  void deleteItem(int id) override { deleted.push_back(id); }
  void insertItem(Values) override { ++inserts; }
  FXString getColName(int column) override { return FX::FXStringVal(column); }

  int updates = 0;
  int inserts = 0;
  std::vector<int> deleted;
};

class DBTableEditingTest : public ::testing::Test {
 protected:
  DBTableEditingTest()
      : window(new FX::FXMainWindow(application.get(), "window", nullptr, nullptr, FX::DECOR_ALL, 0, 0, 500, 300)),
        table(new DBTable(window, nullptr, 0, FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y, 0, 0, 0, 0, 2, 2, 2, 2)) {
    table->setTableSize(0, 4);
    table->setColumnValues(1, "1\tSzöveg\n2\tDátum\n3\tLista", true);
    table->setColumnType(2, DBTable::COLUMN_YESNO);
    const auto loader = table->createLoader();
    Statement(database.get(), "values (7,'a',1,0,'x'), (8,'b',2,1,'y')").execute(loader.get(), 1);
  }

  void show() {
    application.create();
    window->show(FX::PLACEMENT_SCREEN);
    user.giveKeyboardTo(window);
  }
  std::string row(int index) const {
    std::string text = table->getRowText(index).text();
    for (int column = 0; column < 4; ++column) text += std::string(" ") + table->getStoredValue(index, column).text();
    return text;
  }
  DBTable::Rows collect(const char* values) {
    DBTable::Rows rows;
    const auto collector = table->createCollector(rows);
    Statement(database.get(), values).execute(collector.get(), 1);
    return rows;
  }
  std::string overtaken(const char* values) {
    std::string names;
    for (const FXString& name : table->findOvertaken(collect(values))) names += std::string(name.text()) + "|";
    return names;
  }

  TestDatabase database;
  TestApplication application;
  DialogUser user{application};
  FX::FXMainWindow* window;
  DBTable* table;
};

constexpr const char* kUnchanged = "values (7,'a',1,0,'x'), (8,'b',2,1,'y')";

}  // namespace

TEST_F(DBTableEditingTest, takesWhatIsTypedIntoACell) {
  show();
  user.clickCell(table, 0, 0);
  user.type("Ő&'1");
  user.key(FX::KEY_Return);
  EXPECT_EQ(row(0), "7 Ő&'1 1 0 x");
  user.clickCell(table, 1, 3);
  user.key(FX::KEY_F2);
  user.type("z");
  user.clickCell(table, 0, 0);
  EXPECT_EQ(row(1), "8 b 2 1 z");
}

TEST_F(DBTableEditingTest, aTextThatComesIntoASelectedCellIsShownAsSelected) {
  show();
  const int last = table->appendNewRow();
  for (int column = 0; column < 3; ++column) {
    user.clickCell(table, last, column);
    user.key(FX::KEY_F2);
    if (column == 0) user.type("x");
    if (column == 1) user.key(FX::KEY_Down);
    if (column < 2) user.key(FX::KEY_Return);
    ASSERT_TRUE(table->isItemSelected(last, column)) << column;
    EXPECT_TRUE(table->getItem(last, column)->isSelected()) << column;
  }
  EXPECT_EQ(row(last), "-1 x 1 1 ");
}

TEST_F(DBTableEditingTest, turnsYesAndNoRoundByDoubleClickSpaceAndF2ButNoOtherKey) {
  show();
  user.doubleClickCell(table, 0, 2);
  EXPECT_EQ(row(0), "7 a 1 1 x");
  user.type("a");
  EXPECT_EQ(row(0), "7 a 1 1 x");
  user.key(FX::KEY_space);
  EXPECT_EQ(row(0), "7 a 1 0 x");
  user.key(FX::KEY_F2);
  EXPECT_EQ(row(0), "7 a 1 1 x");
}

TEST_F(DBTableEditingTest, picksAChoiceByKeyAndByMouse) {
  show();
  user.clickCell(table, 1, 1);
  user.key(FX::KEY_F2);
  user.key(FX::KEY_Down);
  user.key(FX::KEY_Return);
  EXPECT_EQ(row(1), "8 b 3 1 y");
  user.key(FX::KEY_F2);
  user.key(FX::KEY_Up);
  user.key(FX::KEY_Up);
  user.key(FX::KEY_Up);
  user.key(FX::KEY_Escape);
  EXPECT_EQ(row(1), "8 b 3 1 y");
  user.type("d");
  user.key(FX::KEY_Return);
  EXPECT_EQ(row(1), "8 b 2 1 y");
  const int last = table->appendNewRow();
  user.clickCell(table, last, 1);
  user.key(FX::KEY_F2);
  user.key(FX::KEY_Return);
  EXPECT_EQ(row(last), "-1   0 ") << "nothing has been chosen";
  user.key(FX::KEY_F2);
  user.key(FX::KEY_Down);
  user.key(FX::KEY_Return);
  EXPECT_EQ(row(last), "-1  1 0 ");
  user.doubleClickCell(table, 1, 1);
  FX::FXComboBox* box = nullptr;
  for (FX::FXComboBox* each : descendantsOf<FX::FXComboBox>(table)) box = each;
  ASSERT_NE(box, nullptr);
  user.click(box);
  ASSERT_TRUE(box->isPaneShown());
  const auto lists = descendantsOf<FX::FXList>(application->getRootWindow());
  FX::FXList* list = nullptr;
  for (FX::FXList* each : lists) {
    if (each->getNumItems() == 3) list = each;
  }
  ASSERT_NE(list, nullptr);
  user.clickAt(list, 5, list->getItemHeight(0) * 2 + 4);
  user.clickCell(table, 0, 0);
  EXPECT_EQ(row(1), "8 b 3 1 y");
}

TEST_F(DBTableEditingTest, aNewRowTakesWhatIsBeingTypedFirst) {
  show();
  user.clickCell(table, 0, 0);
  user.type("q");
  table->handle(nullptr, FXSEL(FX::SEL_COMMAND, DBTable::ID_NEW_ROW), nullptr);
  EXPECT_EQ(row(0), "7 q 1 0 x");
  ASSERT_EQ(table->getNumRows(), 3);
  user.settle();
  user.type("uj");
  user.key(FX::KEY_Return);
  EXPECT_EQ(row(2), "-1 uj  0 ");
}

TEST_F(DBTableEditingTest, goesOnByKeyboardAlone) {
  show();
  user.clickCell(table, 0, 0);
  user.type("q");
  user.key(FX::KEY_Return);
  user.key(FX::KEY_Down);
  EXPECT_TRUE(table->isItemSelected(1, 0)) << "people see where they are";
  EXPECT_FALSE(table->isItemSelected(0, 0));
  user.type("uj");
  user.key(FX::KEY_Return);
  EXPECT_EQ(row(0), "7 q 1 0 x");
  EXPECT_EQ(row(1), "8 uj 2 1 y");
}

TEST_F(DBTableEditingTest, pastesIntoCellsAndNewRows) {
  EXPECT_TRUE(table->pasteText(1, 0, "m\t3\r\nn\tDátum\t1\tp, q\n"));
  ASSERT_EQ(table->getNumRows(), 3);
  EXPECT_EQ(row(1), "8 m 3 1 y");
  EXPECT_EQ(row(2), "-1 n 2 1 p, q");
  EXPECT_TRUE(table->isNewRow(2));
}

TEST_F(DBTableEditingTest, pastesNothingThatDoesNotFit) {
  for (const char* text : {"a\t1\t1\tb\tc", "a\tvalami", "a\t1\tigen", "a\t4", "a\n\tb"}) {
    EXPECT_FALSE(table->pasteText(0, 0, text)) << text;
  }
  EXPECT_FALSE(table->pasteText(0, 3, "a\tb"));
  EXPECT_FALSE(table->pasteText(-1, 0, "a"));
  EXPECT_FALSE(table->pasteText(2, 0, "a"));
  EXPECT_FALSE(table->pasteText(0, 0, ""));
  EXPECT_EQ(row(0), "7 a 1 0 x");
  EXPECT_EQ(row(1), "8 b 2 1 y");
  EXPECT_EQ(table->getNumColumns(), 4);
}

TEST_F(DBTableEditingTest, copiesAndPastesWithTheKeyboard) {
  show();
  user.clickCell(table, 0, 3);
  user.key(FX::KEY_c, {FX::KEY_Control_L});
  user.clickCell(table, 1, 0);
  user.key(FX::KEY_v, {FX::KEY_Control_L});
  EXPECT_EQ(row(1), "8 x 2 1 y");
  user.clickCell(table, 1, 1);
  user.key(FX::KEY_v, {FX::KEY_Control_L});
  EXPECT_EQ(row(1), "8 x 2 1 y") << "no such choice";
  EXPECT_EQ(table->getNumRows(), 2);
}

TEST_F(DBTableEditingTest, clearsCellsWithoutLosingTheRow) {
  show();
  user.clickCell(table, 1, 0);
  user.key(FX::KEY_x, {FX::KEY_Control_L});
  EXPECT_EQ(row(1), "8  2 1 y");
  user.clickCell(table, 1, 2);
  user.key(FX::KEY_x, {FX::KEY_Control_L});
  EXPECT_EQ(row(1), "8  2 0 y");
}

TEST_F(DBTableEditingTest, writesARolledBackSaveAgain) {
  table->setStoredValue(0, 0, "c");
  table->appendDeletedId(8);
  table->removeRows(1);
  table->appendNewRow();
  CountingPersister first;
  table->saveToDB(&first);
  EXPECT_TRUE(table->getDeletedIds().empty());
  table->keepUnsaved();
  table->appendDeletedId(9);
  CountingPersister second;
  table->saveToDB(&second);
  EXPECT_EQ(first.deleted, std::vector<int>{8});
  EXPECT_EQ(second.deleted, (std::vector<int>{8, 9}));
  EXPECT_EQ(second.updates, 1);
  EXPECT_EQ(second.inserts, 1);
}

TEST_F(DBTableEditingTest, findsRowsThatWereChangedHereAndElsewhere) {
  constexpr const char* kBothChanged = "values (7,'A',1,0,'x'), (8,'B',2,1,'y')";
  EXPECT_EQ(overtaken(kBothChanged), "") << "nothing has been changed here";
  table->setStoredValue(0, 3, "mine");
  EXPECT_EQ(overtaken(kUnchanged), "");
  EXPECT_EQ(overtaken(kBothChanged), "a|");
  EXPECT_EQ(overtaken("values (8,'b',2,1,'y')"), "a|") << "deleted elsewhere";
  table->appendDeletedId(8);
  table->removeRows(1);
  EXPECT_EQ(overtaken(kUnchanged), "");
  EXPECT_EQ(overtaken(kBothChanged), "a|b|");
  EXPECT_EQ(overtaken("values (7,'a',1,0,'x')"), "") << "deleted here and elsewhere";
  table->appendNewRow();
  EXPECT_EQ(overtaken(kUnchanged), "");
}

TEST_F(DBTableEditingTest, comparesNullsAsTheyAreShown) {
  table->setStoredValue(1, 0, "mine");
  EXPECT_EQ(overtaken("values (7,'a',1,null,'x'), (8,'b','2',1,'y')"), "");
}
