#include <algorithm>

#include <fxkeys.h>

#include "app/window/GoodsListFrame.h"
#include "app/window/InvoiceHead.h"
#include "app/window/InvoiceListFrame.h"
#include "app/window/RecordedDataFrame.h"
#include "app/window/RowList.h"
#include "host/plugin/PluginContainer.h"
#include "tests/app/window/WindowFixture.h"

using Brontel::App::GoodsListFrame;
using Brontel::App::RowList;

namespace {

class MainWindowTest : public WindowFixture {
 protected:
  static Texts shown(const FX::FXIconList& list) {
    Texts lines;
    for (FX::FXint i = 0; i < list.getNumItems(); ++i) {
      FX::FXString line = list.getItemText(i);
      lines.emplace_back(line.substitute('\t', '|').text());
    }
    return lines;
  }

  static Texts numbers(const RowList& list) {
    Texts numbers;
    for (const std::string& line : shown(list)) numbers.push_back(line.substr(0, line.find('|')));
    return numbers;
  }

  void clickHeader(RowList& list, FX::FXint column) {
    const FX::FXHeader* header = list.getHeader();
    user.clickAt(header, header->getItemOffset(column) + 10, header->getHeight() / 2);
  }

  /// The widths of the columns of the list of one kind of goods, which come in the order of their pages.
  static std::vector<FX::FXint> goodsWidths(const MainWindow& window, size_t kind) {
    const GoodsListFrame& frame = *descendantsOf<GoodsListFrame>(&window).at(kind);
    std::vector<FX::FXint> widths;
    for (FX::FXint i = 0; i < frame.getList()->getNumHeaders(); ++i)
      widths.push_back(frame.getList()->getHeaderSize(i));
    return widths;
  }

  static void choose(MainWindow& window, int id) {
    window.getInvoices()->getList()->setCurrentId(id);
    ASSERT_EQ(window.getInvoices()->getList()->getCurrentId(), id);
  }
};

}  // namespace

TEST_F(MainWindowTest, listsTheInvoices) {
  MainWindow& window = openMain();
  EXPECT_EQ(shown(*window.getInvoices()->getList()),
            (Texts{"K-2025/0096/J1|Kimenő számla|Bükkaljai Általános Iskola|2025-03-05|Nyitott",
                   "K-2025/0118|Kimenő számla|Hársfa Idősek Otthona|2025-03-04|Nyitott",
                   "K-2025/0117|Kimenő számla|Szegedi Városi Uszoda|2025-03-03|Nyitott",
                   "K-2025/0096|Kimenő számla|Bükkaljai Általános Iskola|2025-02-18|Lezárt",
                   "B-2025/0042|Bejövő számla|Corvus Orvosi Eszközök Kft.|2025-02-10|Lezárt"}));
}

TEST_F(MainWindowTest, searchesWhileSomebodyTypesAndOpensWithEnter) {
  MainWindow& window = openMain();
  window.getInvoices()->getSearchField()->setFocus();
  user.type("HÁRSFA");
  EXPECT_EQ(numbers(*window.getInvoices()->getList()), Texts{"K-2025/0118"});
  user.key(FX::KEY_Return);
  user.key(FX::KEY_Return);
  EXPECT_EQ(newestForm().getInvoice()->getId(), kIncomplete);
}

TEST_F(MainWindowTest, sortsByTheHeaderThatIsClicked) {
  exec(
      "insert into t_invoice (t_invoice_id, number, t_invoicetype_1, t_invoicestatus_1, partner, date) values "
      "(10, '9', 101, 150, 'á', '2024-01-01'), (11, '10', 101, 150, 'b', '2024-01-02')");
  MainWindow& window = openMain();
  RowList& list = *window.getInvoices()->getList();
  choose(window, kComplete);
  clickHeader(list, 0);
  EXPECT_EQ(numbers(list),
            (Texts{"9", "10", "B-2025/0042", "K-2025/0096", "K-2025/0096/J1", "K-2025/0117", "K-2025/0118"}));
  EXPECT_EQ(list.getCurrentId(), kComplete);
  clickHeader(list, 0);
  EXPECT_EQ(numbers(list).front(), "K-2025/0118");
  EXPECT_EQ(numbers(list).back(), "9");
}

