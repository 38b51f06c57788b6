#pragma once

#include <fx.h>

namespace Brontel::App {

/// The database to use: the given one, or brontel/brontel.db in the user's folder for data.
FX::FXString findDatabase(const FX::FXString& given);

/// The plug-in folder: the given one, what $BRONTEL_PLUGIN_PATH names, or the one beside the program: brontel/plugins
/// in the folder of libraries, which is ../lib where the program was built.
FX::FXString findPluginDirectory(const FX::FXString& given);

/// The folder of translations: what $BRONTEL_LOCALE_PATH names, or share/locale beside the program's bin.
FX::FXString findLocaleDirectory();

/// Makes the folder that a file is in, and those above it, for this user alone. False when that is impossible.
bool makeFolderOf(const FX::FXString& file);

}  // namespace Brontel::App
