#include <cstring>
#include <memory>

#include <gtest/gtest.h>

#include "host/ui/HostIcons.h"

using Brontel::makeIcon;
using Brontel::PixelIcon::Gif;

namespace {

constexpr Gif kCorners = Brontel::PixelIcon::gif(R"(
r..............b
................
................
................
................
................
................
.......w........
................
................
................
................
................
................
................
k..............G
)");

}  // namespace

TEST(HostIconsTest, areCompleteGifFiles) {
  for (const Gif* icon : {&Brontel::icon_new_row, &Brontel::icon_delete}) {
    EXPECT_EQ(std::memcmp(icon->data(), "GIF89a", 6), 0);
    EXPECT_EQ((*icon)[6], 16);
    EXPECT_EQ((*icon)[8], 16);
    EXPECT_EQ(icon->back(), 0x3B);
  }
}

TEST(HostIconsTest, showTheDrawnPixels) {
  FX::FXApp app;
  const std::unique_ptr<FX::FXIcon> icon(makeIcon(&app, kCorners));
  ASSERT_EQ(icon->getWidth(), 16);
  ASSERT_EQ(icon->getHeight(), 16);
  ASSERT_NE(icon->getData(), nullptr);
  EXPECT_EQ(icon->getPixel(0, 0), FXRGB(200, 30, 30));
  EXPECT_EQ(icon->getPixel(15, 0), FXRGB(40, 90, 180));
  EXPECT_EQ(icon->getPixel(7, 7), FXRGB(255, 255, 255));
  EXPECT_EQ(icon->getPixel(0, 15), FXRGB(0, 0, 0));
  EXPECT_EQ(icon->getPixel(15, 15), FXRGB(30, 140, 60));
}

TEST(HostIconsTest, areTransparentWhereNothingIsDrawn) {
  FX::FXApp app;
  const std::unique_ptr<FX::FXIcon> icon(makeIcon(&app, kCorners));
  EXPECT_EQ(FXALPHAVAL(icon->getPixel(1, 1)), 0u);
  EXPECT_EQ(FXALPHAVAL(icon->getPixel(0, 0)), 255u);
}

TEST(HostIconsTest, needAnApplication) {
  EXPECT_EQ(makeIcon(nullptr, kCorners), nullptr);
}
