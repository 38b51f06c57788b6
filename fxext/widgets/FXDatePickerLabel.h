#pragma once

#include <fx.h>

namespace FXExt {

class FXDatePickerHoliday;

/// A cell of a date picker: a day, or nothing. Today has a black frame, the selected day the selection's colours,
/// weekends and holidays their text colours. A holiday has a corner mark too, and a weekend an underline whenever the
/// text colour says something else, so that every combination looks different, also to the colour-blind.
class FXDatePickerLabel : public FX::FXLabel {
  FXDECLARE(FXDatePickerLabel)

 public:
  /// An empty cell. A click sends SEL_LEFTBUTTONPRESS to the target.
  FXDatePickerLabel(FX::FXComposite* p, FX::FXObject* tgt = nullptr, FX::FXSelector sel = 0,
                    FX::FXuint opts = FX::LABEL_NORMAL, FX::FXint x = 0, FX::FXint y = 0, FX::FXint w = 0,
                    FX::FXint h = 0, FX::FXint pl = FX::DEFAULT_PAD, FX::FXint pr = FX::DEFAULT_PAD,
                    FX::FXint pt = FX::DEFAULT_PAD, FX::FXint pb = FX::DEFAULT_PAD);
  FXDatePickerLabel(const FXDatePickerLabel&) = delete;
  FXDatePickerLabel& operator=(const FXDatePickerLabel&) = delete;

  /// Wide enough for any day, so that the grid has the same size in every month.
  FX::FXint getDefaultWidth() override;

  /// Empties the cell and takes the selection's colours away.
  void reset();
  /// Makes it the cell of a date, not selected. The colours are left to select() and deselect(), of which one is to
  /// follow. The holiday object may be null and is not kept.
  void init(const FX::FXDate& date, const FX::FXDate& today, FXDatePickerHoliday* holiday);
  void select();
  void deselect();

  /// Day of the month, -1 in an empty cell.
  FX::FXint getDay() const { return day; }
  bool isToday() const { return today != 0; }
  bool isWeekend() const { return weekend != 0; }
  bool isHoliday() const { return holidayFlag != 0; }
  bool isSelected() const { return selected != 0; }
  /// False in an empty cell.
  bool isValid() const { return valid != 0; }

  /// The colours take effect with the next select() or deselect().
  void setSelBackColor(FX::FXColor color) { selBackColor_ = color; }
  FX::FXColor getSelBackColor() const { return selBackColor_; }
  void setSelTextColor(FX::FXColor color) { selTextColor_ = color; }
  FX::FXColor getSelTextColor() const { return selTextColor_; }
  void setWeekendTextColor(FX::FXColor color) { weekendTextColor_ = color; }
  FX::FXColor getWeekendTextColor() const { return weekendTextColor_; }
  void setHolidayTextColor(FX::FXColor color) { holidayTextColor_ = color; }
  FX::FXColor getHolidayTextColor() const { return holidayTextColor_; }

  long onClicked(FX::FXObject*, FX::FXSelector, void*);
  long onPaint(FX::FXObject*, FX::FXSelector, void*);

 protected:
  FXDatePickerLabel();

  FX::FXint day = -1;
  FX::FXuchar today = 0;
  FX::FXuchar weekend = 0;
  FX::FXuchar holidayFlag = 0;
  FX::FXuchar selected = 0;
  FX::FXuchar valid = 0;

 private:
  void setMarks_(bool isToday, bool isWeekend, bool isHoliday);
  void setColors_(FX::FXColor background, FX::FXColor text);
  void drawUnderline_(FX::FXDCWindow& dc);
  void drawCorner_(FX::FXDCWindow& dc) const;
  void drawFrameOfToday_(FX::FXDCWindow& dc) const;

  FX::FXColor selBackColor_ = 0;
  FX::FXColor selTextColor_ = 0;
  FX::FXColor weekendTextColor_ = 0;
  FX::FXColor holidayTextColor_ = 0;
};

}  // namespace FXExt
