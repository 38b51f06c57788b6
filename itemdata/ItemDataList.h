#pragma once

#include <fx.h>

#include "fxext/values/FXDecimal.h"
#include "host/entity/ListOfEntityMiscData.h"
#include "host/message/ListOfMessage.h"
#include "itemdata/ItemDataEntry.h"

class MorvaneDatabase;

namespace Brontel {
class Invoice;
class InvoiceItem;
}  // namespace Brontel

namespace Brontel::Plugin::ItemData {

/// All cells of one invoice item, kept on it under kMiscDataKey: first those recorded once per item, then the per-unit
/// ones row by row, the quantity first in each row.
///
/// The same class serves as template list: the variables that the item's goods carry for the direction of its invoice,
/// with empty values and one row of per-unit cells. New rows and new items are filled from it.
///
/// The fields are open to the loader and to the dialog. Nothing here reports errors: what is missing (owner, template,
/// database) makes an operation do nothing.
class ItemDataList : public ListOfEntityMiscData<ItemDataEntry> {
 public:
  FX::FXint columns = 0;                 ///< per-unit cells in a row, the quantity included
  FX::FXint firstRowIndex = -1;          ///< index of the first per-unit cell; -1 while the goods have none
  FX::FXint rows = 0;                    ///< the highest row number in use
  ItemDataList* templateList = nullptr;  ///< not owned unless adopted; null for a template itself

  ItemDataList() = default;
  /// Takes the shape of the template and, for an owner that has never been saved, copies of its per-item cells.
  ItemDataList(Entity* owner, ItemDataList* templateList);
  ~ItemDataList() override;

  /// The list kept on an entity, or null: also for a null entity and for anything else under the key.
  static ItemDataList* of(const Entity* entity);

  /// From now on the template is deleted with this list. Whoever made the template for this list alone says so.
  void adoptTemplate() { templateAdopted_ = true; }

  /// The list owns the cell from now on.
  void append(ItemDataEntry* entry);
  /// Appends copies of another list's cells, all of them or the per-item ones only.
  void cloneItemsFrom(const ItemDataList* source, unsigned char all);
  /// A copy for another item. A template is copied too and belongs to the copy. For an owner that has never been saved
  /// the per-item cells stand twice, as empty seeds first; settle() takes the seeds out again.
  ItemDataList* clone(Entity* owner) const override;
  /// Drops each empty, never stored per-item cell that a later one of the same variable makes superfluous. The first
  /// time on a copy it also ends the rows that were deleted in the source, and adds configured cells that the source,
  /// on a closed invoice, did without.
  void settle();

  /// Makes this a template list: the variables of the item's goods for that kind of invoice. Call it once.
  void loadSettings(MorvaneDatabase* db, int invoiceKind, InvoiceItem* item);
  /// Appends the item's stored cells, or those of the item that it derives from.
  void loadSavedItemData(MorvaneDatabase* db);
  /// Reads the cells, then brings them in line with the template, whose variables may have changed since.
  int load(MorvaneDatabase* db);
  /// Writes every cell. A value of "0" is neither inserted, updated nor deleted.
  int save(MorvaneDatabase* db);
  /// Hands an invoice's type code on to the cells, for the types that can take part.
  void setStatus(MorvaneDatabase* db, unsigned int status);

  /// Appends n empty rows after the template.
  void addRows(int n);
  /// Marks the stored cells of a row for deletion and destroys the others.
  void markRowForDelete(int row);

  /// How many rows have a live cell.
  int getRowNum() const;
  bool hasQuantityColumn() const;
  FXExt::FXDecimal getQuantityForRow(int row) const;
  FXExt::FXDecimal getSumQuantity() const;

  /// Compares the rows' quantities with the item's, completes the deletion of rows in which a cell is marked, and
  /// checks every live cell. itemIndex is the item's 1-based position, prefix begins the messages' codes. Closed
  /// invoices get no messages.
  int check(int itemIndex, ListOfMessage& messages, const FX::FXString& prefix);

  /// One line of text for the printed invoice; empty for nothing.
  FX::FXString getPrintableText() const;
  void toXml(XMLBuilder::Element* parent) const;

 private:
  const InvoiceItem* getItem() const;
  FX::FXint perItemCount() const;
  void appendClone(const ItemDataEntry& entry);
  void dropSeeds();
  void loadCells(MorvaneDatabase* db);
  void appendDerivedRows(MorvaneDatabase* db);
  void checkQuantity(ListOfMessage& messages, const FX::FXString& prefix, const InvoiceItem& item,
                     const Invoice& invoice) const;

  bool templateAdopted_ = false;
  bool freshCopy_ = false;  // made by clone and not settled yet
};

}  // namespace Brontel::Plugin::ItemData
