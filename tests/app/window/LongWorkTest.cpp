#include <csignal>

#include "app/window/InvoiceActions.h"
#include "app/window/LongWork.h"
#include "app/window/ProgressWindow.h"
#include "host/database/Transaction.h"
#include "tests/app/window/WindowFixture.h"
#include "tests/support/LayoutWalk.h"

using Brontel::App::InvoiceActions;
using Brontel::App::LongWork;
using Brontel::App::ProgressWindow;
using Brontel::Database::Transaction;
using namespace std::chrono_literals;

namespace {

class LongWorkTest : public WindowFixture {
 protected:
  LongWorkTest() {
    user.settle();
    work().setClock([this] {
      ++readings;
      return now;
    });
  }

  LongWork& work() { return workspace->getLongWork(); }
  const ProgressWindow* bar() { return work().getWindow(); }

  /// Statements, each of which takes that long.
  void runStatements(int count, std::chrono::milliseconds each) {
    for (int i = 0; i < count; ++i) {
      ASSERT_EQ(database.handle().queryInt("select count(*) from t_invoice", 1, -1), 5);
      now += each;
    }
  }

  LongWork::Time now{1h};
  int readings = 0;
};

/// A widget that counts how often it is painted and pressed.
class Counter : public FX::FXButton {
  FXDECLARE(Counter)

 public:
  explicit Counter(FX::FXComposite* parent) : FXButton(parent, "Counter", nullptr, this, ID_PRESSED) {}

  enum { ID_PRESSED = FXButton::ID_LAST };

  long onPaint(FX::FXObject* sender, FX::FXSelector selector, void* event) {
    ++paints;
    return FXButton::onPaint(sender, selector, event);
  }
  long onPressed(FX::FXObject*, FX::FXSelector, void*) {
    ++presses;
    return 1;
  }

  int paints = 0;
  int presses = 0;

 protected:
  Counter() = default;
};

FXDEFMAP(Counter)
counterMap[] = {
    FXMAPFUNC(FX::SEL_PAINT, 0, Counter::onPaint),
    FXMAPFUNC(FX::SEL_COMMAND, Counter::ID_PRESSED, Counter::onPressed),
};

FXIMPLEMENT(Counter, FXButton, counterMap, ARRAYNUMBER(counterMap))

}  // namespace

TEST_F(LongWorkTest, aStatementCostsOneLookAtTheClockWhileNothingIsShown) {
  const int windows = user.events.countTopLevelWindows();
  runStatements(1000, 0ms);
  EXPECT_EQ(readings, 1000);
  EXPECT_EQ(bar(), nullptr);
  EXPECT_EQ(user.events.countTopLevelWindows(), windows);
}

TEST_F(LongWorkTest, nothingIsShownWithinASecond) {
  runStatements(99, 10ms);
  EXPECT_EQ(bar(), nullptr);
  user.settle();
  // What comes later is other work.
  runStatements(99, 10ms);
  EXPECT_EQ(bar(), nullptr);
}

TEST_F(LongWorkTest, afterASecondABarComesGrowsAndGoes) {
  runStatements(102, 10ms);
  ASSERT_NE(bar(), nullptr);
  EXPECT_TRUE(bar()->shown());
  EXPECT_GT(bar()->getShare(), 0);
  double before = bar()->getShare();
  for (int i = 0; i < 20; ++i) {
    runStatements(20, 10ms);
    EXPECT_GT(bar()->getShare(), before);
    EXPECT_LT(bar()->getShare(), 1);
    before = bar()->getShare();
  }
  user.settle();
  EXPECT_EQ(bar(), nullptr);
}

TEST_F(LongWorkTest, theBarIsSeenAboveTheActiveWindow) {
  MainWindow& window = openMain();
  runStatements(120, 10ms);
  ASSERT_NE(bar(), nullptr);
  FX::FXint x = 0;
  FX::FXint y = 0;
  bar()->translateCoordinatesTo(x, y, &window, bar()->getWidth() / 2, bar()->getHeight() / 2);
  EXPECT_NEAR(x, window.getWidth() / 2, 2);
  EXPECT_NEAR(y, window.getHeight() / 2, 2);
  for (const FX::FXWindow* child = bar()->getFirst(); child != nullptr; child = child->getNext()) {
    EXPECT_GT(child->getWidth(), 100);
    EXPECT_GT(child->getHeight(), 5);
  }
  EXPECT_EQ(LayoutWalk().findFaults(const_cast<ProgressWindow&>(*bar())), Texts());
  user.settle();
  delete &window;
}

