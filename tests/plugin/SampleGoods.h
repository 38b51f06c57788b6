#pragma once

class MorvaneDatabase;

/// The goods of the plug-in's tests and the variables that they carry. Needs the host's tables and the plug-in's.
///
/// For outgoing invoices a sofa has a note once per item, and per unit a batch and a colour; a chair has a note and a
/// date once per item; a nail has none; an assembly (service) has a date; a set (suite) has a batch per unit. For
/// incoming invoices only the sofa has something: its batch.
namespace SampleGoods {

enum Product { SOFA = 1, NAIL = 2, CHAIR = 3 };
enum Service { ASSEMBLY = 1 };
enum Suite { SET = 1 };

enum Variable {
  QUANTITY = -1,
  NOTE = 11,    ///< "Megjegyzés": text, mandatory, once per item
  BATCH = 12,   ///< "Sarzs": text, mandatory, per unit
  COLOUR = 13,  ///< "Szín": list of "piros,kék", optional, per unit
  DATE = 14     ///< "Garancia": date, optional, once per item
};

/// Stores them. False when a statement failed.
bool store(MorvaneDatabase& database);

}  // namespace SampleGoods
