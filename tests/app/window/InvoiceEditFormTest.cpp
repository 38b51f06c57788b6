#include <fxkeys.h>

#include "app/window/InvoiceHead.h"
#include "host/entity/Invoice.h"
#include "tests/app/window/WindowFixture.h"

using Brontel::InvoiceItem;

namespace {

class InvoiceEditFormTest : public WindowFixture {
 protected:
  static std::string titleOf(const InvoiceEditForm& form) { return form.getTitle().text(); }
};

}  // namespace

TEST_F(InvoiceEditFormTest, showsAStoredInvoice) {
  InvoiceEditForm& form = open(kComplete);
  EXPECT_EQ(titleOf(form), "Számla: K-2025/0117");
  EXPECT_STREQ(form.getHead()->getNumberField()->getText().text(), "K-2025/0117");
  EXPECT_STREQ(form.getHead()->getPartnerField()->getText().text(), "Szegedi Városi Uszoda");
  EXPECT_STREQ(form.getHead()->getDateField()->getText().text(), "2025-03-03");
  ASSERT_EQ(form.getGrid()->getNumRows(), 4);
  EXPECT_EQ(rowText(form, 0), "Félautomata defibrillátor|2|db|489000");
  EXPECT_EQ(rowText(form, 2), "Éves felülvizsgálat|1.5|óra|12500");
  EXPECT_STREQ(form.getGrid()->getItemText(0, ItemGrid::DATA).text(),
               workspace->getPlugins().toString(form.getInvoice()->getItems()[0]).text());
  EXPECT_FALSE(form.getGrid()->getItemText(0, ItemGrid::DATA).empty());
  EXPECT_EQ(messageTexts(form), Texts());
  EXPECT_FALSE(form.hasUnsavedChanges());
}

TEST_F(InvoiceEditFormTest, typesANewInvoiceByKeyboardAlone) {
  InvoiceEditForm& form = openNew();
  EXPECT_FALSE(form.hasUnsavedChanges());
  user.type("Teszt & Társa");
  for (int tabs = 0; tabs < 6 && !form.getGrid()->hasFocus(); ++tabs) user.key(FX::KEY_Tab);
  ASSERT_TRUE(form.getGrid()->hasFocus());
  user.key(FX::KEY_Insert);
  EXPECT_TRUE(form.getGrid()->isEditing());
  user.type("kont");  // the rest is completed
  user.key(FX::KEY_Tab);
  EXPECT_EQ(rowText(form, 0), "Kontaktgél 250 ml|1|flakon|1450");
  user.type("2,5");
  user.key(FX::KEY_Return);
  user.key(FX::KEY_Tab);
  user.type("990");
  user.key(FX::KEY_Return);
  EXPECT_EQ(rowText(form, 0), "Kontaktgél 250 ml|2.5|flakon|990");
  EXPECT_EQ(messageTexts(form).size(), 1u);  // the batch is missing
  EXPECT_TRUE(form.hasUnsavedChanges());
  user.key(FX::KEY_s, {FX::KEY_Control_L});
  EXPECT_FALSE(form.hasUnsavedChanges());
  EXPECT_EQ(rows("select partner, t_invoicetype_1, t_invoicestatus_1, version from t_invoice where t_invoice_id=6"),
            (Rows{{"Teszt & Társa", "101", "150", "1"}}));
  EXPECT_EQ(
      rows("select name, goodskind, goods, quantity, unit, price, position from t_invoiceitem where t_invoice_1=6"),
      (Rows{{"Kontaktgél 250 ml", "1", "2", "2.5", "flakon", "990", "1"}}));
}

TEST_F(InvoiceEditFormTest, completesGoodsByNameByCodeAndByAnyPart) {
  InvoiceEditForm& form = openNew();
  command(form, InvoiceEditForm::ID_ADD_ITEM);
  form.getGrid()->setFocus();
  const std::pair<const char*, const char*> typed[] = {
      {"fél", "Félautomata defibrillátor"}, {"gel", "Kontaktgél 250 ml"}, {"ülvizs", "Éves felülvizsgálat"}};
  for (const auto& [text, name] : typed) {
    form.getGrid()->goTo(0, ItemGrid::GOODS);
    user.type(text);
    user.key(FX::KEY_Return);
    EXPECT_STREQ(form.getGrid()->getItemText(0, ItemGrid::GOODS).text(), name) << text;
  }
}