TEST_F(LongWorkTest, windowsRepaintThemselvesMeanwhileButNotAtEveryStatement) {
  auto* shell = new FX::FXMainWindow(application.get(), "Test", nullptr, nullptr, FX::DECOR_ALL, 0, 0, 300, 200);
  auto* counter = new Counter(shell);
  shell->create();
  shell->show();
  user.settle();
  const int before = counter->paints;
  counter->update();
  runStatements(90, 10ms);
  EXPECT_EQ(counter->paints, before);
  runStatements(20, 10ms);
  EXPECT_GT(counter->paints, before);
  const int seen = counter->paints;
  for (int i = 0; i < 1000; ++i) {
    counter->update();
    runStatements(1, 1ms);
  }
  EXPECT_GE(counter->paints, seen + 9);
  EXPECT_LE(counter->paints, seen + 11);
  user.settle();
  delete shell;
}

TEST_F(LongWorkTest, clicksAndKeysMeanwhileDoNothingNeitherThenNorLater) {
  auto* shell = new FX::FXMainWindow(application.get(), "Test", nullptr, nullptr, FX::DECOR_ALL, 0, 0, 300, 200);
  auto* counter = new Counter(shell);
  shell->create();
  shell->show();
  user.giveKeyboardTo(shell);
  user.settle();
  user.click(counter);
  ASSERT_EQ(counter->presses, 1);
  counter->setFocus();
  {
    Transaction transaction(database.handle());
    runStatements(120, 10ms);
    ASSERT_NE(bar(), nullptr);
    // The server knows of it when these return; the program does not look.
    user.events.click();
    user.events.key(' ');
    user.events.click();
    runStatements(100, 10ms);
    EXPECT_EQ(counter->presses, 1);
    EXPECT_TRUE(transaction.commit());
  }
  user.settle();
  EXPECT_EQ(bar(), nullptr);
  EXPECT_EQ(counter->presses, 1);
  user.click(counter);
  EXPECT_EQ(counter->presses, 2);
  delete shell;
}

TEST_F(LongWorkTest, withinASecondClicksAreHandledAfterwards) {
  auto* shell = new FX::FXMainWindow(application.get(), "Test", nullptr, nullptr, FX::DECOR_ALL, 0, 0, 300, 200);
  auto* counter = new Counter(shell);
  shell->create();
  shell->show();
  user.settle();
  user.moveTo(counter);
  runStatements(10, 10ms);
  user.events.click();
  runStatements(10, 10ms);
  EXPECT_EQ(counter->presses, 0);
  user.settle();
  EXPECT_EQ(counter->presses, 1);
  delete shell;
}

TEST_F(LongWorkTest, aKnownShareIsShownAsItIs) {
  const auto watch = work().watch();
  for (int i = 0; i < 10; ++i) {
    now += 200ms;
    watch(i / 10.0);
  }
  ASSERT_NE(bar(), nullptr);
  EXPECT_NEAR(bar()->getShare(), 0.9, 0.001);
  watch(7);  // nonsense, too soon to be seen
  now += 200ms;
  watch(7);
  EXPECT_DOUBLE_EQ(bar()->getShare(), 1);
  user.settle();
}

TEST_F(LongWorkTest, theBarCannotBeClosed) {
  runStatements(120, 10ms);
  ASSERT_NE(bar(), nullptr);
  EXPECT_FALSE(const_cast<ProgressWindow*>(bar())->close(TRUE));
  runStatements(120, 10ms);
  EXPECT_TRUE(bar()->shown());
  user.settle();
}

TEST_F(LongWorkTest, openingAnInvoiceThatTakesLongShowsIt) {
  MainWindow& window = openMain();
  bool wasSeen = false;
  work().setClock([this, &wasSeen] {
    now += 200ms;
    wasSeen = wasSeen || bar() != nullptr;
    return now;
  });
  EXPECT_NE(InvoiceActions(*workspace, &window).open(kComplete), nullptr);
  EXPECT_TRUE(wasSeen);
  user.settle();
  EXPECT_EQ(bar(), nullptr);
  EXPECT_EQ(newestForm().getGrid()->getNumRows(), 4);
  delete &newestForm();
  delete &window;
}

TEST_F(LongWorkTest, whoEndsTheProgramMeanwhileIsHeardAfterwards) {
  openMain();
  const auto countMainWindows = [this] { return descendantsOf<MainWindow>(application->getRootWindow()).size(); };
  runStatements(120, 10ms);
  ASSERT_NE(bar(), nullptr);
  ASSERT_EQ(std::raise(SIGTERM), 0);
  runStatements(50, 10ms);
  EXPECT_EQ(countMainWindows(), 1u);
  user.settle();
  EXPECT_EQ(countMainWindows(), 0u);
  EXPECT_EQ(bar(), nullptr);
}

TEST_F(LongWorkTest, theBarGoesWhenTheProgramEndsInTheMiddle) {
  runStatements(120, 10ms);
  ASSERT_NE(bar(), nullptr);
  const int windows = user.events.countTopLevelWindows();
  work().end();
  EXPECT_EQ(bar(), nullptr);
  application->flush(TRUE);
  EXPECT_LT(user.events.countTopLevelWindows(), windows);
}
