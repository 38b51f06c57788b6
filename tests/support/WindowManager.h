#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tests/support/ChildProcess.h"
#include "tests/support/TemporaryDirectory.h"
#include "tests/support/XDisplay.h"

/// Asks the program that owns a window to close it, as the cross in the window's frame does. The window may be in
/// another process.
void requestClose(const XDisplay& display, unsigned long window);

/// A light window manager on a display: windows have frames, and it decides which of them has the keyboard. It ends
/// with the object.
class WindowManager {
 public:
  /// Starts it and waits until it has taken the display over; a test failure if it never does.
  explicit WindowManager(const XDisplay& display);
  WindowManager(const WindowManager&) = delete;
  WindowManager& operator=(const WindowManager&) = delete;
  ~WindowManager();

  /// The titles of all windows, in the order in which they have come.
  std::vector<std::string> titles();
  /// The title of the window that has the keyboard; empty if none has.
  std::string active();

  /// Waits until the window of exactly that title has the keyboard; a test failure if it never does.
  bool waitForActive(const std::string& title);
  bool waitUntilGone(const std::string& title);

  /// Brings a window to the front with the keyboard, as a click on it or a task bar does.
  void activate(const std::string& title);
  /// Presses the cross in its frame.
  void close(const std::string& title);

 private:
  struct Connection;

  void send(const std::string& title, const char* message);

  TemporaryDirectory directory_;
  std::unique_ptr<Connection> connection_;
  ChildProcess process_;
};
