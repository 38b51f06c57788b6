#include <memory>

#include <fxkeys.h>
#include <gtest/gtest.h>

#include "host/ui/DBTable.h"
#include "host/ui/PluginSettingsDialogBox.h"
#include "tests/host/plugin/TestContainer.h"
#include "tests/host/ui/Deferred.h"
#include "tests/support/DialogUser.h"

using Brontel::DBTable;
using Brontel::Plugin::UI::PluginSettingsDialogBox;

namespace {

class PluginSettingsDialogBoxTest : public ::testing::Test {
 protected:
  PluginSettingsDialogBoxTest() : container(application.get(), "Beállítások") { application.create(); }

  DBTable* addTable(PluginSettingsDialogBox& dialog) {
    auto* table = new DBTable(dialog.getContentFrame(), &dialog, PluginSettingsDialogBox::ID_TABLE, 0, 0, 0, 300, 200,
                              2, 2, 2, 2);
    table->setTableSize(0, 1);
    return table;
  }

  TestApplication application;
  TestContainer container;
};

}  // namespace

TEST_F(PluginSettingsDialogBoxTest, offersAFrameForThePlugInsWidgets) {
  PluginSettingsDialogBox dialog(&container, application.get());
  EXPECT_EQ(dialog.getContainer(), &container);
  EXPECT_STREQ(dialog.getTitle().text(), "Beállítások");
  ASSERT_NE(dialog.getContentFrame(), nullptr);
  EXPECT_EQ(dialog.getContentFrame()->getShell(), &dialog);
  PluginSettingsDialogBox without(nullptr, application.get());
  EXPECT_TRUE(without.getTitle().empty());
}

TEST_F(PluginSettingsDialogBoxTest, endsWithOkOrCancel) {
  for (const auto& [command, expected] :
       {std::pair<FX::FXuint, FX::FXuint>{FX::FXDialogBox::ID_ACCEPT, 1}, {FX::FXDialogBox::ID_CANCEL, 0}}) {
    PluginSettingsDialogBox dialog(&container, application.get());
    const Deferred press(application.get(), [&dialog, command = command] {
      dialog.handle(nullptr, FXSEL(FX::SEL_COMMAND, command), nullptr);
    });
    EXPECT_EQ(dialog.execute(FX::PLACEMENT_OWNER), expected);
    EXPECT_TRUE(press.done);
  }
}

TEST_F(PluginSettingsDialogBoxTest, isNotDestroyedByItsDeleteCommand) {
  auto* dialog = new PluginSettingsDialogBox(&container, application.get());
  EXPECT_NE(static_cast<int>(PluginSettingsDialogBox::ID_DELETE), static_cast<int>(FX::FXWindow::ID_DELETE));
  EXPECT_EQ(dialog->handle(nullptr, FXSEL(FX::SEL_COMMAND, PluginSettingsDialogBox::ID_DELETE), nullptr), 0);
  EXPECT_EQ(dialog->getContainer(), &container);
  delete dialog;
}

TEST_F(PluginSettingsDialogBoxTest, belongsToTheActiveWindowOrTheRoot) {
  PluginSettingsDialogBox first(&container, application.get());
  EXPECT_EQ(first.getOwner(), application->getRootWindow());
  auto* main = new FX::FXMainWindow(application.get(), "main", nullptr, nullptr, FX::DECOR_ALL, 0, 0, 200, 100);
  application.create();
  main->show();
  // The server refuses the focus to a window that it has not mapped yet.
  application.processEvents();
  main->setFocus();
  ASSERT_TRUE(application.waitUntil([&] { return application->getActiveWindow() == main; }));
  PluginSettingsDialogBox second(&container, application.get());
  EXPECT_EQ(second.getOwner(), main);
}

TEST_F(PluginSettingsDialogBoxTest, opensNoMenuWithoutTableOrAfterADrag) {
  PluginSettingsDialogBox dialog(&container, application.get());
  DBTable* table = addTable(dialog);
  FX::FXEvent event{};
  EXPECT_EQ(dialog.onContextMenu(nullptr, 0, &event), 0);
  EXPECT_EQ(dialog.onContextMenu(&dialog, 0, &event), 0);
  EXPECT_EQ(dialog.onContextMenu(table, 0, nullptr), 0);
  event.moved = TRUE;
  EXPECT_EQ(dialog.onContextMenu(table, 0, &event), 0);
}

TEST_F(PluginSettingsDialogBoxTest, offersNewRowAndDeleteOverItsTable) {
  PluginSettingsDialogBox dialog(&container, application.get());
  DBTable* table = addTable(dialog);
  dialog.create();
  dialog.show();
  std::string labels;
  FX::FXObject* deleteTarget = nullptr;
  FX::FXSelector deleteSelector = 0;
  const Deferred look(application.get(), [&] {
    FX::FXPopup* pane = application->getPopupWindow();
    ASSERT_NE(pane, nullptr);
    for (FX::FXWindow* child = pane->getFirst(); child != nullptr; child = child->getNext()) {
      auto* entry = dynamic_cast<FX::FXMenuCommand*>(child);
      labels += std::string(entry->getText().text()) + "|";
      if (child->getNext() == nullptr) {
        deleteTarget = entry->getTarget();
        deleteSelector = entry->getSelector();
      } else {
        entry->getTarget()->handle(entry, FXSEL(FX::SEL_COMMAND, entry->getSelector()), nullptr);
      }
    }
    pane->popdown();
  });
  FX::FXEvent event{};
  EXPECT_EQ(dialog.handle(table, FXSEL(FX::SEL_RIGHTBUTTONRELEASE, PluginSettingsDialogBox::ID_TABLE), &event), 1);
  EXPECT_TRUE(look.done);
  EXPECT_EQ(labels, "Új sor|Törlés|");
  EXPECT_EQ(deleteTarget, &dialog);
  EXPECT_EQ(FXSELID(deleteSelector), static_cast<FX::FXuint>(PluginSettingsDialogBox::ID_DELETE));
  EXPECT_EQ(table->getNumRows(), 1);
  EXPECT_TRUE(table->isNewRow(0));
}

TEST_F(PluginSettingsDialogBoxTest, itsMenuIsUsedByKeyboardToo) {
  DialogUser user(application);
  PluginSettingsDialogBox dialog(&container, application.get());
  DBTable* table = addTable(dialog);
  table->setLayoutHints(FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y);
  table->appendNewRow();
  dialog.resize(400, 300);
  dialog.create();
  dialog.show(FX::PLACEMENT_SCREEN);
  user.giveKeyboardTo(&dialog);
  user.whenModal([&user](FX::FXWindow&) {
    user.key(FX::KEY_Down);
    user.key(FX::KEY_Return);
  });
  user.clickCell(table, 0, 0, 3);
  EXPECT_EQ(user.scriptsLeft(), 0u);
  EXPECT_EQ(table->getNumRows(), 2);
  // The dialog has the keyboard again.
  user.key(FX::KEY_Insert);
  EXPECT_EQ(table->getNumRows(), 3);
}
