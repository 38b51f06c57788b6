// What the desktop and the manual's readers get, as the usual tools judge it.

#include <algorithm>
#include <cstdlib>
#include <regex>
#include <set>
#include <sstream>

#include <fx.h>
#include <gtest/gtest.h>

// Stands on fx.h.
#include <FXPNGImage.h>

#include "tests/install/InstalledTree.h"

namespace {

using Names = std::set<std::string>;

const std::string kSource = BRONTEL_TEST_DESKTOP "/";

/// The first words of the lines that match, from one heading to the next.
Names namesIn(const std::string& text, const std::regex& begin, const std::regex& name, const std::regex& end) {
  Names names;
  bool inside = false;
  std::istringstream lines(text);
  std::smatch match;
  for (std::string line; std::getline(lines, line);) {
    if (std::regex_search(line, end)) inside = false;
    if (inside && std::regex_search(line, match, name)) names.insert(match[1]);
    if (std::regex_search(line, begin)) inside = true;
  }
  return names;
}

/// The pixels of a PNG file, four bytes each.
struct Picture {
  explicit Picture(const std::string& file) {
    FX::FXFileStream stream;
    EXPECT_TRUE(stream.open(file.c_str(), FX::FXStreamLoad)) << file;
    FX::FXColor* pixels = nullptr;
    EXPECT_TRUE(FX::fxloadPNG(stream, pixels, width, height)) << file;
    data.assign(pixels, pixels + (pixels == nullptr ? 0 : width * height));
    FXFREE(&pixels);
  }

  int width = 0;
  int height = 0;
  std::vector<FX::FXColor> data;
};

/// How far two pictures of one size are apart, 0 to 255 for a channel of a pixel, what cannot be seen left out.
double difference(const Picture& a, const Picture& b) {
  double sum = 0;
  for (size_t i = 0; i < a.data.size(); ++i) {
    const int alpha = std::max(FXALPHAVAL(a.data[i]), FXALPHAVAL(b.data[i]));
    const int apart = std::abs(FXREDVAL(a.data[i]) - FXREDVAL(b.data[i])) +
                      std::abs(FXGREENVAL(a.data[i]) - FXGREENVAL(b.data[i])) +
                      std::abs(FXBLUEVAL(a.data[i]) - FXBLUEVAL(b.data[i]));
    sum += apart * alpha / 255.0 / 3 + std::abs(FXALPHAVAL(a.data[i]) - FXALPHAVAL(b.data[i])) / 3.0;
  }
  return sum / static_cast<double>(a.data.size());
}

}  // namespace

TEST(DesktopTest, theUsualToolsAcceptTheFiles) {
  const InstalledTree tree;
  EXPECT_EQ(build({"desktop-file-validate", tree.path("share/applications/brontel-host.desktop")}), "");
  build({"appstreamcli", "validate", "--no-net", tree.path("share/metainfo/invalid.brontel.host.metainfo.xml")});
}

TEST(DesktopTest, theVersionIsTheSameEverywhere) {
  EXPECT_TRUE(readFile(kSource + "../debian/changelog").starts_with("brontel (" BRONTEL_TEST_VERSION "-1) "));
  EXPECT_NE(readFile(kSource + "brontel-host.metainfo.xml").find("<release version=\"" BRONTEL_TEST_VERSION "\""),
            std::string::npos);
}

TEST(DesktopTest, theMenuEntrySpeaksTheLanguagesOfTheProgram) {
  const std::string entry = readFile(kSource + "brontel-host.desktop");
  for (const char* key : {"Name", "GenericName", "Comment", "Keywords"}) {
    for (const char* language : {"hu", "de"}) {
      EXPECT_NE(entry.find("\n" + std::string(key) + "[" + language + "]="), std::string::npos) << key << language;
    }
  }
}

TEST(DesktopTest, eachIconIsTheDrawingInItsSize) {
  const InstalledTree tree;
  const std::string icons = tree.path("share/icons/hicolor/");
  for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
    SCOPED_TRACE(size);
    const std::string side = std::to_string(size);
    const Picture icon(icons + side + "x" + side + "/apps/brontel-host.png");
    EXPECT_EQ(icon.width, size);
    EXPECT_EQ(icon.height, size);
    const std::string drawn = tree.scratch(side + ".png");
    build({"rsvg-convert", "--width", side, "--height", side, "--output", drawn,
           icons + "scalable/apps/brontel-host.svg"});
    const Picture drawing(drawn);
    ASSERT_EQ(drawing.data.size(), icon.data.size());
    // Another version of the tool may smooth edges a little differently.
    EXPECT_LT(difference(icon, drawing), 4);
  }
}

TEST(DesktopTest, theManualHasNoFaults) {
  const InstalledTree tree;
  const std::string page = tree.path("share/man/man1/brontel-host.1");
  EXPECT_EQ(build({"mandoc", "-T", "lint", "-W", "style", page}), "");
  EXPECT_EQ(build({"sh", "-c",
                   "LC_ALL=C.UTF-8 MANROFFSEQ= MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z " + page +
                       " 2>&1 >/dev/null"}),
            "");
}

TEST(DesktopTest, theManualNamesEachCommandAndOption) {
  const std::regex section("^\\.SH");
  const std::regex emptyLine("^$");
  const std::string plain = std::regex_replace(readFile(kSource + "brontel-host.1"), std::regex("\\\\-"), "-");
  // An entry's name stands behind the line that begins it.
  const std::string page = std::regex_replace(plain, std::regex("\\.TP\n\\."), "@");
  const std::regex entry("^@(?:B|BR|BI) ([-a-z]+)");

  const std::string help = InstalledTree().host({"--help"}, 0, "en");
  const std::regex word("^  ([-a-z]+)");
  const Names commands = namesIn(help, std::regex("^Commands:"), word, emptyLine);
  EXPECT_EQ(commands.count("init"), 1u) << help;
  EXPECT_EQ(namesIn(page, std::regex("^\\.SH COMMANDS"), entry, section), commands);
  EXPECT_EQ(namesIn(page, std::regex("^\\.SH OPTIONS"), entry, section),
            namesIn(help, std::regex("^Options:"), word, emptyLine));

  const std::string guide = readFile(BRONTEL_TEST_DOCS "/command-line.md");
  EXPECT_EQ(namesIn(guide, std::regex("^\\| command \\| does"), std::regex("^\\| `([a-z]+)"), emptyLine), commands);
}
