#include "tests/support/XDisplay.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/support/Failure.h"

namespace {

constexpr int kLongestStartMs = 30000;

[[noreturn]] void runServer(const std::string& screen, int numberPipe) {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  const int nowhere = open("/dev/null", O_RDWR);
  for (int standard = 0; standard <= 2; ++standard) dup2(nowhere, standard);
  const std::string number = std::to_string(numberPipe);
  // Without -noreset the server would restart itself whenever its last client goes.
  execlp("Xvfb", "Xvfb", "-displayfd", number.c_str(), "-screen", "0", screen.c_str(), "-nolisten", "tcp", "-noreset",
         static_cast<char*>(nullptr));
  _exit(127);
}

// The server writes its number and a line feed once it takes clients.
std::string readNumber(int pipe) {
  std::string number;
  pollfd waiting{pipe, POLLIN, 0};
  while (poll(&waiting, 1, kLongestStartMs) > 0) {
    char digit = 0;
    if (read(pipe, &digit, 1) != 1) return std::string();
    if (digit == '\n') return number;
    number += digit;
  }
  return std::string();
}

}  // namespace

XDisplay::XDisplay(const std::string& screen) {
  int ends[2];
  if (pipe(ends) != 0) {
    reportFailure("no pipe for Xvfb");
    return;
  }
  fcntl(ends[0], F_SETFD, FD_CLOEXEC);
  server_ = fork();
  if (server_ == 0) runServer(screen, ends[1]);
  close(ends[1]);
  const std::string number = readNumber(ends[0]);
  close(ends[0]);
  if (number.empty()) {
    reportFailure("Xvfb did not start");
    return;
  }
  name_ = ":" + number;
  setenv("DISPLAY", name_.c_str(), 1);
}

XDisplay::~XDisplay() {
  unsetenv("DISPLAY");
  if (server_ <= 0) return;
  kill(server_, SIGTERM);
  waitpid(server_, nullptr, 0);
}
