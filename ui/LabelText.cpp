#include "ui/LabelText.h"

namespace Brontel::Plugin::ItemData::UI {

FX::FXString labelText(const FX::FXString& text) {
  FX::FXString label = text;
  label.substitute('\t', ' ');
  label.substitute('\n', ' ');
  label.substitute("&", "&&");
  return label;
}

}  // namespace Brontel::Plugin::ItemData::UI
