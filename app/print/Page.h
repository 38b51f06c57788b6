#pragma once

#include <string>
#include <vector>

namespace Brontel::App {

/// The fonts that a page is set in.
enum class Face { Title, Label, Text, Data, Footer };

/// A4, upright, in points.
constexpr double kPageWidth = 595.28;
constexpr double kPageHeight = 841.89;
constexpr double kPageMargin = 42.5;  ///< free on every side

/// A part of a printed line: one text in one font.
struct PagePiece {
  std::string text;
  Face face = Face::Text;
  bool isRightToLeft = false;
  double x = 0;  ///< its left edge on the page
  double width = 0;
};

/// What stands side by side on a page.
struct PageLine {
  std::vector<PagePiece> pieces;
  double y = 0;  ///< its upper edge on the page
  double height = 0;
  double baseline = 0;   ///< below its upper edge
  double space = 0;      ///< left free above it, except at the top of a page
  bool hasRule = false;  ///< a thin line across the page above it
};

using Page = std::vector<PageLine>;

}  // namespace Brontel::App
