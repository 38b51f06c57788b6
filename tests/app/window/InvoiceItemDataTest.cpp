#include <fxkeys.h>

#include "host/entity/Invoice.h"
#include "tests/app/window/WindowFixture.h"

// The form together with what the real plug-in records for its items.

namespace {

class InvoiceItemDataTest : public WindowFixture {
 protected:
  static constexpr const char* kRecorded =
      "select i.position, d.row, ifnull(v.name,''), d.value from t_invoiceitemdata d "
      "join t_invoiceitem i on i.t_invoiceitem_id=d.t_invoiceitem_1 "
      "join t_itemvariable v on v.t_itemvariable_id=d.t_itemvariable_1 where i.t_invoice_1=%d "
      "order by 1, 2, d.t_itemvariable_1";

  Rows recorded(int invoice) const {
    std::string sql = kRecorded;
    return rows(sql.replace(sql.find("%d"), 2, std::to_string(invoice)));
  }

  static FX::FXTable* tableOf(const FX::FXWindow& dialog) {
    const auto tables = descendantsOf<FX::FXTable>(&dialog);
    return tables.empty() ? nullptr : tables.front();
  }

  /// A place in the list of messages, on the line of that index.
  void doubleClickMessage(InvoiceEditForm& form, FX::FXint line) {
    FX::FXIconList* list = form.getMessages();
    const FX::FXint height = list->getItemHeight();
    user.moveTo(list, 60, list->getHeader()->getHeight() + line * height + height / 2);
    user.events.doubleClick();
    user.settle();
  }

  /// The next dialog of the plug-in gets a value for every cell that is empty, and is left with OK.
  void fillNextDialog(const std::string& value) {
    user.whenModal([this, value](FX::FXWindow& dialog) {
      FX::FXButton* ok = findButton(dialog, "OK");
      ASSERT_NE(ok, nullptr);
      for (FX::FXTextField* field : descendantsOf<FX::FXTextField>(&dialog)) {
        if (field->isEditable() && field->getText().empty()) {
          user.click(field);
          user.type(value);
        }
      }
      user.click(ok);
    });
  }
};

}  // namespace

TEST_F(InvoiceItemDataTest, offersThePlugInsEntryForALine) {
  InvoiceEditForm& form = open(kComplete);
  std::vector<std::string> entries;
  std::string title;
  user.whenModal([&](FX::FXWindow& menu) {
    for (const auto* entry : descendantsOf<FX::FXMenuCommand>(&menu)) entries.emplace_back(entry->getText().text());
    user.whenModal([&](FX::FXWindow& dialog) {
      title = dynamic_cast<FX::FXTopWindow&>(dialog).getTitle().text();
      user.key(FX::KEY_Escape);
    });
    user.key(FX::KEY_Down);
    user.key(FX::KEY_Return);
  });
  clickCell(form, 1, ItemGrid::UNIT, 3);
  EXPECT_EQ(form.getGrid()->getCurrentRow(), 1);
  EXPECT_EQ(entries, (std::vector<std::string>{"Egyéb tételadatok...", "Új tétel", "Tétel törlése"}));
  EXPECT_FALSE(title.empty());
  EXPECT_FALSE(form.hasUnsavedChanges());
}

TEST_F(InvoiceItemDataTest, repairsByDoubleClickOnAMessage) {
  InvoiceEditForm& form = open(kIncomplete);
  const Texts before = messageTexts(form);
  ASSERT_FALSE(before.empty());
  FX::FXint line = -1;
  for (size_t i = 0; i < before.size(); ++i) {
    if (before[i].find("Gyártási tétel") != std::string::npos) line = static_cast<FX::FXint>(i);
  }
  ASSERT_GE(line, 0) << ::testing::PrintToString(before);
  fillNextDialog("KG-9");
  doubleClickMessage(form, line);
  for (const std::string& message : messageTexts(form)) {
    EXPECT_EQ(message.find("Gyártási tétel"), std::string::npos) << message;
  }
  EXPECT_EQ(messageTexts(form).size(), before.size() - 1);
  EXPECT_TRUE(form.hasUnsavedChanges());
  EXPECT_TRUE(form.saveChanges());
  EXPECT_EQ(text("select value from t_invoiceitemdata d join t_invoiceitem i on i.t_invoiceitem_id=d.t_invoiceitem_1 "
                 "where i.t_invoice_1=2 and i.position=2"),
            "KG-9");
}

