#pragma once

namespace Brontel {
class Morvane;
namespace Plugin {
class PluginContainer;
}
}  // namespace Brontel

/// The one function through which the host enters the library: a new container for the application, which the caller
/// owns. Everything else waits for the container's init().
extern "C" __attribute__((visibility("default"))) Brontel::Plugin::PluginContainer* get_plugin(Brontel::Morvane* app);
