#pragma once

#include <fx.h>

/// What the display shows of a window, its children and whatever lies over them.
class Picture {
 public:
  /// Takes the picture of a window that is on the display.
  explicit Picture(const FX::FXWindow* window);
  Picture(const Picture&) = delete;
  Picture& operator=(const Picture&) = delete;

  FX::FXint width() const { return image_.getWidth(); }
  FX::FXint height() const { return image_.getHeight(); }
  /// The colour of a pixel; black outside.
  FX::FXColor at(FX::FXint x, FX::FXint y) const;
  /// Saves the picture as PNG. False if the file cannot be written.
  bool save(const FX::FXString& file) const;

 private:
  FX::FXImage image_;
};
