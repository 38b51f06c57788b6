#pragma once

namespace Brontel::Plugin::ItemData {

/// The statement that reads one cell (value, key): of the item itself, or, for an item derived from another, of the
/// source item with 0 as key. A derived quantity is what is left of the source row: its quantity less what items of
/// closed invoices took of it, plus what storno invoices gave back. Parameters: t_invoiceitem_1, row, and where the
/// variable is not VARIABLE_NONE t_itemvariable_1; the derived quantity also closed and storno, the status codes.
const char* entrySelect(bool derived, int itemvariable);

}  // namespace Brontel::Plugin::ItemData
