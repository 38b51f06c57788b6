#include "app/CommandLine.h"

#include <getopt.h>

#include <libintl.h>

#include "app/Command.h"
#include "host/message/FillIn.h"

namespace Brontel::App {

using FX::FXString;

namespace {

// Long options without a letter of their own.
enum Option { OPTION_DATABASE = 256, OPTION_PLUGINS, OPTION_HELP, OPTION_VERSION, OPTION_SAMPLE };

constexpr option kOptions[] = {
    {"database", required_argument, nullptr, OPTION_DATABASE},
    {"plugins", required_argument, nullptr, OPTION_PLUGINS},
    {"help", no_argument, nullptr, OPTION_HELP},
    {"version", no_argument, nullptr, OPTION_VERSION},
    {"sample", no_argument, nullptr, OPTION_SAMPLE},
    {nullptr, 0, nullptr, 0},
};

// The option that getopt has just met, as a message names it.
FXString metOption(char* const argv[]) {
  const bool isLetter = optopt > ' ' && optopt < 0x7f;
  return isLetter ? "-" + FXString(static_cast<FX::FXchar>(optopt), 1) : FXString(argv[optind - 1]);
}

FXString missingValue(const FXString& option) {
  return fillIn(gettext("Hiányzik a kapcsoló értéke: %s. Segítség: brontel-host --help"), {option});
}

// The command with what follows it. The empty text must not be translated, since it names the catalogue's header.
FXString usageOf(const Command& command) {
  const FXString name(command.name);
  return *command.usage == '\0' ? name : name + " " + gettext(command.usage);
}

}  // namespace

bool CommandLine::parse(int argc, char* const argv[]) {
  if (!parseOptions(argc, argv)) return false;
  if (help_ || version_) return true;
  return takeCommand(argc - optind, argv + optind) && checkUse();
}

bool CommandLine::parseOptions(int argc, char* const argv[]) {
  optind = 0;  // starts over
  opterr = 0;
  // The leading colon tells a missing value from an unknown option.
  for (int option = 0; (option = getopt_long(argc, argv, ":o:", kOptions, nullptr)) != -1;) {
    if (!takeOption(option, argv)) return false;
  }
  return true;
}

bool CommandLine::takeOption(int option, char* const argv[]) {
  switch (option) {
    case OPTION_DATABASE:
      return takeValue(database_, "--database");
    case OPTION_PLUGINS:
      return takeValue(plugins_, "--plugins");
    case 'o':
      return takeValue(outputFile_, "-o");
    case OPTION_HELP:
      help_ = true;
      return true;
    case OPTION_VERSION:
      version_ = true;
      return true;
    case OPTION_SAMPLE:
      sample_ = true;
      return true;
    case ':':
      return refuse(missingValue(metOption(argv)));
    default:
      return refuse(
          fillIn(gettext("Ismeretlen vagy hibás kapcsoló: %s. Segítség: brontel-host --help"), {metOption(argv)}));
  }
}

bool CommandLine::takeValue(FXString& value, const char* option) {
  value = optarg;
  return !value.empty() || refuse(missingValue(option));
}

bool CommandLine::takeCommand(int count, char* const words[]) {
  if (count == 0) return true;
  command_ = findCommand(words[0]);
  if (command_ == nullptr) {
    return refuse(fillIn(gettext("Ismeretlen parancs: %s. A parancsok: brontel-host --help"), {words[0]}));
  }
  arguments_.assign(words + 1, words + count);
  if (arguments_.size() == command_->arguments) return true;
  return refuse(fillIn(gettext("A parancs így használható: brontel-host %s"), {usageOf(*command_)}));
}

bool CommandLine::checkUse() {
  const char option = command_ == nullptr ? '\0' : command_->option;
  if (!outputFile_.empty() && option != 'o') {
    return refuse(gettext("Az -o kapcsoló csak a print és az export parancshoz való."));
  }
  if (sample_ && option != 's') return refuse(gettext("A --sample kapcsoló csak az init parancshoz való."));
  return true;
}

bool CommandLine::refuse(const FXString& error) {
  error_ = error;
  return false;
}

std::string helpText() {
  std::string text = gettext(
      "Használat: brontel-host [--database FÁJL] [--plugins MAPPA] [PARANCS]\n"
      "\n"
      "Számlák egyéb tételadatokkal. A SZÁMLA a számla azonosítója.\n"
      "\n"
      "Kapcsolók:\n"
      "  --database FÁJL\n"
      "      az adatbázis; alapértelmezés: $XDG_DATA_HOME/brontel/brontel.db,\n"
      "      illetve ~/.local/share/brontel/brontel.db\n"
      "  --plugins MAPPA\n"
      "      a bővítmények mappája; alapértelmezés: $BRONTEL_PLUGIN_PATH,\n"
      "      illetve a program melletti ../lib/brontel/plugins\n"
      "  --help\n"
      "      ez a segítség\n"
      "  --version\n"
      "      a program változata\n"
      "\n"
      "Parancsok:\n");
  for (const Command& command : allCommands()) {
    text.append("  ").append(usageOf(command).text()).append("\n");
    text.append("      ").append(gettext(command.description)).append("\n");
  }
  return text.append(gettext("\nKilépési kód: 0 kész, 1 a számlán van javítanivaló, 2 hiba.\n"));
}

}  // namespace Brontel::App
