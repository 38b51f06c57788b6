#pragma once

#include "fxext/widgets/FXComboBox.h"

/// Lets a test see the parts.
class OpenComboBox : public FXExt::FXComboBox {
 public:
  using FXExt::FXComboBox::button;
  using FXExt::FXComboBox::field;
  using FXExt::FXComboBox::FXComboBox;
  using FXExt::FXComboBox::list;
  using FXExt::FXComboBox::lookup;
  using FXExt::FXComboBox::pane;

  // For objects that are not of this class.
  static FX::FXTextField* fieldOf(FXExt::FXComboBox& box) { return box.*(&OpenComboBox::field); }
  static FX::FXMenuButton* buttonOf(FXExt::FXComboBox& box) { return box.*(&OpenComboBox::button); }
  static FX::FXList* listOf(FXExt::FXComboBox& box) { return box.*(&OpenComboBox::list); }
  static FX::FXPopup* paneOf(FXExt::FXComboBox& box) { return box.*(&OpenComboBox::pane); }
  static const FX::FXString& lookupOf(FXExt::FXComboBox& box) { return box.*(&OpenComboBox::lookup); }
};
