#include "tests/rules/HandleUse.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace Rules {

namespace {

// What the handle alone is told to do; run without arguments is somebody else's.
constexpr std::array<std::string_view, 8> kHosts = {
    "open", "close", "setForeignKeys", "useWriteAheadJournal", "backupTo", "setErrorSink", "setObserver", "run"};

/// The first character behind an offset that is no white space.
char nextTo(const std::string& code, size_t offset) {
  const size_t at = code.find_first_not_of(" \t\r\n", offset);
  return at == std::string::npos ? '\0' : code[at];
}

bool isMemberCall(const std::string& code, const SourceFile::Name& name) {
  const bool byPoint = name.begin > 0 && code[name.begin - 1] == '.';
  const bool byArrow = name.begin > 1 && code.compare(name.begin - 2, 2, "->") == 0;
  return (byPoint || byArrow) && nextTo(code, name.end) == '(';
}

bool isHosts(const std::string& code, const SourceFile::Name& name) {
  if (std::find(kHosts.begin(), kHosts.end(), name.text) == kHosts.end() || !isMemberCall(code, name)) return false;
  return name.text != "run" || nextTo(code, code.find('(', name.end) + 1) != ')';
}

}  // namespace

Violations handleUse(const SourceTree& tree) {
  Violations violations;
  for (const SourceFile& file : tree.files()) {
    if (!file.isIn({"itemdata", "model", "plugin", "ui"})) continue;
    for (const SourceFile::Name& name : file.names()) {
      if (isHosts(file.code, name)) violations.push_back(file.place(name.begin) + ": " + name.text);
    }
  }
  return violations;
}

}  // namespace Rules
