#include "tests/app/print/ToolFolder.h"

#include <cstdlib>
#include <sys/stat.h>

#include <gtest/gtest.h>

ToolFolder::ToolFolder() {
  const char* before = std::getenv("PATH");
  pathBefore_ = before == nullptr ? "" : before;
  setenv("PATH", directory_.path().c_str(), 1);
  setenv("TOOLS", directory_.path().c_str(), 1);
}

ToolFolder::~ToolFolder() {
  setenv("PATH", pathBefore_.c_str(), 1);
  unsetenv("TOOLS");
}

void ToolFolder::add(const std::string& name, const std::string& script) const {
  const std::string file = directory_.write(name, "#!/bin/sh\n" + script + "\n");
  ASSERT_EQ(chmod(file.c_str(), 0755), 0);
}
