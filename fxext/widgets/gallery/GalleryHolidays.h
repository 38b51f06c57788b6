#pragma once

#include "fxext/widgets/FXDatePickerHoliday.h"

/// Some holidays of fixed date.
class GalleryHolidays : public FXExt::FXDatePickerHoliday {
 public:
  FX::FXbool isHoliday(const FX::FXDate& date) override;
};
