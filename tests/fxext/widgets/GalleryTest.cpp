#include <map>

// clang-format off
#include <fx.h>  // Before its parts.
#include <FXPNGImage.h>
// clang-format on
#include <gtest/gtest.h>

#include "tests/support/ChildProcess.h"
#include "tests/support/TemporaryDirectory.h"
#include "tests/support/XDisplay.h"

using namespace FX;

// The program that shows every widget in every state.

class GalleryTest : public ::testing::Test {
 protected:
  int run(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), GALLERY);
    ChildProcess child(arguments);
    child.setTimeout(60000);
    // Fontconfig keeps its caches until the process ends; the gallery's own leaks count.
    const std::string suppressions = directory.write("lsan", "leak:libfontconfig\n");
    child.setEnvironment("LSAN_OPTIONS", "print_suppressions=0:suppressions=" + suppressions);
    const int code = child.run();
    output = child.getErrors();
    return code;
  }

  // How often each colour occurs in a picture.
  std::map<FXColor, int> coloursOf(const std::string& file) {
    std::map<FXColor, int> colours;
    FXFileStream stream;
    FXColor* pixels = nullptr;
    width = height = 0;
    EXPECT_TRUE(stream.open(file.c_str(), FXStreamLoad));
    EXPECT_TRUE(fxloadPNG(stream, pixels, width, height));
    for (FXint i = 0; i < width * height; ++i) ++colours[pixels[i]];
    FXFREE(&pixels);
    return colours;
  }

  XDisplay display = XDisplay("2000x1400x24");
  TemporaryDirectory directory;
  std::string output;
  FXint width = 0;
  FXint height = 0;
};

TEST_F(GalleryTest, savesAPictureOfItself) {
  const std::string file = directory.path("gallery.png");
  EXPECT_EQ(run({"--picture", file}), 0) << output;
  const auto colours = coloursOf(file);
  EXPECT_GT(width, 1000);
  EXPECT_GT(height, 600);
  EXPECT_LT(width, 1600);
  EXPECT_LT(height, 1000);
  // The window's background, the days' white, the selection, the weekends and the holidays.
  for (const FXColor colour : {FXRGB(212, 208, 200), FXRGB(255, 255, 255), FXRGB(10, 36, 106), FXRGB(255, 0, 0),
                               FXRGB(0, 90, 220), FXRGB(255, 190, 60)}) {
    const auto found = colours.find(colour);
    EXPECT_TRUE(found != colours.end() && found->second > 50) << std::hex << colour;
  }
}

TEST_F(GalleryTest, showsWhatOpens) {
  const std::string closed = directory.path("closed.png");
  ASSERT_EQ(run({"--picture", closed}), 0) << output;
  const int white = coloursOf(closed)[FXRGB(255, 255, 255)];
  for (const char* what : {"combo", "date"}) {
    const std::string file = directory.path(what);
    EXPECT_EQ(run({"--picture", file, "--open", what}), 0) << output;
    EXPECT_GT(coloursOf(file)[FXRGB(255, 255, 255)], white + 5000) << what;
  }
  const std::string year = directory.path("year.png");
  EXPECT_EQ(run({"--picture", year, "--open", "year"}), 0) << output;
}

TEST_F(GalleryTest, growsWithTheFontAndSpeaksHungarian) {
  const std::string file = directory.path("large.png");
  EXPECT_EQ(run({"--picture", file, "--font", "Sans,120", "--hungarian"}), 0) << output;
  coloursOf(file);
  EXPECT_GT(width, 1500);
}

TEST_F(GalleryTest, refusesWhatItDoesNotKnow) {
  for (const std::vector<std::string>& arguments : {std::vector<std::string>{"--nonsense"},
                                                    {"--picture"},
                                                    {"--picture", directory.path("x.png"), "--open", "it"}}) {
    EXPECT_EQ(run(arguments), 2);
    EXPECT_NE(output.find("usage: fxext-gallery"), std::string::npos);
  }
  EXPECT_EQ(run({"--picture", directory.path("missing/x.png")}), 1);
  EXPECT_NE(output.find("cannot write"), std::string::npos);
}
