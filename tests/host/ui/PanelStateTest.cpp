#include <functional>
#include <vector>

#include <gtest/gtest.h>

#include "host/ui/PanelState.h"
#include "tests/support/TestApplication.h"

using Brontel::panelState;

namespace {

class PanelStateTest : public ::testing::Test {
 protected:
  PanelStateTest() : window(application.get(), "window") {}

  /// Expects that each change makes a state that was not there before.
  void expectNewStates(const std::vector<std::function<void()>>& changes) {
    std::vector<std::string> states{state()};
    for (const auto& change : changes) {
      change();
      for (const std::string& earlier : states) EXPECT_NE(state(), earlier);
      states.push_back(state());
      EXPECT_EQ(state(), states.back());
    }
  }
  std::string state() const { return panelState(&window).text(); }

  TestApplication application;
  FX::FXMainWindow window;
};

}  // namespace

TEST_F(PanelStateTest, followsTexts) {
  auto* frame = new FX::FXVerticalFrame(&window);
  auto* first = new FX::FXTextField(frame, 5);
  auto* second = new FX::FXTextField(frame, 5);
  auto* text = new FX::FXText(&window);
  expectNewStates({[&] { first->setText("ab"); },
                   [&] {
                     first->setText("a");
                     second->setText("b");
                   },
                   [&] { text->setText("c"); }});
  first->setText("");
  second->setText("");
  text->setText("");
  const std::string before = state();
  first->setText("x");
  first->setText("");
  EXPECT_EQ(state(), before);
}

TEST_F(PanelStateTest, followsListsAndTheirOrder) {
  auto* list = new FX::FXList(&window);
  int one = 1;
  int two = 2;
  expectNewStates({[&] { list->appendItem("a", nullptr, &one); }, [&] { list->appendItem("a", nullptr, &two); },
                   [&] { list->moveItem(0, 1); }, [&] { list->removeItem(1); }});
  const std::string before = state();
  list->selectItem(0);
  EXPECT_EQ(state(), before) << "what is selected is no change";
}

TEST_F(PanelStateTest, followsMarksChoicesAndTables) {
  auto* check = new FX::FXCheckButton(&window, "check");
  auto* radio = new FX::FXRadioButton(&window, "radio");
  auto* box = new FX::FXListBox(&window);
  box->appendItem("a");
  box->appendItem("b");
  auto* combo = new FX::FXComboBox(&window, 5);
  auto* table = new FX::FXTable(&window);
  table->setTableSize(1, 2);
  expectNewStates({[&] { check->setCheck(TRUE); }, [&] { radio->setCheck(TRUE); }, [&] { box->setCurrentItem(1); },
                   [&] { combo->setText("x"); }, [&] { table->setItemText(0, 0, "y"); },
                   [&] { table->insertRows(1); }});
}

TEST_F(PanelStateTest, isEmptyForNothing) {
  EXPECT_TRUE(panelState(nullptr).empty());
  new FX::FXLabel(&window, "label");
  EXPECT_EQ(state(), "");
}
