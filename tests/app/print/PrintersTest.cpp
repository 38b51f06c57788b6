#include <cstdlib>
#include <filesystem>

#include <gtest/gtest.h>

#include "app/print/Printers.h"
#include "tests/app/print/ToolFolder.h"

using Brontel::App::findPrinters;
using Brontel::App::sendToPrinter;

namespace {

class PrintersTest : public ::testing::Test {
 protected:
  PrintersTest() { setenv("TMPDIR", temporary_.path().c_str(), 1); }
  ~PrintersTest() override { unsetenv("TMPDIR"); }

  static std::vector<std::string> printers() {
    std::vector<std::string> names;
    for (const FX::FXString& name : findPrinters()) names.emplace_back(name.text());
    return names;
  }

  static std::string send(const FX::FXString& printer, int copies) {
    return sendToPrinter(FX::FXString("%PDF\0x", 6), {printer, copies}).text();
  }

  // The arguments, a line each, and a copy of the file that is the last of them.
  void addRecorder(const std::string& name) const {
    tools_.add(name, "echo " + name +
                         " > $TOOLS/arguments; for word; do printf '%s\\n' \"$word\" >> $TOOLS/arguments; done; "
                         "/bin/cp \"$word\" $TOOLS/document");
  }

  std::string argumentsWithoutFile() const {
    const std::string all = tools_.written("arguments");
    return all.substr(0, all.rfind('\n', all.size() - 2) + 1);
  }

  size_t filesLeft() const {
    return static_cast<size_t>(std::distance(std::filesystem::directory_iterator(temporary_.path()), {}));
  }

  ToolFolder tools_;
  TemporaryDirectory temporary_;
};

}  // namespace

TEST_F(PrintersTest, AreWhatTheSystemNames) {
  tools_.add("lpstat", "[ \"$*\" = -e ] && printf 'iroda\\nraktár 2\\n\\n'");
  EXPECT_EQ(printers(), (std::vector<std::string>{"iroda", "raktár 2"}));
}

TEST_F(PrintersTest, AreNoneWhereTheSystemCannotSay) {
  EXPECT_EQ(printers(), std::vector<std::string>());
  tools_.add("lpstat", "echo 'lpstat: Bad file descriptor'; exit 1");
  EXPECT_EQ(printers(), std::vector<std::string>());
}

TEST_F(PrintersTest, LpGetsTheDocumentThePrinterAndTheNumberOfCopies) {
  addRecorder("lp");
  EXPECT_EQ(send("iroda; reboot", 3), "");
  EXPECT_EQ(argumentsWithoutFile(), "lp\n-n\n3\n-d\niroda; reboot\n");
  EXPECT_EQ(tools_.written("document"), std::string("%PDF\0x", 6));
  EXPECT_EQ(filesLeft(), 0u);
}

TEST_F(PrintersTest, WithoutAPrinterTheSystemChooses) {
  addRecorder("lp");
  EXPECT_EQ(send("", 1), "");
  EXPECT_EQ(argumentsWithoutFile(), "lp\n-n\n1\n");
}

TEST_F(PrintersTest, LprStepsInWhereThereIsNoLp) {
  addRecorder("lpr");
  EXPECT_EQ(send("iroda", 2), "");
  EXPECT_EQ(argumentsWithoutFile(), "lpr\n-#2\n-Piroda\n");
  EXPECT_EQ(tools_.written("document"), std::string("%PDF\0x", 6));
}

TEST_F(PrintersTest, WhatTheSystemComplainsOfIsTold) {
  tools_.add("lp", "echo 'lp: The printer or class does not exist.' >&2; exit 1");
  EXPECT_EQ(send("x", 1), "A nyomtatórendszer nem fogadta el a számlát: lp: The printer or class does not exist.");
  tools_.add("lp", "exit 1");
  EXPECT_EQ(send("x", 1), "A nyomtatórendszer nem fogadta el a számlát: nem mondta meg, miért");
  EXPECT_EQ(filesLeft(), 0u);
}

TEST_F(PrintersTest, WithoutAnyPrintingSystemThePersonIsToldWhatToDo) {
  EXPECT_EQ(send("x", 1),
            "Ezen a gépen nincs nyomtatóprogram (lp vagy lpr). Mentse a számlát PDF-be, és azt nyomtassa ki.");
  EXPECT_EQ(filesLeft(), 0u);
}

TEST_F(PrintersTest, AFileThatCannotBeWrittenIsTold) {
  addRecorder("lp");
  setenv("TMPDIR", "/nowhere", 1);
  EXPECT_EQ(send("x", 1).find("A fájl nem írható: /nowhere/brontel-"), 0u);
  EXPECT_EQ(tools_.written("arguments"), "");
}
