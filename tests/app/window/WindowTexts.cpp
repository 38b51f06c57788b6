#include "tests/app/window/WindowTexts.h"

namespace {

/// The letters that widgets listen to are for their subclasses only.
struct LabelKey : FX::FXLabel {
  static FX::FXHotKey of(const FX::FXLabel& label) { return label.*(&LabelKey::hotkey); }
};
struct CaptionKey : FX::FXMenuCaption {
  static FX::FXHotKey of(const FX::FXMenuCaption& caption) { return caption.*(&CaptionKey::hotkey); }
};

using Keys = std::map<FX::FXHotKey, std::vector<std::string>>;

void collectKeys(const FX::FXWindow& widget, Keys& keys) {
  for (const FX::FXWindow* child = widget.getFirst(); child != nullptr; child = child->getNext()) {
    if (!child->shown() && !child->isShell()) continue;
    if (const auto* label = dynamic_cast<const FX::FXLabel*>(child)) {
      keys[LabelKey::of(*label)].emplace_back(label->getText().text());
    } else if (const auto* caption = dynamic_cast<const FX::FXMenuCaption*>(child)) {
      keys[CaptionKey::of(*caption)].emplace_back(caption->getText().text());
    }
    if (!child->isShell()) collectKeys(*child, keys);
  }
}

}  // namespace

void WindowTexts::gather(const FX::FXWindow& root) {
  for (const FX::FXWindow* widget = root.getFirst(); widget != nullptr; widget = widget->getNext()) {
    if (const auto* label = dynamic_cast<const FX::FXLabel*>(widget)) {
      for (const FX::FXString& text : {label->getText(), label->getTipText(), label->getHelpText()}) add(text);
    } else if (const auto* caption = dynamic_cast<const FX::FXMenuCaption*>(widget)) {
      for (const FX::FXString& text : {caption->getText(), caption->getTipText(), caption->getHelpText()}) add(text);
    } else if (const auto* field = dynamic_cast<const FX::FXTextField*>(widget)) {
      for (const FX::FXString& text : {field->getTipText(), field->getHelpText()}) add(text);
    } else if (const auto* group = dynamic_cast<const FX::FXGroupBox*>(widget)) {
      add(group->getText());
    } else if (const auto* line = dynamic_cast<const FX::FXStatusLine*>(widget)) {
      for (const FX::FXString& text : {line->getText(), line->getNormalText()}) add(text);
    } else if (const auto* window = dynamic_cast<const FX::FXTopWindow*>(widget)) {
      add(window->getTitle());
    }
    addHeadings(*widget);
    gather(*widget);
  }
}

void WindowTexts::addHeadings(const FX::FXWindow& widget) {
  if (const auto* header = dynamic_cast<const FX::FXHeader*>(&widget)) {
    for (FX::FXint i = 0; i < header->getNumItems(); ++i) add(header->getItemText(i));
  } else if (const auto* box = dynamic_cast<const FX::FXListBox*>(&widget)) {
    for (FX::FXint i = 0; i < box->getNumItems(); ++i) add(box->getItemText(i));
  }
}

void WindowTexts::add(const FX::FXString& text) {
  if (!text.empty()) texts_.insert(text.text());
}

std::vector<std::string> WindowTexts::findKeyClashes(const FX::FXWindow& root) {
  std::vector<std::string> clashes;
  for (const FX::FXWindow* shell = root.getFirst(); shell != nullptr; shell = shell->getNext()) {
    Keys keys;
    collectKeys(*shell, keys);
    for (const auto& [key, texts] : keys) {
      if (key == 0 || texts.size() < 2) continue;
      std::string clash = shell->getClassName();
      for (const std::string& text : texts) clash += (text == texts.front() ? ": " : ", ") + text;
      clashes.push_back(clash);
    }
  }
  return clashes;
}
