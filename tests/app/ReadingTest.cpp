#include "tests/app/AppTest.h"
#include "tests/support/TestDatabase.h"

namespace {

using ListTest = AppTest;
using CheckTest = AppTest;
using PrintTest = AppTest;

}  // namespace

TEST_F(ListTest, PrintsALinePerInvoice) {
  makeSample();
  EXPECT_EQ(output({"list"}),
            "1\tK-2025/0117\t101\t150\tSzegedi Városi Uszoda\t4\n"
            "2\tK-2025/0118\t101\t150\tHársfa Idősek Otthona\t3\n"
            "3\tB-2025/0042\t201\t151\tCorvus Orvosi Eszközök Kft.\t2\n"
            "4\tK-2025/0096\t101\t151\tBükkaljai Általános Iskola\t3\n"
            "5\tK-2025/0096/J1\t101\t150\tBükkaljai Általános Iskola\t2\n");
}

TEST_F(ListTest, OfAnEmptyDatabaseIsEmpty) {
  output({"init"});
  EXPECT_EQ(output({"list"}), "");
}

TEST_F(ListTest, TabsAndLineFeedsInValuesBecomeBlanksAndNullIsEmpty) {
  output({"init"});
  exec(
      "insert into t_invoice (t_invoice_id, number, partner) values (9, 'a' || char(9) || 'b', 'c' || char(10) || "
      "'d'), (4, null, null)");
  EXPECT_EQ(output({"list"}), "4\t\t\t\t\t0\n9\ta b\t\t\tc d\t0\n");
}

TEST_F(ListTest, NeedsNoPlugins) {
  makeSample();
  EXPECT_EQ(runProgram({"--database", database, "--plugins", "/nowhere", "list"}).output, output({"list"}));
}

TEST_F(ListTest, ADamagedPageIsToldInsteadOfHalfAList) {
  makeSample();
  // The page of the table's only leaf, overwritten by what is no page.
  const int page = std::stoi(text("select rootpage from sqlite_master where name='t_invoice'"));
  const size_t size = static_cast<size_t>(std::stoi(text("pragma page_size")));
  std::string content = readFile(database);
  content.replace(size * static_cast<size_t>(page - 1), size, std::string(size, 'x'));
  static_cast<void>(directory.write("brontel.db", content));
  expectRefused({"list"}, "Az adatbázis sérült: " + database + ". Állítsa vissza egy biztonsági mentésből.");
}

TEST_F(CheckTest, PrintsALinePerMessageAndTellsByItsExitCodeThatSomethingIsWrong) {
  makeSample();
  const ProgramRun run = this->run({"check", "2"});
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(run.output,
            "1\tINVOICE_ITEMDATAQUANTITYLESSTHAN\tEgyéb tételadatok: Az összmennyiség (1) kevesebb, mint a "
            "tétellistában megadott (3).\n"
            "1\tINVOICE_ITEMDATAWANTED\tA(z) 1. tételhez rögzíteni kell néhány egyéb adatot!\\nMező neve:Gyári szám\n"
            "0\tINVOICE_ITEMDATAWANTED\tA(z) 1. tételhez lehet rögzíteni néhány egyéb adatot!\\nMező neve:Elektróda "
            "lejárata\n"
            "1\tINVOICE_ITEMDATAWANTED\tA(z) 2. tételhez rögzíteni kell néhány egyéb adatot!\\nMező neve:Gyártási "
            "tétel\n"
            "0\tINVOICE_ITEMDATAWANTED\tA(z) 3. tételhez lehet rögzíteni néhány egyéb adatot!\\nMező "
            "neve:Helyszín\n");
}

TEST_F(CheckTest, NoticesAloneAreNoError) {
  makeSample();
  exec("update t_invoiceitemdata set value='' where value='Kiszállás'");
  EXPECT_EQ(output({"check", "1"}),
            "0\tINVOICE_ITEMDATAWANTED\tA(z) 3. tételhez lehet rögzíteni néhány egyéb adatot!\\nMező "
            "neve:Helyszín\n");
}

