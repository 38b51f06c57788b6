// In whatever language, no window shows a text of another: not one of the program's that nobody translated, and not one
// that the toolkit brings along.

#include <algorithm>
#include <cctype>

#include <fxkeys.h>
#include <libintl.h>

#include "app/window/Dialogs.h"
#include "app/window/GoodsWindow.h"
#include "app/window/OpenWindow.h"
#include "host/ui/GoodsDataWindow.h"
#include "tests/app/window/WindowFixture.h"
#include "tests/app/window/WindowTexts.h"
#include "tests/support/MessageCatalog.h"
#include "tests/support/PoFile.h"
#include "tests/support/SpokenLanguage.h"

using FX::FXWindow;

namespace {

using Texts = std::vector<std::string>;

constexpr const char* kMark = "»";
constexpr const char* kMarked = "xx";  ///< a language in which every text is its own translation, with marks

bool hasLetter(const std::string& text) {
  return std::any_of(text.begin(), text.end(), [](char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; });
}

// The lines and parts of a text, one by one.
Texts pieces(const std::string& text) {
  Texts found(1);
  for (const char c : text) {
    if (c == '\n' || c == '\t') {
      found.emplace_back();
    } else if (c != '&') {
      found.back() += c;
    }
  }
  return found;
}

bool isAccelerator(const std::string& text) {
  return text.starts_with("Ctrl+") || text.starts_with("Shift+") || text == "Ins" || text == "Del" ||
         (text.size() == 2 && text[0] == 'F') || text == "%s";
}

// A mark before each part that is to be read.
std::string marked(const std::string& text) {
  std::string result;
  for (size_t begin = 0; begin <= text.size();) {
    const size_t end = std::min(text.find_first_of("\t\n", begin), text.size());
    const std::string part = text.substr(begin, end - begin);
    result += (hasLetter(part) && !isAccelerator(part) ? kMark + part : part) + text.substr(end, end < text.size());
    begin = end + 1;
  }
  return result;
}

/// The language comes before the windows.
class Tongue {
 protected:
  explicit Tongue(const std::string& language) {
    if (language != kMarked) {
      spoken_ = std::make_unique<SpokenLanguage>(language);
      return;
    }
    for (const std::string& domain : SpokenLanguage::domains()) {
      MessageCatalog catalogue;
      for (const PoEntry& entry : readPoFile(templateOf(domain))) catalogue.add(entry.text, marked(entry.text));
      EXPECT_TRUE(catalogue.install(folder_.path(), language, domain));
    }
    spoken_ = std::make_unique<SpokenLanguage>(language, folder_.path(), SpokenLanguage::domains());
  }

  static std::string templateOf(const std::string& domain) { return SOURCE_FOLDER "/po/" + domain + ".pot"; }

  /// Every line and part of every text in that language.
  static std::set<std::string> allPieces(const std::string& language) {
    std::set<std::string> all;
    for (const std::string& domain : SpokenLanguage::domains()) {
      const bool isSource = language == "hu";
      const std::string file = isSource ? templateOf(domain) : SOURCE_FOLDER "/po/" + language + "/" + domain + ".po";
      for (const PoEntry& entry : readPoFile(file)) {
        for (const std::string& piece : pieces(isSource ? entry.text : entry.translations.front())) all.insert(piece);
      }
    }
    return all;
  }

 private:
  TemporaryDirectory folder_;
  std::unique_ptr<SpokenLanguage> spoken_;
};

class LanguageWalkTest : private Tongue, public WindowFixture, public ::testing::WithParamInterface<std::string> {
 protected:
  LanguageWalkTest() : Tongue(GetParam()) {}

  ~LanguageWalkTest() override {
    while (!workspace->getWindows().empty()) delete workspace->getWindows().back()->getWindow();
    if (HasFatalFailure()) return;
    EXPECT_EQ(clashes_, std::set<std::string>());
    if (GetParam() == kMarked) {
      expectMarks();
      return;
    }
    for (const std::string& other : SpokenLanguage::builtLanguages()) {
      if (other != GetParam()) expectNoneOf(other);
    }
  }

  void see() {
    user.settle();
    texts_.gather(*application->getRootWindow());
    for (const std::string& clash : WindowTexts::findKeyClashes(*application->getRootWindow())) clashes_.insert(clash);
  }

  /// Sees the modal window that something brings up, which Escape ends.
  void seeNext() {
    user.whenModal([this](FXWindow&) {
      see();
      user.key(FX::KEY_Escape);
    });
  }

  /// The item data of a line of a form, by its menu's first entry, while something happens.
  void whileItemData(InvoiceEditForm& form, FX::FXint row, const std::function<void(FXWindow&)>& script) {
    form.getGrid()->goTo(row, ItemGrid::GOODS);
    user.whenModal([this, script](FXWindow&) {
      see();
      user.whenModal([this, script](FXWindow& dialog) {
        see();
        script(dialog);
        user.key(FX::KEY_Escape);
      });
      user.key(FX::KEY_Down);
      user.key(FX::KEY_Return);
    });
    command(form, InvoiceEditForm::ID_ITEM_MENU);
  }

