#include <cmath>

#include <fxkeys.h>

#include "app/window/InvoiceListFrame.h"
#include "app/window/PrintPreview.h"
#include "app/window/PrinterDialog.h"
#include "app/window/RowList.h"
#include "fxext/widgets/gallery/Picture.h"
#include "tests/app/print/PrintSamples.h"
#include "tests/app/print/ToolFolder.h"
#include "tests/app/window/WindowFixture.h"
#include "tests/support/LayoutWalk.h"

using Brontel::App::kPageHeight;
using Brontel::App::kPageWidth;
using Brontel::App::PrinterDialog;
using Brontel::App::PrintPreview;

namespace {

class PrintPreviewTest : public WindowFixture {
 protected:
  PrintPreviewTest() : WindowFixture("1024x768x24") {}

  using Look = std::function<void(PrintPreview& preview)>;

  /// Opens the preview of a stored invoice by its form's key, does something in it and leaves it.
  void preview(int id, const Look& look) {
    InvoiceEditForm& form = open(id);
    bool wasThere = false;
    user.whenModal([&](FX::FXWindow& window) {
      auto* preview = dynamic_cast<PrintPreview*>(&window);
      ASSERT_NE(preview, nullptr);
      wasThere = true;
      look(*preview);
      user.key(FX::KEY_Escape);
    });
    user.key(FX::KEY_p, {FX::KEY_Control_L});
    EXPECT_TRUE(wasThere);
    EXPECT_EQ(application->getModalWindow(), nullptr);
    delete &form;
  }

  /// The same with an invoice of several pages.
  void previewLong(const Look& look) {
    exec("update t_invoiceitemdata set value='" + serialNumbers(3000) + "' where value='KG-2411/07'");
    preview(kComplete, look);
  }

  static std::string labels(const PrintPreview& preview) {
    std::string text;
    for (const FX::FXLabel* label : descendantsOf<FX::FXLabel>(&preview)) {
      if (dynamic_cast<const FX::FXButton*>(label) == nullptr) text += std::string(label->getText().text()) + "|";
    }
    return text;
  }

  static int countPixels(const Picture& picture, FX::FXColor color) {
    int count = 0;
    for (FX::FXint y = 0; y < picture.height(); ++y) {
      for (FX::FXint x = 0; x < picture.width(); ++x) count += picture.at(x, y) == color ? 1 : 0;
    }
    return count;
  }

  /// In the next box for a file, types that path and accepts it.
  void typeFile(const std::string& file) {
    user.whenModal([this, file](FX::FXWindow&) {
      user.key(FX::KEY_f, {FX::KEY_Alt_L});
      user.key(FX::KEY_a, {FX::KEY_Control_L});
      user.type(file);
      user.key(FX::KEY_Return);
    });
  }

  /// In the next box for a printer, chooses one, as many copies, and accepts.
  void choosePrinter(const std::string& printer, int copies) {
    user.whenModal([this, printer, copies](FX::FXWindow& window) {
      auto* dialog = dynamic_cast<PrinterDialog*>(&window);
      ASSERT_NE(dialog, nullptr);
      user.key(FX::KEY_a, {FX::KEY_Control_L});
      user.type(printer);
      for (int i = 1; i < copies; ++i) user.click(descendantsOf<FX::FXArrowButton>(spinnerOf(window)).front());
      user.click(findButton(window, "Nyomtatás"));
    });
  }

  static FX::FXSpinner* spinnerOf(const FX::FXWindow& window) { return descendantsOf<FX::FXSpinner>(&window).front(); }
};

}  // namespace

TEST_F(PrintPreviewTest, showsThePageAsAPicture) {
  preview(kComplete, [this](PrintPreview& preview) {
    EXPECT_STREQ(preview.getTitle().text(), "Nyomtatási kép");
    EXPECT_NE(labels(preview).find("1/1|"), std::string::npos) << labels(preview);
    const Picture picture(preview.getView());
    const int all = picture.width() * picture.height();
    const int white = countPixels(picture, FXRGB(255, 255, 255));
    const int around = countPixels(picture, application->getShadowColor());
    EXPECT_GT(white, all / 4);
    EXPECT_GT(around, all / 10);
    EXPECT_GT(all - white - around, all / 200) << "nothing is written there";
    // The whole page is there.
    const FX::FXImage* page = preview.getView()->getImage();
    EXPECT_LE(page->getWidth(), preview.getView()->getWidth());
    EXPECT_LE(page->getHeight(), preview.getView()->getHeight());
    EXPECT_NEAR(page->getHeight() * kPageWidth / kPageHeight, page->getWidth(), 1);
  });
}

