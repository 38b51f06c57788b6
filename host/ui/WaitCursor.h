#pragma once

#include <fx.h>

namespace Brontel {

/// Shows the wait cursor while the object lives. Without an application on a display it does nothing.
class WaitCursor {
 public:
  explicit WaitCursor(FX::FXApp* app) : app_(app) {
    // FOX leaves the process when it is asked for a cursor that has not been created yet.
    if (app_ != nullptr && (app_->getWaitCursor() == nullptr || app_->getWaitCursor()->id() == 0)) app_ = nullptr;
    if (app_ != nullptr) app_->beginWaitCursor();
  }
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;
  ~WaitCursor() {
    if (app_ != nullptr) app_->endWaitCursor();
  }

 private:
  FX::FXApp* app_;
};

}  // namespace Brontel
