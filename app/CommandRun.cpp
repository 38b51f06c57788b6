#include "app/CommandRun.h"

#include "app/Command.h"
#include "app/CommandLine.h"
#include "app/Console.h"
#include "app/Paths.h"
#include "app/PluginStart.h"
#include "app/Session.h"
#include "host/ui/Morvane.h"

namespace Brontel::App {

using FX::FXString;

int CommandRun::run() {
  const Command& command = *line_.getCommand();
  if (!database_.open(findDatabase(line_.getDatabase()), command.use)) return report(database_.getError());
  Session session(line_, database_, registry_, loader_);
  Outcome outcome = loadPlugins(command);
  if (outcome.code == ExitCode::Done) outcome = command.run(session);
  if (database_.errors().hasError()) return report(database_.describeError());
  return outcome.code == ExitCode::Failed ? report(outcome.error) : print(session.output, outcome.code);
}

Outcome CommandRun::loadPlugins(const Command& command) {
  if (!command.usesPlugins) return {};
  PluginStart start(app_, database_, loader_);
  const FXString folder = findPluginDirectory(line_.getPlugins());
  if (!start.load(folder)) return failed(start.getError());
  // What plug-ins bring up to date at their start serves writing, and is tried again at the next start. Reading goes on
  // without, and tells by itself what it cannot read.
  const bool writes = command.use == HostDatabase::Use::Write || command.use == HostDatabase::Use::Create;
  if (!writes) database_.errors().forget();
  // That command shows all this itself.
  if (command.use == HostDatabase::Use::IfPresent) return {};
  if (!start.requireAny(folder)) return failed(start.getError());
  for (const FXString& line : start.describeFailures()) report(line);
  if (database_.errors().hasError()) return databaseFailed();
  if (command.use == HostDatabase::Use::Read || start.requireQuantityVariable()) return {};
  return failed(start.getError());
}

}  // namespace Brontel::App
