#pragma once

#include <fx.h>

namespace Brontel::App {

/// A window in which somebody may have typed what is not saved yet. It enters itself into the workspace when it is
/// made and leaves it when it goes.
class OpenWindow {
 public:
  OpenWindow() = default;
  OpenWindow(const OpenWindow&) = delete;
  OpenWindow& operator=(const OpenWindow&) = delete;
  virtual ~OpenWindow() = default;

  /// The window itself, to be raised, owned by nobody and closed with close(TRUE), which asks about unsaved changes
  /// and answers false when the person would rather stay.
  virtual FX::FXTopWindow* getWindow() = 0;

  /// Gives it the keyboard, in front of all others and out of the task bar.
  void bringForward() {
    FX::FXTopWindow* window = getWindow();
    if (window->isMinimized()) window->restore();
    window->raise();
    window->setFocus();
  }

  /// Whether closing it now would lose anything, text in an open editor included.
  virtual bool hasUnsavedChanges() = 0;
  /// Saves what was typed. False when that failed; the person has been told and the window keeps everything.
  virtual bool saveChanges() = 0;
  /// Reads everything anew, since what the window shows may depend on settings that have changed. Only called while
  /// there are no unsaved changes.
  virtual void reload() = 0;
};

}  // namespace Brontel::App
