#pragma once

#include <fx.h>

namespace FXExt {

/// FOX's combo box with type-ahead: characters typed in quick succession are collected, and the first item that begins
/// with them becomes the current one. Meant for COMBOBOX_STATIC, since no printable character reaches the text field.
class FXComboBox : public FX::FXComboBox {
  FXDECLARE(FXComboBox)

 public:
  enum { ID_LOOKUPTIMER = FX::FXComboBox::ID_LAST + 1, ID_LAST };

  FXComboBox(FX::FXComposite* p, FX::FXint cols, FX::FXObject* tgt = nullptr, FX::FXSelector sel = 0,
             FX::FXuint opts = FX::COMBOBOX_NORMAL, FX::FXint x = 0, FX::FXint y = 0, FX::FXint w = 0, FX::FXint h = 0,
             FX::FXint pl = FX::DEFAULT_PAD, FX::FXint pr = FX::DEFAULT_PAD, FX::FXint pt = FX::DEFAULT_PAD,
             FX::FXint pb = FX::DEFAULT_PAD);
  FXComboBox(const FXComboBox&) = delete;
  FXComboBox& operator=(const FXComboBox&) = delete;
  ~FXComboBox() override;

  /// Only stops the type-ahead timer; the windows stay. Whoever deletes the widget gets rid of them too.
  void destroy() override;
  /// As destroy().
  void detach() override;
  /// A box whose text cannot be edited has no caret: it shows in the colours of a selection that it has the focus.
  void changeFocus(FX::FXWindow* child) override;

  long onKeyPress(FX::FXObject*, FX::FXSelector, void*);
  long onLookupTimer(FX::FXObject*, FX::FXSelector, void*);

 protected:
  FXComboBox();

  FX::FXString lookup;  ///< What has been typed since the last pause or miss.

 private:
  long leaveKeyToBase_(FX::FXObject* sender, FX::FXSelector sel, void* ptr);
  void choose_(FX::FXint index);
  void showCurrentItem_();
};

}  // namespace FXExt
