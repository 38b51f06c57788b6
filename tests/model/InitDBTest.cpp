#include <cstdlib>
#include <type_traits>

#include <gtest/gtest.h>
#include <libintl.h>

#include "model/InitDB.h"
#include "tests/support/MessageCatalog.h"
#include "tests/support/RecordingObserver.h"
#include "tests/support/TestDatabase.h"

using Brontel::Plugin::ItemData::Model::initDB;
using Rows = std::vector<std::vector<std::string>>;

static_assert(std::is_same_v<decltype(&initDB), void (*)(MorvaneDatabase*)>);

namespace {

const char* const kVariables =
    "select t_itemvariable_id, name, type, process, mandatory, vvalue from t_itemvariable order by t_itemvariable_id";
const std::vector<std::string> kQuantity = {"-1", "Mennyiség", "-1", "1", "1", "NULL"};

class InitDBTest : public ::testing::Test {
 protected:
  Rows variables() const { return database.rows(kVariables); }

  TestDatabase database;
};

/// A handle whose one-value query answers as it is told.
class AnsweringDatabase : public MorvaneDatabase {
 public:
  explicit AnsweringDatabase(int answer) : answer_(answer) {}

  int queryInt(const FX::FXString& sql, int flag, int defaultValue) override {
    asked.push_back(std::string(sql.text()) + "|" + std::to_string(flag) + "|" + std::to_string(defaultValue));
    return answer_;
  }

  std::vector<std::string> asked;

 private:
  int answer_;
};

}  // namespace

TEST_F(InitDBTest, anEmptyDatabaseGetsFiveTablesAndTheQuantity) {
  initDB(database.get());
  EXPECT_EQ(database.rows("select name from sqlite_master where type='table' order by name"),
            (Rows{{"t_invoiceitemdata"},
                  {"t_itemvariable"},
                  {"t_productitemdata"},
                  {"t_serviceitemdata"},
                  {"t_suiteitemdata"}}));
  EXPECT_EQ(variables(), Rows{kQuantity});
}

TEST_F(InitDBTest, makesTheTablesInOrderAndAsksForTheQuantityAfterwards) {
  RecordingObserver recorder(database.handle());
  initDB(database.get());
  std::vector<std::string> made;
  for (const RecordingObserver::Record& record : recorder.records()) {
    if (record.sql.starts_with("create table")) made.push_back(record.sql.substr(0, record.sql.find(" (")));
    if (record.sql.find("-1") != std::string::npos || record.sql.starts_with("insert")) made.push_back(record.toText());
  }
  EXPECT_EQ(made,
            (std::vector<std::string>{
                "create table \"t_invoiceitemdata\"", "create table \"t_itemvariable\"",
                "create table \"t_productitemdata\"", "create table \"t_suiteitemdata\"",
                "create table \"t_serviceitemdata\"", "select count(1) from t_itemvariable where t_itemvariable_id=-1",
                "insert into \"t_itemvariable\" (\"t_itemvariable_id\",\"name\",\"type\",\"process\","
                "\"mandatory\") values (%t_itemvariable_id,%name,%type,%process,%mandatory) "
                "[t_itemvariable_id=-1, name='Mennyiség', type=-1, process=1, mandatory=1]"}));
}

TEST_F(InitDBTest, aSecondStartChangesNothing) {
  initDB(database.get());
  const std::string before = database.dump();
  RecordingObserver recorder(database.handle());
  initDB(database.get());
  EXPECT_EQ(database.dump(), before);
  for (const std::string& text : recorder.texts()) EXPECT_EQ(text.find("select"), 0u) << text;
}

TEST_F(InitDBTest, keepsAQuantityThatLooksDifferent) {
  initDB(database.get());
  database.exec("update t_itemvariable set name='Qty', type=1, process=0, mandatory=0, vvalue='x'");
  initDB(database.get());
  EXPECT_EQ(variables(), (Rows{{"-1", "Qty", "1", "0", "0", "x"}}));
}

TEST_F(InitDBTest, keepsTheUsersVariables) {
  initDB(database.get());
  database.exec("insert into t_itemvariable values (1,'Szín',3,1,0,'a,b')");
  initDB(database.get());
  EXPECT_EQ(variables(), (Rows{kQuantity, {"1", "Szín", "3", "1", "0", "a,b"}}));
}

