#include "tour/ScreenPicture.h"

#include <algorithm>
#include <cstddef>

namespace Tour {

namespace {

constexpr FX::FXColor kDesk = FXRGB(92, 112, 128);
constexpr FX::FXColor kActive = FXRGB(44, 82, 130);
constexpr FX::FXColor kInactive = FXRGB(120, 130, 142);
constexpr FX::FXColor kTitleText = FXRGB(255, 255, 255);
constexpr int kMargin = 12;
constexpr int kTextIndent = 8;
// How far the canvas goes beyond the screen, on each side.
constexpr int kBeyond = kMargin + ScreenPicture::kTitleHeight;

}  // namespace

ScreenPicture::ScreenPicture(const std::vector<FX::FXShell*>& windows) {
  if (windows.empty()) return;
  FX::FXApp* app = windows.front()->getApp();
  const FX::FXWindow* root = app->getRootWindow();
  FX::FXImage canvas(app, nullptr, 0, root->getWidth() + 2 * kBeyond, root->getHeight() + 2 * kBeyond);
  canvas.create();
  {
    FX::FXDCWindow dc(&canvas);
    dc.setForeground(kDesk);
    dc.fillRectangle(0, 0, canvas.getWidth(), canvas.getHeight());
  }
  // A lower window brings along what lies over it, and the upper ones' frames come on top of that.
  for (const FX::FXShell* window : windows) draw(canvas, *window);
  canvas.restore();
  crop(canvas, windows);
}

bool ScreenPicture::hasTitle(const FX::FXShell& window) {
  return dynamic_cast<const FX::FXTopWindow*>(&window) != nullptr;
}

void ScreenPicture::draw(FX::FXImage& canvas, const FX::FXShell& window) {
  FX::FXDCWindow dc(&canvas);
  const Area inner = onCanvas(window);
  if (const auto* top = dynamic_cast<const FX::FXTopWindow*>(&window)) {
    const Area outer = around(window);
    FX::FXFont* font = window.getApp()->getNormalFont();
    dc.setForeground(window.getApp()->getActiveWindow() == &window ? kActive : kInactive);
    dc.fillRectangle(outer.x, outer.y, outer.width, outer.height);
    dc.setForeground(kTitleText);
    dc.setFont(font);
    const int below = (kTitleHeight - font->getFontHeight()) / 2 + font->getFontAscent();
    dc.drawText(outer.x + kTextIndent, outer.y + below, top->getTitle());
  }
  dc.clipChildren(FALSE);
  dc.drawArea(window.getRoot(), inner.x - kBeyond, inner.y - kBeyond, inner.width, inner.height, inner.x, inner.y);
}

void ScreenPicture::crop(const FX::FXImage& canvas, const std::vector<FX::FXShell*>& windows) {
  int right = 0;
  int bottom = 0;
  left_ = canvas.getWidth();
  top_ = canvas.getHeight();
  for (const FX::FXShell* window : windows) {
    const Area area = around(*window);
    left_ = std::max(0, std::min(left_, area.x - kMargin));
    top_ = std::max(0, std::min(top_, area.y - kMargin));
    right = std::min(canvas.getWidth(), std::max(right, area.x + area.width + kMargin));
    bottom = std::min(canvas.getHeight(), std::max(bottom, area.y + area.height + kMargin));
  }
  std::vector<FX::FXColor> pixels;
  for (int y = top_; y < bottom; ++y) {
    const FX::FXColor* row = canvas.getData() + static_cast<ptrdiff_t>(y) * canvas.getWidth();
    pixels.insert(pixels.end(), row + left_, row + right);
  }
  picture_ = PictureFile(std::move(pixels), right - left_, bottom - top_);
}

Area ScreenPicture::onCanvas(const FX::FXWindow& widget) {
  FX::FXint x = 0;
  FX::FXint y = 0;
  widget.translateCoordinatesTo(x, y, widget.getRoot(), 0, 0);
  return {x + kBeyond, y + kBeyond, widget.getWidth(), widget.getHeight()};
}

Area ScreenPicture::around(const FX::FXShell& window) {
  const Area area = onCanvas(window);
  if (!hasTitle(window)) return area;
  return {area.x - kFrame, area.y - kTitleHeight, area.width + 2 * kFrame, area.height + kTitleHeight + kFrame};
}

Area ScreenPicture::moved(Area area) const {
  area.x -= left_;
  area.y -= top_;
  return area;
}

Area ScreenPicture::areaOf(const FX::FXShell& window) const {
  return moved(around(window));
}

Area ScreenPicture::titleOf(const FX::FXShell& window) const {
  Area area = areaOf(window);
  area.height = kTitleHeight;
  return area;
}

Area ScreenPicture::areaOf(const FX::FXWindow& widget) const {
  return moved(onCanvas(widget));
}

}  // namespace Tour
