#pragma once

#include <memory>
#include <string>
#include <vector>

/// The windows on a display as somebody sees them who looks at it: by their titles and places. For programs in other
/// processes.
class XWindows {
 public:
  /// Connects to a display, ":7".
  explicit XWindows(const std::string& display);
  XWindows(const XWindows&) = delete;
  XWindows& operator=(const XWindows&) = delete;
  ~XWindows();

  struct Place {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
  };

  /// The titles of all windows that are shown, lowest first; menus have none.
  std::vector<std::string> titles();
  /// The uppermost window that is shown under exactly that title; 0 for none.
  unsigned long find(const std::string& title);
  Place placeOf(unsigned long window);
  /// How many windows are shown, menus included.
  size_t count();
  /// All windows that are shown, menus included, lowest first.
  std::vector<unsigned long> stack();

  /// Waits until there is such a window, and returns it; 0, and a test failure, if none comes.
  unsigned long waitFor(const std::string& title);
  /// Waits a second at most for such a window; whether it has come.
  bool waitBriefly(const std::string& title);
  /// Waits until there is none any more.
  bool waitUntilGone(const std::string& title);
  bool waitForCount(size_t count);

 private:
  struct Connection;
  struct Shown {
    unsigned long window;
    std::string title;
  };

  std::vector<Shown> shown();
  void fail(const std::string& what);

  std::unique_ptr<Connection> connection_;
};
