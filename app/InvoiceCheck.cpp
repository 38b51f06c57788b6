#include "app/InvoiceCheck.h"

#include "app/Session.h"
#include "app/Tabbed.h"
#include "host/message/ListOfMessage.h"

namespace Brontel::App {

using FX::FXint;
using FX::FXString;

namespace {

/// Nobody else is going to show the messages, so they go with their list.
class CheckMessages : public ListOfMessage {
 public:
  ~CheckMessages() override {
    for (FXint i = 0; i < no(); ++i) delete at(i);
  }
};

}  // namespace

bool printCheck(Session& session, Invoice& invoice) {
  CheckMessages messages;
  session.plugins.checkInvoice(nullptr, &invoice, messages, "INVOICE");
  bool isBlocked = false;
  for (FXint i = 0; i < messages.no(); ++i) {
    const Message& message = *messages[i];
    if (message.getLevel() == Message::LEVEL_BLOCKING) isBlocked = true;
    FXString text = message.getText();
    text.substitute("\n", "\\n");
    appendLine(session.output, {FX::FXStringVal(message.getLevel()), message.getCode(), text});
  }
  return isBlocked;
}

}  // namespace Brontel::App
