#include "tests/ui/AssociationFixture.h"

// What the panel writes.

using ItemDataAssociationPanelSaveTest = AssociationFixture;

TEST_F(ItemDataAssociationPanelSaveTest, writesNothingWhenNothingWasChanged) {
  associate({"1 1 100", "2 2 100", "3 1 200"});
  open(1);
  const RecordingObserver recorder(database.handle());
  panel->save();
  EXPECT_EQ(recorder.texts(), Texts());
}

TEST_F(ItemDataAssociationPanelSaveTest, writesNothingBeforeItIsTold) {
  open(1);
  const RecordingObserver recorder(database.handle());
  choose(panel->getOutgoingList(), "Sarzs");
  choose(panel->getOutgoingList(), "Szín");
  moveUp(panel->getOutgoingList(), "Szín");
  EXPECT_EQ(recorder.texts(), Texts());
}

TEST_F(ItemDataAssociationPanelSaveTest, storesChosenVariablesInTheirOrderAndDirection) {
  open(1);
  for (const char* name : {"Szín", "Sarzs"}) choose(panel->getOutgoingList(), name);
  choose(panel->getIncomingList(), "Sarzs");
  panel->save();
  EXPECT_EQ(stored(), (Texts{"1 1 1 1 200", "2 1 3 1 100", "3 1 1 2 100"}));
  EXPECT_EQ(variable(panel->getOutgoingList()->getToList(), 0)->assignId, 0) << "it is made anew before the next save";
}

TEST_F(ItemDataAssociationPanelSaveTest, bindsNoKeyOfItsOwn) {
  open(1);
  choose(panel->getOutgoingList(), "Szín");
  const RecordingObserver recorder(database.handle());
  panel->save();
  EXPECT_EQ(recorder.texts(),
            Texts{"insert into \"t_productitemdata\" (\"t_product_1\",\"t_itemvariable_1\",\"position\",\"direction\") "
                  "values (%t_product_1,%t_itemvariable_1,%position,%direction) [t_product_1=1, t_itemvariable_1=3, "
                  "position=1, direction=100]"});
}

TEST_F(ItemDataAssociationPanelSaveTest, deletesWhatWasGivenBackAndNothingElse) {
  associate({"1 1 100", "2 2 100", "1 1 200"});
  database.exec(
      "insert into t_productitemdata (t_product_1, t_itemvariable_1, position, direction) values (2,1,1,100)");
  open(1);
  giveBack(panel->getOutgoingList(), "Lejárat");
  const RecordingObserver recorder(database.handle());
  panel->save();
  EXPECT_EQ(recorder.records().size(), 1u);
  EXPECT_EQ(stored(), (Texts{"1 1 1 1 100", "3 1 1 1 200", "4 2 1 1 100"}));
}

TEST_F(ItemDataAssociationPanelSaveTest, writesOnlyThePositionsThatChanged) {
  associate({"1 1 100", "2 2 100", "3 3 100"});
  open(1);
  moveUp(panel->getOutgoingList(), "Szín");
  const RecordingObserver recorder(database.handle());
  panel->save();
  const std::string update =
      "update \"t_productitemdata\" set \"position\"=%position where t_productitemdata_id = %assignId ";
  EXPECT_EQ(recorder.texts(), (Texts{update + "[assignId=3, position=2]", update + "[assignId=2, position=3]"}));
  EXPECT_EQ(stored(), (Texts{"1 1 1 1 100", "2 1 2 3 100", "3 1 3 2 100"}));
}

TEST_F(ItemDataAssociationPanelSaveTest, deletesBeforeItChangesAndInsertsOneListAfterTheOther) {
  associate({"1 1 100", "2 2 100", "1 1 200", "2 2 200"});
  open(1);
  for (FXDualList* lists : {panel->getOutgoingList(), panel->getIncomingList()}) {
    giveBack(lists, "Sarzs");
    choose(lists, "Más");
  }
  const RecordingObserver recorder(database.handle());
  panel->save();
  Texts kinds;
  for (const auto& record : recorder.records()) kinds.push_back(record.sql.substr(0, 6) + record.value("direction"));
  EXPECT_EQ(kinds, (Texts{"delete", "update", "insert200", "delete", "update", "insert100"}));
}

