#include <memory>

#include <gtest/gtest.h>

#include "host/ui/Legibility.h"
#include "tests/support/TestApplication.h"

using Brontel::wrapped;
using FX::FXint;
using FX::FXString;

namespace {

FXString repeated(const FXString& text, int times) {
  FXString result;
  for (int i = 0; i < times; ++i) result += text;
  return result;
}

FXString lettersOf(FXString text) {
  return text.substitute("\n", "").substitute(" ", "");
}

class LegibilityTest : public ::testing::Test {
 protected:
  LegibilityTest() { application.create(); }
  ~LegibilityTest() override {
    delete window;
    if (usual_ != nullptr) application->setNormalFont(usual_);
  }

  FX::FXFont& font() { return *application->getNormalFont(); }
  FXint height() { return font().getFontHeight(); }

  void doubleTheLetters() {
    FX::FXFontDesc description;
    font().getFontDesc(description);
    description.size *= 2;
    big_ = std::make_unique<FX::FXFont>(application.get(), description);
    big_->create();
    usual_ = application->getNormalFont();
    application->setNormalFont(big_.get());
  }

  TestApplication application{nullptr, "1024x768x24"};
  FX::FXTopWindow* window = new FX::FXMainWindow(application.get(), "");

 private:
  std::unique_ptr<FX::FXFont> big_;
  FX::FXFont* usual_ = nullptr;
};

}  // namespace

TEST_F(LegibilityTest, sizesGrowWithTheLettersAndNeverShrink) {
  const FXint usual = height();
  EXPECT_GE(Brontel::scaledToFont(application.get(), 300), 300);
  doubleTheLetters();
  ASSERT_GT(height(), usual + usual / 2);
  EXPECT_EQ(Brontel::scaledToFont(application.get(), 300), 300 * height() / 15);
}

TEST_F(LegibilityTest, aWindowIsAsBigAsItsContentAndNoBiggerThanTheScreen) {
  auto* content = new FX::FXVerticalFrame(window, FX::LAYOUT_FIX_WIDTH | FX::LAYOUT_FIX_HEIGHT, 0, 0, 500, 100);
  Brontel::resizeToFont(*window, 300, 200);
  EXPECT_GE(window->getWidth(), 500);
  EXPECT_LT(window->getWidth(), 520);
  EXPECT_EQ(window->getHeight(), Brontel::scaledToFont(application.get(), 200));
  content->resize(3000, 3000);
  Brontel::resizeToFont(*window, 300, 200);
  EXPECT_EQ(window->getWidth(), 1024 - 16);
  EXPECT_EQ(window->getHeight(), 768 - 64);
}

TEST_F(LegibilityTest, aWindowIsPutWhereItCanBeSeen) {
  Brontel::placeOnScreen(*window, 10, 20, 300, 400);
  EXPECT_EQ(window->getX(), 10);
  EXPECT_EQ(window->getY(), 20);
  EXPECT_EQ(window->getWidth(), 300);
  EXPECT_EQ(window->getHeight(), 400);
  Brontel::placeOnScreen(*window, 900, -50, 300, 4000);
  EXPECT_EQ(window->getX(), 724);
  EXPECT_EQ(window->getY(), 0);
  EXPECT_EQ(window->getHeight(), 768);
  Brontel::placeOnScreen(*window, 0, 0, 1, 1);
  EXPECT_EQ(window->getWidth(), 200);
  EXPECT_EQ(window->getHeight(), 200);
}

TEST_F(LegibilityTest, rowsAreAsHighAsTheirLetters) {
  doubleTheLetters();
  auto* table = new FX::FXTable(window);
  table->setTableSize(2, 1);
  ASSERT_LT(table->getRowHeight(1), height());
  Brontel::fitRows(*table);
  table->insertRows(2, 1);
  for (FXint row = 0; row < 3; ++row) {
    EXPECT_EQ(table->getRowHeight(row), height() + table->getMarginTop() + table->getMarginBottom()) << row;
  }
}

TEST_F(LegibilityTest, rowsThatAreHighEnoughStay) {
  auto* table = new FX::FXTable(window);
  table->setTableSize(1, 1);
  table->setRowHeight(0, 90);
  const FXint usual = table->getDefRowHeight();
  ASSERT_GT(usual, height());
  Brontel::fitRows(*table);
  EXPECT_EQ(table->getRowHeight(0), 90);
  EXPECT_EQ(table->getDefRowHeight(), usual);
}

TEST_F(LegibilityTest, linesAreBrokenAtBlanks) {
  const FXString text = repeated("árvíztűrő ", 30) + "\nvége";
  const FXint width = font().getTextWidth(text) / 4;
  const FXString broken = wrapped(text, font(), width);
  EXPECT_GE(broken.contains('\n'), 4);
  for (FXint line = 0; line <= broken.contains('\n'); ++line) {
    EXPECT_LE(font().getTextWidth(broken.section('\n', line)), width) << line;
    EXPECT_NE(broken.section('\n', line), "");
  }
  EXPECT_STREQ(lettersOf(broken).text(), lettersOf(text).text());
}

TEST_F(LegibilityTest, pathsAreBrokenBehindASlashAndWordsAnywhere) {
  const FXint width = font().getTextWidth("/home/valaki/");
  EXPECT_STREQ(wrapped("/home/valaki/m/f.db", font(), width).text(), "/home/valaki/\nm/f.db");
  const FXString word('x', 100);
  const FXString broken = wrapped(word, font(), width);
  EXPECT_GT(broken.contains('\n'), 2);
  FXString joined = broken;
  EXPECT_EQ(joined.substitute("\n", ""), word);
  EXPECT_STREQ(wrapped("é", font(), 1).text(), "é");
  EXPECT_STREQ(wrapped("éá", font(), 1).text(), "é\ná");
}

TEST_F(LegibilityTest, shortTextsStay) {
  for (const char* text : {"", "\n", "a\n\nb c", "a b "}) {
    EXPECT_STREQ(wrapped(text, font(), 1000).text(), text);
  }
}

TEST_F(LegibilityTest, aBoxShowsTheFirstLinesOfVeryMany) {
  const FXString broken = Brontel::wrappedForBox(application.get(), repeated("sor\n", 500));
  EXPECT_LT((broken.contains('\n') + 1) * height(), 768);
  EXPECT_GT(broken.contains('\n') * height(), 400);
  EXPECT_EQ(broken.right(4), "\n...");
  EXPECT_EQ(Brontel::wrappedForBox(application.get(), "egy\nsor"), "egy\nsor");
}
