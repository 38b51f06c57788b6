#include "host/ui/GoodsDataWindow.h"

#include <fxkeys.h>
#include <libintl.h>

#include "host/database/MorvaneDatabase.h"
#include "host/database/Transaction.h"
#include "host/entity/TypedDecimal.h"
#include "host/message/FillIn.h"
#include "host/ui/Legibility.h"

namespace Brontel {

using FX::FXint;
using FX::FXString;
using FX::FXTextField;
using FX::FXuint;
using Result = GoodsRepository::Result;

FXDEFMAP(GoodsDataWindow)
goodsDataWindowMap[] = {
    FXMAPFUNC(FX::SEL_COMMAND, GoodsDataWindow::ID_OK, GoodsDataWindow::onCmdOK),
    FXMAPFUNC(FX::SEL_COMMAND, GoodsDataWindow::ID_CANCEL, GoodsDataWindow::onCmdCancel),
    FXMAPFUNC(FX::SEL_CHORE, GoodsDataWindow::ID_CLOSE_NOW, GoodsDataWindow::onCloseNow),
};

FXIMPLEMENT_ABSTRACT(GoodsDataWindow, PanelisedWindow, goodsDataWindowMap, ARRAYNUMBER(goodsDataWindowMap))

namespace {

constexpr FXint kWidth = 620;
constexpr FXint kHeight = 520;
constexpr int kFewestLetters = 20;  // of the field that takes the rest of the width

FXString trimmed(const FXTextField* field) {
  return field->getText().trim();
}

}  // namespace

GoodsDataWindow::GoodsDataWindow(FX::FXApp* app, const FXString& title, GoodsKind kind)
    : PanelisedWindow(app, title), kind_(kind), title_(title) {}

GoodsDataWindow::~GoodsDataWindow() {
  if (getApp() != nullptr) getApp()->removeChore(this, ID_CLOSE_NOW);
}

FXString GoodsDataWindow::nameOf(GoodsKind kind) {
  if (kind == GOODS_SERVICE) return gettext("Szolgáltatás");
  return kind == GOODS_SUITE ? gettext("Készlet") : gettext("Termék");
}

FXString GoodsDataWindow::pluralOf(GoodsKind kind) {
  if (kind == GOODS_SERVICE) return gettext("Szolgáltatások");
  return kind == GOODS_SUITE ? gettext("Készletek") : gettext("Termékek");
}

Result GoodsDataWindow::open(MorvaneDatabase& database, const Plugin::PluginRegistry& plugins, int id) {
  database_ = &database;
  plugins_ = &plugins;
  setCurrentId(id);
  record_ = Goods();
  record_.id = id;
  if (!isBuilt_) {
    isBuilt_ = true;
    buildFoot();
    getAccelTable()->addAccel(FX::KEY_Escape, this, FXSEL(FX::SEL_COMMAND, ID_CANCEL));
    resizeToFont(*this, kWidth, kHeight);
  }
  return reload();
}

Result GoodsDataWindow::reload() {
  if (database_ == nullptr) return Result::Failed;
  Goods stored;
  if (record_.id != 0) {
    const Result result = GoodsRepository(*database_, kind_).load(record_.id, stored);
    if (result != Result::Done) return result;
  }
  record_ = stored;
  isSaved_ = false;
  const FXint panel = getTabs() == nullptr ? 0 : getTabs()->getCurrent();
  removePanels();
  buildPanels();
  showRecord();
  if (id() != 0) create();
  if (panel * 2 < getTabs()->numChildren()) getTabs()->setCurrent(panel);
  return Result::Done;
}

void GoodsDataWindow::create() {
  PanelisedWindow::create();
  // The panels have loaded what they show by now.
  if (panelStateBefore_.empty()) panelStateBefore_ = getPluginPanelState();
  // Not earlier: where the system has an input method, a field that is not there yet cannot be given the keyboard.
  if (name_ != nullptr) name_->setFocus();
}

void GoodsDataWindow::buildFoot() {
  auto* buttons = new FX::FXHorizontalFrame(this, FX::LAYOUT_FILL_X | FX::LAYOUT_SIDE_BOTTOM | FX::PACK_UNIFORM_WIDTH);
  constexpr FXuint kButton = FX::BUTTON_NORMAL | FX::LAYOUT_RIGHT;
  new FX::FXButton(buttons, gettext("Mé&gsem"), nullptr, this, ID_CANCEL, kButton, 0, 0, 0, 0, 20, 20, 2, 2);
  new FX::FXButton(buttons, gettext("&OK"), nullptr, this, ID_OK, kButton | FX::BUTTON_INITIAL | FX::BUTTON_DEFAULT, 0,
                   0, 0, 0, 20, 20, 2, 2);
}

void GoodsDataWindow::buildPanels() {
  FX::FXVerticalFrame* panel = addPanel(nameOf(kind_), nullptr);
  auto* fields = new FX::FXMatrix(panel, 2, FX::MATRIX_BY_COLUMNS | FX::LAYOUT_FILL_X);
  code_ = addField(fields, gettext("&Kód:"), 16);
  name_ = addField(fields, gettext("&Név:"), kFewestLetters);
  unit_ = addField(fields, gettext("&Egység:"), 10);
  price_ = addField(fields, gettext("&Ár:"), 14);
  name_->setLayoutHints(FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_COLUMN);
  panelStateBefore_.clear();
  addPluginPanels(*plugins_);
}

FXTextField* GoodsDataWindow::addField(FX::FXComposite* parent, const char* label, int columns) {
  new FX::FXLabel(parent, label, nullptr, FX::LABEL_NORMAL | FX::LAYOUT_CENTER_Y);
  // Enter in a field is as good as OK.
  return new FXTextField(
      parent, columns, this, ID_OK,
      FX::TEXTFIELD_NORMAL | FX::TEXTFIELD_ENTER_ONLY | FX::LAYOUT_CENTER_Y | FX::LAYOUT_FILL_COLUMN);
}

void GoodsDataWindow::showRecord() {
  code_->setText(record_.code);
  name_->setText(record_.name);
  unit_->setText(record_.unit);
  price_->setText(record_.price);
  const FXString shown = record_.id == 0 ? FXString(gettext("új")) : record_.name;
  setTitle((title_.empty() ? nameOf(kind_) : title_) + ": " + shown);
}

Goods GoodsDataWindow::typedRecord() const {
  Goods record = record_;
  record.code = code_->getText();
  record.name = name_->getText();
  record.unit = unit_->getText();
  record.price = price_->getText();
  return record;
}

bool GoodsDataWindow::hasUnsavedChanges() const {
  if (code_ == nullptr || isSaved_ || isClosing_) return false;
  const bool panelsChanged = !panelStateBefore_.empty() && panelStateBefore_ != getPluginPanelState();
  return panelsChanged || !(typedRecord() == record_);
}

bool GoodsDataWindow::refuse(FXTextField* field, const FXString& text) {
  FX::FXMessageBox::information(this, FX::MBOX_OK, gettext("Hiányos adatok"), "%s",
                                wrappedForBox(getApp(), text).text());
  getTabs()->setCurrent(0);
  field->setFocus();
  field->selectAll();
  return false;
}

bool GoodsDataWindow::readPrice(Goods& record) {
  // A price that was stored by something else is nobody's mistake here.
  if (record.price.empty() || record.price == record_.price || readDecimal(record.price, record.price)) return true;
  return refuse(price_,
                fillIn(gettext("Ez nem ár: %s. Legfeljebb 12 egész és 4 tizedes számjegyet írjon."), {record.price}));
}

bool GoodsDataWindow::save() {
  if (database_ == nullptr || code_ == nullptr) return false;
  Goods record = typedRecord();
  record.code = trimmed(code_);
  record.name = trimmed(name_);
  record.unit = trimmed(unit_);
  record.price = trimmed(price_);
  if (record.name.empty()) return refuse(name_, gettext("Adja meg a megnevezést."));
  if (!readPrice(record)) return false;
  if (!store(record)) return false;
  record_ = record;
  isSaved_ = true;
  recordSaved();
  return true;
}

bool GoodsDataWindow::store(Goods& record) {
  const int idBefore = getCurrentId();
  Database::Transaction transaction(*database_);
  if (!transaction.isOpen()) return false;
  const Result result = GoodsRepository(*database_, kind_).save(record);
  if (result == Result::Done) {
    setCurrentId(record.id);
    acceptPanels();
    if (transaction.commit()) return true;
    setCurrentId(idBefore);
  }
  transaction.rollback();
  if (result == Result::Overtaken) {
    const FXString text = gettext(
        "Közben más módosította vagy törölte, ezért a mentés az ő adatait írná felül.\n"
        "Amit itt beírt, megmaradt. Jegyezze fel, zárja be az ablakot, és nyissa meg újra.");
    FX::FXMessageBox::error(this, FX::MBOX_OK, gettext("A mentés nem sikerült"), "%s",
                            wrappedForBox(getApp(), text).text());
  }
  return false;
}

FX::FXbool GoodsDataWindow::close(FX::FXbool notify) {
  if (notify && hasUnsavedChanges()) {
    const FXuint answer = FX::FXMessageBox::question(this, FX::MBOX_SAVE_CANCEL_DONTSAVE, gettext("Mentés"), "%s",
                                                     gettext("A változások nincsenek mentve. Menti őket?"));
    const bool leaves = answer == FX::MBOX_CLICKED_NO || (answer == FX::MBOX_CLICKED_SAVE && save());
    if (!leaves) return FALSE;
  }
  if (!isSaved_) cancelPanels();
  return PanelisedWindow::close(notify);
}

// Not at once: the button that sent the command is a part of the window.
void GoodsDataWindow::closeSoon() {
  isClosing_ = true;
  hide();
  getApp()->addChore(this, ID_CLOSE_NOW);
}

long GoodsDataWindow::onCmdOK(FX::FXObject*, FX::FXSelector, void*) {
  if (!isClosing_ && save()) closeSoon();
  return 1;
}

long GoodsDataWindow::onCmdCancel(FX::FXObject*, FX::FXSelector, void*) {
  if (!hasUnsavedChanges()) {
    closeSoon();
    return 1;
  }
  const FXuint answer = FX::FXMessageBox::question(this, FX::MBOX_YES_NO, gettext("Mégsem"), "%s",
                                                   gettext("A változások elvesznek. Valóban bezárja?"));
  if (answer == FX::MBOX_CLICKED_YES) closeSoon();
  return 1;
}

long GoodsDataWindow::onCloseNow(FX::FXObject*, FX::FXSelector, void*) {
  close(FALSE);
  return 1;
}

}  // namespace Brontel
