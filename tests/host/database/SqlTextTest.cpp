#include <gtest/gtest.h>

#include "host/database/SqlText.h"

using Brontel::Database::isParameterName;
using Brontel::Database::quoteIdentifier;
using Brontel::Database::SqlText;
using Brontel::Database::translateParameters;

namespace {

using Names = std::vector<std::string>;

std::string textOf(const char* sql) {
  return translateParameters(sql).text;
}

Names namesOf(const char* sql) {
  return translateParameters(sql).parameters;
}

}  // namespace

TEST(SqlTextTest, numbersParametersInTheOrderOfTheirFirstUse) {
  const SqlText sql = translateParameters("select %b, %a, %b");
  EXPECT_EQ(sql.text, "select ?1, ?2, ?1");
  EXPECT_EQ(sql.parameters, (Names{"b", "a"}));
}

TEST(SqlTextTest, leavesTextWithoutParametersAsItIs) {
  for (const char* sql : {"", " ", "select 1", "%", "%%", "100%", "a % b", "a %\nb", "%1", "%-x", "% t", "50%,"}) {
    EXPECT_EQ(textOf(sql), sql);
    EXPECT_TRUE(namesOf(sql).empty()) << sql;
  }
}

TEST(SqlTextTest, takesTheWholeIdentifierAsName) {
  EXPECT_EQ(namesOf("%t_invoiceitem_1,%t_invoiceitem,%t"), (Names{"t_invoiceitem_1", "t_invoiceitem", "t"}));
  EXPECT_EQ(textOf("%t_1+%t"), "?1+?2");
  EXPECT_EQ(textOf("%t)"), "?1)");
  EXPECT_EQ(textOf("%a%b"), "?1?2");
  EXPECT_EQ(namesOf("%_x9Z"), Names{"_x9Z"});
}

TEST(SqlTextTest, findsTheParameterBehindAFurtherPercentSign) {
  EXPECT_EQ(textOf("%%a"), "%?1");
}

TEST(SqlTextTest, tellsNamesOfDifferentCaseApart) {
  EXPECT_EQ(namesOf("%Row,%row"), (Names{"Row", "row"}));
}

TEST(SqlTextTest, knowsAsciiLettersOnlyInNames) {
  EXPECT_EQ(textOf("%őr"), "%őr");
  EXPECT_EQ(textOf("%aő"), "?1ő");
}

TEST(SqlTextTest, skipsQuotedText) {
  EXPECT_EQ(textOf("'%a' \"%b\" %c"), "'%a' \"%b\" ?1");
  EXPECT_EQ(textOf("'it''s %a' %b"), "'it''s %a' ?1");
  EXPECT_EQ(textOf("'\"' %a '\"'"), "'\"' ?1 '\"'");
  EXPECT_EQ(textOf("\"'\" %a"), "\"'\" ?1");
  EXPECT_EQ(textOf("'' %a"), "'' ?1");
}

TEST(SqlTextTest, takesAnOpenQuoteToTheEnd) {
  EXPECT_EQ(textOf("select 'abc %a"), "select 'abc %a");
  EXPECT_EQ(textOf("'"), "'");
  EXPECT_EQ(textOf("%a \""), "?1 \"");
}

TEST(SqlTextTest, numbersManyParameters) {
  FX::FXString sql;
  for (int i = 0; i < 1000; ++i) sql += "%p" + FX::FXStringVal(i) + " ";
  const SqlText translated = translateParameters(sql);
  ASSERT_EQ(translated.parameters.size(), 1000u);
  EXPECT_EQ(translated.parameters[999], "p999");
  EXPECT_TRUE(translated.text.ends_with("?1000 "));
}

TEST(SqlTextTest, tellsWhatMayBeAParameterName) {
  for (const char* name : {"a", "_", "t_x_1", "A9"}) EXPECT_TRUE(isParameterName(name)) << name;
  for (const char* name : {"", "1a", "a b", "a-b", "a\"", "ő", "%a", "a;"}) EXPECT_FALSE(isParameterName(name)) << name;
}

TEST(SqlTextTest, quotesIdentifiersSoThatTheyStayOne) {
  EXPECT_STREQ(quoteIdentifier("row").text(), "\"row\"");
  EXPECT_STREQ(quoteIdentifier("a\"b\"\"c").text(), "\"a\"\"b\"\"\"\"c\"");
  EXPECT_STREQ(quoteIdentifier("").text(), "\"\"");
}
