#include <type_traits>

#include <gtest/gtest.h>

#include "host/database/DataBaseValueLoader.h"

TEST(DataBaseValueLoaderTest, startsWithoutRows) {
  EXPECT_EQ(DataBaseValueLoader().getNumRows(), 0);
}

TEST(DataBaseValueLoaderTest, countsARowAtItsFirstColumnAndGoesOn) {
  DataBaseValueLoader loader;
  for (const int column : {0, 1, 2, 0}) EXPECT_EQ(loader.processValue(column, "name", nullptr), 1);
  EXPECT_EQ(loader.getNumRows(), 2);
}

TEST(DataBaseValueLoaderTest, cannotBeCopied) {
  EXPECT_FALSE(std::is_copy_constructible_v<DataBaseValueLoader>);
  EXPECT_FALSE(std::is_copy_assignable_v<DataBaseValueLoader>);
  EXPECT_TRUE(std::has_virtual_destructor_v<DataBaseValueLoader>);
}
