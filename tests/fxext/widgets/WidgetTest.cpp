#include "tests/fxext/widgets/WidgetTest.h"

#include <fxkeys.h>

using namespace FX;

WidgetTest::WidgetTest()
    : events(app.display().name()),
      window(new FXMainWindow(app.get(), "test", nullptr, nullptr, DECOR_ALL, 0, 0, 600, 500)),
      content(new FXVerticalFrame(window, LAYOUT_FILL_X | LAYOUT_FILL_Y)) {}

WidgetTest::~WidgetTest() = default;

void WidgetTest::show() {
  app.create();
  window->show(PLACEMENT_DEFAULT);
  giveKeyboardTo(window);
}

void WidgetTest::giveKeyboardTo(const FXWindow* shell) {
  app->flush(true);
  events.focus(shell->id());
  waitUntil([this, shell] { return app->getActiveWindow() == shell; });
  settle();
}

void WidgetTest::settle() {
  // FOX updates the widgets one by one, a step for each, and lays out and paints in between.
  constexpr int kQuietSteps = 300;
  for (int quiet = 0; quiet < kQuietSteps; ++quiet) {
    app->flush(true);
    if (app->runOneEvent(false)) quiet = 0;
  }
}

void WidgetTest::moveTo(const FXWindow* widget, FXint x, FXint y) {
  FXint screenX = 0;
  FXint screenY = 0;
  widget->translateCoordinatesTo(screenX, screenY, widget->getRoot(), x < 0 ? widget->getWidth() / 2 : x,
                                 y < 0 ? widget->getHeight() / 2 : y);
  // A pointer does not jump: FOX's grabs need to see it on its way.
  events.move(screenX - 1, screenY);
  settle();
  events.move(screenX, screenY);
  settle();
}

void WidgetTest::click(const FXWindow* widget, int button) {
  moveTo(widget);
  events.click(button);
  settle();
}

void WidgetTest::key(unsigned keysym, std::initializer_list<unsigned> held) {
  events.key(keysym, held);
  settle();
}

void WidgetTest::type(const char* text) {
  events.type(text);
  settle();
}

FXTextField* WidgetTest::other() {
  if (!other_) {
    other_ = new FXTextField(content, 20);
    if (window->id()) other_->create();
  }
  return other_;
}

void WidgetTest::putOnClipboard(const char* text) {
  selectElsewhere(text);
  other()->handle(window, FXSEL(SEL_COMMAND, FXTextField::ID_COPY_SEL), nullptr);
  other()->killSelection();
  settle();
}

void WidgetTest::selectElsewhere(const char* text) {
  other()->setText(text);
  other()->selectAll();
  settle();
}

int countOfMappedMessages(const FXMetaClass& metaClass) {
  int count = 0;
  for (FXuint type = 0; type < SEL_LAST; ++type) {
    for (FXuint id = 0; id < 200; ++id) count += metaClass.search(FXSEL(type, id)) != nullptr;
  }
  return count;
}

FXObject* manufacture(const FXMetaClass& metaClass) {
  static auto* const made = new std::vector<FXObject*>;
  made->push_back(metaClass.makeInstance());
  return made->back();
}

FXEvent keyPress(FXint code, const char* text, FXuint state) {
  FXEvent event{};
  event.type = SEL_KEYPRESS;
  event.code = code;
  event.text = text;
  event.state = state;
  return event;
}
