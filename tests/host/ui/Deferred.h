#pragma once

#include <functional>
#include <utility>

#include <fx.h>

/// Does something a little later, for example while a modal dialog waits. Once, and not after its end.
class Deferred : public FX::FXObject {
 public:
  Deferred(FX::FXApp* app, std::function<void()> action, int milliseconds = 50)
      : app_(app), action_(std::move(action)) {
    app_->addTimeout(this, 0, static_cast<FX::FXuint>(milliseconds));
  }
  Deferred(const Deferred&) = delete;
  Deferred& operator=(const Deferred&) = delete;
  ~Deferred() override { app_->removeTimeout(this, 0); }

  long handle(FX::FXObject*, FX::FXSelector, void*) override {
    done = true;
    action_();
    return 1;
  }

  bool done = false;

 private:
  FX::FXApp* app_;
  std::function<void()> action_;
};
