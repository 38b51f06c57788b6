#include "app/window/Headers.h"

#include "host/ui/Legibility.h"

namespace Brontel::App {

using FX::FXint;
using FX::FXString;

namespace {

// Borders, and the arrow of the column that a list is sorted by.
constexpr FXint kMargin = 12;

FXString widthKey(FXint item) {
  return "width" + FX::FXStringVal(item);
}

}  // namespace

void restoreHeaders(FX::FXHeader& header, const FXString& section) {
  // A wider one would push the others out of the window.
  const FXint widest = header.getRoot()->getWidth();
  for (FXint i = 0; i < header.getNumItems(); ++i) {
    const FXint left = header.getApp()->reg().readIntEntry(section.text(), widthKey(i).text(), 0);
    const bool isPossible = 0 < left && left <= widest;
    header.setItemSize(i, isPossible ? left : scaledToFont(header.getApp(), header.getItemSize(i)));
  }
}

void saveHeaders(const FX::FXHeader& header, const FXString& section) {
  for (FXint i = 0; i < header.getNumItems(); ++i) {
    header.getApp()->reg().writeIntEntry(section.text(), widthKey(i).text(), header.getItemSize(i));
  }
}

void fitHeaders(FX::FXHeader& header) {
  const FX::FXFont* font = header.getFont();
  for (FXint i = 0; i < header.getNumItems(); ++i) {
    const FXint needed = font->getTextWidth(header.getItemText(i)) + font->getFontHeight() + kMargin;
    if (header.getItemSize(i) < needed) header.setItemSize(i, needed);
  }
}

}  // namespace Brontel::App
