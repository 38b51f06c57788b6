#pragma once

#include <string>

class MorvaneDatabase;

namespace Brontel::Plugin {
class PluginContainer;
}

/// What a host does with the plug-in between loading and unloading it. Knows the host's interfaces only, so that it
/// works with a library that is loaded at run time.
namespace PluginLife {

/// Creates the host's tables, with foreign keys enforced. False when that fails.
bool prepare(MorvaneDatabase& database);

/// Loads, checks, prints, exports and saves invoices by means of the initialised container, and leaves the database as
/// a first use has left it. Empty when all was right, else what was not.
std::string use(Brontel::Plugin::PluginContainer& container, MorvaneDatabase& database);

}  // namespace PluginLife
