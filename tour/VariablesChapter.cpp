#include "tour/VariablesChapter.h"

#include <algorithm>

#include <fxkeys.h>

#include "app/window/InvoiceListFrame.h"
#include "app/window/RowList.h"
#include "tour/Texts.h"

namespace Tour {

using FX::FXint;

namespace {

enum Column { NAME, TYPE, PER_UNIT, MANDATORY, PARAMETER, COLUMNS };

constexpr const char* kStored =
    "select name, type, process, mandatory, vvalue from t_itemvariable where type>0 order by t_itemvariable_id "
    "desc limit 4";

std::string nameOfType(int type) {
  return FX::FXString(pluginText("1\tSzöveg\n2\tDátum\n3\tLista").c_str()).section('\n', type - 1).after('\t').text();
}

const char* markOf(bool set) {
  return set ? "✓" : "";
}

}  // namespace

void VariablesChapter::play() {
  lookAtMain();
  FX::FXWindow* menu = openMenu(stage_.useMain(), shownOf(hostText("&Bővítmények")));
  if (menu == nullptr) return;
  pictureAsItIs("settings-menu");
  user_.whenModal([this](FX::FXWindow& dialog) { fillIn(dialog); });
  choose(*menu, shownOf(hostText("%s beállításai...\t%s\tA bővítmény beállításai.",
                                 {pluginText("Egyéb tételadatok").c_str(), "Alt+1"})));
  Rows stored;
  for (const Story::Variable& variable : Story::kVariables) {
    stored.insert(stored.begin(), {variable.name, std::to_string(variable.type), variable.perUnit ? "1" : "0",
                                   variable.mandatory ? "1" : "0", variable.parameter});
  }
  expectRows(kStored, stored);
}

void VariablesChapter::lookAtMain() {
  Stage::MainWindow& main = stage_.useMain();
  expect("the title", titleOf(main), std::string("Brontel - ") + Stage::kDatabase);
  const Texts lines = linesOf(*main.getInvoices()->getList());
  expect("the number of invoices", std::to_string(lines.size()), "5");
  expect(
      "the first invoice", lines.empty() ? "" : lines.front(),
      "K-2025/0096/J1|" + hostText("Kimenő számla") + "|Bükkaljai Általános Iskola|2025-03-05|" + hostText("Nyitott"));
  picture("main-window");
}

void VariablesChapter::fillIn(FX::FXWindow& dialog) {
  expect("the title", titleOf(dialog), pluginText("Egyéb tételadatok"));
  FX::FXTable* table = firstSeen<FX::FXTable>(dialog);
  if (table == nullptr) return;
  const Texts headers{pluginText("Név"), pluginText("Típus"), pluginText("Egységenként rögzítendő"),
                      pluginText("Kötelező"), pluginText("Paraméter")};
  for (FXint column = 0; column < COLUMNS; ++column) {
    expect("a heading", table->getColumnText(column).text(), headers[static_cast<size_t>(column)]);
  }
  for (const Story::Variable& variable : Story::kVariables) addVariable(*table, variable);
  picture("settings");
  press(dialog, shownOf(hostText("&OK")));
}

void VariablesChapter::addVariable(FX::FXTable& table, const Story::Variable& variable) {
  user_.key(FX::KEY_Insert);
  const FXint row = table.getNumRows() - 1;
  user_.type(variable.name);
  user_.key(FX::KEY_Return);
  chooseType(table, row, variable);
  for (const auto& [column, isSet] : {std::pair{PER_UNIT, variable.perUnit}, {MANDATORY, variable.mandatory}}) {
    if (!isSet) continue;
    user_.clickCell(&table, row, column);
    user_.key(FX::KEY_space);
  }
  if (*variable.parameter != '\0') {
    user_.clickCell(&table, row, PARAMETER);
    user_.type(variable.parameter);
    user_.key(FX::KEY_Return);
  }
  expect("the row", rowOf(table, row, COLUMNS),
         std::string(variable.name) + "|" + nameOfType(variable.type) + "|" + markOf(variable.perUnit) + "|" +
             markOf(variable.mandatory) + "|" + variable.parameter);
}

void VariablesChapter::chooseType(FX::FXTable& table, FXint row, const Story::Variable& variable) {
  user_.clickCell(&table, row, TYPE);
  user_.key(FX::KEY_F2);
  const bool isFirst = &variable == Story::kVariables.data();
  if (!isFirst) {
    for (int i = 0; i < variable.type; ++i) user_.key(FX::KEY_Down);
    user_.key(FX::KEY_Return);
    return;
  }
  // Once from the list.
  if (auto* arrow = firstSeen<FX::FXMenuButton>(table)) user_.click(arrow);
  FX::FXWindow* pane = stage_.application->getPopupWindow();
  pictureAsItIs("settings-list");
  if (pane != nullptr) clickLine(firstSeen<FX::FXList>(*pane), nameOfType(variable.type));
  user_.key(FX::KEY_Return);
}

}  // namespace Tour
