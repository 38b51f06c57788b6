#pragma once

#include "host/ui/PixelIcon.h"

namespace Brontel {

extern const PixelIcon::Gif icon_new_row;
extern const PixelIcon::Gif icon_delete;

}  // namespace Brontel
