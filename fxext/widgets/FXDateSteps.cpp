#include "fxext/widgets/FXDateSteps.h"

namespace FXExt {

using namespace FX;

FXDate clampedDate(FXint year, FXint month, FXint day) {
  return FXDate(year, month, FXMIN(day, FXDate(year, month, 1).daysInMonth()));
}

FXDate addMonths(const FXDate& date, FXint months) {
  FXint year = 0;
  FXint month = 0;
  FXint day = 0;
  date.getDate(year, month, day);
  FXint count = year * 12 + month - 1 + months;
  year = count / 12;
  month = count % 12;
  if (month < 0) {
    month += 12;
    --year;
  }
  return clampedDate(year, month + 1, day);
}

}  // namespace FXExt
