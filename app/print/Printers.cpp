#include "app/print/Printers.h"

#include <cstdlib>
#include <string>
#include <unistd.h>

#include <libintl.h>

#include "app/OutputFile.h"
#include "app/print/PrintableUtf8.h"
#include "app/print/SpoolerRun.h"
#include "host/message/FillIn.h"

namespace Brontel::App {

using FX::FXString;

namespace {

/// A file for the time of one hand-over.
class TemporaryFile {
 public:
  TemporaryFile() {
    const char* folder = std::getenv("TMPDIR");
    path_ = std::string(folder == nullptr || *folder == '\0' ? "/tmp" : folder) + "/brontel-XXXXXX";
    const int file = mkstemp(path_.data());
    isThere_ = file >= 0;
    if (isThere_) close(file);
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    if (isThere_) unlink(path_.c_str());
  }

  const std::string& getPath() const { return path_; }

 private:
  std::string path_;
  bool isThere_ = false;
};

using Arguments = std::vector<std::string>;

Arguments forLp(const PrinterChoice& choice, const std::string& file) {
  Arguments arguments{"lp", "-n", std::to_string(choice.copies)};
  if (!choice.printer.empty()) arguments.insert(arguments.end(), {"-d", choice.printer.text()});
  arguments.push_back(file);
  return arguments;
}

Arguments forLpr(const PrinterChoice& choice, const std::string& file) {
  Arguments arguments{"lpr", "-#" + std::to_string(choice.copies)};
  if (!choice.printer.empty()) arguments.push_back(std::string("-P") + choice.printer.text());
  arguments.push_back(file);
  return arguments;
}

}  // namespace

std::vector<FXString> findPrinters(const Step& step) {
  const SpoolerRun run = runSpooler({"lpstat", "-e"}, step, 10);
  std::vector<FXString> printers;
  if (run.exitCode != 0) return printers;
  const FXString names(toPrintable(run.output.c_str()).c_str());
  for (FX::FXint i = 0; i < names.contains('\n') + 1; ++i) {
    const FXString name = names.section('\n', i);
    if (!name.empty()) printers.push_back(name);
  }
  return printers;
}

FXString sendToPrinter(const FXString& document, const PrinterChoice& choice, const Step& step) {
  const TemporaryFile file;
  const FXString error = replaceFile(file.getPath().c_str(), document);
  if (!error.empty()) return error;
  SpoolerRun run = runSpooler(forLp(choice, file.getPath()), step);
  if (!run.isFound) run = runSpooler(forLpr(choice, file.getPath()), step);
  if (!run.isFound) {
    return gettext("Ezen a gépen nincs nyomtatóprogram (lp vagy lpr). Mentse a számlát PDF-be, és azt nyomtassa ki.");
  }
  if (run.exitCode == 0) return FXString();
  FXString said(toPrintable(run.output.c_str()).c_str());
  if (said.trim().empty()) said = gettext("nem mondta meg, miért");
  return fillIn(gettext("A nyomtatórendszer nem fogadta el a számlát: %s"), {said});
}

}  // namespace Brontel::App