TEST_F(MainWindowTest, opensAnInvoiceOnceByDoubleClick) {
  MainWindow& window = openMain();
  RowList& list = *window.getInvoices()->getList();
  for (int i = 0; i < 2; ++i) {
    window.raise();
    user.giveKeyboardTo(&window);
    user.moveTo(&list, 40, list.getHeader()->getHeight() + list.getItemHeight() / 2);
    user.events.doubleClick();
    user.settle();
  }
  ASSERT_EQ(workspace->getWindows().size(), 1u);
  EXPECT_EQ(newestForm().getInvoice()->getId(), 5);
}

TEST_F(MainWindowTest, makesANewInvoiceThatAppearsOnceItIsSaved) {
  MainWindow& window = openMain();
  user.key(FX::KEY_n, {FX::KEY_Control_L});
  InvoiceEditForm& form = newestForm();
  EXPECT_EQ(window.getInvoices()->getList()->getNumItems(), 5);
  EXPECT_TRUE(form.saveChanges());
  EXPECT_EQ(window.getInvoices()->getList()->getNumItems(), 6);
}

TEST_F(MainWindowTest, derivesAndCopiesWithTheirData) {
  MainWindow& window = openMain();
  choose(window, 4);
  command(window, MainWindow::ID_DERIVE);
  EXPECT_STREQ(newestForm().getInvoice()->getNumber().text(), "K-2025/0096/J2");
  EXPECT_EQ(text("select t_invoice_1 from t_invoice where t_invoice_id=6"), "4");
  choose(window, kComplete);
  command(window, MainWindow::ID_COPY);
  EXPECT_STREQ(newestForm().getInvoice()->getNumber().text(), "K-2025/0117/M1");
  EXPECT_EQ(text("select count(*) from t_invoiceitemdata where value='DF5-240871'"), "2");
  EXPECT_EQ(window.getInvoices()->getList()->getNumItems(), 7);
}

TEST_F(MainWindowTest, offersToSaveBeforeItCopies) {
  MainWindow& window = openMain();
  InvoiceEditForm& form = open(kComplete);
  form.getInvoice()->getItems()[1]->setQuantity(FXExt::FXDecimal("13", 4));
  choose(window, kComplete);
  answerNext("Mégsem");
  command(window, MainWindow::ID_COPY);
  EXPECT_EQ(text("select count(*) from t_invoice"), "5");
  answerNext("Igen");
  command(window, MainWindow::ID_COPY);
  EXPECT_EQ(text("select count(*) from t_invoiceitem where quantity='13'"), "2");
}

TEST_F(MainWindowTest, cancelsClosedInvoicesOnly) {
  MainWindow& window = openMain();
  choose(window, kComplete);
  answerNext("OK");
  command(window, MainWindow::ID_STORNO);
  EXPECT_EQ(text("select t_invoicestatus_1 from t_invoice where t_invoice_id=1"), "150");
  choose(window, 4);
  answerNext("Nem");
  command(window, MainWindow::ID_STORNO);
  EXPECT_EQ(text("select t_invoicestatus_1 from t_invoice where t_invoice_id=4"), "151");
  answerNext("Igen");
  command(window, MainWindow::ID_STORNO);
  EXPECT_EQ(text("select t_invoicestatus_1 from t_invoice where t_invoice_id=4"), "152");
  EXPECT_EQ(shown(*window.getInvoices()->getList())[3].substr(0, 12), "K-2025/0096|");
  EXPECT_NE(shown(*window.getInvoices()->getList())[3].find("Stornózott"), std::string::npos);
}

TEST_F(MainWindowTest, deletesOpenInvoicesOnlyAfterAsking) {
  MainWindow& window = openMain();
  const std::string before = dump();
  choose(window, 4);
  answerNext("OK");
  command(window, MainWindow::ID_DELETE_INVOICE);
  choose(window, kComplete);
  answerNext("Nem");
  command(window, MainWindow::ID_DELETE_INVOICE);
  EXPECT_EQ(dump(), before);
  open(kComplete);
  answerNext("Igen");
  command(window, MainWindow::ID_DELETE_INVOICE);
  EXPECT_TRUE(workspace->getWindows().empty());
  EXPECT_EQ(text("select count(*) from t_invoice where t_invoice_id=1"), "0");
  EXPECT_EQ(text("select count(*) from t_invoiceitemdata where value='DF5-240871'"), "0");
  EXPECT_EQ(window.getInvoices()->getList()->getNumItems(), 4);
}

