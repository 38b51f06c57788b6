#include "tests/trust/ProcessTest.h"

#include "tests/support/FileConnection.h"

using Rows = std::vector<std::vector<std::string>>;

void ProcessTest::SetUp() {
  const std::unique_ptr<ChildProcess> preparation = process({"prepare"});
  ASSERT_EQ(preparation->run(), 0) << preparation->getErrors();
}

std::unique_ptr<ChildProcess> ProcessTest::process(std::vector<std::string> role) const {
  std::vector<std::string> arguments = {TRUST_HOST, database};
  arguments.insert(arguments.end(), role.begin(), role.end());
  return std::make_unique<ChildProcess>(arguments);
}

void ProcessTest::expectUndamaged() const {
  FileConnection connection(database);
  EXPECT_EQ(connection.rows("pragma integrity_check"), (Rows{{"ok"}}));
  EXPECT_EQ(connection.rows("pragma foreign_key_check"), Rows());
}
