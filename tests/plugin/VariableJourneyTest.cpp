#include <fxkeys.h>

#include "fxext/widgets/FXDualList.h"
#include "host/ui/ProductDataWindow.h"
#include "tests/plugin/PluginWorld.h"
#include "tests/plugin/WindowFixture.h"

using Brontel::Invoice;
using Brontel::InvoiceItem;
using Brontel::InvoiceRepository;
using Brontel::ProductDataWindow;
using FX::FXWindow;
using FXExt::FXDualList;
using Result = InvoiceRepository::Result;

namespace {

/// From the definition of variables to invoices, through the windows.
class VariableJourneyTest : public WindowFixture {
 protected:
  enum Variable { SERIAL = 1, EXPIRY, COLOUR, NOTE, WARRANTY };

  VariableJourneyTest() : repository(database.handle(), registry) {
    database.exec("insert into t_product (t_product_id, name, unit, version) values (1, 'Kanapé', 'db', 1)");
  }

  void defineVariables() {
    EXPECT_EQ(openSettings({[](FXWindow* dialog) {
                addVariable(dialog, {"Gyári szám", "1", "1", "1", ""});
                addVariable(dialog, {"Lejárat", "2", "1", "0", ""});
                addVariable(dialog, {"Szín", "3", "1", "0", "piros,kék"});
                addVariable(dialog, {"Megjegyzés", "1", "0", "0", ""});
                addVariable(dialog, {"Garancia", "2", "0", "1", ""});
                accept(dialog);
              }}),
              1);
  }

  /// Lets somebody change the outgoing list of the product and press OK.
  void editProduct(const std::function<void(FXDualList*, FXDualList*)>& change) {
    auto* window = new ProductDataWindow(application.get(), "");
    ASSERT_EQ(window->open(database.handle(), registry, 1), Brontel::GoodsRepository::Result::Done);
    window->create();
    window->show(FX::PLACEMENT_SCREEN);
    user.giveKeyboardTo(window);
    window->getTabs()->setCurrent(1, TRUE);
    user.settle();
    const auto lists = descendantsOf<FXDualList>(window);
    ASSERT_EQ(lists.size(), 2u);
    change(lists[0], lists[1]);
    user.key(FX::KEY_o, {FX::KEY_Alt_L});
    EXPECT_EQ(application->getActiveWindow() == window, false);
  }
  // By a click on the item and on the arrow.
  void choose(FXDualList* lists, const char* name) { move(lists, lists->getFromList(), name, 0); }
  void giveBack(FXDualList* lists, const char* name) { move(lists, lists->getToList(), name, 1); }
  void moveUp(FXDualList* lists, const char* name) { move(lists, lists->getToList(), name, 2); }
  void move(FXDualList* lists, FX::FXList* list, const char* name, size_t arrow) {
    const FX::FXint item = list->findItem(name);
    ASSERT_GE(item, 0) << name;
    list->makeItemVisible(item);
    user.settle();
    user.clickAt(list, 30, item * list->getItemHeight(0) + list->getYPosition() + list->getItemHeight(0) / 2);
    user.click(descendantsOf<FX::FXArrowButton>(lists).at(arrow));
  }

  /// What is associated, as "variable direction" in order.
  Texts associations() const {
    Texts texts;
    for (const auto& row :
         database.rows("select t_itemvariable_1||' '||direction from t_productitemdata order by direction, position")) {
      texts.push_back(row[0]);
    }
    return texts;
  }
  std::unique_ptr<Invoice> load(int id) {
    Result result = Result::Failed;
    std::unique_ptr<Invoice> invoice = repository.load(id, result);
    EXPECT_EQ(result, Result::Done);
    return invoice;
  }
  std::string print(const Invoice& invoice) { return registry.toString(invoice.getItems()[0]).text(); }
  /// Stores an invoice of two sofas with all data, and gives its key.
  int recordInvoice() {
    const std::unique_ptr<Invoice> invoice = newInvoice();
    auto* item = new InvoiceItem;
    item->setGoods(Brontel::GOODS_PRODUCT, 1);
    item->setName("Kanapé");
    item->setUnit("db");
    item->setQuantity(FXExt::FXDecimal("2", 4));
    invoice->appendItem(item);
    registry.load(item);
    type(item, NOTE, 0, "sérült doboz");
    type(item, WARRANTY, 0, "2026.12.31");
    for (int row = 1; row <= 2; ++row) {
      dataOf(item)->addRows(1);
      type(item, -1, row, "1");
      type(item, SERIAL, row, row == 1 ? "S1" : "S2");
      type(item, COLOUR, row, row == 1 ? "piros" : "kék");
    }
    EXPECT_EQ(repository.save(*invoice), Result::Done);
    return invoice->getId();
  }

