#pragma once

#include <fx.h>

#include "fxext/values/FXDecimal.h"
#include "host/entity/Entity.h"

namespace Brontel {

class Invoice;

/// What an invoice item sells.
enum GoodsKind { GOODS_NONE = 0, GOODS_PRODUCT = 1, GOODS_SERVICE = 2, GOODS_SUITE = 3 };

/// One line of an invoice. Belongs to its invoice once appended there.
class InvoiceItem : public Entity {
  FXDECLARE(InvoiceItem)

 public:
  /// The reference mode of an item that was made from another one and has never been saved.
  static constexpr int MODE_DERIVED = 1;

  InvoiceItem() = default;
  ~InvoiceItem() override;

  Invoice* getInvoice() const { return invoice_; }
  void setInvoice(Invoice* invoice) { invoice_ = invoice; }

  /// A GoodsKind; other codes may come from the database.
  int getGoodsKind() const { return goodsKind_; }
  int getGoodsId() const { return goodsId_; }
  void setGoods(int kind, int id);

  const FX::FXString& getName() const { return name_; }
  void setName(const FX::FXString& name) { name_ = name; }
  const FXExt::FXDecimal& getQuantity() const { return quantity_; }
  void setQuantity(const FXExt::FXDecimal& quantity) { quantity_ = quantity; }
  /// The unit of measure as the user wrote it.
  const FX::FXString& getUnit() const { return unit_; }
  void setUnit(const FX::FXString& unit) { unit_ = unit; }
  const FX::FXString& getPrice() const { return price_; }
  void setPrice(const FX::FXString& price) { price_ = price; }

  /// MODE_DERIVED or 0. It tells plug-ins to take the source item's data over, so it ends with the first save.
  int getReferenceMode() const { return referenceMode_; }
  void setReferenceMode(int mode) { referenceMode_ = mode; }
  /// The item that this one refers to; 0 for none.
  int getReferencedItemId() const { return referencedItemId_; }
  void setReferencedItemId(int id) { referencedItemId_ = id; }

  /// A new item with the same goods and texts that has never been saved, belongs to no invoice, refers to nothing and
  /// carries a clone of the plug-ins' data. The caller owns it.
  InvoiceItem* copy() const;

  /// A new item that refers to this one in MODE_DERIVED and carries no plug-in data. The caller owns it.
  InvoiceItem* derive() const;

 private:
  InvoiceItem* copyFields() const;

  Invoice* invoice_ = nullptr;  // not owned
  int goodsKind_ = GOODS_NONE;
  int goodsId_ = 0;
  FX::FXString name_;
  FXExt::FXDecimal quantity_{0, 0, 4};
  FX::FXString unit_;
  FX::FXString price_;
  int referenceMode_ = 0;
  int referencedItemId_ = 0;
};

}  // namespace Brontel
