#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/fxext/values/DecTestReader.h"
#include "tests/fxext/values/DecTestRunner.h"

namespace {

namespace fs = std::filesystem;

constexpr int LEAST_CASES = 1500;

/// Where the conformance files are; empty when they are nowhere. Python's test suite brings them along.
fs::path directory() {
#ifdef DECTEST_DIR
  return fs::is_directory(DECTEST_DIR) ? fs::path(DECTEST_DIR) : fs::path();
#else
  std::error_code error;
  for (const fs::directory_entry& entry : fs::directory_iterator("/usr/lib", error)) {
    if (!entry.path().filename().string().starts_with("python3.")) continue;
    fs::path candidate = entry.path() / "test" / "decimaltestdata";
    if (fs::is_directory(candidate)) return candidate;
  }
  return {};
#endif
}

std::vector<fs::path> conformanceFiles() {
  std::vector<fs::path> files;
  const fs::path where = directory();
  if (where.empty()) return files;
  for (const fs::directory_entry& entry : fs::directory_iterator(where)) {
    if (entry.path().extension() == ".decTest") files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

void print(const char* title, const DecTestRunner::Counts& counts) {
  std::cout << title << '\n';
  for (const auto& [name, count] : counts) std::cout << "  " << count << "  " << name << '\n';
}

}  // namespace

TEST(DecTestConformance, FiniteCasesWithinRangeGiveTheStandardsResults) {
  const std::vector<fs::path> files = conformanceFiles();
  ASSERT_FALSE(files.empty()) << "There are no *.decTest files; install Debian's libpython3.11-testsuite (or the test "
                                 "suite of another Python 3), or configure with DECTEST_DIR set to their directory.";
  DecTestRunner runner;
  for (const fs::path& file : files) {
    std::ifstream in(file);
    ASSERT_TRUE(in) << file;
    DecTestReader reader(in);
    for (DecTestCase test; reader.next(test);) {
      SCOPED_TRACE(file.filename().string() + ": " + test.id);
      runner.run(test);
    }
  }
  print("Cases that ran:", runner.ran());
  print("Cases that do not apply:", runner.skipped());
  std::cout << runner.total() << " cases of " << files.size() << " files ran\n";
  EXPECT_GE(runner.total(), LEAST_CASES);
  for (const char* operation : {"add", "subtract", "multiply", "compare", "quantize"}) {
    EXPECT_TRUE(runner.ran().contains(operation)) << operation;
  }
}
