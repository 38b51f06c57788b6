#include "tests/support/XWindows.h"

#include <X11/Xlib.h>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <thread>

#include "tests/support/Failure.h"

namespace {

constexpr int kLongestWaitMs = 20000;
constexpr int kBriefWaitMs = 1000;
constexpr long kLongestTitle = 1024;

int ignoreError(Display*, XErrorEvent*) {
  return 0;
}

// Windows may go while one asks about them. Each question waits for its answer, so that errors of the process's other
// connections still arrive where they would.
class Quiet {
 public:
  Quiet() : before_(XSetErrorHandler(ignoreError)) {}
  Quiet(const Quiet&) = delete;
  Quiet& operator=(const Quiet&) = delete;
  ~Quiet() { XSetErrorHandler(before_); }

 private:
  XErrorHandler before_;
};

bool poll(const std::function<bool()>& condition, int longestMs = kLongestWaitMs) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(longestMs);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return true;
}

}  // namespace

struct XWindows::Connection {
  explicit Connection(const std::string& name) : display(XOpenDisplay(name.c_str())) {
    if (display == nullptr) {
      reportFailure("cannot connect to " + name);
      std::abort();
    }
    titleAtom = XInternAtom(display, "_NET_WM_NAME", False);
  }
  ~Connection() { XCloseDisplay(display); }

  std::string titleOf(Window window) const {
    Atom type = 0;
    int format = 0;
    unsigned long length = 0;
    unsigned long rest = 0;
    unsigned char* text = nullptr;
    XGetWindowProperty(display, window, titleAtom, 0, kLongestTitle, False, AnyPropertyType, &type, &format, &length,
                       &rest, &text);
    std::string title = text == nullptr ? std::string() : reinterpret_cast<char*>(text);
    if (text != nullptr) XFree(text);
    return title;
  }

  Display* display;
  Atom titleAtom = 0;
};

XWindows::XWindows(const std::string& display) : connection_(std::make_unique<Connection>(display)) {}

XWindows::~XWindows() = default;

std::vector<XWindows::Shown> XWindows::shown() {
  const Quiet quiet;
  Window root = 0;
  Window parent = 0;
  Window* children = nullptr;
  unsigned count = 0;
  std::vector<Shown> all;
  XQueryTree(connection_->display, DefaultRootWindow(connection_->display), &root, &parent, &children, &count);
  for (unsigned i = 0; i < count; ++i) {
    XWindowAttributes attributes;
    if (XGetWindowAttributes(connection_->display, children[i], &attributes) == 0) continue;
    if (attributes.map_state == IsViewable) all.push_back({children[i], connection_->titleOf(children[i])});
  }
  if (children != nullptr) XFree(children);
  return all;
}

std::vector<std::string> XWindows::titles() {
  std::vector<std::string> titles;
  for (const Shown& window : shown()) {
    if (!window.title.empty()) titles.push_back(window.title);
  }
  return titles;
}

unsigned long XWindows::find(const std::string& title) {
  unsigned long found = 0;
  for (const Shown& window : shown()) {
    if (window.title == title) found = window.window;
  }
  return found;
}

XWindows::Place XWindows::placeOf(unsigned long window) {
  const Quiet quiet;
  XWindowAttributes attributes;
  if (XGetWindowAttributes(connection_->display, window, &attributes) == 0) return {};
  return {attributes.x, attributes.y, attributes.width, attributes.height};
}

size_t XWindows::count() {
  return shown().size();
}

std::vector<unsigned long> XWindows::stack() {
  std::vector<unsigned long> windows;
  for (const Shown& window : shown()) windows.push_back(window.window);
  return windows;
}

unsigned long XWindows::waitFor(const std::string& title) {
  unsigned long found = 0;
  if (!poll([&] { return (found = find(title)) != 0; })) fail("no window \"" + title + "\"");
  return found;
}

bool XWindows::waitBriefly(const std::string& title) {
  return poll([&] { return find(title) != 0; }, kBriefWaitMs);
}

bool XWindows::waitUntilGone(const std::string& title) {
  const bool gone = poll([&] { return find(title) == 0; });
  if (!gone) fail("still a window \"" + title + "\"");
  return gone;
}

bool XWindows::waitForCount(size_t count) {
  const bool done = poll([&] { return this->count() == count; });
  if (!done) fail("not " + std::to_string(count) + " windows");
  return done;
}

void XWindows::fail(const std::string& what) {
  std::string present;
  for (const std::string& title : titles()) present += (present.empty() ? "\"" : ", \"") + title + "\"";
  reportFailure(what + ", but {" + present + "}");
}
