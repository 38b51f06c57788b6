// Nothing that people read may be cut off, in no window, on a small screen and a big one, with the usual letters and
// with letters twice as large. WINDOW_PICTURES names a folder to which pictures of them all are saved to look at.

#include <cstdlib>
#include <fstream>

#include <fxkeys.h>

#include "app/window/Dialogs.h"
#include "app/window/GoodsListFrame.h"
#include "app/window/GoodsWindow.h"
#include "app/window/OpenWindow.h"
#include "app/window/ProgressWindow.h"
#include "fxext/widgets/gallery/Picture.h"
#include "host/ui/GoodsDataWindow.h"
#include "tests/app/print/ToolFolder.h"
#include "tests/app/window/WindowFixture.h"
#include "tests/support/LayoutWalk.h"
#include "tests/support/SpokenLanguage.h"

using Brontel::GoodsDataWindow;
using FX::FXint;
using FX::FXWindow;

namespace {

struct Look {
  int width;
  int height;
  unsigned fontScale;
  const char* language;  ///< empty for the texts as they stand in the program

  std::string screen() const { return std::to_string(width) + "x" + std::to_string(height) + "x24"; }
  std::string name() const {
    return std::string(language) + std::to_string(width) + "Font" + std::to_string(fontScale);
  }
};

FX::FXString repeated(const FX::FXString& text, int times) {
  FX::FXString result;
  for (int i = 0; i < times; ++i) result += text;
  return result;
}

/// Before the plug-ins, which look their names up when they are loaded.
class Speaker : public ::testing::WithParamInterface<Look> {
 protected:
  Speaker() {
    const std::string language = GetParam().language;
    if (!language.empty()) spoken_ = std::make_unique<SpokenLanguage>(language);
  }

 private:
  std::unique_ptr<SpokenLanguage> spoken_;
};

class LayoutTest : public Speaker, public WindowFixture {
 protected:
  static constexpr int kClosed = 3;  // of the sample

  LayoutTest() : WindowFixture(GetParam().screen()) {
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
    while (!workspace->getWindows().empty()) delete workspace->getWindows().back()->getWindow();
    delete main_;
    if (normal_ != nullptr) application->setNormalFont(normal_);
  }

  /// Expects that nothing of the window is cut off.
  void look(FXWindow& window, const std::string& name, LayoutWalk::Columns columns = LayoutWalk::Columns::FitHeadings) {
    user.settle();
    savePicture(window, name);
    for (const std::string& fault : LayoutWalk(columns).findFaults(dynamic_cast<FX::FXShell&>(window))) {
      ADD_FAILURE() << name << ": " << fault;
    }
  }

  /// As it comes up, and as big as the screen.
  void lookTwice(FX::FXTopWindow& window, const std::string& name) {
    look(window, name);
    window.position(0, 0, GetParam().width, GetParam().height);
    look(window, name + "-maximised");
  }

  /// Looks at the modal window that something brings up, which Escape ends.
  void lookAtNext(const std::string& name) {
    user.whenModal([this, name](FXWindow& window) {
      look(window, name);
      user.key(FX::KEY_Escape);
    });
  }

  /// Looks at the pane that a click on something brings up, and lets it go.
  void lookAtPaneOf(const FXWindow& opener, const std::string& name) {
    user.click(&opener);
    FXWindow* pane = application->getPopupWindow();
    ASSERT_NE(pane, nullptr) << name;
    look(*pane, name);
    user.key(FX::KEY_Escape);
    if (application->getPopupWindow() != nullptr) user.click(&opener);
    ASSERT_EQ(application->getPopupWindow(), nullptr) << name;
  }

  void lookAtMenusOf(FX::FXTopWindow& window, const std::string& name) {
    int number = 0;
    for (const FX::FXMenuTitle* title : descendantsOf<FX::FXMenuTitle>(&window)) {
      lookAtPaneOf(*title, name + "-menu" + std::to_string(++number));
    }
  }

  /// The item data of a line of a form, by its menu's first entry, while something looks at it.
  void whileItemData(InvoiceEditForm& form, FXint row, const std::function<void(FXWindow&)>& see) {
    form.getGrid()->goTo(row, ItemGrid::GOODS);
    user.whenModal([this, see](FXWindow&) {
      user.whenModal([this, see](FXWindow& dialog) {
        see(dialog);
        user.key(FX::KEY_Escape);
      });
      user.key(FX::KEY_Down);
      user.key(FX::KEY_Return);
    });
    command(form, InvoiceEditForm::ID_ITEM_MENU);
  }

  /// Looks at everything that a button of a widget's kind opens.
  void lookAtPanesIn(const FXWindow& window, const std::string& name) {
    int number = 0;
    for (const FX::FXMenuButton* button : descendantsOf<FX::FXMenuButton>(&window)) {
      lookAtPaneOf(*button, name + "-pane" + std::to_string(++number));
    }
    EXPECT_GT(number, 0) << name;
  }

