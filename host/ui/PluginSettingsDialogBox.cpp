#include "host/ui/PluginSettingsDialogBox.h"

#include <fxkeys.h>
#include <libintl.h>

#include "host/plugin/PluginContainer.h"
#include "host/ui/DBTable.h"
#include "host/ui/KeyboardMenu.h"
#include "host/ui/Legibility.h"
#include "host/ui/Morvane.h"

namespace Brontel::Plugin::UI {

using FX::FXString;

FXDEFMAP(PluginSettingsDialogBox)
pluginSettingsDialogBoxMap[] = {
    FXMAPFUNC(FX::SEL_CLOSE, 0, PluginSettingsDialogBox::onClose),
    FXMAPFUNC(FX::SEL_KEYPRESS, 0, PluginSettingsDialogBox::onKeyPress),
    FXMAPFUNC(FX::SEL_RIGHTBUTTONRELEASE, PluginSettingsDialogBox::ID_TABLE, PluginSettingsDialogBox::onContextMenu),
    FXMAPFUNC(FX::SEL_KEYPRESS, PluginSettingsDialogBox::ID_TABLE, PluginSettingsDialogBox::onTableKey),
    FXMAPFUNC(FX::SEL_COMMAND, PluginSettingsDialogBox::ID_NEW_ROW, PluginSettingsDialogBox::onCmdNewRow),
    FXMAPFUNC(FX::SEL_UPDATE, PluginSettingsDialogBox::ID_NEW_ROW, PluginSettingsDialogBox::onUpdNewRow),
    FXMAPFUNC(FX::SEL_COMMAND, PluginSettingsDialogBox::ID_DELETE_ROWS, PluginSettingsDialogBox::onCmdDeleteRows),
    FXMAPFUNC(FX::SEL_UPDATE, PluginSettingsDialogBox::ID_DELETE_ROWS, PluginSettingsDialogBox::onUpdDeleteRows),
};

FXIMPLEMENT(PluginSettingsDialogBox, FXDialogBox, pluginSettingsDialogBoxMap, ARRAYNUMBER(pluginSettingsDialogBoxMap))

namespace {

FX::FXWindow* ownerFor(FX::FXApp* app) {
  FX::FXWindow* active = app->getActiveWindow();
  return active != nullptr && active->id() != 0 ? active : app->getRootWindow();
}

DBTable* findTableIn(const FX::FXWindow* parent, const FX::FXObject* target) {
  for (FX::FXWindow* child = parent->getFirst(); child != nullptr; child = child->getNext()) {
    auto* table = dynamic_cast<DBTable*>(child);
    const bool isIt = table != nullptr && table->getTarget() == target &&
                      table->getSelector() == static_cast<FX::FXSelector>(PluginSettingsDialogBox::ID_TABLE);
    if (isIt) return table;
    table = findTableIn(child, target);
    if (table != nullptr) return table;
  }
  return nullptr;
}

/// Asks, as a button would, whether a command can be given now.
class Asker : public FX::FXObject {
 public:
  long handle(FX::FXObject*, FX::FXSelector sel, void*) override {
    if (sel == FXSEL(FX::SEL_COMMAND, FX::FXWindow::ID_ENABLE)) enabled = true;
    if (sel == FXSEL(FX::SEL_COMMAND, FX::FXWindow::ID_DISABLE)) enabled = false;
    return 1;
  }

