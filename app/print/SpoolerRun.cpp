#include "app/print/SpoolerRun.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace Brontel::App {

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kPoll = 100;  // milliseconds
constexpr int kBriefPoll = 10;
constexpr size_t kKept = 100000;

// 0 when there is no such program.
pid_t start(const std::vector<std::string>& arguments, int output) {
  std::vector<char*> words;
  words.reserve(arguments.size() + 1);
  for (const std::string& argument : arguments) words.push_back(const_cast<char*>(argument.c_str()));
  words.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
  posix_spawn_file_actions_adddup2(&actions, output, STDERR_FILENO);
  pid_t child = 0;
  const int error = posix_spawnp(&child, words.front(), &actions, nullptr, words.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  return error == 0 ? child : 0;
}

// False when the time is over before the program has closed its end.
bool readAll(int input, std::string& output, const Step& step, Clock::time_point end) {
  std::array<char, 4096> buffer{};
  while (Clock::now() < end) {
    step(0);
    pollfd waiting{input, POLLIN, 0};
    const int ready = poll(&waiting, 1, kPoll);
    if (ready < 0 && errno != EINTR) return false;
    if (ready <= 0) continue;
    const ssize_t count = read(input, buffer.data(), buffer.size());
    if (count == 0) return true;
    if (count < 0 && errno != EINTR) return false;
    if (count > 0) output.append(buffer.data(), std::min(static_cast<size_t>(count), kKept - output.size()));
  }
  return false;
}

// Whoever has closed its output may still run on.
int waitForEnd(pid_t child, const Step& step, Clock::time_point end) {
  int status = 0;
  while (waitpid(child, &status, WNOHANG) == 0) {
    if (Clock::now() >= end) {
      kill(child, SIGKILL);
      waitpid(child, &status, 0);
      return -1;
    }
    step(0);
    poll(nullptr, 0, kBriefPoll);
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace

SpoolerRun runSpooler(const std::vector<std::string>& arguments, const Step& step, int seconds) {
  SpoolerRun run;
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) return run;
  const pid_t child = start(arguments, ends[1]);
  close(ends[1]);
  if (child != 0) {
    const Clock::time_point end = Clock::now() + std::chrono::seconds(seconds);
    run.isFound = true;
    readAll(ends[0], run.output, step, end);
    run.exitCode = waitForEnd(child, step, end);
  }
  close(ends[0]);
  return run;
}

}  // namespace Brontel::App
