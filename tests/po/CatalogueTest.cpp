// Every language has every text, and each translation keeps what the program reads in it.

#include <algorithm>
#include <ostream>
#include <regex>

#include <gtest/gtest.h>

#include "tests/support/ChildProcess.h"
#include "tests/support/PoFile.h"
#include "tests/support/SpokenLanguage.h"
#include "tests/support/TemporaryDirectory.h"

namespace {

using Texts = std::vector<std::string>;

const std::string kFolder = SOURCE_FOLDER "/po/";

struct Catalogue {
  std::string language;
  std::string domain;

  std::string path() const { return kFolder + language + "/" + domain + ".po"; }
};

// How the framework calls it.
void PrintTo(const Catalogue& catalogue, std::ostream* out) {
  *out << catalogue.language << ' ' << catalogue.domain;
}

std::vector<Catalogue> allCatalogues() {
  std::vector<Catalogue> all;
  for (const std::string& language : SpokenLanguage::builtLanguages()) {
    // The texts of the sources themselves.
    if (language == "hu") continue;
    for (const std::string& domain : SpokenLanguage::domains()) all.push_back({language, domain});
  }
  return all;
}

Texts matches(const std::string& text, const std::regex& pattern) {
  return Texts(std::sregex_token_iterator(text.begin(), text.end(), pattern), std::sregex_token_iterator());
}

// What printf and fillIn take for a place to fill in, in the order of the values, which a translation may number.
Texts directives(const std::string& text) {
  static const std::regex kDirective("%([0-9]+\\$)?[-+ #0]*[0-9]*(\\.[0-9]+)?(l|ll|h|z)?[a-zA-Z%]");
  Texts found = matches(text, kDirective);
  std::stable_sort(found.begin(), found.end(), [](const std::string& a, const std::string& b) {
    return a.find('$') != std::string::npos && b.find('$') != std::string::npos && a.substr(1) < b.substr(1);
  });
  for (std::string& directive : found) {
    if (const size_t number = directive.find('$'); number != std::string::npos) directive.erase(1, number);
  }
  return found;
}

// A text that the toolkit takes apart: label, accelerator or tool tip, and help.
Texts parts(const std::string& text) {
  static const std::regex kSeparator("\t");
  return Texts(std::sregex_token_iterator(text.begin(), text.end(), kSeparator, -1), std::sregex_token_iterator());
}

bool isAccelerator(const std::string& text) {
  static const std::regex kAccelerator("(%s|((Ctrl|Shift|Alt)\\+)*([A-Z0-9]|F[0-9]+|Ins|Del|Enter))");
  return std::regex_match(text, kAccelerator);
}

size_t mnemonics(const std::string& text) {
  static const std::regex kMnemonic("&[^&]");
  return matches(text, kMnemonic).size();
}

size_t countOf(const std::string& text, char c) {
  return static_cast<size_t>(std::count(text.begin(), text.end(), c));
}

// File patterns and other texts that the program reads.
Texts inParentheses(const std::string& text) {
  static const std::regex kPattern("\\(\\*[^)]*\\)");
  return matches(text, kPattern);
}

// The codes of a list of choices.
Texts codes(const std::string& text) {
  static const std::regex kCode("(^|\n)[0-9]+\t");
  return matches(text, kCode);
}

std::string ending(const std::string& text) {
  static const std::regex kEnding("(\\.\\.\\.|:)?[ \n\t]*$");
  return matches(text, kEnding).front();
}

class CatalogueTest : public testing::TestWithParam<Catalogue> {
 protected:
  /// Calls something for each text and each of its translations.
  template <typename Check>
  static void forEach(Check check) {
    size_t count = 0;
    for (const PoEntry& entry : readPoFile(GetParam().path())) {
      for (const std::string& translation : entry.translations) {
        SCOPED_TRACE(entry.text + "\n-> " + translation);
        check(entry.text, translation);
        ++count;
      }
    }
    EXPECT_GT(count, 20u);
  }
};

}  // namespace

TEST_P(CatalogueTest, hasATranslationOfEveryTextInTheSourcesAndNoneElse) {
  const TemporaryDirectory fresh;
  ChildProcess extract({kFolder + "extract", fresh.path()});
  ASSERT_EQ(extract.run(), 0) << extract.getErrors();
  ChildProcess compare({"msgcmp", GetParam().path(), fresh.path(GetParam().domain + ".pot")});
  compare.setEnvironment("LC_ALL", "C");
  // A text that is missing, fuzzy or empty is an error, one that nobody asks for a warning.
  EXPECT_EQ(compare.run(), 0);
  EXPECT_EQ(compare.getErrors(), "") << "Please build update-po and translate what is new.";
}

TEST_P(CatalogueTest, hasNothingLeftOver) {
  const std::string content = readFile(GetParam().path());
  for (const char* sign : {"#~", "#, fuzzy", "#| "}) EXPECT_EQ(content.find(sign), std::string::npos) << sign;
}

TEST_P(CatalogueTest, compiles) {
  ChildProcess compile({"msgfmt", "--check", "--check-accelerators=&", "-o", "/dev/null", GetParam().path()});
  compile.setEnvironment("LC_ALL", "C");
  EXPECT_EQ(compile.run(), 0);
  EXPECT_EQ(compile.getErrors(), "");
}

TEST_P(CatalogueTest, keepsWhatIsFilledIn) {
  forEach([](const std::string& text, const std::string& translation) {
    EXPECT_EQ(directives(translation), directives(text));
  });
}

TEST_P(CatalogueTest, keepsTheParts) {
  forEach([](const std::string& text, const std::string& translation) {
    const Texts expected = parts(text);
    const Texts found = parts(translation);
    ASSERT_EQ(found.size(), expected.size());
    for (size_t i = 0; i < expected.size(); ++i) {
      EXPECT_EQ(found[i].empty(), expected[i].empty());
      const bool isFixed = i > 0 && isAccelerator(expected[i]);
      EXPECT_TRUE(!isFixed || found[i] == expected[i]);
    }
  });
}

TEST_P(CatalogueTest, keepsLinesAndEnds) {
  forEach([](const std::string& text, const std::string& translation) {
    EXPECT_EQ(countOf(translation, '\n'), countOf(text, '\n'));
    EXPECT_EQ(ending(translation), ending(text));
    EXPECT_EQ(inParentheses(translation), inParentheses(text));
    EXPECT_EQ(codes(translation), codes(text));
  });
}

TEST_P(CatalogueTest, hasOneKeyWhereTheTextHasOne) {
  forEach([](const std::string& text, const std::string& translation) {
    EXPECT_EQ(mnemonics(translation), mnemonics(text));
    EXPECT_LE(mnemonics(translation), 1u);
  });
}

INSTANTIATE_TEST_SUITE_P(All, CatalogueTest, testing::ValuesIn(allCatalogues()),
                         [](const testing::TestParamInfo<Catalogue>& catalogue) {
                           std::string name = catalogue.param.language + "_" + catalogue.param.domain;
                           std::erase(name, '-');
                           return name;
                         });
