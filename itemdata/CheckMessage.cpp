#include "itemdata/CheckMessage.h"

#include <libintl.h>

#include "host/entity/Invoice.h"
#include "host/message/FillIn.h"

namespace Brontel::Plugin::ItemData {

Message* newCheckMessage(const FX::FXString& codePattern, const FX::FXString& prefix, const Invoice& invoice) {
  return new Message(fillIn(codePattern, {prefix}), Message::LEVEL_BLOCKING, "",
                     fillIn(gettext("Számla: Tételek listája\n[%s]\n"), {invoice.getDisplayText()}), nullptr, nullptr,
                     nullptr);
}

}  // namespace Brontel::Plugin::ItemData
