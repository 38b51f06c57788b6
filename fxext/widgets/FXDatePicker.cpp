#include "fxext/widgets/FXDatePicker.h"

#include <algorithm>

#include <fxkeys.h>

#include "fxext/widgets/FXDatePickerLabel.h"
#include "fxext/widgets/FXDateSteps.h"
#include "fxext/widgets/FXFocusArrowButton.h"
#include "fxext/widgets/FXSubtree.h"

namespace FXExt {

using namespace FX;

FXDEFMAP(FXDatePicker)
datePickerMap[] = {
    FXMAPFUNC(SEL_COMMAND, FXDatePicker::ID_PREVIOUS, FXDatePicker::onCmdPrev),
    FXMAPFUNC(SEL_COMMAND, FXDatePicker::ID_NEXT, FXDatePicker::onCmdNext),
    FXMAPFUNC(SEL_COMMAND, FXDatePicker::ID_TODAY, FXDatePicker::onCmdToday),
    FXMAPFUNC(SEL_LEFTBUTTONPRESS, FXDatePicker::ID_DAY, FXDatePicker::onLabelSelected),
    FXMAPFUNC(SEL_COMMAND, FXDatePicker::ID_YEAR, FXDatePicker::onCmdYear),
    FXMAPFUNC(SEL_COMMAND, FXDatePicker::ID_YEARENTRY, FXDatePicker::onCmdYearNo),
    FXMAPFUNC(SEL_KEYPRESS, FXDatePicker::ID_YEARENTRY, FXDatePicker::onKpYearNo),
    FXMAPFUNC(SEL_MOUSEWHEEL, 0, FXDatePicker::onVMouseWheel),
    FXMAPFUNC(SEL_KEYPRESS, 0, FXDatePicker::onKeyPress),
};

FXIMPLEMENT(FXDatePicker, FXVerticalFrame, datePickerMap, ARRAYNUMBER(datePickerMap))

namespace {

static_assert(FXDatePicker::ID_PREVIOUS == 55);
static_assert(FXDatePicker::ID_NEXT == 56);
static_assert(FXDatePicker::ID_TODAY == 57);
static_assert(FXDatePicker::ID_DAY == 58);
static_assert(FXDatePicker::ID_YEAR == 59);
static_assert(FXDatePicker::ID_YEARENTRY == 60);

constexpr FXint kFirstYear = 1900;
constexpr FXint kLastYear = 2900;
constexpr FXint kDaysOfWeek = 7;
constexpr FXint kSmallestArrow = 9;

}  // namespace

FXDatePicker::FXDatePicker() = default;

FXDatePicker::FXDatePicker(FXComposite* p, FXDatePickerHoliday* holidays, FXObject* tgt, FXSelector sel, FXuint opts,
                           FXint x, FXint y, FXint w, FXint h, FXint pl, FXint pr, FXint pt, FXint pb)
    : FXVerticalFrame(p, opts, x, y, w, h, pl, pr, pt, pb, 0, 0),
      shownDate(FXDate::localDate()),
      selectedDate(shownDate),
      holiday(holidays),
      monthBkColor(getApp()->getBaseColor()),
      yearBkColor(getApp()->getBaseColor()),
      selectionBkColor(getApp()->getSelbackColor()),
      selectionTextColor(getApp()->getSelforeColor()) {
  flags |= FLAG_ENABLED;
  target = tgt;
  message = sel;
  createHeader_();
  createWeekdays_();
  createGrid_();
  fill_();
}

void FXDatePicker::createHeader_() {
  auto* header = new FXHorizontalFrame(this, LAYOUT_FILL_X, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
  const FXuint arrow = FRAME_RAISED | FRAME_THICK | ARROW_REPEAT | LAYOUT_FILL_Y;
  new FXFocusArrowButton(header, this, ID_PREVIOUS, arrow | ARROW_LEFT, 0, 0, 0, 0, 4, 4);
  monthLabel = new FXLabel(header, FXString::null, nullptr, LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0, 0, 4, 4);
  monthLabel->setBackColor(monthBkColor);
  // As high as the entry of the year, so that the grid stays where it is while the year is entered.
  yearLabel = new FXButton(header, FXString::null, nullptr, this, ID_YEAR,
                           FRAME_RAISED | FRAME_THICK | BUTTON_TOOLBAR | LAYOUT_FILL_Y, 0, 0, 0, 0, 8, 8);
  yearLabel->setBackColor(yearBkColor);
  yearSpinner = new FXSpinner(header, 4, this, ID_YEARENTRY, FRAME_SUNKEN | FRAME_THICK | LAYOUT_FILL_Y);
  yearSpinner->setRange(kFirstYear, kLastYear);
  yearSpinner->hide();
  new FXFocusArrowButton(header, this, ID_NEXT, arrow | ARROW_RIGHT, 0, 0, 0, 0, 4, 4);
}

void FXDatePicker::createWeekdays_() {
  auto* weekdays = new FXHorizontalFrame(this, LAYOUT_FILL_X | PACK_UNIFORM_WIDTH, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
  for (const FXint weekday :
       {FXDate::Mon, FXDate::Tue, FXDate::Wed, FXDate::Thu, FXDate::Fri, FXDate::Sat, FXDate::Sun}) {
    auto* name = new FXLabel(weekdays, tr(FXDate::dayNameShort(weekday)), nullptr, LAYOUT_FILL_X, 0, 0, 0, 0, 4, 4);
    if (weekday == FXDate::Sat || weekday == FXDate::Sun) name->setTextColor(FXRGB(255, 0, 0));
  }
}

void FXDatePicker::createGrid_() {
  auto* grid = new FXMatrix(this, kDaysOfWeek, MATRIX_BY_COLUMNS | PACK_UNIFORM_WIDTH | LAYOUT_FILL_X | LAYOUT_FILL_Y,
                            0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
  const FXuint cell = LAYOUT_FILL_X | LAYOUT_FILL_Y | LAYOUT_FILL_COLUMN | LAYOUT_FILL_ROW;
  for (FXDatePickerLabel*& label : days) {
    label = new FXDatePickerLabel(grid, this, ID_DAY, cell, 0, 0, 0, 0, 8, 8, 3, 3);
    label->setSelBackColor(selectionBkColor);
    label->setSelTextColor(selectionTextColor);
  }
}

// The font's size is known from here on, and the arrows are to go with it.
void FXDatePicker::create() {
  FXVerticalFrame::create();
  const FXint size = FXMAX(kSmallestArrow, monthLabel->getFont()->getFontHeight() / 2);
  const FXWindow* header = monthLabel->getParent();
  for (FXWindow* arrow : {header->getFirst(), header->getLast()}) {
    static_cast<FXArrowButton*>(arrow)->setArrowSize(size);
  }
}

FXint FXDatePicker::getDefaultWidth() {
  return FXMAX(FXVerticalFrame::getDefaultWidth(), headerWidth_() + padleft + padright + (border << 1));
}

FXint FXDatePicker::headerWidth_() const {
  FXFont* font = monthLabel->getFont();
  FXint widest = 0;
  for (FXint month = FXDate::Jan; month <= FXDate::Dec; ++month) {
    widest = FXMAX(widest, font->getTextWidth(FXString(tr(FXDate::monthName(month)))));
  }
  const FXint year = yearLabel->getDefaultWidth();
  const FXint entry = yearSpinner->getDefaultWidth();
  return monthLabel->getParent()->getDefaultWidth() + widest - font->getTextWidth(monthLabel->getText()) +
         FXMAX(year, entry) - (isSpinnerShown() ? entry : year);
}

void FXDatePicker::enable() {
  FXVerticalFrame::enable();
  enableDescendants(this);
}

void FXDatePicker::disable() {
  FXVerticalFrame::disable();
  disableDescendants(this);
}

FXDate FXDatePicker::setSelectedDate(const FXDate& date) {
  shownDate = date;
  selectedDate = date;
  fill_();
  return selectedDate;
}

bool FXDatePicker::isShowing(const FXDate& date) const {
  return shownDate == date && selectedDate == date && today_ == FXDate::localDate();
}

void FXDatePicker::reset() {
  fill_();
}

FXint FXDatePicker::firstCell_() const {
  const FXint weekday = FXDate(shownDate.year(), shownDate.month(), 1).dayOfWeek();
  return (weekday + kDaysOfWeek - FXDate::Mon) % kDaysOfWeek;
}

void FXDatePicker::fillHeader_() {
  const FXint year = shownDate.year();
  monthLabel->setText(tr(FXDate::monthName(shownDate.month())));
  yearLabel->setText(FXStringFormat("%04d", year));
  yearSpinner->setValue(year);
}

void FXDatePicker::fill_() {
  fillHeader_();
  today_ = FXDate::localDate();
  selectedLabel = nullptr;
  const FXDate first(shownDate.year(), shownDate.month(), 1);
  const FXint offset = firstCell_();
  const FXint last = shownDate.daysInMonth();
  FXint day = 1 - offset;
  for (FXDatePickerLabel* cell : days) {
    if (day < 1 || day > last) {
      cell->reset();
    } else {
      fillCell_(cell, first + (day - 1));
    }
    ++day;
  }
}

void FXDatePicker::fillCell_(FXDatePickerLabel* cell, const FXDate& date) {
  cell->init(date, today_, holiday);
  if (date == selectedDate) {
    selectedLabel = cell;
    cell->select();
  } else {
    cell->deselect();
  }
}

void FXDatePicker::stepMonths_(FXint months) {
  hideSpinner();
  shownDate = addMonths(shownDate, months);
  fill_();
  notifyShown_();
}

void FXDatePicker::setShownYear_(FXint year) {
  shownDate = clampedDate(year, shownDate.month(), shownDate.day());
  fill_();
}

void FXDatePicker::stepYears_(FXint years) {
  FXint year = shownDate.year() + years;
  if (year < kFirstYear) {
    year = kLastYear;
  } else if (year > kLastYear) {
    year = kFirstYear;
  }
  setShownYear_(year);
  notifyShown_();
}

void FXDatePicker::incYear() {
  stepYears_(1);
}

void FXDatePicker::decYear() {
  stepYears_(-1);
}

void FXDatePicker::notifyShown_() {
  if (target) target->tryHandle(this, FXSEL(SEL_CHANGED, message), &shownDate);
}

void FXDatePicker::setSpinnerShown_(bool shown) {
  FXWindow* const coming = shown ? static_cast<FXWindow*>(yearSpinner) : yearLabel;
  FXWindow* const going = shown ? static_cast<FXWindow*>(yearLabel) : yearSpinner;
  going->hide();
  coming->show();
  coming->recalc();
}

void FXDatePicker::showSpinner() {
  if (isSpinnerShown()) return;
  setSpinnerShown_(true);
  // A window that does not exist yet must not take the focus: its input context needs one.
  auto* entry = static_cast<FXTextField*>(yearSpinner->getFirst());
  if (!entry->id()) return;
  entry->setFocus();
  entry->selectAll();
}

void FXDatePicker::hideSpinner() {
  if (!isSpinnerShown()) return;
  const bool hadFocus = yearSpinner->getParent()->getFocus() == yearSpinner;
  setSpinnerShown_(false);
  if (hadFocus) yearLabel->setFocus();
}

void FXDatePicker::setMonthBkColor(FXColor color) {
  monthBkColor = color;
  monthLabel->setBackColor(color);
}

void FXDatePicker::setYearBkColor(FXColor color) {
  yearBkColor = color;
  yearLabel->setBackColor(color);
}

void FXDatePicker::setSelectionBkColor(FXColor color) {
  selectionBkColor = color;
  for (FXDatePickerLabel* cell : days) cell->setSelBackColor(color);
  if (selectedLabel) selectedLabel->select();
}

long FXDatePicker::onCmdPrev(FXObject*, FXSelector, void*) {
  stepMonths_(-1);
  return 1;
}

long FXDatePicker::onCmdNext(FXObject*, FXSelector, void*) {
  stepMonths_(1);
  return 1;
}

long FXDatePicker::onCmdToday(FXObject*, FXSelector, void*) {
  shownDate = FXDate::localDate();
  fill_();
  notifyShown_();
  return 1;
}

FXDatePickerLabel* FXDatePicker::findCell_(const FXObject* sender) const {
  const auto cell = std::find(days.begin(), days.end(), sender);
  return cell == days.end() ? nullptr : *cell;
}

long FXDatePicker::onLabelSelected(FXObject* sender, FXSelector, void*) {
  const FXDatePickerLabel* clicked = findCell_(sender);
  if (!clicked || !clicked->isValid()) return 1;
  const FXint day = clicked->getDay();
  // May take over another year, in which the day stands in another cell.
  hideSpinner();
  if (selectedLabel) selectedLabel->deselect();
  selectedDate = clampedDate(shownDate.year(), shownDate.month(), day);
  selectedLabel = days[firstCell_() + selectedDate.day() - 1];
  selectedLabel->select();
  if (target) target->tryHandle(this, FXSEL(SEL_LEFTBUTTONPRESS, message), &selectedDate);
  return 1;
}

long FXDatePicker::onCmdYear(FXObject*, FXSelector, void*) {
  showSpinner();
  return 1;
}

long FXDatePicker::onCmdYearNo(FXObject*, FXSelector, void*) {
  setShownYear_(yearSpinner->getValue());
  return 1;
}

long FXDatePicker::onKpYearNo(FXObject*, FXSelector, void* ptr) {
  if (static_cast<FXEvent*>(ptr)->code != KEY_Return) return 0;
  setShownYear_(yearSpinner->getValue());
  hideSpinner();
  return 1;
}

long FXDatePicker::onVMouseWheel(FXObject*, FXSelector, void* ptr) {
  // FOX hands the wheel up from the frames inside, whether this is enabled or not.
  if (!isEnabled()) return 0;
  stepMonths_(static_cast<FXEvent*>(ptr)->code >= 0 ? -1 : 1);
  return 1;
}

}  // namespace FXExt
