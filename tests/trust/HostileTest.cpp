#include "tests/trust/HostileTest.h"

#include <algorithm>

#include "tests/host/xml/ParsedXml.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/TestDatabase.h"

namespace {

constexpr const char* kInvoices[] = {"1", "2", "3", "4", "5"};
constexpr const char* kOpenInvoices[] = {"1", "2", "5"};

bool isOneLine(const std::string& text) {
  return std::count(text.begin(), text.end(), '\n') == 1 && text.back() == '\n';
}

}  // namespace

std::string HostileTest::complaintOfXmllint(const std::string& xml) {
  const TemporaryDirectory folder;
  ChildProcess xmllint({"xmllint", "--noout", "--nonet", folder.write("export.xml", xml)});
  EXPECT_TRUE(xmllint.start());
  return xmllint.wait() == 0 && xmllint.getErrors().empty() ? "" : "xmllint: " + xmllint.getErrors();
}

void HostileTest::spoil(const std::string& script) const {
  makeSample();
  exec("pragma foreign_keys=off; pragma ignore_check_constraints=on; " + script);
}

void HostileTest::expectAllCommandsSurvive(const Environment& environment) const {
  std::vector<Arguments> reading = {{"list"}, {"find", "%n%s"}, {"find", "'; drop table t_invoice; --"}, {"plugins"}};
  for (const char* invoice : kInvoices) {
    for (const char* command : {"check", "print", "export"}) reading.push_back({command, invoice});
  }
  const std::string before = TestDatabase::dumpOf(database);
  for (const Arguments& arguments : reading) {
    const ProgramRun run = runBounded(arguments, environment);
    if (arguments[0] == "export" && run.exitCode == 0) {
      EXPECT_TRUE(ParsedXml(run.output).isWellFormed()) << "invoice " << arguments[1];
      EXPECT_EQ(complaintOfXmllint(run.output).substr(0, 2000), "") << "invoice " << arguments[1];
    }
  }
  EXPECT_TRUE(TestDatabase::dumpOf(database) == before) << "a reading command has changed the database";
  const std::vector<Arguments> writing = {{"save", "1"},   {"save", "2"},   {"save", "5"},
                                          {"copy", "1"},   {"derive", "4"}, {"close", "1"},
                                          {"storno", "4"}, {"init"},        {"backup", directory.path("copy.db")}};
  for (const Arguments& arguments : writing) runBounded(arguments, environment);
  EXPECT_EQ(rows("pragma integrity_check"), (Rows{{"ok"}}));
}

ProgramRun HostileTest::runBounded(const Arguments& arguments, const Environment& environment) const {
  SCOPED_TRACE(arguments[0] + " " + arguments.back());
  // That no signal and no timeout ended it is looked at inside.
  const ProgramRun run = this->run(arguments, environment);
  EXPECT_GE(run.exitCode, 0);
  EXPECT_LE(run.exitCode, 2) << run.errors.substr(0, 2000);
  if (run.exitCode == 2) {
    EXPECT_TRUE(isOneLine(run.errors)) << run.errors.substr(0, 2000);
    EXPECT_EQ(run.errors.find("brontel-host: "), 0u) << run.errors.substr(0, 2000);
  }
  return run;
}

void HostileTest::expectSavesKeepAllData() const {
  for (const char* invoice : kOpenInvoices) {
    SCOPED_TRACE(std::string("invoice ") + invoice);
    const std::string before = content();
    runBounded({"save", invoice}, {});
    const std::string after = content();
    if (before == after) continue;
    const auto difference = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    const auto at = std::max<std::ptrdiff_t>(0, difference.first - before.begin() - 60);
    ADD_FAILURE() << "was: ..." << before.substr(static_cast<size_t>(at), 160) << "\nis:  ..."
                  << after.substr(static_cast<size_t>(at), 160);
  }
}

std::string HostileTest::content() const {
  FileConnection connection(database);
  std::string all;
  for (const auto& table : connection.rows("select name from sqlite_master where type='table' order by name")) {
    std::string columns;
    for (const auto& column : connection.rows("select name from pragma_table_info('" + table[0] + "')")) {
      if (column[0] != "version") columns += (columns.empty() ? "\"" : ",\"") + column[0] + "\"";
    }
    all += table[0] + "\n";
    for (const auto& row : connection.literals("select " + columns + " from \"" + table[0] + "\" order by rowid")) {
      for (const std::string& value : row) all += "  " + value;
      all += "\n";
    }
  }
  return all;
}
