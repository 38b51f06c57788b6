// Statements when memory runs out.

#include <memory>
#include <new>
#include <vector>

#include <gtest/gtest.h>

#include "host/database/Statement.h"
#include "tests/support/AllocationLimit.h"
#include "tests/support/TestDatabase.h"

TEST(StatementMemoryTest, needsNoneWhenItGoes) {
  TestDatabase database;
  constexpr int kMoreThanAreKept = 10;
  std::vector<std::unique_ptr<Statement>> statements;
  for (int i = 0; i < kMoreThanAreKept; ++i) {
    statements.push_back(std::make_unique<Statement>(database.get(), "select %value"));
    statements.back()->setInt("value", i);
  }
  const AllocationLimit limit(0);
  statements.clear();  // an exception would end the program
}

TEST(StatementMemoryTest, letsTheCallerKnowWhereItNeedsSome) {
  TestDatabase database;
  int refused = 0;
  int answer = 0;
  while (answer == 0) {
    const AllocationLimit limit(refused);
    try {
      Statement statement(database.get(), "select %value + 1");
      statement.setInt("value", 41);
      answer = statement.queryInt(0);
    } catch (const std::bad_alloc&) {
      ++refused;
    }
  }
  EXPECT_EQ(answer, 42);
  EXPECT_GT(refused, 1);
}
