#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <string_view>

#include <fx.h>

namespace Brontel {

/// Small icons drawn as text and turned into GIF89a files by the compiler, so that the picture can be read and changed
/// where it stands. 16 lines of 16 characters, each naming a colour of the palette below; '.' is transparent.
namespace PixelIcon {

constexpr size_t kSide = 16;
constexpr FX::FXColor kTransparent = FXRGB(192, 192, 192);

struct Colour {
  char letter;
  unsigned char red, green, blue;
};

// Position 0 is the transparent background; the sizes of GIF palettes are powers of two.
constexpr std::array<Colour, 16> kPalette{{{'.', 192, 192, 192},
                                           {'#', 32, 32, 32},
                                           {'w', 255, 255, 255},
                                           {'g', 128, 128, 128},
                                           {'r', 200, 30, 30},
                                           {'o', 240, 140, 0},
                                           {'y', 250, 220, 90},
                                           {'G', 30, 140, 60},
                                           {'b', 40, 90, 180},
                                           {'B', 140, 180, 235},
                                           {'n', 20, 40, 90},
                                           {'p', 140, 60, 160},
                                           {'c', 0, 140, 150},
                                           {'l', 225, 225, 225},
                                           {'d', 80, 80, 80},
                                           {'k', 0, 0, 0}}};

// Codes of five bits: the sixteen colours, clear and end. A decoder's table grows by one entry a code and would need
// six bits after fourteen of them; clearing it before that keeps every code at five bits, at the price of no
// compression.
constexpr unsigned kCodeBits = 5;
constexpr unsigned kClear = 16;
constexpr unsigned kEnd = 17;
constexpr size_t kRun = 12;
constexpr size_t kPixels = kSide * kSide;
constexpr size_t kCodes = kPixels + (kPixels + kRun - 1) / kRun + 1;
constexpr size_t kDataBytes = (kCodes * kCodeBits + 7) / 8;
constexpr size_t kHeader = 13;
constexpr size_t kGraphicControl = 8;
constexpr size_t kImageDescriptor = 10;
constexpr size_t kFileBytes = kHeader + kPalette.size() * 3 + kGraphicControl + kImageDescriptor + 1 /* code size */ +
                              1 /* block length */ + kDataBytes + 1 /* last block */ + 1 /* trailer */;
static_assert(kDataBytes <= 255, "the pixels have to fit one data block");

using Gif = std::array<unsigned char, kFileBytes>;

constexpr unsigned colourIndex(char letter) {
  for (size_t i = 0; i < kPalette.size(); ++i) {
    if (kPalette[i].letter == letter) return static_cast<unsigned>(i);
  }
  return static_cast<unsigned>(kPalette.size());
}

/// Puts five-bit codes into bytes, least significant bits first.
class CodeWriter {
 public:
  constexpr CodeWriter(Gif& file, size_t at) : file_(file), at_(at) {}

  constexpr void put(unsigned code) {
    for (unsigned bit = 0; bit < kCodeBits; ++bit) {
      if ((code >> bit & 1U) != 0) file_[at_ + used_ / 8] |= static_cast<unsigned char>(1U << used_ % 8);
      ++used_;
    }
  }

 private:
  Gif& file_;
  size_t at_;
  size_t used_ = 0;
};

constexpr size_t putBytes(Gif& file, size_t at, std::initializer_list<unsigned char> bytes) {
  for (const unsigned char byte : bytes) file[at++] = byte;
  return at;
}

// Never defined: calling one of them while compiling is the error message.
void thereIsNoSuchColour();
void thePictureIsNot16By16();

/// The file of a picture. A letter outside the palette or a picture of another size does not compile.
consteval Gif gif(std::string_view picture) {
  Gif file{};
  size_t at = putBytes(file, 0, {'G', 'I', 'F', '8', '9', 'a', kSide, 0, kSide, 0, 0xF3, 0, 0});
  for (const Colour& colour : kPalette) at = putBytes(file, at, {colour.red, colour.green, colour.blue});
  at = putBytes(file, at, {0x21, 0xF9, 4, 1, 0, 0, 0, 0});
  at = putBytes(file, at, {0x2C, 0, 0, 0, 0, kSide, 0, kSide, 0, 0});
  at = putBytes(file, at, {kCodeBits - 1, kDataBytes});
  CodeWriter codes(file, at);
  size_t pixel = 0;
  for (const char letter : picture) {
    if (letter == '\n') continue;
    if (pixel % kRun == 0) codes.put(kClear);
    if (colourIndex(letter) == kPalette.size()) thereIsNoSuchColour();
    codes.put(colourIndex(letter));
    ++pixel;
  }
  if (pixel != kPixels) thePictureIsNot16By16();
  codes.put(kEnd);
  putBytes(file, at + kDataBytes, {0, 0x3B});
  return file;
}

}  // namespace PixelIcon

/// A new icon of the picture, decoded at once and not yet created on the display. The caller owns it; null without an
/// application, which icons cannot do without.
inline FX::FXIcon* makeIcon(FX::FXApp* app, const PixelIcon::Gif& picture) {
  return app == nullptr ? nullptr : new FX::FXGIFIcon(app, picture.data(), PixelIcon::kTransparent, 0);
}

}  // namespace Brontel