TEST_F(InvoiceEditFormTest, walksThroughTheCellsAndOut) {
  InvoiceEditForm& form = open(kComplete);
  form.getGrid()->setFocus();
  form.getGrid()->goTo(2, ItemGrid::UNIT);
  user.key(FX::KEY_Tab);
  user.key(FX::KEY_Return);
  EXPECT_EQ(form.getGrid()->getCurrentRow(), 3);
  EXPECT_EQ(form.getGrid()->getCurrentColumn(), ItemGrid::GOODS);
  user.key(FX::KEY_Tab, {FX::KEY_Shift_L});
  EXPECT_EQ(form.getGrid()->getCurrentRow(), 2);
  EXPECT_EQ(form.getGrid()->getCurrentColumn(), ItemGrid::PRICE);
  form.getGrid()->goTo(3, ItemGrid::PRICE);
  user.key(FX::KEY_Return);
  EXPECT_TRUE(form.getGrid()->hasFocus());
  user.key(FX::KEY_Tab);
  EXPECT_FALSE(form.getGrid()->hasFocus());
  EXPECT_FALSE(form.hasUnsavedChanges());
}

TEST_F(InvoiceEditFormTest, leavesACellWithEscape) {
  InvoiceEditForm& form = open(kComplete);
  form.getGrid()->setFocus();
  form.getGrid()->goTo(0, ItemGrid::QUANTITY);
  user.type("77");
  EXPECT_TRUE(form.getGrid()->isEditing());
  user.key(FX::KEY_Escape);
  EXPECT_FALSE(form.getGrid()->isEditing());
  EXPECT_EQ(rowText(form, 0), "Félautomata defibrillátor|2|db|489000");
  EXPECT_FALSE(form.hasUnsavedChanges());
}

TEST_F(InvoiceEditFormTest, refusesAQuantityThatIsNoneAndDoesNotSaveBesides) {
  InvoiceEditForm& form = open(kComplete);
  const std::string before = dump();
  form.getGrid()->setFocus();
  form.getGrid()->goTo(0, ItemGrid::QUANTITY);
  user.type("sok");
  answerNext("OK");
  user.key(FX::KEY_s, {FX::KEY_Control_L});
  ASSERT_EQ(boxes().size(), 1u);
  EXPECT_NE(boxes()[0].find("sok"), std::string::npos);
  EXPECT_EQ(rowText(form, 0), "Félautomata defibrillátor|2|db|489000");
  EXPECT_EQ(dump(), before);
}

TEST_F(InvoiceEditFormTest, refusesGoodsThatAreNotThere) {
  InvoiceEditForm& form = open(kComplete);
  form.getGrid()->setFocus();
  form.getGrid()->goTo(1, ItemGrid::GOODS);
  user.type("xyz");
  answerNext("OK");
  user.key(FX::KEY_Return);
  EXPECT_EQ(rowText(form, 1), "Kontaktgél 250 ml|12|flakon|1450");
  EXPECT_FALSE(form.hasUnsavedChanges());
}

TEST_F(InvoiceEditFormTest, choosesGoodsFromTheList) {
  InvoiceEditForm& form = openNew();
  command(form, InvoiceEditForm::ID_ADD_ITEM);
  user.key(FX::KEY_Down);
  user.key(FX::KEY_Down);
  user.key(FX::KEY_Return);
  EXPECT_EQ(rowText(form, 0), "Félautomata defibrillátor|1|db|489000");
}

