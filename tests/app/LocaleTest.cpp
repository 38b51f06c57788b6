// What is stored, printed and exported does not depend on where the machine is. Only texts are translated.

#include "tests/app/AppTest.h"
#include "tests/support/GeneratedLocales.h"
#include "tests/support/TestDatabase.h"

namespace {

class LocaleTest : public AppTest {
 protected:
  /// Everything that commands write out and leave behind, on a new database.
  std::string workIn(const Environment& environment, const std::vector<Arguments>& commands) const {
    for (const auto& [name, content] : files()) std::remove(directory.path(name).c_str());
    std::string all;
    for (const Arguments& command : commands) {
      const ProgramRun run = this->run(command, environment);
      all += "$ " + command.front() + "\n" + run.output + run.errors + std::to_string(run.exitCode) + "\n";
      // New invoices are of today.
      if (command.front() != "plugins") exec("update t_invoice set date='2025-06-30' where t_invoice_id>5");
    }
    return all + TestDatabase::dumpOf(database);
  }

  /// What a database can go through, with decimal numbers, dates and accented letters.
  std::vector<Arguments> everything() const {
    std::vector<Arguments> commands{{"init", "--sample"}, {"plugins"},     {"list"},
                                    {"save", "1"},        {"derive", "4"}, {"copy", "1"},
                                    {"close", "5"},       {"storno", "3"}, {"backup", directory.path("backup.db")}};
    for (const char* invoice : {"1", "2", "3", "4", "5", "6", "7"}) {
      for (const char* command : {"check", "print", "export"}) commands.push_back({command, invoice});
    }
    for (const char* text : {"DF5", "kiszállás", "KISZÁLLÁS", "2027.05.31"}) commands.push_back({"find", text});
    return commands;
  }

  /// What does not speak.
  std::vector<Arguments> data() const {
    std::vector<Arguments> commands{{"init", "--sample"}, {"list"}, {"derive", "4"}, {"copy", "1"}};
    for (const char* invoice : {"1", "2", "3", "4", "5", "6", "7"}) {
      for (const char* command : {"print", "export"}) commands.push_back({command, invoice});
    }
    commands.push_back({"find", "DF5"});
    return commands;
  }

  static constexpr const char* kLocales[] = {"C.UTF-8", "hu_HU.UTF-8", "de_DE.UTF-8"};

  const GeneratedLocales locales;
};

}  // namespace

TEST_F(LocaleTest, everyByteIsTheSame) {
  std::string expected;
  for (const char* locale : kLocales) {
    SCOPED_TRACE(locale);
    const std::string all = workIn({{"LC_ALL", locale}, {"LANGUAGE", "hu"}}, everything());
    if (expected.empty()) expected = all;
    EXPECT_EQ(all, expected);
    EXPECT_NE(all.find("1.5"), std::string::npos);
    EXPECT_NE(all.find("2027.05.31"), std::string::npos);
  }
}

TEST_F(LocaleTest, theLanguageIsThatOfTheLocaleAndDataAreTheSame) {
  const std::map<std::string, std::string> sayings = {
      {"C.UTF-8", "Ismeretlen parancs"}, {"hu_HU.UTF-8", "Ismeretlen parancs"}, {"de_DE.UTF-8", "Unbekannter Befehl"}};
  std::string expected;
  for (const auto& [locale, saying] : sayings) {
    SCOPED_TRACE(locale);
    EXPECT_NE(runProgram({"foo"}, {{"LC_ALL", locale}}).errors.find(saying), std::string::npos);
    const std::string all = workIn({{"LC_ALL", locale}}, data());
    // What the first command says is no data.
    const std::string written = all.substr(all.find("$ list"));
    if (expected.empty()) expected = written;
    EXPECT_EQ(written, expected);
    EXPECT_NE(written.find("Mennyiség"), std::string::npos);
  }
}
