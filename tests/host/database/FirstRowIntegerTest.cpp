#include <climits>

#include <gtest/gtest.h>

#include "host/database/FirstRowInteger.h"

using Brontel::Database::FirstRowInteger;

TEST(FirstRowIntegerTest, takesItsColumnOfTheFirstRowAndStops) {
  FirstRowInteger value(1);
  EXPECT_NE(value.processValue(0, "a", "5"), 0);
  EXPECT_EQ(value.processValue(1, "b", "6"), 0);
  EXPECT_TRUE(value.isFound());
  EXPECT_EQ(value.getValue(), 6);
}

TEST(FirstRowIntegerTest, findsNothingWithoutRow) {
  const FirstRowInteger value(0);
  EXPECT_FALSE(value.isFound());
  EXPECT_EQ(value.getValue(), 0);
}

TEST(FirstRowIntegerTest, findsNothingInNull) {
  FirstRowInteger value(0);
  EXPECT_EQ(value.processValue(0, "a", nullptr), 0);
  EXPECT_FALSE(value.isFound());
  EXPECT_EQ(value.getValue(), 0);
}

TEST(FirstRowIntegerTest, findsNothingInAColumnThatIsNotThere) {
  FirstRowInteger beyond(3);
  EXPECT_NE(beyond.processValue(0, "a", "5"), 0);
  EXPECT_FALSE(beyond.isFound());
  FirstRowInteger before(-1);
  EXPECT_EQ(before.processValue(0, "a", "5"), 0);
  EXPECT_FALSE(before.isFound());
}

TEST(FirstRowIntegerTest, staysWithinInt) {
  FirstRowInteger value(0);
  value.processValue(0, "a", "3000000000");
  EXPECT_EQ(value.getValue(), INT_MAX);
}
