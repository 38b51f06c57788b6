#include "tests/app/AppTest.h"

#include <filesystem>
#include <unistd.h>

#include "tests/app/InstalledCopy.h"
#include "tests/support/ChildProcess.h"

namespace {

ProgramRun finish(const std::vector<std::string>& arguments, const std::map<std::string, std::string>& environment) {
  ChildProcess child(arguments);
  for (const auto& [name, value] : environment) child.setEnvironment(name, value);
  child.run();
  EXPECT_FALSE(child.isTimedOut());
  EXPECT_EQ(child.getSignal(), 0) << child.getErrors();
  return {child.getExitCode(), child.getOutput(), child.getErrors()};
}

}  // namespace

ProgramRun AppTest::runProgram(const Arguments& arguments, const Environment& environment) {
  Arguments all{BRONTEL_TEST_HOST};
  all.insert(all.end(), arguments.begin(), arguments.end());
  return finish(all, environment);
}

ProgramRun AppTest::run(const Arguments& arguments, const Environment& environment) const {
  return finish(commandLine(arguments), environment);
}

ProgramRun AppTest::runUnprivileged(const Arguments& arguments) const {
  // That user may not be able to reach the folder in which the program was built.
  const InstalledCopy copy;
  Arguments all;
  if (geteuid() == 0) all = {"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"};
  all.insert(all.end(), {copy.program(), "--database", database});
  all.insert(all.end(), arguments.begin(), arguments.end());
  return finish(all, {});
}

AppTest::Arguments AppTest::commandLine(const Arguments& arguments) const {
  Arguments all{BRONTEL_TEST_HOST, "--database", database, "--plugins", pluginFolder()};
  all.insert(all.end(), arguments.begin(), arguments.end());
  return all;
}

std::string AppTest::output(const Arguments& arguments) const {
  const ProgramRun run = this->run(arguments);
  EXPECT_EQ(run.exitCode, 0) << arguments.front();
  EXPECT_EQ(run.errors, "") << arguments.front();
  return run.output;
}

void AppTest::expectRefused(const Arguments& arguments, const std::string& error) const {
  SCOPED_TRACE(arguments.front());
  const auto before = files();
  const ProgramRun run = this->run(arguments);
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(run.errors, "brontel-host: " + error + "\n");
  EXPECT_TRUE(files() == before) << "the files have changed";
}

void AppTest::makeSample() const {
  const ProgramRun run = this->run({"init", "--sample"});
  ASSERT_EQ(run.exitCode, 0) << run.errors;
}

std::string AppTest::text(const std::string& sql) const {
  const Rows all = rows(sql);
  return all.empty() ? std::string() : all.front().front();
}

std::map<std::string, std::string> AppTest::files() const {
  std::map<std::string, std::string> contents;
  for (const auto& entry : std::filesystem::directory_iterator(directory.path())) {
    const bool isFile = entry.is_regular_file();
    contents[entry.path().filename()] = isFile ? readFile(entry.path()) : "no regular file";
  }
  return contents;
}

std::vector<AppTest::Arguments> AppTest::readingCommands() {
  return {{"list"}, {"check", "1"}, {"print", "1"}, {"export", "1"}, {"find", "DF5"}};
}

std::vector<AppTest::Arguments> AppTest::writingCommands() const {
  return {{"init"},      {"init", "--sample"}, {"save", "1"},  {"derive", "4"},
          {"copy", "1"}, {"close", "1"},       {"storno", "4"}};
}

std::vector<AppTest::Arguments> AppTest::allCommands() const {
  std::vector<Arguments> all = readingCommands();
  all.push_back({"backup", directory.path("backup.db")});
  all.push_back({"plugins"});
  for (const Arguments& arguments : writingCommands()) all.push_back(arguments);
  return all;
}

std::string pluginFolder() {
  return std::filesystem::path(BRONTEL_TEST_PLUGIN).parent_path();
}

void addPlugin(const std::string& folder, const std::string& file, const std::string& name) {
  std::filesystem::create_directories(folder);
  std::filesystem::create_symlink(file, std::filesystem::path(folder) / name);
}
