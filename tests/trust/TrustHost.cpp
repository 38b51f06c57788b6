// A host process for tests that kill it or run several at once: trust_host DATABASE ROLE ARGUMENTS
//   prepare                 makes the database and the shared invoice
//   save PROGRESS NAME      saves invoices until it is killed, telling each one after it is stored
//   write SECONDS NAME      counts the shared invoice up, against others, and saves invoices of its own
//   read SECONDS            loads the shared invoice again and again

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <string>

#include "host/database/StatementObserver.h"
#include "tests/trust/HostProcess.h"
#include "tests/trust/Progress.h"

using Brontel::Invoice;
using Result = Brontel::InvoiceRepository::Result;

namespace {

constexpr int kSharedInvoice = 1;
constexpr int kSharedRows = 20;
constexpr int kSavedRows = 25;

using Clock = std::chrono::steady_clock;

/// Tells where in a save the process is.
class SaveObserver : public Brontel::Database::StatementObserver {
 public:
  SaveObserver(MorvaneDatabase& database, Progress& progress) : database_(database), progress_(progress) {
    database_.setObserver(this);
  }
  ~SaveObserver() override { database_.setObserver(nullptr); }

  bool beforeRun(const FX::FXString& sql, const Brontel::Database::BoundValues&) override {
    if (sql == "begin immediate") {
      begins_ = true;
    } else if (sql == "commit") {
      progress_.set(Progress::Committing);
    } else if (begins_) {
      // The statement after the beginning: the transaction is open.
      begins_ = false;
      progress_.set(Progress::Inside);
    }
    return true;
  }

 private:
  MorvaneDatabase& database_;
  Progress& progress_;
  bool begins_ = false;
};

int fail(HostProcess& host, const std::string& what) {
  std::cerr << what << ": " << host.takeError() << "\n";
  return 2;
}

int prepare(HostProcess& host, const std::string& path) {
  if (!host.open(path, HostProcess::Use::Create)) return 2;
  const std::unique_ptr<Invoice> shared = host.newInvoice("shared", kSharedRows, "1");
  return host.repository().save(*shared) == Result::Done ? 0 : fail(host, "not saved");
}

// New invoices, and each of them a second time with other texts.
int saveUntilKilled(HostProcess& host, const std::string& path, const std::string& progressFile,
                    const std::string& name) {
  if (!host.open(path, HostProcess::Use::Write)) return 2;
  Progress progress(progressFile);
  const SaveObserver observer(host.handle(), progress);
  progress.set(Progress::Outside);
  for (int i = 1;; ++i) {
    const std::string number = name + "/" + std::to_string(i);
    const std::unique_ptr<Invoice> invoice = host.newInvoice(number, kSavedRows, "1");
    for (const char* text : {"1", "2"}) {
      HostProcess::retype(*invoice, text);
      if (host.repository().save(*invoice) != Result::Done) return fail(host, "not saved");
      progress.set(Progress::Outside);
      std::cout << number << " " << text << std::endl;
    }
  }
}

int write(HostProcess& host, const std::string& path, int seconds, const std::string& name) {
  if (!host.open(path, HostProcess::Use::Write)) return 2;
  const auto end = Clock::now() + std::chrono::seconds(seconds);
  long counted = 0;
  long overtaken = 0;
  long own = 0;
  while (Clock::now() < end) {
    Result result = Result::Failed;
    const std::unique_ptr<Invoice> shared = host.repository().load(kSharedInvoice, result);
    if (shared == nullptr) return fail(host, "not loaded");
    HostProcess::retype(*shared, std::to_string(std::atol(HostProcess::textOf(*shared).c_str()) + 1));
    result = host.repository().save(*shared);
    if (result == Result::Failed) return fail(host, "not saved");
    ++(result == Result::Done ? counted : overtaken);
    const std::unique_ptr<Invoice> mine = host.newInvoice(name + "/" + std::to_string(own + 1), 2, "1");
    if (host.repository().save(*mine) != Result::Done) return fail(host, "own invoice not saved");
    ++own;
  }
  std::cout << counted << " " << overtaken << " " << own << std::endl;
  return 0;
}

int read(HostProcess& host, const std::string& path, int seconds) {
  if (!host.open(path, HostProcess::Use::Read)) return 2;
  const auto end = Clock::now() + std::chrono::seconds(seconds);
  long loads = 0;
  long last = 0;
  for (; Clock::now() < end; ++loads) {
    Result result = Result::Failed;
    const std::unique_ptr<Invoice> shared = host.repository().load(kSharedInvoice, result);
    if (shared == nullptr) return fail(host, "not loaded");
    const std::string text = HostProcess::textOf(*shared);
    const long value = std::atol(text.c_str());
    if (value < last || value == 0) {
      std::cerr << "after " << last << " came " << text << "\n";
      return 3;
    }
    last = value;
  }
  std::cout << loads << " " << last << std::endl;
  return 0;
}

}  // namespace

int main(int argc, char* argv[]) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  const std::string role = arguments.size() < 2 ? "" : arguments[1];
  HostProcess host;
  if (role == "prepare") return prepare(host, arguments[0]);
  if (role == "save" && arguments.size() == 4) return saveUntilKilled(host, arguments[0], arguments[2], arguments[3]);
  if (role == "write" && arguments.size() == 4) {
    return write(host, arguments[0], std::atoi(arguments[2].c_str()), arguments[3]);
  }
  if (role == "read" && arguments.size() == 3) return read(host, arguments[0], std::atoi(arguments[2].c_str()));
  std::cerr << "unknown role\n";
  return 2;
}