TEST_F(PrintPreviewTest, fitsOnASmallScreen) {
  preview(kComplete, [](PrintPreview& preview) {
    EXPECT_LE(preview.getX() + preview.getWidth(), 1024);
    EXPECT_LE(preview.getY() + preview.getHeight(), 768);
    EXPECT_GE(preview.getX(), 0);
    EXPECT_GE(preview.getY(), 0);
  });
}

TEST_F(PrintPreviewTest, isLeafedThroughByKeys) {
  previewLong([this](PrintPreview& preview) {
    const size_t last = preview.getPages().getPages().size() - 1;
    ASSERT_GT(last, 2u);
    const std::pair<unsigned, size_t> keys[] = {
        {FX::KEY_Page_Up, 0}, {FX::KEY_Page_Down, 1},    {FX::KEY_Page_Down, 2},      {FX::KEY_Page_Up, 1},
        {FX::KEY_End, last},  {FX::KEY_Page_Down, last}, {FX::KEY_Page_Up, last - 1}, {FX::KEY_Home, 0}};
    for (const auto& [key, page] : keys) {
      user.key(key);
      EXPECT_EQ(preview.getPage(), page);
      const std::string label = std::to_string(page + 1) + "/" + std::to_string(last + 1) + "|";
      EXPECT_NE(labels(preview).find(label), std::string::npos) << labels(preview);
    }
  });
}

TEST_F(PrintPreviewTest, isLeafedThroughByButtonsWhichAreOffWhereTheyLeadNowhere) {
  previewLong([this](PrintPreview& preview) {
    const size_t last = preview.getPages().getPages().size() - 1;
    FX::FXButton* first = findButton(preview, "Első");
    FX::FXButton* previous = findButton(preview, "Előző");
    FX::FXButton* next = findButton(preview, "Következő");
    FX::FXButton* end = findButton(preview, "Utolsó");
    EXPECT_FALSE(first->isEnabled() || previous->isEnabled());
    EXPECT_TRUE(next->isEnabled() && end->isEnabled());
    user.click(next);
    EXPECT_EQ(preview.getPage(), 1u);
    EXPECT_TRUE(first->isEnabled() && previous->isEnabled());
    user.click(end);
    EXPECT_EQ(preview.getPage(), last);
    EXPECT_FALSE(next->isEnabled() || end->isEnabled());
    user.click(previous);
    EXPECT_EQ(preview.getPage(), last - 1);
    user.click(first);
    EXPECT_EQ(preview.getPage(), 0u);
  });
}

TEST_F(PrintPreviewTest, anotherPageIsAnotherPicture) {
  previewLong([this](PrintPreview& preview) {
    const auto rowsOfInk = [&] {
      const Picture picture(preview.getView());
      std::vector<int> rows;
      for (FX::FXint y = 0; y < picture.height(); ++y) {
        int dark = 0;
        for (FX::FXint x = 0; x < picture.width(); ++x) dark += FXREDVAL(picture.at(x, y)) < 128 ? 1 : 0;
        rows.push_back(dark);
      }
      return rows;
    };
    const std::vector<int> one = rowsOfInk();
    user.key(FX::KEY_Page_Down);
    EXPECT_NE(rowsOfInk(), one);
    user.key(FX::KEY_Page_Up);
    EXPECT_EQ(rowsOfInk(), one);
  });
}

TEST_F(PrintPreviewTest, isEnlargedAndReducedWithinBounds) {
  preview(kComplete, [this](PrintPreview& preview) {
    const double fitting = preview.getScale();
    user.key('+', {FX::KEY_Control_L});
    EXPECT_NEAR(preview.getScale(), fitting * 1.25, 0.001);
    EXPECT_EQ(preview.getView()->getImage()->getWidth(), std::lround(kPageWidth * preview.getScale()));
    user.key('-', {FX::KEY_Control_L});
    EXPECT_NEAR(preview.getScale(), fitting, 0.001);
    for (int i = 0; i < 20; ++i) user.key(FX::KEY_KP_Add, {FX::KEY_Control_L});
    EXPECT_DOUBLE_EQ(preview.getScale(), 4);
    EXPECT_NE(labels(preview).find("300%|"), std::string::npos) << labels(preview);
    for (int i = 0; i < 20; ++i) user.click(findButton(preview, "-"));
    EXPECT_DOUBLE_EQ(preview.getScale(), 0.25);
    user.click(findButton(preview, "+"));
    EXPECT_GT(preview.getScale(), 0.25);
    user.key('0', {FX::KEY_Control_L});
    EXPECT_NEAR(preview.getScale(), fitting, 0.001);
  });
}

