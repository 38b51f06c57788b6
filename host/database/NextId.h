#pragma once

#include <fx.h>

class MorvaneDatabase;

namespace Brontel::Database {

/// See MorvaneDatabase::nextId.
int nextId(MorvaneDatabase& database, const FX::FXString& table);

}  // namespace Brontel::Database
