#include "tour/Stage.h"

#include <filesystem>

#include "app/Paths.h"
#include "app/PluginStart.h"
#include "app/SampleData.h"
#include "app/Translation.h"
#include "app/window/FoxTexts.h"
#include "app/window/OpenWindow.h"
#include "tests/support/Failure.h"
#include "tests/support/FileConnection.h"

namespace Tour {

namespace fs = std::filesystem;

using Brontel::App::HostDatabase;
using Brontel::App::SampleData;

namespace {

constexpr const char* kScreen = "1024x768x24";
constexpr const char* kFolder = "Számlák";

}  // namespace

Stage::Stage(const std::string& pictures, const std::string& plugins)
    : before_(fs::current_path().string()),
      application(nullptr, kScreen),
      loader(application.get(), registry),
      user(application),
      album(application, pictures) {
  fs::create_directory(directory_.path(kFolder));
  fs::current_path(directory_.path(kFolder));
  application->setLocaleDirectory(Brontel::App::findLocaleDirectory());
  // The toolkit has taken the language from the environment again.
  Brontel::App::prepareTranslation(Brontel::App::findLocaleDirectory());
  Brontel::App::FoxTexts::install(application.get());
  openDatabase(plugins);
  workspace = std::make_unique<Brontel::App::Workspace>(*application.get(), database, registry, loader);
  application.create();
  main_ = new MainWindow(*workspace, {});
  main_->create();
}

Stage::~Stage() {
  user.settle();
  deleteWindows();
  workspace.reset();
  loader.unload();
  application->setDB(nullptr);
  fs::current_path(before_);
}

void Stage::openDatabase(const std::string& plugins) {
  if (!database.open(kDatabase, HostDatabase::Use::Create)) reportFailure(database.getError().text());
  Brontel::App::PluginStart start(*application.get(), database, loader);
  if (!start.load(plugins.c_str()) || !start.requireAny(plugins.c_str())) reportFailure(start.getError().text());
  database.markComplete();
  if (SampleData(database.handle()).insert() != SampleData::Result::Done) reportFailure("there is no sample");
}

// With one may go others, so each is looked for anew.
void Stage::deleteWindows() {
  while (!workspace->getWindows().empty()) delete workspace->getWindows().back()->getWindow();
  delete main_;
}

Stage::MainWindow& Stage::useMain() {
  main_->raise();
  user.giveKeyboardTo(main_);
  return *main_;
}

FX::FXTopWindow* Stage::useNewest() {
  if (workspace->getWindows().empty()) {
    reportFailure("no window has been opened");
    return nullptr;
  }
  FX::FXTopWindow* window = workspace->getWindows().back()->getWindow();
  window->raise();
  user.giveKeyboardTo(window);
  return window;
}

Stage::InvoiceEditForm* Stage::useNewestForm() {
  auto* form = dynamic_cast<InvoiceEditForm*>(useNewest());
  if (form == nullptr) reportFailure("no invoice has been opened");
  return form;
}

Stage::Rows Stage::rows(const std::string& sql) {
  return FileConnection(kDatabase).rows(sql);
}

}  // namespace Tour
