// Pages have the same letters underlined: each letter means the page that is shown.

#include <fxkeys.h>

#include "app/window/GoodsListFrame.h"
#include "host/ui/GoodsDataWindow.h"
#include "tests/app/window/WindowFixture.h"

namespace {

class PageKeysTest : public WindowFixture {
 protected:
  PageKeysTest() : main(&openMain()) {}
  ~PageKeysTest() override { delete main; }

  /// The page's field that has the keyboard after Alt and the letter.
  const FX::FXWindow* focusedAfter(unsigned letter) {
    user.key(letter, {FX::KEY_Alt_L});
    return application->getFocusWindow();
  }

  MainWindow* main;
};

}  // namespace

TEST_F(PageKeysTest, theSearchFieldIsThatOfThePage) {
  for (int page = MainWindow::PAGE_INVOICES; page < MainWindow::PAGE_FIND; ++page) {
    main->showPage(page);
    user.settle();
    const FX::FXWindow* focused = focusedAfter(FX::KEY_k);
    ASSERT_NE(dynamic_cast<const FX::FXTextField*>(focused), nullptr) << page;
    for (; focused != nullptr && !focused->isShell(); focused = focused->getParent()) EXPECT_TRUE(focused->shown());
  }
}

TEST_F(PageKeysTest, aNewProductIsNoSuite) {
  main->showPage(MainWindow::PAGE_PRODUCTS);
  user.settle();
  user.key(FX::KEY_j, {FX::KEY_Alt_L});
  const auto windows = descendantsOf<Brontel::GoodsDataWindow>(application->getRootWindow());
  ASSERT_EQ(windows.size(), 1u);
  EXPECT_NE(std::string(windows[0]->getTitle().text()).find("Termék"), std::string::npos)
      << windows[0]->getTitle().text();
  delete windows[0];
}
