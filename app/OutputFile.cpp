#include "app/OutputFile.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include <libintl.h>

#include "host/message/FillIn.h"

namespace Brontel::App {

using FX::FXString;

namespace {

bool writeAll(int file, const FXString& content) {
  FX::FXint at = 0;
  while (at < content.length()) {
    const ssize_t written = write(file, content.text() + at, static_cast<size_t>(content.length() - at));
    if (written < 0 && errno != EINTR) return false;
    if (written > 0) at += static_cast<FX::FXint>(written);
  }
  return true;
}

mode_t newFileMode() {
  const mode_t mask = umask(0);
  umask(mask);
  return 0666 & ~mask;
}

bool writeDirectly(const FXString& path, const FXString& content) {
  const int file = open(path.text(), O_WRONLY | O_CLOEXEC);
  if (file < 0) return false;
  const bool done = writeAll(file, content);
  return close(file) == 0 && done;
}

// Keeps errno of what failed.
bool writeAndRename(const std::string& path, mode_t mode, const FXString& content) {
  const size_t slash = path.rfind('/');
  std::string temporary = path.substr(0, slash == std::string::npos ? 0 : slash + 1) + ".brontel-XXXXXX";
  const int file = mkostemp(temporary.data(), O_CLOEXEC);
  if (file < 0) return false;
  bool done = fchmod(file, mode) == 0 && writeAll(file, content) && fsync(file) == 0;
  done = close(file) == 0 && done;
  if (done && std::rename(temporary.c_str(), path.c_str()) == 0) return true;
  const int reason = errno;
  unlink(temporary.c_str());
  errno = reason;
  return false;
}

bool replace(const FXString& path, const FXString& content) {
  struct stat status {};
  if (stat(path.text(), &status) != 0) return writeAndRename(path.text(), newFileMode(), content);
  if (S_ISDIR(status.st_mode)) {
    errno = EISDIR;
    return false;
  }
  if (!S_ISREG(status.st_mode)) return writeDirectly(path, content);
  // Through a symbolic link the file behind it is replaced, not the link.
  std::error_code error;
  const std::filesystem::path real = std::filesystem::canonical(path.text(), error);
  return !error && writeAndRename(real.string(), status.st_mode & 07777, content);
}

}  // namespace

FXString replaceFile(const FXString& path, const FXString& content) {
  if (replace(path, content)) return FXString();
  if (errno == EISDIR) return fillIn(gettext("Ez egy mappa: %s. Adja meg a fájl nevét is."), {path});
  if (errno == ENOSPC || errno == EDQUOT) {
    return fillIn(gettext("Megtelt a lemez, a fájl nem készült el: %s. Szabadítson fel helyet."), {path});
  }
  return fillIn(gettext("A fájl nem írható: %s. Ellenőrizze a mappáját és a jogosultságokat."), {path});
}

}  // namespace Brontel::App
