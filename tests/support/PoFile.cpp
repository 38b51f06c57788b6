#include "tests/support/PoFile.h"

#include <sstream>

#include <gtest/gtest.h>

#include "tests/support/TemporaryDirectory.h"

namespace {

// What stands in quotes in a line.
std::string unquoted(const std::string& line) {
  std::string text;
  for (size_t i = line.find('"') + 1; i + 1 < line.size(); ++i) {
    if (line[i] != '\\') {
      text += line[i];
      continue;
    }
    const char escaped = line[++i];
    text += escaped == 'n' ? '\n' : escaped == 't' ? '\t' : escaped;
  }
  return text;
}

}  // namespace

std::vector<PoEntry> readPoFile(const std::string& path) {
  std::vector<PoEntry> entries;
  std::string* current = nullptr;
  std::istringstream lines(readFile(path));
  for (std::string line; std::getline(lines, line);) {
    if (line.empty() || line.front() == '#') continue;
    if (line.starts_with("msgid ")) {
      entries.emplace_back();
      current = &entries.back().text;
    } else if (entries.empty()) {
      continue;
    } else if (line.starts_with("msgid_plural ")) {
      current = &entries.back().plural;
    } else if (line.starts_with("msgstr")) {
      current = &entries.back().translations.emplace_back();
    }
    *current += unquoted(line);
  }
  EXPECT_FALSE(entries.empty()) << path;
  std::erase_if(entries, [](const PoEntry& entry) { return entry.text.empty(); });
  return entries;
}
