#pragma once

#include <string>
#include <vector>

#include <fx.h>

namespace Tour {

/// A part of a picture, in pixels from its upper left corner.
struct Area {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;

  bool isInside(const Area& other) const;
  bool overlaps(const Area& other) const;
};

/// A picture as it is, in memory or in a PNG file.
class PictureFile {
 public:
  PictureFile() = default;
  /// Takes the pixels over, row by row.
  PictureFile(std::vector<FX::FXColor> pixels, int width, int height);

  /// Reads a PNG file. False when there is none that can be read.
  bool load(const std::string& file);
  /// Writes a PNG file. False when that does not work.
  bool save(const std::string& file) const;

  int width() const { return width_; }
  int height() const { return height_; }
  bool isSame(const PictureFile& other) const;

  /// How many colours there are in an area, which is cut to the picture; counting ends at the most that is wanted.
  size_t countColours(const Area& area, size_t most) const;
  /// How much of the picture the commonest colour fills, in percent.
  int percentOfCommonest() const;

 private:
  std::vector<FX::FXColor> pixels_;
  int width_ = 0;
  int height_ = 0;
};

}  // namespace Tour
