#pragma once

#include <fx.h>

namespace Brontel::App {

class Workspace;

/// Names the program and every plug-in that was found: what it is, or why it could not be loaded.
class AboutDialog : public FX::FXDialogBox {
  FXDECLARE(AboutDialog)

 public:
  AboutDialog(FX::FXWindow* owner, const Workspace& workspace);
  AboutDialog(const AboutDialog&) = delete;
  AboutDialog& operator=(const AboutDialog&) = delete;

 protected:
  AboutDialog() = default;

 private:
  void addPlugins(FX::FXComposite* parent, const Workspace& workspace);
};

}  // namespace Brontel::App
