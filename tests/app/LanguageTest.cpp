#include "tests/app/AppTest.h"
#include "tests/app/InstalledCopy.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/MessageCatalog.h"

namespace {

/// Catalogues of a language that has a few of the texts.
class LanguageTest : public AppTest {
 protected:
  static void install(const std::string& folder) {
    MessageCatalog host;
    host.add("Ismeretlen parancs: %s. A parancsok: brontel-host --help", "Unknown command, ő: %s.");
    host.add("Egyéb tételadatok: Az összmennyiség (%s) kevesebb, mint a tétellistában megadott (%s).",
             "Too few: %s of %s.");
    ASSERT_TRUE(host.install(folder, "xx", "brontel-host"));
    MessageCatalog plugin;
    plugin.add("Egyéb tételadatok", "Other item data");
    ASSERT_TRUE(plugin.install(folder, "xx", "BrontelPluginItemData"));
  }

  Environment speaking(const std::string& locale) const {
    return {{"BRONTEL_LOCALE_PATH", locales}, {"LANGUAGE", "xx"}, {"LC_ALL", locale}};
  }

  static constexpr const char* kHungarian = "brontel-host: Ismeretlen parancs: foo. A parancsok: brontel-host --help\n";
  static constexpr const char* kTranslated = "brontel-host: Unknown command, ő: foo.\n";

  const std::string locales = directory.path("locales");
};

}  // namespace

TEST_F(LanguageTest, WithoutACatalogueItSpeaksHungarianInUtf8) {
  for (const char* locale : {"C.UTF-8", "C", "POSIX", "", "hu_HU.ISO-8859-2", "no_such_locale"}) {
    SCOPED_TRACE(locale);
    EXPECT_EQ(runProgram({"foo"}, {{"LC_ALL", locale}}).errors, kHungarian);
  }
}

TEST_F(LanguageTest, TheProgramsOwnTextsComeFromItsDomain) {
  install(locales);
  EXPECT_EQ(runProgram({"foo"}, speaking("C.UTF-8")).errors, kTranslated);
}

TEST_F(LanguageTest, WithoutAUtf8LocaleTheLanguageStillCounts) {
  install(locales);
  for (const char* locale : {"C", "POSIX", "hu_HU.ISO-8859-2", "no_such_locale"}) {
    SCOPED_TRACE(locale);
    EXPECT_EQ(runProgram({"foo"}, speaking(locale)).errors, kTranslated);
  }
}

TEST_F(LanguageTest, ThePluginsTextsComeFromBothDomains) {
  install(locales);
  EXPECT_EQ(run({"plugins"}, speaking("C.UTF-8")).output, "libBrontelPluginItemData.so\tOther item data\t2013.01.02\n");
  makeSample();
  const std::string check = run({"check", "2"}, speaking("C.UTF-8")).output;
  EXPECT_EQ(check.substr(0, check.find('\n')), "1\tINVOICE_ITEMDATAQUANTITYLESSTHAN\tToo few: 1 of 3.");
}

TEST_F(LanguageTest, CataloguesAreFoundBesideTheProgram) {
  const InstalledCopy copy;
  install(copy.localeFolder());
  ChildProcess child({copy.program(), "foo"});
  child.setEnvironment("LANGUAGE", "xx");
  EXPECT_EQ(child.run(), 2);
  EXPECT_EQ(child.getErrors(), kTranslated);
}

TEST_F(LanguageTest, AnotherLanguageLeavesTheHungarianTexts) {
  install(locales);
  Environment environment = speaking("C.UTF-8");
  environment["LANGUAGE"] = "yy";
  EXPECT_EQ(runProgram({"foo"}, environment).errors, kHungarian);
}

namespace {

/// The catalogues that belong to the program.
class BuiltLanguageTest : public AppTest {
 protected:
  static ProgramRun speak(const std::string& language, const Arguments& arguments) {
    return runProgram(arguments, {{"LANGUAGE", language}, {"LC_ALL", "C.UTF-8"}});
  }

  static bool hasHungarianLetters(const std::string& text) {
    for (const char* letter :
         {"á", "é", "í", "ó", "ö", "ő", "ú", "ü", "ű", "Á", "É", "Í", "Ó", "Ö", "Ő", "Ú", "Ü", "Ű"})
      if (text.find(letter) != std::string::npos) return true;
    return false;
  }

  /// Every way to be refused without a database.
  std::vector<Arguments> refusals() const {
    const std::string nothing = directory.path("no/such/folder");
    std::vector<Arguments> all{{"foo"},
                               {"--foo"},
                               {"--database"},
                               {"list", "1"},
                               {"export"},
                               {"list", "-o", "x"},
                               {"list", "--sample"},
                               {"--database", nothing, "list"},
                               {"--database", directory.path(), "list"},
                               {"--plugins", nothing, "plugins"}};
    return all;
  }
};

}  // namespace

TEST_F(BuiltLanguageTest, HelpIsInTheUsersLanguage) {
  EXPECT_TRUE(speak("en", {"--help"}).output.starts_with("Usage: brontel-host "));
  EXPECT_TRUE(speak("de", {"--help"}).output.starts_with("Aufruf: brontel-host "));
  EXPECT_TRUE(speak("hu", {"--help"}).output.starts_with("Használat: brontel-host "));
  EXPECT_FALSE(hasHungarianLetters(speak("en", {"--help"}).output));
}

TEST_F(BuiltLanguageTest, ErrorsAreInTheUsersLanguage) {
  for (const Arguments& arguments : refusals()) {
    const std::string hungarian = speak("hu", arguments).errors;
    const std::string english = speak("en", arguments).errors;
    const std::string german = speak("de", arguments).errors;
    EXPECT_NE(hungarian, "brontel-host: \n");
    EXPECT_NE(english, hungarian);
    EXPECT_NE(german, hungarian);
    EXPECT_NE(german, english);
    EXPECT_FALSE(hasHungarianLetters(english)) << english;
  }
}

TEST_F(BuiltLanguageTest, HungarianComesBeforeTheLanguagesThatFollow) {
  const std::string hungarian = speak("hu", {"foo"}).errors;
  EXPECT_EQ(hungarian, "brontel-host: Ismeretlen parancs: foo. A parancsok: brontel-host --help\n");
  EXPECT_EQ(speak("hu:en:de", {"foo"}).errors, hungarian);
  EXPECT_EQ(speak("fr:en", {"foo"}).errors, speak("en", {"foo"}).errors);
}

TEST_F(BuiltLanguageTest, ThePluginSpeaksTheSameLanguage) {
  makeSample();
  const std::string check = run({"check", "2"}, {{"LANGUAGE", "en"}}).output;
  EXPECT_NE(check.find("Additional item data: The total quantity (1) is less"), std::string::npos) << check;
  EXPECT_EQ(run({"plugins"}, {{"LANGUAGE", "de"}}).output,
            "libBrontelPluginItemData.so\tWeitere Positionsdaten\t2013.01.02\n");
}
