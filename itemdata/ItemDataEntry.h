#pragma once

#include <fx.h>

#include "fxext/values/FXDecimal.h"
#include "fxext/values/MemoryGuard.h"
#include "host/entity/EntityMiscData.h"
#include "host/message/ListOfMessage.h"

class MorvaneDatabase;
class Statement;

namespace XMLBuilder {
class Element;
}

namespace Brontel {
class InvoiceItem;
}

namespace Brontel::Plugin::ItemData {

/// One cell: the recorded value of one variable for one invoice item, and for one row of it when the variable is
/// recorded per unit. Made by cloning a prototype of its kind, owned by the item's ItemDataList.
///
/// The fields are open to the list, its loader and the widgets that edit them. Nothing here reports errors: a cell
/// without owner, or whose owner has no invoice, does nothing and gives the empty result.
class ItemDataEntry : public EntityMiscData {
 public:
  FX::FXint pk = 0;                   ///< t_invoiceitemdata_id of the stored row; 0 while it has to be stored anew
  FX::FXString name;                  ///< the variable's name as the user sees it
  FX::FXint itemvariable = 0;         ///< the variable's key, or a VariableId
  FX::FXint type = 0;                 ///< a TypeCode
  FX::FXuchar mandatory = 0;          ///< 1: must be filled in
  FX::FXuchar process = 0;            ///< 1: recorded once per unit row
  FX::FXString vvalue;                ///< the variable's parameter; a list's choices, separated by ","
  FX::FXString value;                 ///< what was recorded, always as text
  FX::FXObject* auxiliary = nullptr;  ///< owned; deleted with the cell and never copied
  FX::FXint row = 0;                  ///< 1, 2 ... for per-unit cells, 0 for those recorded once per item
  FX::FXuchar del = 0;                ///< 1: the stored row goes with the next save

  ItemDataEntry() = default;
  ~ItemDataEntry() override;

  /// A new cell of the same kind, never stored and not marked, bound to owner; the caller owns it.
  ItemDataEntry* clone(Entity* owner) const override = 0;

  /// Inserts, updates or deletes the stored row, as pk and del ask for. The key of an inserted row is not read back.
  virtual int save(MorvaneDatabase* db);
  /// Reads value and pk. A new item that was made from another one takes the source item's value, and of a quantity
  /// what is left of it; pk is 0 then, so that the copy becomes a row of its own. Without a stored row nothing changes.
  virtual int load(MorvaneDatabase* db);
  /// Empties the value and sets del.
  virtual void markForDelete(unsigned char del);
  virtual void setStatus(unsigned int status);
  /// Adds a message when the cell is empty: blocking if it is mandatory, else a notice. itemIndex is the item's 1-based
  /// position on the invoice, prefix begins the message's code.
  virtual void check(int itemIndex, ListOfMessage& messages, FX::FXString prefix);
  virtual bool canHandleType(int type) const = 0;
  /// Builds the editor of the value into parent, which owns it; the data target that binds it is owned by targets, and
  /// the cell has to outlive both.
  virtual void addWidget(FX::FXComposite* parent, MemoryGuard<FX::FXDataTarget>& targets);
  /// A new table cell that writes what is typed back into this one; the table owns it.
  virtual FX::FXTableItem* getTableItem();
  /// The value as it is to be stored and tested.
  virtual FX::FXString getValue() const;
  virtual void toXml(XMLBuilder::Element* parent) const;
  /// The value as it is printed on the invoice; empty for nothing.
  virtual FX::FXString getPrintableText() const;
  virtual FX::FXString toDebugString() const;
  /// The quantity of the cell's row.
  virtual FXExt::FXDecimal getQuantity() const;
  virtual void onQuantityChanged(const FX::FXString& quantity);

  /// Not null and not marked for deletion.
  static bool isLive(const ItemDataEntry* entry) { return entry != nullptr && entry->del == 0; }

 protected:
  /// The owner as what it always is; null without one.
  const InvoiceItem* getItem() const;
  /// Copies what a clone keeps.
  void copyFieldsTo(ItemDataEntry& clone) const;
  /// A new data target bound to the value, owned by targets.
  FX::FXDataTarget* addTarget(MemoryGuard<FX::FXDataTarget>& targets);

 private:
  class DBVL;

  /// Binds what is stored of the cell and runs the statement.
  void write(Statement& statement) const;
};

/// Whether cells have to be read from the item that this one was made from: it is new, in derived mode and names a
/// source.
bool isDerived(const InvoiceItem& item);

}  // namespace Brontel::Plugin::ItemData
