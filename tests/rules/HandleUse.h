#pragma once

#include "tests/rules/Rules.h"

namespace Rules {

/// The plug-in borrows the database handle: it runs statements through their classes, and opens, closes and arranges
/// nothing.
Violations handleUse(const SourceTree& tree);

}  // namespace Rules
