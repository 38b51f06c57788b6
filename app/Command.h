#pragma once

#include <vector>

#include "app/HostDatabase.h"
#include "app/Outcome.h"

namespace Brontel::App {

class Session;

/// One command of the command line.
struct Command {
  const char* name;
  const char* usage;        ///< what follows the name, to be translated; empty for nothing
  const char* description;  ///< to be translated
  size_t arguments;         ///< how many there have to be
  char option;              ///< the one option of its own, as in getopt; 0 for none
  HostDatabase::Use use;
  bool usesPlugins;
  Outcome (*run)(Session& session);
};

/// All commands, in the order in which a person gets to know them.
const std::vector<Command>& allCommands();

/// The command of that name, or null.
const Command* findCommand(const FX::FXString& name);

Outcome runBackup(Session& session);
Outcome runCheck(Session& session);
Outcome runClose(Session& session);
Outcome runCopy(Session& session);
Outcome runDerive(Session& session);
Outcome runExport(Session& session);
Outcome runFind(Session& session);
Outcome runInit(Session& session);
Outcome runList(Session& session);
Outcome runPlugins(Session& session);
Outcome runPrint(Session& session);
Outcome runSave(Session& session);
Outcome runStorno(Session& session);

}  // namespace Brontel::App