TEST_F(MainWindowTest, findsRecordedDataAndOpensTheirInvoice) {
  MainWindow& window = openMain();
  user.key(FX::KEY_f, {FX::KEY_Control_L});
  EXPECT_EQ(window.getPage(), MainWindow::PAGE_FIND);
  user.type("df5-24088");
  user.key(FX::KEY_Return);
  const Texts lines = shown(*window.getFound()->getList());
  ASSERT_EQ(lines.size(), 6u);
  EXPECT_NE(std::find(lines.begin(), lines.end(),
                      "DF5-240882|Gyári szám|Félautomata defibrillátor|B-2025/0042|Bejövő|"
                      "Corvus Orvosi Eszközök Kft.|2025-02-10"),
            lines.end())
      << ::testing::PrintToString(lines);
  user.key(FX::KEY_Return);
  EXPECT_NE(lines.front().find(newestForm().getInvoice()->getNumber().text()), std::string::npos) << lines.front();
}

TEST_F(MainWindowTest, aSearchWithoutResultSaysSo) {
  MainWindow& window = openMain();
  user.key(FX::KEY_f, {FX::KEY_Control_L});
  user.type("100% & _");
  user.key(FX::KEY_Return);
  EXPECT_EQ(window.getFound()->getList()->getNumItems(), 0);
  bool isSaid = false;
  for (const FX::FXLabel* label : descendantsOf<FX::FXLabel>(window.getFound())) {
    if (label->getText() == "Nincs ilyen rögzített adat: 100% & _") isSaid = true;
  }
  EXPECT_TRUE(isSaid);
}

TEST_F(MainWindowTest, settingsOpenOnlyOnceEverythingIsSavedAndFormsAreReadAgain) {
  MainWindow& window = openMain();
  InvoiceEditForm& form = open(kComplete);
  const Brontel::Invoice* invoice = form.getInvoice();
  form.getHead()->getPartnerField()->setText("Új név");
  answerNext("Nem");
  command(window, MainWindow::ID_SETTINGS);
  EXPECT_EQ(form.getInvoice(), invoice);
  EXPECT_EQ(boxes().size(), 1u);
  answerNext("Igen");
  bool opened = false;
  user.whenModal([&](FX::FXWindow& dialog) {
    opened = true;
    EXPECT_EQ(text("select partner from t_invoice where t_invoice_id=1"), "Új név");
    FX::FXButton* cancel = findButton(dialog, "Mégsem");
    ASSERT_NE(cancel, nullptr);
    user.click(cancel);
  });
  command(window, MainWindow::ID_SETTINGS);
  EXPECT_TRUE(opened);
  EXPECT_NE(form.getInvoice(), invoice);
  EXPECT_STREQ(form.getInvoice()->getPartner().text(), "Új név");
}

TEST_F(MainWindowTest, namesThePlugInsAndWhyOneIsMissing) {
  MainWindow& window = openMain();
  answerNext("OK");
  command(window, MainWindow::ID_ABOUT);
  ASSERT_EQ(boxes().size(), 1u);
  const Brontel::Plugin::PluginContainer* plugin = registry.getContainers().front();
  EXPECT_NE(boxes()[0].find(plugin->getName().text()), std::string::npos);
  EXPECT_NE(boxes()[0].find(plugin->getVersion().text()), std::string::npos);
  std::string said = boxes()[0];
  std::replace(said.begin(), said.end(), '\n', ' ');
  FX::FXString description = plugin->getDescription();
  EXPECT_NE(said.find(description.trim().text()), std::string::npos) << said;
}

TEST_F(MainWindowTest, closingAsksForEachWindow) {
  MainWindow& window = openMain();
  open(kComplete).getHead()->getPartnerField()->setText("a");
  open(kIncomplete).getHead()->getPartnerField()->setText("b");
  answerNext("Igen");
  answerNext("Mégsem");
  EXPECT_FALSE(window.close(TRUE));
  EXPECT_EQ(workspace->getWindows().size(), 1u);
  EXPECT_EQ(text("select partner from t_invoice where t_invoice_id=2"), "b");
  EXPECT_EQ(text("select partner from t_invoice where t_invoice_id=1"), "Szegedi Városi Uszoda");
}

