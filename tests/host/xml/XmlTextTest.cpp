#include <gtest/gtest.h>

#include "host/xml/XmlText.h"

namespace {

const std::string kReplaced = "\xEF\xBF\xBD";

/// What both forms make of the text.
std::string cleanText(const FX::FXString& text) {
  const XMLBuilder::CleanText object(text);
  std::string clean = XMLBuilder::cleanText(text);
  EXPECT_EQ(reinterpret_cast<const char*>(object.bytes()), clean);
  EXPECT_EQ(object.isEmpty(), clean.empty());
  return clean;
}

}  // namespace

TEST(XmlTextTest, keepsWhatXmlAllows) {
  for (const char* text : {"", "abc", "árvíztűrő tükörfúrógép", "a\tb\nc\rd", "<&>\"'", "\xF0\x9F\x98\x80",
                           "\xEE\x80\x80", "\xEF\xBF\xBD", "\x7F", "\xC2\x85"}) {
    EXPECT_EQ(cleanText(text), text);
  }
}

TEST(XmlTextTest, replacesControlCharacters) {
  for (int code = 0; code < 0x20; ++code) {
    const char c = static_cast<char>(code);
    const bool allowed = c == '\t' || c == '\n' || c == '\r';
    EXPECT_EQ(cleanText(FX::FXString(&c, 1)), allowed ? std::string(1, c) : kReplaced) << code;
  }
  EXPECT_EQ(cleanText("0101\x1dserial\x1d"), "0101" + kReplaced + "serial" + kReplaced);
  EXPECT_EQ(cleanText(FX::FXString("a\0b", 3)), "a" + kReplaced + "b");
}

TEST(XmlTextTest, replacesEachForbiddenCharacterOnce) {
  EXPECT_EQ(cleanText("a\xEF\xBF\xBE"
                      "b\xEF\xBF\xBF"),
            "a" + kReplaced + "b" + kReplaced);
}

TEST(XmlTextTest, replacesBytesThatAreNoUtf8) {
  EXPECT_EQ(cleanText("a\xFF"
                      "b"),
            "a" + kReplaced + "b");
  EXPECT_EQ(cleanText("\x80"), kReplaced);
  EXPECT_EQ(cleanText("\xC3"), kReplaced);
  EXPECT_EQ(cleanText("\xE2\x82"), kReplaced + kReplaced);
  EXPECT_EQ(cleanText("\xC3"
                      "a"),
            kReplaced + "a");
  EXPECT_EQ(cleanText("\xF5\x80\x80\x80"), kReplaced + kReplaced + kReplaced + kReplaced);
  EXPECT_EQ(cleanText("\xF4\x90\x80\x80"), kReplaced + kReplaced + kReplaced + kReplaced);
  EXPECT_EQ(cleanText("\xE1rv\xEDz"), kReplaced + "rv" + kReplaced + "z");
}

TEST(XmlTextTest, replacesOverlongFormsAndSurrogates) {
  EXPECT_EQ(cleanText("\xC0\xAF"), kReplaced + kReplaced);
  EXPECT_EQ(cleanText("\xE0\x80\xAF"), kReplaced + kReplaced + kReplaced);
  EXPECT_EQ(cleanText("\xF0\x82\x82\xAC"), kReplaced + kReplaced + kReplaced + kReplaced);
  EXPECT_EQ(cleanText("\xED\xA0\x80"), kReplaced + kReplaced + kReplaced);
}

TEST(XmlTextTest, goesThroughLongText) {
  std::string text;
  std::string expected;
  for (int i = 0; i < 20000; ++i) {
    text += "é\x01";
    expected += "é" + kReplaced;
  }
  EXPECT_EQ(cleanText(text.c_str()), expected);
}

TEST(XmlTextTest, copiesOnlyWhatItHasToChange) {
  for (const char* text : {"", "abc ~", "árvíz\t\xF0\x9F\x98\x80"}) {
    const FX::FXString source(text);
    EXPECT_EQ(static_cast<const void*>(XMLBuilder::CleanText(source).bytes()), static_cast<const void*>(source.text()));
  }
  const FX::FXString broken("abc\x1f");
  EXPECT_NE(static_cast<const void*>(XMLBuilder::CleanText(broken).bytes()), static_cast<const void*>(broken.text()));
}
