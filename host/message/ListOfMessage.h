#pragma once

#include <fx.h>

#include "host/message/Message.h"

namespace Brontel {

/// Messages on their way to the user, with two counters. It owns nothing: a message belongs to whoever shows it last,
/// and that one deletes it.
class ListOfMessage : public FX::FXObjectListOf<Message> {
 public:
  ListOfMessage() = default;
  ListOfMessage(const ListOfMessage&) = delete;
  ListOfMessage& operator=(const ListOfMessage&) = delete;
  ~ListOfMessage() override;

  /// Appends all of the other's messages and counts them by their level: 1 in the first counter, 0 in the second. The
  /// other list stays as it is; appending a list to itself does nothing.
  virtual void append(ListOfMessage& other);
  /// Appends one message; levels 1 and 0 both count in the first counter, as whoever adds single messages expects of
  /// "how many are there to look at". Null is ignored.
  virtual void append(Message* message);
  /// Empties the list; neither deletes the messages nor resets the counters.
  virtual void clear();

  FX::FXint getFirstCounter() const { return firstCounter_; }
  FX::FXint getSecondCounter() const { return secondCounter_; }

 private:
  FX::FXint firstCounter_ = 0;
  FX::FXint secondCounter_ = 0;
};

}  // namespace Brontel
