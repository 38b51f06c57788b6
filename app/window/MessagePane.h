#pragma once

#include <memory>
#include <vector>

#include <fx.h>

#include "host/message/ListOfMessage.h"

namespace Brontel::App {

/// The messages of the last check, each with its level's icon, its text and where the problem is. Double click and
/// Enter arrive at the target as SEL_DOUBLECLICKED.
class MessagePane : public FX::FXIconList {
  FXDECLARE(MessagePane)

 public:
  MessagePane(FX::FXComposite* parent, FX::FXObject* target, FX::FXSelector sel);
  ~MessagePane() override;

  /// How high one is at first: a few lines, and not too much of the screen.
  static FX::FXint usualHeight(const FX::FXApp* app);

  /// Deletes the messages shown before and takes these over.
  void showMessages(const ListOfMessage& messages);
  /// Deletes the messages: their events may know objects that are about to go.
  void clearMessages();

  int countMessages() const { return static_cast<int>(messages_.size()); }
  /// Whether one of them must be dealt with.
  bool hasBlocking() const;
  /// The message of the current line, or null. Owned by the pane.
  Message* getCurrentMessage() const;

  void create() override;
  long onQueryTip(FX::FXObject*, FX::FXSelector, void*);

 protected:
  MessagePane() = default;

 private:
  std::unique_ptr<FX::FXIcon> blockingIcon_;
  std::unique_ptr<FX::FXIcon> noticeIcon_;
  std::vector<std::unique_ptr<Message>> messages_;
};

}  // namespace Brontel::App
