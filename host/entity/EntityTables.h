#pragma once

#include "host/schema/Schema.h"

class MorvaneDatabase;

namespace Brontel::Model {

/// Creates or extends the host's own tables: goods, invoices and their items. 1 when they are all in line.
int initEntityTables(MorvaneDatabase* database);

/// How much of them the database has. Only reads.
Schema::Extent measureEntityTables(MorvaneDatabase* database);

}  // namespace Brontel::Model
