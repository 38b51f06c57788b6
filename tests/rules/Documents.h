#pragma once

#include <string>
#include <vector>

#include "tests/rules/Rules.h"

namespace Rules {

/// What pages say of the sources, in backquotes, is there: operations as Class::operation, and files and folders by
/// their paths from the root.
Violations documents(const SourceTree& tree, const std::string& root, const std::vector<std::string>& pages);

}  // namespace Rules
