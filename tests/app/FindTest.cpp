#include "tests/app/AppTest.h"

namespace {

class FindTest : public AppTest {
 protected:
  // The sample's invoice 1 as another type of invoice, found by its seal: the direction that is printed.
  std::string directionOf(int type) const {
    exec("update t_invoice set t_invoicetype_1=" + std::to_string(type) + " where t_invoice_id=1");
    const std::string line = output({"find", "PL-004183"});
    const std::string before = "1\tK-2025/0117\t";
    EXPECT_EQ(line.substr(0, before.size()), before);
    return line.substr(before.size(), line.find('\t', before.size()) - before.size());
  }
};

}  // namespace

TEST_F(FindTest, ShowsTheWayOfAUnitThroughTheInvoices) {
  makeSample();
  EXPECT_EQ(output({"find", "DF5-24088"}),
            "3\tB-2025/0042\t200\tCorvus Orvosi Eszközök Kft.\t2025-02-10\tFélautomata defibrillátor\tGyári "
            "szám\t1\tDF5-240881\n"
            "3\tB-2025/0042\t200\tCorvus Orvosi Eszközök Kft.\t2025-02-10\tFélautomata defibrillátor\tGyári "
            "szám\t2\tDF5-240882\n"
            "3\tB-2025/0042\t200\tCorvus Orvosi Eszközök Kft.\t2025-02-10\tFélautomata defibrillátor\tGyári "
            "szám\t3\tDF5-240883–886\n"
            "4\tK-2025/0096\t100\tBükkaljai Általános Iskola\t2025-02-18\tFélautomata defibrillátor\tGyári "
            "szám\t1\tDF5-240881\n"
            "4\tK-2025/0096\t100\tBükkaljai Általános Iskola\t2025-02-18\tFélautomata defibrillátor\tGyári "
            "szám\t2\tDF5-240883–885\n"
            "5\tK-2025/0096/J1\t100\tBükkaljai Általános Iskola\t2025-03-05\tFélautomata defibrillátor\tGyári "
            "szám\t2\tDF5-240884–885\n");
}

TEST_F(FindTest, LettersMatchInEitherCaseAccentedOnesToo) {
  makeSample();
  const std::string line =
      "1\tK-2025/0117\t100\tSzegedi Városi Uszoda\t2025-03-03\tÉves felülvizsgálat\tHelyszín\t0\tKiszállás\n";
  for (const char* text : {"Kiszállás", "KISZÁLLÁS", "kiszállás", "száll"}) EXPECT_EQ(output({"find", text}), line);
  EXPECT_EQ(output({"find", "Kiszallas"}), "");
}

TEST_F(FindTest, TheTextIsTakenAsItIs) {
  makeSample();
  for (const char* text : {"%", "DF5_240871", "*", "' or 1=1 --", "%text"}) {
    SCOPED_TRACE(text);
    EXPECT_EQ(output({"find", text}), "");
  }
}

TEST_F(FindTest, NothingFoundIsNoError) {
  makeSample();
  EXPECT_EQ(output({"find", "no such value"}), "");
}

TEST_F(FindTest, TheDirectionIsThatOfTheInvoicesType) {
  makeSample();
  for (const int type : {101, 102, 801, 401, 451}) EXPECT_EQ(directionOf(type), "100") << type;
  for (const int type : {201, 202, 252}) EXPECT_EQ(directionOf(type), "200") << type;
  EXPECT_EQ(directionOf(301), "300");
  EXPECT_EQ(directionOf(452), "400");
}

TEST_F(FindTest, ValuesOfADeletedVariableAreFound) {
  makeSample();
  exec("pragma foreign_keys=on; delete from t_itemvariable where name='Plomba száma'");
  EXPECT_EQ(output({"find", "pl-004183"}),
            "1\tK-2025/0117\t100\tSzegedi Városi Uszoda\t2025-03-03\tMunkahelyi elsősegélycsomag\t\t0\tPL-004183\n");
}

TEST_F(FindTest, TabsAndLineFeedsInAValueBecomeBlanks) {
  makeSample();
  exec("update t_invoiceitemdata set value='PL' || char(9) || '1' || char(10) || '2' where value='PL-004183'");
  const std::string line = output({"find", "pl"});
  EXPECT_NE(line.find("\tPL 1 2\n"), std::string::npos) << line;
}

TEST_F(FindTest, AnEmptyTextIsRefused) {
  makeSample();
  expectRefused({"find", ""}, "Nincs mit keresni. Adja meg a keresett szöveget.");
}

TEST_F(FindTest, WithoutTablesOfItemDataNothingWasEverRecorded) {
  makeSample();
  exec("drop table t_invoiceitemdata");
  expectRefused({"find", "x"}, "Ebben az adatbázisban még nem rögzítettek tételadatot, így nincs miben keresni.");
}
