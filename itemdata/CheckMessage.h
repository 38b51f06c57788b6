#pragma once

#include <fx.h>

#include "host/message/Message.h"

namespace Brontel {
class Invoice;
}

namespace Brontel::Plugin::ItemData {

/// A new blocking message without text and events, titled with the place that all item data messages name. The code
/// pattern's %s becomes the prefix. The caller owns it.
Message* newCheckMessage(const FX::FXString& codePattern, const FX::FXString& prefix, const Invoice& invoice);

}  // namespace Brontel::Plugin::ItemData
