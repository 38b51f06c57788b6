#pragma once

#include <fx.h>

namespace Brontel::App {

/// The application shows its wait cursor while the object lives.
class WaitCursor {
 public:
  explicit WaitCursor(FX::FXApp* app) : app_(app) {
    app_->beginWaitCursor();
    app_->flush();
  }
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;
  ~WaitCursor() { app_->endWaitCursor(); }

 private:
  FX::FXApp* app_;
};

}  // namespace Brontel::App
