#pragma once

#include <string>
#include <vector>

/// One source file of the system, taken apart for rules about it.
struct SourceFile {
  struct Include {
    int line = 0;
    bool inBrackets = false;  ///< <name> and not "name"
    std::string name;
  };

  /// A name or keyword in the code.
  struct Name {
    size_t begin = 0;
    size_t end = 0;
    std::string text;  ///< with its scope, "std::mutex"
    std::string last;  ///< without it, "mutex"
  };

  std::string path;      ///< relative to the root
  std::string code;      ///< comments and the contents of texts blanked, lines kept
  std::string comments;  ///< everything but comments blanked, lines kept
  std::vector<Include> includes;

  /// Whether the file lies in that folder, "host" or "fxext/values".
  bool isIn(const std::string& folder) const { return path.starts_with(folder + "/"); }
  bool isIn(const std::vector<std::string>& folders) const;
  /// All names in the order of the code; numbers count as names.
  std::vector<Name> names() const;
  /// "path:line", for the place of an offset in the code.
  std::string place(size_t offset) const;
};

/// The sources in some folders below a root folder. Folders that are not there are left out.
class SourceTree {
 public:
  /// Those of what is shipped: app, fxext, host, itemdata, model, plugin and ui.
  explicit SourceTree(const std::string& root);
  SourceTree(const std::string& root, const std::vector<std::string>& folders);

  const std::vector<SourceFile>& files() const { return files_; }

 private:
  std::vector<SourceFile> files_;
};

/// A source text as code (see SourceFile) and what it includes.
SourceFile parseSource(const std::string& path, const std::string& text);
