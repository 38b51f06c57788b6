// The templates hold every text that somebody reads.

#include <filesystem>
#include <set>

#include <gtest/gtest.h>

#include "tests/po/SourceTexts.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/PoFile.h"
#include "tests/support/SpokenLanguage.h"
#include "tests/support/TemporaryDirectory.h"

namespace fs = std::filesystem;

namespace {

const std::string kRoot = SOURCE_FOLDER;

std::string templateOf(const std::string& domain) {
  return kRoot + "/po/" + domain + ".pot";
}

std::set<std::string> allTexts() {
  std::set<std::string> texts;
  for (const std::string& domain : SpokenLanguage::domains()) {
    for (const PoEntry& entry : readPoFile(templateOf(domain))) {
      texts.insert(entry.text);
      if (!entry.plural.empty()) texts.insert(entry.plural);
    }
  }
  return texts;
}

// Sample data and the stored name of the quantity are data, which are in no language but their own; so are letters.
bool holdsData(const std::string& path) {
  for (const char* file :
       {"app/SampleGoods.cpp", "app/SampleInvoices.cpp", "app/window/Collation.cpp", "model/InitDB.cpp"}) {
    if (path == file) return true;
  }
  return path.starts_with("fxext/widgets/gallery/");
}

bool isHungarian(const std::string& text) {
  for (const char* letter :
       {"á", "é", "í", "ó", "ö", "ő", "ú", "ü", "ű", "Á", "É", "Í", "Ó", "Ö", "Ő", "Ú", "Ü", "Ű"}) {
    if (text.find(letter) != std::string::npos) return true;
  }
  return false;
}

std::vector<SourceText> textsOfTheProgram() {
  std::vector<SourceText> texts;
  for (const char* folder : {"app", "fxext", "host", "itemdata", "model", "plugin", "ui"}) {
    for (const auto& entry : fs::recursive_directory_iterator(kRoot + "/" + folder)) {
      if (entry.path().extension() != ".cpp" && entry.path().extension() != ".h") continue;
      const std::string path = fs::relative(entry.path(), kRoot);
      if (holdsData(path)) continue;
      const std::vector<SourceText> found = findTexts(path, readFile(entry.path()));
      texts.insert(texts.end(), found.begin(), found.end());
    }
  }
  return texts;
}

}  // namespace

TEST(SourceTextsTest, findsTextsAndNothingElse) {
  const std::vector<SourceText> found = findTexts("a.cpp",
                                                  "#include \"x.h\"\n// \"comment\"\nf(\"one \"\n  \"two\", '\"', "
                                                  "\"a\\\"\\n\"); /* \"no\" */ g('\\'', 1'000, \"\");\n");
  ASSERT_EQ(found.size(), 3u);
  EXPECT_EQ(found[0].place, "a.cpp:3");
  EXPECT_EQ(found[0].text, "one two");
  EXPECT_EQ(found[1].place, "a.cpp:4");
  EXPECT_EQ(found[1].text, "a\"\n");
  EXPECT_EQ(found[2].text, "");
}

TEST(TemplateTest, isWhatTheSourcesSay) {
  const TemporaryDirectory fresh;
  ChildProcess extract({kRoot + "/po/extract", fresh.path()});
  ASSERT_EQ(extract.run(), 0) << extract.getErrors();
  for (const std::string& domain : SpokenLanguage::domains()) {
    std::set<std::string> stored;
    std::set<std::string> found;
    for (const PoEntry& entry : readPoFile(templateOf(domain))) stored.insert(entry.text);
    for (const PoEntry& entry : readPoFile(fresh.path(domain + ".pot"))) found.insert(entry.text);
    EXPECT_EQ(stored, found) << "Please build update-po.";
  }
}

TEST(TemplateTest, everyHungarianTextIsInIt) {
  const std::set<std::string> known = allTexts();
  size_t count = 0;
  for (const SourceText& text : textsOfTheProgram()) {
    if (!isHungarian(text.text)) continue;
    ++count;
    EXPECT_TRUE(known.contains(text.text)) << text.place << ": " << text.text;
  }
  EXPECT_GT(count, 200u);
}
