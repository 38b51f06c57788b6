#include "tests/support/LayoutWalk.h"

#include <algorithm>

using FX::FXint;
using FX::FXWindow;

namespace {

constexpr FXint kLines = 3;  // that a list shows at least, if it has as many

std::string textOf(const FXWindow& widget) {
  if (const auto* label = dynamic_cast<const FX::FXLabel*>(&widget)) return label->getText().text();
  if (const auto* entry = dynamic_cast<const FX::FXMenuCaption*>(&widget)) return entry->getText().text();
  if (const auto* field = dynamic_cast<const FX::FXTextField*>(&widget)) return field->getText().text();
  if (const auto* shell = dynamic_cast<const FX::FXTopWindow*>(&widget)) return shell->getTitle().text();
  return std::string();
}

// Pages and tabs lie over each other by design, and a table's editor lies over its cells.
bool mayOverlap(const FXWindow& parent) {
  return dynamic_cast<const FX::FXTabBar*>(&parent) != nullptr ||
         dynamic_cast<const FX::FXSwitcher*>(&parent) != nullptr ||
         dynamic_cast<const FX::FXScrollArea*>(&parent) != nullptr;
}

bool doOverlap(const FXWindow& a, const FXWindow& b) {
  return a.getX() < b.getX() + b.getWidth() && b.getX() < a.getX() + a.getWidth() &&
         a.getY() < b.getY() + b.getHeight() && b.getY() < a.getY() + a.getHeight();
}

}  // namespace

std::vector<std::string> LayoutWalk::findFaults(FX::FXShell& window) {
  faults_.clear();
  checkOnScreen(window);
  walk(window);
  return faults_;
}

void LayoutWalk::walk(FXWindow& widget) {
  for (FXWindow* child = widget.getFirst(); child != nullptr; child = child->getNext()) {
    if (!child->shown() || child->isShell()) continue;
    check(*child);
    if (!mayOverlap(widget)) checkNotCovered(*child);
    walk(*child);
  }
}

void LayoutWalk::check(FXWindow& widget) {
  // The corner of a table is a button with nothing on it.
  const auto* label = dynamic_cast<const FX::FXLabel*>(&widget);
  if (label != nullptr && label->getText().empty() && label->getIcon() == nullptr) return;
  const bool isText = dynamic_cast<FX::FXLabel*>(&widget) != nullptr ||
                      dynamic_cast<FX::FXMenuCaption*>(&widget) != nullptr ||
                      dynamic_cast<FX::FXListBox*>(&widget) != nullptr;
  if (isText) {
    expectAtLeast(widget, "wide", widget.getWidth(), widget.getDefaultWidth());
    expectAtLeast(widget, "high", widget.getHeight(), widget.getDefaultHeight());
    checkInside(widget);
  } else if (auto* field = dynamic_cast<FX::FXTextField*>(&widget)) {
    expectAtLeast(widget, "high", widget.getHeight(), field->getFont()->getFontHeight());
    checkInside(widget);
  } else if (auto* line = dynamic_cast<FX::FXStatusLine*>(&widget)) {
    expectAtLeast(widget, "high", widget.getHeight(), line->getDefaultHeight());
    checkInside(widget);
  } else if (auto* header = dynamic_cast<FX::FXHeader*>(&widget)) {
    checkHeader(*header);
  } else if (auto* area = dynamic_cast<FX::FXScrollArea*>(&widget)) {
    checkScrollArea(*area);
    if (auto* table = dynamic_cast<FX::FXTable*>(area)) checkTable(*table);
  }
}

void LayoutWalk::checkHeader(FX::FXHeader& header) {
  if (header.getNumItems() == 0 || header.getWidth() <= 1) return;
  const bool isRow = (header.getHeaderStyle() & FX::HEADER_VERTICAL) == 0;
  if (isRow) expectAtLeast(header, "high", header.getHeight(), header.getDefaultHeight());
  if (!isRow || columns_ == Columns::Settled) return;
  for (FXint i = 0; i < header.getNumItems(); ++i) {
    const FXint needed = header.getItem(i)->getWidth(&header);
    if (header.getItemSize(i) >= needed) continue;
    report(header, "\"" + std::string(header.getItemText(i).text()) + "\" has " +
                       std::to_string(header.getItemSize(i)) + " of " + std::to_string(needed) + " pixels");
  }
}

void LayoutWalk::checkTable(FX::FXTable& table) {
  const FXint line = table.getFont()->getFontHeight() + table.getMarginTop() + table.getMarginBottom();
  for (FXint row = 0; row < table.getNumRows(); ++row) {
    if (table.getRowHeight(row) >= line) continue;
    report(table,
           "row of " + std::to_string(table.getRowHeight(row)) + " pixels for letters of " + std::to_string(line));
    return;
  }
}

void LayoutWalk::checkScrollArea(FX::FXScrollArea& area) {
  checkInside(area);
  const FXint line = area.getApp()->getNormalFont()->getFontHeight();
  // Prose and fields are to be read without going to and fro.
  const bool isFlow = dynamic_cast<FX::FXScrollWindow*>(&area) != nullptr;
  if (isFlow) expectAtLeast(area, "wide for its content", area.getViewportWidth(), area.getContentWidth());
  expectAtLeast(area, "high for its lines", area.getViewportHeight(), std::min(area.getContentHeight(), kLines * line));
}

void LayoutWalk::checkInside(const FXWindow& widget) {
  FXint left = 0;
  FXint top = 0;
  for (const FXWindow* part = &widget; !part->isShell(); part = part->getParent()) {
    const FXWindow* around = part->getParent();
    if (dynamic_cast<const FX::FXScrollArea*>(around) != nullptr) return;
    left += part->getX();
    top += part->getY();
    const bool isInside = left >= 0 && top >= 0 && left + widget.getWidth() <= around->getWidth() &&
                          top + widget.getHeight() <= around->getHeight();
    if (isInside) continue;
    report(widget, std::to_string(left) + "," + std::to_string(top) + " " + std::to_string(widget.getWidth()) + "x" +
                       std::to_string(widget.getHeight()) + " hangs out of " + around->getClassName() + " " +
                       std::to_string(around->getWidth()) + "x" + std::to_string(around->getHeight()));
    return;
  }
}

void LayoutWalk::checkNotCovered(const FXWindow& widget) {
  for (const FXWindow* other = widget.getNext(); other != nullptr; other = other->getNext()) {
    if (!other->shown() || other->isShell() || !doOverlap(widget, *other)) continue;
    report(widget, std::string("lies under ") + other->getClassName() + " \"" + textOf(*other) + "\"");
  }
}

void LayoutWalk::checkOnScreen(const FX::FXShell& window) {
  const FXWindow* screen = window.getRoot();
  const bool isOn = window.getX() >= 0 && window.getY() >= 0 &&
                    window.getX() + window.getWidth() <= screen->getWidth() &&
                    window.getY() + window.getHeight() <= screen->getHeight();
  if (isOn) return;
  report(window, std::to_string(window.getX()) + "," + std::to_string(window.getY()) + " " +
                     std::to_string(window.getWidth()) + "x" + std::to_string(window.getHeight()) +
                     " hangs out of the screen");
}

void LayoutWalk::expectAtLeast(const FXWindow& widget, const char* what, FXint actual, FXint needed) {
  if (actual >= needed) return;
  report(widget, std::to_string(actual) + " instead of " + std::to_string(needed) + " pixels " + what);
}

void LayoutWalk::report(const FXWindow& widget, const std::string& fault) {
  faults_.push_back(std::string(widget.getClassName()) + " \"" + textOf(widget) + "\": " + fault);
}
