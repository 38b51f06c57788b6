// Ten thousand rows: each thing that people do takes no time that they notice, and twice the rows no more than about
// twice the time.

#include <algorithm>
#include <chrono>
#include <ctime>
#include <iostream>

#include <fxkeys.h>

#include "itemdata/Codes.h"
#include "tests/ui/DialogFixture.h"

using namespace Brontel::Plugin::ItemData;
using FX::FXint;

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kFew = 2500;
constexpr int kMany = 10000;
// Four times the rows; twice as much again for a busy machine.
constexpr double kMostGrowth = 8;

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
  /// What the processor works, whatever else the machine does.
  template <typename Work>
  static double labour(Work work) {
    const std::clock_t start = std::clock();
    work();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
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

TEST_F(ManyRowsTest, eachNewRowIsInSight) {
  fill(10);
  open();
  for (int row = 10; row < 20; ++row) {
    user.key(FX::KEY_Insert);
    EXPECT_TRUE(isWhollyVisible(row)) << row;
  }
}

TEST_F(ManyRowsTest, openingGrowsWithTheRows) {
  double times[2];
  for (const int i : {0, 1}) {
    fill(i == 0 ? kFew : kMany);
    times[i] = labour([this] { build(); });
    close();
    // The least of several, since other programs empty the processor's caches.
    for (int again = 0; again < 4; ++again) {
      times[i] = std::min(times[i], labour([this] { build(); }));
      close();
    }
  }
  report("build few", times[0]);
  report("build many", times[1]);
  EXPECT_LT(times[1], kMostGrowth * times[0] + 0.05);
}

TEST_F(ManyRowsTest, oneRowMoreOrLessGrowsWithTheRows) {
  double added[2];
  double deleted[2];
  constexpr int kRepetitions = 5;
  for (const int i : {0, 1}) {
    fill(i == 0 ? kFew : kMany);
    build();
    added[i] = labour([this] {
      for (int n = 0; n < kRepetitions; ++n) {
        table()->handle(form, FXSEL(FX::SEL_COMMAND, ItemDataTable::ID_ADD_ROW), nullptr);
      }
    });
    table()->setCurrentItem(1, 0);
    deleted[i] = labour([this] {
      for (int n = 0; n < kRepetitions; ++n) {
        table()->handle(form, FXSEL(FX::SEL_COMMAND, ItemDataTable::ID_DELETE_ROW), nullptr);
      }
    });
    close();
  }
  report("add few", added[0]);
  report("add many", added[1]);
  report("delete few", deleted[0]);
  report("delete many", deleted[1]);
  EXPECT_LT(added[1], kMostGrowth * added[0] + 0.05);
  EXPECT_LT(deleted[1], kMostGrowth * deleted[0] + 0.05);
}

TEST_F(ManyRowsTest, aLongListOfNumbersIsPastedAtOnce) {
  double times[2];
  for (const int i : {0, 1}) {
    const int rows = i == 0 ? kFew : kMany;
    ItemDataList& list = newListOf(perUnitSettings());
    item.setQuantity(FXExt::FXDecimal(rows, 0, 4));
    open();
    std::string lines;
    for (int row = 1; row <= rows; ++row) lines += "1\tSN-" + std::to_string(row) + "\n";
    goTo(0, 0);
    user.putOnClipboard(lines);
    user.giveKeyboardTo(dialog.get());
    times[i] = labour([this] { user.key('v', {FX::KEY_Control_L}); });
    ASSERT_EQ(table()->getNumRows(), rows);
    EXPECT_EQ(shown().back(), "1|SN-" + std::to_string(rows) + "|");
    EXPECT_EQ(list.no(), 3 * rows);
    close();
  }
  report("paste few", times[0]);
  report("paste many", times[1]);
  EXPECT_LT(times[1], kMostGrowth * times[0] + 0.05);
}
