// Invoices that derive from others, such as credit notes.

#include "itemdata/Codes.h"
#include "tests/itemdata/LifeCycleFixture.h"

using namespace Brontel;
using namespace Brontel::Plugin::ItemData;

namespace {

using Texts = std::vector<std::string>;

class DerivedLifeCycleTest : public LifeCycleFixture {
 protected:
  DerivedLifeCycleTest() : source(savedInvoice()) { changeStatus(*source, STATUS_CLOSED); }

  /// A stored invoice that takes these quantities of the source's two rows.
  std::unique_ptr<Invoice> take(const std::string& first, const std::string& second, int status) {
    std::unique_ptr<Invoice> invoice = deriveFrom(*source, "0");
    setCell(listOf(*invoice), VARIABLE_QUANTITY, 1, first);
    setCell(listOf(*invoice), VARIABLE_QUANTITY, 2, second);
    save(*invoice);
    if (status != STATUS_OPEN) changeStatus(*invoice, status);
    return invoice;
  }

  /// What the next one would be offered of the two rows.
  Texts offered() {
    const auto next = deriveFrom(*source, "8");
    Texts quantities;
    for (const int row : {1, 2}) quantities.emplace_back(findCell(listOf(*next), VARIABLE_QUANTITY, row)->value.text());
    return quantities;
  }

  std::unique_ptr<Invoice> source;
};

const Texts kSource = {"11/0=M", "-1/1=5", "12/1=S1", "13/1=kék", "-1/2=3", "12/2=S2", "13/2=piros"};

}  // namespace

TEST_F(DerivedLifeCycleTest, isOfferedEverythingOfTheSource) {
  const auto note = deriveFrom(*source, "8");
  ItemDataList& list = listOf(*note);
  EXPECT_EQ(cellsOf(list), kSource);
  EXPECT_EQ(keysOf(list), std::vector<int>(7, 0));
  EXPECT_STREQ(findCell(list, 13, 1)->vvalue.text(), "piros,kék");
  EXPECT_EQ(list.rows, 2);
  EXPECT_TRUE(problems(*note).empty());
  EXPECT_EQ(printed(*note), "M; 5 db S1, kék; 3 db S2, piros");
}

TEST_F(DerivedLifeCycleTest, takesAPartAndReloadsItsOwn) {
  const auto note = deriveFrom(*source, "2");
  EXPECT_EQ(problems(*note), Texts{"more"});
  setCell(listOf(*note), VARIABLE_QUANTITY, 1, "2");
  listOf(*note).markRowForDelete(2);
  EXPECT_TRUE(problems(*note).empty());
  save(*note);
  const Texts own = {"11/0=M", "-1/1=2", "12/1=S1", "13/1=kék"};
  EXPECT_EQ(storedOf(*note), own);
  EXPECT_EQ(storedOf(*source), kSource);
  save(*note);
  EXPECT_EQ(storedOf(*note), own);
  const auto loaded = reload(*note);
  EXPECT_EQ(itemOf(*loaded).getReferencedItemId(), itemOf(*source).getId());
  EXPECT_EQ(cellsOf(listOf(*loaded)), own);
  EXPECT_TRUE(problems(*loaded).empty());
  addRow(*loaded, "1", "S9", "");
  save(*loaded);
  EXPECT_EQ(cellsOf(listOf(*reload(*note))),
            (Texts{"11/0=M", "-1/1=2", "12/1=S1", "13/1=kék", "-1/2=1", "12/2=S9", "13/2="}));
}

TEST_F(DerivedLifeCycleTest, onlyClosedOnesTakeAndStornoGivesBack) {
  EXPECT_EQ(offered(), (Texts{"5", "3"}));
  const auto first = take("2", "1", STATUS_OPEN);
  EXPECT_EQ(offered(), (Texts{"5", "3"}));
  changeStatus(*first, STATUS_CLOSED);
  EXPECT_EQ(offered(), (Texts{"3", "2"}));
  take("1", "2", STATUS_CLOSED);
  EXPECT_EQ(offered(), (Texts{"2", "0"}));
  take("1", "1", STATUS_STORNO);
  EXPECT_EQ(offered(), (Texts{"3", "1"}));
  changeStatus(*first, STATUS_STORNO);
  EXPECT_EQ(offered(), (Texts{"7", "3"}));
}

TEST_F(DerivedLifeCycleTest, fractionsStayExact) {
  take("0.1", "2.9999", STATUS_CLOSED);
  take("0.2", "0", STATUS_CLOSED);
  EXPECT_EQ(offered(), (Texts{"4.7", "0.0001"}));
  take("4.7", "0.0001", STATUS_CLOSED);
  EXPECT_EQ(offered(), (Texts{"0", "0"}));
}

