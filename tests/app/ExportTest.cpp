#include <filesystem>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xpath.h>
#include <libxml/xpathInternals.h>

#include "tests/app/AppTest.h"

namespace {

/// An exported document, read back by an XML parser.
class Parsed {
 public:
  explicit Parsed(const std::string& text)
      : document_(xmlReadMemory(text.data(), static_cast<int>(text.size()), "export.xml", nullptr, XML_PARSE_NONET),
                  xmlFreeDoc) {
    EXPECT_NE(document_, nullptr) << text;
  }

  /// The string value of an XPath expression; d stands for the namespace of the item data.
  std::string value(const std::string& expression) const {
    std::unique_ptr<xmlXPathContext, decltype(&xmlXPathFreeContext)> context(xmlXPathNewContext(document_.get()),
                                                                             xmlXPathFreeContext);
    xmlXPathRegisterNs(context.get(), BAD_CAST "d", BAD_CAST "urn:brontel:plugin:itemdata");
    std::unique_ptr<xmlXPathObject, decltype(&xmlXPathFreeObject)> result(
        xmlXPathEvalExpression(BAD_CAST("string(" + expression + ")").c_str(), context.get()), xmlXPathFreeObject);
    return result == nullptr ? "no expression" : reinterpret_cast<const char*>(result->stringval);
  }

 private:
  std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> document_;
};

using ExportTest = AppTest;

}  // namespace

TEST_F(ExportTest, IsTheInvoiceWithItsItemsAndTheirData) {
  makeSample();
  EXPECT_EQ(output({"export", "5"}),
            R"(<?xml version="1.0" encoding="UTF-8"?>
<invoice xmlns:itemdata="urn:brontel:plugin:itemdata" id="5" number="K-2025/0096/J1" type="101" status="150" partner="Bükkaljai Általános Iskola" date="2025-03-05" reference="4">
  <items>
    <item position="1" name="Félautomata defibrillátor" goodskind="1" goods="1" quantity="2" unit="db" price="489000">
      <itemdata:itemdata>
        <itemdata:itemdata row="2" name="Mennyiség">2</itemdata:itemdata>
        <itemdata:itemdata row="2" name="Gyári szám">DF5-240884–885</itemdata:itemdata>
        <itemdata:itemdata row="2" name="Elektróda lejárata">2027.09.30</itemdata:itemdata>
      </itemdata:itemdata>
    </item>
    <item position="2" name="Kontaktgél 250 ml" goodskind="1" goods="2" quantity="4" unit="flakon" price="1450">
      <itemdata:itemdata>
        <itemdata:itemdata row="0" name="Gyártási tétel">KG-2501/12</itemdata:itemdata>
      </itemdata:itemdata>
    </item>
  </items>
</invoice>
)");
}

TEST_F(ExportTest, IsWellFormedForEveryInvoiceOfTheSample) {
  makeSample();
  for (const char* invoice : {"1", "2", "3", "4", "5"}) {
    const Parsed parsed(output({"export", invoice}));
    EXPECT_EQ(parsed.value("/invoice/@id"), invoice);
    EXPECT_EQ(parsed.value("count(/invoice/items/item)"), text(std::string("select count(*) from t_invoiceitem where "
                                                                           "t_invoice_1=") +
                                                               invoice));
    EXPECT_EQ(parsed.value("count(//d:itemdata/d:itemdata)"),
              text(std::string("select count(*) from t_invoiceitemdata d join t_invoiceitem on "
                               "d.t_invoiceitem_1=t_invoiceitem_id where t_invoice_1=") +
                   invoice));
  }
}

TEST_F(ExportTest, AnInvoiceThatRefersToNoneHasNoReference) {
  makeSample();
  EXPECT_EQ(Parsed(output({"export", "1"})).value("count(/invoice/@reference)"), "0");
  EXPECT_EQ(Parsed(output({"export", "5"})).value("/invoice/@reference"), "4");
}

TEST_F(ExportTest, WhatXmlReservesOrForbidsSurvives) {
  makeSample();
  exec(
      "update t_invoice set partner='<Kis & \"Nagy\">' where t_invoice_id=1; "
      "update t_invoiceitemdata set value='A' || char(29) || '<&]]>' where value='KG-2411/07'");
  const Parsed parsed(output({"export", "1"}));
  EXPECT_EQ(parsed.value("/invoice/@partner"), "<Kis & \"Nagy\">");
  EXPECT_EQ(parsed.value("//item[2]/d:itemdata/d:itemdata"), "A\xEF\xBF\xBD<&]]>");
}

