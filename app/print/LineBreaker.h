#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "app/print/Page.h"
#include "app/print/TextFaces.h"

namespace Brontel::App {

/// A text as it fits into a column.
struct BrokenLine {
  std::string text;
  bool isRightToLeft = false;
  double width = 0;
  double height = 0;
  double baseline = 0;
};

/// Breaks texts into lines: between words where that is possible, else between characters. The time that it takes grows
/// with the length of the text only, also for a single word of a million letters.
class LineBreaker {
 public:
  /// Hears how many bytes have been set since the last time.
  using Watch = std::function<void(size_t bytes)>;

  /// Borrows the fonts.
  LineBreaker(const TextFaces& faces, Watch watch) : faces_(faces), watch_(std::move(watch)) {}

  /// The lines of a text that toPrintable has made; none for an empty text. A line feed at its end begins no line.
  std::vector<BrokenLine> breakText(std::string_view text, Face face, double width) const;

 private:
  struct Column {
    Face face;
    double width;
  };

  void breakParagraph(std::string_view text, PangoLayout* layout, const Column& column,
                      std::vector<BrokenLine>& lines) const;
  GlibPointer<PangoLayout> makeLayout(const Column& column, bool isRightToLeft) const;

  const TextFaces& faces_;
  Watch watch_;
};

}  // namespace Brontel::App
