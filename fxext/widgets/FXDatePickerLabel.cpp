#include "fxext/widgets/FXDatePickerLabel.h"

#include "fxext/widgets/FXDatePickerHoliday.h"

namespace FXExt {

using namespace FX;

FXDEFMAP(FXDatePickerLabel)
datePickerLabelMap[] = {
    FXMAPFUNC(SEL_CLICKED, 0, FXDatePickerLabel::onClicked),
    FXMAPFUNC(SEL_LEFTBUTTONPRESS, 0, FXDatePickerLabel::onClicked),
    FXMAPFUNC(SEL_PAINT, 0, FXDatePickerLabel::onPaint),
};

FXIMPLEMENT(FXDatePickerLabel, FXLabel, datePickerLabelMap, ARRAYNUMBER(datePickerLabelMap))

namespace {

constexpr FXColor kBlack = FXRGB(0, 0, 0);
constexpr FXColor kWhite = FXRGB(255, 255, 255);
constexpr FXColor kRed = FXRGB(255, 0, 0);
constexpr FXColor kBlue = FXRGB(0, 90, 220);

// The marks keep clear of the frame that today's cell has inside its edge.
constexpr FXint kMarkInset = 3;

}  // namespace

FXDatePickerLabel::FXDatePickerLabel() = default;

FXDatePickerLabel::FXDatePickerLabel(FXComposite* p, FXObject* tgt, FXSelector sel, FXuint opts, FXint x, FXint y,
                                     FXint w, FXint h, FXint pl, FXint pr, FXint pt, FXint pb)
    : FXLabel(p, " ", nullptr, opts, x, y, w, h, pl, pr, pt, pb),
      selBackColor_(getApp()->getSelbackColor()),
      selTextColor_(getApp()->getSelforeColor()),
      weekendTextColor_(kRed),
      holidayTextColor_(kBlue) {
  target = tgt;
  message = sel;
  backColor = kWhite;
}

FXint FXDatePickerLabel::getDefaultWidth() {
  FXint digit = 0;
  for (const FXchar* c = "0123456789"; *c; ++c) digit = FXMAX(digit, font->getTextWidth(c, 1));
  return 2 * digit + padleft + padright + (border << 1);
}

void FXDatePickerLabel::reset() {
  day = -1;
  selected = 0;
  valid = 0;
  setMarks_(false, false, false);
  setText(" ");
  setColors_(getApp()->getBackColor(), getApp()->getForeColor());
}

void FXDatePickerLabel::init(const FXDate& date, const FXDate& currentDay, FXDatePickerHoliday* holiday) {
  const FXint weekday = date.dayOfWeek();
  day = date.day();
  selected = 0;
  valid = 1;
  setMarks_(date == currentDay, weekday == FXDate::Sat || weekday == FXDate::Sun, holiday && holiday->isHoliday(date));
  setText(FXStringVal(day));
}

void FXDatePickerLabel::setMarks_(bool isToday, bool isWeekend, bool isHoliday) {
  if (isToday == this->isToday() && isWeekend == this->isWeekend() && isHoliday == this->isHoliday()) return;
  today = isToday;
  weekend = isWeekend;
  holidayFlag = isHoliday;
  update();
}

void FXDatePickerLabel::select() {
  selected = 1;
  setColors_(selBackColor_, selTextColor_);
}

void FXDatePickerLabel::deselect() {
  const FXColor normal = weekend ? weekendTextColor_ : getApp()->getForeColor();
  selected = 0;
  setColors_(getApp()->getBackColor(), holidayFlag ? holidayTextColor_ : normal);
}

// Each repaints when it changes something; a cell that looks as before is left alone, so that nothing flickers.
void FXDatePickerLabel::setColors_(FXColor background, FXColor text) {
  setBackColor(background);
  setTextColor(text);
  // A disabled cell is then not embossed, which nobody could read on the selection.
  setHiliteColor(background);
}

long FXDatePickerLabel::onClicked(FXObject*, FXSelector, void* ptr) {
  return target && target->tryHandle(this, FXSEL(SEL_LEFTBUTTONPRESS, message), ptr);
}

long FXDatePickerLabel::onPaint(FXObject* sender, FXSelector sel, void* ptr) {
  FXLabel::onPaint(sender, sel, ptr);
  FXDCWindow dc(this, static_cast<FXEvent*>(ptr));
  if (weekend && (selected || holidayFlag)) drawUnderline_(dc);
  if (holidayFlag) drawCorner_(dc);
  if (today) drawFrameOfToday_(dc);
  return 1;
}

void FXDatePickerLabel::drawUnderline_(FXDCWindow& dc) {
  const FXint textWidth = labelWidth(label);
  const FXint textHeight = labelHeight(label);
  const FXint thickness = FXMAX(1, textHeight / 8);
  FXint x = 0;
  FXint y = 0;
  FXint noIcon = 0;
  just_x(x, noIcon, textWidth, 0);
  just_y(y, noIcon, textHeight, 0);
  dc.setForeground(weekendTextColor_);
  dc.fillRectangle(x, y + textHeight - thickness, textWidth, thickness);
}

void FXDatePickerLabel::drawCorner_(FXDCWindow& dc) const {
  const FXshort side = static_cast<FXshort>(FXMAX(4, font->getFontHeight() / 3));
  const FXshort right = static_cast<FXshort>(width - kMarkInset);
  const FXshort top = kMarkInset;
  FXPoint corner[3];
  corner[0].set(static_cast<FXshort>(right - side), top);
  corner[1].set(right, top);
  corner[2].set(right, static_cast<FXshort>(top + side));
  dc.setForeground(selected ? selTextColor_ : holidayTextColor_);
  dc.fillPolygon(corner, 3);
}

void FXDatePickerLabel::drawFrameOfToday_(FXDCWindow& dc) const {
  if (selected) {
    // Black alone would hardly show on a dark selection.
    dc.setForeground(selTextColor_);
    dc.drawRectangle(0, 0, width - 1, height - 1);
    dc.drawRectangle(2, 2, width - 5, height - 5);
  }
  dc.setForeground(kBlack);
  dc.drawRectangle(1, 1, width - 3, height - 3);
}

}  // namespace FXExt
