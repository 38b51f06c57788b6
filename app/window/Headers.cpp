#include "app/window/Headers.h"

#include "host/ui/Legibility.h"

namespace Brontel::App {

using FX::FXint;

namespace {

// Borders, and the arrow of the column that a list is sorted by.
constexpr FXint kMargin = 12;

}  // namespace

void scaleHeaders(FX::FXHeader& header) {
  for (FXint i = 0; i < header.getNumItems(); ++i) {
    header.setItemSize(i, scaledToFont(header.getApp(), header.getItemSize(i)));
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
