#pragma once

#include <functional>

namespace Brontel::App {

/// Called again and again by work that may take long, with the share that is done, from 0 to 1. Must be callable.
using Step = std::function<void(double done)>;

/// For work that nobody watches.
inline Step noStep() {
  return [](double) {};
}

}  // namespace Brontel::App
