#include "tour/RepairChapter.h"

#include <fxkeys.h>

#include "app/window/InvoiceHead.h"
#include "app/window/MessagePane.h"
#include "tests/support/Failure.h"
#include "tour/Story.h"
#include "tour/Texts.h"

namespace Tour {

namespace {

enum Column { QUANTITY, SERIAL, CALIBRATION, COLOUR, COLUMNS };

constexpr const char* kCells =
    "select i.position, d.row, v.name, d.value from t_invoiceitemdata d join t_invoiceitem i on "
    "i.t_invoiceitem_id=d.t_invoiceitem_1 join t_invoice n on n.t_invoice_id=i.t_invoice_1 join t_itemvariable v on "
    "v.t_itemvariable_id=d.t_itemvariable_1 where n.number='K-2025/0121' order by 1, 2, d.t_invoiceitemdata_id";

std::string missing(const char* pattern, const char* item, const char* variable) {
  return lineOf(hostText(pattern, {item, variable}));
}

}  // namespace

void RepairChapter::play() {
  Form* form = stage_.useNewestForm();
  if (form == nullptr) return;
  check(*form);
  repair(*form, 0, [this](FX::FXWindow& dialog) { mendDevices(dialog); });
  expect("the messages", messagesOf(*form),
         {missing("A(z) %d. tételhez rögzíteni kell néhány egyéb adatot!\nMező neve:%s", "2", Story::kWorkSheet)});
  repair(*form, 0, [this](FX::FXWindow& dialog) { mendService(dialog); });
  expect("the messages", messagesOf(*form), {});
  saveAndClose(*form);
}

void RepairChapter::check(Form& form) {
  user_.key(FX::KEY_F8);
  expect(
      "the messages", messagesOf(form),
      {hostText("Egyéb tételadatok: Az összmennyiség (%s) kevesebb, mint a tétellistában megadott (%s).", {"2", "3"}),
       missing("A(z) %d. tételhez lehet rögzíteni néhány egyéb adatot!\nMező neve:%s", "1", Story::kCalibration),
       missing("A(z) %d. tételhez rögzíteni kell néhány egyéb adatot!\nMező neve:%s", "2", Story::kWorkSheet)});
  picture("messages");
}

void RepairChapter::mendDevices(FX::FXWindow& dialog) {
  expectItemDataTitle(dialog, Story::kProduct);
  FX::FXTable* table = firstSeen<FX::FXTable>(dialog);
  if (table == nullptr || table->getNumColumns() != COLUMNS) return reportFailure("no table of devices");
  typeCell(*table, 1, CALIBRATION, Story::kCalibrated);
  user_.clickCell(table, 1, SERIAL);
  user_.key(FX::KEY_Insert);
  expect("what is offered", rowOf(*table, 2, COLUMNS), "1|||");
  typeCell(*table, 2, SERIAL, Story::kSerials[2]);
  typeCell(*table, 2, CALIBRATION, Story::kCalibrated);
  user_.clickCell(table, 2, COLOUR);
  user_.key(FX::KEY_F2);
  chooseFrom(*table, Story::kColours[2]);
  user_.clickCell(table, 2, SERIAL);
  picture("repair");
  press(dialog, shownOf(hostText("&OK")));
}

void RepairChapter::mendService(FX::FXWindow& dialog) {
  expectItemDataTitle(dialog, Story::kService);
  // The keyboard is in the first input already.
  user_.type(Story::kWorkSheetNumber);
  picture("repair-work-sheet");
  press(dialog, shownOf(hostText("&OK")));
}

void RepairChapter::saveAndClose(Form& form) {
  user_.key(FX::KEY_s, {FX::KEY_Control_L});
  expect("the title", titleOf(form), hostText("Számla: %s", {Story::kNumber}));
  picture("invoice");
  expectRows(kCells, {{"1", "1", "Mennyiség", "1"},
                      {"1", "1", Story::kSerialNumber, Story::kSerials[0]},
                      {"1", "1", Story::kCalibration, Story::kCalibrated},
                      {"1", "1", Story::kColour, Story::kColours[0]},
                      {"1", "2", "Mennyiség", "1"},
                      {"1", "2", Story::kSerialNumber, Story::kSerials[1]},
                      {"1", "2", Story::kCalibration, Story::kCalibrated},
                      {"1", "2", Story::kColour, Story::kColours[1]},
                      {"1", "3", "Mennyiség", "1"},
                      {"1", "3", Story::kSerialNumber, Story::kSerials[2]},
                      {"1", "3", Story::kCalibration, Story::kCalibrated},
                      {"1", "3", Story::kColour, Story::kColours[2]},
                      {"2", "0", Story::kWorkSheet, Story::kWorkSheetNumber},
                      {"2", "0", Story::kPlace, Story::kPlaceChosen},
                      {"2", "0", Story::kNextInspection, Story::kInspection}});
  user_.whenModal([this](FX::FXWindow& box) {
    expect("the title", titleOf(box), hostText("Lezárás"));
    picture("close");
    press(box, shownOf(hostText("&Igen")));
  });
  user_.key(FX::KEY_l, {FX::KEY_Control_L});
  expect("the title", titleOf(form),
         hostText("%s (csak olvasható)", {hostText("Számla: %s", {Story::kNumber}).c_str()}));
  expectRows("select number, partner, date, t_invoicestatus_1 from t_invoice where number='K-2025/0121'",
             {{Story::kNumber, Story::kPartner, Story::kDate, "151"}});
}

}  // namespace Tour
