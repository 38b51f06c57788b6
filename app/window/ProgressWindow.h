#pragma once

#include <fx.h>

namespace Brontel::App {

/// A small window that shows how far something has come. It takes no input and cannot be closed by the person.
class ProgressWindow : public FX::FXTopWindow {
  FXDECLARE_ABSTRACT(ProgressWindow)

 public:
  explicit ProgressWindow(FX::FXApp* app);

  /// Shows itself over a window; null means the middle of the screen.
  void showOver(const FX::FXWindow* window);

  /// From 0 to 1; what is outside means the nearer end.
  void setShare(double share);
  double getShare() const;

  FX::FXbool close(FX::FXbool notify = FALSE) override;

 private:
  FX::FXProgressBar* bar_ = nullptr;  // child
};

}  // namespace Brontel::App
