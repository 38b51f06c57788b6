#include "tests/itemdata/EditorFixture.h"

EditorFixture::EditorFixture(int type, const char* value, const char* choices)
    : cell(newCell(type, 11, 0, value, 0, &item)) {
  cell->vvalue = choices;
  window = new FX::FXMainWindow(application.get(), "editors", nullptr, nullptr, FX::DECOR_ALL, 0, 0, 300, 200);
  cell->addWidget(window, *targets);
  other = new FX::FXTextField(window, 5);
  application.create();
  window->show(FX::PLACEMENT_SCREEN);
  application.waitUntil([this] { return window->shown() && window->getWidth() > 1; });
  user.giveKeyboardTo(window);
}

void EditorFixture::refresh() {
  application->refresh();
  user.settle();
}

bool EditorFixture::waitForValue(const std::string& value) {
  const bool came = application.waitUntil([&] { return value == cell->value.text(); });
  EXPECT_EQ(cell->value.text(), value);
  return came;
}
