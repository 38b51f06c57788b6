#include <type_traits>

#include <gtest/gtest.h>

#include "itemdata/CountingList.h"

using Brontel::Plugin::ItemData::CountingList;
using FX::FXString;

static_assert(std::is_base_of_v<FX::FXObjectListOf<FXExt::FXPair<FXString, int>>, CountingList>);
static_assert(!std::is_copy_constructible_v<CountingList>);

TEST(CountingListTest, startsEmpty) {
  const CountingList list;
  EXPECT_EQ(list.no(), 0);
  EXPECT_EQ(list.getTotal(), 0);
}

TEST(CountingListTest, countsEachTextInTheOrderOfItsFirstOccurrence) {
  CountingList list;
  for (const char* text : {"A", "B", "A", "C", "B", "A"}) list.count(text);
  ASSERT_EQ(list.no(), 3);
  EXPECT_EQ(list.getTotal(), 6);
  EXPECT_STREQ(list[0]->first.text(), "A");
  EXPECT_EQ(list[0]->second, 3);
  EXPECT_STREQ(list[1]->first.text(), "B");
  EXPECT_EQ(list[1]->second, 2);
  EXPECT_STREQ(list[2]->first.text(), "C");
  EXPECT_EQ(list[2]->second, 1);
}

TEST(CountingListTest, textsAreEqualOnlyByteByByte) {
  CountingList list;
  for (const char* text : {"a", "A", "a ", " a", "ő", "Ő", "\xff", ""}) list.count(text);
  EXPECT_EQ(list.no(), 8);
  EXPECT_EQ(list.getTotal(), 8);
}

TEST(CountingListTest, keepsItsPairsWhenItGrows) {
  CountingList list;
  for (int i = 0; i < 1000; ++i) list.count(FX::FXStringVal(i));
  for (int i = 0; i < 1000; ++i) list.count(FX::FXStringVal(999 - i));
  ASSERT_EQ(list.no(), 1000);
  EXPECT_EQ(list.getTotal(), 2000);
  for (int i = 0; i < 1000; ++i) {
    EXPECT_EQ(list[i]->second, 2);
    EXPECT_STREQ(list[i]->first.text(), std::to_string(i).c_str());
  }
}
