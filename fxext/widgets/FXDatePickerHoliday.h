#pragma once

#include <fx.h>

namespace FXExt {

/// Knows the holidays. A date picker borrows one and asks it for every day that it shows.
class FXDatePickerHoliday {
 public:
  virtual ~FXDatePickerHoliday() = default;

  virtual FX::FXbool isHoliday(const FX::FXDate& date) = 0;
};

}  // namespace FXExt
