#include "app/window/InvoiceEditForm.h"

#include <libintl.h>

#include "app/ErrorText.h"
#include "app/InvoiceXml.h"
#include "app/window/Dialogs.h"
#include "app/window/InvoiceHead.h"
#include "app/window/InvoiceTexts.h"
#include "app/window/ItemEditing.h"
#include "app/window/ItemGrid.h"
#include "app/window/MessagePane.h"
#include "app/window/PrintPreview.h"
#include "app/window/WindowIcons.h"
#include "app/window/Workspace.h"
#include "host/message/FillIn.h"
#include "host/ui/Legibility.h"
#include "host/ui/WaitCursor.h"

namespace Brontel::App {

using FX::FXint;
using FX::FXMenuCommand;
using FX::FXString;
using Result = InvoiceRepository::Result;

FXDEFMAP(InvoiceEditForm)
invoiceEditFormMap[] = {
    FXMAPFUNC(FX::SEL_CHANGED, InvoiceEditForm::ID_HEAD, InvoiceEditForm::onHeadChanged),
    FXMAPFUNC(FX::SEL_COMMAND, InvoiceEditForm::ID_HEAD, InvoiceEditForm::onHeadChanged),
    FXMAPFUNC(FX::SEL_REPLACED, InvoiceEditForm::ID_GRID, InvoiceEditForm::onCellChanged),
    FXMAPFUNC(FX::SEL_RIGHTBUTTONRELEASE, InvoiceEditForm::ID_GRID, InvoiceEditForm::onContextMenu),
    FXMAPFUNC(FX::SEL_DOUBLECLICKED, InvoiceEditForm::ID_MESSAGES, InvoiceEditForm::onRepair),
    FXMAPFUNC(FX::SEL_COMMAND, InvoiceEditForm::ID_SAVE, InvoiceEditForm::onCmdSave),
    FXMAPFUNC(FX::SEL_COMMAND, InvoiceEditForm::ID_CHECK, InvoiceEditForm::onCmdCheck),
    FXMAPFUNC(FX::SEL_COMMAND, InvoiceEditForm::ID_PREVIEW, InvoiceEditForm::onCmdPreview),
    FXMAPFUNC(FX::SEL_COMMAND, InvoiceEditForm::ID_EXPORT, InvoiceEditForm::onCmdExport),
    FXMAPFUNC(FX::SEL_COMMAND, InvoiceEditForm::ID_CLOSE_INVOICE, InvoiceEditForm::onCmdCloseInvoice),
    FXMAPFUNC(FX::SEL_COMMAND, InvoiceEditForm::ID_ADD_ITEM, InvoiceEditForm::onCmdAddItem),
    FXMAPFUNC(FX::SEL_COMMAND, InvoiceEditForm::ID_REMOVE_ITEM, InvoiceEditForm::onCmdRemoveItem),
    FXMAPFUNC(FX::SEL_COMMAND, InvoiceEditForm::ID_ITEM_MENU, InvoiceEditForm::onCmdItemMenu),
    FXMAPFUNC(FX::SEL_UPDATE, InvoiceEditForm::ID_SAVE, InvoiceEditForm::onUpdEditable),
    FXMAPFUNC(FX::SEL_UPDATE, InvoiceEditForm::ID_CLOSE_INVOICE, InvoiceEditForm::onUpdEditable),
    FXMAPFUNC(FX::SEL_UPDATE, InvoiceEditForm::ID_ADD_ITEM, InvoiceEditForm::onUpdEditable),
    FXMAPFUNC(FX::SEL_UPDATE, InvoiceEditForm::ID_REMOVE_ITEM, InvoiceEditForm::onUpdEditable),
};

FXIMPLEMENT_ABSTRACT(InvoiceEditForm, InvoiceForm, invoiceEditFormMap, ARRAYNUMBER(invoiceEditFormMap))

namespace {

constexpr FXint kWidth = 960;
constexpr FXint kHeight = 640;
constexpr FXint kCascade = 24;
constexpr FXint kCascades = 6;
constexpr const char* kSection = "InvoiceForm";

}  // namespace

InvoiceEditForm::InvoiceEditForm(Workspace& workspace, std::unique_ptr<Invoice> invoice)
    : InvoiceForm(&workspace.getApp(), FXString(), FX::DECOR_ALL, kWidth, kHeight),
      workspace_(workspace),
      editor_(workspace, std::move(invoice)),
      icon_(makeIcon(getApp(), icon_invoice)) {
  setIcon(icon_.get());
  setMiniIcon(icon_.get());
  catalogue_.load(workspace_.getDatabase());
  makeMenus();
  statusBar_ = new FX::FXStatusBar(this, FX::LAYOUT_SIDE_BOTTOM | FX::LAYOUT_FILL_X);
  makeButtons();
  head_ = new InvoiceHead(this, this, ID_HEAD);
  auto* splitter =
      new FX::FXSplitter(this, FX::SPLITTER_VERTICAL | FX::SPLITTER_REVERSED | FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y);
  makeItems(splitter);
  auto* bottom = new FX::FXVerticalFrame(splitter, FX::FRAME_SUNKEN | FX::FRAME_THICK, 0, 0, 0,
                                         MessagePane::usualHeight(getApp()), 0, 0, 0, 0);
  messages_ = new MessagePane(bottom, this, ID_MESSAGES);
  items_ = std::make_unique<ItemEditing>(workspace_, *this, editor_, catalogue_, *grid_);
  const FX::FXint step = static_cast<FXint>(workspace_.getWindows().size()) % kCascades * kCascade;
  FX::FXSettings& settings = getApp()->reg();
  placeOnScreen(*this, kCascade + step, kCascade + step,
                settings.readIntEntry(kSection, "width", scaledToFont(getApp(), kWidth)),
                settings.readIntEntry(kSection, "height", scaledToFont(getApp(), kHeight)));
  workspace_.addWindow(this);
  showAll();
}

InvoiceEditForm::~InvoiceEditForm() {
  workspace_.removeWindow(this);
  // Their events know the items, which go next.
  messages_->clearMessages();
}

void InvoiceEditForm::makeMenus() {
  auto* bar = new FX::FXMenuBar(this, FX::LAYOUT_SIDE_TOP | FX::LAYOUT_FILL_X);
  invoiceMenu_ = std::make_unique<FX::FXMenuPane>(this);
  new FX::FXMenuTitle(bar, gettext("&Számla"), nullptr, invoiceMenu_.get());
  FX::FXComposite* menu = invoiceMenu_.get();
  new FXMenuCommand(menu, gettext("&Mentés\tCtrl+S\tA számla mentése."), nullptr, this, ID_SAVE);
  new FXMenuCommand(menu, gettext("&Ellenőrzés\tF8\tA számla ellenőrzése."), nullptr, this, ID_CHECK);
  new FXMenuCommand(menu, gettext("&Nyomtatási kép\tCtrl+P\tA számla, ahogyan nyomtatásban megjelenik."), nullptr, this,
                    ID_PREVIEW);
  new FXMenuCommand(menu, gettext("&XML exportálása...\tCtrl+E\tA számla fájlba, XML-ben."), nullptr, this, ID_EXPORT);
  new FX::FXMenuSeparator(menu);
  new FXMenuCommand(menu, gettext("&Lezárás...\tCtrl+L\tA számla lezárása; azután nem módosítható."), nullptr, this,
                    ID_CLOSE_INVOICE);
  new FX::FXMenuSeparator(menu);
  new FXMenuCommand(menu, gettext("Az &ablak bezárása\tCtrl+W\tAz ablak bezárása."), nullptr, this, ID_CLOSE);
  itemMenu_ = std::make_unique<FX::FXMenuPane>(this);
  new FX::FXMenuTitle(bar, gettext("&Tétel"), nullptr, itemMenu_.get());
  menu = itemMenu_.get();
  new FXMenuCommand(menu, gettext("Ú&j tétel\tIns\tÚj tétel a számla végére."), workspace_.getApp().getNewRowIcon(),
                    this, ID_ADD_ITEM);
  new FXMenuCommand(menu, gettext("Tétel tö&rlése\tCtrl+Del\tA kijelölt tételek törlése."),
                    workspace_.getApp().getDeleteIcon(), this, ID_REMOVE_ITEM);
  new FXMenuCommand(menu, gettext("A tétel &menüje\tShift+F10\tA kijelölt tételek egyéb műveletei."), nullptr, this,
                    ID_ITEM_MENU);
}

void InvoiceEditForm::makeButtons() {
  auto* bar = new FX::FXHorizontalFrame(this, FX::LAYOUT_SIDE_TOP | FX::LAYOUT_FILL_X | FX::FRAME_RAISED, 0, 0, 0, 0, 4,
                                        4, 2, 2, 4, 4);
  const auto add = [&](const FXString& text, FX::FXSelector id) { addButton(bar, text, id); };
  add(gettext("Mentés\tA számla mentése (Ctrl+S)"), ID_SAVE);
  add(gettext("Ellenőrzés\tA számla ellenőrzése (F8)"), ID_CHECK);
  add(gettext("Nyomtatási kép\tA számla, ahogyan nyomtatásban megjelenik (Ctrl+P)"), ID_PREVIEW);
  add(gettext("XML exportálása\tA számla fájlba, XML-ben (Ctrl+E)"), ID_EXPORT);
  add(gettext("Lezárás\tA számla lezárása; azután nem módosítható (Ctrl+L)"), ID_CLOSE_INVOICE);
}

void InvoiceEditForm::makeItems(FX::FXComposite* parent) {
  auto* frame = new FX::FXVerticalFrame(parent, FX::FRAME_SUNKEN | FX::FRAME_THICK, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
  grid_ = new ItemGrid(frame, this, catalogue_, this, ID_GRID);
  auto* bar = new FX::FXHorizontalFrame(frame, FX::LAYOUT_FILL_X, 0, 0, 0, 0, 4, 4, 2, 2, 4, 4);
  addButton(bar, gettext("Új tétel\tÚj tétel a számla végére (Ins)"), ID_ADD_ITEM);
  addButton(bar, gettext("Tétel törlése\tA kijelölt tételek törlése (Ctrl+Del)"), ID_REMOVE_ITEM);
}

void InvoiceEditForm::addButton(FX::FXComposite* parent, const FXString& text, FX::FXSelector id) {
  new FX::FXButton(parent, text, nullptr, this, id, FX::BUTTON_NORMAL, 0, 0, 0, 0, 10, 10, 2, 2);
}

void InvoiceEditForm::create() {
  icon_->create();
  InvoiceForm::create();
  show();
  if (editor_.isNew()) {
    head_->getPartnerField()->setFocus();
  } else {
    grid_->setFocus();
  }
  proposeCheckAll();
}

void InvoiceEditForm::showAll() {
  messages_->clearMessages();
  head_->showInvoice(editor_.getInvoice(), editor_.isEditable());
  grid_->showItems(editor_.getInvoice());
  grid_->setEditable(editor_.isEditable());
  showItemData();
  modified_ = editor_.hasChanged();
  showTitle();
}

void InvoiceEditForm::showTitle() {
  FXString title = fillIn(gettext("Számla: %s"), {toOneLine(editor_.getInvoice().getDisplayText())});
  if (!editor_.isEditable()) title = fillIn(gettext("%s (csak olvasható)"), {title});
  setTitle(modified_ ? title + " *" : title);
  statusBar_->getStatusLine()->setNormalText(
      fillIn(gettext("%s tétel, %s üzenet"),
             {FX::FXStringVal(editor_.countItems()), FX::FXStringVal(messages_->countMessages())}));
}

void InvoiceEditForm::showItemData() {
  for (FXint row = 0; row < editor_.countItems(); ++row) {
    grid_->showData(row, workspace_.getPlugins().toString(&editor_.getItem(row)));
  }
}

void InvoiceEditForm::proposeCheckAll() {
  checkIsDue_ = true;
  if (pauses_ == 0) InvoiceForm::proposeCheckAll();
}

void InvoiceEditForm::checkAll() {
  // The end of either proposes the check again.
  if (pauses_ > 0 || grid_->isEditing()) return;
  checkIsDue_ = false;
  ListOfMessage found;
  workspace_.getPlugins().checkInvoice(this, &editor_.getInvoice(), found, "INVOICE");
  messages_->showMessages(found);
  showItemData();
  modified_ = editor_.hasChanged();
  showTitle();
}

bool InvoiceEditForm::acceptEditors() {
  if (editor_.isEditable()) head_->store(editor_.getInvoice());
  return items_->acceptInput();
}

bool InvoiceEditForm::hasUnsavedChanges() {
  return !acceptEditors() || editor_.hasChanged();
}

void InvoiceEditForm::itemsChanged() {
  messages_->clearMessages();
  head_->showInvoice(editor_.getInvoice(), editor_.isEditable());
  modified_ = true;
  showTitle();
  proposeCheckAll();
}

bool InvoiceEditForm::saveChanges() {
  if (!editor_.isEditable()) return true;
  if (!acceptEditors()) return false;
  if (!head_->checkDate()) {
    Dialogs::showError(
        this, fillIn(gettext("Ez nem dátum: %s. Így írja be: 2024-12-31."), {head_->getDateField()->getText()}));
    return false;
  }
  Result result = Result::Failed;
  {
    const WaitCursor wait(getApp());
    result = editor_.save();
  }
  if (!tell(result)) return false;
  // Removed items are gone for good now.
  messages_->clearMessages();
  head_->showInvoice(editor_.getInvoice(), true);
  modified_ = false;
  showTitle();
  workspace_.notifyChanged();
  proposeCheckAll();
  return true;
}

bool InvoiceEditForm::tell(Result result) {
  return workspace_.tellResult(this, result, editor_.getInvoice().getDisplayText());
}

void InvoiceEditForm::reload() {
  const WaitCursor wait(getApp());
  messages_->clearMessages();
  catalogue_.load(workspace_.getDatabase());
  tell(editor_.reload());
  showAll();
  proposeCheckAll();
}

void InvoiceEditForm::goToItem(int id) {
  FXint row = 0;
  while (row < editor_.countItems() && editor_.getItem(row).getId() != id) ++row;
  if (row == editor_.countItems() || !acceptEditors()) return;
  // Of a window that has just opened, the table has no height yet to scroll in.
  layout();
  grid_->setFocus();
  grid_->goTo(row, ItemGrid::GOODS);
}

FX::FXbool InvoiceEditForm::close(FX::FXbool notify) {
  if (!mayClose()) return FALSE;
  getApp()->reg().writeIntEntry(kSection, "width", getWidth());
  getApp()->reg().writeIntEntry(kSection, "height", getHeight());
  return InvoiceForm::close(notify);
}

bool InvoiceEditForm::mayClose() {
  // What was typed and refused is still to be mended.
  if (pauses_ > 0 || !acceptEditors()) return false;
  if (!editor_.hasChanged()) return true;
  const FXString question =
      fillIn(gettext("A számla módosult: %s\n\nMenti a változásokat?"), {editor_.getInvoice().getDisplayText()});
  switch (Dialogs::askToSave(this, question)) {
    case Dialogs::Answer::Yes:
      return saveChanges();
    case Dialogs::Answer::No:
      return true;
    case Dialogs::Answer::Cancel:
      break;
  }
  return false;
}

long InvoiceEditForm::onHeadChanged(FX::FXObject*, FX::FXSelector, void*) {
  if (!editor_.isEditable()) return 1;
  head_->store(editor_.getInvoice());
  modified_ = true;
  showTitle();
  proposeCheckAll();
  return 1;
}

long InvoiceEditForm::onCellChanged(FX::FXObject*, FX::FXSelector, void* ptr) {
  const auto* range = static_cast<const FX::FXTableRange*>(ptr);
  items_->applyCell(range->fm.row, range->fm.col);
  proposeCheckAll();
  return 1;
}

long InvoiceEditForm::onContextMenu(FX::FXObject*, FX::FXSelector, void* ptr) {
  items_->showMenuAt(*static_cast<const FX::FXEvent*>(ptr));
  return 1;
}

long InvoiceEditForm::onCmdItemMenu(FX::FXObject*, FX::FXSelector, void*) {
  items_->showMenuAtCell();
  return 1;
}

long InvoiceEditForm::onCmdAddItem(FX::FXObject*, FX::FXSelector, void*) {
  if (editor_.isEditable() && acceptEditors()) items_->addItem();
  return 1;
}

long InvoiceEditForm::onCmdRemoveItem(FX::FXObject*, FX::FXSelector, void*) {
  if (editor_.isEditable()) items_->removeItems();
  return 1;
}

long InvoiceEditForm::onRepair(FX::FXObject*, FX::FXSelector, void*) {
  if (!acceptEditors()) return 1;
  Message* message = messages_->getCurrentMessage();
  if (message == nullptr || message->getRepairEvent() == nullptr) return 1;
  const Pause pause(*this);
  message->getRepairEvent()->execute(message, 0);
  return 1;
}

// Always there: an entry that is only enabled once something has changed would miss a key that comes right after.
long InvoiceEditForm::onCmdSave(FX::FXObject*, FX::FXSelector, void*) {
  // What cannot be taken has been told; nothing else is saved behind its back.
  if (acceptEditors() && (editor_.isNew() || editor_.hasChanged())) saveChanges();
  return 1;
}

long InvoiceEditForm::onCmdCheck(FX::FXObject*, FX::FXSelector, void*) {
  if (acceptEditors()) checkAll();
  return 1;
}

long InvoiceEditForm::onCmdPreview(FX::FXObject*, FX::FXSelector, void*) {
  if (!acceptEditors()) return 1;
  const Pause pause(*this);
  PrintPreview(this, workspace_, editor_.getInvoice()).execute(FX::PLACEMENT_OWNER);
  return 1;
}

long InvoiceEditForm::onCmdExport(FX::FXObject*, FX::FXSelector, void*) {
  if (!acceptEditors()) return 1;
  const FXString name = fileNameFor(editor_.getInvoice().getDisplayText(), ".xml");
  const FXString file =
      Dialogs::askForNewFile(this, gettext("XML exportálása"), name, gettext("XML-fájlok (*.xml)\nMinden fájl (*)"));
  if (file.empty()) return 1;
  FXString error;
  {
    const WaitCursor wait(getApp());
    error = writeExport(file, toXml(editor_.getInvoice(), workspace_.getPlugins()), workspace_.getHostDatabase());
  }
  if (!error.empty()) Dialogs::showError(this, error);
  return 1;
}

long InvoiceEditForm::onCmdCloseInvoice(FX::FXObject*, FX::FXSelector, void*) {
  if (!editor_.isEditable()) return 1;
  const FXString question = fillIn(gettext("A lezárt számla többé nem módosítható.\n\nLezárja ezt a számlát: %s?"),
                                   {editor_.getInvoice().getDisplayText()});
  if (!Dialogs::confirm(this, gettext("Lezárás"), question)) return 1;
  if (!acceptEditors()) return 1;
  if ((editor_.isNew() || editor_.hasChanged()) && !saveChanges()) return 1;
  checkAll();
  if (messages_->hasBlocking()) {
    Dialogs::showError(this, gettext("A számlán van javítanivaló, ezért nem zárható le. Lásd az üzeneteket."));
    return 1;
  }
  if (!tell(editor_.changeStatus(STATUS_CLOSED))) return 1;
  showAll();
  proposeCheckAll();
  workspace_.notifyChanged();
  return 1;
}

long InvoiceEditForm::onUpdEditable(FX::FXObject* sender, FX::FXSelector, void*) {
  sender->handle(this, FXSEL(FX::SEL_COMMAND, editor_.isEditable() ? ID_ENABLE : ID_DISABLE), nullptr);
  return 1;
}

}  // namespace Brontel::App
