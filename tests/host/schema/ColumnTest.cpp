#include <string>

#include <gtest/gtest.h>

#include "host/schema/Column.h"

using Brontel::Model::Column;

TEST(ColumnTest, isNullableTextOrInteger) {
  EXPECT_STREQ(Column("name", Column::TEXT).definition().text(), "\"name\" text");
  EXPECT_STREQ(Column("type", Column::INTEGER).definition().text(), "\"type\" integer");
  EXPECT_EQ(static_cast<int>(Column::TEXT), 0);
  EXPECT_EQ(static_cast<int>(Column::INTEGER), 1);
  EXPECT_EQ(static_cast<int>(Column::BY_DECLARATION), 4);
}

TEST(ColumnTest, refersToTheTargetsKeyUnlessToldOtherwise) {
  EXPECT_STREQ(Column("t_a_1", Column::INTEGER, true, "t_a", "", Column::NO_ACTION).definition().text(),
               "\"t_a_1\" integer references \"t_a\"(\"t_a_id\")");
  EXPECT_STREQ(Column("t_a_1", Column::TEXT, true, "t_a", "code", Column::NO_ACTION).definition().text(),
               "\"t_a_1\" text references \"t_a\"(\"code\")");
}

TEST(ColumnTest, saysWhatBecomesOfItsRowWithTheTarget) {
  const auto clause = [](bool nullable, Column::OnDeleteType type) {
    const FX::FXString text = Column("r", Column::INTEGER, nullable, "t", "", type).definition();
    return std::string(text.mid(text.find(')') + 1, text.length()).text());
  };
  EXPECT_EQ(clause(true, Column::NO_ACTION), "");
  EXPECT_EQ(clause(true, Column::RESTRICT), " on delete restrict");
  EXPECT_EQ(clause(true, Column::SET_NULL), " on delete set null");
  EXPECT_EQ(clause(true, Column::CASCADE), " on delete cascade");
  EXPECT_EQ(clause(true, Column::BY_DECLARATION), " on delete set null");
  EXPECT_EQ(clause(false, Column::BY_DECLARATION), " on delete cascade");
}

TEST(ColumnTest, losesNotNullButNotItsMeaningInATableThatHasRows) {
  const Column column("r", Column::INTEGER, false, "t", "", Column::BY_DECLARATION);
  EXPECT_STREQ(column.definition().text(), "\"r\" integer not null references \"t\"(\"t_id\") on delete cascade");
  EXPECT_STREQ(column.nullableDefinition().text(), "\"r\" integer references \"t\"(\"t_id\") on delete cascade");
}

TEST(ColumnTest, quotesEveryName) {
  EXPECT_STREQ(Column("a\"b", Column::INTEGER, true, "order", "x y", Column::NO_ACTION).definition().text(),
               "\"a\"\"b\" integer references \"order\"(\"x y\")");
}
