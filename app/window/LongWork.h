#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include <fx.h>

#include "app/print/Step.h"
#include "host/database/StatementObserver.h"
#include "host/ui/WaitCursor.h"

namespace Brontel::App {

class ProgressWindow;

/// Tells the person that the program is at work when what an event has set off takes longer than a second: a wait
/// cursor and a bar, and meanwhile windows repaint themselves, but nothing else is handled, since that might come in
/// the middle of a transaction. It hears of the work by the database's statements and by whoever calls step.
///
/// The work ends when the program is ready for the next event. What was typed or clicked while the bar stood there is
/// dropped: it was meant for windows that could not answer.
class LongWork : public FX::FXObject, public Database::StatementObserver {
  FXDECLARE_ABSTRACT(LongWork)

 public:
  enum { ID_END = 1, ID_LAST };

  using Time = std::chrono::steady_clock::time_point;
  using Clock = std::function<Time()>;

  /// Borrows the application. The clock is read once for each step.
  explicit LongWork(FX::FXApp& app, Clock clock = std::chrono::steady_clock::now);
  LongWork(const LongWork&) = delete;
  LongWork& operator=(const LongWork&) = delete;
  ~LongWork() override;

  void setClock(Clock clock) { clock_ = std::move(clock); }

  /// A step of the work, with the share of it that is done, from 0 to 1; what is negative is not known, and guessed.
  void step(double done);
  /// The same as a function to hand on, which must not outlive the object.
  Step watch() {
    return [this](double done) { step(done); };
  }
  bool beforeRun(const FX::FXString& sql, const Database::BoundValues& values) override;

  /// Null while nothing is shown.
  const ProgressWindow* getWindow() const { return window_.get(); }

  /// The work has ended; the window goes without a look at what has happened meanwhile.
  void end();

  long onEnd(FX::FXObject*, FX::FXSelector, void*);

 private:
  void show(double done);

  FX::FXApp& app_;
  Clock clock_;
  bool isRunning_ = false;
  bool isShowing_ = false;  // painting is no work
  long steps_ = 0;
  long stepsUnseen_ = 0;  // before the bar came
  Time next_;             // when the bar is to come, or to grow
  std::unique_ptr<ProgressWindow> window_;
  std::unique_ptr<WaitCursor> cursor_;
};

}  // namespace Brontel::App
