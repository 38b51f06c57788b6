#include <type_traits>

#include <gtest/gtest.h>

#include "host/schema/Schema.h"
#include "tests/host/schema/TestTable.h"
#include "tests/support/RecordingObserver.h"
#include "tests/support/TestDatabase.h"

using Brontel::Model::Column;
using Brontel::Model::Schema;
using Brontel::Model::Table;

namespace {

void declareNamed(Table& t) {
  t.addColumn("name", Column::TEXT);
}

class SchemaTest : public ::testing::Test {
 protected:
  TestDatabase database;
};

}  // namespace

TEST_F(SchemaTest, doesNothingWithoutDatabase) {
  Schema schema;
  auto* table = new TestTable(&schema, "t");
  EXPECT_EQ(schema.sync(nullptr), 0);
  EXPECT_EQ(table->inits, 0);
}

TEST_F(SchemaTest, failsOnAClosedDatabase) {
  database->close();
  Schema schema;
  new TestTable(&schema, "t");
  EXPECT_EQ(schema.sync(database.get()), 0);
}

TEST_F(SchemaTest, isInLineWhenItIsEmpty) {
  Schema schema;
  EXPECT_EQ(schema.sync(database.get()), 1);
  EXPECT_EQ(database.dump(), "");
}

TEST_F(SchemaTest, isAnObjectThatCannotBeCopied) {
  EXPECT_TRUE(Schema::metaClass.isSubClassOf(&FX::FXObject::metaClass));
  EXPECT_FALSE(std::is_copy_constructible_v<Schema>);
}

TEST_F(SchemaTest, letsEachTableDeclareItselfOnceBeforeItMakesAny) {
  const RecordingObserver recorder(database.handle());
  std::string order;
  Schema schema;
  for (const char* name : {"b", "a", "c"}) {
    auto* table = new TestTable(&schema, name, declareNamed);
    table->onInit = [&, name] {
      order += name;
      EXPECT_TRUE(recorder.records().empty());
    };
  }
  EXPECT_EQ(schema.sync(database.get()), 1);
  EXPECT_EQ(order, "bac");
  EXPECT_EQ(database.text("select group_concat(name) from (select name from sqlite_master order by rowid)"), "b,a,c");
}

TEST_F(SchemaTest, canBeSynchronisedAgain) {
  Schema schema;
  auto* table = new TestTable(&schema, "t", [](Table& t) {
    t.addColumn("name", Column::TEXT);
    t.addReference("t_a_1", Column::INTEGER, 0, "t_a", 1, "", Column::BY_DECLARATION);
  });
  EXPECT_EQ(schema.sync(database.get()), 1);
  const std::string before = database.dump();
  EXPECT_EQ(schema.sync(database.get()), 1);
  EXPECT_EQ(table->inits, 2);
  EXPECT_EQ(database.dump(), before);
  EXPECT_EQ(database->getFailures(), 0);
}

TEST_F(SchemaTest, goesOnWithTheOtherTablesWhenOneFails) {
  Schema schema;
  new TestTable(&schema, "a", declareNamed);
  new TestTable(&schema, "b", [](Table& t) {
    t.addColumn("name", Column::TEXT);
    t.addColumn("NAME", Column::TEXT);
  });
  new TestTable(&schema, "c", declareNamed);
  EXPECT_EQ(schema.sync(database.get()), 0);
  EXPECT_EQ(database.text("select group_concat(name) from (select name from sqlite_master order by rowid)"), "a,c");
}

TEST_F(SchemaTest, makesTheSameTablesTwiceInTwoDatabases) {
  TestDatabase second;
  Schema schema;
  new TestTable(&schema, "t", declareNamed);
  EXPECT_EQ(schema.sync(database.get()), 1);
  EXPECT_EQ(schema.sync(second.get()), 1);
  EXPECT_EQ(database.dump(), second.dump());
}

TEST_F(SchemaTest, measuresHowMuchIsThere) {
  using Extent = Schema::Extent;
  Schema schema;
  for (const char* name : {"a", "b"}) {
    new TestTable(&schema, name, [](Table& t) {
      t.addColumn("name", Column::TEXT);
      t.addReference("t_x_1", Column::INTEGER, 0, "t_x", 1, "", Column::BY_DECLARATION);
    });
  }
  EXPECT_EQ(schema.measure(database.get()), Extent::None);
  database.exec("create table a (a_id integer primary key, name text, t_x_1 integer)");
  EXPECT_EQ(schema.measure(database.get()), Extent::Part);
  database.exec("create table B (b_id integer primary key, NAME text)");
  EXPECT_EQ(schema.measure(database.get()), Extent::Part);
  database.exec("alter table b add column T_X_1 integer");
  const std::string before = database.dump();
  EXPECT_EQ(schema.measure(database.get()), Extent::All);
  EXPECT_EQ(database.dump(), before);
  EXPECT_EQ(schema.sync(database.get()), 1);
  EXPECT_EQ(schema.measure(database.get()), Extent::All);
  EXPECT_EQ(database->getFailures(), 0);
}

TEST_F(SchemaTest, measuresNothingWhereItCannotRead) {
  Schema schema;
  new TestTable(&schema, "t", declareNamed);
  EXPECT_EQ(schema.measure(nullptr), Schema::Extent::None);
  EXPECT_EQ(schema.sync(database.get()), 1);
  database->close();
  EXPECT_EQ(schema.measure(database.get()), Schema::Extent::None);
}
