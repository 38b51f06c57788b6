#include "tour/FormChapter.h"

#include <fxkeys.h>

#include "app/window/ItemGrid.h"
#include "app/window/MessagePane.h"
#include "tests/support/Failure.h"
#include "tour/Texts.h"

namespace Tour {

using Brontel::App::ItemGrid;
using FX::FXint;

namespace {

constexpr int kRightButton = 3;

}  // namespace

void FormChapter::clickCell(Form& form, FXint row, FXint column, int button) {
  user_.clickCell(form.getGrid(), row, column, button);
}

std::string FormChapter::itemOf(Form& form, FXint row) {
  return rowOf(*form.getGrid(), row, ItemGrid::DATA);
}

std::string FormChapter::recordedOf(Form& form, FXint row) {
  return form.getGrid()->getItemText(row, ItemGrid::DATA).text();
}

FormChapter::Texts FormChapter::messagesOf(Form& form) {
  Texts texts;
  const FX::FXIconList* list = form.getMessages();
  for (FXint i = 0; i < list->getNumItems(); ++i) texts.emplace_back(list->getItemText(i).before('\t').text());
  return texts;
}

void FormChapter::openItemData(Form& form, FXint row, const Step& inDialog, const std::string& menuPicture) {
  user_.whenModal([this, inDialog, menuPicture](FX::FXWindow& menu) {
    if (!menuPicture.empty()) pictureAsItIs(menuPicture);
    user_.whenModal(inDialog);
    choose(menu, shownOf(pluginText("Egyéb tételadatok...\t\t")));
  });
  clickCell(form, row, ItemGrid::UNIT, kRightButton);
}

void FormChapter::repair(Form& form, FXint line, const Step& inDialog) {
  user_.whenModal(inDialog);
  doubleClickLine(form.getMessages(), line);
}

void FormChapter::typeCell(FX::FXTable& table, FXint row, FXint column, const std::string& text) {
  user_.clickCell(&table, row, column);
  user_.type(text);
  user_.key(FX::KEY_Tab);
  expect("the cell", table.getItemText(row, column).text(), text);
}

void FormChapter::chooseFrom(const FX::FXWindow& combo, const std::string& text, const std::string& listPicture) {
  if (auto* arrow = firstSeen<FX::FXMenuButton>(combo)) user_.click(arrow);
  const FX::FXWindow* pane = stage_.application->getPopupWindow();
  if (pane == nullptr) return reportFailure("the list has not opened");
  if (!listPicture.empty()) pictureAsItIs(listPicture);
  clickLine(firstSeen<FX::FXList>(*pane), text);
}

void FormChapter::expectItemDataTitle(const FX::FXWindow& dialog, const char* goods) {
  expect("the title", titleOf(dialog), hostText("%s egyéb tételadatai", {goods}));
}

}  // namespace Tour
