#include "fxext/widgets/gallery/GalleryHolidays.h"

#include <algorithm>
#include <array>

using namespace FX;

FXbool GalleryHolidays::isHoliday(const FXDate& date) {
  constexpr std::array<FXint, 9> kDays = {101, 315, 501, 820, 1001, 1023, 1101, 1225, 1226};
  return std::find(kDays.begin(), kDays.end(), date.month() * 100 + date.day()) != kDays.end();
}
