#pragma once

#include <fx.h>

namespace Brontel::App {

/// A text to look at, in letters of one width.
class TextPreview : public FX::FXDialogBox {
  FXDECLARE(TextPreview)

 public:
  TextPreview(FX::FXWindow* owner, const FX::FXString& title, const FX::FXString& text);
  TextPreview(const TextPreview&) = delete;
  TextPreview& operator=(const TextPreview&) = delete;
  ~TextPreview() override;

  void create() override;

 protected:
  TextPreview() = default;

 private:
  FX::FXFont* font_ = nullptr;  // owned
};

}  // namespace Brontel::App
