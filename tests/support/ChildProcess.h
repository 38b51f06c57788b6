#pragma once

#include <map>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

/// Another program, run without a shell, with what it writes kept. It inherits the environment but for what is set
/// here, and reads nothing from standard input.
class ChildProcess {
 public:
  /// arguments[0] is the program: a path, or a name to look up in PATH.
  explicit ChildProcess(std::vector<std::string> arguments) : arguments_(std::move(arguments)) {}
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;
  /// Kills the program if it still runs.
  ~ChildProcess();

  void setEnvironment(const std::string& name, const std::string& value) { environment_[name] = value; }
  void removeEnvironment(const std::string& name) { environment_[name] = std::nullopt; }
  void setTimeout(int milliseconds) { timeout_ = milliseconds; }

  /// Starts the program and returns at once. False when that is impossible; a program that cannot be executed is
  /// started and exits with 127.
  bool start();
  /// Sends a signal to the program that start has started.
  void kill(int signal) const;
  /// Waits until the started program has dealt with all that it was sent: it sleeps, and nothing wakes it for a while.
  /// False when it is still at work after ten seconds, or ends meanwhile.
  bool waitUntilIdle() const;
  /// Waits for the end, reading what it writes; after the timeout the program is killed. Returns getExitCode().
  int wait();
  /// start and wait.
  int run();

  /// -1 when the program did not end by itself.
  int getExitCode() const { return exitCode_; }
  /// The signal that ended it, 0 for none.
  int getSignal() const { return signal_; }
  bool isTimedOut() const { return timedOut_; }
  const std::string& getOutput() const { return output_; }
  const std::string& getErrors() const { return errors_; }

 private:
  [[noreturn]] void execute(int output, int errors);
  bool readUntilEnd();
  void collect();

  std::vector<std::string> arguments_;
  std::map<std::string, std::optional<std::string>> environment_;
  int timeout_ = 60000;
  pid_t pid_ = -1;
  int outputPipe_ = -1;
  int errorPipe_ = -1;
  int exitCode_ = -1;
  int signal_ = 0;
  bool timedOut_ = false;
  std::string output_;
  std::string errors_;
};
