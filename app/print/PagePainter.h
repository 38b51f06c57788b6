#pragma once

#include "app/print/Page.h"
#include "app/print/TextFaces.h"

namespace Brontel::App {

/// Draws a page in points, on paper and on the screen alike. Borrows everything.
void paintPage(cairo_t* target, const Page& page, const TextFaces& faces);

}  // namespace Brontel::App
