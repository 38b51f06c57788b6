#include "app/Paths.h"

#include <cstdlib>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>

namespace Brontel::App {

namespace {

using FX::FXString;
using std::filesystem::path;

// An empty variable is as good as none.
FXString variable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? FXString() : FXString(value);
}

// A folder by its way from the one that the program is in. Where the system does not tell, that is the one that the
// program was configured for.
path besideProgram(const char* folder) {
  std::error_code error;
  const path program = std::filesystem::read_symlink("/proc/self/exe", error);
  const path programFolder = error ? path(BRONTEL_PROGRAM_FOLDER) : program.parent_path();
  return (programFolder / folder).lexically_normal();
}

// Where the program was installed, the folder of libraries may have another name than where it was built.
path pluginsBesideProgram() {
  const path installed = besideProgram(BRONTEL_PLUGINS_BESIDE_PROGRAM);
  const path built = besideProgram("../lib/brontel/plugins");
  std::error_code error;
  return !std::filesystem::is_directory(installed, error) && std::filesystem::is_directory(built, error) ? built
                                                                                                         : installed;
}

bool makeFolder(const path& folder) {
  std::error_code error;
  if (folder.empty() || std::filesystem::is_directory(folder, error)) return true;
  if (!makeFolder(folder.parent_path())) return false;
  // Somebody else may have made it meanwhile.
  return mkdir(folder.c_str(), 0700) == 0 || std::filesystem::is_directory(folder, error);
}

}  // namespace

FXString findDatabase(const FXString& given) {
  if (!given.empty()) return given;
  const FXString data = variable("XDG_DATA_HOME");
  // The variable is to be ignored unless it names an absolute path.
  const path folder = path(data.text()).is_absolute()
                          ? path(data.text())
                          : path(FX::FXSystem::getHomeDirectory().text()) / ".local" / "share";
  return (folder / "brontel" / "brontel.db").c_str();
}

FXString findPluginDirectory(const FXString& given) {
  if (!given.empty()) return given;
  const FXString named = variable("BRONTEL_PLUGIN_PATH");
  return named.empty() ? FXString(pluginsBesideProgram().c_str()) : named;
}

FXString findLocaleDirectory() {
  const FXString named = variable("BRONTEL_LOCALE_PATH");
  return named.empty() ? FXString(besideProgram(BRONTEL_LOCALES_BESIDE_PROGRAM).c_str()) : named;
}

bool makeFolderOf(const FXString& file) {
  return makeFolder(path(file.text()).parent_path());
}

}  // namespace Brontel::App
