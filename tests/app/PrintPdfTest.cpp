#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <sys/stat.h>

#include "tests/app/AppTest.h"
#include "tests/support/ChildProcess.h"

namespace {

class PrintPdfTest : public AppTest {
 protected:
  // Caches that fontconfig keeps until the process ends.
  PrintPdfTest()
      : fonts_{{"LSAN_OPTIONS",
                "print_suppressions=0:suppressions=" + elsewhere_.write("suppressions", "leak:libfontconfig\n")}} {}

  ProgramRun print(const std::string& invoice, const std::string& file) const {
    return run({"print", invoice, "-o", file}, fonts_);
  }

  /// The same as a user whom the rights of files bind.
  ProgramRun printUnprivileged(const std::string& invoice, const std::string& file) const {
    elsewhere_.share();
    for (const auto& [name, value] : fonts_) setenv(name.c_str(), value.c_str(), 1);
    return runUnprivileged({"print", invoice, "-o", file});
  }

  /// Prints an invoice and returns the PDF's path.
  std::string pdf(const std::string& invoice) const {
    const std::string file = directory.path("invoice.pdf");
    const ProgramRun run = print(invoice, file);
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(readFile(file).substr(0, 5), "%PDF-");
    return file;
  }

  static std::string outputOf(const std::vector<std::string>& arguments) {
    ChildProcess child(arguments);
    EXPECT_EQ(child.run(), 0) << arguments.front() << child.getErrors();
    return child.getOutput();
  }

  static std::string textOf(const std::string& file) { return outputOf({"pdftotext", "-raw", file, "-"}); }

  static int countPages(const std::string& file) {
    const std::string information = outputOf({"pdfinfo", file});
    return std::stoi(information.substr(information.find("Pages:") + 6));
  }

  static std::vector<std::string> wordsOf(const std::string& text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
  }

  // Whether the words come in that order, with others between them.
  static void expectWordsInOrder(const std::string& text, const std::vector<std::string>& words) {
    size_t at = 0;
    for (const std::string& word : words) {
      at = text.find(word, at);
      ASSERT_NE(at, std::string::npos) << word;
      at += word.size();
    }
  }

  void expectRefusedFile(const std::string& file, const std::string& error) const {
    const auto before = files();
    const ProgramRun run = print("1", file);
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.errors, "brontel-host: " + error + "\n");
    EXPECT_TRUE(files() == before) << "the files have changed";
  }

 private:
  TemporaryDirectory elsewhere_;
  Environment fonts_;
};

}  // namespace

TEST_F(PrintPdfTest, HasTheHeadTheItemsAndTheirDataInOrder) {
  makeSample();
  const std::string file = pdf("1");
  EXPECT_EQ(countPages(file), 1);
  expectWordsInOrder(textOf(file), {"Kimenő számla",
                                    "Szám",
                                    "K-2025/0117",
                                    "Partner",
                                    "Szegedi Városi Uszoda",
                                    "Kelt",
                                    "2025-03-03",
                                    "Állapot",
                                    "Nyitott",
                                    "Tétel",
                                    "Megnevezés",
                                    "Mennyiség",
                                    "Egység",
                                    "Ár",
                                    "1",
                                    "Félautomata defibrillátor",
                                    "2",
                                    "db",
                                    "489000",
                                    "DF5-240871, 2027.05.31; DF5-240872, 2027.05.31",
                                    "2",
                                    "Kontaktgél 250 ml",
                                    "12",
                                    "flakon",
                                    "1450",
                                    "KG-2411/07",
                                    "3",
                                    "Éves felülvizsgálat",
                                    "1.5",
                                    "óra",
                                    "12500",
                                    "Kiszállás",
                                    "4",
                                    "Munkahelyi elsősegélycsomag",
                                    "1",
                                    "készlet",
                                    "18900",
                                    "PL-004183",
                                    "1/1"});
  EXPECT_NE(outputOf({"pdfinfo", file}).find("Kimenő számla K-2025/0117"), std::string::npos);
  EXPECT_NE(outputOf({"pdfinfo", file}).find("A4"), std::string::npos);
}

TEST_F(PrintPdfTest, HasEveryWordOfTheTextForEveryInvoiceOfTheSample) {
  makeSample();
  for (const char* invoice : {"1", "2", "3", "4", "5"}) {
    SCOPED_TRACE(invoice);
    expectWordsInOrder(textOf(pdf(invoice)), wordsOf(output({"print", invoice})));
  }
}

