#include "host/message/ListOfMessage.h"

namespace Brontel {

using FX::FXint;

ListOfMessage::~ListOfMessage() = default;

void ListOfMessage::append(ListOfMessage& other) {
  if (&other == this) return;
  FXObjectListOf<Message>::append(static_cast<FX::FXObjectList&>(other));
  for (FXint i = 0; i < other.no(); ++i) {
    const Message* message = other[i];
    if (message == nullptr) continue;
    if (message->getLevel() == Message::LEVEL_BLOCKING) ++firstCounter_;
    if (message->getLevel() == Message::LEVEL_NOTICE) ++secondCounter_;
  }
}

void ListOfMessage::append(Message* message) {
  if (message == nullptr) return;
  if (message->getLevel() == Message::LEVEL_BLOCKING || message->getLevel() == Message::LEVEL_NOTICE) ++firstCounter_;
  FXObjectListOf<Message>::append(message);
}

void ListOfMessage::clear() {
  FXObjectListOf<Message>::clear();
}

}  // namespace Brontel
