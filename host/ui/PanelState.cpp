#include "host/ui/PanelState.h"

namespace Brontel {

using FX::FXint;
using FX::FXString;

namespace {

// Every part begins with its length, so that two different states never make the same text.
void append(FXString& state, const FXString& part) {
  state += FX::FXStringVal(part.length()) + ":" + part;
}

void appendTable(FXString& state, const FX::FXTable& table) {
  append(state, FX::FXStringVal(table.getNumRows()));
  for (FXint row = 0; row < table.getNumRows(); ++row) {
    for (FXint column = 0; column < table.getNumColumns(); ++column) append(state, table.getItemText(row, column));
  }
}

void appendList(FXString& state, const FX::FXList& list) {
  append(state, FX::FXStringVal(list.getNumItems()));
  for (FXint item = 0; item < list.getNumItems(); ++item) {
    append(state, list.getItemText(item));
    // Different things may bear the same name.
    append(state, FXString().format("%p", list.getItemData(item)));
  }
}

/// False when the window is no input by itself.
bool appendInput(FXString& state, const FX::FXWindow& window) {
  if (const auto* field = dynamic_cast<const FX::FXTextField*>(&window)) {
    append(state, field->getText());
  } else if (const auto* text = dynamic_cast<const FX::FXText*>(&window)) {
    append(state, text->getText());
  } else if (const auto* check = dynamic_cast<const FX::FXCheckButton*>(&window)) {
    append(state, FX::FXStringVal(static_cast<FXint>(check->getCheck())));
  } else if (const auto* radio = dynamic_cast<const FX::FXRadioButton*>(&window)) {
    append(state, FX::FXStringVal(static_cast<FXint>(radio->getCheck())));
  } else if (const auto* box = dynamic_cast<const FX::FXListBox*>(&window)) {
    append(state, FX::FXStringVal(box->getCurrentItem()));
  } else if (const auto* table = dynamic_cast<const FX::FXTable*>(&window)) {
    appendTable(state, *table);
  } else if (const auto* list = dynamic_cast<const FX::FXList*>(&window)) {
    appendList(state, *list);
  } else {
    return false;
  }
  return true;
}

void appendWindow(FXString& state, const FX::FXWindow& window) {
  if (appendInput(state, window)) return;
  for (const FX::FXWindow* child = window.getFirst(); child != nullptr; child = child->getNext()) {
    appendWindow(state, *child);
  }
}

}  // namespace

FXString panelState(const FX::FXWindow* window) {
  FXString state;
  if (window != nullptr) appendWindow(state, *window);
  return state;
}

}  // namespace Brontel
