#include "host/ui/Legibility.h"

#include <algorithm>

namespace Brontel {

using FX::FXint;
using FX::FXString;

namespace {

constexpr FXint kUsualFontHeight = 15;

// What window managers and panels take of a screen.
constexpr FXint kFrameWidth = 16;
constexpr FXint kFrameHeight = 64;

constexpr FXint kSmallest = 200;

constexpr FXint kLongestLine = 90;  // of a box, in letters

// A line being broken: how much of it is certain, and where it could end.
class Line {
 public:
  Line(const FX::FXFont& font, FXint width) : font_(font), width_(width) {}

  void add(const FXString& character) {
    const FXint needed = font_.getTextWidth(character);
    if (text_.length() > 0 && used_ + needed > width_ && character != " ") breakUp();
    text_ += character;
    used_ += needed;
    if (character == " " || character == "/") end_ = text_.length();
  }

  /// Everything so far, with line feeds where it was broken.
  FXString take() const { return done_ + text_; }

 private:
  void breakUp() {
    const FXint end = end_ > 0 ? end_ : text_.length();
    // The blank at the end of a line is not seen, and would count in the next measurement.
    done_ += (text_[end - 1] == ' ' ? text_.left(end - 1) : text_.left(end)) + "\n";
    text_.erase(0, end);
    used_ = font_.getTextWidth(text_);
    end_ = 0;
  }

  const FX::FXFont& font_;
  const FXint width_;
  FXString done_;
  FXString text_;
  FXint used_ = 0;
  FXint end_ = 0;
};

FXString wrappedLine(const FXString& text, const FX::FXFont& font, FXint width) {
  Line line(font, width);
  for (FXint at = 0; at < text.length(); at = text.inc(at)) line.add(text.mid(at, text.inc(at) - at));
  return line.take();
}

}  // namespace

FXint scaledToFont(const FX::FXApp* app, FXint pixels) {
  const FX::FXFont* font = app->getNormalFont();
  if (font->id() == 0) return pixels;
  return std::max(pixels, pixels * font->getFontHeight() / kUsualFontHeight);
}

void resizeToFont(FX::FXTopWindow& window, FXint width, FXint height) {
  const FX::FXApp* app = window.getApp();
  const FXint wide = std::max(scaledToFont(app, width), window.getDefaultWidth());
  const FXint high = std::max(scaledToFont(app, height), window.getDefaultHeight());
  window.resize(std::min(wide, window.getRoot()->getWidth() - kFrameWidth),
                std::min(high, window.getRoot()->getHeight() - kFrameHeight));
}

void placeOnScreen(FX::FXTopWindow& window, FXint x, FXint y, FXint width, FXint height) {
  const FXint screenWidth = window.getRoot()->getWidth();
  const FXint screenHeight = window.getRoot()->getHeight();
  const FXint wide = std::clamp(width, std::min(kSmallest, screenWidth), screenWidth);
  const FXint high = std::clamp(height, std::min(kSmallest, screenHeight), screenHeight);
  window.position(std::clamp(x, 0, screenWidth - wide), std::clamp(y, 0, screenHeight - high), wide, high);
}

void fitRows(FX::FXTable& table) {
  if (table.getFont()->id() == 0) return;
  const FXint needed = table.getFont()->getFontHeight() + table.getMarginTop() + table.getMarginBottom();
  if (table.getDefRowHeight() < needed) table.setDefRowHeight(needed);
  for (FXint row = 0; row < table.getNumRows(); ++row) {
    if (table.getRowHeight(row) < needed) table.setRowHeight(row, needed);
  }
}

FXString wrapped(const FXString& text, const FX::FXFont& font, FXint width) {
  FXString result;
  for (FXint line = 0; line <= text.contains('\n'); ++line) {
    if (line > 0) result += '\n';
    result += wrappedLine(text.section('\n', line), font, width);
  }
  return result;
}

FXString wrappedForBox(const FX::FXApp* app, const FXString& text) {
  const FX::FXFont& font = *app->getNormalFont();
  const FX::FXWindow* screen = app->getRootWindow();
  const FXint longest = kLongestLine * font.getTextWidth("n");
  const FXString lines = wrapped(text, font, std::min(longest, screen->getWidth() * 3 / 4));
  const FXint most = screen->getHeight() * 2 / 3 / font.getFontHeight();
  return lines.contains('\n') < most ? lines : lines.section('\n', 0, most) + "\n...";
}

}  // namespace Brontel
