#include <gtest/gtest.h>

#include "app/window/Collation.h"
#include "app/window/Dialogs.h"
#include "app/window/FoxTexts.h"
#include "app/window/InvoiceTexts.h"

namespace App = Brontel::App;
using FX::FXString;

TEST(InvoiceTextsTest, knowsADate) {
  for (const char* text : {"2024-12-31", "2024-02-29", "2000-02-29", "0001-01-01"})
    EXPECT_TRUE(App::isDate(text)) << text;
  for (const char* text : {"", "2024-12-3", "2024-13-01", "2024-00-01", "2024-01-00", "2024-04-31", "2023-02-29",
                           "1900-02-29", "0000-01-01", "2024.12.31", "2024-12-31 ", "é024-12-31", "-024-12-31"}) {
    EXPECT_FALSE(App::isDate(text)) << text;
  }
}

TEST(InvoiceTextsTest, namesTypesAndStatuses) {
  for (const int type : App::offeredTypes()) EXPECT_FALSE(App::nameOfType(type).empty());
  EXPECT_STREQ(App::nameOfType(451).text(), "451. típus");
  EXPECT_STREQ(App::nameOfStatus(151).text(), "Lezárt");
  EXPECT_STREQ(App::nameOfStatus(7).text(), "7");
}

TEST(CollationTest, ordersNumbersByValueAndAccentsLast) {
  const char* ordered[] = {"",     "2025/9", "2025/10", "2025/10a", "A-1", "a-02", "a-2b",
                           "a-10", "B",      "ebed",    "ebéd",     "ec",  "éca",  "ed"};
  for (size_t i = 0; i < std::size(ordered); ++i) {
    for (size_t j = 0; j < std::size(ordered); ++j) {
      EXPECT_EQ(App::comesBefore(ordered[i], ordered[j]), i < j) << ordered[i] << " " << ordered[j];
    }
  }
}

TEST(DialogsTest, shortensAtACharacter) {
  FXString text;
  for (int i = 0; i < 400; ++i) text += "é";
  const FXString shortened = App::Dialogs::shortened(text);
  EXPECT_LT(shortened.length(), text.length());
  EXPECT_EQ(shortened.right(3), "...");
  EXPECT_EQ((shortened.length() - 3) % 2, 0);
  EXPECT_STREQ(App::Dialogs::shortened("kurta").text(), "kurta");
}
