#include "host/ui/PastedText.h"

using Brontel::PastedText;

namespace {

/// Rows end in ";", cells are separated by "|".
std::string cellsOf(const char* text) {
  const PastedText pasted(text);
  std::string cells;
  for (FX::FXint row = 0; row < pasted.getNumRows(); ++row) {
    for (FX::FXint col = 0; col < pasted.getNumColumns(row); ++col) {
      if (col > 0) cells += "|";
      cells += pasted.getCell(row, col).text();
    }
    cells += ";";
  }
  return cells;
}

}  // namespace

TEST(PastedTextTest, isTheTableThatWasCopied) {
  EXPECT_EQ(cellsOf("1\tA\n2\tB"), "1|A;2|B;");
  EXPECT_EQ(cellsOf("one"), "one;");
  EXPECT_EQ(cellsOf("\tsecond"), "|second;");
}

TEST(PastedTextTest, endsRowsAsEverySpreadsheetDoes) {
  EXPECT_EQ(cellsOf("1\n2\n"), "1;2;");
  EXPECT_EQ(cellsOf("1\r\n2\r\n"), "1;2;");
  EXPECT_EQ(cellsOf("1\n\n3\n"), "1;;3;");
  // The last one is a row of its own, the end of the text is not.
  EXPECT_EQ(cellsOf("1\n\n"), "1;;");
}

TEST(PastedTextTest, isEmptyWithoutText) {
  EXPECT_EQ(PastedText("").getNumRows(), 0);
  EXPECT_EQ(PastedText("").getNumColumns(), 0);
  EXPECT_EQ(PastedText("\n").getNumRows(), 1);
}

TEST(PastedTextTest, isAsWideAsItsLongestRow) {
  const PastedText pasted("1\n1\t2\t3\n1\t2");
  EXPECT_EQ(pasted.getNumColumns(), 3);
  EXPECT_EQ(pasted.getNumColumns(0), 1);
  EXPECT_EQ(pasted.getNumColumns(2), 2);
}

TEST(PastedTextTest, keepsCommasBlanksAndSigns) {
  EXPECT_EQ(cellsOf(" 2,5 \t-1;x\n"), " 2,5 |-1;x;");
}
