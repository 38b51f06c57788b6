#pragma once

#include "host/ui/PixelIcon.h"

namespace Brontel::Plugin::ItemData {

/// The container's icon.
extern const PixelIcon::Gif icon_itemdata;

// Variables by kind, mandatory ones with a red mark.
extern const PixelIcon::Gif icon_mdt_text;
extern const PixelIcon::Gif icon_mdt_date;
extern const PixelIcon::Gif icon_mdt_list;
extern const PixelIcon::Gif icon_opt_text;
extern const PixelIcon::Gif icon_opt_date;
extern const PixelIcon::Gif icon_opt_list;

}  // namespace Brontel::Plugin::ItemData
