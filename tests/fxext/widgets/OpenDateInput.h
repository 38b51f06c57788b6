#pragma once

#include "fxext/widgets/FXDateInput.h"
#include "tests/fxext/widgets/OpenDatePicker.h"

/// Lets a test see the parts, also of widgets that are not of this class.
class OpenDateInput : public FXExt::FXDateInput {
 public:
  using FXExt::FXDateInput::button;
  using FXExt::FXDateInput::field;
  using FXExt::FXDateInput::FXDateInput;
  using FXExt::FXDateInput::pane;
  using FXExt::FXDateInput::picker;

  static FX::FXTextField* fieldOf(FXExt::FXDateInput& input) { return input.*(&OpenDateInput::field); }
  static FX::FXPopup* paneOf(FXExt::FXDateInput& input) { return input.*(&OpenDateInput::pane); }
  static FX::FXMenuButton* buttonOf(FXExt::FXDateInput& input) { return input.*(&OpenDateInput::button); }
  static FXExt::FXDatePicker* pickerOf(FXExt::FXDateInput& input) { return input.*(&OpenDateInput::picker); }

  std::string shownText() const { return field->getText().text(); }
  std::string pickerDate() const { return text(picker->getSelectedDate()); }
};
