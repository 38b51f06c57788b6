#include "tour/SearchChapter.h"

#include <fxkeys.h>

#include "app/window/InvoiceHead.h"
#include "app/window/InvoiceListFrame.h"
#include "app/window/ItemGrid.h"
#include "app/window/RecordedDataFrame.h"
#include "app/window/RowList.h"
#include "tests/support/Failure.h"
#include "tour/Story.h"
#include "tour/Texts.h"

namespace Tour {

using Brontel::App::ItemGrid;

namespace {

constexpr const char* kCells =
    "select i.position, i.quantity, d.row, v.name, d.value from t_invoiceitemdata d join t_invoiceitem i on "
    "i.t_invoiceitem_id=d.t_invoiceitem_1 join t_invoice n on n.t_invoice_id=i.t_invoice_1 join t_itemvariable v on "
    "v.t_itemvariable_id=d.t_itemvariable_1 where n.number='K-2025/0121/J1' order by 1, 3, d.t_invoiceitemdata_id";

}  // namespace

void SearchChapter::play() {
  search();
  makeCreditNote();
}

void SearchChapter::search() {
  Stage::MainWindow& main = stage_.useMain();
  user_.key(FX::KEY_f, {FX::KEY_Control_L});
  user_.type(Story::kSearched);
  user_.key(FX::KEY_Return);
  Texts found;
  for (const char* serial : Story::kSerials) {
    found.push_back(std::string(serial) + "|" + Story::kSerialNumber + "|" + Story::kProduct + "|" + Story::kNumber +
                    "|" + hostText("Kimenő") + "|" + Story::kPartner + "|" + Story::kDate);
  }
  expect("what is found", linesOf(*main.getFound()->getList()), found);
  picture("find");
  // Enter opens the invoice of the first one.
  user_.key(FX::KEY_Return);
  Form* form = stage_.useNewestForm();
  if (form == nullptr) return;
  expect("the title", titleOf(*form),
         hostText("%s (csak olvasható)", {hostText("Számla: %s", {Story::kNumber}).c_str()}));
  user_.key(FX::KEY_w, {FX::KEY_Control_L});
  stage_.application.waitUntil([this] { return stage_.workspace->getWindows().empty(); });
}

void SearchChapter::makeCreditNote() {
  Stage::MainWindow& main = stage_.useMain();
  user_.key(FX::KEY_1, {FX::KEY_Control_L});
  typeInto(main.getInvoices()->getSearchField(), Story::kNumber);
  user_.key(FX::KEY_Return);
  user_.key(FX::KEY_h, {FX::KEY_Control_L});
  Form* form = stage_.useNewestForm();
  if (form == nullptr) return;
  expect("the title", titleOf(*form), hostText("Számla: %s", {Story::kCreditNoteNumber}));
  typeInto(form->getHead()->getDateField(), Story::kCreditNoteDate);
  expect("what is recorded", recordedOf(*form, 0),
         "EKG-250311, 2026.03.10, Fehér; EKG-250312, 2026.03.10, Kék; EKG-250317, 2026.03.10, Fehér");
  clickCell(*form, 0, ItemGrid::QUANTITY);
  user_.type("1");
  user_.key(FX::KEY_Return);
  openItemData(*form, 0, [this](FX::FXWindow& dialog) { keepOneDevice(dialog); });
  removeService(*form);
  expect("the messages", messagesOf(*form), {});
  user_.key(FX::KEY_s, {FX::KEY_Control_L});
  expect("what is recorded", recordedOf(*form, 0), "EKG-250312, 2026.03.10, Kék");
  picture("credit-note");
  expectRows(kCells, {{"1", "1", "2", "Mennyiség", "1"},
                      {"1", "1", "2", Story::kSerialNumber, Story::kSerials[1]},
                      {"1", "1", "2", Story::kCalibration, Story::kCalibrated},
                      {"1", "1", "2", Story::kColour, Story::kColours[1]}});
  expectRows(
      "select n.t_invoicestatus_1, s.number, count(i.t_invoiceitem_1) from t_invoice n join t_invoice s on "
      "s.t_invoice_id=n.t_invoice_1 join t_invoiceitem i on i.t_invoice_1=n.t_invoice_id where "
      "n.number='K-2025/0121/J1'",
      {{"150", Story::kNumber, "1"}});
}

void SearchChapter::keepOneDevice(FX::FXWindow& dialog) {
  FX::FXTable* table = firstSeen<FX::FXTable>(dialog);
  if (table == nullptr || table->getNumRows() != 3) return reportFailure("no table of three devices");
  for (const FX::FXint row : {2, 0}) {
    user_.clickCell(table, row, 1);
    user_.key(FX::KEY_Delete);
  }
  expect("the rows", std::to_string(table->getNumRows()), "1");
  picture("returned-device");
  press(dialog, shownOf(hostText("&OK")));
}

void SearchChapter::removeService(Form& form) {
  clickCell(form, 1, ItemGrid::UNIT);
  user_.whenModal([this](FX::FXWindow& box) {
    expect("the title", titleOf(box), hostText("Tétel törlése"));
    press(box, shownOf(hostText("&Igen")));
  });
  user_.key(FX::KEY_Delete, {FX::KEY_Control_L});
  expect("the items", std::to_string(form.getGrid()->getNumRows()), "1");
}

}  // namespace Tour
