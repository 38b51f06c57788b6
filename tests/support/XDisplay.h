#pragma once

#include <string>
#include <sys/types.h>

/// An X server without a screen of its own, for this test alone. It takes a free display number, DISPLAY names it while
/// the object lives, and it ends with the object, or with the process if that crashes.
class XDisplay {
 public:
  explicit XDisplay(const std::string& screen = "1280x1024x24");
  XDisplay(const XDisplay&) = delete;
  XDisplay& operator=(const XDisplay&) = delete;
  ~XDisplay();

  /// False when the server did not start; the test has failed then.
  bool isRunning() const { return !name_.empty(); }
  /// As DISPLAY has it, ":7".
  const std::string& name() const { return name_; }

 private:
  pid_t server_ = -1;
  std::string name_;
};