TEST_F(CheckTest, ATabInAVariablesNameBecomesABlank) {
  makeSample();
  exec(
      "update t_itemvariable set name='a' || char(9) || 'b' where t_itemvariable_id=4; "
      "update t_invoiceitemdata set value='' where value='Kiszállás'");
  EXPECT_EQ(output({"check", "1"}),
            "0\tINVOICE_ITEMDATAWANTED\tA(z) 3. tételhez lehet rögzíteni néhány egyéb adatot!\\nMező neve:a b\n");
}

TEST_F(CheckTest, ChangesNothing) {
  makeSample();
  const auto before = files();
  EXPECT_EQ(run({"check", "2"}).exitCode, 1);
  EXPECT_TRUE(files() == before);
}

TEST_F(PrintTest, ShowsWhatIsRecordedBelowEachItem) {
  makeSample();
  EXPECT_EQ(output({"print", "1"}),
            "1\tFélautomata defibrillátor\t2\tdb\t489000\n"
            "    DF5-240871, 2027.05.31; DF5-240872, 2027.05.31\n"
            "2\tKontaktgél 250 ml\t12\tflakon\t1450\n"
            "    KG-2411/07\n"
            "3\tÉves felülvizsgálat\t1.5\tóra\t12500\n"
            "    Kiszállás\n"
            "4\tMunkahelyi elsősegélycsomag\t1\tkészlet\t18900\n"
            "    PL-004183\n");
}

TEST_F(PrintTest, ShowsNothingBelowAnItemWithoutData) {
  makeSample();
  EXPECT_EQ(output({"print", "2"}),
            "1\tFélautomata defibrillátor\t3\tdb\t489000\n"
            "2\tKontaktgél 250 ml\t6\tflakon\t1450\n"
            "3\tÉves felülvizsgálat\t1\tóra\t12500\n");
}

TEST_F(PrintTest, ShowsClosedInvoicesOfBothDirectionsAndWhatComesBack) {
  makeSample();
  EXPECT_EQ(output({"print", "3"}),
            "1\tFélautomata defibrillátor\t6\tdb\t489000\n"
            "    DF5-240881, 2027.08.31; DF5-240882, 2027.08.31; 4 db DF5-240883–886, 2027.09.30\n"
            "2\tKontaktgél 250 ml\t48\tflakon\t1450\n"
            "    KG-2501/12\n");
  EXPECT_EQ(output({"print", "4"}),
            "1\tFélautomata defibrillátor\t4\tdb\t489000\n"
            "    DF5-240881, 2027.08.31; 3 db DF5-240883–885, 2027.09.30\n"
            "2\tKontaktgél 250 ml\t10\tflakon\t1450\n"
            "    KG-2501/12\n"
            "3\tÉves felülvizsgálat\t2\tóra\t12500\n"
            "    Telephely\n");
  EXPECT_EQ(output({"print", "5"}),
            "1\tFélautomata defibrillátor\t2\tdb\t489000\n"
            "    2 db DF5-240884–885, 2027.09.30\n"
            "2\tKontaktgél 250 ml\t4\tflakon\t1450\n"
            "    KG-2501/12\n");
}

TEST_F(PrintTest, EveryLineOfATextIsIndented) {
  makeSample();
  exec("update t_invoiceitemdata set value='a' || char(10) || char(10) || 'b' where value='KG-2411/07'");
  EXPECT_NE(output({"print", "1"}).find("flakon\t1450\n    a\n    \n    b\n3\t"), std::string::npos);
}

TEST_F(PrintTest, OfAnInvoiceWithoutItemsIsEmpty) {
  output({"init"});
  exec("insert into t_invoice (number, t_invoicetype_1, t_invoicestatus_1) values ('x', 101, 150)");
  EXPECT_EQ(output({"print", "1"}), "");
}
