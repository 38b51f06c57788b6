#include "tests/rules/Rules.h"

#include <algorithm>
#include <cctype>
#include <functional>
#include <map>
#include <regex>
#include <set>

namespace Rules {

namespace {

using Texts = std::vector<std::string>;

const Texts kPlugin = {"fxext", "itemdata", "model", "plugin", "ui"};
const Texts kAll = {"app", "fxext", "host", "itemdata", "model", "plugin", "ui"};

/// What each folder may include; of nested folders the first that fits counts.
const std::vector<std::pair<std::string, Texts>> kLayers = {
    {"fxext/values", {"fxext/values"}},
    {"fxext", {"fxext"}},
    {"host", {"host", "fxext/values"}},
    {"model", {"host", "model"}},
    {"itemdata", {"host", "fxext", "itemdata"}},
    {"ui", {"host", "fxext", "itemdata", "ui"}},
    {"plugin", {"host", "fxext", "itemdata", "model", "plugin", "ui"}},
    {"app", {"host", "fxext/values", "app"}}};

/// Headers of other libraries and the one folder that wraps each.
const std::map<std::string, std::string> kWrapped = {
    {"sqlite3.h", "host/database"}, {"libxml/", "host/xml"}, {"dlfcn.h", "host/plugin"}};

bool isStandardHeader(const std::string& name) {
  return name.find('.') == std::string::npos && name.find('/') == std::string::npos;
}

bool isFoxHeader(const std::string& name) {
  return name.starts_with("fx") || name.starts_with("FX");
}

std::string reasonAgainst(const SourceFile& file, const SourceFile::Include& include) {
  const std::string& name = include.name;
  if (include.inBrackets) {
    for (const auto& [header, folder] : kWrapped) {
      if (name.starts_with(header) && !file.isIn(folder)) return "only " + folder + " includes <" + name + ">";
    }
    const bool foreign = !isStandardHeader(name) && !isFoxHeader(name);
    return file.isIn("fxext") && foreign ? "fxext knows FOX only, not <" + name + ">" : "";
  }
  for (const auto& [folder, allowed] : kLayers) {
    if (!file.isIn(folder)) continue;
    const bool fits = std::any_of(allowed.begin(), allowed.end(),
                                  [&name](const std::string& beneath) { return name.starts_with(beneath + "/"); });
    return fits ? "" : folder + " may not include \"" + name + "\"";
  }
  return "";
}

using Name = SourceFile::Name;

/// Every name in those folders that is not wanted there.
Violations find(const SourceTree& tree, const Texts& folders, const std::string& reason,
                const std::function<bool(const Name&)>& isUnwanted) {
  Violations violations;
  for (const SourceFile& file : tree.files()) {
    if (!file.isIn(folders)) continue;
    for (const Name& name : file.names()) {
      if (isUnwanted(name)) violations.push_back(file.place(name.begin) + ": " + reason);
    }
  }
  return violations;
}

Violations findIncludes(const SourceTree& tree, const Texts& folders, const Texts& headers) {
  Violations violations;
  for (const SourceFile& file : tree.files()) {
    if (!file.isIn(folders)) continue;
    for (const SourceFile::Include& include : file.includes) {
      if (!include.inBrackets || std::find(headers.begin(), headers.end(), include.name) == headers.end()) continue;
      violations.push_back(file.path + ":" + std::to_string(include.line) + ": <" + include.name + ">");
    }
  }
  return violations;
}

std::string trimmed(const std::string& text) {
  const size_t begin = text.find_first_not_of(" \t\r\n");
  return begin == std::string::npos ? "" : text.substr(begin, text.find_last_not_of(" \t\r\n") - begin + 1);
}

/// The arguments of the call whose opening bracket is at that offset.
Texts argumentsAt(const std::string& code, size_t bracket) {
  Texts arguments;
  std::string argument;
  int depth = 0;
  for (size_t i = bracket; i < code.size(); ++i) {
    const char c = code[i];
    if (c == ')' || c == ']' || c == '}') --depth;
    const bool ends = depth == 0 && i > bracket;
    if (ends || (c == ',' && depth == 1)) {
      if (!trimmed(argument).empty()) arguments.push_back(trimmed(argument));
      argument.clear();
      if (ends) break;
    } else if (i > bracket) {
      argument += c;
    }
    if (c == '(' || c == '[' || c == '{') ++depth;
  }
  return arguments;
}

using CallHandler = std::function<void(const SourceFile&, const Name&, const Texts&)>;

/// Hands each call of a function of that name to the handler, with its arguments.
void forEachCall(const SourceTree& tree, const Texts& folders, const std::string& function, const CallHandler& handle) {
  for (const SourceFile& file : tree.files()) {
    if (!file.isIn(folders)) continue;
    for (const Name& name : file.names()) {
      const size_t next = file.code.find_first_not_of(" \t\r\n", name.end);
      if (name.last != function || next == std::string::npos || file.code[next] != '(') continue;
      handle(file, name, argumentsAt(file.code, next));
    }
  }
}

/// Whether the name stands behind "." or "->".
bool isMemberCall(const SourceFile& file, const Name& name) {
  const size_t before = name.begin == 0 ? std::string::npos : file.code.find_last_not_of(" \t\r\n", name.begin - 1);
  if (before == std::string::npos) return false;
  return file.code[before] == '.' || (before > 0 && file.code.compare(before - 1, 2, "->") == 0);
}

bool isThreadOrLock(const Name& name) {
  static const std::set<std::string> ofTheStandard = {"thread", "jthread", "async", "mutex", "lock_guard"};
  const std::string& last = name.last;
  for (const char* beginning : {"pthread_", "FXThread", "FXMutex", "FXCondition", "FXSemaphore"}) {
    if (last.starts_with(beginning)) return true;
  }
  if (!name.text.starts_with("std::")) return false;
  return ofTheStandard.count(last) > 0 || last.ends_with("_mutex") || last.ends_with("_lock") ||
         last.starts_with("condition_variable") || last.starts_with("atomic");
}

/// The lines of a text, without their ends.
Texts linesOf(const std::string& text) {
  Texts lines;
  for (size_t begin = 0; begin <= text.size();) {
    const size_t end = std::min(text.find('\n', begin), text.size());
    lines.push_back(text.substr(begin, end - begin));
    begin = end + 1;
  }
  return lines;
}

bool silences(const std::string& comment) {
  return comment.find("NOLINT") != std::string::npos || comment.find("cppcheck-suppress") != std::string::npos;
}

/// Whether a comment says something beside what it silences.
bool saysWhy(const std::string& comment) {
  return !silences(comment) &&
         std::any_of(comment.begin(), comment.end(), [](unsigned char c) { return std::isalpha(c) != 0; });
}

std::string reasonAgainstSilencing(const std::string& comment, const std::string& before) {
  static const std::regex tidy(R"(NOLINT(NEXTLINE|BEGIN)?(\(([\w,.* -]*)\))?:?(.*))");
  static const std::regex cppcheck(R"(cppcheck-suppress(-begin|-file)? +()([\w]*)(.*))");
  std::smatch found;
  if (!silences(comment) || comment.find("NOLINTEND") != std::string::npos ||
      comment.find("cppcheck-suppress-end") != std::string::npos) {
    return "";
  }
  if (!std::regex_search(comment, found, tidy) && !std::regex_search(comment, found, cppcheck)) return "";
  if (trimmed(found[3]).empty() || found[3].str().find('*') != std::string::npos) return "silences any check";
  return saysWhy(found[4]) || saysWhy(before) ? "" : "silences without a reason";
}

std::string reasonAgainstExecution(const Texts& arguments) {
  static const std::set<std::string> atPointer = {"PLACEMENT_CURSOR", "FX::PLACEMENT_CURSOR", "2"};
  if (arguments.size() == 2) return arguments[1] == "1" ? "" : "the flag is " + arguments[1];
  if (arguments.size() == 1 && atPointer.count(arguments[0]) > 0) return "";
  return arguments.empty() ? "without arguments" : "placed at " + arguments[0];
}

}  // namespace

Violations layering(const SourceTree& tree) {
  Violations violations;
  for (const SourceFile& file : tree.files()) {
    for (const SourceFile::Include& include : file.includes) {
      const std::string reason = reasonAgainst(file, include);
      if (!reason.empty()) violations.push_back(file.path + ":" + std::to_string(include.line) + ": " + reason);
    }
  }
  return violations;
}

Violations exceptions(const SourceTree& tree) {
  return find(tree, kAll, "throws", [](const Name& name) { return name.text == "throw"; });
}

Violations threads(const SourceTree& tree) {
  Violations violations = find(tree, kPlugin, "a thread or lock", isThreadOrLock);
  const Violations headers = findIncludes(
      tree, kPlugin, {"thread", "mutex", "shared_mutex", "condition_variable", "future", "atomic", "semaphore"});
  violations.insert(violations.end(), headers.begin(), headers.end());
  return violations;
}

Violations streams(const SourceTree& tree) {
  Violations violations = findIncludes(tree, kPlugin, {"iostream"});
  // A program of its own, which the library does not contain.
  std::erase_if(violations, [](const std::string& place) { return place.starts_with("fxext/widgets/gallery/"); });
  return violations;
}

Violations handleQueries(const SourceTree& tree) {
  // A statement has a query of that name too, with one argument.
  constexpr size_t kArgumentsOfTheHandle = 3;
  int inModel = 0;
  Violations violations;
  forEachCall(tree, kPlugin, "queryInt", [&](const SourceFile& file, const Name& name, const Texts& arguments) {
    if (arguments.size() != kArgumentsOfTheHandle) return;
    if (file.isIn("model") && ++inModel == 1) return;
    violations.push_back(file.place(name.begin) + ": asks the handle");
  });
  if (inModel == 0) violations.push_back("model: does not ask the handle");
  return violations;
}

Violations executions(const SourceTree& tree) {
  Violations violations;
  forEachCall(tree, kPlugin, "execute", [&](const SourceFile& file, const Name& name, const Texts& arguments) {
    const std::string reason = isMemberCall(file, name) ? reasonAgainstExecution(arguments) : "";
    if (!reason.empty()) violations.push_back(file.place(name.begin) + ": " + reason);
  });
  return violations;
}

Violations timers(const SourceTree& tree) {
  Violations violations = find(tree, kPlugin, "a chore", [](const Name& name) { return name.last == "addChore"; });
  for (const std::string& place :
       find(tree, kPlugin, "a timer", [](const Name& name) { return name.last == "addTimeout"; })) {
    if (!place.starts_with("fxext/widgets/FXComboBox.")) violations.push_back(place);
  }
  return violations;
}

Violations silence(const SourceTree& tree) {
  static const std::set<std::string> speaking = {"FXMessageBox", "cout",  "cerr",   "printf",    "fprintf",
                                                 "puts",         "fputs", "perror", "fxmessage", "fxwarning"};
  return find(tree, {"itemdata", "model", "plugin"}, "speaks", [](const Name& name) {
    return speaking.count(name.last) > 0 || name.text.find("FXMessageBox::") != std::string::npos;
  });
}

Violations silencedChecks(const SourceTree& tree) {
  Violations violations;
  for (const SourceFile& file : tree.files()) {
    const Texts lines = linesOf(file.comments);
    for (size_t i = 0; i < lines.size(); ++i) {
      const std::string reason = reasonAgainstSilencing(lines[i], i == 0 ? "" : lines[i - 1]);
      if (!reason.empty()) violations.push_back(file.path + ":" + std::to_string(i + 1) + ": " + reason);
    }
  }
  return violations;
}

}  // namespace Rules
