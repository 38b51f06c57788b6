#include "ui/ItemDataSettingsPanel.h"

#include <algorithm>

#include <libintl.h>

#include "host/database/DataBaseValueLoader.h"
#include "host/database/Statement.h"
#include "host/ui/DBTable.h"
#include "host/ui/Legibility.h"
#include "host/ui/Morvane.h"
#include "host/ui/WaitCursor.h"
#include "itemdata/Codes.h"
#include "ui/ItemDataSettingsPersister.h"

namespace Brontel::Plugin::ItemData {

using FX::FXint;
using FX::FXString;
using FX::FXuint;

FXDEFMAP(ItemDataSettingsPanel)
itemDataSettingsPanelMap[] = {
    FXMAPFUNC(FX::SEL_COMMAND, ItemDataSettingsPanel::ID_DELETE, ItemDataSettingsPanel::onDelete),
    FXMAPFUNC(FX::SEL_UPDATE, ItemDataSettingsPanel::ID_DELETE, ItemDataSettingsPanel::isDeleteEnabled),
    FXMAPFUNC(FX::SEL_COMMAND, FX::FXDialogBox::ID_ACCEPT, ItemDataSettingsPanel::onOKButton),
};

FXIMPLEMENT(ItemDataSettingsPanel, ::Brontel::Plugin::UI::PluginSettingsDialogBox, itemDataSettingsPanelMap,
            ARRAYNUMBER(itemDataSettingsPanelMap))

namespace {

static_assert(ItemDataSettingsPanel::ID_DELETE == 90);
static_assert(ItemDataSettingsPanel::ID_TABLE == 103);
static_assert(static_cast<int>(FX::FXDialogBox::ID_ACCEPT) == 61);

enum Column { NAME, TYPE, PER_UNIT, MANDATORY, PARAMETER, COLUMNS };

constexpr const char* kLoad =
    "select t_itemvariable_id, name, type, process, mandatory, vvalue from t_itemvariable where type < 100 and type>0;";
constexpr const char* kUses =
    "select count(*) from t_itemvariable left join t_productitemdata pid on t_itemvariable_id=pid.t_itemvariable_1 "
    "left join t_serviceitemdata sid on t_itemvariable_id=sid.t_itemvariable_1 left join t_suiteitemdata suid on "
    "t_itemvariable_id=suid.t_itemvariable_1 where pid.t_itemvariable_1=%id or sid.t_itemvariable_1=%id or "
    "suid.t_itemvariable_1=%id;";

MorvaneDatabase* databaseOf(FX::FXApp* app) {
  const auto* host = dynamic_cast<Morvane*>(app);
  return host == nullptr ? nullptr : host->getDB();
}

}  // namespace

ItemDataSettingsPanel::ItemDataSettingsPanel(PluginContainer* container, FX::FXApp* app)
    : PluginSettingsDialogBox(container, app), database_(databaseOf(app)), app_(app) {
  constexpr FXuint kFill = FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y;
  auto* frame = new FX::FXHorizontalFrame(getContentFrame(), kFill | FX::FRAME_LINE, 0, 0, 0, 0, 0, 0, 0, 0, 4, 4);
  table_ = new DBTable(frame, this, ID_TABLE, FX::TABLE_COL_SIZABLE | kFill, 0, 0, 0, 0, 2, 2, 2, 2);
  // The keys mean nothing to people.
  table_->setRowHeaderMode(FX::LAYOUT_FIX_WIDTH);
  table_->setRowHeaderWidth(0);
}

void ItemDataSettingsPanel::create() {
  PluginSettingsDialogBox::create();
  setColumnTexts();
  const WaitCursor waiting(app_);
  askedId_ = 0;
  const auto loader = table_->createLoader();
  Statement(database_, kLoad).execute(loader.get(), 1);
}

void ItemDataSettingsPanel::setColumnTexts() {
  table_->setTableSize(0, COLUMNS);
  // FOX's own height cuts what reaches below the line.
  constexpr FXint kHeaderMargin = 8;
  if (table_->getFont()->id() != 0) {
    table_->setColumnHeaderMode(FX::LAYOUT_FIX_HEIGHT);
    table_->setColumnHeaderHeight(table_->getFont()->getFontHeight() + kHeaderMargin);
  }
  setColumn(NAME, dgettext(kTextDomain, "Név"), 140);
  setColumn(TYPE, dgettext(kTextDomain, "Típus"), 70);
  setColumn(PER_UNIT, dgettext(kTextDomain, "Egységenként rögzítendő"), 60);
  setColumn(MANDATORY, dgettext(kTextDomain, "Kötelező"), 60);
  setColumn(PARAMETER, dgettext(kTextDomain, "Paraméter"), 100);
  table_->setColumnValues(TYPE, dgettext(kTextDomain, "1\tSzöveg\n2\tDátum\n3\tLista"), true);
  table_->setColumnType(PER_UNIT, DBTable::COLUMN_YESNO);
  table_->setColumnType(MANDATORY, DBTable::COLUMN_YESNO);
}

// The header has to fit; how wide it is, only a font on the display can tell.
void ItemDataSettingsPanel::setColumn(int column, const FXString& text, int leastWidth) {
  constexpr FXint kMargins = 16;
  table_->setColumnText(column, text);
  const FX::FXFont* font = table_->getFont();
  const FXint textWidth = font->id() == 0 ? 0 : font->getTextWidth(text) + kMargins;
  table_->setColumnWidth(column, std::max(scaledToFont(getApp(), leastWidth), textWidth));
}

bool ItemDataSettingsPanel::save(ItemDataSettingsPersister* persister) {
  table_->saveToDB(persister);
  return true;
}

FXString ItemDataSettingsPanel::getOvertakenNames() const {
  DBTable::Rows stored;
  const auto collector = table_->createCollector(stored);
  if (Statement(database_, kLoad).execute(collector.get(), 1) == 0) return FXString();
  FXString names;
  for (const FXString& name : table_->findOvertaken(stored)) names += (names.empty() ? "" : "\n") + name;
  return names;
}

long ItemDataSettingsPanel::onDelete(FX::FXObject*, FX::FXSelector, void*) {
  table_->acceptInput(TRUE);
  const FXint start = table_->getSelStartRow();
  const FXint end = table_->getSelEndRow();
  if (start < 0 || end < start) return 1;
  const FXuint answer =
      FX::FXMessageBox::question(this, FX::MBOX_YES_NO, dgettext(kTextDomain, "Törlés a táblázatból"), "%s",
                                 dgettext(kTextDomain, "Biztos, hogy törli a kijelölt sorokat?"));
  if (answer != FX::MBOX_CLICKED_YES) return 1;
  for (FXint row = start; row <= end; ++row) {
    if (!table_->isNewRow(row)) table_->appendDeletedId(table_->getRowId(row));
  }
  table_->removeRows(start, end - start + 1, FALSE);
  return 1;
}

long ItemDataSettingsPanel::isDeleteEnabled(FX::FXObject* sender, FX::FXSelector, void*) {
  const FXint row = table_->getCurrentRow();
  if (sender == nullptr || row < 0 || row >= table_->getNumRows()) return 1;
  const FXuint answer = isUsed(table_->getRowId(row)) ? FX::FXWindow::ID_DISABLE : FX::FXWindow::ID_ENABLE;
  sender->handle(this, FXSEL(FX::SEL_COMMAND, answer), nullptr);
  return 1;
}

// Asked many times a second, the database would be asked as often.
bool ItemDataSettingsPanel::isUsed(int id) {
  if (id == askedId_) return askedUsed_;
  Statement uses(database_, kUses);
  uses.setInt("id", id);
  askedUsed_ = uses.queryInt(0) != 0;
  askedId_ = id;
  return askedUsed_;
}

long ItemDataSettingsPanel::onOKButton(FX::FXObject* sender, FX::FXSelector sel, void* ptr) {
  table_->acceptInput(TRUE);
  return checkItemList() ? onCmdAccept(sender, sel, ptr) : 1;
}

bool ItemDataSettingsPanel::checkItemList() {
  FXint row = 0;
  while (row < table_->getNumRows() && findFault(row) < 0) ++row;
  if (row == table_->getNumRows()) return true;
  FX::FXMessageBox::information(this, FX::MBOX_OK, dgettext(kTextDomain, "A lista elemei hiányosak!"), "%s",
                                dgettext(kTextDomain, "Kérem töltse ki a hiányzó adatokat!"));
  table_->killSelection(TRUE);
  table_->setCurrentItem(row, findFault(row), TRUE);
  table_->handle(this, FXSEL(FX::SEL_COMMAND, DBTable::ID_MARK), nullptr);
  table_->makePositionVisible(row, findFault(row));
  table_->setFocus();
  return false;
}

// The column that is not filled in, or -1.
int ItemDataSettingsPanel::findFault(int row) const {
  if (table_->getStoredValue(row, NAME).empty()) return NAME;
  const FXString type = table_->getStoredValue(row, TYPE);
  if (type.empty()) return TYPE;
  const bool wantsElements = type == FX::FXStringVal(static_cast<FXint>(TYPE_LIST));
  return wantsElements && table_->getStoredValue(row, PARAMETER).empty() ? PARAMETER : -1;
}

}  // namespace Brontel::Plugin::ItemData
