#include "tour/PictureFile.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <set>
#include <utility>

#include <FXPNGImage.h>

namespace Tour {

bool Area::isInside(const Area& other) const {
  return other.x <= x && other.y <= y && x + width <= other.x + other.width && y + height <= other.y + other.height;
}

bool Area::overlaps(const Area& other) const {
  return x < other.x + other.width && other.x < x + width && y < other.y + other.height && other.y < y + height;
}

PictureFile::PictureFile(std::vector<FX::FXColor> pixels, int width, int height)
    : pixels_(std::move(pixels)), width_(width), height_(height) {}

bool PictureFile::load(const std::string& file) {
  FX::FXFileStream stream;
  FX::FXColor* data = nullptr;
  if (!stream.open(file.c_str(), FX::FXStreamLoad)) return false;
  const bool loaded = FX::fxloadPNG(stream, data, width_, height_);
  if (loaded) pixels_.assign(data, data + static_cast<ptrdiff_t>(width_) * height_);
  FX::fxfree(reinterpret_cast<void**>(&data));
  return loaded;
}

bool PictureFile::save(const std::string& file) const {
  FX::FXFileStream stream;
  if (pixels_.empty() || !stream.open(file.c_str(), FX::FXStreamSave)) return false;
  const bool saved = FX::fxsavePNG(stream, pixels_.data(), width_, height_);
  return stream.close() && saved;
}

bool PictureFile::isSame(const PictureFile& other) const {
  return width_ == other.width_ && height_ == other.height_ && pixels_ == other.pixels_;
}

size_t PictureFile::countColours(const Area& area, size_t most) const {
  std::set<FX::FXColor> colours;
  for (int y = std::max(0, area.y); y < std::min(height_, area.y + area.height); ++y) {
    for (int x = std::max(0, area.x); x < std::min(width_, area.x + area.width); ++x) {
      colours.insert(pixels_[static_cast<size_t>(y) * static_cast<size_t>(width_) + static_cast<size_t>(x)]);
      if (colours.size() >= most) return most;
    }
  }
  return colours.size();
}

int PictureFile::percentOfCommonest() const {
  if (pixels_.empty()) return 100;
  std::map<FX::FXColor, size_t> counts;
  for (const FX::FXColor colour : pixels_) ++counts[colour];
  const auto isLess = [](const auto& one, const auto& other) { return one.second < other.second; };
  const size_t most = std::max_element(counts.begin(), counts.end(), isLess)->second;
  return static_cast<int>(most * 100 / pixels_.size());
}

}  // namespace Tour
