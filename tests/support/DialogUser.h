#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/support/WindowUser.h"

/// Somebody who uses tables and answers the boxes that come up.
class DialogUser : public WindowUser {
 public:
  explicit DialogUser(TestApplication& application) : WindowUser(application), application_(application) {}

  void doubleClickAt(const FX::FXWindow* window, FX::FXint x, FX::FXint y);
  void clickCell(const FX::FXTable* table, FX::FXint row, FX::FXint column, int button = 1);
  void doubleClickCell(const FX::FXTable* table, FX::FXint row, FX::FXint column);

  /// Runs something that opens modal windows, one after the other or one from the other, and does the next step while
  /// each of them is open. A step is expected to end its window. A test failure when there were not as many windows as
  /// steps; a window that nobody answers is ended after a while.
  using Step = std::function<void(FX::FXWindow*)>;
  void run(const std::function<void()>& something, std::vector<Step> steps);

 private:
  class Stepper;

  TestApplication& application_;
};

/// The texts of a box of FOX's, and a press on the button that sends a command.
std::string boxTitle(const FX::FXWindow* box);
std::string boxText(const FX::FXWindow* box);
void answer(FX::FXWindow* box, FX::FXuint command);
