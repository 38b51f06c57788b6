#include "app/window/PrintPreview.h"

#include <algorithm>
#include <cmath>

#include <fxkeys.h>
#include <libintl.h>

#include "app/print/PdfFile.h"
#include "app/print/Printers.h"
#include "app/window/Dialogs.h"
#include "app/window/InvoiceTexts.h"
#include "app/window/PrinterDialog.h"
#include "app/window/Workspace.h"
#include "host/entity/Invoice.h"
#include "host/message/FillIn.h"
#include "host/ui/Legibility.h"
#include "host/ui/WaitCursor.h"

namespace Brontel::App {

using FX::FXint;
using FX::FXString;

FXDEFMAP(PrintPreview)
printPreviewMap[] = {
    FXMAPFUNCS(FX::SEL_COMMAND, PrintPreview::ID_FIRST, PrintPreview::ID_END, PrintPreview::onCmdPage),
    FXMAPFUNCS(FX::SEL_UPDATE, PrintPreview::ID_FIRST, PrintPreview::ID_END, PrintPreview::onUpdPage),
    FXMAPFUNCS(FX::SEL_COMMAND, PrintPreview::ID_ZOOM_IN, PrintPreview::ID_ZOOM_OUT, PrintPreview::onCmdZoom),
    FXMAPFUNC(FX::SEL_COMMAND, PrintPreview::ID_FIT, PrintPreview::onCmdFit),
    FXMAPFUNCS(FX::SEL_COMMAND, PrintPreview::ID_LEFT, PrintPreview::ID_DOWN, PrintPreview::onCmdScroll),
    FXMAPFUNC(FX::SEL_COMMAND, PrintPreview::ID_PRINT, PrintPreview::onCmdPrint),
    FXMAPFUNC(FX::SEL_COMMAND, PrintPreview::ID_SAVE, PrintPreview::onCmdSave),
};

FXIMPLEMENT_ABSTRACT(PrintPreview, FXDialogBox, printPreviewMap, ARRAYNUMBER(printPreviewMap))

namespace {

constexpr FXint kWidth = 760;
constexpr FXint kHeight = 680;
constexpr double kUsualScale = 96.0 / 72;  // of a screen
constexpr double kSmallest = 0.25;
constexpr double kBiggest = 4;
constexpr double kZoom = 1.25;
constexpr FXint kScroll = 40;
constexpr FXint kPad = 10;

PrintedPages makePages(Workspace& workspace, const Invoice& invoice) {
  const WaitCursor wait(&workspace.getApp());
  return PrintedPages(invoice, workspace.getPlugins(), workspace.getLongWork().watch());
}

// FOX keeps its colours the other way round.
FX::FXColor colorOf(uint32_t pixel) {
  return FXRGB(pixel >> 16, pixel >> 8, pixel);
}

}  // namespace

PrintPreview::PrintPreview(FX::FXWindow* owner, Workspace& workspace, const Invoice& invoice)
    : FXDialogBox(owner, gettext("Nyomtatási kép"),
                  FX::DECOR_TITLE | FX::DECOR_BORDER | FX::DECOR_RESIZE | FX::DECOR_CLOSE | FX::DECOR_MAXIMIZE),
      workspace_(workspace),
      number_(invoice.getDisplayText()),
      pages_(makePages(workspace, invoice)) {
  makePageButtons();
  makeButtons();
  auto* frame = new FX::FXHorizontalFrame(
      this, FX::FRAME_SUNKEN | FX::FRAME_THICK | FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y, 0, 0, 0, 0, 0, 0, 0, 0);
  view_ = new FX::FXImageView(frame, nullptr, nullptr, 0, FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y);
  view_->setBackColor(getApp()->getShadowColor());
  addKeys();
  resizeToFont(*this, kWidth, kHeight);
}

PrintPreview::~PrintPreview() = default;

void PrintPreview::makePageButtons() {
  auto* bar = new FX::FXHorizontalFrame(this, FX::LAYOUT_SIDE_TOP | FX::LAYOUT_FILL_X);
  addButton(bar, gettext("Első\tElső oldal (Home)"), ID_FIRST);
  addButton(bar, gettext("Előző\tElőző oldal (PgUp)"), ID_PREVIOUS);
  pageLabel_ = new FX::FXLabel(bar, FXString(), nullptr, FX::LAYOUT_CENTER_Y);
  addButton(bar, gettext("Következő\tKövetkező oldal (PgDn)"), ID_NEXT);
  addButton(bar, gettext("Utolsó\tUtolsó oldal (End)"), ID_END);
  addButton(bar, gettext("Egész oldal\tAz egész oldal látszik (Ctrl+0)"), ID_FIT, FX::LAYOUT_RIGHT);
  addButton(bar, gettext("+\tNagyítás (Ctrl++)"), ID_ZOOM_IN, FX::LAYOUT_RIGHT);
  zoomLabel_ = new FX::FXLabel(bar, FXString(), nullptr, FX::LAYOUT_CENTER_Y | FX::LAYOUT_RIGHT);
  addButton(bar, gettext("-\tKicsinyítés (Ctrl+-)"), ID_ZOOM_OUT, FX::LAYOUT_RIGHT);
}

void PrintPreview::makeButtons() {
  auto* bar = new FX::FXHorizontalFrame(this, FX::LAYOUT_SIDE_BOTTOM | FX::LAYOUT_FILL_X);
  addButton(bar, gettext("&Nyomtatás...\tA számla kinyomtatása (Ctrl+P)"), ID_PRINT);
  addButton(bar, gettext("&Mentés PDF-be...\tA számla PDF-fájlba (Ctrl+S)"), ID_SAVE);
  addButton(bar, gettext("&Bezárás\tVissza (Esc)"), ID_ACCEPT,
            FX::LAYOUT_RIGHT | FX::BUTTON_INITIAL | FX::BUTTON_DEFAULT);
  new FX::FXLabel(this,
                  gettext("Lapozás: PgUp, PgDn, Home, End. Nagyítás: Ctrl++, Ctrl+-, Ctrl+0.\nNyomtatás: Ctrl+P. PDF: "
                          "Ctrl+S. Bezárás: Esc."),
                  nullptr, FX::LAYOUT_SIDE_BOTTOM | FX::LAYOUT_FILL_X | FX::JUSTIFY_LEFT);
}

void PrintPreview::addButton(FX::FXComposite* parent, const FXString& text, FX::FXSelector id, FX::FXuint options) {
  new FX::FXButton(parent, text, nullptr, this, id, FX::BUTTON_NORMAL | options, 0, 0, 0, 0, kPad, kPad, 2, 2);
}

void PrintPreview::addKeys() {
  using namespace FX;  // NOLINT(google-build-using-namespace): its key codes, and what makes them of one
  struct Key {
    FXuint code;
    FXuint state;
    FXSelector id;
  };
  static constexpr Key kKeys[] = {
      {KEY_Home, 0, ID_FIRST},
      {KEY_KP_Home, 0, ID_FIRST},
      {KEY_Page_Up, 0, ID_PREVIOUS},
      {KEY_KP_Page_Up, 0, ID_PREVIOUS},
      {KEY_Page_Down, 0, ID_NEXT},
      {KEY_KP_Page_Down, 0, ID_NEXT},
      {KEY_End, 0, ID_END},
      {KEY_KP_End, 0, ID_END},
      {KEY_plus, CONTROLMASK, ID_ZOOM_IN},
      {KEY_plus, CONTROLMASK | SHIFTMASK, ID_ZOOM_IN},
      {KEY_equal, CONTROLMASK, ID_ZOOM_IN},
      {KEY_KP_Add, CONTROLMASK, ID_ZOOM_IN},
      {KEY_minus, CONTROLMASK, ID_ZOOM_OUT},
      {KEY_KP_Subtract, CONTROLMASK, ID_ZOOM_OUT},
      {KEY_0, CONTROLMASK, ID_FIT},
      {KEY_Left, 0, ID_LEFT},
      {KEY_Right, 0, ID_RIGHT},
      {KEY_Up, 0, ID_UP},
      {KEY_Down, 0, ID_DOWN},
      {KEY_p, CONTROLMASK, ID_PRINT},
      {KEY_s, CONTROLMASK, ID_SAVE},
  };
  for (const Key& key : kKeys) {
    getAccelTable()->addAccel(MKUINT(key.code, key.state), this, FXSEL(SEL_COMMAND, key.id));
  }
}

void PrintPreview::create() {
  FXDialogBox::create();
  layout();
}

void PrintPreview::layout() {
  FXDialogBox::layout();
  if (view_->id() == 0 || !fits_ || scale_ == fittingScale()) return;
  showPage(page_, fittingScale());
}

double PrintPreview::fittingScale() const {
  const double scale = std::min((view_->getWidth() - kPad) / kPageWidth, (view_->getHeight() - kPad) / kPageHeight);
  return std::clamp(scale, kSmallest, kBiggest);
}

void PrintPreview::showPage(size_t page, double scale) {
  const PagePicture drawn = pages_.draw(page, scale);
  if (drawn.pixels.empty()) return getApp()->beep();
  if (page != page_) view_->setPosition(0, 0);
  page_ = page;
  scale_ = scale;
  auto picture = std::make_unique<FX::FXImage>(getApp(), nullptr, FX::IMAGE_OWNED, drawn.width, drawn.height);
  std::transform(drawn.pixels.begin(), drawn.pixels.end(), picture->getData(), colorOf);
  picture->create();
  view_->setImage(picture.get());
  picture_ = std::move(picture);
  pageLabel_->setText(FX::FXStringVal(static_cast<FXint>(page_ + 1)) + "/" +
                      FX::FXStringVal(static_cast<FXint>(pages_.getPages().size())));
  zoomLabel_->setText(FX::FXStringVal(static_cast<FXint>(std::lround(100 * scale_ / kUsualScale))) + "%");
}

size_t PrintPreview::findPage(FX::FXuint command) const {
  const size_t last = pages_.getPages().size() - 1;
  switch (command) {
    case ID_FIRST:
      return 0;
    case ID_PREVIOUS:
      return page_ == 0 ? 0 : page_ - 1;
    case ID_NEXT:
      return std::min(page_ + 1, last);
    default:
      return last;
  }
}

long PrintPreview::onCmdPage(FX::FXObject*, FX::FXSelector sel, void*) {
  const size_t page = findPage(FXSELID(sel));
  if (page != page_) showPage(page, scale_);
  return 1;
}

long PrintPreview::onUpdPage(FX::FXObject* sender, FX::FXSelector sel, void*) {
  const bool isEnabled = findPage(FXSELID(sel)) != page_;
  sender->handle(this, FXSEL(FX::SEL_COMMAND, isEnabled ? ID_ENABLE : ID_DISABLE), nullptr);
  return 1;
}

long PrintPreview::onCmdZoom(FX::FXObject*, FX::FXSelector sel, void*) {
  const double scale = FXSELID(sel) == ID_ZOOM_IN ? scale_ * kZoom : scale_ / kZoom;
  fits_ = false;
  showPage(page_, std::clamp(scale, kSmallest, kBiggest));
  return 1;
}

long PrintPreview::onCmdFit(FX::FXObject*, FX::FXSelector, void*) {
  fits_ = true;
  showPage(page_, fittingScale());
  return 1;
}

long PrintPreview::onCmdScroll(FX::FXObject*, FX::FXSelector sel, void*) {
  FXint x = view_->getXPosition();
  FXint y = view_->getYPosition();
  switch (FXSELID(sel)) {
    case ID_LEFT:
      x += kScroll;
      break;
    case ID_RIGHT:
      x -= kScroll;
      break;
    case ID_UP:
      y += kScroll;
      break;
    default:
      y -= kScroll;
      break;
  }
  view_->setPosition(x, y);
  return 1;
}

long PrintPreview::onCmdPrint(FX::FXObject*, FX::FXSelector, void*) {
  const Step watch = workspace_.getLongWork().watch();
  std::vector<FXString> printers;
  {
    const WaitCursor wait(getApp());
    printers = findPrinters(watch);
  }
  PrinterDialog dialog(this, printers);
  if (dialog.execute(FX::PLACEMENT_OWNER) == 0) return 1;
  dialog.remember();
  FXString error;
  {
    const WaitCursor wait(getApp());
    const FXString document = pages_.toPdf(watch);
    error = document.empty() ? describeMissingMemory() : sendToPrinter(document, dialog.getChoice(), watch);
  }
  if (error.empty()) {
    Dialogs::showInformation(this, gettext("Nyomtatás"),
                             fillIn(gettext("A számla a nyomtatóra került: %s"), {number_}));
  } else {
    Dialogs::showError(this, error);
  }
  return 1;
}

long PrintPreview::onCmdSave(FX::FXObject*, FX::FXSelector, void*) {
  const FXString file = Dialogs::askForNewFile(this, gettext("Mentés PDF-be"), fileNameFor(number_, ".pdf"),
                                               gettext("PDF-fájlok (*.pdf)\nMinden fájl (*)"));
  if (file.empty()) return 1;
  FXString error;
  {
    const WaitCursor wait(getApp());
    error = writePdf(file, pages_, workspace_.getHostDatabase(), workspace_.getLongWork().watch());
  }
  if (!error.empty()) Dialogs::showError(this, error);
  return 1;
}

}  // namespace Brontel::App
