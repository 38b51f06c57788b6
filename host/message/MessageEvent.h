#pragma once

namespace Brontel {

class Message;

/// What the host does when the user acts on a message. Belongs to its message.
class MessageEvent {
 public:
  MessageEvent() = default;
  MessageEvent(const MessageEvent&) = delete;
  MessageEvent& operator=(const MessageEvent&) = delete;

  /// What kind of action it is, as its class has chosen; this host goes by none.
  int getKind() const { return kind_; }

  /// Runs the action. It may lead to the message, and this event with it, being deleted.
  virtual void execute(Message* message, int arg) = 0;
  virtual ~MessageEvent() = default;

 protected:
  int kind_ = 0;  ///< chosen by the subclass
};

}  // namespace Brontel