  MainWindow& useMain(const std::vector<FX::FXString>& notices = {}) {
    main_ = &openMain(notices);
    return *main_;
  }

 private:
  void savePicture(const FXWindow& window, const std::string& name) const {
    const char* folder = std::getenv("WINDOW_PICTURES");
    if (folder == nullptr) return;
    const std::string file = std::string(folder) + "/" + name + "-" + GetParam().name() + ".png";
    EXPECT_TRUE(Picture(&window).save(file.c_str()));
  }

  std::unique_ptr<FX::FXFont> font_;
  FX::FXFont* normal_ = nullptr;
  MainWindow* main_ = nullptr;
};

}  // namespace

TEST_P(LayoutTest, theMainWindow) {
  lookAtNext("notices");
  MainWindow& window = useMain({"Egy figyelmeztetés.", repeated("Egy másik, ", 30)});
  for (FXint page = 0; page < MainWindow::PAGES; ++page) {
    window.showPage(page);
    look(window, "main" + std::to_string(page));
  }
  FXint kind = 0;
  for (const Brontel::App::GoodsListFrame* goods : descendantsOf<Brontel::App::GoodsListFrame>(&window)) {
    ++kind;
    window.showPage(MainWindow::PAGE_INVOICES + kind);
    lookAtNext("main-goods-menu" + std::to_string(kind));
    user.click(goods->getList(), 3);
  }
  EXPECT_EQ(kind, 3);
  lookAtMenusOf(window, "main");
  window.position(0, 0, GetParam().width, GetParam().height);
  for (FXint page = 0; page < MainWindow::PAGES; ++page) {
    window.showPage(page);
    look(window, "main" + std::to_string(page) + "-maximised");
  }
  lookAtNext("about");
  command(window, MainWindow::ID_ABOUT);
}

TEST_P(LayoutTest, theInvoiceForm) {
  exec("update t_invoice set partner='Corvus Orvosi Eszközök Kereskedelmi és Szolgáltató Kft.' where t_invoice_id=3");
  InvoiceEditForm& empty = openNew();
  lookTwice(empty, "form-new");
  delete &empty;
  InvoiceEditForm& closed = open(kClosed);
  lookTwice(closed, "form-closed");
  delete &closed;
  InvoiceEditForm& form = open(kIncomplete);
  EXPECT_GT(form.getMessages()->getNumItems(), 0);
  lookTwice(form, "form");
  lookAtMenusOf(form, "form");
  lookAtNext("form-item-menu");
  command(form, InvoiceEditForm::ID_ITEM_MENU);
  lookAtNext("preview");
  command(form, InvoiceEditForm::ID_PREVIEW);
  user.giveKeyboardTo(&form);
  form.getGrid()->setFocus();
  form.getGrid()->goTo(0, ItemGrid::GOODS);
  user.key(FX::KEY_F2);
  look(form, "form-goods");
  lookAtPanesIn(*form.getGrid(), "form-goods");
  form.getGrid()->cancelInput();
  lookAtNext("form-storno");
  command(form, InvoiceEditForm::ID_CLOSE_INVOICE);
}

TEST_P(LayoutTest, thePrinters) {
  const ToolFolder tools;
  tools.add("lpstat",
            "echo Titkarsagi-szines-lezernyomtato-es-fenymasolo-a-regi-epulet-harmadik-emeleten-A3;"
            "for floor in 1 2 3 4 5 6 7 8 9 10 11 12; do echo Nyomtato-a-$floor-emeleten; done");
  user.whenModal([this](FXWindow&) {
    user.whenModal([this](FXWindow& dialog) {
      look(dialog, "printers");
      lookAtPanesIn(dialog, "printers");
      user.key(FX::KEY_Escape);
    });
    user.key(FX::KEY_p, {FX::KEY_Control_L});
    user.key(FX::KEY_Escape);
  });
  command(open(kComplete), InvoiceEditForm::ID_PREVIEW);
}

