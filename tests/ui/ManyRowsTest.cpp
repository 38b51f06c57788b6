// Ten thousand rows: each thing that people do works and reports its time.

#include <chrono>
#include <iostream>

#include <fxkeys.h>

#include "itemdata/Codes.h"
#include "tests/ui/DialogFixture.h"

using namespace Brontel::Plugin::ItemData;
using FX::FXint;

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kMany = 10000;

}  // namespace

class ManyRowsTest : public DialogFixture {
 protected:
  void fill(int rows) {
    ItemDataList& list = newListOf(perUnitSettings());
    for (int row = 1; row <= rows; ++row) addRow(list, row, "1", "SN-" + std::to_string(row), "kék", 3 * row);
    item.setQuantity(FXExt::FXDecimal(rows + 1, 0, 4));
  }

  /// What somebody waits.
  template <typename Work>
  static double seconds(Work work) {
    const Clock::time_point start = Clock::now();
    work();
    return std::chrono::duration<double>(Clock::now() - start).count();
  }

  /// Whether nothing of a row is scrolled out of sight.
  bool isWhollyVisible(FXint row) const {
    const FX::FXScrollBar* bar = table()->horizontalScrollBar();
    const FXint bottom = bar->shown() ? bar->getY() : table()->getHeight();
    const FXint top = table()->getRowY(row);
    return top >= table()->getColumnHeaderHeight() && top + table()->getRowHeight(row) <= bottom;
  }

  void report(const char* what, double time) {
    std::cout << what << ": " << time << " s\n";
    RecordProperty(what, std::to_string(time));
  }
};

TEST_F(ManyRowsTest, openScrollAddDeleteAndClose) {
  fill(kMany);
  report("open", seconds([this] { open(); }));
  ASSERT_EQ(table()->getNumRows(), kMany);
  goTo(0, 1);
  report("scroll to the end", seconds([this] { user.key(FX::KEY_End, {FX::KEY_Control_L}); }));
  report("add", seconds([this] { user.key(FX::KEY_Insert); }));
  EXPECT_EQ(table()->getNumRows(), kMany + 1);
  EXPECT_EQ(shown().back(), "1||");
  EXPECT_EQ(cursor(), std::to_string(kMany) + ",1");
  EXPECT_TRUE(isWhollyVisible(kMany));
  report("type", seconds([this] {
           user.type("SN-last");
           user.key(FX::KEY_Return);
         }));
  goTo(kMany / 2, 1);
  report("delete", seconds([this] { user.key(FX::KEY_Delete); }));
  EXPECT_EQ(table()->getNumRows(), kMany);
  user.key('a', {FX::KEY_Control_L});
  report("cut all", seconds([this] { user.key('x', {FX::KEY_Control_L}); }));
  EXPECT_EQ(shown().back(), "||");
  report("put back", seconds([this] { user.key('v', {FX::KEY_Control_L}); }));
  report("delete all", seconds([this] { user.key(FX::KEY_Delete); }));
  // Every second one, as the rows then stand.
  EXPECT_EQ(table()->getNumRows(), kMany / 2);
  report("close", seconds([this] {
           user.click(okButton());
           close();
         }));
}

TEST_F(ManyRowsTest, opensUnscrolledWhereverTheCursorIs) {
  ItemDataList& list = newListOf(perUnitSettings());
  for (int row = 1; row <= 100; ++row) addRow(list, row, "1", "SN", row == 1 ? "" : "kék", 3 * row);
  open();
  EXPECT_EQ(cursor(), "0,2");
  EXPECT_EQ(table()->getXPosition(), 0);
  EXPECT_EQ(table()->getYPosition(), 0);
}

TEST_F(ManyRowsTest, eachNewRowIsInSight) {
  fill(10);
  open();
  for (int row = 10; row < 20; ++row) {
    user.key(FX::KEY_Insert);
    EXPECT_TRUE(isWhollyVisible(row)) << row;
  }
}

TEST_F(ManyRowsTest, aLongListOfNumbersIsPastedAtOnce) {
  ItemDataList& list = newListOf(perUnitSettings());
  item.setQuantity(FXExt::FXDecimal(kMany, 0, 4));
  open();
  std::string lines;
  for (int row = 1; row <= kMany; ++row) lines += "1\tSN-" + std::to_string(row) + "\n";
  goTo(0, 0);
  user.putOnClipboard(lines);
  user.giveKeyboardTo(dialog.get());
  report("paste", seconds([this] { user.key('v', {FX::KEY_Control_L}); }));
  ASSERT_EQ(table()->getNumRows(), kMany);
  EXPECT_EQ(shown().back(), "1|SN-" + std::to_string(kMany) + "|");
  EXPECT_EQ(list.no(), 3 * kMany);
}
