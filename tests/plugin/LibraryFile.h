#pragma once

#include <set>
#include <string>
#include <vector>

/// What nm and readelf tell about a library or program. A tool that fails is a test failure.
class LibraryFile {
 public:
  explicit LibraryFile(std::string path) : path_(std::move(path)) {}

  /// The names that others can link with, as C++ writes them.
  std::set<std::string> exports() const;
  /// The names that have to come from other libraries, as C++ writes them.
  std::set<std::string> imports() const;
  /// All names that are defined inside, exported or not, as the linker has them.
  std::set<std::string> definitions() const;
  /// All names with the type letter that nm gives to symbols which are unique in the whole process.
  std::set<std::string> uniqueSymbols() const;
  /// The libraries that are loaded along.
  std::set<std::string> neededLibraries() const;
  /// How many functions run when the file is loaded.
  size_t countInitialisers() const;

 private:
  std::vector<std::string> read(std::vector<std::string> command) const;
  std::set<std::string> symbols(std::vector<std::string> options, const std::string& types = "") const;

  std::string path_;
};
