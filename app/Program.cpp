#include "app/Program.h"

#include "app/CommandLine.h"
#include "app/CommandRun.h"
#include "app/Console.h"
#include "app/Paths.h"
#include "app/Translation.h"
#include "app/WindowRun.h"
#include "host/ui/Morvane.h"

namespace Brontel::App {

int run(int argc, char* argv[]) {
  const FX::FXString localeDirectory = findLocaleDirectory();
  prepareTranslation(localeDirectory);
  CommandLine line;
  if (!line.parse(argc, argv)) return report(line.getError());
  if (line.wantsHelp()) return print(helpText(), ExitCode::Done);
  if (line.wantsVersion()) return print("brontel-host " BRONTEL_VERSION "\n", ExitCode::Done);
  Morvane app;
  app.setLocaleDirectory(localeDirectory);
  return line.getCommand() == nullptr ? WindowRun(line, app).run(argv[0]) : CommandRun(line, app).run();
}

}  // namespace Brontel::App
