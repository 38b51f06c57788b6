#pragma once

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/ChildProcess.h"
#include "tests/support/TemporaryDirectory.h"

/// Real host processes on one database file.
class ProcessTest : public ::testing::Test {
 protected:
  void SetUp() override;

  /// A process in that role, not started yet.
  std::unique_ptr<ChildProcess> process(std::vector<std::string> role) const;
  /// Expects that nothing is wrong with the file.
  void expectUndamaged() const;

  TemporaryDirectory directory;
  const std::string database = directory.path("brontel.db");
};
