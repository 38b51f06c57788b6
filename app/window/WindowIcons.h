#pragma once

#include "host/ui/PixelIcon.h"

namespace Brontel::App {

/// In front of a message that must be dealt with, and of one that may be.
extern const PixelIcon::Gif icon_blocking;
extern const PixelIcon::Gif icon_notice;

/// The program's own.
extern const PixelIcon::Gif icon_invoice;

}  // namespace Brontel::App
