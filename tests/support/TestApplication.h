#pragma once

#include <functional>
#include <string>

#include "host/ui/Morvane.h"
#include "tests/support/XDisplay.h"

/// The host's application on a display of its own. FOX allows one application at a time in a process.
class TestApplication {
 public:
  /// Starts the display, with a screen of that size and depth, and connects to it. With a database the application has
  /// it as its own (borrowed).
  explicit TestApplication(MorvaneDatabase* database = nullptr, const std::string& screen = "1280x1024x24");
  TestApplication(const TestApplication&) = delete;
  TestApplication& operator=(const TestApplication&) = delete;
  ~TestApplication();

  Brontel::Morvane* get() { return &app_; }
  Brontel::Morvane* operator->() { return &app_; }
  const XDisplay& display() const { return display_; }

  /// Realises all windows that have been built. Can be repeated when there are new ones.
  void create();
  /// Handles everything that has arrived so far: events, and then timers and chores that are due.
  void processEvents();
  /// Handles events until the condition holds; false, and a test failure, when it does not within the time.
  bool waitUntil(const std::function<bool()>& condition, int milliseconds = 10000);

 private:
  XDisplay display_;
  Brontel::Morvane app_;
};
