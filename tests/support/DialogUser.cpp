#include "tests/support/DialogUser.h"

#include <utility>

#include "tests/support/Failure.h"

using FX::FXint;
using FX::FXWindow;

/// Looks again and again for the next modal window; its timer runs inside that window's own loop.
class DialogUser::Stepper : public FX::FXObject {
 public:
  Stepper(FX::FXApp* app, std::vector<Step> steps) : app_(app), steps_(std::move(steps)) { wait(); }
  Stepper(const Stepper&) = delete;
  Stepper& operator=(const Stepper&) = delete;
  ~Stepper() override { app_->removeTimeout(this, 0); }

  long handle(FX::FXObject*, FX::FXSelector, void*) override {
    wait();
    FXWindow* window = app_->getModalWindow();
    const bool isNew = window != nullptr && window->shown() && window != last_;
    if (!isNew || done == steps_.size()) {
      if (++idle_ > kMostWaits) giveUp(window);
      return 1;
    }
    idle_ = 0;
    last_ = window;
    steps_[done++](window);
    // The same box may come again.
    last_ = app_->getModalWindow() == window && window->shown() ? window : nullptr;
    return 1;
  }

  size_t done = 0;

 private:
  static constexpr int kMostWaits = 4000;

  void wait() { app_->addTimeout(this, 0, 5); }

  void giveUp(FXWindow* window) {
    idle_ = 0;
    if (window == nullptr) return;
    reportFailure(std::string("nobody answers the window ") + window->getClassName() + " " + boxTitle(window));
    app_->stopModal(window, 0);
    window->hide();
  }

  FX::FXApp* app_;
  std::vector<Step> steps_;
  FXWindow* last_ = nullptr;
  int idle_ = 0;
};

void DialogUser::doubleClickAt(const FXWindow* window, FXint x, FXint y) {
  moveTo(window, x, y);
  events.doubleClick();
  settle();
}

void DialogUser::clickCell(const FX::FXTable* table, FXint row, FXint column, int button) {
  clickAt(table, table->getColumnX(column) + table->getColumnWidth(column) / 2,
          table->getRowY(row) + table->getRowHeight(row) / 2, button);
}

void DialogUser::doubleClickCell(const FX::FXTable* table, FXint row, FXint column) {
  doubleClickAt(table, table->getColumnX(column) + table->getColumnWidth(column) / 2,
                table->getRowY(row) + table->getRowHeight(row) / 2);
}

void DialogUser::run(const std::function<void()>& something, std::vector<Step> steps) {
  const size_t wanted = steps.size();
  const Stepper stepper(application_.get(), std::move(steps));
  something();
  if (stepper.done == wanted) return;
  reportFailure(std::to_string(stepper.done) + " windows opened instead of " + std::to_string(wanted));
}

std::string boxTitle(const FXWindow* box) {
  const auto* dialog = dynamic_cast<const FX::FXTopWindow*>(box);
  return dialog == nullptr ? "" : dialog->getTitle().text();
}

std::string boxText(const FXWindow* box) {
  std::string text;
  for (const FX::FXLabel* label : descendantsOf<FX::FXLabel>(box)) {
    if (dynamic_cast<const FX::FXButton*>(label) == nullptr) text += label->getText().text();
  }
  return text;
}

void answer(FXWindow* box, FX::FXuint command) {
  for (FX::FXButton* button : descendantsOf<FX::FXButton>(box)) {
    if (FXSELID(button->getSelector()) != command) continue;
    button->getTarget()->handle(button, FXSEL(FX::SEL_COMMAND, command), nullptr);
    return;
  }
  reportFailure(std::string("the box has no such button: ") + box->getClassName());
}
