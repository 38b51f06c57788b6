#include "tests/support/WindowUser.h"

#include "tests/support/Failure.h"

using FX::FXint;
using FX::FXWindow;

WindowUser::WindowUser(TestApplication& application)
    : events(application.display().name()), application_(application) {}

WindowUser::~WindowUser() {
  if (!scripts_.empty()) reportFailure("a modal window has not come");
  application_->removeTimeout(this, 0);
}

void WindowUser::settle() {
  // FOX updates the widgets one by one, a step for each, and lays out and paints in between.
  constexpr int kQuietSteps = 300;
  for (int quiet = 0; quiet < kQuietSteps; ++quiet) {
    application_->flush(true);
    if (application_->runOneEvent(false)) quiet = 0;
  }
}

void WindowUser::giveKeyboardTo(const FXWindow* shell) {
  application_->flush(true);
  events.focus(shell->id());
  application_.waitUntil([this, shell] { return application_->getActiveWindow() == shell; });
  settle();
}

void WindowUser::key(unsigned keysym, std::initializer_list<unsigned> held) {
  events.key(keysym, held);
  settle();
}

void WindowUser::type(const std::string& text) {
  events.type(text);
  settle();
}

void WindowUser::moveTo(const FXWindow* window, FXint x, FXint y) {
  FXint screenX = 0;
  FXint screenY = 0;
  window->translateCoordinatesTo(screenX, screenY, window->getRoot(), x < 0 ? window->getWidth() / 2 : x,
                                 y < 0 ? window->getHeight() / 2 : y);
  // A pointer does not jump: FOX's grabs need to see it on its way.
  events.move(screenX - 1, screenY);
  settle();
  events.move(screenX, screenY);
  settle();
}

void WindowUser::click(const FXWindow* window, int button) {
  clickAt(window, -1, -1, button);
}

void WindowUser::clickAt(const FXWindow* window, FXint x, FXint y, int button) {
  moveTo(window, x, y);
  events.click(button);
  settle();
}

void WindowUser::drag(const FXWindow* window, FXint fromX, FXint fromY, FXint toX, FXint toY, int button) {
  moveTo(window, fromX, fromY);
  events.pressButton(button);
  settle();
  moveTo(window, (fromX + toX) / 2, (fromY + toY) / 2);
  moveTo(window, toX, toY);
  events.releaseButton(button);
  settle();
}

FX::FXTextField& WindowUser::otherProgram() {
  if (otherProgram_ == nullptr) {
    auto* window = new FX::FXMainWindow(application_.get(), "other program");
    otherProgram_ = new FX::FXTextField(window, 20);
    window->create();
  }
  return *otherProgram_;
}

void WindowUser::putOnClipboard(const std::string& text) {
  FX::FXTextField& field = otherProgram();
  field.setText(text.c_str());
  field.selectAll();
  field.handle(this, FXSEL(FX::SEL_COMMAND, FX::FXTextField::ID_COPY_SEL), nullptr);
  field.killSelection();
  settle();
}

std::string WindowUser::clipboard() {
  FX::FXTextField& field = otherProgram();
  field.setText("");
  field.handle(this, FXSEL(FX::SEL_COMMAND, FX::FXTextField::ID_PASTE_SEL), nullptr);
  return field.getText().text();
}

void WindowUser::whenModal(Script script) {
  scripts_.push_back({application_->getModalWindow(), std::move(script)});
  application_->addTimeout(this, 0, 1);
}

long WindowUser::handle(FX::FXObject*, FX::FXSelector, void*) {
  if (scripts_.empty()) return 1;
  FXWindow* window = application_->getModalWindow();
  if (window == nullptr || !window->shown() || window == scripts_.front().before) {
    application_->addTimeout(this, 0, 1);
    return 1;
  }
  const Script script = scripts_.front().script;
  scripts_.erase(scripts_.begin());
  if (dynamic_cast<FX::FXPopup*>(window) == nullptr) giveKeyboardTo(window);
  settle();
  script(*window);
  // A window that stays would keep the test for ever.
  if (application_->isModal(window) && window->shown()) {
    reportFailure("a modal window has not been closed");
    window->hide();
    application_->stopModal(window, 0);
  }
  if (!scripts_.empty()) application_->addTimeout(this, 0, 1);
  return 1;
}
