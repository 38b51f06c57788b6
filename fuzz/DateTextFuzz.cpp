// What people and other programs put into a date field.

#include <string>

#include "fuzz/FuzzInput.h"
#include "fxext/widgets/FXDateInput.h"

using FX::FXString;

namespace {

/// A field in a window that is never shown.
class Field {
 public:
  Field() {
    window_ = new FX::FXMainWindow(&app_, "fuzz");
    input_ = new FXExt::FXDateInput(window_, nullptr);
  }

  Field(const Field&) = delete;
  Field& operator=(const Field&) = delete;

  FXExt::FXDateInput& input() { return *input_; }

 private:
  FX::FXApp app_{"fuzz", "Brontel"};
  FX::FXMainWindow* window_;   // owned by the application
  FXExt::FXDateInput* input_;  // owned by the window
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
  static Field* const field = new Field;
  FuzzInput bytes(data, size);
  const std::string raw = bytes.rest();
  const FXString text(raw.c_str());
  field->input().setValue(text, FALSE);
  FXString expected(text);
  expected.substitute('-', '.');
  require(field->input().getValue(0) == expected, "the text with points");
  // As a data target asks for it and gives it.
  FXString given;
  field->input().handle(nullptr, FXSEL(FX::SEL_COMMAND, FX::FXWindow::ID_GETSTRINGVALUE), &given);
  require(given == expected, "the text by message");
  FXString message(text);
  field->input().handle(nullptr, FXSEL(FX::SEL_COMMAND, FX::FXWindow::ID_SETSTRINGVALUE), &message);
  require(field->input().getValue(0) == expected, "the text set by message");
  return 0;
}
