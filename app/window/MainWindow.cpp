#include "app/window/MainWindow.h"

#include <algorithm>
#include <csignal>

#include <libintl.h>

#include "app/Backup.h"
#include "app/NewInvoice.h"
#include "app/window/AboutDialog.h"
#include "app/window/Dialogs.h"
#include "app/window/GoodsListFrame.h"
#include "app/window/InvoiceEditForm.h"
#include "app/window/InvoiceListFrame.h"
#include "app/window/OpenWindow.h"
#include "app/window/PageKeys.h"
#include "app/window/RecordedDataFrame.h"
#include "app/window/RowList.h"
#include "app/window/WindowIcons.h"
#include "app/window/Workspace.h"
#include "host/message/FillIn.h"
#include "host/plugin/PluginContainer.h"
#include "host/ui/Legibility.h"
#include "host/ui/WaitCursor.h"

namespace Brontel::App {

using FX::FXint;
using FX::FXMenuCommand;
using FX::FXString;

FXDEFMAP(MainWindow)
mainWindowMap[] = {
    FXMAPFUNC(FX::SEL_CHANGED, MainWindow::ID_CHANGED, MainWindow::onChanged),
    FXMAPFUNC(FX::SEL_CHORE, MainWindow::ID_NOTICES, MainWindow::onNotices),
    FXMAPFUNC(FX::SEL_COMMAND, MainWindow::ID_PAGES, MainWindow::onPageChanged),
    FXMAPFUNCS(FX::SEL_COMMAND, MainWindow::ID_PAGE, MainWindow::ID_PAGE_LAST, MainWindow::onCmdPage),
    FXMAPFUNC(FX::SEL_COMMAND, MainWindow::ID_FIND, MainWindow::onCmdPage),
    FXMAPFUNC(FX::SEL_DOUBLECLICKED, MainWindow::ID_INVOICES, MainWindow::onCmdOpen),
    FXMAPFUNC(FX::SEL_DOUBLECLICKED, MainWindow::ID_FOUND, MainWindow::onCmdOpen),
    FXMAPFUNC(FX::SEL_COMMAND, MainWindow::ID_NEW, MainWindow::onCmdNew),
    FXMAPFUNC(FX::SEL_COMMAND, MainWindow::ID_OPEN, MainWindow::onCmdOpen),
    FXMAPFUNC(FX::SEL_COMMAND, MainWindow::ID_DERIVE, MainWindow::onCmdDerive),
    FXMAPFUNC(FX::SEL_COMMAND, MainWindow::ID_COPY, MainWindow::onCmdCopy),
    FXMAPFUNC(FX::SEL_COMMAND, MainWindow::ID_CLOSE_INVOICE, MainWindow::onCmdCloseInvoice),
    FXMAPFUNC(FX::SEL_COMMAND, MainWindow::ID_STORNO, MainWindow::onCmdStorno),
    FXMAPFUNC(FX::SEL_COMMAND, MainWindow::ID_DELETE_INVOICE, MainWindow::onCmdDeleteInvoice),
    FXMAPFUNC(FX::SEL_COMMAND, MainWindow::ID_PREVIEW, MainWindow::onCmdPreview),
    FXMAPFUNC(FX::SEL_COMMAND, MainWindow::ID_BACKUP, MainWindow::onCmdBackup),
    FXMAPFUNC(FX::SEL_COMMAND, MainWindow::ID_REFRESH, MainWindow::onChanged),
    FXMAPFUNC(FX::SEL_COMMAND, MainWindow::ID_ABOUT, MainWindow::onCmdAbout),
    FXMAPFUNCS(FX::SEL_COMMAND, MainWindow::ID_SETTINGS, MainWindow::ID_SETTINGS_LAST, MainWindow::onCmdSettings),
    FXMAPFUNC(FX::SEL_UPDATE, MainWindow::ID_NEW, MainWindow::onUpdEditable),
    FXMAPFUNC(FX::SEL_UPDATE, MainWindow::ID_OPEN, MainWindow::onUpdChosen),
    FXMAPFUNC(FX::SEL_UPDATE, MainWindow::ID_PREVIEW, MainWindow::onUpdChosen),
    FXMAPFUNCS(FX::SEL_UPDATE, MainWindow::ID_DERIVE, MainWindow::ID_DELETE_INVOICE, MainWindow::onUpdChosenEditable),
};

FXIMPLEMENT_ABSTRACT(MainWindow, FXMainWindow, mainWindowMap, ARRAYNUMBER(mainWindowMap))

namespace {

constexpr FXint kWidth = 900;
constexpr FXint kHeight = 600;
constexpr const char* kSection = "MainWindow";

FX::FXSelector settingsId(size_t index) {
  return MainWindow::ID_SETTINGS + static_cast<FX::FXSelector>(index);
}

}  // namespace

MainWindow::MainWindow(Workspace& workspace, const std::vector<FXString>& notices)
    : FXMainWindow(&workspace.getApp(), "Brontel", nullptr, nullptr, FX::DECOR_ALL, 0, 0, kWidth, kHeight),
      workspace_(workspace),
      actions_(workspace, this),
      notices_(notices),
      withSettings_(workspace.getPlugins().findWithSettings()),
      icon_(makeIcon(getApp(), icon_invoice)) {
  setIcon(icon_.get());
  setMiniIcon(icon_.get());
  setTitle("Brontel - " + FX::FXPath::name(workspace_.getHostDatabase().getPath()));
  makeMenus();
  statusBar_ = new FX::FXStatusBar(this, FX::LAYOUT_SIDE_BOTTOM | FX::LAYOUT_FILL_X);
  statusBar_->getStatusLine()->setNormalText(
      fillIn(gettext("Adatbázis: %s"), {workspace_.getHostDatabase().getPath()}));
  makePages();
  new FX::FXToolTip(getApp());
  workspace_.setListener(this, ID_CHANGED);
  getApp()->addSignal(SIGTERM, this, ID_CLOSE);
  getApp()->addSignal(SIGINT, this, ID_CLOSE);
  getApp()->addSignal(SIGHUP, this, ID_CLOSE);
}

MainWindow::~MainWindow() {
  for (const FXint signal : {SIGTERM, SIGINT, SIGHUP}) getApp()->removeSignal(signal);
  getApp()->removeChore(this, ID_NOTICES);
  workspace_.setListener(nullptr, 0);
}

FX::FXMenuPane* MainWindow::addMenu(FX::FXMenuBar* bar, const FXString& title) {
  menus_.push_back(std::make_unique<FX::FXMenuPane>(this));
  new FX::FXMenuTitle(bar, title, nullptr, menus_.back().get());
  return menus_.back().get();
}

void MainWindow::makeMenus() {
  auto* bar = new FX::FXMenuBar(this, FX::LAYOUT_SIDE_TOP | FX::LAYOUT_FILL_X);
  makeInvoiceMenu(bar);
  makeViewMenu(bar);
  makePluginMenu(bar);
  FX::FXMenuPane* help = addMenu(bar, gettext("Sú&gó"));
  new FXMenuCommand(help, gettext("&Névjegy...\tF1\tA program és a bővítmények."), nullptr, this, ID_ABOUT);
}

void MainWindow::makeInvoiceMenu(FX::FXMenuBar* bar) {
  FX::FXMenuPane* menu = addMenu(bar, gettext("&Számla"));
  new FXMenuCommand(menu, gettext("Ú&j számla\tCtrl+N\tÚj számla nyitása."), nullptr, this, ID_NEW);
  new FXMenuCommand(menu, gettext("&Megnyitás\tCtrl+O\tA kiválasztott számla megnyitása."), nullptr, this, ID_OPEN);
  new FXMenuCommand(menu, gettext("&Nyomtatási kép\tCtrl+P\tA kiválasztott számla, ahogyan nyomtatásban megjelenik."),
                    nullptr, this, ID_PREVIEW);
  new FX::FXMenuSeparator(menu);
  new FXMenuCommand(menu, gettext("&Helyesbítő számla\tCtrl+H\tÚj számla, amely a kiválasztottra hivatkozik."), nullptr,
                    this, ID_DERIVE);
  new FXMenuCommand(menu, gettext("Más&olat\tCtrl+M\tÚj számla a kiválasztott másolataként."), nullptr, this, ID_COPY);
  new FX::FXMenuSeparator(menu);
  new FXMenuCommand(menu, gettext("&Lezárás...\tCtrl+L\tA kiválasztott számla ellenőrzése és lezárása."), nullptr, this,
                    ID_CLOSE_INVOICE);
  new FXMenuCommand(menu, gettext("S&tornózás...\tCtrl+T\tA kiválasztott lezárt számla stornózása."), nullptr, this,
                    ID_STORNO);
  new FXMenuCommand(menu, gettext("Tö&rlés...\tCtrl+Del\tA kiválasztott nyitott számla törlése."),
                    workspace_.getApp().getDeleteIcon(), this, ID_DELETE_INVOICE);
  new FX::FXMenuSeparator(menu);
  new FXMenuCommand(menu, gettext("&Biztonsági mentés...\tCtrl+B\tAz adatbázis másolata egy új fájlba."), nullptr, this,
                    ID_BACKUP);
  new FX::FXMenuSeparator(menu);
  new FXMenuCommand(menu, gettext("&Kilépés\tCtrl+Q\tKilépés a programból."), nullptr, this, ID_CLOSE);
}

void MainWindow::makeViewMenu(FX::FXMenuBar* bar) {
  FX::FXMenuPane* menu = addMenu(bar, gettext("&Nézet"));
  const FX::FXchar* const entries[PAGES] = {
      gettext("&Számlák\tCtrl+1\tA számlák listája."), gettext("&Termékek\tCtrl+2\tA termékek listája."),
      gettext("S&zolgáltatások\tCtrl+3\tA szolgáltatások listája."),
      gettext("&Készletek\tCtrl+4\tA készletek listája."),
      gettext("&Rögzített adatok\tCtrl+5\tKeresés a rögzített tételadatok között.")};
  for (FX::FXSelector page = 0; page < PAGES; ++page) {
    new FXMenuCommand(menu, entries[page], nullptr, this, ID_PAGE + page);
  }
  new FX::FXMenuSeparator(menu);
  new FXMenuCommand(menu, gettext("Ker&esés\tCtrl+F\tHol szerepel egy rögzített érték."), nullptr, this, ID_FIND);
  new FXMenuCommand(menu, gettext("&Frissítés\tF5\tA listák beolvasása újra."), nullptr, this, ID_REFRESH);
}

void MainWindow::makePluginMenu(FX::FXMenuBar* bar) {
  if (withSettings_.empty()) return;
  FX::FXMenuPane* menu = addMenu(bar, gettext("&Bővítmények"));
  const size_t count = std::min<size_t>(withSettings_.size(), ID_SETTINGS_LAST - ID_SETTINGS + 1);
  for (size_t i = 0; i < count; ++i) {
    FXString name = withSettings_[i]->getName();
    name.substitute("&", "&&").substitute('\t', ' ');
    // The first nine have a key of their own.
    const FXString key = i < 9 ? "Alt+" + FX::FXStringVal(static_cast<FXint>(i + 1)) : FXString();
    new FXMenuCommand(menu, fillIn(gettext("%s beállításai...\t%s\tA bővítmény beállításai."), {name, key}),
                      withSettings_[i]->getIcon16(), this, settingsId(i));
  }
}

void MainWindow::makePages() {
  pages_ = new FX::FXTabBook(this, this, ID_PAGES, FX::TABBOOK_NORMAL | FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y);
  const auto makePage = [&](const FXString& title) {
    new FX::FXTabItem(pages_, title);
    return new FX::FXVerticalFrame(pages_, FX::FRAME_RAISED | FX::FRAME_THICK | FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y,
                                   0, 0, 0, 0, 0, 0, 0, 0);
  };
  invoices_ = new InvoiceListFrame(makePage(gettext("Számlák")), workspace_, this, ID_INVOICES);
  goods_.push_back(new GoodsListFrame(makePage(gettext("Termékek")), workspace_, GOODS_PRODUCT));
  goods_.push_back(new GoodsListFrame(makePage(gettext("Szolgáltatások")), workspace_, GOODS_SERVICE));
  goods_.push_back(new GoodsListFrame(makePage(gettext("Készletek")), workspace_, GOODS_SUITE));
  found_ = new RecordedDataFrame(makePage(gettext("Rögzített adatok")), workspace_, this, ID_FOUND);
}

void MainWindow::create() {
  icon_->create();
  for (Plugin::PluginContainer* container : withSettings_) {
    if (FX::FXIcon* icon = container->getIcon16()) icon->create();
  }
  invoices_->refresh();
  restorePlace();
  FXMainWindow::create();
  show();
  showPage(getApp()->reg().readIntEntry(kSection, "page", PAGE_INVOICES));
  if (!notices_.empty()) getApp()->addChore(this, ID_NOTICES);
}

void MainWindow::restorePlace() {
  FX::FXSettings& settings = getApp()->reg();
  const FXint width = settings.readIntEntry(kSection, "width", scaledToFont(getApp(), kWidth));
  const FXint height = settings.readIntEntry(kSection, "height", scaledToFont(getApp(), kHeight));
  placeOnScreen(*this, settings.readIntEntry(kSection, "x", (getRoot()->getWidth() - width) / 2),
                settings.readIntEntry(kSection, "y", (getRoot()->getHeight() - height) / 2), width, height);
}

void MainWindow::savePlace() {
  FX::FXSettings& settings = getApp()->reg();
  settings.writeIntEntry(kSection, "x", getX());
  settings.writeIntEntry(kSection, "y", getY());
  settings.writeIntEntry(kSection, "width", getWidth());
  settings.writeIntEntry(kSection, "height", getHeight());
  settings.writeIntEntry(kSection, "page", getPage());
  invoices_->getList()->saveLayout();
  for (const GoodsListFrame* goods : goods_) goods->saveLayout();
  found_->getList()->saveLayout();
}

FX::FXbool MainWindow::close(FX::FXbool notify) {
  // A box that waits for an answer comes first. One that is not shown any more waits for none.
  const FX::FXWindow* box = getApp()->getModalWindow();
  if ((box != nullptr && box->shown()) || !workspace_.closeWindows()) return FALSE;
  savePlace();
  return FXMainWindow::close(notify);
}

void MainWindow::showPage(FXint page) {
  pages_->setCurrent(std::clamp<FXint>(page, 0, PAGES - 1));
  refreshPage();
  FX::FXWindow* const first = getPage() == PAGE_INVOICES ? static_cast<FX::FXWindow*>(invoices_->getList())
                              : getPage() == PAGE_FIND   ? found_->getSearchField()
                                                         : nullptr;
  if (first != nullptr) {
    first->setFocus();
  } else {
    goods_[static_cast<size_t>(getPage() - PAGE_PRODUCTS)]->getSearchField()->setFocus();
  }
}

void MainWindow::refreshPage() {
  listenToKeysOf(*pages_, getPage());
  switch (getPage()) {
    case PAGE_INVOICES:
      return invoices_->refresh();
    case PAGE_FIND:
      return found_->refresh();
    default:
      return goods_[static_cast<size_t>(getPage() - PAGE_PRODUCTS)]->refresh();
  }
}

int MainWindow::getChosen() const {
  if (getPage() == PAGE_INVOICES) return invoices_->getList()->getCurrentId();
  return getPage() == PAGE_FIND ? found_->getInvoiceId() : 0;
}

long MainWindow::onChanged(FX::FXObject*, FX::FXSelector, void*) {
  refreshPage();
  return 1;
}

long MainWindow::onNotices(FX::FXObject*, FX::FXSelector, void*) {
  FXString text;
  for (const FXString& notice : notices_) text += text.empty() ? notice : "\n\n" + notice;
  notices_.clear();
  Dialogs::showInformation(this, gettext("Figyelmeztetés"), text);
  return 1;
}

long MainWindow::onPageChanged(FX::FXObject*, FX::FXSelector, void*) {
  refreshPage();
  return 1;
}

long MainWindow::onCmdPage(FX::FXObject*, FX::FXSelector sel, void*) {
  showPage(FXSELID(sel) == ID_FIND ? static_cast<FXint>(PAGE_FIND) : static_cast<FXint>(FXSELID(sel)) - ID_PAGE);
  return 1;
}

long MainWindow::onCmdNew(FX::FXObject*, FX::FXSelector, void*) {
  actions_.createNew();
  return 1;
}

long MainWindow::onCmdOpen(FX::FXObject*, FX::FXSelector, void*) {
  // Once the form is open, the search may have been made again.
  const int item = getPage() == PAGE_FIND ? found_->getItemId() : 0;
  const int id = getChosen();
  InvoiceEditForm* form = id == 0 ? nullptr : actions_.open(id);
  if (form != nullptr && item != 0) form->goToItem(item);
  return 1;
}

long MainWindow::onCmdDerive(FX::FXObject*, FX::FXSelector, void*) {
  if (const int id = getChosen()) actions_.derive(id);
  return 1;
}

long MainWindow::onCmdCopy(FX::FXObject*, FX::FXSelector, void*) {
  if (const int id = getChosen()) actions_.copy(id);
  return 1;
}

long MainWindow::onCmdCloseInvoice(FX::FXObject*, FX::FXSelector, void*) {
  if (const int id = getChosen()) actions_.closeInvoice(id);
  return 1;
}

long MainWindow::onCmdStorno(FX::FXObject*, FX::FXSelector, void*) {
  if (const int id = getChosen()) actions_.storno(id);
  return 1;
}

long MainWindow::onCmdDeleteInvoice(FX::FXObject*, FX::FXSelector, void*) {
  if (const int id = getChosen()) actions_.remove(id);
  return 1;
}

long MainWindow::onCmdPreview(FX::FXObject*, FX::FXSelector, void*) {
  if (const int id = getChosen()) actions_.preview(id);
  return 1;
}

long MainWindow::onCmdBackup(FX::FXObject*, FX::FXSelector, void*) {
  const FXString title = gettext("Biztonsági mentés");
  const FXString file =
      Dialogs::askForFile(this, title, "brontel-" + today() + ".db", gettext("Adatbázisok (*.db)\nMinden fájl (*)"));
  if (file.empty()) return 1;
  FXString error;
  {
    const WaitCursor wait(getApp());
    error = backUp(workspace_.getHostDatabase(), file);
  }
  if (workspace_.showErrors(this)) return 1;
  if (error.empty()) {
    Dialogs::showInformation(this, title, fillIn(gettext("Elkészült a mentés:\n%s"), {file}));
  } else {
    Dialogs::showError(this, error);
  }
  return 1;
}

// What settings change underneath an open form has to be read by it again, which would lose what is typed there.
bool MainWindow::saveAllForSettings(const FXString& settings) {
  for (OpenWindow* window : workspace_.getWindows()) {
    if (!window->hasUnsavedChanges()) continue;
    const FXString question = fillIn(gettext("A beállításokhoz (%s) előbb menteni kell ezt az ablakot:\n%s\n\nMenti?"),
                                     {settings, window->getWindow()->getTitle()});
    if (!Dialogs::confirm(this, gettext("Mentetlen változások"), question) || !window->saveChanges()) return false;
  }
  return true;
}

long MainWindow::onCmdSettings(FX::FXObject*, FX::FXSelector sel, void*) {
  const size_t index = FXSELID(sel) - ID_SETTINGS;
  if (index >= withSettings_.size()) return 0;
  Plugin::PluginContainer* container = withSettings_[index];
  if (!saveAllForSettings(container->getName())) return 1;
  container->onSettings(this, FXSEL(FX::SEL_COMMAND, 0), nullptr);
  workspace_.showErrors(this);
  const std::vector<OpenWindow*> windows = workspace_.getWindows();
  for (OpenWindow* window : windows) window->reload();
  refreshPage();
  return 1;
}

long MainWindow::onCmdAbout(FX::FXObject*, FX::FXSelector, void*) {
  AboutDialog(this, workspace_).execute(FX::PLACEMENT_OWNER);
  return 1;
}

long MainWindow::onUpdChosen(FX::FXObject* sender, FX::FXSelector, void*) {
  sender->handle(this, FXSEL(FX::SEL_COMMAND, getChosen() != 0 ? ID_ENABLE : ID_DISABLE), nullptr);
  return 1;
}

long MainWindow::onUpdChosenEditable(FX::FXObject* sender, FX::FXSelector, void*) {
  const bool isEnabled = getChosen() != 0 && workspace_.isEditable();
  sender->handle(this, FXSEL(FX::SEL_COMMAND, isEnabled ? ID_ENABLE : ID_DISABLE), nullptr);
  return 1;
}

long MainWindow::onUpdEditable(FX::FXObject* sender, FX::FXSelector, void*) {
  sender->handle(this, FXSEL(FX::SEL_COMMAND, workspace_.isEditable() ? ID_ENABLE : ID_DISABLE), nullptr);
  return 1;
}

}  // namespace Brontel::App
