#include "tests/rules/Documents.h"

#include <algorithm>
#include <filesystem>
#include <regex>
#include <set>

#include "tests/support/TemporaryDirectory.h"

namespace fs = std::filesystem;

namespace Rules {

namespace {

/// Every Class::operation that may be meant: the calls, declarations and definitions in the files that hold the class.
class Operations {
 public:
  explicit Operations(const SourceTree& tree) {
    for (const SourceFile& file : tree.files()) add(file);
  }

  bool contain(const std::string& name) const {
    const size_t scope = name.find("::");
    return std::any_of(files_.begin(), files_.end(), [&](const File& file) {
      return file.classes.count(name.substr(0, scope)) > 0 && file.operations.count(name.substr(scope + 2)) > 0;
    });
  }

 private:
  struct File {
    std::set<std::string> classes;
    std::set<std::string> operations;
  };

  void add(const SourceFile& file) {
    File& added = files_.emplace_back();
    std::string before;
    for (const SourceFile::Name& name : file.names()) {
      if (nextTo(file.code, name.end) == '(') added.operations.insert(name.last);
      const bool isClass = before == "class" || before == "struct" || before == "namespace";
      if (isClass && hasBody(file.code, name.end)) added.classes.insert(name.last);
      before = name.text;
    }
  }

  static char nextTo(const std::string& code, size_t offset) {
    const size_t at = code.find_first_not_of(" \t\r\n", offset);
    return at == std::string::npos ? '\0' : code[at];
  }

  /// Whether a class whose name ends there is defined and not only named.
  static bool hasBody(const std::string& code, size_t end) {
    const char next = nextTo(code, end);
    const size_t at = code.find_first_of("{;", end);
    return next == '{' || (next == ':' && at != std::string::npos && code[at] == '{');
  }

  std::vector<File> files_;
};

/// What stands in backquotes, but for blocks of code.
std::vector<std::string> quotedIn(const std::string& text) {
  static const std::regex quoted("`([^`\n]+)`");
  std::vector<std::string> found;
  for (std::sregex_iterator match(text.begin(), text.end(), quoted), end; match != end; ++match) {
    found.push_back((*match)[1]);
  }
  return found;
}

bool isPath(const std::string& text) {
  static const std::regex path(
      R"((app|bench|cmake|docs|fuzz|fxext|host|itemdata|model|packaging|plugin|tests|ui)/[\w./]*)");
  return std::regex_match(text, path);
}

}  // namespace

Violations documents(const SourceTree& tree, const std::string& root, const std::vector<std::string>& pages) {
  static const std::regex operation(R"((?!std::)\w+::\w+)");
  const Operations operations(tree);
  Violations violations;
  for (const std::string& page : pages) {
    for (const std::string& name : quotedIn(readFile((fs::path(root) / page).string()))) {
      const bool isLost = std::regex_match(name, operation) ? !operations.contain(name)
                                                            : isPath(name) && !fs::exists(fs::path(root) / name);
      if (isLost) violations.push_back(page + ": there is no " + name);
    }
  }
  return violations;
}

}  // namespace Rules
