#pragma once

#include <functional>
#include <string>
#include <vector>

#include <fx.h>

#include "tests/support/TestApplication.h"
#include "tests/support/XEvents.h"

/// Somebody who uses an application's windows by keyboard and mouse and sees what they do. Each call returns when
/// everything that it brings about has been done.
class WindowUser : public FX::FXObject {
 public:
  explicit WindowUser(TestApplication& application);
  WindowUser(const WindowUser&) = delete;
  WindowUser& operator=(const WindowUser&) = delete;
  ~WindowUser() override;

  /// Handles all that has arrived, and what FOX does in consequence when it is idle.
  void settle();
  /// Gives a window that has just been shown the keyboard.
  void giveKeyboardTo(const FX::FXWindow* shell);

  void key(unsigned keysym, std::initializer_list<unsigned> held = {});
  void type(const std::string& text);
  /// Moves the pointer to a place in a window; its middle if none is given.
  void moveTo(const FX::FXWindow* window, FX::FXint x = -1, FX::FXint y = -1);
  void click(const FX::FXWindow* window, int button = 1);
  void clickAt(const FX::FXWindow* window, FX::FXint x, FX::FXint y, int button = 1);
  /// Presses a button at one place, moves to another and lets it go.
  void drag(const FX::FXWindow* window, FX::FXint fromX, FX::FXint fromY, FX::FXint toX, FX::FXint toY, int button);
  /// Copies a text in a window of its own.
  void putOnClipboard(const std::string& text);
  /// What another program would get by pasting.
  std::string clipboard();

  /// What to do when a further window runs modally: it is given the keyboard first, and has to be closed in the end.
  /// Several wait for one window each.
  using Script = std::function<void(FX::FXWindow&)>;
  void whenModal(Script script);
  /// How many scripts still wait; the test fails if any does when it ends.
  size_t scriptsLeft() const { return scripts_.size(); }

  XEvents events;

  /// The application looks whether a modal window has come.
  long handle(FX::FXObject* sender, FX::FXSelector selector, void* data) override;

 private:
  struct Waiting {
    const FX::FXWindow* before;  ///< what was modal when the script was given
    Script script;
  };

  FX::FXTextField& otherProgram();

  TestApplication& application_;
  std::vector<Waiting> scripts_;
  FX::FXTextField* otherProgram_ = nullptr;
};

/// Every window of a kind below another, in the order in which they were made.
template <typename Widget>
std::vector<Widget*> descendantsOf(const FX::FXWindow* top) {
  std::vector<Widget*> found;
  for (FX::FXWindow* child = top->getFirst(); child != nullptr; child = child->getNext()) {
    if (auto* widget = dynamic_cast<Widget*>(child)) found.push_back(widget);
    const std::vector<Widget*> below = descendantsOf<Widget>(child);
    found.insert(found.end(), below.begin(), below.end());
  }
  return found;
}
