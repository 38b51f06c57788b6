#pragma once

#include <fx.h>

namespace Brontel {
class InvoiceItem;
}

namespace Remarks {

/// Lets the user write the item's remark; of a closed or cancelled invoice it is only shown. The owner is a window on
/// the screen. The database is not touched: the host saves the invoice when the user wants it saved.
void askForRemark(FX::FXWindow* owner, Brontel::InvoiceItem* item);

}  // namespace Remarks