TEST_F(PrintPreviewTest, theWholePageFollowsTheWindowUntilItIsEnlarged) {
  preview(kComplete, [this](PrintPreview& preview) {
    const double before = preview.getScale();
    preview.resize(500, 500);
    user.settle();
    EXPECT_LT(preview.getScale(), before);
    EXPECT_LE(preview.getView()->getImage()->getHeight(), preview.getView()->getHeight());
    user.click(findButton(preview, "+"));
    const double chosen = preview.getScale();
    preview.resize(700, 700);
    user.settle();
    EXPECT_DOUBLE_EQ(preview.getScale(), chosen);
  });
}

TEST_F(PrintPreviewTest, arrowsMoveAPageThatDoesNotFit) {
  preview(kComplete, [this](PrintPreview& preview) {
    for (int i = 0; i < 5; ++i) user.key(FX::KEY_KP_Add, {FX::KEY_Control_L});
    const FX::FXImageView* view = preview.getView();
    const FX::FXint x = view->getXPosition();
    const FX::FXint y = view->getYPosition();
    user.key(FX::KEY_Down);
    EXPECT_EQ(view->getYPosition(), y - 40);
    user.key(FX::KEY_Right);
    EXPECT_EQ(view->getXPosition(), x - 40);
    user.key(FX::KEY_Left);
    user.key(FX::KEY_Up);
    EXPECT_EQ(view->getXPosition(), x);
    EXPECT_EQ(view->getYPosition(), y);
  });
}

TEST_F(PrintPreviewTest, savesAPdf) {
  const std::string file = directory.path("out.pdf");
  preview(kComplete, [&](PrintPreview&) {
    typeFile(file);
    user.key(FX::KEY_s, {FX::KEY_Control_L});
  });
  EXPECT_EQ(readFile(file).substr(0, 5), "%PDF-");
  EXPECT_NE(readFile(file).find("%%EOF"), std::string::npos);
  EXPECT_EQ(boxes(), Texts());
}

TEST_F(PrintPreviewTest, tellsWhyAPdfCannotBeSaved) {
  preview(kComplete, [&](PrintPreview& preview) {
    typeFile("/dev/full");
    answerNext("Igen");  // it is there already
    answerNext("OK");
    user.click(findButton(preview, "Mentés PDF-be..."));
  });
  ASSERT_EQ(boxes().size(), 2u);
  EXPECT_NE(boxes()[1].find("Megtelt a lemez, a fájl nem készült el: /dev/full."), std::string::npos) << boxes()[1];
}

TEST_F(PrintPreviewTest, printsOnTheChosenPrinter) {
  const ToolFolder tools;
  tools.add("lpstat", "echo iroda; echo raktár");
  tools.add("lp", "for word; do printf '%s\\n' \"$word\" >> $TOOLS/arguments; done; /bin/cp \"$word\" $TOOLS/document");
  preview(kComplete, [&](PrintPreview&) {
    choosePrinter("raktár", 3);
    answerNext("OK");
    user.key(FX::KEY_p, {FX::KEY_Control_L});
  });
  EXPECT_EQ(boxes(), Texts{"A számla a nyomtatóra került: K-2025/0117"});
  EXPECT_EQ(tools.written("arguments").find("-n\n3\n-d\nraktár\n"), 0u) << tools.written("arguments");
  EXPECT_EQ(tools.written("document").substr(0, 5), "%PDF-");
  EXPECT_STREQ(application->reg().readStringEntry("Printing", "printer", ""), "raktár");
}

