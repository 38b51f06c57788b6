#include <cstddef>
#include <limits>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "fxext/values/FXStringIterator.h"

using FX::FXString;
using FXExt::FXStringIterator;

static_assert(std::is_same_v<decltype(FXStringIterator::str), const FXString*>);
static_assert(std::is_same_v<decltype(FXStringIterator::sep), char>);
static_assert(std::is_same_v<decltype(FXStringIterator::begin), int>);
static_assert(std::is_same_v<decltype(FXStringIterator::end), int>);
static_assert(std::is_same_v<decltype(FXStringIterator::pos), int>);
static_assert(std::is_same_v<decltype(FXStringIterator::length), int>);
static_assert(offsetof(FXStringIterator, str) == 0);
static_assert(offsetof(FXStringIterator, sep) == 8);
static_assert(offsetof(FXStringIterator, begin) == 12);
static_assert(offsetof(FXStringIterator, end) == 16);
static_assert(offsetof(FXStringIterator, pos) == 20);
static_assert(offsetof(FXStringIterator, length) == 24);
static_assert(sizeof(FXStringIterator) == 32);

namespace {

using Fields = std::vector<std::string>;

/// Every field of the walk; ends a walk that does not end by itself.
Fields fieldsOf(const FXString& text, char separator = ',', int start = 0) {
  Fields fields;
  for (FXStringIterator it(text, separator, start); it.hasNext() && it.getPos() < 1000; it++) {
    EXPECT_EQ(it.getPos(), static_cast<int>(fields.size()));
    fields.emplace_back(it.get().text());
  }
  return fields;
}

/// The same by cutting at every separator.
Fields split(const std::string& text, char separator) {
  Fields fields(1);
  for (const char c : text) {
    if (c == separator) {
      fields.emplace_back();
    } else {
      fields.back() += c;
    }
  }
  return fields;
}

}  // namespace

TEST(FXStringIterator, YieldsTheFieldsBetweenSeparators) {
  EXPECT_EQ(fieldsOf("a,b"), (Fields{"a", "b"}));
  EXPECT_EQ(fieldsOf("one,two,three"), (Fields{"one", "two", "three"}));
}

TEST(FXStringIterator, YieldsEmptyFields) {
  EXPECT_EQ(fieldsOf(""), (Fields{""}));
  EXPECT_EQ(fieldsOf("a,"), (Fields{"a", ""}));
  EXPECT_EQ(fieldsOf(",a"), (Fields{"", "a"}));
  EXPECT_EQ(fieldsOf("a,,b"), (Fields{"a", "", "b"}));
  EXPECT_EQ(fieldsOf(","), (Fields{"", ""}));
  EXPECT_EQ(fieldsOf(",,"), (Fields{"", "", ""}));
}

TEST(FXStringIterator, YieldsAStringWithoutSeparatorWhole) {
  EXPECT_EQ(fieldsOf("whole"), (Fields{"whole"}));
  EXPECT_EQ(fieldsOf("a;b"), (Fields{"a;b"}));
}

TEST(FXStringIterator, SeparatorIsTheOnlySpecialCharacter) {
  EXPECT_EQ(fieldsOf("a;b,c", ';'), (Fields{"a", "b,c"}));
  EXPECT_EQ(fieldsOf("\"a,b\""), (Fields{"\"a", "b\""}));
  EXPECT_EQ(fieldsOf("a\\,b"), (Fields{"a\\", "b"}));
  EXPECT_EQ(fieldsOf("a, b ,c"), (Fields{"a", " b ", "c"}));
}

TEST(FXStringIterator, KeepsMultiByteCharactersWhole) {
  EXPECT_EQ(fieldsOf("\xC5\x91,\xC5\xB1,\xE2\x82\xAC"), (Fields{"\xC5\x91", "\xC5\xB1", "\xE2\x82\xAC"}));
}

TEST(FXStringIterator, StartSkipsWhatStandsBeforeIt) {
  EXPECT_EQ(fieldsOf("a,b,c", ',', 2), (Fields{"b", "c"}));
  EXPECT_EQ(fieldsOf("a,b,c", ',', 1), (Fields{"", "b", "c"}));
  EXPECT_EQ(fieldsOf("ab", ',', 2), (Fields{""}));
}

TEST(FXStringIterator, ConstructionFindsTheFirstField) {
  const FXString text("a,b");
  const FXStringIterator it(text, ',', 0);
  EXPECT_EQ(it.str, &text);
  EXPECT_EQ(it.sep, ',');
  EXPECT_EQ(it.begin, 0);
  EXPECT_EQ(it.end, 1);
  EXPECT_EQ(it.pos, 0);
  EXPECT_EQ(it.length, 3);
  EXPECT_EQ(it.getPos(), 0);
  EXPECT_EQ(text, FXString("a,b"));
}

TEST(FXStringIterator, WithoutSeparatorTheFieldEndsWithTheString) {
  const FXString text("ab");
  EXPECT_EQ(FXStringIterator(text, ',', 0).end, 2);
  EXPECT_EQ(FXStringIterator(text, ',', 1).begin, 1);
  EXPECT_EQ(FXStringIterator(text, ',', 2).end, 2);
}