  InvoiceRepository repository;
};

}  // namespace

TEST_F(VariableJourneyTest, leadsFromDefinitionsToInvoicesAndBack) {
  defineVariables();
  EXPECT_EQ(variables(), (Texts{"1 Gyári szám 1 1 1 ", "2 Lejárat 2 1 0 ", "3 Szín 3 1 0 piros,kék",
                                "4 Megjegyzés 1 0 0 ", "5 Garancia 2 0 1 "}));
  editProduct([this](FXDualList* incoming, FXDualList* outgoing) {
    choose(incoming, "Gyári szám");
    for (const char* name : {"Szín", "Gyári szám", "Megjegyzés", "Garancia", "Lejárat"}) choose(outgoing, name);
  });
  EXPECT_EQ(associations(), (Texts{"3 100", "1 100", "4 100", "5 100", "2 100", "1 200"}));
  editProduct([this](FXDualList*, FXDualList* outgoing) { moveUp(outgoing, "Gyári szám"); });
  EXPECT_EQ(associations(), (Texts{"1 100", "3 100", "4 100", "5 100", "2 100", "1 200"}));

  const int id = recordInvoice();
  const std::string printed = print(*load(id));
  for (const char* part : {"sérült doboz", "2026.12.31", "S1", "S2", "piros", "kék"}) {
    EXPECT_NE(printed.find(part), std::string::npos) << part << " in " << printed;
  }
  EXPECT_LT(printed.find("S1"), printed.find("piros")) << printed;

  editProduct([this](FXDualList*, FXDualList* outgoing) { giveBack(outgoing, "Szín"); });
  EXPECT_EQ(associations(), (Texts{"1 100", "4 100", "5 100", "2 100", "1 200"}));
  const std::string without = print(*load(id));
  for (const char* part : {"sérült doboz", "2026.12.31", "S1", "S2", "piros", "kék"}) {
    EXPECT_NE(without.find(part), std::string::npos) << part << " in " << without;
  }
}

TEST_F(VariableJourneyTest, takingTheLastVariableAwayPrintsNothingButKeepsWhatIsStored) {
  defineVariables();
  editProduct([this](FXDualList*, FXDualList* outgoing) {
    for (const char* name : {"Gyári szám", "Szín", "Megjegyzés", "Garancia"}) choose(outgoing, name);
  });
  const int id = recordInvoice();
  const std::string printed = print(*load(id));
  const std::string select = "select count(*) from t_invoiceitemdata";
  const std::string stored = database.text(select);
  EXPECT_NE(stored, "0");
  editProduct([this](FXDualList*, FXDualList* outgoing) {
    for (const char* name : {"Gyári szám", "Szín", "Megjegyzés", "Garancia"}) giveBack(outgoing, name);
  });
  EXPECT_EQ(associations(), Texts());
  const std::unique_ptr<Invoice> bare = load(id);
  EXPECT_EQ(print(*bare), "");
  EXPECT_EQ(repository.save(*bare), Result::Done);
  EXPECT_EQ(database.text(select), stored);
  editProduct([this](FXDualList*, FXDualList* outgoing) {
    for (const char* name : {"Gyári szám", "Szín", "Megjegyzés", "Garancia"}) choose(outgoing, name);
  });
  EXPECT_EQ(print(*load(id)), printed);
}

TEST_F(VariableJourneyTest, aVariableCannotBeDeletedWhileGoodsCarryItAndCanBeAfterwards) {
  defineVariables();
  editProduct([this](FXDualList*, FXDualList* outgoing) {
    for (const char* name : {"Gyári szám", "Szín", "Megjegyzés", "Garancia"}) choose(outgoing, name);
  });
  recordInvoice();
  const std::string stored = database.text("select count(*) from t_invoiceitemdata");
  editProduct([this](FXDualList*, FXDualList* outgoing) { giveBack(outgoing, "Szín"); });
  const auto work = [this](FXWindow* dialog) {
    user.giveKeyboardTo(dialog);
    user.clickCell(&tableOf(dialog), 0, 0);
    user.key(FX::KEY_Delete);
    EXPECT_EQ(tableOf(dialog).getNumRows(), 5) << "it is in use";
    user.clickCell(&tableOf(dialog), 2, 0);
    user.key(FX::KEY_Delete);
    EXPECT_EQ(tableOf(dialog).getNumRows(), 4);
    accept(dialog);
  };
  EXPECT_EQ(openSettings({work, [](FXWindow* box) { answer(box, FX::FXMessageBox::ID_CLICKED_YES); }}), 1);
  EXPECT_EQ(variables().size(), 4u);
  EXPECT_EQ(database.text("select count(*) from t_invoiceitemdata"), stored);
}