  /// Right click into a table or list, whose menu comes up.
  void seeMenuOf(const FXWindow* window) {
    seeNext();
    user.clickAt(window, window->getWidth() / 2, window->getHeight() / 2, 3);
  }

  size_t count() const { return texts_.all().size(); }

  std::set<std::string> kindsOfFiles_;

 private:
  void expectMarks() {
    for (const std::string& text : texts_.all()) {
      if (!hasLetter(text) || text.find(kMark) != std::string::npos || isData(text)) continue;
      ADD_FAILURE() << "Nobody translates this: " << text;
    }
  }

  void expectNoneOf(const std::string& other) {
    const std::set<std::string> ours = allPieces(GetParam());
    const std::set<std::string> theirs = allPieces(other);
    for (const std::string& text : texts_.all()) {
      for (const std::string& piece : pieces(text)) {
        if (!hasLetter(piece) || isData(piece) || ours.contains(piece)) continue;
        EXPECT_FALSE(theirs.contains(piece)) << "This is of the language " << other << ": " << piece;
      }
    }
  }

  /// What is stored or in the file system, the program's name, and what is there for the test.
  bool isData(const std::string& text) const {
    if (text == "other program") return true;
    if (text.starts_with("Brontel") || text.starts_with("brontel-host ") || text == "&OK" || text == "OK") return true;
    if (path.find("/" + text + "/") != std::string::npos) return true;
    if (text.find(".db") != std::string::npos || text.find(".so") != std::string::npos) return true;
    const std::string bare = text.ends_with(":") ? text.substr(0, text.size() - 1) : text;
    return dump().find("'" + bare + "'") != std::string::npos;
  }

  WindowTexts texts_;
  std::set<std::string> clashes_;
};

}  // namespace

TEST(WindowTextsTest, findsLettersThatStandForTwoThings) {
  TestApplication application;
  auto* window = new FX::FXMainWindow(application.get(), "w");
  new FX::FXLabel(window, "&One");
  new FX::FXLabel(window, "&Two");
  new FX::FXLabel(window, "T&hree");
  EXPECT_EQ(WindowTexts::findKeyClashes(*application->getRootWindow()), Texts());
  new FX::FXButton(window, "&three");
  new FX::FXLabel(window, "&one");
  window->getLast()->hide();
  EXPECT_EQ(WindowTexts::findKeyClashes(*application->getRootWindow()), (Texts{"FXMainWindow: Two, three"}));
}

TEST_P(LanguageWalkTest, theMainWindow) {
  seeNext();
  MainWindow& window = openMain({"1"});
  for (FX::FXint page = 0; page < MainWindow::PAGES; ++page) {
    window.showPage(page);
    see();
  }
  seeNext();
  command(window, MainWindow::ID_ABOUT);
  for (const FX::FXuint id : {MainWindow::ID_STORNO, MainWindow::ID_DELETE_INVOICE, MainWindow::ID_CLOSE_INVOICE}) {
    window.showPage(MainWindow::PAGE_INVOICES);
    seeNext();
    command(window, id);
  }
  EXPECT_GT(count(), 80u);
  delete &window;
}

TEST_P(LanguageWalkTest, theFileDialog) {
  const std::string taken = directory.write("taken.xml", "x");
  const std::string other = directory.path("no/such/file.xml");
  seeNext();
  Brontel::App::Dialogs::askForNewFile(application->getRootWindow(), "1", other.c_str(), "* (*)");
  user.whenModal([this](FXWindow& dialog) {
    const auto lists = descendantsOf<FX::FXFileList>(&dialog);
    ASSERT_EQ(lists.size(), 1u);
    user.whenModal([this](FXWindow& menu) {
      see();
      dynamic_cast<FX::FXPopup&>(menu).popdown();
    });
    user.clickAt(lists[0], lists[0]->getWidth() - 10, lists[0]->getHeight() - 30, 3);
    for (FX::FXint i = 0; i < lists[0]->getNumItems(); ++i) {
      kindsOfFiles_.insert(lists[0]->getItemText(i).section('\t', 1).text());
    }
    // The new folder's name, which there is already.
    user.whenModal([this](FXWindow& question) {
      see();
      descendantsOf<FX::FXTextField>(&question).front()->setText(directory.path().c_str());
      seeNext();
      user.key(FX::KEY_Return);
    });
    auto* selector = descendantsOf<FX::FXFileSelector>(&dialog).front();
    command(*selector, FX::FXFileSelector::ID_NEW);
    seeNext();
    dialog.handle(nullptr, FXSEL(FX::SEL_COMMAND, FX::FXDialogBox::ID_ACCEPT), nullptr);
  });
  Brontel::App::Dialogs::askForNewFile(application->getRootWindow(), "1", taken.c_str(), "* (*)");
  const std::set<std::string> expected = {gettext("Mappa"), gettext("Fájl")};
  EXPECT_EQ(kindsOfFiles_, expected);
  EXPECT_GT(count(), 40u);
}

