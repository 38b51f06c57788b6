#include <gtest/gtest.h>

#include "host/database/BoundValue.h"

using Brontel::Database::BoundValue;
using Brontel::Database::BoundValues;
using Brontel::Database::findValue;

TEST(BoundValueTest, isFoundByItsWholeNameOnly) {
  const BoundValues values{BoundValue{"t_1", false, 1, {}}, BoundValue{"t", false, 2, {}}};
  ASSERT_NE(findValue(values, "t"), nullptr);
  EXPECT_EQ(findValue(values, "t")->number, 2);
  EXPECT_EQ(findValue(values, "t_1")->number, 1);
  EXPECT_EQ(findValue(values, "T"), nullptr);
  EXPECT_EQ(findValue(values, "t_"), nullptr);
  EXPECT_EQ(findValue(values, ""), nullptr);
  EXPECT_EQ(findValue({}, "t"), nullptr);
}
