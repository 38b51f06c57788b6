#pragma once

#include <string>

#include "fxext/widgets/FXDatePicker.h"
#include "fxext/widgets/FXDatePickerLabel.h"

/// Lets a test see the parts, also of pickers that are not of this class.
class OpenDatePicker : public FXExt::FXDatePicker {
 public:
  using FXExt::FXDatePicker::days;
  using FXExt::FXDatePicker::FXDatePicker;
  using FXExt::FXDatePicker::holiday;
  using FXExt::FXDatePicker::monthLabel;
  using FXExt::FXDatePicker::selectedLabel;
  using FXExt::FXDatePicker::yearLabel;
  using FXExt::FXDatePicker::yearSpinner;

  static FX::FXLabel* monthLabelOf(FXExt::FXDatePicker& picker) { return picker.*(&OpenDatePicker::monthLabel); }
  static FX::FXLabel* yearLabelOf(FXExt::FXDatePicker& picker) { return picker.*(&OpenDatePicker::yearLabel); }
  static FX::FXSpinner* yearSpinnerOf(FXExt::FXDatePicker& picker) { return picker.*(&OpenDatePicker::yearSpinner); }
  static FXExt::FXDatePickerLabel* selectedLabelOf(FXExt::FXDatePicker& picker) {
    return picker.*(&OpenDatePicker::selectedLabel);
  }
  static FXExt::FXDatePickerHoliday* holidayOf(FXExt::FXDatePicker& picker) {
    return picker.*(&OpenDatePicker::holiday);
  }

  /// The cell of a day of the shown month; null if there is none.
  static FXExt::FXDatePickerLabel* cellOf(FXExt::FXDatePicker& picker, FX::FXint day) {
    for (FXExt::FXDatePickerLabel* cell : picker.*(&OpenDatePicker::days)) {
      if (cell->isValid() && cell->getDay() == day) return cell;
    }
    return nullptr;
  }
  FXExt::FXDatePickerLabel* cell(FX::FXint day) { return cellOf(*this, day); }
  /// How many cells are drawn as selected.
  int countSelected() const {
    int count = 0;
    for (const FXExt::FXDatePickerLabel* cell : days) count += cell->isSelected();
    return count;
  }
};

/// "2024-03-05", for messages of failed expectations.
inline std::string text(const FX::FXDate& date) {
  return FX::FXStringFormat("%04d-%02d-%02d", date.year(), date.month(), date.day()).text();
}