TEST(FXStringIterator, GetChangesNothing) {
  const FXString text("a,,b");
  FXStringIterator it(text, ',', 0);
  it.next();
  EXPECT_EQ(it.get(), FXString());
  EXPECT_EQ(it.get(), FXString());
  EXPECT_EQ(it.begin, 2);
  EXPECT_EQ(it.end, 2);
  EXPECT_EQ(it.pos, 1);
}

TEST(FXStringIterator, NextReturnsTheNewEnd) {
  const FXString text("a,bc");
  FXStringIterator it(text, ',', 0);
  EXPECT_EQ(it.next(), 4);
  EXPECT_EQ(it.begin, 2);
  EXPECT_EQ(it.getPos(), 1);
  EXPECT_TRUE(it.hasNext());
  EXPECT_EQ(it.next(), 5);
  EXPECT_EQ(it.begin, 2);
  EXPECT_EQ(it.end, 5);
  EXPECT_EQ(it.getPos(), 2);
  EXPECT_FALSE(it.hasNext());
}

TEST(FXStringIterator, LastFieldStaysReadableAfterTheWalk) {
  const FXString text("a,bc");
  FXStringIterator it(text, ',', 2);
  it.next();
  EXPECT_FALSE(it.hasNext());
  EXPECT_EQ(it.get(), FXString("bc"));
}

TEST(FXStringIterator, BothIncrementsReturnTheAdvancedIterator) {
  const FXString text("a,b,c");
  FXStringIterator it(text, ',', 0);
  EXPECT_EQ(&++it, &it);
  EXPECT_EQ(it.get(), FXString("b"));
  EXPECT_EQ(&it++, &it);
  EXPECT_EQ(it.get(), FXString("c"));
  FXStringIterator other(text, ',', 0);
  EXPECT_EQ((other++).get(), FXString("b"));
  EXPECT_EQ(other.getPos(), 1);
  EXPECT_EQ((++other).get(), FXString("c"));
  EXPECT_EQ(other.getPos(), 2);
}

TEST(FXStringIterator, StartBeyondTheStringIsOneEmptyField) {
  const FXString text("ab");
  for (const int start : {3, 4, 100, std::numeric_limits<int>::max()}) {
    const FXStringIterator it(text, ',', start);
    EXPECT_TRUE(it.hasNext()) << start;
    EXPECT_EQ(it.get(), FXString()) << start;
    EXPECT_EQ(it.begin, start);
  }
  EXPECT_EQ(FXStringIterator(text, ',', 3).end, 3);
  EXPECT_EQ(FXStringIterator(text, ',', 4).end, 2);
  EXPECT_EQ(fieldsOf("ab", ',', 4), (Fields{""}));
  EXPECT_EQ(fieldsOf("ab", ',', 100), (Fields{""}));
  const FXString empty;
  EXPECT_EQ(FXStringIterator(empty, ',', 1).end, 1);
}

TEST(FXStringIterator, StartJustBeyondTheStringYieldsASecondEmptyField) {
  EXPECT_EQ(fieldsOf("ab", ',', 3), (Fields{"", ""}));
  EXPECT_EQ(fieldsOf("", ',', 1), (Fields{"", ""}));
}

TEST(FXStringIterator, NegativeStartReadsFromTheBeginning) {
  EXPECT_EQ(fieldsOf("a,b", ',', -1), (Fields{"a", "b"}));
  EXPECT_EQ(fieldsOf("a,b", ',', std::numeric_limits<int>::min()), (Fields{"a", "b"}));
  const FXString text("a,b");
  EXPECT_EQ(FXStringIterator(text, ',', -5).begin, -5);
}

TEST(FXStringIterator, AdvancingPastTheEndReadsNothing) {
  const FXString text("ab");
  FXStringIterator it(text, ',', 0);
  it.next();
  EXPECT_EQ(it.next(), 2);
  EXPECT_EQ(it.begin, 4);
  EXPECT_EQ(it.get(), FXString());
  EXPECT_EQ(it.next(), 3);
  EXPECT_EQ(it.get(), FXString());
  EXPECT_EQ(it.getPos(), 3);
}

TEST(FXStringIterator, SplitsRandomStringsAsCuttingDoes) {
  constexpr unsigned SEED = 62;
  std::mt19937 random(SEED);  // NOLINT(cert-msc32-c,cert-msc51-cpp): the same strings in every run
  for (int round = 0; round < 2000; round++) {
    std::string text(random() % 20, ' ');
    for (char& c : text) c = "ab,; ,"[random() % 6];
    EXPECT_EQ(fieldsOf(text.c_str()), split(text, ',')) << "seed " << SEED << ", text '" << text << "'";
    EXPECT_EQ(fieldsOf(text.c_str(), ';'), split(text, ';')) << "seed " << SEED << ", text '" << text << "'";
  }
}
