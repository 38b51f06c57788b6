#pragma once

#include <functional>
#include <string>

#include "tests/trust/FaultWorld.h"

/// Something that the program does with its database, in two halves: what comes before faults may happen, and what must
/// then be done wholly or not at all.
struct Journey {
  std::string name;
  std::function<void(FaultWorld&)> prepare;
  /// True when it says that it is done. It must be possible to do it again after it was not.
  std::function<bool(FaultWorld&)> act;
  /// Parts of it are whole by themselves, and are kept when the others fail; doing it again completes it.
  bool hasWholeParts = false;
};

namespace Journeys {

/// Opens the database. Ready for use means: with foreign keys enforced.
Journey open();
/// Loads an invoice with all its cells, and compares them with what was stored.
Journey load();
/// Saves a new invoice.
Journey saveNew();
/// Saves a stored invoice with changed, deleted and added rows and items.
Journey saveEdited();
/// Saves a new invoice and closes the database, which moves a write-ahead journal into the file.
Journey saveAndClose();
/// Saves variables as the settings do: one deleted, one changed, two added.
Journey saveSettings();
/// Replaces a product's variables, as the goods windows do.
Journey saveAssociations();
/// Creates the tables of host and plug-in where there are none, and adds what an older program's tables lack.
Journey extendSchema();
/// Copies the database into another file.
Journey backUp();

}  // namespace Journeys
