#include "tests/support/WindowManager.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <thread>

#include "tests/support/Failure.h"

namespace {

constexpr int kLongestWaitMs = 20000;
constexpr long kLongest = 1024;

// Nothing but what the tests rely on, so that nobody's own settings count.
constexpr const char* kSettings = R"(<?xml version="1.0" encoding="UTF-8"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew><followMouse>no</followMouse><focusLast>yes</focusLast></focus>
  <placement><policy>Smart</policy></placement>
  <theme><name>Clearlooks</name><titleLayout>C</titleLayout></theme>
  <desktops><number>1</number></desktops>
  <keyboard><keybind key="A-F4"><action name="Close"/></keybind></keyboard>
  <mouse><context name="Client"><mousebind button="Left" action="Press">
    <action name="Focus"/><action name="Raise"/></mousebind></context></mouse>
</openbox_config>
)";

bool poll(const std::function<bool()>& condition) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(kLongestWaitMs);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return true;
}

int ignoreError(Display*, XErrorEvent*) {
  return 0;
}

// Windows may go while one asks about them.
class Quiet {
 public:
  Quiet() : before_(XSetErrorHandler(ignoreError)) {}
  Quiet(const Quiet&) = delete;
  Quiet& operator=(const Quiet&) = delete;
  ~Quiet() { XSetErrorHandler(before_); }

 private:
  XErrorHandler before_;
};

std::string describe(const std::vector<std::string>& titles) {
  std::string all;
  for (const std::string& title : titles) all += (all.empty() ? "\"" : ", \"") + title + "\"";
  return all;
}

}  // namespace

struct WindowManager::Connection {
  explicit Connection(const std::string& name) : display(XOpenDisplay(name.c_str())) {
    if (display != nullptr) return;
    reportFailure("cannot connect to " + name);
    std::abort();
  }
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;
  ~Connection() { XCloseDisplay(display); }

  Window root() const { return DefaultRootWindow(display); }

  /// The windows that a property of another names.
  std::vector<Window> windowsIn(Window window, const char* property) const {
    Atom type = 0;
    int format = 0;
    unsigned long length = 0;
    unsigned long rest = 0;
    unsigned char* data = nullptr;
    XGetWindowProperty(display, window, XInternAtom(display, property, False), 0, kLongest, False, XA_WINDOW, &type,
                       &format, &length, &rest, &data);
    std::vector<Window> windows;
    if (data != nullptr) {
      const auto* found = reinterpret_cast<const Window*>(data);
      windows.assign(found, found + length);
      XFree(data);
    }
    return windows;
  }

  std::string titleOf(Window window) const {
    Atom type = 0;
    int format = 0;
    unsigned long length = 0;
    unsigned long rest = 0;
    unsigned char* text = nullptr;
    XGetWindowProperty(display, window, XInternAtom(display, "_NET_WM_NAME", False), 0, kLongest, False,
                       AnyPropertyType, &type, &format, &length, &rest, &text);
    std::string title = text == nullptr ? std::string() : reinterpret_cast<char*>(text);
    if (text != nullptr) XFree(text);
    return title;
  }

  Window find(const std::string& title) const {
    for (const Window window : windowsIn(root(), "_NET_CLIENT_LIST")) {
      if (titleOf(window) == title) return window;
    }
    return 0;
  }

  Display* display;
};

void requestClose(const XDisplay& display, unsigned long window) {
  Display* const connection = XOpenDisplay(display.name().c_str());
  if (connection == nullptr) return reportFailure("cannot connect to " + display.name());
  XEvent event{};
  event.xclient.type = ClientMessage;
  event.xclient.window = window;
  event.xclient.message_type = XInternAtom(connection, "WM_PROTOCOLS", False);
  event.xclient.format = 32;
  event.xclient.data.l[0] = static_cast<long>(XInternAtom(connection, "WM_DELETE_WINDOW", False));
  XSendEvent(connection, window, False, NoEventMask, &event);
  XCloseDisplay(connection);
}

WindowManager::WindowManager(const XDisplay& display)
    : connection_(std::make_unique<Connection>(display.name())),
      process_({"openbox", "--sm-disable", "--config-file", directory_.write("rc.xml", kSettings)}) {
  const auto isThere = [this] {
    return !connection_->windowsIn(connection_->root(), "_NET_SUPPORTING_WM_CHECK").empty();
  };
  if (!process_.start() || !poll(isThere)) reportFailure("the window manager does not come");
}

WindowManager::~WindowManager() = default;

std::vector<std::string> WindowManager::titles() {
  const Quiet quiet;
  std::vector<std::string> titles;
  for (const Window window : connection_->windowsIn(connection_->root(), "_NET_CLIENT_LIST")) {
    titles.push_back(connection_->titleOf(window));
  }
  return titles;
}

std::string WindowManager::active() {
  const Quiet quiet;
  const std::vector<Window> windows = connection_->windowsIn(connection_->root(), "_NET_ACTIVE_WINDOW");
  return windows.empty() || windows.front() == 0 ? std::string() : connection_->titleOf(windows.front());
}

bool WindowManager::waitForActive(const std::string& title) {
  if (poll([&] { return active() == title; })) return true;
  reportFailure("\"" + title + "\" has no keyboard, but \"" + active() + "\" of " + describe(titles()));
  return false;
}

bool WindowManager::waitUntilGone(const std::string& title) {
  const auto isGone = [&] {
    const Quiet quiet;
    return connection_->find(title) == 0;
  };
  if (poll(isGone)) return true;
  reportFailure("still a window \"" + title + "\"");
  return false;
}

void WindowManager::activate(const std::string& title) {
  send(title, "_NET_ACTIVE_WINDOW");
}

void WindowManager::close(const std::string& title) {
  send(title, "_NET_CLOSE_WINDOW");
}

void WindowManager::send(const std::string& title, const char* message) {
  const Quiet quiet;
  const Window window = connection_->find(title);
  if (window == 0) return reportFailure("no window \"" + title + "\", but " + describe(titles()));
  XEvent event{};
  event.xclient.type = ClientMessage;
  event.xclient.window = window;
  event.xclient.message_type = XInternAtom(connection_->display, message, False);
  event.xclient.format = 32;
  // From a task bar, say.
  constexpr long kPager = 2;
  event.xclient.data.l[std::string(message) == "_NET_CLOSE_WINDOW" ? 1 : 0] = kPager;
  XSendEvent(connection_->display, connection_->root(), False, SubstructureNotifyMask | SubstructureRedirectMask,
             &event);
  XSync(connection_->display, False);
}
