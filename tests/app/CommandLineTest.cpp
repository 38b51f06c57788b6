#include <map>

#include "tests/app/AppTest.h"
#include "tests/support/ChildProcess.h"

namespace {

class CommandLineTest : public AppTest {
 protected:
  // The arguments alone, without database and plug-ins.
  static void expectWrong(const Arguments& arguments, const std::string& error) {
    const ProgramRun run = runProgram(arguments);
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.errors, "brontel-host: " + error + "\n");
  }
};

}  // namespace

TEST_F(CommandLineTest, WithoutCommandItNeedsADisplay) {
  expectWrong({}, "Nincs elérhető képernyő (DISPLAY). Parancsokkal e nélkül is használható: brontel-host --help");
}

TEST_F(CommandLineTest, AnUnknownCommandIsRefused) {
  expectWrong({"lits"}, "Ismeretlen parancs: lits. A parancsok: brontel-host --help");
  expectWrong({""}, "Ismeretlen parancs: . A parancsok: brontel-host --help");
  expectWrong({"LIST"}, "Ismeretlen parancs: LIST. A parancsok: brontel-host --help");
}

TEST_F(CommandLineTest, ALineFeedInAnArgumentStaysInTheOneLine) {
  expectWrong({"li\nst"}, "Ismeretlen parancs: li st. A parancsok: brontel-host --help");
}

TEST_F(CommandLineTest, AnUnknownOptionIsRefused) {
  expectWrong({"--colour", "list"}, "Ismeretlen vagy hibás kapcsoló: --colour. Segítség: brontel-host --help");
  expectWrong({"list", "-xo"}, "Ismeretlen vagy hibás kapcsoló: -x. Segítség: brontel-host --help");
  expectWrong({"check", "-5"}, "Ismeretlen vagy hibás kapcsoló: -5. Segítség: brontel-host --help");
  expectWrong({"--help=yes"}, "Ismeretlen vagy hibás kapcsoló: --help=yes. Segítség: brontel-host --help");
}

TEST_F(CommandLineTest, AnOptionWithoutItsValueIsRefused) {
  expectWrong({"list", "--database"}, "Hiányzik a kapcsoló értéke: --database. Segítség: brontel-host --help");
  expectWrong({"list", "--database="}, "Hiányzik a kapcsoló értéke: --database. Segítség: brontel-host --help");
  expectWrong({"list", "--plugins"}, "Hiányzik a kapcsoló értéke: --plugins. Segítség: brontel-host --help");
  expectWrong({"export", "1", "-o"}, "Hiányzik a kapcsoló értéke: -o. Segítség: brontel-host --help");
  expectWrong({"export", "1", "-o", ""}, "Hiányzik a kapcsoló értéke: -o. Segítség: brontel-host --help");
}

TEST_F(CommandLineTest, AWrongNumberOfArgumentsShowsHowTheCommandIsUsed) {
  const std::map<std::string, std::string> usages{
      {"init", "init [--sample]"}, {"list", "list"},
      {"check", "check SZÁMLA"},   {"print", "print SZÁMLA [-o FÁJL]"},
      {"save", "save SZÁMLA"},     {"export", "export SZÁMLA [-o FÁJL]"},
      {"copy", "copy SZÁMLA"},     {"close", "close SZÁMLA"},
      {"derive", "derive SZÁMLA"}, {"find", "find SZÖVEG"},
      {"backup", "backup FÁJL"},   {"storno", "storno SZÁMLA"},
      {"plugins", "plugins"},
  };
  for (const auto& [command, usage] : usages) {
    SCOPED_TRACE(command);
    const std::string error = "A parancs így használható: brontel-host " + usage;
    if (usage != command && usage.find('[') != command.size() + 1) expectWrong({command}, error);
    expectWrong({command, "1", "2"}, error);
  }
}

