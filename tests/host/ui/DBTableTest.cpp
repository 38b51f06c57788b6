#include <gtest/gtest.h>

#include "host/database/DataBaseValueLoader.h"
#include "host/database/Statement.h"
#include "host/ui/DBTable.h"
#include "host/ui/DBTablePersister.h"
#include "tests/host/ui/Deferred.h"
#include "tests/support/TestApplication.h"
#include "tests/support/TestDatabase.h"

using Brontel::DBTable;
using Brontel::DBTablePersister;
using FX::FXString;

namespace {

using Log = std::vector<std::string>;
using Values = std::map<FXString, FXString>;

/// Writes down what it is told to store.
class RecordingPersister : public DBTablePersister {
 public:
  void updateItem(int id, Values values) override { log.push_back("update " + std::to_string(id) + toText(values)); }
  void deleteItem(int id) override { log.push_back("delete " + std::to_string(id)); }
  void insertItem(Values values) override { log.push_back("insert" + toText(values)); }
  FXString getColName(int column) override {
    static const char* const kNames[] = {"never asked", "name", "type", "process", "", "vvalue"};
    return column < 0 || column > 5 ? "" : kNames[column];
  }

  Log log;

 private:
  static std::string toText(const Values& values) {
    std::string text;
    for (const auto& [name, value] : values) text += " " + std::string(name.text()) + "=" + value.text();
    return text;
  }
};

class DBTableTest : public ::testing::Test {
 protected:
  DBTableTest()
      : window(application.get(), "window", nullptr, nullptr, FX::DECOR_ALL, 0, 0, 400, 300, 0, 0, 0, 0, 0, 0),
        table(new DBTable(&window, nullptr, 0, FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y, 0, 0, 0, 0, 2, 2, 2, 2)) {
    table->setTableSize(0, 5);
    table->setColumnValues(1, "1\tSzöveg\n2\tDátum\n3\tLista", true);
    table->setColumnType(2, DBTable::COLUMN_YESNO);
    table->setColumnType(3, DBTable::COLUMN_YESNO);
  }

  /// Loads the rows of a "values (...), (...)" list.
  void load(const char* rows) {
    const auto loader = table->createLoader();
    EXPECT_EQ(Statement(database.get(), rows).execute(loader.get(), 1), 1);
  }

  std::string shown(int row, int column) const { return table->getItemText(row, column).text(); }
  std::string stored(int row, int column) const { return table->getStoredValue(row, column).text(); }
  Log save() {
    persister.log.clear();
    table->saveToDB(&persister);
    return persister.log;
  }

  TestDatabase database;
  TestApplication application;
  FX::FXMainWindow window;
  DBTable* table;
  RecordingPersister persister;
};

}  // namespace

TEST_F(DBTableTest, showsWhatItLoads) {
  load("values (7, 'Szín', 1, 1, 0, 'x'), (9, null, 3, null, '1', null)");
  ASSERT_EQ(table->getNumRows(), 2);
  EXPECT_STREQ(table->getRowText(0).text(), "7");
  EXPECT_EQ(table->getRowId(1), 9);
  EXPECT_EQ(shown(0, 0), "Szín");
  EXPECT_EQ(shown(0, 1), "Szöveg");
  EXPECT_EQ(shown(0, 2), "✓");
  EXPECT_EQ(shown(0, 3), "");
  EXPECT_EQ(shown(0, 4), "x");
  EXPECT_EQ(shown(1, 1), "Lista");
  EXPECT_EQ(shown(1, 2), "");
  EXPECT_EQ(shown(1, 3), "✓");
}

TEST_F(DBTableTest, knowsStoredValuesBehindWhatIsShown) {
  load("values (7, 'Szín', 2, 1, null, 'x')");
  EXPECT_EQ(stored(0, 0), "Szín");
  EXPECT_EQ(stored(0, 1), "2");
  EXPECT_EQ(stored(0, 2), "1");
  EXPECT_EQ(stored(0, 3), "0");
  table->setStoredValue(0, 1, "3");
  table->setStoredValue(0, 3, "1");
  EXPECT_EQ(shown(0, 1), "Lista");
  EXPECT_EQ(shown(0, 3), "✓");
}

TEST_F(DBTableTest, keepsACodeThatIsNoChoice) {
  load("values (7, '', 99, 0, 0, '')");
  EXPECT_EQ(shown(0, 1), "99");
  EXPECT_EQ(stored(0, 1), "99");
  EXPECT_TRUE(save().empty());
}

TEST_F(DBTableTest, offersLabelsAsCodesWhereThereAreNone) {
  table->setColumnValues(4, "a\nb", false);
  load("values (7, '', 1, 0, 0, 'b')");
  EXPECT_EQ(shown(0, 4), "b");
  EXPECT_EQ(stored(0, 4), "b");
}

TEST_F(DBTableTest, numbersNewRowsDownwards) {
  EXPECT_EQ(table->appendNewRow(), 0);
  EXPECT_EQ(table->appendNewRow(), 1);
  EXPECT_STREQ(table->getRowText(0).text(), "-1");
  EXPECT_STREQ(table->getRowText(1).text(), "-2");
  table->removeRows(1, 1);
  EXPECT_EQ(table->appendNewRow(), 1);
  EXPECT_STREQ(table->getRowText(1).text(), "-3");
  EXPECT_TRUE(table->isNewRow(1));
  EXPECT_EQ(table->getRowId(1), -3);
  EXPECT_EQ(stored(0, 0), "");
  EXPECT_EQ(stored(0, 1), "");
  EXPECT_EQ(stored(0, 2), "0");
}

