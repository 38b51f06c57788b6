#include "tests/support/FaultObserver.h"
#include "tests/ui/AssociationFixture.h"

using FX::FXint;
using FX::FXuint;

// How the panel is built and what it loads.

namespace {

using ItemDataAssociationPanelTest = AssociationFixture;

constexpr FXuint kFill = FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y;

FXint padding(const FX::FXPacker* packer) {
  return packer->getPadLeft() + packer->getPadRight() + packer->getPadTop() + packer->getPadBottom();
}

bool fills(const FX::FXWindow* window) {
  return (window->getLayoutHints() & kFill) == kFill;
}

std::string selectText(const char* kind, const char* position, const char* end, const char* values) {
  const std::string table = std::string("t_") + kind + "itemdata";
  return "select iv.t_itemvariable_id, " + table + "_id, coalesce(sid.t_itemvariable_1,0) tick, " + position +
         ", %direction , %productid , iv.name, iv.mandatory, iv.type, iv.process from t_itemvariable iv left join " +
         table + " sid on sid.t_itemvariable_1=iv.t_itemvariable_id and t_" + kind +
         "_1=%productid and sid.direction=%direction where iv.type>0 order by sid.position" + end + values;
}

}  // namespace

TEST_F(ItemDataAssociationPanelTest, isAVerticalFrameWithAnEmptyMessageMap) {
  EXPECT_STREQ(ItemDataAssociationPanel::metaClass.getClassName(), "ItemDataAssociationPanel");
  EXPECT_EQ(ItemDataAssociationPanel::metaClass.getBaseClass(), &FX::FXVerticalFrame::metaClass);
  EXPECT_EQ(FX::FXMetaClass::getMetaClassFromName("ItemDataAssociationPanel"), &ItemDataAssociationPanel::metaClass);
}

TEST_F(ItemDataAssociationPanelTest, givesEachDirectionHalfOfAScrolledFrame) {
  const RecordingObserver recorder(database.handle());
  open(1);
  const size_t loads = recorder.records().size();
  EXPECT_EQ(loads, 2u);
  EXPECT_TRUE(fills(panel));
  EXPECT_EQ(padding(panel) + panel->getHSpacing() + panel->getVSpacing(), 0);
  auto* scroll = dynamic_cast<FX::FXScrollWindow*>(panel->getFirst());
  ASSERT_NE(scroll, nullptr);
  EXPECT_EQ(scroll->getNext(), nullptr);
  EXPECT_TRUE(fills(scroll));
  EXPECT_EQ(scroll->getBackColor(), application->getBaseColor());
  auto* content = dynamic_cast<FX::FXVerticalFrame*>(scroll->contentWindow());
  ASSERT_NE(content, nullptr);
  EXPECT_TRUE(fills(content));
  EXPECT_EQ(padding(content), 0);
  EXPECT_EQ(content->getVSpacing(), 4);
  ASSERT_EQ(content->numChildren(), 2);
  const char* const titles[] = {"Bejövő", "Kimenő"};
  FXDualList* const lists[] = {panel->getIncomingList(), panel->getOutgoingList()};
  for (FXint half = 0; half < 2; ++half) {
    auto* spring = dynamic_cast<FX::FXSpring*>(content->childAtIndex(half));
    ASSERT_NE(spring, nullptr);
    EXPECT_TRUE(fills(spring));
    EXPECT_EQ(spring->getRelativeWidth(), 1);
    EXPECT_EQ(spring->getRelativeHeight(), 0);
    EXPECT_EQ(padding(spring), 16);
    EXPECT_EQ(spring->getHSpacing() + spring->getVSpacing(), 8);
    auto* frame = dynamic_cast<FX::FXVerticalFrame*>(spring->getFirst());
    ASSERT_NE(frame, nullptr);
    EXPECT_TRUE(fills(frame));
    EXPECT_NE(frame->getPackingHints() & FX::PACK_UNIFORM_HEIGHT, 0u);
    EXPECT_EQ(padding(frame), 0);
    EXPECT_EQ(frame->getVSpacing(), 4);
    auto* group = dynamic_cast<FX::FXGroupBox*>(frame->getFirst());
    ASSERT_NE(group, nullptr);
    EXPECT_STREQ(group->getText().text(), titles[half]);
    EXPECT_TRUE(fills(group));
    EXPECT_EQ(padding(group), 0);
    auto* separator = dynamic_cast<FX::FXHorizontalSeparator*>(group->getFirst());
    ASSERT_NE(separator, nullptr);
    EXPECT_EQ(separator->getSeparatorStyle(), static_cast<FXuint>(FX::SEPARATOR_GROOVE));
    EXPECT_EQ(separator->getPadLeft(), 1);
    EXPECT_EQ(separator->getPadRight(), 1);
    EXPECT_EQ(separator->getNext(), lists[half]);
    EXPECT_TRUE(fills(lists[half]));
    const auto labels = descendantsOf<FX::FXLabel>(lists[half]);
    ASSERT_EQ(labels.size(), 2u);
    EXPECT_STREQ(labels[0]->getText().text(), "Választható mezők");
    EXPECT_STREQ(labels[1]->getText().text(), "Kiválasztott mezők");
  }
  window->show(FX::PLACEMENT_SCREEN);
  user.giveKeyboardTo(window);
  EXPECT_NEAR(lists[0]->getHeight(), lists[1]->getHeight(), 2);
  EXPECT_GT(lists[0]->getHeight(), 80);
}

