#pragma once

#include <string>

#include "tests/support/TemporaryDirectory.h"

/// A folder of small programs that stand for those of the printing system: while it lives, PATH has nothing else.
class ToolFolder {
 public:
  ToolFolder();
  ToolFolder(const ToolFolder&) = delete;
  ToolFolder& operator=(const ToolFolder&) = delete;
  ~ToolFolder();

  /// Makes a program of that name from lines of shell; $TOOLS is the folder.
  void add(const std::string& name, const std::string& script) const;
  /// What a program has written into a file of that name; empty when there is none.
  std::string written(const std::string& name) const { return readFile(directory_.path(name)); }
  std::string path() const { return directory_.path(); }

 private:
  TemporaryDirectory directory_;
  std::string pathBefore_;
};
