#pragma once

#include <fx.h>

class MorvaneDatabase;

namespace Brontel::Plugin::ItemData::UI {

/// A variable as the association panel's lists show it, for one goods record and direction. Writes its own association
/// row; what it holds does not change by that.
class ItemDataVariable : public FX::FXObject {
 public:
  int assignId = 0;    ///< the association row, 0 without one
  int variableId = 0;  ///< the row of t_itemvariable
  int goodsId = 0;
  FX::FXString name;
  bool assigned = false;  ///< there is an association row
  int type = 0;           ///< a TypeCode, but other codes may be stored
  int direction = 0;      ///< a Direction
  int position = 0;       ///< as stored
  int mandatory = 0;      ///< 1 when mandatory

  enum Direction { OUTGOING = 100, INCOMING = 200 };

  ItemDataVariable() = default;
  ItemDataVariable(const ItemDataVariable&) = delete;
  ItemDataVariable& operator=(const ItemDataVariable&) = delete;

  /// Stores the association at that position, counted from 1: changes the row or makes one, or does nothing when it is
  /// there already.
  void saveAssigned(MorvaneDatabase* db, const FX::FXString& table, const FX::FXString& keyColumn,
                    unsigned int newPosition) const;
  /// Deletes the association row if there is one.
  void saveNotAssigned(MorvaneDatabase* db, const FX::FXString& table) const;
};

}  // namespace Brontel::Plugin::ItemData::UI
