#include <memory>
#include <type_traits>

#include <gtest/gtest.h>

#include "host/schema/Schema.h"
#include "host/schema/Table.h"
#include "tests/host/schema/TestTable.h"
#include "tests/support/TestDatabase.h"

using Brontel::Model::Column;
using Brontel::Model::Schema;
using Brontel::Model::Table;

namespace {

using Rows = std::vector<std::vector<std::string>>;

class TableTest : public ::testing::Test {
 protected:
  /// Makes a table t as declared, in a fresh database.
  void make(const std::function<void(Table&)>& declaration) {
    Schema schema;
    new TestTable(&schema, "t", declaration);
    EXPECT_EQ(schema.sync(database.get()), 1) << database->getLastError().message.text();
  }

  TestDatabase database;
};

}  // namespace

TEST_F(TableTest, belongsToItsSchemaFromTheStart) {
  std::string deleted;
  {
    Schema schema;
    for (const char* name : {"a", "b"}) {
      auto* table = new TestTable(&schema, name);
      table->onDelete = [&deleted, name] { deleted += name; };
      EXPECT_STREQ(table->getName().text(), name);
    }
  }
  EXPECT_EQ(deleted, "ab");
}

TEST_F(TableTest, belongsToItsMakerWithoutASchema) {
  const auto table = std::make_unique<TestTable>(nullptr, "t");
  EXPECT_STREQ(table->getName().text(), "t");
  EXPECT_EQ(table->inits, 0);
}

TEST_F(TableTest, hasToBeDeclaredBySubclasses) {
  EXPECT_TRUE(std::is_abstract_v<Table>);
  EXPECT_TRUE(Table::metaClass.isSubClassOf(&FX::FXObject::metaClass));
}

TEST_F(TableTest, hasAKeyThatNobodyDeclares) {
  make([](Table&) {});
  EXPECT_EQ(database.rows("select name, type, pk from pragma_table_info('t')"), (Rows{{"t_id", "INTEGER", "1"}}));
  database.exec("insert into t default values");
  database.exec("insert into t (t_id) values (-1)");
  database.exec("insert into t (t_id) values (null)");
  EXPECT_EQ(database.rows("select * from t"), (Rows{{"-1"}, {"1"}, {"2"}}));
}

TEST_F(TableTest, keepsTheOrderOfItsColumns) {
  make([](Table& t) {
    t.addColumn("name", Column::TEXT);
    t.addReference("t_other_1", Column::INTEGER, 0, "t_other", 0, "", Column::BY_DECLARATION);
    t.addColumn("type", Column::INTEGER);
    t.addReference("t_more_1", Column::INTEGER, 7, "t_more", 0, "", Column::BY_DECLARATION);
  });
  EXPECT_EQ(database.rows("select name, type, \"notnull\", pk from pragma_table_info('t')"),
            (Rows{{"t_id", "INTEGER", "0", "1"},
                  {"name", "TEXT", "0", "0"},
                  {"t_other_1", "INTEGER", "1", "0"},
                  {"type", "INTEGER", "0", "0"},
                  {"t_more_1", "INTEGER", "0", "0"}}));
}

TEST_F(TableTest, refersAcrossTablesThatNeedNotBeThere) {
  make([](Table& t) {
    t.addReference("a", Column::INTEGER, 1, "t_a", 0, "", Column::BY_DECLARATION);
    t.addReference("b", Column::INTEGER, 0, "t_b", 0, "code", Column::BY_DECLARATION);
  });
  EXPECT_EQ(database.rows("select \"from\", \"table\", \"to\", on_delete from pragma_foreign_key_list('t') order by 1"),
            (Rows{{"a", "t_a", "t_a_id", "SET NULL"}, {"b", "t_b", "code", "CASCADE"}}));
  EXPECT_EQ(database.text("select count(*) from sqlite_master where type='table'"), "1");
}

TEST_F(TableTest, indexesAReferenceWithTheOtherIntegersBehindIt) {
  make([](Table& t) {
    t.addColumn("value", Column::TEXT);
    t.addReference("first", Column::INTEGER, 0, "t_a", 1, "", Column::BY_DECLARATION);
    t.addColumn("row", Column::INTEGER);
    t.addReference("second", Column::INTEGER, 1, "t_b", 1, "", Column::BY_DECLARATION);
    t.addReference("third", Column::INTEGER, 1, "t_c", 0, "", Column::BY_DECLARATION);
  });
  EXPECT_EQ(database.rows("select name from pragma_index_list('t') order by name"),
            (Rows{{"t_first_idx"}, {"t_second_idx"}}));
  EXPECT_EQ(database.rows("select name from pragma_index_info('t_first_idx') order by seqno"),
            (Rows{{"first"}, {"row"}, {"second"}, {"third"}}));
  EXPECT_EQ(database.rows("select name from pragma_index_info('t_second_idx') order by seqno"),
            (Rows{{"second"}, {"first"}, {"row"}, {"third"}}));
}

TEST_F(TableTest, answersASingleRowsLookUpFromTheIndexAlone) {
  make([](Table& t) {
    t.addReference("item", Column::INTEGER, 0, "t_a", 1, "", Column::BY_DECLARATION);
    t.addReference("variable", Column::INTEGER, 1, "t_b", 1, "", Column::BY_DECLARATION);
    t.addColumn("row", Column::INTEGER);
  });
  for (const char* where : {"item=1 and variable=2 and row=3", "item=1 and row is null and variable is null",
                            "variable=2 and item=1 and row=3"}) {
    const std::string plan =
        database.rows(std::string("explain query plan select t_id from t where ") + where).at(0).at(3);
    EXPECT_EQ(plan.find("SEARCH t USING COVERING INDEX"), 0u) << plan;
  }
}
