#include "tour/Chapter.h"

#include <fxkeys.h>

#include "tests/support/Failure.h"

namespace Tour {

using FX::FXint;

namespace {

std::string joined(const std::vector<std::string>& texts, const char* separator) {
  std::string all;
  for (size_t i = 0; i < texts.size(); ++i) all += (i == 0 ? "" : separator) + texts[i];
  return all;
}

}  // namespace

void Chapter::expect(const std::string& what, const std::string& actual, const std::string& expected) {
  if (actual != expected) reportFailure(what + " is \"" + actual + "\" instead of \"" + expected + "\"");
}

void Chapter::expect(const std::string& what, const Texts& actual, const Texts& expected) {
  expect(what, joined(actual, "\n"), joined(expected, "\n"));
}

void Chapter::expectRows(const std::string& sql, const Rows& expected) {
  Texts actual;
  Texts wanted;
  for (const Texts& row : Stage::rows(sql)) actual.push_back(joined(row, "|"));
  for (const Texts& row : expected) wanted.push_back(joined(row, "|"));
  expect(sql, actual, wanted);
}

void Chapter::picture(const std::string& name) {
  const FX::FXWindow* screen = stage_.application->getRootWindow();
  user_.moveTo(screen, screen->getWidth() - 1, screen->getHeight() - 1);
  pictureAsItIs(name);
}

std::string Chapter::titleOf(const FX::FXWindow& window) {
  const auto* top = dynamic_cast<const FX::FXTopWindow*>(&window);
  return top == nullptr ? "" : top->getTitle().text();
}

bool Chapter::isSeen(const FX::FXWindow* widget) {
  for (; !widget->isShell(); widget = widget->getParent()) {
    if (!widget->shown()) return false;
  }
  return true;
}

void Chapter::failToFind(const FX::FXWindow& window, const std::string& what) {
  reportFailure("no " + what + " in the " + window.getClassName() + " \"" + titleOf(window) + "\"");
}

void Chapter::press(const FX::FXWindow& window, const std::string& text) {
  for (const FX::FXButton* button : descendantsOf<FX::FXButton>(&window)) {
    if (button->getText() == text.c_str() && isSeen(button)) return user_.click(button);
  }
  failToFind(window, "button \"" + text + "\"");
}

void Chapter::choose(const FX::FXWindow& menu, const std::string& text) {
  for (const FX::FXMenuCommand* entry : descendantsOf<FX::FXMenuCommand>(&menu)) {
    if (entry->getText() == text.c_str()) return user_.click(entry);
  }
  failToFind(menu, "entry \"" + text + "\"");
}

FX::FXWindow* Chapter::openMenu(const FX::FXWindow& window, const std::string& title) {
  for (const FX::FXMenuTitle* found : descendantsOf<FX::FXMenuTitle>(&window)) {
    if (found->getText() != title.c_str()) continue;
    user_.click(found);
    return found->getMenu();
  }
  failToFind(window, "menu \"" + title + "\"");
  return nullptr;
}

void Chapter::typeInto(FX::FXTextField* field, const std::string& text) {
  if (field == nullptr) return;
  user_.click(field);
  user_.key(FX::KEY_a, {FX::KEY_Control_L});
  user_.type(text);
  expect("what was typed", field->getText().text(), text);
}

void Chapter::clickLine(FX::FXList* list, const std::string& text, bool isDouble) {
  const FXint item = list == nullptr ? -1 : list->findItem(text.c_str());
  if (item < 0) return reportFailure("no line \"" + text + "\" in the list");
  list->makeItemVisible(item);
  user_.settle();
  const FXint y = list->getYPosition() + item * list->getItemHeight(0) + list->getItemHeight(0) / 2;
  constexpr FXint kInside = 30;
  if (isDouble) {
    user_.doubleClickAt(list, kInside, y);
  } else {
    user_.clickAt(list, kInside, y);
  }
}

void Chapter::doubleClickLine(FX::FXIconList* list, FXint line) {
  constexpr FXint kInside = 60;
  const FXint height = list->getItemHeight();
  user_.doubleClickAt(list, kInside, list->getHeader()->getHeight() + line * height + height / 2);
}

std::string Chapter::rowOf(const FX::FXTable& table, FXint row, FXint columns) {
  Texts cells;
  for (FXint column = 0; column < columns; ++column) cells.emplace_back(table.getItemText(row, column).text());
  return joined(cells, "|");
}

Chapter::Texts Chapter::linesOf(const FX::FXIconList& list) {
  Texts lines;
  for (FXint i = 0; i < list.getNumItems(); ++i) {
    FX::FXString line = list.getItemText(i);
    lines.emplace_back(line.substitute('\t', '|').text());
  }
  return lines;
}

}  // namespace Tour
