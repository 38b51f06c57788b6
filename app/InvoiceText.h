#pragma once

#include <string>

namespace Brontel {

class Invoice;

namespace Plugin {
class PluginRegistry;
}

namespace App {

/// The items as text: a line each, its fields separated by tabs, and below it, after four blanks, what the plug-ins
/// print with the item.
std::string toText(const Invoice& invoice, const Plugin::PluginRegistry& plugins);

}  // namespace App
}  // namespace Brontel