  bool enabled = false;
};

// Deleting concerns the selection, which the keyboard's moves take away.
void selectSomething(DBTable& table) {
  if (table.getSelStartRow() < 0 && table.getCurrentRow() >= 0) table.selectRow(table.getCurrentRow(), TRUE);
}

// A click beside the selection means the row under the pointer.
void goToRowAt(DBTable& table, FX::FXint y) {
  const FX::FXint row = table.rowAtY(y);
  const bool isSelected = table.getSelStartRow() <= row && row <= table.getSelEndRow();
  if (row < 0 || row >= table.getNumRows() || isSelected) return;
  table.killSelection(TRUE);
  table.setCurrentItem(row, table.getCurrentColumn() < 0 ? 0 : table.getCurrentColumn(), TRUE);
  table.setAnchorItem(row, table.getCurrentColumn());
}

void showOrHide(FX::FXObject* sender, FX::FXObject* self, bool shown) {
  sender->handle(self, FXSEL(FX::SEL_COMMAND, shown ? FX::FXWindow::ID_SHOW : FX::FXWindow::ID_HIDE), nullptr);
}

}  // namespace

PluginSettingsDialogBox::PluginSettingsDialogBox(PluginContainer* container, FX::FXApp* app)
    : FXDialogBox(ownerFor(app), container == nullptr ? FXString() : container->getName(), FX::DECOR_ALL),
      container_(container) {
  // First: what fills the dialog takes all that is left when its turn comes.
  buildFoot(dynamic_cast<Morvane*>(app));
  contentFrame_ = new FX::FXVerticalFrame(this, FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y, 0, 0, 0, 0, 0, 0, 0, 0);
}

void PluginSettingsDialogBox::buildFoot(const Morvane* app) {
  constexpr FX::FXuint kBottom = FX::LAYOUT_SIDE_BOTTOM | FX::LAYOUT_FILL_X;
  constexpr FX::FXuint kRowButton = FX::BUTTON_NORMAL | FX::ICON_BEFORE_TEXT;
  constexpr FX::FXuint kEndButton = FX::BUTTON_NORMAL | FX::LAYOUT_RIGHT;
  // The dialog does not grow with the letters: very big ones leave no room beside the words.
  const bool isTight = scaledToFont(getApp(), 100) > 150;
  const FX::FXint pad = isTight ? 6 : 20;
  const FX::FXuint packing = isTight ? FX::PACK_NORMAL : FX::PACK_UNIFORM_WIDTH;
  auto* buttons = new FX::FXHorizontalFrame(this, kBottom);
  new FX::FXHorizontalSeparator(this, FX::SEPARATOR_GROOVE | kBottom);
  new FX::FXButton(buttons, gettext("Új &sor\tÚj sor (Ins)"), app == nullptr ? nullptr : app->getNewRowIcon(), this,
                   ID_NEW_ROW, kRowButton, 0, 0, 0, 0, 6, 6, 2, 2);
  new FX::FXButton(buttons, gettext("&Törlés\tA kijelölt sorok törlése (Del)"),
                   app == nullptr ? nullptr : app->getDeleteIcon(), this, ID_DELETE_ROWS, kRowButton, 0, 0, 0, 0, 6, 6,
                   2, 2);
  auto* ends = new FX::FXHorizontalFrame(buttons, FX::LAYOUT_RIGHT | packing, 0, 0, 0, 0, 0, 0, 0, 0);
  new FX::FXButton(ends, gettext("Mé&gsem"), nullptr, this, ID_CANCEL, kEndButton, 0, 0, 0, 0, pad, pad, 2, 2);
  new FX::FXButton(ends, gettext("&OK"), nullptr, this, ID_ACCEPT, kEndButton | FX::BUTTON_INITIAL, 0, 0, 0, 0, pad,
                   pad, 2, 2);
}

PluginSettingsDialogBox::~PluginSettingsDialogBox() = default;

void PluginSettingsDialogBox::show(FX::FXuint placement) {
  FXDialogBox::show(placement);
  DBTable* table = findTable();
  if (table == nullptr) return;
  table->setFocus();
  // Rows that come into an empty table make FOX's current cell one without column.
  const bool hasCurrent = table->getCurrentRow() >= 0 && table->getCurrentColumn() >= 0;
  if (hasCurrent || table->getNumRows() == 0) return;
  table->setCurrentItem(0, 0, TRUE);
  table->handle(this, FXSEL(FX::SEL_COMMAND, DBTable::ID_MARK), nullptr);
}

FX::FXuint PluginSettingsDialogBox::resume() {
  if (!shown()) FXDialogBox::show();
  getApp()->refresh();
  return getApp()->runModalFor(this);
}

DBTable* PluginSettingsDialogBox::findTable() const {
  return contentFrame_ == nullptr ? nullptr : findTableIn(contentFrame_, this);
}

// Neither the cross in the frame nor a key pressed by accident says, as Cancel does, that nothing is to be kept.
long PluginSettingsDialogBox::onClose(FX::FXObject* sender, FX::FXSelector, void* ptr) {
  DBTable* table = findTable();
  if (table != nullptr) table->acceptInput(TRUE);
  if (table != nullptr && table->hasChanges()) {
    const FX::FXuint answer = FX::FXMessageBox::question(this, FX::MBOX_YES_NO, gettext("Mentetlen változások"), "%s",
                                                         gettext("A változások elvesznek. Valóban bezárja?"));
    if (answer != FX::MBOX_CLICKED_YES) return 1;
  }
  return handle(sender, FXSEL(FX::SEL_COMMAND, ID_CANCEL), ptr);
}

long PluginSettingsDialogBox::onKeyPress(FX::FXObject* sender, FX::FXSelector sel, void* ptr) {
  if (FXTopWindow::onKeyPress(sender, sel, ptr) != 0) return 1;
  return static_cast<const FX::FXEvent*>(ptr)->code == FX::KEY_Escape ? onClose(sender, 0, ptr) : 0;
}

long PluginSettingsDialogBox::onContextMenu(FX::FXObject* sender, FX::FXSelector, void* ptr) {
  auto* table = dynamic_cast<DBTable*>(sender);
  const auto* event = static_cast<const FX::FXEvent*>(ptr);
  if (table == nullptr || event == nullptr || event->moved) return 0;
  table->acceptInput(TRUE);
  goToRowAt(*table, event->win_y);
  selectSomething(*table);
  const auto* app = dynamic_cast<Morvane*>(getApp());
  KeyboardMenu pane(this);
  new FX::FXMenuCommand(&pane, gettext("Új &sor\tIns"), app == nullptr ? nullptr : app->getNewRowIcon(), table,
                        DBTable::ID_NEW_ROW);
  new FX::FXMenuCommand(&pane, gettext("&Törlés\tDel"), app == nullptr ? nullptr : app->getDeleteIcon(), this,
                        ID_DELETE);
  pane.create();
  pane.popup(nullptr, event->root_x, event->root_y);
  getApp()->runModalWhileShown(&pane);
  return 1;
}

// The table would take Del for a character to type.
long PluginSettingsDialogBox::onTableKey(FX::FXObject* sender, FX::FXSelector, void* ptr) {
  const auto* event = static_cast<const FX::FXEvent*>(ptr);
  if (event == nullptr || (event->state & (FX::SHIFTMASK | FX::CONTROLMASK | FX::ALTMASK)) != 0) return 0;
  if (event->code == FX::KEY_Insert || event->code == FX::KEY_KP_Insert) {
    return handle(sender, FXSEL(FX::SEL_COMMAND, ID_NEW_ROW), nullptr);
  }
  if (event->code != FX::KEY_Delete && event->code != FX::KEY_KP_Delete) return 0;
  if (canDelete()) return handle(sender, FXSEL(FX::SEL_COMMAND, ID_DELETE_ROWS), nullptr);
  getApp()->beep();
  return 1;
}

bool PluginSettingsDialogBox::canDelete() {
  Asker asker;
  handle(&asker, FXSEL(FX::SEL_UPDATE, ID_DELETE_ROWS), nullptr);
  return asker.enabled;
}

long PluginSettingsDialogBox::onCmdNewRow(FX::FXObject* sender, FX::FXSelector, void*) {
  DBTable* table = findTable();
  return table == nullptr ? 0 : table->handle(sender, FXSEL(FX::SEL_COMMAND, DBTable::ID_NEW_ROW), nullptr);
}

long PluginSettingsDialogBox::onUpdNewRow(FX::FXObject* sender, FX::FXSelector, void*) {
  showOrHide(sender, this, findTable() != nullptr);
  return 1;
}

long PluginSettingsDialogBox::onCmdDeleteRows(FX::FXObject* sender, FX::FXSelector, void* ptr) {
  DBTable* table = findTable();
  if (table == nullptr) return 0;
  table->acceptInput(TRUE);
  selectSomething(*table);
  return handle(sender, FXSEL(FX::SEL_COMMAND, ID_DELETE), ptr);
}

long PluginSettingsDialogBox::onUpdDeleteRows(FX::FXObject* sender, FX::FXSelector, void* ptr) {
  const DBTable* table = findTable();
  showOrHide(sender, this, table != nullptr);
  const bool hasRow = table != nullptr && table->getCurrentRow() >= 0;
  if (!hasRow || handle(sender, FXSEL(FX::SEL_UPDATE, ID_DELETE), ptr) == 0) {
    sender->handle(this, FXSEL(FX::SEL_COMMAND, FX::FXWindow::ID_DISABLE), nullptr);
  }
  return 1;
}

}  // namespace Brontel::Plugin::UI
