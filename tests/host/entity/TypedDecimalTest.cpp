#include <utility>

#include <gtest/gtest.h>

#include "host/entity/TypedDecimal.h"

namespace {

using FX::FXString;

TEST(TypedDecimalTest, readsWhatPeopleWrite) {
  const std::pair<const char*, const char*> good[] = {
      {"2", "2"}, {" 2,5 ", "2.5"}, {"-0.1234", "-0.1234"}, {"123456789012", "123456789012"}};
  for (const auto& [typed, expected] : good) {
    FXString number;
    EXPECT_TRUE(Brontel::readDecimal(typed, number)) << typed;
    EXPECT_STREQ(number.text(), expected);
  }
  for (const char* typed :
       {"", " ", "-", ".", "1.", ".5", "1.2.3", "1,2,3", "1.23456", "1234567890123", "1e3", "1 2", "--1", "+1", "1é"}) {
    FXString number = "old";
    EXPECT_FALSE(Brontel::readDecimal(typed, number)) << typed;
    EXPECT_STREQ(number.text(), "old");
  }
}

}  // namespace
