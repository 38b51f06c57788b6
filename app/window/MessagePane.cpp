#include "app/window/MessagePane.h"

#include <algorithm>

#include <libintl.h>

#include "app/ErrorText.h"
#include "app/window/Headers.h"
#include "app/window/WindowIcons.h"
#include "host/ui/Legibility.h"

namespace Brontel::App {

using FX::FXint;
using FX::FXString;

FXDEFMAP(MessagePane)
messagePaneMap[] = {
    FXMAPFUNC(FX::SEL_QUERY_TIP, 0, MessagePane::onQueryTip),
};

FXIMPLEMENT(MessagePane, FXIconList, messagePaneMap, ARRAYNUMBER(messagePaneMap))

namespace {

constexpr FXint kHeight = 150;
constexpr FXint kTextWidth = 590;
constexpr FXint kPlaceWidth = 340;

bool isBlocking(const std::unique_ptr<Message>& message) {
  return message->getLevel() == Message::LEVEL_BLOCKING;
}

// One line of a list: what a tab would make a column of its own becomes a blank.
FXString lineOf(const FXString& text) {
  return toOneLine(text).trim();
}

}  // namespace

MessagePane::MessagePane(FX::FXComposite* parent, FX::FXObject* receiver, FX::FXSelector sel)
    : FXIconList(parent, receiver, sel,
                 FX::ICONLIST_DETAILED | FX::ICONLIST_BROWSESELECT | FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y),
      blockingIcon_(makeIcon(getApp(), icon_blocking)),
      noticeIcon_(makeIcon(getApp(), icon_notice)) {
  appendHeader(gettext("Üzenet"), nullptr, scaledToFont(getApp(), kTextWidth));
  appendHeader(gettext("Hely"), nullptr, scaledToFont(getApp(), kPlaceWidth));
}

MessagePane::~MessagePane() = default;

FXint MessagePane::usualHeight(const FX::FXApp* app) {
  return std::min(scaledToFont(app, kHeight), app->getRootWindow()->getHeight() / 5);
}

void MessagePane::showMessages(const ListOfMessage& messages) {
  clearMessages();
  for (FXint i = 0; i < messages.no(); ++i) {
    if (messages[i] == nullptr) continue;
    messages_.emplace_back(messages[i]);
    const Message& message = *messages_.back();
    FX::FXIcon* icon = isBlocking(messages_.back()) ? blockingIcon_.get() : noticeIcon_.get();
    appendItem(lineOf(message.getText()) + "\t" + lineOf(message.getTitle()), nullptr, icon);
  }
}

void MessagePane::clearMessages() {
  clearItems();
  messages_.clear();
}

bool MessagePane::hasBlocking() const {
  return std::any_of(messages_.begin(), messages_.end(), isBlocking);
}

Message* MessagePane::getCurrentMessage() const {
  const FXint index = getCurrentItem();
  return index < 0 || index >= countMessages() ? nullptr : messages_[static_cast<size_t>(index)].get();
}

void MessagePane::create() {
  blockingIcon_->create();
  noticeIcon_->create();
  FXIconList::create();
  fitHeaders(*getHeader());
}

// The whole text of the line under the pointer, which the column may be too narrow for.
long MessagePane::onQueryTip(FX::FXObject* sender, FX::FXSelector sel, void* ptr) {
  FXint x = 0;
  FXint y = 0;
  FX::FXuint buttons = 0;
  getCursorPosition(x, y, buttons);
  const FXint index = getItemAt(x, y);
  if (index < 0 || index >= countMessages()) return FXIconList::onQueryTip(sender, sel, ptr);
  FXString text = messages_[static_cast<size_t>(index)]->getText();
  sender->handle(this, FXSEL(FX::SEL_COMMAND, ID_SETSTRINGVALUE), &text);
  return 1;
}

}  // namespace Brontel::App
