#include <string>

#include <gtest/gtest.h>

#include "host/message/FillIn.h"

namespace {

std::string filled(const char* pattern, std::initializer_list<FX::FXString> values) {
  const FX::FXString text = Brontel::fillIn(pattern, values);
  return std::string(text.text(), static_cast<size_t>(text.length()));
}

}  // namespace

TEST(FillInTest, putsValuesInOrder) {
  EXPECT_EQ(filled("[%s] %d: %s", {"a", "5", "ő"}), "[a] 5: ő");
  EXPECT_EQ(filled("Számla: Tételek listája\n[%s]\n", {"X"}), "Számla: Tételek listája\n[X]\n");
  EXPECT_EQ(filled("", {"a"}), "");
  EXPECT_EQ(filled("plain", {"a"}), "plain");
}

TEST(FillInTest, putsValuesByNumber) {
  EXPECT_EQ(filled("%2$s of %1$s", {"a", "b"}), "b of a");
  EXPECT_EQ(filled("%1$s %1$d", {"a"}), "a a");
}

TEST(FillInTest, doesNotLookIntoValues) {
  EXPECT_EQ(filled("%s %s", {"%s%2$s%%", "b"}), "%s%2$s%% b");
  EXPECT_EQ(filled("%s", {FX::FXString("a\0b", 3)}), std::string("a\0b", 3));
}

TEST(FillInTest, keepsPercentSigns) {
  EXPECT_EQ(filled("100%% %s", {"a"}), "100% a");
  EXPECT_EQ(filled("100% %s%", {"a"}), "100% a%");
  EXPECT_EQ(filled("%n %x %5 %5.2f %-s", {"a"}), "%n %x %5 %5.2f %-s");
  EXPECT_EQ(filled("%", {}), "%");
}

TEST(FillInTest, keepsPlaceholdersWithoutValue) {
  EXPECT_EQ(filled("%s %s", {"a"}), "a %s");
  EXPECT_EQ(filled("%s", {}), "%s");
  EXPECT_EQ(filled("%3$s %0$s %9999$s %1$", {"a", "b"}), "%3$s %0$s %9999$s %1$");
}