TEST_F(InvoiceItemDataTest, repairsByEnterToo) {
  InvoiceEditForm& form = open(kIncomplete);
  bool opened = false;
  user.whenModal([&](FX::FXWindow&) {
    opened = true;
    user.key(FX::KEY_Escape);
  });
  form.getMessages()->setFocus();
  user.key(FX::KEY_Home);
  user.key(FX::KEY_Return);
  EXPECT_TRUE(opened);
  EXPECT_FALSE(form.hasUnsavedChanges());
}

TEST_F(InvoiceItemDataTest, changingTheGoodsOfALineWithDataAsksFirst) {
  InvoiceEditForm& form = open(kComplete);
  const Brontel::InvoiceItem* item = form.getInvoice()->getItems()[1];
  form.getGrid()->setFocus();
  form.getGrid()->goTo(1, ItemGrid::GOODS);
  user.type("FEL-01");
  answerNext("Nem");
  user.key(FX::KEY_Return);
  ASSERT_EQ(boxes().size(), 1u);
  EXPECT_NE(boxes()[0].find("KG-2411/07"), std::string::npos) << boxes()[0];
  EXPECT_EQ(form.getInvoice()->getItems()[1], item);
  EXPECT_EQ(rowText(form, 1), "Kontaktgél 250 ml|12|flakon|1450");
  EXPECT_FALSE(form.hasUnsavedChanges());

  form.getGrid()->goTo(1, ItemGrid::GOODS);
  user.type("FEL-01");
  answerNext("Igen");
  user.key(FX::KEY_Return);
  EXPECT_EQ(rowText(form, 1), "Éves felülvizsgálat|12|óra|12500");
  EXPECT_STREQ(form.getGrid()->getItemText(1, ItemGrid::DATA).text(), "");
  EXPECT_TRUE(form.saveChanges());
  EXPECT_EQ(text("select group_concat(name, ',') from (select name from t_invoiceitem where t_invoice_1=1 "
                 "order by position)"),
            "Félautomata defibrillátor,Éves felülvizsgálat,Éves felülvizsgálat,Munkahelyi elsősegélycsomag");
  EXPECT_EQ(text("select count(*) from t_invoiceitemdata where value='KG-2411/07'"), "0");
}

TEST_F(InvoiceItemDataTest, asksWhenTheCellIsLeftByAClickAndKeepsTheMouse) {
  InvoiceEditForm& form = open(kComplete);
  form.getGrid()->setFocus();
  form.getGrid()->goTo(1, ItemGrid::GOODS);
  user.type("FEL-01");
  answerNext("Nem");
  clickCell(form, 3, ItemGrid::QUANTITY);
  EXPECT_EQ(boxes().size(), 1u);
  EXPECT_EQ(rowText(form, 1), "Kontaktgél 250 ml|12|flakon|1450");
  clickCell(form, 0, ItemGrid::UNIT);
  EXPECT_EQ(form.getGrid()->getCurrentRow(), 0);
}

