#pragma once

#include <fx.h>

class DataBaseValueLoader;
class MorvaneDatabase;

namespace Brontel::App {

/// Searches what plug-ins have recorded for the items of invoices.
namespace RecordedData {

/// Columns of a row that is found: invoice id, its number, its direction (100 outgoing, 200 incoming), partner, date,
/// the item's name, the variable's name, row and value.
constexpr int kColumns = 9;

/// Whether there can be anything recorded in that database; false also when it cannot be read.
bool exists(MorvaneDatabase& database);

/// Hands every value that contains the text, in any case, to the loader, by invoice and item. False on failure.
bool find(MorvaneDatabase& database, const FX::FXString& text, DataBaseValueLoader& loader);

/// The same, with the key of the value and that of its item before the other columns.
bool findWithKeys(MorvaneDatabase& database, const FX::FXString& text, DataBaseValueLoader& loader);

}  // namespace RecordedData
}  // namespace Brontel::App
