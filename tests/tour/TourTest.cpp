#include <cstdlib>
#include <filesystem>

#include <gtest/gtest.h>

#include "tests/support/ChildProcess.h"
#include "tests/support/TemporaryDirectory.h"
#include "tests/xsd/ExportSchema.h"
#include "tour/PictureFile.h"
#include "tour/Tour.h"

// The whole story, from the first variable to the credit note, through real windows.

namespace {

namespace fs = std::filesystem;

std::string pluginFolder() {
  return fs::path(BRONTEL_TEST_PLUGIN).parent_path().string();
}

class TourTest : public ::testing::Test {
 protected:
  /// TOUR_PICTURES names a folder in which the pictures are kept to look at.
  TourTest() {
    const char* wanted = std::getenv("TOUR_PICTURES");
    if (wanted == nullptr) return;
    folder_ = wanted;
    fs::create_directories(folder_);
  }

  void take(const char* language) {
    setenv("LANGUAGE", language, 1);
    const Tour::Result result = Tour::takeTour(folder_, pluginFolder());
    EXPECT_GE(result.pictures.size(), 20u);
    EXPECT_GT(result.textsSeen, 600u);
    for (const std::string& picture : result.pictures) expectPicture(picture);
    expectDocuments();
  }

  static void expectPicture(const std::string& file) {
    Tour::PictureFile picture;
    ASSERT_TRUE(picture.load(file)) << file;
    // The screen, and the frames of windows at its edge.
    EXPECT_LE(picture.width(), 1024 + 2 * 34) << file;
    EXPECT_LE(picture.height(), 768 + 2 * 34) << file;
  }

  void expectDocuments() const {
    const std::string text = readFile(folder_ + "/invoice.txt");
    const std::string xml = readFile(folder_ + "/invoice.xml");
    ChildProcess converter({"pdftotext", "-layout", folder_ + "/invoice.pdf", "-"});
    ASSERT_EQ(converter.run(), 0) << converter.getErrors();
    for (const char* value : {"EKG-250311", "EKG-250312", "EKG-250317", "2026.03.10", "ML-2025/081", "Kiszállás"}) {
      EXPECT_NE(text.find(value), std::string::npos) << value;
      EXPECT_NE(xml.find(value), std::string::npos) << value;
      EXPECT_NE(converter.getOutput().find(value), std::string::npos) << value << " in " << converter.getOutput();
    }
    EXPECT_EQ(ExportSchema().findFaults(xml), std::vector<std::string>());
  }

  const TemporaryDirectory directory_;
  std::string folder_ = directory_.path();
};

using LongTourTest = TourTest;

}  // namespace

TEST_F(TourTest, inHungarian) {
  take("hu");
}

TEST_F(LongTourTest, inEnglish) {
  take("en");
}

TEST_F(LongTourTest, inGerman) {
  take("de");
}

TEST_F(LongTourTest, theProgramSaysWhatItLeaves) {
  const std::string folder = directory_.path("tour/of/today");
  ChildProcess program({BRONTEL_TEST_TOUR, "--plugins", pluginFolder(), folder});
  program.setTimeout(300000);
  EXPECT_EQ(program.run(), 0);
  EXPECT_EQ(program.getErrors(), "");
  size_t files = 0;
  for (const auto& entry : fs::directory_iterator(folder)) {
    ++files;
    EXPECT_NE(program.getOutput().find(entry.path().string() + "\n"), std::string::npos) << entry.path();
  }
  EXPECT_GE(files, 23u);
}

TEST_F(TourTest, theProgramRefusesWhatItDoesNotUnderstand) {
  const std::string usage = "brontel-tour: Usage: brontel-tour [--language LANGUAGE] [--plugins FOLDER] FOLDER\n";
  for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{
           {}, {"a", "b"}, {"--what", "a"}, {"a", "--language"}, {"--language", "en"}}) {
    std::vector<std::string> all{BRONTEL_TEST_TOUR};
    all.insert(all.end(), arguments.begin(), arguments.end());
    ChildProcess program(all);
    EXPECT_EQ(program.run(), 2);
    EXPECT_EQ(program.getErrors(), usage);
  }
  ChildProcess program({BRONTEL_TEST_TOUR, directory_.write("file", "") + "/folder"});
  EXPECT_EQ(program.run(), 2);
  EXPECT_NE(program.getErrors().find("no folder can be made there"), std::string::npos);
}

TEST_F(TourTest, theProgramStopsWhereSomethingIsNotAsTheStoryHasIt) {
  // Without the plug-in.
  ChildProcess program({BRONTEL_TEST_TOUR, "--plugins", directory_.path(), directory_.path("out")});
  EXPECT_EQ(program.run(), 1);
  EXPECT_EQ(program.getErrors().rfind("brontel-tour: ", 0), 0u) << program.getErrors();
  EXPECT_EQ(program.getOutput(), "");
}
