#include "app/print/LineBreaker.h"

namespace Brontel::App {

namespace {

// What is set at a time. Pango shapes the rest of a word anew for each line that it breaks off, so that a long text
// given as a whole would take hours.
constexpr size_t kPart = 600;

std::string_view beginningOf(std::string_view text) {
  if (text.size() <= kPart) return text;
  size_t end = kPart;
  const auto isInside = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; };
  while (isInside(text[end])) --end;
  return text.substr(0, end);
}

BrokenLine measure(PangoLayoutLine* line, std::string_view text) {
  PangoRectangle extents;
  pango_layout_line_get_extents(line, nullptr, &extents);
  BrokenLine result;
  text = text.substr(static_cast<size_t>(line->start_index), static_cast<size_t>(line->length));
  // The blank at which a line breaks has no width, but would have one when the line is set on its own.
  result.text = text.substr(0, text.find_last_not_of(' ') + 1);
  result.isRightToLeft = pango_layout_line_get_resolved_direction(line) == PANGO_DIRECTION_RTL;
  result.width = pango_units_to_double(extents.width);
  result.height = pango_units_to_double(extents.height);
  result.baseline = pango_units_to_double(-extents.y);
  return result;
}

// Breaks off what can be set at a time; returns how much it was.
size_t breakBeginning(std::string_view text, PangoLayout* layout, std::vector<BrokenLine>& lines) {
  const std::string_view part = beginningOf(text);
  pango_layout_set_text(layout, part.data(), static_cast<int>(part.size()));
  const bool isRest = part.size() == text.size();
  for (GSList* at = pango_layout_get_lines_readonly(layout); at != nullptr; at = at->next) {
    auto* line = static_cast<PangoLayoutLine*>(at->data);
    // The last line may go on with what has not been set yet. A line that holds the whole part does not end anyway.
    const bool goesOn = !isRest && at->next == nullptr && line->start_index > 0;
    if (goesOn) return static_cast<size_t>(line->start_index);
    lines.push_back(measure(line, part));
  }
  return part.size();
}

}  // namespace

std::vector<BrokenLine> LineBreaker::breakText(std::string_view text, Face face, double width) const {
  std::vector<BrokenLine> lines;
  if (text.empty()) return lines;
  const Column column{face, width};
  const GlibPointer<PangoLayout> layout = makeLayout(column, false);
  // A paragraph runs as its first letter with a direction does.
  pango_layout_set_auto_dir(layout.get(), TRUE);
  while (!text.empty()) {
    const size_t end = text.find('\n');
    breakParagraph(text.substr(0, end), layout.get(), column, lines);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return lines;
}

void LineBreaker::breakParagraph(std::string_view text, PangoLayout* layout, const Column& column,
                                 std::vector<BrokenLine>& lines) const {
  size_t taken = breakBeginning(text, layout, lines);
  GlibPointer<PangoLayout> sameWay;
  for (watch_(taken); taken < text.size(); watch_(taken)) {
    text.remove_prefix(taken);
    if (sameWay == nullptr) sameWay = makeLayout(column, lines.back().isRightToLeft);
    taken = breakBeginning(text, sameWay.get(), lines);
  }
}

GlibPointer<PangoLayout> LineBreaker::makeLayout(const Column& column, bool isRightToLeft) const {
  GlibPointer<PangoLayout> layout = faces_.makeLayout(column.face, isRightToLeft);
  pango_layout_set_width(layout.get(), pango_units_from_double(column.width));
  pango_layout_set_wrap(layout.get(), PANGO_WRAP_WORD_CHAR);
  return layout;
}

}  // namespace Brontel::App
