#include "app/window/OpenWindow.h"
#include "tests/app/window/WindowFixture.h"

// Nothing that people read may be cut off, on a small screen and a big one, with the usual letters and with bigger
// ones.

namespace {

struct Look {
  int width;
  int height;
  unsigned fontScale;
};

class LayoutTest : public WindowFixture, public ::testing::WithParamInterface<Look> {
 protected:
  LayoutTest() {
    if (GetParam().fontScale == 1) return;
    FX::FXFontDesc description;
    application->getNormalFont()->getFontDesc(description);
    description.size *= GetParam().fontScale;
    font_ = std::make_unique<FX::FXFont>(application.get(), description);
    font_->create();
    normal_ = application->getNormalFont();
    application->setNormalFont(font_.get());
  }

  ~LayoutTest() override {
    if (normal_ == nullptr) return;
    while (!workspace->getWindows().empty()) delete workspace->getWindows().back()->getWindow();
    application->setNormalFont(normal_);
  }

  void expectNothingCut(FX::FXTopWindow& window) {
    window.position(0, 0, GetParam().width, GetParam().height);
    user.settle();
    for (FX::FXLabel* label : descendantsOf<FX::FXLabel>(&window)) {
      if (!isSeen(label)) continue;
      EXPECT_GE(label->getWidth(), label->getDefaultWidth()) << label->getText().text();
      EXPECT_GE(label->getHeight(), label->getDefaultHeight()) << label->getText().text();
      expectInside(*label, window);
    }
    for (const FX::FXHeader* header : descendantsOf<FX::FXHeader>(&window)) {
      if (!isSeen(header)) continue;
      for (FX::FXint i = 0; i < header->getNumItems(); ++i) {
        const FX::FXint text = header->getFont()->getTextWidth(header->getItemText(i));
        EXPECT_GT(header->getItemSize(i), text) << header->getItemText(i).text();
      }
      EXPECT_GE(header->getHeight(), header->getFont()->getFontHeight());
    }
  }

 private:
  static bool isSeen(const FX::FXWindow* widget) {
    for (; widget != nullptr && !widget->isShell(); widget = widget->getParent()) {
      if (!widget->shown()) return false;
    }
    return true;
  }

  static void expectInside(const FX::FXLabel& label, const FX::FXWindow& window) {
    FX::FXint x = 0;
    FX::FXint y = 0;
    label.translateCoordinatesTo(x, y, &window, label.getWidth(), label.getHeight());
    EXPECT_LE(x, window.getWidth()) << label.getText().text();
    EXPECT_LE(y, window.getHeight()) << label.getText().text();
  }

  std::unique_ptr<FX::FXFont> font_;
  FX::FXFont* normal_ = nullptr;
};

}  // namespace

TEST_P(LayoutTest, theInvoiceFormShowsEverything) {
  expectNothingCut(open(kIncomplete));
}

TEST_P(LayoutTest, everyPageOfTheMainWindowShowsEverything) {
  MainWindow& window = openMain();
  for (FX::FXint page = 0; page < MainWindow::PAGES; ++page) {
    window.showPage(page);
    expectNothingCut(window);
  }
  delete &window;
}

INSTANTIATE_TEST_SUITE_P(Looks, LayoutTest,
                         ::testing::Values(Look{1024, 768, 1}, Look{1920, 1080, 1}, Look{1024, 768, 2},
                                           Look{1920, 1080, 2}),
                         [](const ::testing::TestParamInfo<Look>& look) {
                           return std::to_string(look.param.width) + "Font" + std::to_string(look.param.fontScale);
                         });
