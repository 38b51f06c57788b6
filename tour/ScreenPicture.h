#pragma once

#include <vector>

#include <fx.h>

#include "tour/PictureFile.h"

namespace Tour {

/// What the display shows, each window with a title bar: no window manager runs there that would give it one.
class ScreenPicture {
 public:
  /// How high a title bar is, above its window.
  static constexpr int kTitleHeight = 22;
  /// How wide the frame around a window is.
  static constexpr int kFrame = 1;

  /// Takes the picture. The windows are all that are shown, lowest first.
  explicit ScreenPicture(const std::vector<FX::FXShell*>& windows);

  /// As much of the screen as the windows fill, and a margin. A window at the edge of the screen has its frame beyond
  /// it.
  const PictureFile& picture() const { return picture_; }

  /// Where something is in the picture: a window with its frame, its title bar, and a widget.
  Area areaOf(const FX::FXShell& window) const;
  Area titleOf(const FX::FXShell& window) const;
  Area areaOf(const FX::FXWindow& widget) const;

  /// Menus and the like have no title bar.
  static bool hasTitle(const FX::FXShell& window);

 private:
  static Area onCanvas(const FX::FXWindow& widget);
  static Area around(const FX::FXShell& window);
  static void draw(FX::FXImage& canvas, const FX::FXShell& window);
  void crop(const FX::FXImage& canvas, const std::vector<FX::FXShell*>& windows);
  Area moved(Area area) const;

  PictureFile picture_;
  int left_ = 0;  // of the picture on the canvas
  int top_ = 0;
};

}  // namespace Tour
