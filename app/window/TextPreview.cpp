#include "app/window/TextPreview.h"

#include <libintl.h>

namespace Brontel::App {

FXIMPLEMENT(TextPreview, FXDialogBox, nullptr, 0)

namespace {

constexpr FX::FXuint kFontSize = 10;
constexpr FX::FXint kTab = 4;

}  // namespace

TextPreview::TextPreview(FX::FXWindow* owner, const FX::FXString& title, const FX::FXString& text)
    : FXDialogBox(owner, title, FX::DECOR_TITLE | FX::DECOR_BORDER | FX::DECOR_RESIZE | FX::DECOR_CLOSE, 0, 0, 760,
                  520),
      font_(new FX::FXFont(getApp(), "courier", kFontSize)) {
  auto* buttons = new FX::FXHorizontalFrame(this, FX::LAYOUT_SIDE_BOTTOM | FX::LAYOUT_FILL_X);
  new FX::FXButton(buttons, gettext("&Bezárás"), nullptr, this, ID_ACCEPT,
                   FX::BUTTON_NORMAL | FX::BUTTON_INITIAL | FX::BUTTON_DEFAULT | FX::LAYOUT_RIGHT, 0, 0, 0, 0, 20, 20);
  auto* frame = new FX::FXHorizontalFrame(
      this, FX::FRAME_SUNKEN | FX::FRAME_THICK | FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y, 0, 0, 0, 0, 0, 0, 0, 0);
  auto* page =
      new FX::FXText(frame, nullptr, 0, FX::TEXT_READONLY | FX::TEXT_WORDWRAP | FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y);
  page->setFont(font_);
  page->setTabColumns(kTab);
  page->setText(text);
}

TextPreview::~TextPreview() {
  delete font_;
}

void TextPreview::create() {
  font_->create();
  FXDialogBox::create();
}

}  // namespace Brontel::App
