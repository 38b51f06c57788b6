#pragma once

#include <fx.h>

namespace Brontel {

class Invoice;

namespace Plugin {
class PluginRegistry;
}

namespace App {

class HostDatabase;

/// The invoice as an XML document, with what the plug-ins have for its items.
FX::FXString toXml(const Invoice& invoice, const Plugin::PluginRegistry& plugins);

/// Writes an export to a file, which must not be the database itself. Returns what went wrong, for the person; empty
/// when it is done.
FX::FXString writeExport(const FX::FXString& file, const FX::FXString& text, HostDatabase& database);

}  // namespace App
}  // namespace Brontel
