#include "app/window/ProgressWindow.h"

#include <algorithm>

#include <libintl.h>

namespace Brontel::App {

FXIMPLEMENT_ABSTRACT(ProgressWindow, FXTopWindow, nullptr, 0)

namespace {

constexpr FX::FXuint kTotal = 1000;
constexpr FX::FXint kBarHeight = 20;
constexpr FX::FXint kLetters = 40;
constexpr FX::FXint kPad = 16;

}  // namespace

ProgressWindow::ProgressWindow(FX::FXApp* app)
    : FXTopWindow(app, gettext("Kis türelmet"), nullptr, nullptr, FX::DECOR_TITLE | FX::DECOR_BORDER, 0, 0, 0, 0, kPad,
                  kPad, kPad, kPad, kPad / 2, kPad / 2) {
  new FX::FXLabel(this, gettext("A művelet folyamatban van..."), nullptr, FX::LAYOUT_SIDE_TOP | FX::LAYOUT_FILL_X);
  const FX::FXint width = app->getNormalFont()->getTextWidth("n", 1) * kLetters;
  bar_ = new FX::FXProgressBar(this, nullptr, 0,
                               FX::PROGRESSBAR_HORIZONTAL | FX::FRAME_SUNKEN | FX::FRAME_THICK | FX::LAYOUT_SIDE_TOP |
                                   FX::LAYOUT_FIX_WIDTH | FX::LAYOUT_FIX_HEIGHT,
                               0, 0, width, kBarHeight);
  bar_->setTotal(kTotal);
}

void ProgressWindow::showOver(const FX::FXWindow* window) {
  FX::FXint x = 0;
  FX::FXint y = 0;
  const FX::FXWindow* around = window == nullptr ? getRoot() : window;
  const FX::FXint width = getDefaultWidth();
  const FX::FXint height = getDefaultHeight();
  around->translateCoordinatesTo(x, y, getRoot(), (around->getWidth() - width) / 2, (around->getHeight() - height) / 2);
  position(x, y, width, height);
  show();
  // Nobody handles the events that would bring this about later.
  layout();
  raise();
}

void ProgressWindow::setShare(double share) {
  bar_->setProgress(static_cast<FX::FXint>(std::clamp(share, 0.0, 1.0) * kTotal));
}

double ProgressWindow::getShare() const {
  return static_cast<double>(bar_->getProgress()) / kTotal;
}

FX::FXbool ProgressWindow::close(FX::FXbool) {
  return FALSE;
}

}  // namespace Brontel::App