TEST_F(PrintPreviewTest, offersThePrintersAndTheSystemsOwn) {
  const ToolFolder tools;
  tools.add("lpstat", "echo iroda; echo raktár");
  application->reg().writeStringEntry("Printing", "printer", "raktár");
  preview(kComplete, [&](PrintPreview& preview) {
    user.whenModal([this](FX::FXWindow& window) {
      auto* printers = descendantsOf<FX::FXComboBox>(&window).front();
      ASSERT_EQ(printers->getNumItems(), 3);
      EXPECT_EQ(LayoutWalk().findFaults(dynamic_cast<FX::FXShell&>(window)), Texts());
      EXPECT_STREQ(printers->getItemText(1).text(), "iroda");
      EXPECT_STREQ(printers->getText().text(), "raktár");
      EXPECT_STREQ(dynamic_cast<PrinterDialog&>(window).getChoice().printer.text(), "raktár");
      printers->setText(printers->getItemText(0));
      EXPECT_STREQ(dynamic_cast<PrinterDialog&>(window).getChoice().printer.text(), "");
      user.key(FX::KEY_Escape);
    });
    user.click(findButton(preview, "Nyomtatás..."));
  });
  EXPECT_EQ(boxes(), Texts());
}

TEST_F(PrintPreviewTest, thePrintersCanBeToldByTheEndsOfTheirNames) {
  const std::string name = "Titkarsagi-szines-lezernyomtato-es-fenymasolo-a-harmadik-emeleten-";
  const ToolFolder tools;
  tools.add("lpstat", "for floor in 1 2 3 4 5 6 7 8 9 10 11 12; do echo " + name + "$floor; done");
  FX::FXint room = 0;
  preview(kComplete, [&](PrintPreview& preview) {
    user.whenModal([&](FX::FXWindow& window) {
      user.click(descendantsOf<FX::FXMenuButton>(&window).front());
      const FX::FXWindow* pane = application->getPopupWindow();
      ASSERT_NE(pane, nullptr);
      room = descendantsOf<FX::FXList>(pane).front()->getViewportWidth();
      user.key(FX::KEY_Escape);
      user.key(FX::KEY_Escape);
    });
    user.click(findButton(preview, "Nyomtatás..."));
  });
  EXPECT_GE(room, application->getNormalFont()->getTextWidth((name + "12").c_str()));
}

TEST_F(PrintPreviewTest, showsWhatThePrintingSystemComplainsOf) {
  const ToolFolder tools;
  tools.add("lp", "echo 'lp: The printer or class does not exist.' >&2; exit 1");
  preview(kComplete, [&](PrintPreview&) {
    choosePrinter("nincs ilyen", 1);
    answerNext("OK");
    user.key(FX::KEY_p, {FX::KEY_Control_L});
  });
  ASSERT_EQ(boxes().size(), 1u);
  EXPECT_NE(boxes()[0].find("lp: The printer or class does not exist."), std::string::npos) << boxes()[0];
}

TEST_F(PrintPreviewTest, opensFromTheListOfInvoices) {
  MainWindow& window = openMain();
  window.showPage(MainWindow::PAGE_INVOICES);
  window.getInvoices()->getList()->setCurrentId(kComplete);
  bool wasThere = false;
  user.whenModal([&](FX::FXWindow& box) {
    wasThere = dynamic_cast<PrintPreview*>(&box) != nullptr;
    user.key(FX::KEY_Escape);
  });
  user.key(FX::KEY_p, {FX::KEY_Control_L});
  EXPECT_TRUE(wasThere);
  EXPECT_TRUE(workspace->getWindows().empty());
  delete &window;
}

TEST_F(PrintPreviewTest, showsWhatIsTypedInAnOpenFormButNotSavedYet) {
  MainWindow& window = openMain();
  window.showPage(MainWindow::PAGE_INVOICES);
  window.getInvoices()->getList()->setCurrentId(kComplete);
  InvoiceEditForm& form = open(kComplete);
  form.getInvoice()->getItems()[0]->setName("Frissen átírt név");
  user.giveKeyboardTo(&window);
  std::string printed;
  user.whenModal([&](FX::FXWindow& box) {
    for (const auto& line : dynamic_cast<PrintPreview&>(box).getPages().getPages()[0]) {
      for (const auto& piece : line.pieces) printed += piece.text + "\n";
    }
    user.key(FX::KEY_Escape);
  });
  user.key(FX::KEY_p, {FX::KEY_Control_L});
  EXPECT_NE(printed.find("Frissen átírt név\n"), std::string::npos) << printed;
  delete &form;
  delete &window;
}