TEST_F(CommandLineTest, AnOptionOfAnotherCommandIsRefused) {
  expectWrong({"list", "-o", "x"}, "Az -o kapcsoló csak a print és az export parancshoz való.");
  expectWrong({"-o", "x"}, "Az -o kapcsoló csak a print és az export parancshoz való.");
  expectWrong({"list", "--sample"}, "A --sample kapcsoló csak az init parancshoz való.");
}

TEST_F(CommandLineTest, HelpNamesEveryCommandAndOptionOnStandardOutput) {
  const ProgramRun run = runProgram({"--help"});
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_EQ(run.errors, "");
  for (const char* word :
       {"--database FÁJL", "--plugins MAPPA", "--help", "--version", "\n  init [--sample]\n", "\n  list\n",
        "\n  check SZÁMLA\n", "\n  print SZÁMLA [-o FÁJL]\n", "\n  export SZÁMLA [-o FÁJL]\n", "\n  save SZÁMLA\n",
        "\n  derive SZÁMLA\n", "\n  copy SZÁMLA\n", "\n  close SZÁMLA\n", "\n  storno SZÁMLA\n", "\n  find SZÖVEG\n",
        "\n  backup FÁJL\n", "\n  plugins\n"}) {
    EXPECT_NE(run.output.find(word), std::string::npos) << word;
  }
}

TEST_F(CommandLineTest, HelpIsGivenWhateverElseIsAsked) {
  EXPECT_EQ(runProgram({"no-such-command", "--help"}).output, runProgram({"--help"}).output);
}

TEST_F(CommandLineTest, VersionIsPrinted) {
  const ProgramRun run = runProgram({"--version"});
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(run.output, "brontel-host " BRONTEL_TEST_VERSION "\n");
}

TEST_F(CommandLineTest, OptionsMayStandAnywhere) {
  makeSample();
  const std::string expected = output({"list"});
  EXPECT_NE(expected, "");
  EXPECT_EQ(runProgram({"list", "--database", database}).output, expected);
  EXPECT_EQ(runProgram({"--database=" + database, "list"}).output, expected);
  EXPECT_EQ(runProgram({"check", "--plugins", pluginFolder(), "2", "--database", database}).output,
            run({"check", "2"}).output);
}

TEST_F(CommandLineTest, AfterADoubleDashATextMayBeginWithADash) {
  makeSample();
  EXPECT_EQ(output({"find", "--", "-240871"}),
            "1\tK-2025/0117\t100\tSzegedi Városi Uszoda\t2025-03-03\tFélautomata defibrillátor\tGyári szám\t1\t"
            "DF5-240871\n");
}

TEST_F(CommandLineTest, AnInvoiceHasToBeANumber) {
  makeSample();
  for (const char* command : {"check", "print", "export", "save", "derive", "copy", "close", "storno"}) {
    for (const char* invoice : {"abc", "1x", "1.5", "", " 1", "0x1", "K-2025/0117"}) {
      SCOPED_TRACE(invoice);
      expectRefused({command, invoice}, std::string("Ez nem számlaazonosító: ") + invoice +
                                            ". A számlákat ez sorolja fel: brontel-host list");
    }
  }
}

TEST_F(CommandLineTest, AnUnknownInvoiceIsRefused) {
  makeSample();
  for (const char* command : {"check", "print", "export", "save", "derive", "copy", "close", "storno"}) {
    for (const char* invoice : {"6", "0", "2147483648", "99999999999999999999999"}) {
      SCOPED_TRACE(invoice);
      expectRefused({command, invoice},
                    std::string("Nincs ilyen számla: ") + invoice + ". A számlákat ez sorolja fel: brontel-host list");
    }
  }
}

TEST_F(CommandLineTest, OutputThatCannotBeWrittenIsAnError) {
  makeSample();
  ChildProcess child({"sh", "-c", "exec \"$0\" --database \"$1\" list > /dev/full", BRONTEL_TEST_HOST, database});
  EXPECT_EQ(child.run(), 2);
  EXPECT_EQ(child.getErrors(), "brontel-host: A kimenet nem írható. Ellenőrizze, hogy van-e hely a lemezen.\n");
}
