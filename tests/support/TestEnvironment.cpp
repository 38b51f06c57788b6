#include <clocale>
#include <cstdlib>
#include <memory>
#include <string>
#include <sys/stat.h>

#include <gtest/gtest.h>

#include "tests/support/Failure.h"
#include "tests/support/TemporaryDirectory.h"

// The linker is told to look for this name, which brings this file into every test program: nothing else refers to it.
extern "C" {
extern const int brontel_test_environment;
const int brontel_test_environment = 1;
}

namespace {

void failTest(const std::string& what) {
  ADD_FAILURE() << what;
}

/// Every test runs in a home of its own and in a plain locale, on no display: it must not matter whose machine it is,
/// and nobody's settings may be touched.
class TestEnvironment : public ::testing::Environment {
 public:
  TestEnvironment() { setFailureHandler(failTest); }

  void SetUp() override {
    home_ = std::make_unique<TemporaryDirectory>();
    setenv("HOME", home_->path().c_str(), 1);
    for (const char* name :
         {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR"}) {
      const std::string folder = home_->path(name);
      mkdir(folder.c_str(), 0700);
      setenv(name, folder.c_str(), 1);
    }
    for (const char* name : {"LANGUAGE", "LANG", "DISPLAY", "BRONTEL_PLUGIN_PATH"}) unsetenv(name);
    setenv("LC_ALL", "C.UTF-8", 1);
    std::setlocale(LC_ALL, "");
    // The same by a name under which every version of the C library looks at LANGUAGE.
    std::setlocale(LC_MESSAGES, "C_HU.UTF-8");
  }

  void TearDown() override { home_.reset(); }

 private:
  std::unique_ptr<TemporaryDirectory> home_;
};

[[maybe_unused]] ::testing::Environment* const environment = ::testing::AddGlobalTestEnvironment(new TestEnvironment);

}  // namespace
