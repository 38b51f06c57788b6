#include <set>
#include <string>

#include <gtest/gtest.h>

#include "app/ErrorText.h"

using Brontel::InvoiceRepository;
using Brontel::App::describe;
using Brontel::Database::DatabaseError;
using Brontel::Database::ErrorKind;

namespace {

std::string textOf(ErrorKind kind) {
  return describe(DatabaseError{kind, 0, "the engine's words", "select 1"}, "/a/b.db").text();
}

}  // namespace

TEST(ErrorTextTest, EveryKindHasATextOfItsOwnThatNamesTheFile) {
  std::set<std::string> texts;
  for (const ErrorKind kind : {ErrorKind::Busy, ErrorKind::ReadOnly, ErrorKind::NotADatabase, ErrorKind::Damaged,
                               ErrorKind::Full, ErrorKind::CannotOpen, ErrorKind::Constraint, ErrorKind::Other}) {
    const std::string text = textOf(kind);
    EXPECT_NE(text.find("/a/b.db"), std::string::npos) << text;
    EXPECT_EQ(text.find('%'), std::string::npos) << text;
    EXPECT_TRUE(texts.insert(text).second) << text;
  }
}

TEST(ErrorTextTest, WhatThePersonCannotMendIsToldInTheEnginesWords) {
  EXPECT_EQ(textOf(ErrorKind::Other), "Adatbázishiba: /a/b.db (the engine's words)");
  EXPECT_EQ(textOf(ErrorKind::Constraint),
            "Az adatbázis nem fogadta el a módosítást, ezért nem változott: /a/b.db (the engine's words)");
}

TEST(ErrorTextTest, AFullDiskIsToldWithWhatToDo) {
  EXPECT_EQ(textOf(ErrorKind::Full), "Megtelt a lemez, az adatbázis nem változott: /a/b.db. Szabadítson fel helyet.");
}

TEST(ErrorTextTest, AnInvoiceThatSomebodyElseHasChangedIsTold) {
  EXPECT_STREQ(describe(InvoiceRepository::Result::Overtaken, "7").text(),
               "A számlát közben más módosította vagy törölte: 7. Próbálja újra.");
}

TEST(ErrorTextTest, WhatTheDatabaseHasToldNeedsNoSecondText) {
  EXPECT_STREQ(describe(InvoiceRepository::Result::Failed, "7").text(), "");
  EXPECT_STREQ(describe(InvoiceRepository::Result::Done, "7").text(), "");
}

TEST(ErrorTextTest, OneLineHasNeitherTabsNorLineBreaks) {
  EXPECT_STREQ(Brontel::App::toOneLine("a\tb\nc\r\nd").text(), "a b c  d");
  EXPECT_STREQ(Brontel::App::toOneLine("").text(), "");
}
