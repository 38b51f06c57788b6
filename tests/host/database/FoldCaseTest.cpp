#include <chrono>

#include <gtest/gtest.h>

#include "host/database/FoldCase.h"

using Brontel::Database::foldCase;

TEST(FoldCaseTest, makesLettersOfAllAlphabetsSmall) {
  EXPECT_EQ(foldCase("ÁRVÍZTŰRŐ Tükörfúrógép 12"), "árvíztűrő tükörfúrógép 12");
  EXPECT_EQ(foldCase("ΑΒΓ ЖЩ"), "αβγ жщ");
  EXPECT_EQ(foldCase(""), "");
  EXPECT_EQ(foldCase("€😀"), "€😀");
}

TEST(FoldCaseTest, leavesWhatIsNoUtf8AsItIs) {
  for (const char* bytes : {"\xff", "a\xc3", "\xc3(", "\xf0\x9f\x98", "\xe2\x82", "\x80\x80", "\xf8\x88\x80\x80\x80"}) {
    EXPECT_EQ(foldCase(bytes), bytes);
  }
  EXPECT_EQ(foldCase("\xc3\xc3\x81"), "\xc3\xc3\xa1");
  EXPECT_EQ(foldCase(std::string_view("A\0B", 3)), std::string("a\0b", 3));
}

TEST(FoldCaseTest, takesAMillionCharactersInItsStride) {
  std::string text;
  for (int i = 0; i < 1000000; ++i) text += "Ő";
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(foldCase(text).size(), text.size());
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}
