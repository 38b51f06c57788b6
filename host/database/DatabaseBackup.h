#pragma once

#include <fx.h>

struct sqlite3;

namespace Brontel::Database {

/// The name by which the engine opens the file: one that begins with a colon would be no file to it. An empty path is
/// left as it is and must not reach the engine, which makes a nameless database of it.
FX::FXString engineFileName(const FX::FXString& path);

/// Copies the open database into a new file by the engine's own backup interface. Returns SQLite's result;
/// SQLITE_CANTOPEN when the file is there already or cannot be made.
int backUp(sqlite3* source, const FX::FXString& path);

}  // namespace Brontel::Database
