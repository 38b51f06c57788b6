#include "tour/Album.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "tests/support/Failure.h"
#include "tests/support/LayoutWalk.h"
#include "tests/support/WindowUser.h"
#include "tour/TextAreas.h"

namespace Tour {

namespace {

constexpr int kLeastWidth = 300;
constexpr int kLeastHeight = 120;
constexpr int kMostOfOneColour = 90;  // percent
constexpr size_t kLeastColours = 12;
constexpr int kNearlyAll = 85;  // percent

// The plug-in's table; its columns share a width that does not depend on what they are headed with.
const FX::FXTable* findItemDataTable(const FX::FXShell& window) {
  for (const FX::FXTable* table : descendantsOf<FX::FXTable>(&window)) {
    if (FX::FXString(table->getClassName()) == "ItemDataTable") return table;
  }
  return nullptr;
}

// So much that what is left would only confuse.
bool isNearlyCovered(const FX::FXWindow& window, const FX::FXWindow& above) {
  const FX::FXint width = std::min(window.getX() + window.getWidth(), above.getX() + above.getWidth()) -
                          std::max(window.getX(), above.getX());
  const FX::FXint height = std::min(window.getY() + window.getHeight(), above.getY() + above.getHeight()) -
                           std::max(window.getY(), above.getY());
  return width > 0 && height > 0 && width * height * 100 > window.getWidth() * window.getHeight() * kNearlyAll;
}

}  // namespace

Album::Album(TestApplication& application, std::string folder)
    : application_(application), display_(application.display().name()), folder_(std::move(folder)) {}

void Album::take(const std::string& name) {
  char number[16] = "";
  static_cast<void>(std::snprintf(number, sizeof number, "%02zu-", files_.size() + 1));
  files_.push_back(folder_ + "/" + number + name + ".png");
  const std::vector<FX::FXShell*> windows = shownWindows();
  const ScreenPicture screen(windows);
  PictureFile picture;
  if (!screen.picture().save(files_.back()) || !picture.load(files_.back())) return report("cannot be written");
  if (!picture.isSame(screen.picture())) report("is not what was on the screen");
  checkWhole(picture);
  checkTexts(picture, screen, windows);
  for (FX::FXShell* window : windows) checkLayout(*window);
}

std::vector<FX::FXShell*> Album::shownWindows() {
  application_->flush(true);
  std::vector<FX::FXShell*> windows;
  for (const unsigned long id : display_.stack()) {
    auto* window = dynamic_cast<FX::FXShell*>(application_->findWindowWithId(static_cast<FX::FXID>(id)));
    if (window == nullptr) continue;
    std::erase_if(windows, [window](const FX::FXShell* below) { return isNearlyCovered(*below, *window); });
    windows.push_back(window);
  }
  return windows;
}

void Album::checkLayout(FX::FXShell& window) const {
  // Menus and lists are as big as what is in them, or scroll.
  if (!ScreenPicture::hasTitle(window)) return;
  // The toolkit's own has a button that nobody sees.
  if (dynamic_cast<const FX::FXFileDialog*>(&window) != nullptr) return;
  const auto columns =
      findItemDataTable(window) != nullptr ? LayoutWalk::Columns::Settled : LayoutWalk::Columns::FitHeadings;
  for (const std::string& fault : LayoutWalk(columns).findFaults(window)) report(fault);
  checkFields(window);
  checkCells(window);
}

void Album::checkFields(const FX::FXShell& window) const {
  for (const FX::FXTextField* field : descendantsOf<FX::FXTextField>(&window)) {
    const FX::FXint room = field->getWidth() - field->getPadLeft() - field->getPadRight() - 2 * field->getBorderWidth();
    if (field->getWidth() <= 1 || field->getFont()->getTextWidth(field->getText()) <= room) continue;
    report(std::string("has no room for \"") + field->getText().text() + "\"");
  }
}

void Album::checkCells(const FX::FXShell& window) const {
  const FX::FXTable* table = findItemDataTable(window);
  if (table == nullptr) return;
  for (FX::FXint row = 0; row < table->getNumRows(); ++row) {
    for (FX::FXint column = 0; column < table->getNumColumns(); ++column) {
      const FX::FXString text = table->getItemText(row, column);
      const FX::FXint room = table->getColumnWidth(column) - table->getMarginLeft() - table->getMarginRight();
      if (table->getFont()->getTextWidth(text) > room) report(std::string("has no room for \"") + text.text() + "\"");
    }
  }
}

void Album::checkWhole(const PictureFile& picture) const {
  if (picture.width() < kLeastWidth || picture.height() < kLeastHeight) report("is too small");
  if (picture.percentOfCommonest() > kMostOfOneColour) report("is nearly empty");
  if (picture.countColours({0, 0, picture.width(), picture.height()}, kLeastColours) < kLeastColours) {
    report("has hardly a colour");
  }
}

void Album::checkTexts(const PictureFile& picture, const ScreenPicture& screen,
                       const std::vector<FX::FXShell*>& windows) {
  for (size_t i = 0; i < windows.size(); ++i) {
    const auto isCovered = [&](const Area& area) {
      return std::any_of(windows.begin() + static_cast<ptrdiff_t>(i) + 1, windows.end(),
                         [&](const FX::FXShell* above) { return screen.areaOf(*above).overlaps(area); });
    };
    const Area title = screen.titleOf(*windows[i]);
    if (ScreenPicture::hasTitle(*windows[i]) && !isCovered(title)) checkText(picture, title, "its title");
    for (const TextAreas::Text& text : TextAreas(screen).find(*windows[i])) {
      if (!isCovered(text.area)) checkText(picture, text.area, text.text);
    }
  }
}

void Album::checkText(const PictureFile& picture, const Area& area, const std::string& text) {
  ++texts_;
  if (!area.isInside({0, 0, picture.width(), picture.height()})) report("cuts off \"" + text + "\"");
  // Letters are smoothed where there is a font that allows it, but there are at least the letters and their ground.
  if (picture.countColours(area, 2) < 2) report("does not show \"" + text + "\"");
}

void Album::report(const std::string& what) const {
  reportFailure(files_.back() + ": " + what);
}

}  // namespace Tour
