#pragma once

#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/FileConnection.h"
#include "tests/support/TemporaryDirectory.h"

/// How a run of the program ended.
struct ProgramRun {
  int exitCode = -1;
  std::string output;
  std::string errors;
};

/// Runs the real program on real files in a folder of the test's own.
class AppTest : public ::testing::Test {
 protected:
  using Arguments = std::vector<std::string>;
  using Environment = std::map<std::string, std::string>;
  using Rows = std::vector<std::vector<std::string>>;

  /// The program with these arguments and nothing else.
  static ProgramRun runProgram(const Arguments& arguments, const Environment& environment = {});

  /// The program on the test's database with the real plug-in.
  ProgramRun run(const Arguments& arguments, const Environment& environment = {}) const;
  /// What run runs.
  Arguments commandLine(const Arguments& arguments) const;
  /// The same as a user whom the rights of files bind.
  ProgramRun runUnprivileged(const Arguments& arguments) const;

  /// What the program prints, expecting that it succeeds without a word on standard error.
  std::string output(const Arguments& arguments) const;
  /// Expects that the program refuses with exactly that line and leaves every file of the folder as it was.
  void expectRefused(const Arguments& arguments, const std::string& error) const;

  /// Makes the test's database with the sample in it.
  void makeSample() const;
  /// Changes the test's database behind the program's back, and looks into it.
  void exec(const std::string& script) const { FileConnection(database).exec(script); }
  Rows rows(const std::string& sql) const { return FileConnection(database).rows(sql); }
  std::string text(const std::string& sql) const;

  /// The content of every file in the folder, by name.
  std::map<std::string, std::string> files() const;

  /// Every command that needs a database, with arguments that fit the sample.
  static std::vector<Arguments> readingCommands();
  std::vector<Arguments> writingCommands() const;
  std::vector<Arguments> allCommands() const;

  TemporaryDirectory directory;
  const std::string database = directory.path("brontel.db");
};

/// The folder that the real plug-in is in.
std::string pluginFolder();

/// A folder of plug-ins for one test: the real one and others, by the names that they get there.
void addPlugin(const std::string& folder, const std::string& file, const std::string& name);
