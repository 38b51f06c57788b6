#include "RemarkCheck.h"

#include "Remark.h"
#include "RemarkRepairEvent.h"
#include "Texts.h"
#include "host/entity/Invoice.h"
#include "host/message/FillIn.h"
#include "host/message/Message.h"

namespace Remarks {

// [check]
int RemarkCheck::checkInvoice(FX::FXWindow* parent, Brontel::Invoice* invoice, Brontel::ListOfMessage& messages,
                              FX::FXString prefix) {
  for (FX::FXint i = 0; i < invoice->getItems().no(); ++i) {
    Brontel::InvoiceItem* item = invoice->getItems()[i];
    const FX::FXString text = Remark::textOf(item);
    if (text.empty() || text[text.length() - 1] != '?') continue;
    const FX::FXString found = Brontel::fillIn(translate("A(z) %d. tétel megjegyzése megválaszolatlan kérdés: %s"),
                                               {FX::FXStringVal(i + 1), text});
    messages.append(new Brontel::Message(prefix + "_REMARKQUESTION", Brontel::Message::LEVEL_BLOCKING, found, "",
                                         nullptr, new RemarkRepairEvent(parent, item), nullptr));
  }
  return 1;
}
// [check]

}  // namespace Remarks
