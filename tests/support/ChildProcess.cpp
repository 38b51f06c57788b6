#include "tests/support/ChildProcess.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

// Appends what has arrived; false, with the pipe closed, at its end.
bool drain(int& pipe, std::string& text) {
  char buffer[4096];
  const ssize_t length = read(pipe, buffer, sizeof buffer);
  if (length > 0) {
    text.append(buffer, static_cast<size_t>(length));
    return true;
  }
  close(pipe);
  pipe = -1;
  return false;
}

// How often a process has gone to sleep, while it sleeps; empty while it does not.
std::string sleepOf(pid_t process) {
  std::ifstream status("/proc/" + std::to_string(process) + "/status");
  std::string line;
  bool isAsleep = false;
  while (std::getline(status, line)) {
    if (line.rfind("State:", 0) == 0) isAsleep = line.find("(sleeping)") != std::string::npos;
    if (line.rfind("voluntary_ctxt_switches:", 0) == 0) return isAsleep ? line : std::string();
  }
  return std::string();
}

}  // namespace

ChildProcess::~ChildProcess() {
  if (pid_ <= 0) return;
  kill(SIGKILL);
  collect();
}

bool ChildProcess::start() {
  int output[2];
  int errors[2];
  if (arguments_.empty() || pid_ > 0 || pipe2(output, O_CLOEXEC) != 0) return false;
  if (pipe2(errors, O_CLOEXEC) != 0) {
    close(output[0]);
    close(output[1]);
    return false;
  }
  exitCode_ = -1;
  signal_ = 0;
  timedOut_ = false;
  output_.clear();
  errors_.clear();
  pid_ = fork();
  if (pid_ == 0) execute(output[1], errors[1]);
  close(output[1]);
  close(errors[1]);
  outputPipe_ = output[0];
  errorPipe_ = errors[0];
  if (pid_ < 0) collect();
  return pid_ > 0;
}

void ChildProcess::execute(int output, int errors) {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  dup2(open("/dev/null", O_RDONLY), STDIN_FILENO);
  dup2(output, STDOUT_FILENO);
  dup2(errors, STDERR_FILENO);
  for (const auto& [name, value] : environment_) {
    if (value.has_value()) {
      setenv(name.c_str(), value->c_str(), 1);
    } else {
      unsetenv(name.c_str());
    }
  }
  std::vector<char*> arguments;
  for (std::string& argument : arguments_) arguments.push_back(argument.data());
  arguments.push_back(nullptr);
  execvp(arguments[0], arguments.data());
  _exit(127);
}

void ChildProcess::kill(int signal) const {
  if (pid_ > 0) ::kill(pid_, signal);
}

bool ChildProcess::waitUntilIdle() const {
  constexpr int kPeriodMs = 10;
  constexpr int kQuietPeriods = 5;
  constexpr int kLongestMs = 10000;
  std::string before;
  int quiet = 0;
  for (int waited = 0; waited < kLongestMs && quiet < kQuietPeriods; waited += kPeriodMs) {
    const std::string now = sleepOf(pid_);
    quiet = !now.empty() && now == before ? quiet + 1 : 0;
    before = now;
    std::this_thread::sleep_for(std::chrono::milliseconds(kPeriodMs));
  }
  return quiet == kQuietPeriods;
}

int ChildProcess::wait() {
  if (pid_ <= 0) return exitCode_;
  if (!readUntilEnd()) {
    timedOut_ = true;
    kill(SIGKILL);
  }
  collect();
  return exitCode_;
}

int ChildProcess::run() {
  return start() ? wait() : -1;
}

bool ChildProcess::readUntilEnd() {
  using Clock = std::chrono::steady_clock;
  const auto end = Clock::now() + std::chrono::milliseconds(timeout_);
  while (outputPipe_ >= 0 || errorPipe_ >= 0) {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
    pollfd pipes[] = {{outputPipe_, POLLIN, 0}, {errorPipe_, POLLIN, 0}};
    if (left <= 0 || poll(pipes, 2, static_cast<int>(left)) == 0) return false;
    if (pipes[0].revents != 0) drain(outputPipe_, output_);
    if (pipes[1].revents != 0) drain(errorPipe_, errors_);
  }
  return true;
}

void ChildProcess::collect() {
  int status = 0;
  if (pid_ > 0 && waitpid(pid_, &status, 0) == pid_) {
    if (WIFEXITED(status)) exitCode_ = WEXITSTATUS(status);
    if (WIFSIGNALED(status)) signal_ = WTERMSIG(status);
  }
  for (int* pipe : {&outputPipe_, &errorPipe_}) {
    if (*pipe >= 0) close(*pipe);
    *pipe = -1;
  }
  pid_ = -1;
}
