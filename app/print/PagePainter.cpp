#include "app/print/PagePainter.h"

namespace Brontel::App {

namespace {

constexpr double kRule = 0.5;
constexpr double kRuleAbove = 1.5;
void paintPiece(cairo_t* target, const PagePiece& piece, double baseline, const TextFaces& faces) {
  const GlibPointer<PangoLayout> layout = faces.makeLayout(piece.face, piece.isRightToLeft);
  pango_layout_set_single_paragraph_mode(layout.get(), TRUE);
  pango_layout_set_text(layout.get(), piece.text.data(), static_cast<int>(piece.text.size()));
  cairo_move_to(target, piece.x, baseline);
  pango_cairo_show_layout_line(target, pango_layout_get_line_readonly(layout.get(), 0));
}

}  // namespace

void paintPage(cairo_t* target, const Page& page, const TextFaces& faces) {
  cairo_set_source_rgb(target, 0, 0, 0);
  for (const PageLine& line : page) {
    if (line.hasRule) {
      cairo_rectangle(target, kPageMargin, line.y - kRuleAbove, kPageWidth - 2 * kPageMargin, kRule);
      cairo_fill(target);
    }
    for (const PagePiece& piece : line.pieces) paintPiece(target, piece, line.y + line.baseline, faces);
  }
}

}  // namespace Brontel::App