TEST_F(DerivedLifeCycleTest, moreThanThereWasIsOfferedAsNegative) {
  take("6", "3", STATUS_CLOSED);
  EXPECT_EQ(offered(), (Texts{"-1", "0"}));
}

TEST_F(DerivedLifeCycleTest, aUsedUpRowStaysWithQuantityZero) {
  take("5", "1", STATUS_CLOSED);
  const auto note = deriveFrom(*source, "2");
  EXPECT_EQ(printed(*note), "M; S1, kék; 2 db S2, piros");
  EXPECT_TRUE(problems(*note).empty());
  save(*note);
  EXPECT_EQ(storedOf(*note), (Texts{"11/0=M", "12/1=S1", "13/1=kék", "-1/2=2", "12/2=S2", "13/2=piros"}));
  const auto loaded = reload(*note);
  EXPECT_EQ(cellsOf(listOf(*loaded)),
            (Texts{"11/0=M", "-1/1=0", "12/1=S1", "13/1=kék", "-1/2=2", "12/2=S2", "13/2=piros"}));
  EXPECT_TRUE(problems(*loaded).empty());
}

TEST_F(DerivedLifeCycleTest, derivingFromADerivedOneTakesItsPart) {
  const auto note = take("2", "1", STATUS_CLOSED);
  const auto next = deriveFrom(*note, "3");
  EXPECT_EQ(cellsOf(listOf(*next)),
            (Texts{"11/0=M", "-1/1=2", "12/1=S1", "13/1=kék", "-1/2=1", "12/2=S2", "13/2=piros"}));
  EXPECT_TRUE(problems(*next).empty());
  save(*next);
  EXPECT_EQ(offered(), (Texts{"3", "2"}));
}

TEST_F(DerivedLifeCycleTest, aRolledBackSaveLeavesItDerived) {
  const auto note = deriveFrom(*source, "8");
  database.exec(
      "create trigger refuse before insert on t_invoiceitemdata when new.row=2 "
      "begin select raise(abort,'refused'); end");
  EXPECT_EQ(repository.save(*note), InvoiceRepository::Result::Failed);
  EXPECT_EQ(database.text("select count(*) from t_invoice"), "1");
  database.exec("drop trigger refuse");
  setCell(listOf(*note), 12, 2, "typed meanwhile");
  save(*note);
  EXPECT_EQ(storedOf(*note),
            (Texts{"11/0=M", "-1/1=5", "12/1=S1", "13/1=kék", "-1/2=3", "12/2=typed meanwhile", "13/2=piros"}));
}

TEST_F(DerivedLifeCycleTest, theGoodsHaveChangedSinceTheSource) {
  dissociate(12);
  addVariable(14, "Új", TYPE_TEXT, 1, 1);
  associate(14, 4);
  addVariable(15, "Fejléc", TYPE_TEXT, 0);
  associate(15, 5);
  const auto note = deriveFrom(*source, "8");
  const Texts expected = {
      "11/0=M", "15/0=", "-1/1=5", "13/1=kék", "14/1=", "12/1=S1", "-1/2=3", "13/2=piros", "14/2=", "12/2=S2"};
  EXPECT_EQ(cellsOf(listOf(*note)), expected);
  EXPECT_EQ(problems(*note), (Texts{"may Fejléc", "must Új", "must Új"}));
  save(*note);
  EXPECT_EQ(cellsOf(listOf(*reload(*note))), expected);
}

TEST_F(DerivedLifeCycleTest, theSourceHadNoData) {
  const auto bare = newInvoice();
  save(*bare);
  database.exec("delete from t_invoiceitemdata");
  const auto note = deriveFrom(*bare, "5");
  EXPECT_EQ(cellsOf(listOf(*note)), Texts{"11/0="});
  addRow(*note, "5", "S1", "kék");
  save(*note);
  EXPECT_EQ(storedOf(*note), (Texts{"11/0=", "-1/1=5", "12/1=S1", "13/1=kék"}));
}

TEST_F(DerivedLifeCycleTest, aDerivedOneCanBeCopiedBeforeAndAfterItIsSaved) {
  const auto note = deriveFrom(*source, "8");
  const std::unique_ptr<Invoice> before(note->copy());
  EXPECT_EQ(printed(*before), "M; 5 db S1, kék; 3 db S2, piros");
  save(*before);
  EXPECT_EQ(storedOf(*before), kSource);
  save(*note);
  const std::unique_ptr<Invoice> after(note->copy());
  save(*after);
  EXPECT_EQ(storedOf(*after), kSource);
  EXPECT_EQ(storedOf(*note), kSource);
}
