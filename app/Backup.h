#pragma once

#include <fx.h>

namespace Brontel::App {

class HostDatabase;

/// Copies the database into a new file. Returns what went wrong, for the person; empty when it is done, and also when
/// the database itself has failed, which it has told its error sink.
FX::FXString backUp(HostDatabase& database, const FX::FXString& file);

}  // namespace Brontel::App