TEST_F(InvoiceEditFormTest, checksAfterAChangeButNotWhileSomebodyTypes) {
  InvoiceEditForm& form = open(kComplete);
  form.getGrid()->setFocus();
  form.getGrid()->goTo(0, ItemGrid::QUANTITY);
  user.type("5");
  form.proposeCheckAll();
  user.settle();
  EXPECT_EQ(messageTexts(form), Texts());
  user.key(FX::KEY_Return);
  ASSERT_EQ(messageTexts(form).size(), 1u);
  EXPECT_EQ(messageTexts(form)[0],
            "Egyéb tételadatok: Az összmennyiség (2) kevesebb, mint a tétellistában megadott (5).");
  EXPECT_TRUE(form.getMessages()->hasBlocking());
}

TEST_F(InvoiceEditFormTest, checksOnceTypingHasBeenGivenUp) {
  InvoiceEditForm& form = open(kComplete);
  form.getGrid()->setFocus();
  form.getGrid()->goTo(0, ItemGrid::UNIT);
  user.type("x");
  form.getInvoice()->getItems()[0]->setQuantity(FXExt::FXDecimal("3", 4));
  form.proposeCheckAll();
  user.settle();
  EXPECT_EQ(messageTexts(form), Texts());
  user.key(FX::KEY_Escape);
  EXPECT_EQ(messageTexts(form).size(), 1u);
}

TEST_F(InvoiceEditFormTest, keepsItsObjectsWhenItSaves) {
  InvoiceEditForm& form = open(kComplete);
  const Brontel::Invoice* invoice = form.getInvoice();
  const InvoiceItem* item = invoice->getItems()[0];
  const std::string cells = "select count(*), group_concat(value) from t_invoiceitemdata";
  const Rows before = rows(cells);
  for (const char* partner : {"a", "b"}) {
    form.getHead()->getPartnerField()->setText(partner, TRUE);
    EXPECT_TRUE(form.saveChanges());
    EXPECT_EQ(text("select partner from t_invoice where t_invoice_id=1"), partner);
  }
  EXPECT_EQ(form.getInvoice(), invoice);
  EXPECT_EQ(form.getInvoice()->getItems()[0], item);
  EXPECT_EQ(rows(cells), before);
  EXPECT_EQ(titleOf(form), "Számla: K-2025/0117");
}

TEST_F(InvoiceEditFormTest, refusesADateThatIsNone) {
  InvoiceEditForm& form = open(kComplete);
  form.getHead()->getDateField()->setText("2025-02-30", TRUE);
  user.settle();
  EXPECT_EQ(titleOf(form), "Számla: K-2025/0117 *");
  answerNext("OK");
  EXPECT_FALSE(form.saveChanges());
  EXPECT_EQ(text("select date from t_invoice where t_invoice_id=1"), "2025-03-03");
  EXPECT_STREQ(form.getHead()->getDateField()->getText().text(), "2025-02-30");
}

TEST_F(InvoiceEditFormTest, asksAboutUnsavedChanges) {
  InvoiceEditForm& form = open(kComplete);
  form.getHead()->getPartnerField()->setText("Másik", TRUE);
  answerNext("Mégsem");
  EXPECT_FALSE(form.close(TRUE));
  EXPECT_EQ(workspace->getWindows().size(), 1u);
  answerNext("Nem");
  EXPECT_TRUE(form.close(TRUE));
  EXPECT_TRUE(workspace->getWindows().empty());
  EXPECT_EQ(text("select partner from t_invoice where t_invoice_id=1"), "Szegedi Városi Uszoda");
  InvoiceEditForm& again = open(kComplete);
  again.getHead()->getPartnerField()->setText("Másik", TRUE);
  answerNext("Igen");
  EXPECT_TRUE(again.close(TRUE));
  EXPECT_EQ(text("select partner from t_invoice where t_invoice_id=1"), "Másik");
}

TEST_F(InvoiceEditFormTest, closesWithoutAQuestionWhenNothingIsLost) {
  InvoiceEditForm& form = open(kComplete);
  form.getGrid()->setFocus();
  form.getGrid()->goTo(0, ItemGrid::QUANTITY);
  user.key(FX::KEY_F2);
  EXPECT_TRUE(form.getGrid()->isEditing());
  user.key(FX::KEY_w, {FX::KEY_Control_L});
  EXPECT_TRUE(workspace->getWindows().empty());
}

