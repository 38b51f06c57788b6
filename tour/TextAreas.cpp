#include "tour/TextAreas.h"

#include <algorithm>

namespace Tour {

namespace {

Area common(const Area& one, const Area& other) {
  const int x = std::max(one.x, other.x);
  const int y = std::max(one.y, other.y);
  const int right = std::min(one.x + one.width, other.x + other.width);
  const int bottom = std::min(one.y + one.height, other.y + other.height);
  return {x, y, std::max(0, right - x), std::max(0, bottom - y)};
}

FX::FXString textOf(const FX::FXWindow& widget) {
  if (const auto* label = dynamic_cast<const FX::FXLabel*>(&widget)) return label->getText();
  if (const auto* entry = dynamic_cast<const FX::FXMenuCaption*>(&widget)) return entry->getText();
  if (const auto* field = dynamic_cast<const FX::FXTextField*>(&widget)) return field->getText();
  const auto* header = dynamic_cast<const FX::FXHeader*>(&widget);
  return header == nullptr || header->getNumItems() == 0 ? FX::FXString() : header->getItemText(0);
}

}  // namespace

std::vector<TextAreas::Text> TextAreas::find(const FX::FXShell& window) {
  found_.clear();
  walk(window, picture_.areaOf(static_cast<const FX::FXWindow&>(window)));
  return found_;
}

void TextAreas::walk(const FX::FXWindow& parent, const Area& view) {
  for (const FX::FXWindow* child = parent.getFirst(); child != nullptr; child = child->getNext()) {
    if (!child->shown() || child->isShell()) continue;
    const Area area = picture_.areaOf(*child);
    add(textOf(*child), area, view);
    if (const auto* table = dynamic_cast<const FX::FXTable*>(child)) addCells(*table, area, common(view, area));
    walk(*child, common(view, area));
  }
}

void TextAreas::addCells(const FX::FXTable& table, const Area& place, const Area& view) {
  for (FX::FXint row = 0; row < table.getNumRows(); ++row) {
    for (FX::FXint column = 0; column < table.getNumColumns(); ++column) {
      // A cell that is being edited shows its editor.
      const bool isEdited = table.getFocus() != nullptr && table.isItemCurrent(row, column);
      if (isEdited || table.getItem(row, column) == nullptr) continue;
      const Area cell{place.x + table.getColumnX(column), place.y + table.getRowY(row), table.getColumnWidth(column),
                      table.getRowHeight(row)};
      add(table.getItemText(row, column), cell, view);
    }
  }
}

void TextAreas::add(const FX::FXString& text, const Area& area, const Area& view) {
  // A header that is not wanted is a pixel wide.
  const bool isSeen = area.width > 1 && area.height > 1 && area.isInside(view);
  if (!FX::FXString(text).trim().empty() && isSeen) found_.push_back({text.text(), area});
}

}  // namespace Tour
