#pragma once

#include <fx.h>

namespace FXExt {

class FXDatePicker;

/// The drop-down pane of a date field; its only child is a date picker. Its target is offered every key first, whatever
/// in the pane has been clicked, except while a year is being entered. It has no metaclass of its own and passes for
/// the popup that it is.
class FXDateInputPane : public FX::FXPopup {
 public:
  using FX::FXPopup::FXPopup;

  long handle(FX::FXObject* sender, FX::FXSelector sel, void* ptr) override;
  /// The pane never gets the display's keyboard focus. So that carets and focus marks show in it all the same, it
  /// counts as focused while it is shown.
  void show() override;
  void hide() override;

 private:
  FXDatePicker* picker_() const;
};

}  // namespace FXExt
