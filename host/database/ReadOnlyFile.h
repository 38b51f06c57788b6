#pragma once

#include <fx.h>

namespace Brontel::Database {

/// True for a database with a write-ahead journal that no program has open and that this one may not write, or whose
/// folder it may not. Reading it takes files beside it, which could not be made there, or would stay there for good.
bool canOnlyBeReadAsItLies(const FX::FXString& path);

/// The name by which the engine opens such a file without any other. It must be opened for reading, as an address.
FX::FXString uriAsItLies(const FX::FXString& path);

}  // namespace Brontel::Database