TEST_P(LayoutTest, theItemData) {
  constexpr auto kSettled = LayoutWalk::Columns::Settled;
  InvoiceEditForm& form = open(kComplete);
  whileItemData(form, 0, [this](FXWindow& dialog) { look(dialog, "data-rows", kSettled); });
  whileItemData(form, 1, [this](FXWindow& dialog) { look(dialog, "data-text", kSettled); });
  whileItemData(form, 2, [this](FXWindow& dialog) {
    look(dialog, "data-list", kSettled);
    lookAtPanesIn(dialog, "data-list");
  });
  // One of each kind, recorded once and per unit.
  exec(
      "insert into t_itemvariable (t_itemvariable_id, name, type, process, mandatory, vvalue) values "
      "(71,'Kalibrálás napja',2,0,1,''), (72,'Besorolás',3,1,0,'A,B,C');"
      "insert into t_productitemdata (t_product_1, t_itemvariable_1, position, direction) values "
      "(1,3,3,100), (1,4,4,100), (1,71,5,100), (1,72,6,100)");
  form.reload();
  whileItemData(form, 0, [this](FXWindow& dialog) {
    look(dialog, "data-all", kSettled);
    lookAtPanesIn(dialog, "data-all");
    user.putOnClipboard("1\t2\t3\t4\t5\t6\t7\t8\t9");
    user.giveKeyboardTo(&dialog);
    const auto tables = descendantsOf<FX::FXTable>(&dialog);
    ASSERT_EQ(tables.size(), 1u);
    tables[0]->setFocus();
    lookAtNext("data-paste");
    user.key(FX::KEY_v, {FX::KEY_Control_L});
  });
}

TEST_P(LayoutTest, theGoodsWindows) {
  for (const Brontel::GoodsKind kind : {Brontel::GOODS_PRODUCT, Brontel::GOODS_SERVICE, Brontel::GOODS_SUITE}) {
    const std::string name = "goods" + std::to_string(kind);
    GoodsDataWindow* window = openGoodsWindow(*workspace, nullptr, kind, 1);
    ASSERT_NE(window, nullptr);
    user.giveKeyboardTo(window);
    look(*window, name);
    window->getTabs()->setCurrent(1, TRUE);
    lookTwice(*window, name + "-panel");
    // The name comes first.
    window->getTabs()->setCurrent(0, TRUE);
    descendantsOf<FX::FXTextField>(window)[1]->setText("");
    lookAtNext(name + "-incomplete");
    command(*window, GoodsDataWindow::ID_OK);
    lookAtNext(name + "-unsaved");
    window->close(TRUE);
    lookAtNext(name + "-lost");
    command(*window, GoodsDataWindow::ID_CANCEL);
  }
}

TEST_P(LayoutTest, theSettings) {
  user.whenModal([this](FXWindow& dialog) {
    look(dialog, "settings");
    auto* table = descendantsOf<FX::FXTable>(&dialog).front();
    // Of a row that is new, everything can be chosen, and everything is missing.
    user.key(FX::KEY_Insert);
    table->setCurrentItem(table->getNumRows() - 1, 1, TRUE);
    user.key(FX::KEY_F2);
    look(dialog, "settings-choice");
    lookAtPanesIn(*table, "settings");
    user.key(FX::KEY_Escape);
    lookAtNext("settings-incomplete");
    user.click(findButton(dialog, "OK"));
    table->setFocus();
    lookAtNext("settings-delete");
    user.key(FX::KEY_Delete);
    user.key(FX::KEY_Escape);
  });
  command(useMain(), MainWindow::ID_SETTINGS);
}

TEST_P(LayoutTest, theBoxes) {
  Brontel::App::ProgressWindow progress(application.get());
  progress.create();
  progress.showOver(nullptr);
  look(progress, "progress");
  progress.hide();
  const FX::FXString path = "/home/valaki" + repeated("/egy-igen-hosszu-nevu-mappa", 8) + "/brontel.db";
  lookAtNext("error");
  Brontel::App::Dialogs::showError(
      nullptr, "Az adatbázist most egy másik program használja: " + path + ". Próbálja újra, ha az befejezte.");
  lookAtNext("file");
  Brontel::App::Dialogs::askForNewFile(application->getRootWindow(), "XML exportálása", "K-2025-0117.xml",
                                       "XML-fájlok (*.xml)\nMinden fájl (*)");
  lookAtNext("question");
  Brontel::App::Dialogs::askToSave(nullptr, "A számla módosult: K-2025/0117\n\nMenti a változásokat?");
}

INSTANTIATE_TEST_SUITE_P(Looks, LayoutTest,
                         ::testing::Values(Look{1024, 768, 1, ""}, Look{1920, 1080, 1, ""}, Look{1024, 768, 2, ""},
                                           Look{1920, 1080, 2, ""}),
                         [](const ::testing::TestParamInfo<Look>& look) { return look.param.name(); });

INSTANTIATE_TEST_SUITE_P(LongLooks, LayoutTest,
                         ::testing::Values(Look{1024, 768, 1, "en"}, Look{1024, 768, 2, "en"},
                                           Look{1920, 1080, 2, "en"}, Look{1024, 768, 1, "de"},
                                           Look{1024, 768, 2, "de"}, Look{1920, 1080, 2, "de"}),
                         [](const ::testing::TestParamInfo<Look>& look) { return look.param.name(); });
