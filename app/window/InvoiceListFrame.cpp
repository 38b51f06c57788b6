#include "app/window/InvoiceListFrame.h"

#include <libintl.h>

#include "app/window/InvoiceTexts.h"
#include "app/window/RowCollector.h"
#include "app/window/Workspace.h"
#include "host/ui/WaitCursor.h"

namespace Brontel::App {

FXDEFMAP(InvoiceListFrame)
invoiceListFrameMap[] = {
    FXMAPFUNC(FX::SEL_CHANGED, InvoiceListFrame::ID_SEARCH, InvoiceListFrame::onSearch),
    FXMAPFUNC(FX::SEL_COMMAND, InvoiceListFrame::ID_SEARCH, InvoiceListFrame::onSearchDone),
};

FXIMPLEMENT(InvoiceListFrame, FXVerticalFrame, invoiceListFrameMap, ARRAYNUMBER(invoiceListFrameMap))

namespace {

enum Column { NUMBER, TYPE, PARTNER, DATE, STATUS };

constexpr const char* kSelect =
    "select t_invoice_id, number, t_invoicetype_1, partner, date, t_invoicestatus_1 from t_invoice";

}  // namespace

InvoiceListFrame::InvoiceListFrame(FX::FXComposite* parent, Workspace& workspace, FX::FXObject* receiver,
                                   FX::FXSelector sel)
    : FXVerticalFrame(parent, FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y, 0, 0, 0, 0, 4, 4, 4, 4), workspace_(&workspace) {
  auto* bar = new FX::FXHorizontalFrame(this, FX::LAYOUT_FILL_X, 0, 0, 0, 0, 0, 0, 0, 0);
  new FX::FXLabel(bar, gettext("&Keresés:"), nullptr, FX::LAYOUT_CENTER_Y);
  search_ = new FX::FXTextField(bar, 30, this, ID_SEARCH,
                                FX::FRAME_SUNKEN | FX::FRAME_THICK | FX::LAYOUT_FILL_X | FX::LAYOUT_CENTER_Y);
  auto* frame = new FX::FXVerticalFrame(
      this, FX::FRAME_SUNKEN | FX::FRAME_THICK | FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y, 0, 0, 0, 0, 0, 0, 0, 0);
  list_ = new RowList(frame, receiver, sel, "InvoiceList");
  list_->addColumn(gettext("Szám"), 140);
  list_->addColumn(gettext("Típus"), 150);
  list_->addColumn(gettext("Partner"), 320);
  list_->addColumn(gettext("Kelt"), 110);
  list_->addColumn(gettext("Állapot"), 110);
  list_->setDefaultOrder(DATE, true);
}

void InvoiceListFrame::refresh() {
  const WaitCursor wait(getApp());
  RowCollector found;
  workspace_->getDatabase().run(kSelect, {}, &found);
  for (RowList::Row& row : found.getRows()) {
    row.cells[TYPE] = nameOfType(Database::toInt(row.cells[TYPE].text()));
    row.cells[STATUS] = nameOfStatus(Database::toInt(row.cells[STATUS].text()));
  }
  list_->setRows(std::move(found.getRows()));
}

long InvoiceListFrame::onSearch(FX::FXObject*, FX::FXSelector, void*) {
  list_->setFilter(search_->getText());
  return 1;
}

// Enter goes on in the list.
long InvoiceListFrame::onSearchDone(FX::FXObject*, FX::FXSelector, void*) {
  list_->setFocus();
  return 1;
}

}  // namespace Brontel::App
