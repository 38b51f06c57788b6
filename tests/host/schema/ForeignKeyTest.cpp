#include <gtest/gtest.h>

#include "host/database/DeleteStatement.h"
#include "host/schema/Schema.h"
#include "tests/host/schema/TestTable.h"
#include "tests/support/TestDatabase.h"

// What becomes of rows whose target is deleted while references are enforced, as in the host application.

using Brontel::Model::Column;
using Brontel::Model::Schema;
using Brontel::Model::Table;

namespace {

using Rows = std::vector<std::vector<std::string>>;

class ForeignKeyTest : public ::testing::Test {
 protected:
  void make(unsigned char nullable, Column::OnDeleteType onDelete) {
    Schema schema;
    new TestTable(&schema, "t_variable");
    new TestTable(&schema, "t_data", [nullable, onDelete](Table& t) {
      t.addReference("t_variable_1", Column::INTEGER, nullable, "t_variable", 1, "", onDelete);
      t.addColumn("value", Column::TEXT);
    });
    EXPECT_EQ(schema.sync(database.get()), 1);
    database.exec("insert into t_variable values (1), (2)");
    database.exec("insert into t_data values (10, 1, 'a'), (11, 2, 'b')");
    EXPECT_TRUE(database->setForeignKeys(true));
  }

  int deleteVariable(int id) {
    DeleteStatement statement(database.get(), "t_variable");
    statement.setInt("t_variable_id", id);
    return statement.execute(nullptr, 1);
  }

  Rows data() const { return database.rows("select * from t_data order by t_data_id"); }

  TestDatabase database;
};

}  // namespace

TEST_F(ForeignKeyTest, recordedValuesOutliveTheirVariableWhereTheReferenceMayBeNull) {
  make(1, Column::BY_DECLARATION);
  EXPECT_EQ(deleteVariable(1), 1);
  EXPECT_EQ(data(), (Rows{{"10", "NULL", "a"}, {"11", "2", "b"}}));
}

TEST_F(ForeignKeyTest, rowsGoWithTheirTargetWhereTheReferenceMayNotBeNull) {
  make(0, Column::BY_DECLARATION);
  EXPECT_EQ(deleteVariable(1), 1);
  EXPECT_EQ(data(), (Rows{{"11", "2", "b"}}));
}

TEST_F(ForeignKeyTest, rowsOfAColumnThatWasAddedLaterGoWithTheirTargetToo) {
  database.exec("create table t_variable (t_variable_id integer primary key)");
  database.exec("create table t_data (t_data_id integer primary key)");
  database.exec("insert into t_data values (9)");
  Schema schema;
  new TestTable(&schema, "t_data", [](Table& t) {
    t.addReference("t_variable_1", Column::INTEGER, 0, "t_variable", 1, "", Column::BY_DECLARATION);
  });
  EXPECT_EQ(schema.sync(database.get()), 1);
  database.exec("insert into t_variable values (1)");
  database.exec("insert into t_data values (10, 1)");
  EXPECT_TRUE(database->setForeignKeys(true));
  EXPECT_EQ(deleteVariable(1), 1);
  EXPECT_EQ(data(), (Rows{{"9", "NULL"}}));
}

TEST_F(ForeignKeyTest, restrictedTargetsStay) {
  make(1, Column::RESTRICT);
  EXPECT_EQ(deleteVariable(1), 0);
  EXPECT_EQ(database->getLastError().kind, Brontel::Database::ErrorKind::Constraint);
  EXPECT_EQ(data().size(), 2u);
  EXPECT_EQ(database.text("select count(*) from t_variable"), "2");
}

TEST_F(ForeignKeyTest, explicitKindsHoldWhateverTheDeclarationSays) {
  make(1, Column::CASCADE);
  EXPECT_EQ(deleteVariable(1), 1);
  EXPECT_EQ(data(), (Rows{{"11", "2", "b"}}));
}

TEST_F(ForeignKeyTest, nothingHappensWhileReferencesAreNotEnforced) {
  make(0, Column::BY_DECLARATION);
  EXPECT_TRUE(database->setForeignKeys(false));
  EXPECT_EQ(deleteVariable(1), 1);
  EXPECT_EQ(data(), (Rows{{"10", "1", "a"}, {"11", "2", "b"}}));
}

TEST_F(ForeignKeyTest, rowsWithoutTargetAreRefused) {
  make(0, Column::BY_DECLARATION);
  EXPECT_FALSE(database->run("insert into t_data (t_variable_1) values (77)"));
  EXPECT_EQ(database->getLastError().kind, Brontel::Database::ErrorKind::Constraint);
  EXPECT_FALSE(database->run("insert into t_data (t_variable_1) values (null)"));
  EXPECT_EQ(data().size(), 2u);
}