TEST_F(ItemDataAssociationPanelTest, runsNothingBeforeItIsCreated) {
  const RecordingObserver recorder(database.handle());
  const auto without = std::make_unique<ItemDataAssociationPanel>(window, window, database.get(), "t_product_1");
  EXPECT_EQ(recorder.texts(), Texts());
}

TEST_F(ItemDataAssociationPanelTest, loadsIncomingThenOutgoing) {
  for (const char* kind : {"product", "service", "suite"}) {
    const RecordingObserver recorder(database.handle());
    open(2, (std::string("t_") + kind + "_1").c_str());
    EXPECT_EQ(recorder.texts(),
              (Texts{selectText(kind, "coalesce(sid.position,0)", "", " [productid=2, direction=200]"),
                     selectText(kind, "coalesce(sid.position, 0)", ";", " [productid=2, direction=100]")}));
    delete panel;
  }
}

TEST_F(ItemDataAssociationPanelTest, showsChosenVariablesInTheirOrderAndTheOthersAvailable) {
  associate({"1 3 100", "2 1 100", "4 2 100", "3 1 200"});
  database.exec(
      "insert into t_productitemdata (t_product_1, t_itemvariable_1, position, direction) values (2,6,1,100)");
  open(1);
  EXPECT_EQ(items(panel->getOutgoingList()->getToList()), (Texts{"Lejárat", "Más", "Sarzs"}));
  EXPECT_EQ(items(panel->getOutgoingList()->getFromList()), (Texts{"Szín", ""}));
  EXPECT_EQ(items(panel->getIncomingList()->getToList()), (Texts{"Szín"}));
  EXPECT_EQ(items(panel->getIncomingList()->getFromList()), (Texts{"Sarzs", "Lejárat", "Más", ""}));
}

TEST_F(ItemDataAssociationPanelTest, givesEachItemItsVariable) {
  associate({"1 7 200", "1 2 100"});
  open(1);
  const ItemDataVariable* chosen = variable(panel->getIncomingList()->getToList(), 0);
  EXPECT_EQ(chosen->assignId, 1);
  EXPECT_EQ(chosen->variableId, 1);
  EXPECT_EQ(chosen->goodsId, 1);
  EXPECT_STREQ(chosen->name.text(), "Sarzs");
  EXPECT_TRUE(chosen->assigned);
  EXPECT_EQ(chosen->type, 1);
  EXPECT_EQ(chosen->direction, 200);
  EXPECT_EQ(chosen->position, 7);
  EXPECT_EQ(chosen->mandatory, 1);
  const ItemDataVariable* again = variable(panel->getOutgoingList()->getToList(), 0);
  EXPECT_NE(again, chosen);
  EXPECT_EQ(again->assignId, 2);
  EXPECT_EQ(again->direction, 100);
  const ItemDataVariable* available = variable(panel->getOutgoingList()->getFromList(), 0);
  EXPECT_EQ(available->assignId, 0);
  EXPECT_EQ(available->variableId, 2);
  EXPECT_FALSE(available->assigned);
  EXPECT_EQ(available->position, 0);
  EXPECT_EQ(available->direction, 100);
  EXPECT_EQ(available->mandatory, 0);
}

