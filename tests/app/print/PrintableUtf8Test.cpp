#include <gtest/gtest.h>

#include "app/print/PrintableUtf8.h"

using Brontel::App::toPrintable;

namespace {

std::string printable(const std::string& text) {
  return toPrintable(FX::FXString(text.data(), static_cast<FX::FXint>(text.size())));
}

}  // namespace

TEST(PrintableUtf8Test, TextStaysAsItIs) {
  for (const char* text : {"", "DF5-240871; 4 db", "Árvíztűrő tükörfúrógép", "a\nb\n\nc", "漢字 שלום مرحبا 😀"}) {
    EXPECT_EQ(printable(text), text);
  }
}

TEST(PrintableUtf8Test, WhatIsNoUtf8IsReplaced) {
  EXPECT_EQ(printable("a\xFFz"), "a\xEF\xBF\xBDz");
  EXPECT_EQ(printable("\xC3"), "\xEF\xBF\xBD");
  // A surrogate, and a zero byte in the middle.
  EXPECT_EQ(printable("\xED\xA0\x80z").back(), 'z');
  EXPECT_EQ(printable(std::string("a\0z", 3)), "a\xEF\xBF\xBDz");
}

TEST(PrintableUtf8Test, ControlCharactersAreReplaced) {
  EXPECT_EQ(printable("a\x01\x1Dz\x7F"), "a\xEF\xBF\xBD\xEF\xBF\xBDz\xEF\xBF\xBD");
  EXPECT_EQ(printable("a\xC2\x9Fz\xC2\xA0"), "a\xEF\xBF\xBDz\xC2\xA0");
}

TEST(PrintableUtf8Test, OnlyALineFeedEndsALine) {
  EXPECT_EQ(printable("a\r\nb\rc\td"), "a\nb c d");
  EXPECT_EQ(printable("a\xC2\x85z\xE2\x80\xA8y\xE2\x80\xA9x"), "a\nz\ny\nx");
}
