#include <algorithm>
#include <cairo.h>

#include <gtest/gtest.h>

#include "app/print/PageLayout.h"
#include "app/print/PagePainter.h"
#include "tests/app/print/PrintSamples.h"

using Brontel::App::kPageHeight;
using Brontel::App::kPageMargin;
using Brontel::App::kPageWidth;
using Brontel::App::noStep;
using Brontel::App::Page;
using Brontel::App::PageLayout;
using Brontel::App::paintPage;
using Brontel::App::PrintedInvoice;
using Brontel::App::TextFaces;

namespace {

/// Where there is ink, in points.
struct Ink {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
};

Ink inkOf(const Page& page, const TextFaces& faces) {
  cairo_surface_t* surface = cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, nullptr);
  cairo_t* target = cairo_create(surface);
  paintPage(target, page, faces);
  Ink ink;
  double width = 0;
  double height = 0;
  cairo_recording_surface_ink_extents(surface, &ink.left, &ink.top, &width, &height);
  ink.right = ink.left + width;
  ink.bottom = ink.top + height;
  cairo_destroy(target);
  cairo_surface_destroy(surface);
  return ink;
}

}  // namespace

class PageInkTest : public ::testing::TestWithParam<HostileText> {};

// What is drawn, not only what was planned: accents and slanted letters may reach a little into the margin.
TEST_P(PageInkTest, NothingIsDrawnBeyondTheMargins) {
  constexpr double kReach = 12;
  const TextFaces faces;
  PrintedInvoice invoice = sampleInvoice();
  const std::string text = GetParam().make(3000);
  invoice.items = {sampleItem(text, text), sampleItem("Gél", "vége")};
  for (const Page& page : PageLayout(faces, noStep()).layOut(invoice)) {
    const Ink ink = inkOf(page, faces);
    EXPECT_GE(ink.left, kPageMargin - kReach);
    EXPECT_LE(ink.right, kPageWidth - kPageMargin + kReach);
    EXPECT_GE(ink.top, 0);
    EXPECT_LE(ink.bottom, kPageHeight);
    EXPECT_GT(ink.right - ink.left, kPageWidth / 2) << "an empty page";
  }
}

INSTANTIATE_TEST_SUITE_P(Texts, PageInkTest, ::testing::ValuesIn(hostileTexts()),
                         [](const auto& text) { return text.param.name; });