TEST_P(LanguageWalkTest, theInvoiceForm) {
  InvoiceEditForm& form = open(kIncomplete);
  EXPECT_GT(form.getMessages()->getNumItems(), 0);
  see();
  seeNext();
  command(form, InvoiceEditForm::ID_ITEM_MENU);
  user.whenModal([this](FXWindow&) {
    see();
    seeNext();
    user.key(FX::KEY_p, {FX::KEY_Control_L});
    user.key(FX::KEY_Escape);
  });
  command(form, InvoiceEditForm::ID_PREVIEW);
  seeNext();
  command(form, InvoiceEditForm::ID_CLOSE_INVOICE);
  descendantsOf<FX::FXTextField>(&form)[1]->setText("1", TRUE);
  user.settle();
  seeNext();
  form.close(TRUE);
  user.settle();
  EXPECT_GT(count(), 40u);
}

TEST_P(LanguageWalkTest, theItemData) {
  exec(
      "insert into t_itemvariable (t_itemvariable_id, name, type, process, mandatory, vvalue) values "
      "(71,'Kalibrálás napja',2,0,1,''), (72,'Besorolás',3,1,0,'A,B,C');"
      "insert into t_productitemdata (t_product_1, t_itemvariable_1, position, direction) values "
      "(1,71,5,100), (1,72,6,100)");
  whileItemData(open(kComplete), 0, [this](FXWindow& dialog) {
    const auto tables = descendantsOf<FX::FXTable>(&dialog);
    ASSERT_EQ(tables.size(), 1u);
    seeMenuOf(tables[0]);
    for (const FX::FXMenuButton* button : descendantsOf<FX::FXMenuButton>(&dialog)) {
      user.click(button);
      see();
      user.key(FX::KEY_Escape);
      if (application->getPopupWindow() != nullptr) user.click(button);
    }
    user.putOnClipboard("1\t2\t3\t4\t5\t6\t7\t8\t9");
    user.giveKeyboardTo(&dialog);
    tables[0]->setFocus();
    seeNext();
    user.key(FX::KEY_v, {FX::KEY_Control_L});
  });
}

TEST_P(LanguageWalkTest, theGoodsWindows) {
  for (const Brontel::GoodsKind kind : {Brontel::GOODS_PRODUCT, Brontel::GOODS_SERVICE, Brontel::GOODS_SUITE}) {
    Brontel::GoodsDataWindow* window = Brontel::App::openGoodsWindow(*workspace, nullptr, kind, 1);
    ASSERT_NE(window, nullptr);
    user.giveKeyboardTo(window);
    see();
    window->getTabs()->setCurrent(1, TRUE);
    see();
    window->getTabs()->setCurrent(0, TRUE);
    descendantsOf<FX::FXTextField>(window)[1]->setText("");
    for (const FX::FXuint id : {Brontel::GoodsDataWindow::ID_OK, Brontel::GoodsDataWindow::ID_CANCEL}) {
      seeNext();
      command(*window, id);
    }
    seeNext();
    window->close(TRUE);
    user.settle();
  }
}

TEST_P(LanguageWalkTest, theSettings) {
  MainWindow& window = openMain();
  user.whenModal([this](FXWindow& dialog) {
    see();
    auto* table = descendantsOf<FX::FXTable>(&dialog).front();
    seeMenuOf(table);
    user.key(FX::KEY_Insert);
    table->setCurrentItem(table->getNumRows() - 1, 1, TRUE);
    user.key(FX::KEY_F2);
    see();
    user.key(FX::KEY_Escape);
    seeNext();
    user.click(findButton(dialog, GetParam() == kMarked ? "»OK" : "OK"));
    table->setFocus();
    seeNext();
    user.key(FX::KEY_Delete);
    user.key(FX::KEY_Escape);
  });
  command(window, MainWindow::ID_SETTINGS);
  delete &window;
}

TEST_P(LanguageWalkTest, theBoxes) {
  seeNext();
  Brontel::App::Dialogs::showError(nullptr, "1");
  seeNext();
  Brontel::App::Dialogs::showInformation(nullptr, "1", "1");
  seeNext();
  Brontel::App::Dialogs::confirm(nullptr, "1", "1");
  seeNext();
  Brontel::App::Dialogs::askToSave(nullptr, "1");
}

INSTANTIATE_TEST_SUITE_P(In, LanguageWalkTest, ::testing::ValuesIn(SpokenLanguage::builtLanguages()));
INSTANTIATE_TEST_SUITE_P(Marked, LanguageWalkTest, ::testing::Values(kMarked));
