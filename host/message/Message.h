#pragma once

#include <memory>

#include <fx.h>

#include "host/message/MessageCheckAction.h"
#include "host/message/MessageEvent.h"

namespace Brontel {

/// One finding of a check. Owns its two events, not its action.
class Message : public FX::FXObject {
 public:
  /// The levels that lists count: what must be dealt with, and what may be.
  static constexpr unsigned int LEVEL_NOTICE = 0;
  static constexpr unsigned int LEVEL_BLOCKING = 1;

  Message(const FX::FXString& code, unsigned int level, const FX::FXString& text, const FX::FXString& title,
          MessageEvent* event, MessageEvent* repairEvent, MessageCheckAction* action);
  Message(const Message&) = delete;
  Message& operator=(const Message&) = delete;
  ~Message() override;

  const FX::FXString& getCode() const { return code_; }
  unsigned int getLevel() const { return level_; }
  void setLevel(unsigned int level) { level_ = level; }
  const FX::FXString& getText() const { return text_; }
  void setText(const FX::FXString& text) { text_ = text; }
  /// Where the problem is.
  const FX::FXString& getTitle() const { return title_; }
  MessageEvent* getEvent() const { return event_.get(); }
  MessageEvent* getRepairEvent() const { return repairEvent_.get(); }
  /// Takes the event over; the one before is deleted.
  void setRepairEvent(MessageEvent* event);
  MessageCheckAction* getAction() const { return action_; }

 private:
  FX::FXString code_;
  unsigned int level_;
  FX::FXString text_;
  FX::FXString title_;
  std::unique_ptr<MessageEvent> event_;
  std::unique_ptr<MessageEvent> repairEvent_;
  MessageCheckAction* action_;
};

}  // namespace Brontel
