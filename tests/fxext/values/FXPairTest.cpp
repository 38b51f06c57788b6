#include <type_traits>

#include <gtest/gtest.h>

#include "fxext/values/FXPair.h"

using FX::FXString;
using FXExt::FXPair;

static_assert(std::is_base_of_v<FX::FXObject, FXPair<FXString, int>>);
static_assert(std::is_same_v<decltype(FXPair<FXString, int>::first), FXString>);
static_assert(std::is_same_v<decltype(FXPair<FXString, int>::second), int>);

namespace {

/// Counts how many of it are alive.
struct Counted {
  static int alive;
  Counted() { alive++; }
  Counted(const Counted&) { alive++; }
  Counted& operator=(const Counted&) = default;
  ~Counted() { alive--; }
};
int Counted::alive = 0;

}  // namespace

TEST(FXPair, HoldsBothValues) {
  FXPair<FXString, int> pair("text", 3);
  EXPECT_EQ(pair.first, FXString("text"));
  EXPECT_EQ(pair.second, 3);
  pair.second++;
  pair.first += "s";
  EXPECT_EQ(pair.first, FXString("texts"));
  EXPECT_EQ(pair.second, 4);
}

TEST(FXPair, KeepsItsOwnCopies) {
  FXString text("text");
  const FXPair<FXString, int> pair(text, 1);
  text = "changed";
  EXPECT_EQ(pair.first, FXString("text"));
}

TEST(FXPair, FitsIntoAnObjectList) {
  FX::FXObjectListOf<FXPair<FXString, int>> list;
  list.append(new FXPair<FXString, int>("a", 1));
  list.append(new FXPair<FXString, int>("b", 2));
  ASSERT_EQ(list.no(), 2);
  EXPECT_EQ(list[1]->first, FXString("b"));
  EXPECT_EQ(list[1]->second, 2);
  for (int i = 0; i < list.no(); i++) delete list[i];
}

TEST(FXPair, HasNoMetaclassOfItsOwn) {
  const FXPair<FXString, int> pair("a", 1);
  EXPECT_EQ(pair.getMetaClass(), &FX::FXObject::metaClass);
}

TEST(FXPair, DestroysItsValuesAsAnObject) {
  FX::FXObject* const object = new FXPair<Counted, int>(Counted(), 1);
  EXPECT_EQ(Counted::alive, 1);
  delete object;
  EXPECT_EQ(Counted::alive, 0);
}
