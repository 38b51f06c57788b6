#pragma once

class MorvaneDatabase;

namespace Brontel::App {

class SampleGoods;

/// Stores the sample's invoices, which sell those goods, and what was recorded for their items. False when the database
/// refuses a statement.
bool insertSampleInvoices(MorvaneDatabase& database, const SampleGoods& goods);

}  // namespace Brontel::App
