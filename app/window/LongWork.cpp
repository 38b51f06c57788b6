#include "app/window/LongWork.h"

#include "app/window/ProgressWindow.h"

namespace Brontel::App {

FXDEFMAP(LongWork)
longWorkMap[] = {
    FXMAPFUNC(FX::SEL_TIMEOUT, LongWork::ID_END, LongWork::onEnd),
};

FXIMPLEMENT_ABSTRACT(LongWork, FXObject, longWorkMap, ARRAYNUMBER(longWorkMap))

namespace {

constexpr std::chrono::seconds kPatience(1);
constexpr std::chrono::milliseconds kPause(100);

}  // namespace

LongWork::LongWork(FX::FXApp& app, Clock clock) : app_(app), clock_(std::move(clock)) {}

LongWork::~LongWork() {
  end();
}

bool LongWork::beforeRun(const FX::FXString&, const Database::BoundValues&) {
  step(-1);
  return true;
}

void LongWork::step(double done) {
  if (isShowing_) return;
  const Time now = clock_();
  if (!isRunning_) {
    isRunning_ = true;
    next_ = now + kPatience;
    // Timers that are due come before any event.
    app_.addTimeout(this, ID_END, 0);
  }
  ++steps_;
  if (now < next_) return;
  next_ = now + kPause;
  show(done);
}

void LongWork::show(double done) {
  isShowing_ = true;
  if (window_ == nullptr) {
    stepsUnseen_ = steps_;
    cursor_ = std::make_unique<WaitCursor>(&app_);
    window_ = std::make_unique<ProgressWindow>(&app_);
    window_->create();
    window_->showOver(app_.getActiveWindow());
  }
  // Without knowing how much there is to do, the bar grows ever slower and never reaches its end.
  const auto steps = static_cast<double>(steps_);
  window_->setShare(done < 0 ? steps / (steps + 2 * static_cast<double>(stepsUnseen_)) : done);
  app_.repaint();
  isShowing_ = false;
}

void LongWork::end() {
  app_.removeTimeout(this, ID_END);
  isRunning_ = false;
  steps_ = 0;
  cursor_.reset();
  window_.reset();
}

long LongWork::onEnd(FX::FXObject*, FX::FXSelector, void*) {
  const std::unique_ptr<ProgressWindow> window = std::move(window_);
  end();
  // Nothing has changed that widgets would have to be asked for.
  if (window == nullptr) return 0;
  window->hide();
  app_.runModalWhileEvents(window.get());
  return 1;
}

}  // namespace Brontel::App