TEST_F(DBTableTest, appendsANewRowOnCommandAndGoesThere) {
  load("values (7, '', 1, 0, 0, '')");
  EXPECT_EQ(table->handle(nullptr, FXSEL(FX::SEL_COMMAND, DBTable::ID_NEW_ROW), nullptr), 1);
  EXPECT_EQ(table->getNumRows(), 2);
  EXPECT_EQ(table->getCurrentRow(), 1);
  EXPECT_EQ(table->getCurrentColumn(), 0);
}

TEST_F(DBTableTest, answersForNoCellOutside) {
  load("values (7, '', 1, 0, 0, '')");
  for (const auto& [row, column] : {std::pair{-1, 0}, {1, 0}, {0, -1}, {0, 5}, {1000, 1000}}) {
    EXPECT_EQ(stored(row, column), "");
    table->setStoredValue(row, column, "x");
  }
  for (const int row : {-1, 1}) {
    EXPECT_FALSE(table->isNewRow(row));
    EXPECT_EQ(table->getRowId(row), 0);
  }
  for (const int column : {-1, 5}) {
    table->setColumnType(column, DBTable::COLUMN_YESNO);
    table->setColumnValues(column, "1\ta", true);
  }
  EXPECT_TRUE(save().empty());
}

TEST_F(DBTableTest, savesNothingWhenNothingHasChanged) {
  load("values (7, null, 1, 1, null, 'x'), (8, '', 2, 0, 0, '')");
  EXPECT_TRUE(save().empty());
  table->setItemText(0, 4, "y");
  table->setItemText(0, 4, "x");
  EXPECT_TRUE(save().empty());
  table->saveToDB(nullptr);
}

TEST_F(DBTableTest, savesDeletionsThenChangesThenNewRowsWithAllNamedFields) {
  load("values (7, 'a', 1, 1, 0, 'x'), (8, 'b', 2, 0, 0, 'y'), (9, 'c', 3, 0, 1, 'z')");
  const int row = table->appendNewRow();
  table->setItemText(row, 0, "new");
  table->setStoredValue(row, 1, "2");
  table->setItemText(0, 0, "changed");
  table->appendDeletedId(8);
  table->removeRows(1, 1);
  EXPECT_EQ(save(), (Log{"delete 8", "update 7 name=changed process=1 type=1 vvalue=x",
                         "insert name=new process=0 type=2 vvalue="}));
}

TEST_F(DBTableTest, savesAddedAndRemovedNewRowsNever) {
  table->appendNewRow();
  table->appendNewRow();
  table->removeRows(0, 2);
  EXPECT_TRUE(save().empty());
}

TEST_F(DBTableTest, forgetsDeletedKeysOnceTheyAreHandedOver) {
  table->appendDeletedId(8);
  table->appendDeletedId(9);
  EXPECT_EQ(save(), (Log{"delete 8", "delete 9"}));
  EXPECT_TRUE(save().empty());
}

TEST_F(DBTableTest, turnsYesAndNoRoundByEditing) {
  load("values (7, 'a', 1, 1, 0, '')");
  application.create();
  Deferred replaced(
      application.get(), [] {}, 1000000);
  table->setTarget(&replaced);
  table->startInput(0, 2);
  EXPECT_EQ(stored(0, 2), "0");
  EXPECT_TRUE(replaced.done);
  table->startInput(0, 3);
  table->setTarget(nullptr);
  EXPECT_EQ(shown(0, 3), "✓");
  EXPECT_EQ(save(), Log{"update 7 name=a process=0 type=1 vvalue="});
  table->startInput(0, 2);
  EXPECT_EQ(stored(0, 2), "1");
}

TEST_F(DBTableTest, offersTheChoicesByEditing) {
  load("values (7, 'a', 1, 0, 0, '')");
  application.create();
  table->startInput(0, 1);
  FX::FXComboBox* list = nullptr;
  for (FX::FXWindow* child = table->getFirst(); child != nullptr; child = child->getNext()) {
    if (list == nullptr) list = dynamic_cast<FX::FXComboBox*>(child);
  }
  ASSERT_NE(list, nullptr);
  ASSERT_EQ(list->getNumItems(), 3);
  EXPECT_STREQ(list->getText().text(), "Szöveg");
  EXPECT_STREQ(list->getItemText(2).text(), "Lista");
  EXPECT_FALSE(list->isEditable());
  list->setCurrentItem(2);
  table->acceptInput(TRUE);
  EXPECT_EQ(stored(0, 1), "3");
  table->startInput(0, 1);
  table->cancelInput();
  EXPECT_EQ(stored(0, 1), "3");
}

TEST_F(DBTableTest, takesTypedTextByEditing) {
  load("values (7, 'a', 1, 0, 0, '')");
  application.create();
  table->startInput(0, 0);
  FX::FXTextField* field = nullptr;
  for (FX::FXWindow* child = table->getFirst(); child != nullptr; child = child->getNext()) {
    if (field == nullptr) field = dynamic_cast<FX::FXTextField*>(child);
  }
  ASSERT_NE(field, nullptr);
  field->setText("typed");
  table->acceptInput(TRUE);
  EXPECT_EQ(stored(0, 0), "typed");
}

TEST_F(DBTableTest, storesTextAsItIs) {
  load("values (7, 'a', 1, 0, 0, '')");
  table->setItemText(0, 4, "line\none\ttwo 'three' \"four\" %id ő");
  EXPECT_EQ(save(), Log{"update 7 name=a process=0 type=1 vvalue=line\none\ttwo 'three' \"four\" %id ő"});
}
