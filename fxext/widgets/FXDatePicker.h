#pragma once

#include <array>

#include <fx.h>

namespace FXExt {

class FXDatePickerHoliday;
class FXDatePickerLabel;

/// A calendar of one month, weeks beginning on Monday. The target gets, each with the picker's identifier,
/// SEL_CHANGED with a pointer to the shown date when the shown month changes by a step, and SEL_LEFTBUTTONPRESS with a
/// pointer to the selected date when a day is picked. The pointers lead into the picker: copy what they point to.
/// Month and weekday names go through tr.
class FXDatePicker : public FX::FXVerticalFrame {
  FXDECLARE(FXDatePicker)

 public:
  enum { ID_PREVIOUS = FX::FXVerticalFrame::ID_LAST + 1, ID_NEXT, ID_TODAY, ID_DAY, ID_YEAR, ID_YEARENTRY, ID_LAST };

  /// Shows and selects today. The holiday object is borrowed for as long as the picker lives, and may be null.
  FXDatePicker(FX::FXComposite* p, FXDatePickerHoliday* holidays, FX::FXObject* tgt = nullptr, FX::FXSelector sel = 0,
               FX::FXuint opts = 0, FX::FXint x = 0, FX::FXint y = 0, FX::FXint w = 0, FX::FXint h = 0,
               FX::FXint pl = FX::DEFAULT_SPACING, FX::FXint pr = FX::DEFAULT_SPACING,
               FX::FXint pt = FX::DEFAULT_SPACING, FX::FXint pb = FX::DEFAULT_SPACING);
  FXDatePicker(const FXDatePicker&) = delete;
  FXDatePicker& operator=(const FXDatePicker&) = delete;

  void create() override;
  /// Wide enough for every month's name, and for the year's entry.
  FX::FXint getDefaultWidth() override;
  void enable() override;
  void disable() override;

  /// Shows and selects a date, without notification, and returns it.
  FX::FXDate setSelectedDate(const FX::FXDate& date);
  FX::FXDate getSelectedDate() const { return selectedDate; }
  /// The date whose month is shown.
  FX::FXDate getShownDate() const { return shownDate; }
  /// Whether the date is shown and selected and the marks are up to date: setSelectedDate would change nothing.
  bool isShowing(const FX::FXDate& date) const;
  /// Fills the grid anew, for instance because the holidays have changed.
  void reset();

  /// A year later or earlier, from 1900 to 2900 and round again; 29 February becomes 28. Notifies the target.
  void incYear();
  void decYear();

  /// Puts the entry of the year in the place of the year, ready for typing.
  void showSpinner();
  /// Takes over what has been typed, and puts the year back.
  void hideSpinner();
  bool isSpinnerShown() const { return yearSpinner->shown(); }

  void setMonthBkColor(FX::FXColor color);
  void setYearBkColor(FX::FXColor color);
  void setSelectionBkColor(FX::FXColor color);

  long onCmdPrev(FX::FXObject*, FX::FXSelector, void*);
  long onCmdNext(FX::FXObject*, FX::FXSelector, void*);
  long onCmdToday(FX::FXObject*, FX::FXSelector, void*);
  long onLabelSelected(FX::FXObject*, FX::FXSelector, void*);
  long onCmdYear(FX::FXObject*, FX::FXSelector, void*);
  long onCmdYearNo(FX::FXObject*, FX::FXSelector, void*);
  long onKpYearNo(FX::FXObject*, FX::FXSelector, void*);
  long onVMouseWheel(FX::FXObject*, FX::FXSelector, void*);

 protected:
  FXDatePicker();

  FX::FXLabel* monthLabel = nullptr;
  FX::FXLabel* yearLabel = nullptr;  ///< A flat button, since a plain label cannot be pressed.
  FX::FXSpinner* yearSpinner = nullptr;
  std::array<FXDatePickerLabel*, 42> days{};
  FXDatePickerLabel* selectedLabel = nullptr;
  FX::FXDate shownDate = FX::FXDate(0);
  FX::FXDate selectedDate = FX::FXDate(0);
  FXDatePickerHoliday* holiday = nullptr;
  FX::FXColor monthBkColor = 0;
  FX::FXColor yearBkColor = 0;
  FX::FXColor selectionBkColor = 0;
  FX::FXColor selectionTextColor = 0;

 private:
  void createHeader_();
  void createWeekdays_();
  void createGrid_();
  void fill_();
  void fillHeader_();
  void fillCell_(FXDatePickerLabel* cell, const FX::FXDate& date);
  void setSpinnerShown_(bool shown);
  /// The cell of the first day of the shown month.
  FX::FXint firstCell_() const;
  FX::FXint headerWidth_() const;
  FXDatePickerLabel* findCell_(const FX::FXObject* sender) const;
  void stepMonths_(FX::FXint months);
  void stepYears_(FX::FXint years);
  void setShownYear_(FX::FXint year);
  void notifyShown_();

  FX::FXDate today_ = FX::FXDate(0);  ///< What today was when the grid was filled.
};

}  // namespace FXExt
