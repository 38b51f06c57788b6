#include <memory>
#include <set>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "host/ui/Morvane.h"
#include "ui/ItemDataIcons.h"

using Brontel::makeIcon;
using Brontel::Morvane;
using Brontel::PixelIcon::Gif;
using FX::FXColor;
using FX::FXint;

namespace Icons = Brontel::Plugin::ItemData;

namespace {

struct Icon {
  const char* name;
  const Gif& picture;
};

const Icon kIcons[] = {{"icon_itemdata", Icons::icon_itemdata}, {"icon_mdt_text", Icons::icon_mdt_text},
                       {"icon_mdt_date", Icons::icon_mdt_date}, {"icon_mdt_list", Icons::icon_mdt_list},
                       {"icon_opt_text", Icons::icon_opt_text}, {"icon_opt_date", Icons::icon_opt_date},
                       {"icon_opt_list", Icons::icon_opt_list}};

constexpr FXint kSide = 16;

std::string_view bytes(const Gif& picture) {
  return {reinterpret_cast<const char*>(picture.data()), picture.size()};
}

/// The colours that are drawn, with how many pixels, and whether the red of mandatory variables is among them.
struct Drawing {
  explicit Drawing(const FX::FXIcon& icon) {
    for (FXint i = 0; i < kSide * kSide; ++i) {
      const FXColor colour = icon.getData()[i];
      if (FXALPHAVAL(colour) == 0) continue;
      ++pixels;
      colours.insert(colour);
      red = red || (FXREDVAL(colour) > 150 && FXGREENVAL(colour) < 60 && FXBLUEVAL(colour) < 60);
    }
  }

  int pixels = 0;
  std::set<FXColor> colours;
  bool red = false;
};

}  // namespace

TEST(ItemDataIconsTest, eachIsACompleteGif) {
  for (const Icon& icon : kIcons) {
    const std::string_view file = bytes(icon.picture);
    EXPECT_EQ(file.substr(0, 6), "GIF89a") << icon.name;
    EXPECT_EQ(file.substr(6, 4), std::string_view("\x10\0\x10\0", 4)) << icon.name;
    EXPECT_EQ(file.back(), '\x3B') << icon.name;
  }
}

TEST(ItemDataIconsTest, theBackgroundIsTheTransparentGrey) {
  for (const Icon& icon : kIcons) {
    const std::string_view file = bytes(icon.picture);
    const auto background = static_cast<unsigned char>(file[11]);
    EXPECT_EQ(file.substr(13 + 3 * background, 3), "\xC0\xC0\xC0") << icon.name;
    const size_t control = file.find(std::string_view("\x21\xF9\x04", 3));
    ASSERT_NE(control, std::string_view::npos) << icon.name;
    EXPECT_EQ(file[control + 3] & 1, 1) << icon.name;
    EXPECT_EQ(static_cast<unsigned char>(file[control + 6]), background) << icon.name;
  }
}

TEST(ItemDataIconsTest, eachIsDrawnOnATransparentGround) {
  Morvane app;
  for (const Icon& icon : kIcons) {
    const std::unique_ptr<FX::FXIcon> decoded(makeIcon(&app, icon.picture));
    ASSERT_NE(decoded, nullptr);
    ASSERT_EQ(decoded->getWidth(), kSide) << icon.name;
    ASSERT_EQ(decoded->getHeight(), kSide) << icon.name;
    for (const FXint corner : {0, kSide - 1, kSide * (kSide - 1), kSide * kSide - 1}) {
      EXPECT_EQ(FXALPHAVAL(decoded->getData()[corner]), 0u) << icon.name << " " << corner;
    }
    const Drawing drawing(*decoded);
    EXPECT_GT(drawing.pixels, kSide * kSide / 4) << icon.name;
    EXPECT_LT(drawing.pixels, kSide * kSide) << icon.name;
    EXPECT_GT(drawing.colours.size(), 1u) << icon.name;
  }
}

TEST(ItemDataIconsTest, thoseOfMandatoryVariablesAreMarkedRed) {
  Morvane app;
  for (const Icon& icon : kIcons) {
    const std::unique_ptr<FX::FXIcon> decoded(makeIcon(&app, icon.picture));
    EXPECT_EQ(Drawing(*decoded).red, std::string_view(icon.name).starts_with("icon_mdt_")) << icon.name;
  }
}

TEST(ItemDataIconsTest, noTwoAreAlike) {
  std::set<std::string_view> pictures;
  for (const Icon& icon : kIcons) pictures.insert(bytes(icon.picture));
  EXPECT_EQ(pictures.size(), 7u);
}

TEST(ItemDataIconsTest, thereIsNoneWithoutAnApplication) {
  EXPECT_EQ(makeIcon(nullptr, Icons::icon_itemdata), nullptr);
}
