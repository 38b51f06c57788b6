#include "tests/support/TestApplication.h"

#include <chrono>
#include <cstdlib>
#include <thread>

#include "tests/support/Failure.h"

TestApplication::TestApplication(MorvaneDatabase* database, const std::string& screen) : display_(screen) {
  app_.setDB(database);
  // FOX leaves the process when it finds no display.
  if (!display_.isRunning()) std::abort();
  // FOX keeps the argument vector and reads it again when windows are created.
  static char name[] = "test";
  static char* arguments[] = {name, nullptr};
  int count = 1;
  app_.init(count, arguments);
}

TestApplication::~TestApplication() = default;

void TestApplication::create() {
  app_.create();
  // FOX does the following only the first time.
  for (FX::FXWindow* window = app_.getRootWindow()->getFirst(); window != nullptr; window = window->getNext()) {
    window->create();
  }
}

void TestApplication::processEvents() {
  app_.flush(true);
  while (app_.runOneEvent(false)) {
  }
}

bool TestApplication::waitUntil(const std::function<bool()>& condition, int milliseconds) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) {
      reportFailure("waited in vain");
      return false;
    }
    processEvents();
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return true;
}