TEST_F(InitDBTest, aDeletedQuantityComesBack) {
  initDB(database.get());
  database.exec("delete from t_itemvariable");
  initDB(database.get());
  EXPECT_EQ(variables(), Rows{kQuantity});
}

TEST_F(InitDBTest, theFirstVariableOfTheUserHasKeyOne) {
  initDB(database.get());
  EXPECT_EQ(database->nextId("t_itemvariable"), 1);
  database.exec("insert into t_invoiceitemdata (t_itemvariable_1,t_invoiceitem_1) values (41,1)");
  EXPECT_EQ(database->nextId("t_itemvariable"), 42);
}

TEST_F(InitDBTest, olderVariablesGetTheColumnsTheyLack) {
  database.exec(
      "create table t_itemvariable (t_itemvariable_id integer primary key, name text, type integer, "
      "note text)");
  database.exec("insert into t_itemvariable values (5,'Sarzs',1,'kept')");
  initDB(database.get());
  EXPECT_EQ(variables(), (Rows{kQuantity, {"5", "Sarzs", "1", "NULL", "NULL", "NULL"}}));
  EXPECT_EQ(database.text("select note from t_itemvariable where t_itemvariable_id=5"), "kept");
}

TEST_F(InitDBTest, olderAssociationsGetTheColumnsTheyLack) {
  const std::vector<std::string> kinds = {"product", "service", "suite"};
  for (const std::string& kind : kinds) {
    const std::string table = "t_" + kind + "itemdata";
    database.exec("create table " + table + " (" + table + "_id integer primary key, t_" + kind +
                  "_1 integer, t_itemvariable_1 integer)");
    database.exec("insert into " + table + " values (3,100,5)");
  }
  initDB(database.get());
  for (const std::string& kind : kinds) {
    const std::string table = "t_" + kind + "itemdata";
    EXPECT_EQ(database.rows("select * from " + table), (Rows{{"3", "100", "5", "NULL", "NULL"}}));
    EXPECT_EQ(database.rows("select name from pragma_table_info('" + table + "') order by cid desc limit 2"),
              (Rows{{"direction"}, {"position"}}));
  }
}

TEST_F(InitDBTest, neverTakesAnythingAway) {
  initDB(database.get());
  database.exec("create table t_other (a)");
  database.exec("alter table t_invoiceitemdata add column extra text");
  database.exec("insert into t_invoiceitemdata (t_invoiceitem_1,row,value,extra) values (1,0,'v','e')");
  initDB(database.get());
  EXPECT_EQ(database.rows("select value, extra from t_invoiceitemdata"), (Rows{{"v", "e"}}));
  EXPECT_EQ(database.text("select count(*) from sqlite_master where name='t_other'"), "1");
}

TEST_F(InitDBTest, theNameIsStoredUntranslated) {
  MessageCatalog catalog;
  catalog.add("Mennyiség", "Quantity");
  for (const char* domain : {"messages", "BrontelPluginItemData"}) {
    ASSERT_TRUE(catalog.install(database.directory().path(), "xx", domain));
    bindtextdomain(domain, database.directory().path().c_str());
  }
  setenv("LANGUAGE", "xx", 1);
  EXPECT_STREQ(gettext("Mennyiség"), "Quantity");
  initDB(database.get());
  unsetenv("LANGUAGE");
  EXPECT_EQ(variables(), Rows{kQuantity});
}

TEST(InitDBProbeTest, onlyASureNoLeadsToAnInsert) {
  for (const int answer : {0, 1, 2, -1, 100}) {
    const TemporaryDirectory directory;
    AnsweringDatabase answering(answer);
    ASSERT_TRUE(answering.open(directory.path("test.db").c_str(), MorvaneDatabase::OpenMode::Create));
    initDB(&answering);
    EXPECT_EQ(answering.asked,
              std::vector<std::string>{"select count(1) from t_itemvariable where t_itemvariable_id=-1|1|-1"});
    const Rows expected = answer == 0 ? Rows{kQuantity} : Rows{};
    EXPECT_EQ(TestDatabase::rowsOf(directory.path("test.db"), kVariables), expected) << answer;
  }
}