TEST_F(ItemDataAssociationPanelSaveTest, storesChoicesForANewRecordUnderItsKey) {
  open(0);
  choose(panel->getOutgoingList(), "Szín");
  panel->save();
  EXPECT_EQ(stored(), Texts()) << "there is no record yet";
  window->setCurrentId(2);
  panel->save();
  EXPECT_EQ(stored(), Texts{"1 2 3 1 100"});
}

TEST_F(ItemDataAssociationPanelSaveTest, writesTheKindsOwnTable) {
  for (const char* kind : {"service", "suite"}) {
    open(2, (std::string("t_") + kind + "_1").c_str());
    choose(panel->getIncomingList(), "Lejárat");
    panel->save();
    EXPECT_EQ(stored(kind), Texts{"1 2 2 1 200"});
    delete panel;
  }
  EXPECT_EQ(stored(), Texts());
}

TEST_F(ItemDataAssociationPanelSaveTest, aVariableMovedThereAndBackIsAsBefore) {
  associate({"1 1 100"});
  open(1);
  giveBack(panel->getOutgoingList(), "Sarzs");
  choose(panel->getOutgoingList(), "Sarzs");
  choose(panel->getOutgoingList(), "Szín");
  giveBack(panel->getOutgoingList(), "Szín");
  const RecordingObserver recorder(database.handle());
  panel->save();
  EXPECT_EQ(recorder.texts(), Texts());
}

class ItemDataVariableTest : public AssociationFixture {
 protected:
  ItemDataVariableTest() {
    associate({"1 1 100", "2 2 100"});
    variable.assignId = 2;
    variable.variableId = 2;
    variable.goodsId = 1;
    variable.position = 2;
    variable.direction = 100;
  }

  ItemDataVariable variable;
};

TEST_F(ItemDataVariableTest, leavesItsRowAloneWhereItIsInPlace) {
  const RecordingObserver recorder(database.handle());
  variable.saveAssigned(database.get(), "t_productitemdata", "t_product_1", 2);
  EXPECT_EQ(recorder.texts(), Texts());
}

TEST_F(ItemDataVariableTest, changesThePositionAndNothingElse) {
  variable.goodsId = 2;
  variable.direction = 200;
  variable.saveAssigned(database.get(), "t_productitemdata", "t_product_1", 5);
  EXPECT_EQ(stored(), (Texts{"1 1 1 1 100", "2 1 2 5 100"}));
  EXPECT_EQ(variable.position, 2);
}

TEST_F(ItemDataVariableTest, takesAPositionThatNobodyWouldGiveForAnotherOne) {
  for (const int position : {0, -1}) {
    database.exec("update t_productitemdata set position=" + std::to_string(position) + " where t_itemvariable_1=2");
    variable.position = position;
    variable.saveAssigned(database.get(), "t_productitemdata", "t_product_1", 1);
    EXPECT_EQ(stored().back(), "2 1 2 1 100");
  }
}

TEST_F(ItemDataVariableTest, makesARowWhenItHasNone) {
  variable.assignId = 0;
  variable.direction = 200;
  variable.saveAssigned(database.get(), "t_productitemdata", "t_product_1", 2);
  EXPECT_EQ(stored().back(), "3 1 2 2 200");
}

TEST_F(ItemDataVariableTest, deletesItsRowIfThereIsOne) {
  const RecordingObserver recorder(database.handle());
  variable.saveNotAssigned(database.get(), "t_productitemdata");
  EXPECT_EQ(recorder.records().size(), 1u);
  EXPECT_EQ(stored(), Texts{"1 1 1 1 100"});
  variable.assignId = 0;
  variable.saveNotAssigned(database.get(), "t_productitemdata");
  EXPECT_EQ(recorder.records().size(), 1u);
  variable.saveAssigned(nullptr, "t_productitemdata", "t_product_1", 1);
}
