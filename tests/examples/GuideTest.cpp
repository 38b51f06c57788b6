// The guide's code is the example's: every block that names a file shows what stands between that file's two markers.

#include <filesystem>
#include <map>
#include <regex>
#include <sstream>

#include <gtest/gtest.h>

#include "tests/support/TemporaryDirectory.h"

namespace fs = std::filesystem;

namespace {

/// Texts by "file [marker]".
using Blocks = std::map<std::string, std::string>;

const std::string kRoot = BRONTEL_SOURCE_DIR "/";
const std::string kExample = "examples/remark";

/// What a file has between lines that consist of the same comment, such as "// [entity]".
Blocks blocksOf(const std::string& file) {
  static const std::regex marker("(?://|#) (\\[[a-z ]+\\])");
  Blocks blocks;
  std::string open;
  std::istringstream lines(readFile(kRoot + file));
  std::smatch match;
  for (std::string line; std::getline(lines, line);) {
    if (std::regex_match(line, match, marker)) {
      const std::string name = file + " " + match[1].str();
      EXPECT_TRUE(open.empty() || open == name) << name << " begins within " << open;
      open = open.empty() ? name : "";
      if (!open.empty()) blocks[open];
    } else if (!open.empty()) {
      blocks[open] += line + "\n";
    }
  }
  EXPECT_EQ(open, "") << "has no end";
  return blocks;
}

/// The fenced blocks behind a line "<!-- file [marker] -->".
Blocks blocksOfGuide() {
  static const std::regex label("<!-- (.*) -->");
  Blocks blocks;
  std::string name;
  bool inside = false;
  std::istringstream lines(readFile(kRoot + "docs/writing-plugins.md"));
  std::smatch match;
  for (std::string line; std::getline(lines, line);) {
    if (!inside && std::regex_match(line, match, label)) {
      name = match[1];
    } else if (!name.empty() && line.starts_with("```")) {
      inside = !inside;
      if (inside) blocks[name];
      if (!inside) name.clear();
    } else if (inside) {
      blocks[name] += line + "\n";
    }
  }
  return blocks;
}

}  // namespace

TEST(GuideTest, itsCodeIsTheExamples) {
  Blocks expected;
  for (const auto& entry : fs::recursive_directory_iterator(kRoot + kExample)) {
    if (!entry.is_regular_file()) continue;
    expected.merge(blocksOf(fs::relative(entry.path(), kRoot).string()));
  }
  ASSERT_GT(expected.size(), 8u);
  EXPECT_EQ(blocksOfGuide(), expected);
}
