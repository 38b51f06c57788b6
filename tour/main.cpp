// brontel-tour [--language LANGUAGE] [--plugins FOLDER] FOLDER: goes through the program's windows, as somebody at the
// keyboard would, on a display that nobody sees, and leaves pictures and documents in FOLDER.

#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>
#include <unistd.h>

#include "app/Paths.h"
#include "tests/support/Failure.h"
#include "tests/support/TemporaryDirectory.h"
#include "tour/Tour.h"

namespace fs = std::filesystem;

namespace {

constexpr unsigned kLongestSeconds = 600;

struct Wishes {
  std::string folder;
  std::string plugins;
  std::string language;
};

/// The home of this run: nobody's settings may be touched, and nothing may be left behind.
std::string theHome;

int complain(const std::string& what) {
  static_cast<void>(std::fprintf(stderr, "brontel-tour: %s\n", what.c_str()));
  return 2;
}

/// What comes after something that has gone wrong would be about something else.
void stopTour(const std::string& what) {
  complain(what);
  std::error_code error;
  fs::remove_all(theHome, error);
  std::_Exit(1);
}

/// A box that nobody expects would be waited for.
void giveUp(int) {
  static constexpr char kText[] = "brontel-tour: this takes too long\n";
  static_cast<void>(!write(STDERR_FILENO, kText, sizeof kText - 1));
  std::_Exit(1);
}

/// False when they cannot be understood.
bool parse(int count, char** arguments, Wishes& wishes) {
  for (int i = 1; i < count; ++i) {
    const std::string argument = arguments[i];
    std::string* value = argument == "--language"  ? &wishes.language
                         : argument == "--plugins" ? &wishes.plugins
                                                   : nullptr;
    if (value != nullptr && i + 1 < count) {
      *value = arguments[++i];
    } else if (value == nullptr && wishes.folder.empty() && argument.rfind('-', 0) != 0) {
      wishes.folder = argument;
    } else {
      return false;
    }
  }
  return !wishes.folder.empty();
}

void prepareEnvironment(const std::string& language) {
  setenv("HOME", theHome.c_str(), 1);
  setenv("TMPDIR", theHome.c_str(), 1);
  for (const char* name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "LANGUAGE"}) unsetenv(name);
  setenv("LC_ALL", "C.UTF-8", 1);
  if (!language.empty()) setenv("LANGUAGE", language.c_str(), 1);
  static_cast<void>(setlocale(LC_ALL, ""));
}

}  // namespace

int main(int argc, char* argv[]) {
  Wishes wishes;
  if (!parse(argc, argv, wishes)) {
    return complain("Usage: brontel-tour [--language LANGUAGE] [--plugins FOLDER] FOLDER");
  }
  std::error_code error;
  fs::create_directories(wishes.folder, error);
  const std::string folder = fs::absolute(wishes.folder).lexically_normal().string();
  if (!fs::is_directory(folder, error)) return complain("no folder can be made there: " + folder);
  const std::string plugins = fs::absolute(Brontel::App::findPluginDirectory(wishes.plugins.c_str()).text()).string();

  const TemporaryDirectory home;
  theHome = home.path();
  prepareEnvironment(wishes.language);
  setFailureHandler(stopTour);
  static_cast<void>(std::signal(SIGALRM, giveUp));
  alarm(kLongestSeconds);
  const Tour::Result result = Tour::takeTour(folder, plugins);
  std::printf("%zu pictures:\n", result.pictures.size());
  for (const std::string& picture : result.pictures) std::printf("  %s\n", picture.c_str());
  for (const char* document : {"invoice.pdf", "invoice.txt", "invoice.xml"}) {
    std::printf("%s/%s\n", folder.c_str(), document);
  }
  return 0;
}
