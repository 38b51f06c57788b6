#include <type_traits>

#include "host/database/Transaction.h"
#include "tests/support/CollectingErrorSink.h"
#include "tests/support/FaultObserver.h"
#include "tests/ui/SettingsFixture.h"

using Brontel::Plugin::ItemData::ItemDataSettingsPersister;
using FX::FXString;
using Values = std::map<FXString, FXString>;

static_assert(std::is_base_of_v<Brontel::DBTablePersister, ItemDataSettingsPersister>);

namespace {

class ItemDataSettingsPersisterTest : public SettingsFixture {
 protected:
  ItemDataSettingsPersisterTest() { storeVariables(); }

  ItemDataSettingsPersister persister{database.get()};
};

Values all(const char* name = "Új") {
  return {{"name", name}, {"type", "3"}, {"process", "1"}, {"mandatory", "1"}, {"vvalue", "a,b"}};
}

}  // namespace

TEST_F(ItemDataSettingsPersisterTest, namesItsFieldsFromOne) {
  const char* const names[] = {"", "name", "type", "process", "mandatory", "vvalue", ""};
  for (int column = 0; column < 7; ++column) EXPECT_STREQ(persister.getColName(column).text(), names[column]);
  EXPECT_TRUE(persister.getColName(-1).empty());
}

TEST_F(ItemDataSettingsPersisterTest, runsNothingByItself) {
  const RecordingObserver recorder(database.handle());
  { const ItemDataSettingsPersister another(database.get()); }
  EXPECT_EQ(recorder.texts(), Texts());
  EXPECT_EQ(database->queryInt("select count(*) from t_itemvariable", 1, -1), 4);
}

TEST_F(ItemDataSettingsPersisterTest, insertsKeyAndNameAndUpdatesTheRest) {
  const RecordingObserver recorder(database.handle());
  persister.insertItem(all());
  EXPECT_EQ(recorder.count("insert into \"t_itemvariable\""), 1);
  EXPECT_EQ(recorder.count("update \"t_itemvariable\""), 1);
  for (const auto& record : recorder.records()) {
    if (record.sql.starts_with("insert")) {
      ASSERT_EQ(record.values.size(), 2u);
      EXPECT_EQ(record.value("t_itemvariable_id"), "4");
      EXPECT_EQ(record.value("name"), "'Új'");
    }
    if (record.sql.starts_with("update")) {
      EXPECT_NE(record.sql.find("where t_itemvariable_id=%t_itemvariable_id"), std::string::npos);
      EXPECT_EQ(record.value("type"), "3");
      EXPECT_EQ(record.value("process"), "1");
      EXPECT_EQ(record.value("mandatory"), "1");
      EXPECT_EQ(record.value("vvalue"), "'a,b'");
    }
  }
  EXPECT_EQ(variables().back(), "4 Új 3 1 1 a,b");
}

TEST_F(ItemDataSettingsPersisterTest, givesKeysAboveZeroAndNeverOneThatIsStillReferredTo) {
  database.exec("delete from t_itemvariable where t_itemvariable_id>0");
  persister.insertItem(all());
  EXPECT_EQ(variables(), Texts{"1 Új 3 1 1 a,b"});
  database.exec("pragma foreign_keys=off");
  database.exec("insert into t_productitemdata (t_product_1, t_itemvariable_1) values (1, 40)");
  persister.insertItem(all("Másik"));
  EXPECT_EQ(database.text("select t_itemvariable_id from t_itemvariable where name='Másik'"), "41");
}

TEST_F(ItemDataSettingsPersisterTest, insertsAnEmptyNameWhenThereIsNone) {
  persister.insertItem({});
  EXPECT_EQ(database.rows("select name, type, process, mandatory, vvalue from t_itemvariable where "
                          "t_itemvariable_id=4"),
            (std::vector<Texts>{{"", "NULL", "0", "NULL", "NULL"}}));
}

TEST_F(ItemDataSettingsPersisterTest, updatesOneRowAndOnlyTheFieldsGiven) {
  persister.updateItem(3, {{"process", "1"}});
  EXPECT_EQ(variables(), (Texts{"1 Sarzs 1 1 0 -", "2 Lejárat 2 0 0 ", "3 Szín 3 1 1 piros,kék"}));
  persister.updateItem(3, {{"name", "Fény"}, {"process", "0"}, {"type", "1"}});
  EXPECT_EQ(variables().back(), "3 Fény 1 0 1 piros,kék");
  persister.updateItem(3, {{"mandatory", "0"}, {"vvalue", "x"}, {"process", "0"}});
  EXPECT_EQ(variables().back(), "3 Fény 1 0 0 x");
}

TEST_F(ItemDataSettingsPersisterTest, takesAMissingProcessForNo) {
  const CollectingErrorSink sink(database.handle());
  persister.updateItem(1, {{"name", "Sarzs"}});
  EXPECT_EQ(variables().front(), "1 Sarzs 1 0 0 -");
  EXPECT_TRUE(sink.errors().empty());
}

TEST_F(ItemDataSettingsPersisterTest, carriesNoValueFromOneRowToTheNext) {
  persister.updateItem(1, {{"vvalue", "one"}, {"type", "3"}});
  persister.updateItem(2, {{"name", "two"}});
  persister.insertItem({{"name", "three"}});
  EXPECT_EQ(variables(), (Texts{"1 Sarzs 3 0 0 one", "2 two 2 0 0 ", "3 Szín 3 0 1 piros,kék", "4 three - 0 - -"}));
  persister.deleteItem(1);
  persister.deleteItem(2);
  EXPECT_EQ(variables().size(), 2u);
}

TEST_F(ItemDataSettingsPersisterTest, keepsHostileTextAsItIs) {
  std::string longName;
  for (int i = 0; i < 500; ++i) longName += "ű";
  for (const std::string& name : {std::string("a'b %id"), std::string("&\"\n\t%%"), std::string("😀"), longName}) {
    persister.updateItem(1, {{"name", name.c_str()}, {"vvalue", name.c_str()}});
    EXPECT_EQ(database.rows("select name, vvalue from t_itemvariable where t_itemvariable_id=1"),
              (std::vector<Texts>{{name, name}}));
  }
}

TEST_F(ItemDataSettingsPersisterTest, deletesOneRow) {
  const RecordingObserver recorder(database.handle());
  persister.deleteItem(2);
  EXPECT_EQ(
      recorder.texts(),
      Texts{"delete from \"t_itemvariable\" where \"t_itemvariable_id\"=%t_itemvariable_id [t_itemvariable_id=2]"});
  EXPECT_EQ(variables(), (Texts{"1 Sarzs 1 1 0 -", "3 Szín 3 0 1 piros,kék"}));
}

TEST_F(ItemDataSettingsPersisterTest, storesNothingUnderTheKeyZero) {
  const Texts before = variables();
  for (int number = 1;; ++number) {
    Brontel::Database::Transaction transaction(database.handle());
    const FaultObserver fault(database.handle(), number);
    persister.insertItem(all());
    if (fault.faults() == 0) break;
    EXPECT_FALSE(transaction.commit()) << number;
    EXPECT_EQ(variables(), before);
  }
  EXPECT_EQ(variables(), before);
  ItemDataSettingsPersister without(nullptr);
  without.insertItem(all());
  without.updateItem(1, all());
  without.deleteItem(1);
  EXPECT_EQ(variables(), before);
}
