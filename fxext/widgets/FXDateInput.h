#pragma once

#include <fx.h>

namespace FXExt {

class FXDateInputPane;
class FXDatePicker;
class FXDatePickerHoliday;

/// A date as text, year.month.day, with a calendar that drops down (Alt+Down, or the button). The value is read and
/// written as a string: ID_GETSTRINGVALUE and ID_SETSTRINGVALUE, so that a data target can be bound to it. The target
/// gets SEL_CHANGED with the text (const FXchar*, valid during the call) after every key, paste and pick; nothing is
/// rejected, whatever is typed is the value.
class FXDateInput : public FX::FXPacker {
  FXDECLARE(FXDateInput)

 public:
  enum { ID_PICKER = FX::FXPacker::ID_LAST + 1, ID_FIELD, ID_PANE, ID_LAST };

  /// The padding is the text field's. The holiday object is borrowed for as long as the widget lives; it may be null.
  FXDateInput(FX::FXComposite* p, FXDatePickerHoliday* holiday, FX::FXObject* tgt = nullptr, FX::FXSelector sel = 0,
              FX::FXuint opts = FX::FRAME_SUNKEN | FX::FRAME_THICK, FX::FXint x = 0, FX::FXint y = 0, FX::FXint w = 0,
              FX::FXint h = 0, FX::FXint pl = FX::DEFAULT_PAD, FX::FXint pr = FX::DEFAULT_PAD,
              FX::FXint pt = FX::DEFAULT_PAD, FX::FXint pb = FX::DEFAULT_PAD);
  FXDateInput(const FXDateInput&) = delete;
  FXDateInput& operator=(const FXDateInput&) = delete;
  ~FXDateInput() override;

  /// Also asks the target for its value, so that the first key does not meet an empty text.
  void create() override;
  void destroy() override;
  void detach() override;
  void enable() override;
  void disable() override;
  void layout() override;
  FX::FXint getDefaultWidth() override;
  FX::FXint getDefaultHeight() override;
  /// The focus goes to the text field.
  void setFocus() override;
  /// Closes the calendar when the focus leaves its button.
  void changeFocus(FX::FXWindow* child) override;

  /// Shows the date as text, without notification. The calendar stays where it is.
  void setDate(const FX::FXDate& date);
  /// Shows the text, every '-' in it as '.', and moves the calendar to it if it is a date. Notifies the target if
  /// asked.
  void setValue(FX::FXString text, unsigned char notify);
  /// The text as it stands. The argument means nothing.
  FX::FXString getValue(char) const;
  bool isPaneShown() const;

  long onUpdate(FX::FXObject*, FX::FXSelector, void*);
  long onKeyPress(FX::FXObject*, FX::FXSelector, void*);
  long onKeyReleased(FX::FXObject*, FX::FXSelector, void*);
  long onPaneKeyPress(FX::FXObject*, FX::FXSelector, void*);
  long onOpeningKey(FX::FXObject*, FX::FXSelector, void*);
  long onFieldCommand(FX::FXObject*, FX::FXSelector, void*);
  long onFieldPaste(FX::FXObject*, FX::FXSelector, void*);
  long onDateEntered(FX::FXObject*, FX::FXSelector, void*);
  long onDateSelected(FX::FXObject*, FX::FXSelector, void*);
  long onFocusSelf(FX::FXObject*, FX::FXSelector, void*);
  long onFocusOut(FX::FXObject*, FX::FXSelector, void*);
  long onCmdGetStringValue(FX::FXObject*, FX::FXSelector, void*);
  long onCmdSetStringValue(FX::FXObject*, FX::FXSelector, void*);

 protected:
  FXDateInput();

  FXDatePicker* picker = nullptr;
  FX::FXTextField* field = nullptr;
  FX::FXPopup* pane = nullptr;
  FX::FXMenuButton* button = nullptr;

 private:
  void notifyTarget_();
  void focusField_();
  void closePane_();
  void moveTo_(const FX::FXDate& date);

  bool focusingField_ = false;
};

}  // namespace FXExt
