#pragma once

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/ChildProcess.h"
#include "tests/support/FileConnection.h"
#include "tests/support/TemporaryDirectory.h"
#include "tests/support/XDisplay.h"
#include "tests/support/XEvents.h"
#include "tests/support/XWindows.h"

/// The real program in a process and on a display of its own, used by keyboard and mouse like a person would, and seen
/// from outside: by its windows' titles, by what it stores and by what other runs of it say.
class Journey : public ::testing::Test {
 protected:
  using Rows = std::vector<std::vector<std::string>>;

  Journey() : windows(display.name()), events(display.name()) {}

  /// A database with the sample in it.
  void makeSample();
  /// Starts the program on the database and waits for its main window, which gets the keyboard.
  void start();
  /// Starts it with these arguments, the program included, and does not wait.
  void startWith(const std::vector<std::string>& arguments, const std::string& locale = "C.UTF-8");
  /// Leaves the program by its menu's key; expects that it ends well and has complained of nothing.
  void quit();
  /// Expects that the running program ends by itself like that.
  void expectEnd();
  /// Starts the program and expects that it says that in a box and on standard error instead of opening.
  void expectRefused(const std::vector<std::string>& arguments, const std::string& error);
  void expectRefused(const std::string& error) { expectRefused(commandLine({}), error); }

  /// Waits for a window of that title, gives it the keyboard and returns it.
  unsigned long use(const std::string& title);
  /// Clicks at a place in a window; negative places count from its right and lower edge.
  void clickAt(unsigned long window, int x, int y, bool isDouble = false);

  /// Opens the invoice of that number from the main window's list, and uses its form.
  unsigned long openInvoice(const std::string& number);

  /// What the program prints with that command; expects that it succeeds.
  std::string output(const std::vector<std::string>& arguments) const;
  /// Waits until a query's first value is that.
  bool waitForText(const std::string& sql, const std::string& expected) const;
  Rows rows(const std::string& sql) const { return FileConnection(database).rows(sql); }
  std::string text(const std::string& sql) const;
  void exec(const std::string& script) const { FileConnection(database).exec(script); }

  /// What startWith takes for the journey's database, the plug-ins of a folder and those arguments.
  std::vector<std::string> commandLine(const std::vector<std::string>& arguments,
                                       const std::string& plugins = std::string()) const;

  std::string mainTitle() const { return "Brontel - brontel.db"; }

  XDisplay display{"1024x768x24"};
  XWindows windows;
  XEvents events;
  TemporaryDirectory directory;
  const std::string database = directory.path("brontel.db");
  std::unique_ptr<ChildProcess> program;

 private:
  void ignoreCaches(ChildProcess& process) const;

  TemporaryDirectory suppressions_;
};
