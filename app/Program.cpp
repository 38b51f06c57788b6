#include "app/Program.h"

#include <libintl.h>

#include "app/CommandLine.h"
#include "app/CommandRun.h"
#include "app/Console.h"
#include "app/Paths.h"
#include "app/Translation.h"
#include "host/ui/Morvane.h"

namespace Brontel::App {

int run(int argc, char* argv[]) {
  const FX::FXString localeDirectory = findLocaleDirectory();
  prepareTranslation(localeDirectory);
  CommandLine line;
  if (!line.parse(argc, argv)) return report(line.getError());
  if (line.wantsHelp()) return print(helpText(), ExitCode::Done);
  if (line.wantsVersion()) return print("brontel-host " BRONTEL_VERSION "\n", ExitCode::Done);
  if (line.getCommand() == nullptr) {
    return report(
        gettext("Az ablakok még nem készültek el, adjon meg parancsot: init, list, check, print, export, save, "
                "derive, copy, close, storno, find, backup vagy plugins. Segítség: brontel-host --help"));
  }
  Morvane app;
  app.setLocaleDirectory(localeDirectory);
  return CommandRun(line, app).run();
}

}  // namespace Brontel::App