TEST_F(PrintPdfTest, FiveHundredSerialNumbersRunOverPagesWithHeaderAndNumber) {
  makeSample();
  exec(
      "update t_invoiceitem set quantity='502' where t_invoiceitem_id=1; "
      "with recursive n(i) as (select 3 union all select i+1 from n where i<502) "
      "insert into t_invoiceitemdata (t_itemvariable_1, t_invoiceitem_1, row, value) "
      "select v, 1, i, case v when -1 then '1' when 1 then 'SN-' || (i*i*7) else '2027.0' || (1+i%9) || '.1' || (i%7) "
      "end from n, (select -1 as v union select 1 union select 2)");
  const std::string printed = output({"print", "1"});
  ASSERT_NE(printed.find("SN-63"), std::string::npos);
  ASSERT_NE(printed.find("SN-1764028"), std::string::npos);
  const std::string file = pdf("1");
  const int pages = countPages(file);
  ASSERT_GT(pages, 1);
  const std::string all = textOf(file);
  expectWordsInOrder(all, wordsOf(printed));
  for (int page = 1; page <= pages; ++page) {
    const std::string number = std::to_string(page);
    const std::string text = outputOf({"pdftotext", "-raw", "-f", number, "-l", number, file, "-"});
    EXPECT_NE(text.find("Megnevezés"), std::string::npos) << page;
    EXPECT_NE(text.find(number + "/" + std::to_string(pages)), std::string::npos) << page;
  }
}

TEST_F(PrintPdfTest, HostileTextsArePrinted) {
  makeSample();
  const char* values[] = {"replace(hex(zeroblob(50000)), '0', 'W')", "cast(x'FFC3EDA08041' as text)",
                          "'a' || char(1,27,29) || 'b'", "'שלום עולם ' || char(8238) || 'abc'",
                          "replace(hex(zeroblob(2000)), '0', char(769))"};
  for (const char* value : values) {
    SCOPED_TRACE(value);
    exec(std::string("update t_invoiceitemdata set value=") + value + " where t_invoiceitem_1=2");
    const std::string text = textOf(pdf("1"));
    expectWordsInOrder(text, {"Kontaktgél", "Éves felülvizsgálat", "PL-004183"});
  }
}

TEST_F(PrintPdfTest, AnExistingFileIsReplacedAndKeepsItsPermissions) {
  makeSample();
  const std::string file = directory.write("invoice.pdf", std::string(100000, 'x'));
  ASSERT_EQ(chmod(file.c_str(), 0640), 0);
  ASSERT_EQ(pdf("1"), file);
  expectWordsInOrder(textOf(file), wordsOf(output({"print", "1"})));
  struct stat status {};
  ASSERT_EQ(stat(file.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0640U);
  EXPECT_EQ(files().size(), 2U) << "something was left behind";
}

TEST_F(PrintPdfTest, WhereNoFileCanBeNothingIsWritten) {
  makeSample();
  expectRefusedFile(directory.path(), "Ez egy mappa: " + directory.path() + ". Adja meg a fájl nevét is.");
  const std::string missing = directory.path("none/invoice.pdf");
  expectRefusedFile(missing, "A fájl nem írható: " + missing + ". Ellenőrizze a mappáját és a jogosultságokat.");
  expectRefusedFile("/dev/full", "Megtelt a lemez, a fájl nem készült el: /dev/full. Szabadítson fel helyet.");
  expectRefusedFile(database, "Ez az adatbázis része, nem írható felül: " + database + ". Adjon meg másik fájlt.");
}

TEST_F(PrintPdfTest, AFileThatCannotBeReplacedStaysAsItWas) {
  makeSample();
  const std::string file = directory.write("invoice.pdf", "old");
  ASSERT_EQ(chmod(directory.path().c_str(), 0555), 0);
  const ProgramRun run = printUnprivileged("1", file);
  directory.share();
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_EQ(run.errors,
            "brontel-host: A fájl nem írható: " + file + ". Ellenőrizze a mappáját és a jogosultságokat.\n");
  EXPECT_EQ(readFile(file), "old");
  EXPECT_EQ(files().size(), 2U);
}

TEST_F(PrintPdfTest, AnUnknownInvoiceMakesNoFile) {
  makeSample();
  const ProgramRun run = print("99", directory.path("invoice.pdf"));
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_EQ(files().size(), 1U);
}
