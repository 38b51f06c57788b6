// What people type and what is stored of it does not depend on the locale, not even on its decimal comma.

#include <clocale>
#include <cstdlib>

#include <fxkeys.h>

#include "tests/app/window/WindowFixture.h"
#include "tests/support/GeneratedLocales.h"

namespace {

/// The locale comes before the windows.
class Abroad {
 protected:
  explicit Abroad(const char* locale) {
    setenv("LC_ALL", locale, 1);
    EXPECT_NE(std::setlocale(LC_ALL, ""), nullptr);
  }
  ~Abroad() {
    setenv("LC_ALL", "C.UTF-8", 1);
    std::setlocale(LC_ALL, "");
  }

 private:
  GeneratedLocales locales_;
};

class LocaleWindowTest : private Abroad, public WindowFixture, public ::testing::WithParamInterface<const char*> {
 protected:
  LocaleWindowTest() : Abroad(GetParam()) {
    // The toolkit has taken the point of a decimal number back.
    EXPECT_NE(std::setlocale(LC_NUMERIC, ""), nullptr);
    const bool hasPoint = std::string(GetParam()).starts_with("C");
    EXPECT_STREQ(std::localeconv()->decimal_point, hasPoint ? "." : ",");
  }

  /// Lets somebody use the item data of a form's first line and leave with OK.
  void withItemData(InvoiceEditForm& form, const std::function<void(FX::FXWindow&)>& script) {
    form.getGrid()->goTo(0, ItemGrid::GOODS);
    user.whenModal([this, script](FX::FXWindow&) {
      user.whenModal([this, script](FX::FXWindow& dialog) {
        script(dialog);
        user.click(findButton(dialog, "OK"));
      });
      user.key(FX::KEY_Down);
      user.key(FX::KEY_Return);
    });
    command(form, InvoiceEditForm::ID_ITEM_MENU);
  }

  void typeDecimalNumbers() {
    InvoiceEditForm& form = openNew();
    form.getGrid()->setFocus();
    user.key(FX::KEY_Insert);
    user.type("kont");
    user.key(FX::KEY_Tab);
    user.type("2,5");
    user.key(FX::KEY_Return);
    user.key(FX::KEY_Tab);
    user.type("99.25");
    user.key(FX::KEY_Return);
    EXPECT_EQ(rowText(form, 0), "Kontaktgél 250 ml|2.5|flakon|99.25");
    EXPECT_TRUE(form.saveChanges());
    EXPECT_EQ(rows("select quantity, price from t_invoiceitem where t_invoice_1=6"), (Rows{{"2.5", "99.25"}}));
  }

  void recordData() {
    exec(
        "insert into t_itemvariable (t_itemvariable_id, name, type, process, mandatory, vvalue) values "
        "(71,'Kalibrálás napja',2,0,1,'');"
        "insert into t_productitemdata (t_product_1, t_itemvariable_1, position, direction) values (1,71,5,100)");
    InvoiceEditForm& form = open(kComplete);
    withItemData(form, [this](FX::FXWindow& dialog) {
      for (FX::FXTextField* field : descendantsOf<FX::FXTextField>(&dialog)) {
        if (!field->isEditable() || !field->getText().empty()) continue;
        user.click(field);
        user.type("2028.01.02");
      }
      const auto tables = descendantsOf<FX::FXTable>(&dialog);
      ASSERT_EQ(tables.size(), 1u);
      tables[0]->setItemText(0, 0, "0.5", TRUE);
    });
    EXPECT_TRUE(form.saveChanges());
    command(form, InvoiceEditForm::ID_CHECK);
    const std::string recorded =
        "select d.value from t_invoiceitemdata d join t_invoiceitem i on i.t_invoiceitem_id=d.t_invoiceitem_1 "
        "where i.t_invoice_1=1 and i.position=1 and d.t_itemvariable_1=";
    EXPECT_EQ(text(recorded + "71"), "2028.01.02");
    EXPECT_EQ(text(recorded + "-1 and d.row=1"), "0.5");
    ASSERT_FALSE(messageTexts(form).empty());
    EXPECT_EQ(messageTexts(form)[0],
              "Egyéb tételadatok: Az összmennyiség (1.5) kevesebb, mint a tétellistában megadott (2).");
  }
};

}  // namespace

TEST_P(LocaleWindowTest, whatIsTypedIsStoredAlike) {
  typeDecimalNumbers();
  recordData();
}

INSTANTIATE_TEST_SUITE_P(Of, LocaleWindowTest, ::testing::Values("C.UTF-8", "hu_HU.UTF-8", "de_DE.UTF-8"));