TEST_F(ItemDataAssociationPanelTest, showsEverythingAvailableForANewRecord) {
  associate({"1 1 100"});
  open(0);
  for (const FXDualList* list : {panel->getIncomingList(), panel->getOutgoingList()}) {
    EXPECT_EQ(list->getToList()->getNumItems(), 0);
    EXPECT_EQ(items(list->getFromList()), (Texts{"Sarzs", "Lejárat", "Szín", "Más", ""}));
  }
}

TEST_F(ItemDataAssociationPanelTest, showsNothingWhereThereIsNothing) {
  database.exec("delete from t_itemvariable where t_itemvariable_id<>2");
  open(1);
  EXPECT_EQ(items(panel->getIncomingList()->getFromList()), Texts{"Lejárat"});
  delete panel;
  database.exec("delete from t_itemvariable");
  open(1);
  EXPECT_EQ(items(panel->getIncomingList()->getFromList()), Texts());
  delete panel;
  const FaultObserver fault(database.handle(), 1, FaultObserver::Mode::FromThenOn);
  open(1);
  EXPECT_EQ(items(panel->getIncomingList()->getFromList()), Texts());
}

TEST_F(ItemDataAssociationPanelTest, hasAnIconForEachTypeMandatoryOrNot) {
  open(1);
  ItemDataVariable variable;
  std::vector<const FX::FXIcon*> icons;
  for (variable.type = 1; variable.type <= 3; ++variable.type) {
    for (variable.mandatory = 0; variable.mandatory <= 1; ++variable.mandatory) {
      const FX::FXIcon* icon = panel->getIcon(&variable);
      ASSERT_NE(icon, nullptr);
      EXPECT_STREQ(icon->getClassName(), "FXGIFIcon");
      EXPECT_EQ(icon->getWidth(), 16);
      EXPECT_EQ(icon->getHeight(), 16);
      EXPECT_NE(icon->id(), 0u) << "it can be drawn";
      for (const FX::FXIcon* other : icons) EXPECT_NE(icon, other);
      icons.push_back(icon);
    }
  }
  variable.type = 1;
  variable.mandatory = 2;
  EXPECT_EQ(panel->getIcon(&variable), icons[0]) << "only 1 is mandatory";
  for (const int type : {0, -1, 4, 100}) {
    variable.type = type;
    EXPECT_EQ(panel->getIcon(&variable), nullptr);
  }
  EXPECT_EQ(panel->getIcon(nullptr), nullptr);
  const FX::FXList* list = panel->getOutgoingList()->getFromList();
  EXPECT_EQ(list->getItemIcon(0), icons[1]);
  EXPECT_EQ(list->getItemIcon(3), nullptr) << "a type without icon";
}

TEST_F(ItemDataAssociationPanelTest, keepsChoicesWhenItIsCreatedAgain) {
  open(1);
  choose(panel->getOutgoingList(), "Szín");
  const RecordingObserver recorder(database.handle());
  window->create();
  EXPECT_EQ(recorder.texts(), Texts());
  EXPECT_EQ(items(panel->getOutgoingList()->getToList()), Texts{"Szín"});
  EXPECT_EQ(panel->getOutgoingList()->getFromList()->getNumItems(), 4);
}

TEST_F(ItemDataAssociationPanelTest, showsHostileNamesAndManyVariables) {
  std::string longName;
  for (int i = 0; i < 500; ++i) longName += "ű";
  database.exec("update t_itemvariable set name='a & b ''c'' \"d\" 😀' where t_itemvariable_id=1");
  database.exec("update t_itemvariable set name='" + longName + "' where t_itemvariable_id=2");
  for (int i = 0; i < 200; ++i) {
    database.exec("insert into t_itemvariable (name, type, mandatory) values ('v" + std::to_string(i) + "', 2, 1)");
  }
  open(1);
  window->show(FX::PLACEMENT_SCREEN);
  user.giveKeyboardTo(window);
  const FX::FXList* list = panel->getOutgoingList()->getFromList();
  EXPECT_EQ(list->getNumItems(), 205);
  EXPECT_STREQ(list->getItemText(0).text(), "a & b 'c' \"d\" 😀");
  EXPECT_EQ(list->getItemText(1).text(), longName);
}

TEST_F(ItemDataAssociationPanelTest, goesWithoutHavingBeenShown) {
  auto* unseen = new ItemDataAssociationPanel(window, window, database.get(), "t_product_1");
  unseen->save();
  delete unseen;
  open(1);
  choose(panel->getIncomingList(), "Sarzs");
  giveBack(panel->getIncomingList(), "Sarzs");
  delete panel;
}
