#pragma once

#include <string>
#include <vector>

#include "tour/ScreenPicture.h"

namespace Tour {

/// Where the texts of a window are in a picture: labels, buttons, fields, headers, cells and menu entries, as far as
/// they are wholly in view within their window.
class TextAreas {
 public:
  struct Text {
    std::string text;
    Area area;
  };

  /// Borrows the picture.
  explicit TextAreas(const ScreenPicture& picture) : picture_(picture) {}

  std::vector<Text> find(const FX::FXShell& window);

 private:
  void walk(const FX::FXWindow& parent, const Area& view);
  void addCells(const FX::FXTable& table, const Area& place, const Area& view);
  void add(const FX::FXString& text, const Area& area, const Area& view);

  const ScreenPicture& picture_;
  std::vector<Text> found_;
};

}  // namespace Tour
