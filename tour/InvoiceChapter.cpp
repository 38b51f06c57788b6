#include "tour/InvoiceChapter.h"

#include <fxkeys.h>

#include "app/window/InvoiceHead.h"
#include "app/window/ItemGrid.h"
#include "tests/support/Failure.h"
#include "tour/Story.h"
#include "tour/Texts.h"

namespace Tour {

using Brontel::App::InvoiceHead;
using FX::FXint;

namespace {

enum Column { QUANTITY, SERIAL, CALIBRATION, COLOUR, COLUMNS };
enum Row { DEVICES, SERVICE };

}  // namespace

void InvoiceChapter::play() {
  stage_.useMain();
  user_.key(FX::KEY_1, {FX::KEY_Control_L});
  user_.key(FX::KEY_n, {FX::KEY_Control_L});
  Form* form = stage_.useNewestForm();
  if (form == nullptr) return;
  fillHead(*form);
  addItem(*form, "hord", "3", std::string(Story::kProduct) + "|3|db|389000");
  addItem(*form, "éves", "1", std::string(Story::kService) + "|1|óra|12500");
  expect("the title", titleOf(*form), hostText("Számla: %s", {Story::kNumber}) + " *");
  picture("new-invoice");
  openItemData(
      *form, DEVICES, [this](FX::FXWindow& dialog) { recordDevices(dialog); }, "item-menu");
  openItemData(*form, SERVICE, [this](FX::FXWindow& dialog) { recordService(dialog); });
  expect("what is recorded", recordedOf(*form, DEVICES), "EKG-250311, 2026.03.10, Fehér; EKG-250312, Kék");
  expect("what is recorded", recordedOf(*form, SERVICE), std::string(Story::kPlaceChosen) + ", " + Story::kInspection);
}

void InvoiceChapter::fillHead(Form& form) {
  InvoiceHead* head = form.getHead();
  typeInto(head->getNumberField(), Story::kNumber);
  typeInto(head->getPartnerField(), Story::kPartner);
  typeInto(head->getDateField(), Story::kDate);
}

void InvoiceChapter::addItem(Form& form, const char* beginning, const char* quantity, const std::string& expected) {
  press(form, shownOf(hostText("Új tétel\tÚj tétel a számla végére (Ins)")));
  // The rest of the name appears by itself.
  user_.type(beginning);
  user_.key(FX::KEY_Tab);
  user_.type(quantity);
  user_.key(FX::KEY_Return);
  expect("the item", itemOf(form, form.getGrid()->getNumRows() - 1), expected);
}

void InvoiceChapter::recordDevices(FX::FXWindow& dialog) {
  expectItemDataTitle(dialog, Story::kProduct);
  FX::FXTable* table = firstSeen<FX::FXTable>(dialog);
  if (table == nullptr || table->getNumColumns() != COLUMNS) return reportFailure("no table of devices");
  Texts headers;
  for (FXint column = 0; column < COLUMNS; ++column) headers.emplace_back(table->getColumnText(column).text());
  expect("the headings", headers, {pluginText("Mennyiség"), Story::kSerialNumber, Story::kCalibration, Story::kColour});
  expect("what is offered", rowOf(*table, 0, COLUMNS), "3|||");
  recordDevice(*table, 0, true);
  user_.key(FX::KEY_Insert);
  expect("what is offered", rowOf(*table, 1, COLUMNS), "2|||");
  recordDevice(*table, 1, false);
  picture("item-data");
  press(dialog, shownOf(hostText("&OK")));
}

void InvoiceChapter::recordDevice(FX::FXTable& table, FXint row, bool calibrated) {
  const auto place = static_cast<size_t>(row);
  typeCell(table, row, QUANTITY, "1");
  typeCell(table, row, SERIAL, Story::kSerials[place]);
  if (calibrated) typeCell(table, row, CALIBRATION, Story::kCalibrated);
  user_.clickCell(&table, row, COLOUR);
  user_.key(FX::KEY_F2);
  chooseFrom(table, Story::kColours[place], row == 0 ? "item-data-list" : "");
  user_.clickCell(&table, row, SERIAL);
  expect("the row", rowOf(table, row, COLUMNS),
         std::string("1|") + Story::kSerials[place] + "|" + (calibrated ? Story::kCalibrated : "") + "|" +
             Story::kColours[place]);
}

void InvoiceChapter::recordService(FX::FXWindow& dialog) {
  expectItemDataTitle(dialog, Story::kService);
  Texts labels;
  for (const FX::FXLabel* label : descendantsOf<FX::FXLabel>(&dialog)) {
    const bool isButton = label->isMemberOf(FXMETACLASS(FX::FXButton));
    if (!isButton && !label->getText().empty() && isSeen(label)) labels.emplace_back(label->getText().text());
  }
  expect("the inputs", labels,
         {std::string(Story::kWorkSheet) + ":", std::string(Story::kPlace) + ":",
          std::string(Story::kNextInspection) + ":"});
  if (auto* combo = firstSeen<FX::FXComboBox>(dialog)) chooseFrom(*combo, Story::kPlaceChosen);
  pickDay(dialog);
  press(dialog, shownOf(hostText("&OK")));
}

void InvoiceChapter::pickDay(FX::FXWindow& dialog) {
  // The last field is the date's; the arrow beside it opens the calendar.
  FX::FXTextField* field = descendantsOf<FX::FXTextField>(&dialog).back();
  typeInto(field, Story::kInspectionMonth);
  if (auto* arrow = firstSeen<FX::FXMenuButton>(*field->getParent())) user_.click(arrow);
  const FX::FXWindow* pane = stage_.application->getPopupWindow();
  if (pane == nullptr) return reportFailure("the calendar has not opened");
  pictureAsItIs("calendar");
  for (const FX::FXLabel* day : descendantsOf<FX::FXLabel>(pane)) {
    if (day->getText() == Story::kInspectionDay) {
      user_.click(day);
      break;
    }
  }
  expect("the date", field->getText().text(), Story::kInspection);
}

}  // namespace Tour
