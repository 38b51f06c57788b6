#pragma once

#include <initializer_list>
#include <memory>
#include <string>

/// Somebody at the keyboard and the mouse of a display: real events through the server, on a connection of their own.
/// Each call returns when the server has dealt with it; the program under test still has to handle what it gets.
class XEvents {
 public:
  /// Connects to a display, ":7". Keys that the keyboard lacks are added to it when they are first used.
  explicit XEvents(const std::string& display);
  XEvents(const XEvents&) = delete;
  XEvents& operator=(const XEvents&) = delete;
  ~XEvents();

  /// Gives a window the keyboard, as a window manager would, once the display shows it; a test failure if it never
  /// does.
  void focus(unsigned long window);

  /// Presses and releases a key, by keysym, with other keys held down.
  void key(unsigned keysym, std::initializer_list<unsigned> held = {});
  void pressKey(unsigned keysym);
  void releaseKey(unsigned keysym);
  /// Types UTF-8 text, one key after the other.
  void type(const std::string& text);

  /// Moves the pointer to a place on the screen.
  void move(int x, int y);
  void pressButton(int button = 1);
  void releaseButton(int button = 1);
  /// Clicks where the pointer is.
  void click(int button = 1);
  void doubleClick();
  /// Turns the wheel: up for a positive number of steps, down for a negative.
  void wheel(int steps);
  /// Presses the left button at a place, moves to another in several steps and leaves it pressed.
  void dragTo(int fromX, int fromY, int toX, int toY);

  /// Number of windows directly on the screen, shown or not.
  int countTopLevelWindows();

 private:
  struct Keyboard;

  void fakeKey_(unsigned keysym, bool down);
  std::unique_ptr<Keyboard> keyboard_;
};