TEST_F(ExportTest, AnInvoiceWithoutItemsIsExportedToo) {
  output({"init"});
  exec("insert into t_invoice (number, t_invoicetype_1, t_invoicestatus_1) values ('x', 101, 150)");
  const Parsed parsed(output({"export", "1"}));
  EXPECT_EQ(parsed.value("/invoice/@number"), "x");
  EXPECT_EQ(parsed.value("count(/invoice/items)"), "1");
  EXPECT_EQ(parsed.value("count(//item)"), "0");
}

TEST_F(ExportTest, AFileGetsWhatStandardOutputWouldGet) {
  makeSample();
  const std::string file = directory.path("invoice.xml");
  EXPECT_EQ(output({"export", "1", "-o", file}), "");
  EXPECT_EQ(readFile(file), output({"export", "1"}));
  struct stat status {};
  ASSERT_EQ(stat(file.c_str(), &status), 0);
  const mode_t mask = umask(0);
  umask(mask);
  EXPECT_EQ(status.st_mode & 0777, 0666U & ~mask);
  EXPECT_EQ(files().size(), 2U) << "something was left behind";
}

TEST_F(ExportTest, AnExistingFileIsReplacedAndKeepsItsPermissions) {
  makeSample();
  const std::string file = directory.write("invoice.xml", std::string(100000, 'x'));
  ASSERT_EQ(chmod(file.c_str(), 0640), 0);
  EXPECT_EQ(output({"export", "1", "-o", file}), "");
  EXPECT_EQ(readFile(file), output({"export", "1"}));
  struct stat status {};
  ASSERT_EQ(stat(file.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0640U);
}

TEST_F(ExportTest, ThroughASymbolicLinkTheFileBehindItIsReplaced) {
  makeSample();
  const std::string file = directory.write("invoice.xml", "old");
  const std::string link = directory.path("link.xml");
  std::filesystem::create_symlink(file, link);
  EXPECT_EQ(output({"export", "1", "-o", link}), "");
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_EQ(readFile(file), output({"export", "1"}));
}

TEST_F(ExportTest, ADeviceIsWrittenToAndNotReplaced) {
  makeSample();
  EXPECT_EQ(output({"export", "1", "-o", "/dev/null"}), "");
  struct stat status {};
  ASSERT_EQ(stat("/dev/null", &status), 0);
  EXPECT_TRUE(S_ISCHR(status.st_mode));
  expectRefused({"export", "1", "-o", "/dev/full"},
                "Megtelt a lemez, a fájl nem készült el: /dev/full. Szabadítson fel helyet.");
}

TEST_F(ExportTest, AFolderOrAMissingFolderIsRefused) {
  makeSample();
  expectRefused({"export", "1", "-o", directory.path()},
                "Ez egy mappa: " + directory.path() + ". Adja meg a fájl nevét is.");
  const std::string missing = directory.path("none/invoice.xml");
  expectRefused({"export", "1", "-o", missing},
                "A fájl nem írható: " + missing + ". Ellenőrizze a mappáját és a jogosultságokat.");
}

TEST_F(ExportTest, TheDatabaseItselfIsNeverOverwritten) {
  makeSample();
  const std::string link = directory.path("link.xml");
  std::filesystem::create_symlink(database, link);
  for (const std::string& file : {database, link, directory.path() + "/./brontel.db", database + "-wal",
                                  database + "-shm", database + "-journal"}) {
    expectRefused({"export", "1", "-o", file},
                  "Ez az adatbázis része, nem írható felül: " + file + ". Adjon meg másik fájlt.");
  }
}

TEST_F(ExportTest, TheJournalIsThatOfTheFileBehindALink) {
  makeSample();
  const std::string journal = database + "-wal";
  const std::string link = directory.path("link.db");
  std::filesystem::create_symlink(database, link);
  const ProgramRun run = runProgram({"--database", link, "--plugins", pluginFolder(), "export", "1", "-o", journal});
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_EQ(run.errors,
            "brontel-host: Ez az adatbázis része, nem írható felül: " + journal + ". Adjon meg másik fájlt.\n");
}

TEST_F(ExportTest, AFileThatCannotBeReplacedStaysAsItWas) {
  makeSample();
  const std::string file = directory.write("invoice.xml", "old");
  ASSERT_EQ(chmod(directory.path().c_str(), 0555), 0);
  const ProgramRun run = runUnprivileged({"export", "1", "-o", file});
  directory.share();
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_EQ(run.errors,
            "brontel-host: A fájl nem írható: " + file + ". Ellenőrizze a mappáját és a jogosultságokat.\n");
  EXPECT_EQ(readFile(file), "old");
  EXPECT_EQ(files().size(), 2U);
}
