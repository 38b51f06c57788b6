#include "tests/journeys/Journey.h"

#include <chrono>
#include <filesystem>
#include <thread>

#include <fxkeys.h>

std::vector<std::string> Journey::commandLine(const std::vector<std::string>& arguments,
                                              const std::string& plugins) const {
  const std::string folder =
      plugins.empty() ? std::filesystem::path(BRONTEL_TEST_PLUGIN).parent_path().string() : plugins;
  std::vector<std::string> all{BRONTEL_TEST_HOST, "--database", database, "--plugins", folder};
  all.insert(all.end(), arguments.begin(), arguments.end());
  return all;
}

std::string Journey::output(const std::vector<std::string>& arguments) const {
  ChildProcess run(commandLine(arguments));
  EXPECT_EQ(run.run(), 0) << arguments.front() << ": " << run.getErrors();
  return run.getOutput();
}

// Those that fontconfig keeps until a process ends.
void Journey::ignoreCaches(ChildProcess& process) const {
  const std::string file = suppressions_.write("suppressions", "leak:libfontconfig\n");
  suppressions_.share();
  process.setEnvironment("LSAN_OPTIONS", "print_suppressions=0:suppressions=" + file);
}

void Journey::makeSample() {
  output({"init", "--sample"});
}

void Journey::start() {
  startWith(commandLine({}));
  use(mainTitle());
}

void Journey::startWith(const std::vector<std::string>& arguments, const std::string& locale) {
  program = std::make_unique<ChildProcess>(arguments);
  program->setEnvironment("LC_ALL", locale);
  ignoreCaches(*program);
  ASSERT_TRUE(program->start());
}

void Journey::quit() {
  use(mainTitle());
  events.key(FX::KEY_q, {FX::KEY_Control_L});
  expectEnd();
}

void Journey::expectEnd() {
  EXPECT_EQ(program->wait(), 0);
  EXPECT_FALSE(program->isTimedOut());
  EXPECT_EQ(program->getErrors(), "");
  EXPECT_EQ(program->getOutput(), "");
  program.reset();
}

void Journey::expectRefused(const std::vector<std::string>& arguments, const std::string& error) {
  startWith(arguments);
  ASSERT_NE(use("Hiba"), 0u) << error;
  EXPECT_EQ(windows.titles(), std::vector<std::string>{"Hiba"});
  events.key(FX::KEY_Return);
  EXPECT_EQ(program->wait(), 2);
  EXPECT_FALSE(program->isTimedOut());
  EXPECT_EQ(program->getErrors(), "brontel-host: " + error + "\n");
  EXPECT_EQ(program->getOutput(), "");
  program.reset();
}

unsigned long Journey::use(const std::string& title) {
  const unsigned long window = windows.waitFor(title);
  if (window != 0) events.focus(window);
  return window;
}

void Journey::clickAt(unsigned long window, int x, int y, bool isDouble) {
  // A widget that has just been clicked holds the pointer until the program has seen the button go up, and would get
  // this click as well. No person is as fast as that.
  EXPECT_TRUE(program->waitUntilIdle());
  const XWindows::Place place = windows.placeOf(window);
  const int left = place.x + x + (x < 0 ? place.width : 0);
  const int top = place.y + y + (y < 0 ? place.height : 0);
  events.move(left - 1, top);
  events.move(left, top);
  if (isDouble) {
    events.doubleClick();
  } else {
    events.click();
  }
}

unsigned long Journey::openInvoice(const std::string& number) {
  const unsigned long window = use(mainTitle());
  events.key(FX::KEY_1, {FX::KEY_Control_L});
  // From the list, which has the keyboard, to the field above it.
  clickAt(window, 300, 66);
  events.key(FX::KEY_a, {FX::KEY_Control_L});
  events.type(number);
  events.key(FX::KEY_Return);
  events.key(FX::KEY_Return);
  return use("Számla: " + number);
}

bool Journey::waitForText(const std::string& sql, const std::string& expected) const {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
  while (text(sql) != expected) {
    if (std::chrono::steady_clock::now() > end) {
      ADD_FAILURE() << sql << " is still " << text(sql);
      return false;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  return true;
}

std::string Journey::text(const std::string& sql) const {
  const Rows all = rows(sql);
  return all.empty() ? std::string() : all.front().front();
}
