#include "app/print/TextFaces.h"

namespace Brontel::App {

namespace {

constexpr double kPointsPerInch = 72;

const char* describe(Face face) {
  switch (face) {
    case Face::Title:
      return "DejaVu Sans,Sans Bold 16";
    case Face::Label:
      return "DejaVu Sans,Sans Bold 9";
    case Face::Data:
      return "DejaVu Sans,Sans 8";
    case Face::Footer:
      return "DejaVu Sans,Sans 7";
    case Face::Text:
      break;
  }
  return "DejaVu Sans,Sans 9";
}

}  // namespace

TextFaces::TextFaces() : fonts_(pango_cairo_font_map_new()), context_(pango_font_map_create_context(fonts_.get())) {
  pango_cairo_context_set_resolution(context_.get(), kPointsPerInch);
  // Widths grow with the scale only without hints, so that lines break at the same places on paper and on the screen.
  cairo_font_options_t* options = cairo_font_options_create();
  cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
  cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
  pango_cairo_context_set_font_options(context_.get(), options);
  cairo_font_options_destroy(options);
  pango_context_set_round_glyph_positions(context_.get(), FALSE);
  pango_context_set_language(context_.get(), pango_language_from_string("hu"));
}

GlibPointer<PangoLayout> TextFaces::makeLayout(Face face, bool isRightToLeft) const {
  pango_context_set_base_dir(context_.get(), isRightToLeft ? PANGO_DIRECTION_RTL : PANGO_DIRECTION_LTR);
  GlibPointer<PangoLayout> layout(pango_layout_new(context_.get()));
  pango_layout_set_auto_dir(layout.get(), FALSE);
  PangoFontDescription* description = pango_font_description_from_string(describe(face));
  pango_layout_set_font_description(layout.get(), description);
  pango_font_description_free(description);
  // A hyphen at the end of a line would look like a part of a serial number.
  PangoAttrList* attributes = pango_attr_list_new();
  pango_attr_list_insert(attributes, pango_attr_insert_hyphens_new(FALSE));
  pango_layout_set_attributes(layout.get(), attributes);
  pango_attr_list_unref(attributes);
  return layout;
}

}  // namespace Brontel::App
