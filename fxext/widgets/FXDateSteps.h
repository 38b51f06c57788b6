#pragma once

#include <fx.h>

namespace FXExt {

/// The day in the given month, or the month's last day if it is too short. The month must be 1 to 12, the day 1 to 31.
FX::FXDate clampedDate(FX::FXint year, FX::FXint month, FX::FXint day);

/// The same day so many months later (earlier if negative), or the last day of a month that is too short.
FX::FXDate addMonths(const FX::FXDate& date, FX::FXint months);

}  // namespace FXExt
