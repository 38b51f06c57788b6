#include <gtest/gtest.h>
#include <sqlite3.h>

#include "host/database/DatabaseError.h"

using Brontel::Database::ErrorKind;
using Brontel::Database::errorKindOf;

TEST(DatabaseErrorTest, knowsWhatAPersonCanDoSomethingAbout) {
  EXPECT_EQ(errorKindOf(SQLITE_BUSY), ErrorKind::Busy);
  EXPECT_EQ(errorKindOf(SQLITE_LOCKED), ErrorKind::Busy);
  EXPECT_EQ(errorKindOf(SQLITE_READONLY), ErrorKind::ReadOnly);
  EXPECT_EQ(errorKindOf(SQLITE_NOTADB), ErrorKind::NotADatabase);
  EXPECT_EQ(errorKindOf(SQLITE_CORRUPT), ErrorKind::Damaged);
  EXPECT_EQ(errorKindOf(SQLITE_FULL), ErrorKind::Full);
  EXPECT_EQ(errorKindOf(SQLITE_CANTOPEN), ErrorKind::CannotOpen);
  EXPECT_EQ(errorKindOf(SQLITE_CONSTRAINT), ErrorKind::Constraint);
  EXPECT_EQ(errorKindOf(SQLITE_ERROR), ErrorKind::Other);
  EXPECT_EQ(errorKindOf(SQLITE_IOERR), ErrorKind::Other);
}

TEST(DatabaseErrorTest, takesExtendedCodesForTheirPlainOnes) {
  EXPECT_EQ(errorKindOf(SQLITE_BUSY_SNAPSHOT), ErrorKind::Busy);
  EXPECT_EQ(errorKindOf(SQLITE_CONSTRAINT_FOREIGNKEY), ErrorKind::Constraint);
  EXPECT_EQ(errorKindOf(SQLITE_READONLY_DIRECTORY), ErrorKind::ReadOnly);
}

TEST(DatabaseErrorTest, takesSuccessForNoError) {
  for (const int code : {SQLITE_OK, SQLITE_ROW, SQLITE_DONE}) EXPECT_EQ(errorKindOf(code), ErrorKind::None);
}
