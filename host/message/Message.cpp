#include "host/message/Message.h"

namespace Brontel {

using FX::FXString;

Message::Message(const FXString& code, unsigned int level, const FXString& text, const FXString& title,
                 MessageEvent* event, MessageEvent* repairEvent, MessageCheckAction* action)
    : code_(code),
      level_(level),
      text_(text),
      title_(title),
      event_(event),
      repairEvent_(repairEvent),
      action_(action) {}

Message::~Message() {
  // One event may serve both purposes; it is deleted once.
  if (event_ == repairEvent_) static_cast<void>(repairEvent_.release());
}

void Message::setRepairEvent(MessageEvent* event) {
  if (repairEvent_.get() == event) return;
  if (repairEvent_ == event_) static_cast<void>(repairEvent_.release());
  repairEvent_.reset(event);
}

}  // namespace Brontel