TEST_F(MainWindowTest, comesBackAsItWasLeft) {
  std::vector<FX::FXint> usual;
  {
    for (const char* list : {"ProductList", "ServiceList", "SuiteList"}) application->reg().deleteSection(list);
    MainWindow& window = openMain();
    usual = goodsWidths(window, 0);
    window.position(60, 50, 700, 450);
    window.showPage(MainWindow::PAGE_FIND);
    window.getInvoices()->getList()->setHeaderSize(1, 77);
    for (FX::FXint kind = 0; kind < 3; ++kind) {
      descendantsOf<GoodsListFrame>(&window).at(static_cast<size_t>(kind))->getList()->setHeaderSize(kind, 151 + kind);
    }
    clickHeader(*window.getFound()->getList(), 2);
    user.settle();
    EXPECT_TRUE(window.close(TRUE));
  }
  MainWindow& window = openMain();
  EXPECT_EQ(window.getX(), 60);
  EXPECT_EQ(window.getY(), 50);
  EXPECT_EQ(window.getWidth(), 700);
  EXPECT_EQ(window.getHeight(), 450);
  EXPECT_EQ(window.getPage(), MainWindow::PAGE_FIND);
  EXPECT_EQ(window.getInvoices()->getList()->getHeaderSize(1), 77);
  for (size_t kind = 0; kind < 3; ++kind) {
    std::vector<FX::FXint> left = usual;
    left[kind] = 151 + static_cast<FX::FXint>(kind);
    EXPECT_EQ(goodsWidths(window, kind), left);
  }
}

TEST_F(MainWindowTest, widthsThatNobodyCanHaveLeftAreNotRemembered) {
  FX::FXRegistry& settings = application->reg();
  settings.deleteSection("ServiceList");
  for (const char* list : {"InvoiceList", "ProductList"}) {
    settings.writeIntEntry(list, "width0", 2000000000);
    settings.writeIntEntry(list, "width1", -2000000000);
    settings.writeStringEntry(list, "width2", "wide");
    settings.writeIntEntry(list, "width3", 133);
  }
  const MainWindow& window = openMain();
  // As those of another list, of which none are remembered.
  std::vector<FX::FXint> usual = goodsWidths(window, 1);
  usual[3] = 133;
  EXPECT_EQ(goodsWidths(window, 0), usual);
  const FX::FXIconList& invoices = *window.getInvoices()->getList();
  EXPECT_LT(invoices.getHeaderSize(0), window.getWidth() / 2);
  EXPECT_GT(invoices.getHeaderSize(1), 100);
  EXPECT_GT(invoices.getHeaderSize(2), 100);
  EXPECT_EQ(invoices.getHeaderSize(3), 133);
}

TEST_F(MainWindowTest, aPlaceOutsideTheScreenIsNotRemembered) {
  FX::FXRegistry& settings = application->reg();
  settings.writeIntEntry("MainWindow", "x", 9000);
  settings.writeIntEntry("MainWindow", "y", -50);
  settings.writeIntEntry("MainWindow", "width", 20000);
  settings.writeIntEntry("MainWindow", "page", 77);
  MainWindow& window = openMain();
  EXPECT_EQ(window.getX(), 0);
  EXPECT_EQ(window.getY(), 0);
  EXPECT_EQ(window.getWidth(), application->getRootWindow()->getWidth());
  EXPECT_EQ(window.getPage(), MainWindow::PAGE_FIND);
}

TEST_F(MainWindowTest, showsWhatThereIsToSayAtTheStart) {
  answerNext("OK");
  openMain({"Első.", "Második."});
  application.waitUntil([this] { return !boxes().empty(); });
  ASSERT_EQ(boxes().size(), 1u);
  EXPECT_EQ(boxes()[0], "Első.\n\nMásodik.");
}

TEST_F(MainWindowTest, aDatabaseErrorThatNobodyToldIsShown) {
  openMain();
  answerNext("OK");
  database.handle().run("select * from a_table_that_is_not_there");
  application.waitUntil([this] { return !boxes().empty(); });
  ASSERT_EQ(boxes().size(), 1u);
  EXPECT_NE(boxes()[0].find("a_table_that_is_not_there"), std::string::npos) << boxes()[0];
  EXPECT_FALSE(workspace->hasErrors());
}