TEST_F(InvoiceEditFormTest, acceptsWhatIsBeingTypedBeforeItAsks) {
  InvoiceEditForm& form = open(kComplete);
  form.getGrid()->setFocus();
  form.getGrid()->goTo(1, ItemGrid::QUANTITY);
  user.type("13");
  answerNext("Igen");
  EXPECT_TRUE(form.close(TRUE));
  EXPECT_EQ(text("select quantity from t_invoiceitem where t_invoice_1=1 and position=2"), "13");
}

TEST_F(InvoiceEditFormTest, aFailedSaveLosesNothingAndCanBeRepeated) {
  InvoiceEditForm& form = open(kComplete);
  const std::string before = dump();
  form.getGrid()->setFocus();
  form.getGrid()->goTo(1, ItemGrid::QUANTITY);
  user.type("13");
  {
    FileConnection other(path);
    other.exec("begin immediate");
    answerNext("OK");
    user.key(FX::KEY_s, {FX::KEY_Control_L});
    ASSERT_EQ(boxes().size(), 1u);
    EXPECT_NE(boxes()[0].find("másik program használja"), std::string::npos) << boxes()[0];
    other.exec("rollback");
  }
  EXPECT_EQ(dump(), before);
  EXPECT_EQ(rowText(form, 1), "Kontaktgél 250 ml|13|flakon|1450");
  EXPECT_TRUE(form.hasUnsavedChanges());
  EXPECT_TRUE(form.saveChanges());
  EXPECT_EQ(text("select quantity from t_invoiceitem where t_invoice_1=1 and position=2"), "13");
  EXPECT_EQ(boxes().size(), 1u);
}

TEST_F(InvoiceEditFormTest, tellsThatSomebodyElseHasSavedMeanwhile) {
  InvoiceEditForm& form = open(kComplete);
  form.getHead()->getPartnerField()->setText("Enyém", TRUE);
  exec("update t_invoice set version=9, partner='Övék' where t_invoice_id=1");
  answerNext("OK");
  EXPECT_FALSE(form.saveChanges());
  EXPECT_STREQ(form.getHead()->getPartnerField()->getText().text(), "Enyém");
  EXPECT_EQ(text("select partner from t_invoice where t_invoice_id=1"), "Övék");
}

TEST_F(InvoiceEditFormTest, closedInvoicesAreOnlyLookedAt) {
  for (const char* status : {"151", "152"}) {
    exec(std::string("update t_invoice set t_invoicestatus_1=") + status + " where t_invoice_id=2");
    InvoiceEditForm& form = open(kIncomplete);
    EXPECT_EQ(titleOf(form), "Számla: K-2025/0118 (csak olvasható)");
    EXPECT_FALSE(form.getHead()->getPartnerField()->isEditable());
    EXPECT_FALSE(form.getHead()->getTypeBox()->isEnabled());
    form.getGrid()->setFocus();
    form.getGrid()->goTo(0, ItemGrid::QUANTITY);
    user.type("9");
    EXPECT_FALSE(form.getGrid()->isEditing());
    user.key(FX::KEY_Insert);
    user.key(FX::KEY_Delete, {FX::KEY_Control_L});
    EXPECT_EQ(form.getGrid()->getNumRows(), 3);
    EXPECT_FALSE(findButton(form, "Mentés")->isEnabled());
    EXPECT_FALSE(findButton(form, "Lezárás")->isEnabled());
    EXPECT_FALSE(form.hasUnsavedChanges());
    EXPECT_TRUE(form.close(TRUE));
  }
}

TEST_F(InvoiceEditFormTest, theTypeIsFixedOnceThereAreItems) {
  InvoiceEditForm& form = openNew();
  EXPECT_TRUE(form.getHead()->getTypeBox()->isEnabled());
  command(form, InvoiceEditForm::ID_ADD_ITEM);
  EXPECT_FALSE(form.getHead()->getTypeBox()->isEnabled());
  command(form, InvoiceEditForm::ID_REMOVE_ITEM);
  EXPECT_TRUE(form.getHead()->getTypeBox()->isEnabled());
}
