#include "app/WindowRun.h"

#include <cstdlib>

#include <libintl.h>

#include "app/CommandLine.h"
#include "app/Console.h"
#include "app/Paths.h"
#include "app/PluginStart.h"
#include "app/Translation.h"
#include "app/window/Dialogs.h"
#include "app/window/FoxTexts.h"
#include "app/window/MainWindow.h"
#include "app/window/Workspace.h"
#include "host/message/FillIn.h"
#include "host/ui/Morvane.h"

namespace Brontel::App {

using FX::FXString;

namespace {

FX::FXTopWindow* findTopWindow(const FX::FXWindow& root) {
  for (FX::FXint i = 0; FX::FXWindow* child = root.childAtIndex(i); ++i) {
    if (auto* window = dynamic_cast<FX::FXTopWindow*>(child)) return window;
  }
  return nullptr;
}

}  // namespace

int WindowRun::run(char* program) {
  // Before the database, which is not to be made for nothing.
  if (!openDisplay(program)) {
    return report(
        gettext("Nincs elérhető képernyő (DISPLAY). Parancsokkal e nélkül is használható: brontel-host --help"));
  }
  if (!database_.open(findDatabase(line_.getDatabase()), HostDatabase::Use::Create)) {
    return refuse(database_.getError());
  }
  if (!loadPlugins()) return refuse(database_.describeError());
  int code = 0;
  {
    Workspace workspace(app_, database_, registry_, loader_, editable_);
    new MainWindow(workspace, notices_);
    app_.create();
    code = app_.run();
    workspace.getLongWork().end();
    deleteWindows();
  }
  // What the plug-ins have made needs their code to go.
  loader_.unload();
  return code;
}

bool WindowRun::openDisplay(char* program) {
  arguments_[0] = program;
  app_.init(argumentCount_, arguments_, false);
  // The toolkit has taken the language from the environment again. Typed letters depend on it once the display is open.
  prepareTranslation(findLocaleDirectory());
  FoxTexts::install(&app_);
  // Without a name the toolkit would try one of its own, which may be somebody else's screen.
  const char* display = std::getenv("DISPLAY");
  return display != nullptr && *display != '\0' && app_.openDisplay(display);
}

// Who has started the program by a click does not see what it writes.
int WindowRun::refuse(const FXString& error) {
  const int code = report(error);
  app_.create();
  Dialogs::showError(app_.getRootWindow(), error);
  return code;
}

// They have gone by themselves unless something else than closing the main window has ended the program. With one may
// go others, so each is looked for anew.
void WindowRun::deleteWindows() {
  while (FX::FXTopWindow* window = findTopWindow(*app_.getRootWindow())) delete window;
}

bool WindowRun::loadPlugins() {
  PluginStart start(app_, database_, loader_);
  const FXString folder = findPluginDirectory(line_.getPlugins());
  if (!start.load(folder) || !start.requireAny(folder)) {
    // Saving without them could lose what they have recorded.
    notices_.push_back(start.getError());
    notices_.emplace_back(gettext("A számlák bővítmény nélkül csak megtekinthetők."));
    editable_ = false;
  }
  for (const FXString& line : start.describeFailures()) notices_.push_back(line);
  if (editable_ && !start.requireQuantityVariable()) {
    notices_.push_back(start.getError());
    editable_ = false;
  }
  if (editable_) database_.markComplete();
  return !database_.errors().hasError();
}

}  // namespace Brontel::App
