#pragma once

#include <string>
#include <vector>

#include "tests/rules/SourceTree.h"

/// Rules about the sources that are easy to break and hard to see. Each gives the places that break it, with a word on
/// what is wrong there.
namespace Rules {

using Violations = std::vector<std::string>;

/// Sources include only what stands beneath them, and system libraries only where they are wrapped.
Violations layering(const SourceTree& tree);

/// Nothing of ours throws.
Violations exceptions(const SourceTree& tree);

/// The plug-in starts no threads and takes no locks.
Violations threads(const SourceTree& tree);

/// The plug-in includes no <iostream>, whose initialiser would run when the library is loaded.
Violations streams(const SourceTree& tree);

/// The plug-in asks the database handle itself one question only, when it makes its tables.
Violations handleQueries(const SourceTree& tree);

/// The plug-in runs statements with flag 1 and dialogs at the mouse pointer.
Violations executions(const SourceTree& tree);

/// Only the combo box, which forgets what was typed ahead after a while, has a timer; nothing has a chore.
Violations timers(const SourceTree& tree);

/// Item data are loaded and saved without message boxes and output.
Violations silence(const SourceTree& tree);

/// A lint check that is silenced somewhere is named there, and the reason stands behind it or in the line before.
Violations silencedChecks(const SourceTree& tree);

}  // namespace Rules
