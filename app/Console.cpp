#include "app/Console.h"

#include <cstdio>

#include <libintl.h>

#include "app/ErrorText.h"

namespace Brontel::App {

int report(const FXString& error) {
  // When this cannot be written either, there is nobody left to tell.
  static_cast<void>(std::fprintf(stderr, "brontel-host: %s\n", toOneLine(error).text()));
  return static_cast<int>(ExitCode::Failed);
}

int print(const std::string& text, ExitCode code) {
  const bool isWritten = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  if (std::fflush(stdout) == 0 && isWritten) return static_cast<int>(code);
  return report(gettext("A kimenet nem írható. Ellenőrizze, hogy van-e hely a lemezen."));
}

}  // namespace Brontel::App
