#pragma once

namespace Brontel::Plugin::ItemData {

/// The direction whose associations hold for an invoice of that type code: 100 outgoing, 200 incoming; other hundreds
/// have no associations.
int directionOf(int invoiceKind);

}  // namespace Brontel::Plugin::ItemData
