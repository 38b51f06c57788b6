#include "app/window/RecordedDataFrame.h"

#include <libintl.h>

#include "app/RecordedData.h"
#include "app/window/RowCollector.h"
#include "app/window/Workspace.h"
#include "host/database/IntegerText.h"
#include "host/message/FillIn.h"
#include "host/ui/WaitCursor.h"

namespace Brontel::App {

using FX::FXString;

FXDEFMAP(RecordedDataFrame)
recordedDataFrameMap[] = {
    FXMAPFUNC(FX::SEL_COMMAND, RecordedDataFrame::ID_SEARCH, RecordedDataFrame::onSearch),
};

FXIMPLEMENT(RecordedDataFrame, FXVerticalFrame, recordedDataFrameMap, ARRAYNUMBER(recordedDataFrameMap))

namespace {

// Of what the search finds, behind the key of the value.
enum Found { ITEM_KEY, INVOICE_KEY, NUMBER, DIRECTION, PARTNER, DATE, ITEM, VARIABLE, ROW, VALUE };

FXString nameOfDirection(const FXString& code) {
  if (code == "100") return gettext("Kimenő");
  return code == "200" ? FXString(gettext("Bejövő")) : code;
}

}  // namespace

RecordedDataFrame::RecordedDataFrame(FX::FXComposite* parent, Workspace& workspace, FX::FXObject* receiver,
                                     FX::FXSelector sel)
    : FXVerticalFrame(parent, FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y, 0, 0, 0, 0, 4, 4, 4, 4), workspace_(&workspace) {
  auto* bar = new FX::FXHorizontalFrame(this, FX::LAYOUT_FILL_X, 0, 0, 0, 0, 0, 0, 0, 0);
  new FX::FXLabel(bar, gettext("Rögzített &adat:"), nullptr, FX::LAYOUT_CENTER_Y);
  search_ = new FX::FXTextField(
      bar, 30, this, ID_SEARCH,
      FX::TEXTFIELD_ENTER_ONLY | FX::FRAME_SUNKEN | FX::FRAME_THICK | FX::LAYOUT_FILL_X | FX::LAYOUT_CENTER_Y);
  search_->setTipText(gettext("Gyári szám, gyártási tétel vagy bármely rögzített érték része"));
  new FX::FXButton(bar, gettext("Ke&resés\tA beírt szöveg keresése a rögzített adatokban"), nullptr, this, ID_SEARCH,
                   FX::BUTTON_NORMAL, 0, 0, 0, 0, 12, 12, 2, 2);
  auto* frame = new FX::FXVerticalFrame(
      this, FX::FRAME_SUNKEN | FX::FRAME_THICK | FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y, 0, 0, 0, 0, 0, 0, 0, 0);
  list_ = new RowList(frame, receiver, sel, "RecordedData");
  list_->addColumn(gettext("Érték"), 135);
  list_->addColumn(gettext("Változó"), 120);
  list_->addColumn(gettext("Tétel"), 175);
  list_->addColumn(gettext("Számla"), 115);
  list_->addColumn(gettext("Irány"), 72);
  list_->addColumn(gettext("Partner"), 150);
  list_->addColumn(gettext("Kelt"), 90);
  result_ = new FX::FXLabel(this, gettext("Írja be a keresett érték egy részét, majd nyomjon Entert."), nullptr,
                            FX::JUSTIFY_LEFT | FX::LAYOUT_FILL_X);
}

void RecordedDataFrame::refresh() {
  const FXString text = search_->getText();
  if (text.empty()) return;
  const WaitCursor wait(getApp());
  RowCollector found;
  if (RecordedData::exists(workspace_->getDatabase())) {
    RecordedData::findWithKeys(workspace_->getDatabase(), text, found);
  }
  places_.clear();
  for (RowList::Row& row : found.getRows()) {
    const std::vector<FXString> cells = row.cells;
    places_[row.id] = {Database::toInt(cells[INVOICE_KEY].text()), Database::toInt(cells[ITEM_KEY].text())};
    row.cells = {cells[VALUE],   cells[VARIABLE], cells[ITEM], cells[NUMBER], nameOfDirection(cells[DIRECTION]),
                 cells[PARTNER], cells[DATE]};
  }
  const size_t count = found.getRows().size();
  list_->setRows(std::move(found.getRows()));
  FXString result = (count == 0 ? fillIn(gettext("Nincs ilyen rögzített adat: %s"), {text})
                                : fillIn(gettext("%s találat. Megnyitás: Enter vagy dupla kattintás."),
                                         {FX::FXStringVal(static_cast<FX::FXint>(count))}));
  // A label takes a single one for the mark of a key.
  result_->setText(result.substitute("&", "&&"));
  workspace_->showErrors(getShell());
}

RecordedDataFrame::Place RecordedDataFrame::getCurrent() const {
  const auto place = places_.find(list_->getCurrentId());
  return place == places_.end() ? Place() : place->second;
}

long RecordedDataFrame::onSearch(FX::FXObject*, FX::FXSelector, void*) {
  refresh();
  if (list_->getNumItems() > 0) list_->setFocus();
  return 1;
}

}  // namespace Brontel::App
