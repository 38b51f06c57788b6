#include "app/window/PrinterDialog.h"

#include <algorithm>

#include <libintl.h>

namespace Brontel::App {

FXIMPLEMENT(PrinterDialog, FXDialogBox, nullptr, 0)

namespace {

constexpr FX::FXint kFewestColumns = 42;
// Of the field's button and borders, and the scroll bar of the list.
constexpr FX::FXint kBesides = 4;
constexpr FX::FXint kMostCopies = 99;
constexpr FX::FXint kDigits = 3;
constexpr FX::FXint kMostVisible = 10;
constexpr const char* kSection = "Printing";

FX::FXString usualPrinter() {
  return gettext("(a rendszer alapértelmezett nyomtatója)");
}

// So many that the names can be told from each other in the list, which is as wide as the field and has no bar to
// scroll it sideways; as far as the screen allows.
FX::FXint columnsFor(const FX::FXApp* app, const std::vector<FX::FXString>& printers) {
  const FX::FXFont* font = app->getNormalFont();
  FX::FXint widest = 0;
  for (const FX::FXString& printer : printers) widest = std::max(widest, font->getTextWidth(printer));
  const FX::FXint column = std::max(1, font->getTextWidth("8"));
  const FX::FXint most = app->getRootWindow()->getWidth() * 2 / 3 / column;
  return std::clamp(widest / column + kBesides, kFewestColumns, std::max(kFewestColumns, most));
}

}  // namespace

PrinterDialog::PrinterDialog(FX::FXWindow* owner, const std::vector<FX::FXString>& printers)
    : FXDialogBox(owner, gettext("Nyomtatás"), FX::DECOR_TITLE | FX::DECOR_BORDER | FX::DECOR_CLOSE) {
  auto* buttons = new FX::FXHorizontalFrame(this, FX::LAYOUT_SIDE_BOTTOM | FX::LAYOUT_FILL_X | FX::PACK_UNIFORM_WIDTH);
  new FX::FXButton(buttons, gettext("Mé&gsem"), nullptr, this, ID_CANCEL, FX::BUTTON_NORMAL | FX::LAYOUT_RIGHT, 0, 0, 0,
                   0, 20, 20);
  new FX::FXButton(buttons, gettext("N&yomtatás"), nullptr, this, ID_ACCEPT,
                   FX::BUTTON_NORMAL | FX::BUTTON_INITIAL | FX::BUTTON_DEFAULT | FX::LAYOUT_RIGHT, 0, 0, 0, 0, 20, 20);
  auto* fields = new FX::FXMatrix(this, 2, FX::MATRIX_BY_COLUMNS | FX::LAYOUT_FILL_X);
  new FX::FXLabel(fields, gettext("&Nyomtató:"), nullptr, FX::LAYOUT_CENTER_Y);
  printers_ = new FX::FXComboBox(fields, columnsFor(getApp(), printers), nullptr, 0,
                                 FX::COMBOBOX_INSERT_LAST | FX::FRAME_SUNKEN | FX::FRAME_THICK | FX::LAYOUT_FILL_X);
  new FX::FXLabel(fields, gettext("&Példány:"), nullptr, FX::LAYOUT_CENTER_Y);
  copies_ = new FX::FXSpinner(fields, kDigits, nullptr, 0, FX::SPIN_NORMAL | FX::FRAME_SUNKEN | FX::FRAME_THICK);
  copies_->setRange(1, kMostCopies);
  printers_->appendItem(usualPrinter());
  for (const FX::FXString& printer : printers) printers_->appendItem(printer);
  printers_->setNumVisible(std::min(printers_->getNumItems(), kMostVisible));
  const FX::FXString last = getApp()->reg().readStringEntry(kSection, "printer", "");
  const bool isThere = std::find(printers.begin(), printers.end(), last) != printers.end();
  printers_->setText(isThere ? last : usualPrinter());
}

void PrinterDialog::create() {
  FXDialogBox::create();
  // Not before it is on the display.
  auto* field = dynamic_cast<FX::FXTextField*>(printers_->getFirst());
  if (field == nullptr) return;
  field->setFocus();
  field->selectAll();
}

PrinterChoice PrinterDialog::getChoice() const {
  FX::FXString printer = printers_->getText();
  if (printer.trim() == usualPrinter()) printer.clear();
  return {printer, copies_->getValue()};
}

void PrinterDialog::remember() const {
  getApp()->reg().writeStringEntry(kSection, "printer", getChoice().printer.text());
}

}  // namespace Brontel::App
