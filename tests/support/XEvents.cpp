#include "tests/support/XEvents.h"

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>
#include <chrono>
#include <cstdlib>
#include <thread>
#include <utility>
#include <vector>

#include "tests/support/Failure.h"

namespace {

constexpr int kLongestWaitMs = 10000;
constexpr int kDragSteps = 8;

// Where a keysym is on the keyboard: a key, and whether Shift is needed.
struct Place {
  KeyCode key = 0;
  bool shifted = false;
};

// The next character of a UTF-8 text, which is well-formed: it comes from a test.
unsigned nextCharacter(const std::string& text, size_t& position) {
  const unsigned char first = static_cast<unsigned char>(text[position++]);
  if (first < 0x80) return first;
  const int following = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
  unsigned character = first & (0x3F >> following);
  for (int i = 0; i < following; ++i) {
    character = character << 6 | (static_cast<unsigned char>(text[position++]) & 0x3F);
  }
  return character;
}

// Beyond Latin-1 keysyms are the code point with a mark.
unsigned keysymOf(unsigned character) {
  return character < 0x100 ? character : 0x01000000 | character;
}

}  // namespace

struct XEvents::Keyboard {
  explicit Keyboard(const std::string& name) : display(XOpenDisplay(name.c_str())) {
    if (!display) {
      reportFailure("cannot connect to " + name);
      std::abort();
    }
    XDisplayKeycodes(display, &firstKey, &lastKey);
    read();
  }

  ~Keyboard() { XCloseDisplay(display); }

  void read() {
    KeySym* const map = XGetKeyboardMapping(display, static_cast<KeyCode>(firstKey), lastKey - firstKey + 1, &columns);
    symbols.assign(map, map + static_cast<ptrdiff_t>(lastKey - firstKey + 1) * columns);
    XFree(map);
  }

  KeySym symbol(int key, int column) const {
    return column < columns ? symbols[static_cast<size_t>(key - firstKey) * columns + column] : NoSymbol;
  }

  Place find(KeySym keysym) const {
    for (const int column : {0, 1}) {
      for (int key = firstKey; key <= lastKey; ++key) {
        if (symbol(key, column) == keysym) return {static_cast<KeyCode>(key), column == 1};
      }
    }
    return {};
  }

  // Puts the keysym on a key that has none. It stays there, since clients may read the keyboard late.
  Place add(KeySym keysym) {
    for (int key = lastKey; key >= firstKey; --key) {
      if (symbol(key, 0) != NoSymbol || symbol(key, 1) != NoSymbol) continue;
      XChangeKeyboardMapping(display, key, 1, &keysym, 1);
      XSync(display, False);
      read();
      return {static_cast<KeyCode>(key), false};
    }
    reportFailure("the keyboard is full");
    return {};
  }

  Display* display;
  int firstKey = 0;
  int lastKey = 0;
  int columns = 0;
  std::vector<KeySym> symbols;
};

XEvents::XEvents(const std::string& display) : keyboard_(std::make_unique<Keyboard>(display)) {}

XEvents::~XEvents() = default;

void XEvents::focus(unsigned long window) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(kLongestWaitMs);
  XWindowAttributes attributes;
  while (!XGetWindowAttributes(keyboard_->display, window, &attributes) || attributes.map_state != IsViewable) {
    if (std::chrono::steady_clock::now() > end) {
      reportFailure("the window is not shown");
      return;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  XSetInputFocus(keyboard_->display, window, RevertToParent, CurrentTime);
  XSync(keyboard_->display, False);
}

void XEvents::fakeKey_(unsigned keysym, bool down) {
  Place place = keyboard_->find(keysym);
  if (!place.key) place = keyboard_->add(keysym);
  const KeyCode shift = keyboard_->find(XK_Shift_L).key;
  if (place.shifted && down) XTestFakeKeyEvent(keyboard_->display, shift, True, CurrentTime);
  XTestFakeKeyEvent(keyboard_->display, place.key, down ? True : False, CurrentTime);
  if (place.shifted && !down) XTestFakeKeyEvent(keyboard_->display, shift, False, CurrentTime);
  XSync(keyboard_->display, False);
}

void XEvents::pressKey(unsigned keysym) {
  fakeKey_(keysym, true);
}

void XEvents::releaseKey(unsigned keysym) {
  fakeKey_(keysym, false);
}

void XEvents::key(unsigned keysym, std::initializer_list<unsigned> held) {
  for (const unsigned other : held) pressKey(other);
  pressKey(keysym);
  releaseKey(keysym);
  for (const unsigned other : held) releaseKey(other);
}

void XEvents::type(const std::string& text) {
  for (size_t position = 0; position < text.size();) key(keysymOf(nextCharacter(text, position)));
}

void XEvents::move(int x, int y) {
  XTestFakeMotionEvent(keyboard_->display, -1, x, y, CurrentTime);
  XSync(keyboard_->display, False);
}

void XEvents::pressButton(int button) {
  XTestFakeButtonEvent(keyboard_->display, static_cast<unsigned>(button), True, CurrentTime);
  XSync(keyboard_->display, False);
}

void XEvents::releaseButton(int button) {
  XTestFakeButtonEvent(keyboard_->display, static_cast<unsigned>(button), False, CurrentTime);
  XSync(keyboard_->display, False);
}

void XEvents::click(int button) {
  pressButton(button);
  releaseButton(button);
}

void XEvents::doubleClick() {
  click();
  click();
}

void XEvents::wheel(int steps) {
  const int button = steps > 0 ? 4 : 5;
  for (int i = 0; i < std::abs(steps); ++i) click(button);
}

void XEvents::dragTo(int fromX, int fromY, int toX, int toY) {
  move(fromX, fromY);
  pressButton();
  for (int i = 1; i <= kDragSteps; ++i) {
    move(fromX + (toX - fromX) * i / kDragSteps, fromY + (toY - fromY) * i / kDragSteps);
  }
}

int XEvents::countTopLevelWindows() {
  Window root = 0;
  Window parent = 0;
  Window* children = nullptr;
  unsigned count = 0;
  XQueryTree(keyboard_->display, DefaultRootWindow(keyboard_->display), &root, &parent, &children, &count);
  if (children) XFree(children);
  return static_cast<int>(count);
}