TEST_F(InvoiceItemDataTest, deletingALineWithDataAsksFirst) {
  InvoiceEditForm& form = open(kIncomplete);
  ASSERT_FALSE(messageTexts(form).empty());
  form.getGrid()->setFocus();
  form.getGrid()->goTo(1, ItemGrid::UNIT);
  command(form, InvoiceEditForm::ID_REMOVE_ITEM);  // nothing is recorded for it
  EXPECT_EQ(form.getGrid()->getNumRows(), 2);
  for (const std::string& message : messageTexts(form)) {
    EXPECT_EQ(message.find("Gyártási tétel"), std::string::npos) << message;
  }
  EXPECT_TRUE(form.saveChanges());

  InvoiceEditForm& complete = open(kComplete);
  complete.getGrid()->setFocus();
  complete.getGrid()->goTo(0, ItemGrid::UNIT);
  answerNext("Nem");
  user.key(FX::KEY_Delete, {FX::KEY_Control_L});
  EXPECT_EQ(complete.getGrid()->getNumRows(), 4);
  answerNext("Igen");
  user.key(FX::KEY_Delete, {FX::KEY_Control_L});
  EXPECT_EQ(complete.getGrid()->getNumRows(), 3);
  EXPECT_TRUE(complete.saveChanges());
  EXPECT_EQ(text("select count(*) from t_invoiceitemdata where value like 'DF5-24087%'"), "0");
  EXPECT_EQ(boxes().size(), 2u);
}

TEST_F(InvoiceItemDataTest, noMessageKeepsAnItemThatIsGone) {
  InvoiceEditForm& form = open(kIncomplete);
  ASSERT_FALSE(messageTexts(form).empty());
  form.getGrid()->goTo(0, ItemGrid::UNIT);
  // Before anything else has happened, not even the check.
  form.handle(nullptr, FXSEL(FX::SEL_COMMAND, InvoiceEditForm::ID_REMOVE_ITEM), nullptr);
  EXPECT_EQ(form.getMessages()->countMessages(), 0);
  form.handle(form.getMessages(), FXSEL(FX::SEL_DOUBLECLICKED, InvoiceEditForm::ID_MESSAGES), nullptr);
  user.settle();
  EXPECT_EQ(form.getMessages()->countMessages(), 2);
}

TEST_F(InvoiceItemDataTest, closedInvoicesOpenTheDialogAndStoreNothing) {
  exec("update t_invoice set t_invoicestatus_1=151 where t_invoice_id=1");
  InvoiceEditForm& form = open(kComplete);
  const std::string before = dump();
  bool opened = false;
  user.whenModal([&](FX::FXWindow&) {
    user.whenModal([&](FX::FXWindow& dialog) {
      opened = true;
      FX::FXButton* ok = findButton(dialog, "OK");
      ASSERT_NE(ok, nullptr);
      user.click(ok);
    });
    user.key(FX::KEY_Down);
    user.key(FX::KEY_Return);
  });
  form.getGrid()->setFocus();
  form.getGrid()->goTo(1, ItemGrid::UNIT);
  user.key(FX::KEY_F10, {FX::KEY_Shift_L});
  EXPECT_TRUE(opened);
  EXPECT_TRUE(form.close(TRUE));
  EXPECT_EQ(dump(), before);
}

TEST_F(InvoiceItemDataTest, closesAnInvoiceOnlyWithoutBlockingMessages) {
  InvoiceEditForm& form = open(kIncomplete);
  answerNext("Igen");
  answerNext("OK");
  form.handle(nullptr, FXSEL(FX::SEL_COMMAND, InvoiceEditForm::ID_CLOSE_INVOICE), nullptr);
  EXPECT_EQ(text("select t_invoicestatus_1 from t_invoice where t_invoice_id=2"), "150");
  EXPECT_TRUE(form.close(TRUE));

  InvoiceEditForm& complete = open(kComplete);
  answerNext("Igen");
  command(complete, InvoiceEditForm::ID_CLOSE_INVOICE);
  EXPECT_EQ(text("select t_invoicestatus_1 from t_invoice where t_invoice_id=1"), "151");
  EXPECT_TRUE(complete.getInvoice()->isStatusClosed());
  EXPECT_STREQ(complete.getTitle().text(), "Számla: K-2025/0117 (csak olvasható)");
}
