#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <fx.h>
#include <gtest/gtest.h>

#include "tests/support/TestApplication.h"
#include "tests/support/XEvents.h"

/// A window on a display of its own, and somebody who uses it.
class WidgetTest : public ::testing::Test {
 protected:
  WidgetTest();
  ~WidgetTest() override;

  /// Shows the window and gives it the keyboard.
  void show();
  /// Gives another window that has just been shown the keyboard.
  void giveKeyboardTo(const FX::FXWindow* shell);
  /// Handles everything that the user has done so far, and what FOX does in consequence when it is idle.
  void settle();
  bool waitUntil(const std::function<bool()>& condition) { return app.waitUntil(condition); }

  /// Moves the pointer to a place in a window, its middle if none is given.
  void moveTo(const FX::FXWindow* widget, FX::FXint x = -1, FX::FXint y = -1);
  void click(const FX::FXWindow* widget, int button = 1);
  /// Presses and releases a key, and settles.
  void key(unsigned keysym, std::initializer_list<unsigned> held = {});
  void type(const char* text);
  /// Hands a text over by the clipboard, or by the primary selection, from a window of its own.
  void putOnClipboard(const char* text);
  void selectElsewhere(const char* text);

  /// Another field in the window, made when it is first asked for.
  FX::FXTextField* other();

  TestApplication app;
  XEvents events;
  FX::FXMainWindow* window;
  FX::FXVerticalFrame* content;

 private:
  FX::FXTextField* other_ = nullptr;
};

/// Every window of a kind below another, in the order in which they were made.
template <typename Widget>
std::vector<Widget*> descendants(const FX::FXWindow* top) {
  std::vector<Widget*> found;
  for (FX::FXWindow* child = top->getFirst(); child; child = child->getNext()) {
    if (auto* widget = dynamic_cast<Widget*>(child)) found.push_back(widget);
    const std::vector<Widget*> below = descendants<Widget>(child);
    found.insert(found.end(), below.begin(), below.end());
  }
  return found;
}

/// How many messages a class handles itself.
int countOfMappedMessages(const FX::FXMetaClass& metaClass);

/// Makes an instance as FOX does when it reads a window from a stream. FOX cannot delete such windows; they stay.
FX::FXObject* manufacture(const FX::FXMetaClass& metaClass);

/// A key press as FOX hands it on.
FX::FXEvent keyPress(FX::FXint code, const char* text = "", FX::FXuint state = 0);
