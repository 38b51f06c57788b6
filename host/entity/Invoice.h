#pragma once

#include <fx.h>

#include "host/entity/Entity.h"
#include "host/entity/InvoiceItem.h"
#include "host/schema/FXManagedObjectListOf.h"

namespace Brontel {

/// Values of t_invoice.t_invoicestatus_1.
enum InvoiceStatus { STATUS_OPEN = 150, STATUS_CLOSED = 151, STATUS_STORNO = 152 };

/// An invoice with its items, which it owns.
class Invoice : public Entity {
  FXDECLARE(Invoice)

 public:
  Invoice() = default;
  ~Invoice() override;

  /// Kind and direction in one: 101 outgoing, 201 incoming and so on.
  int getTypeCode() const { return typeCode_; }
  void setTypeCode(int code) { typeCode_ = code; }

  int getStatus() const { return status_; }
  void setStatus(int status) { status_ = status; }
  /// True for closed and for storno invoices: neither may change any more.
  bool isStatusClosed() const { return status_ == STATUS_CLOSED || status_ == STATUS_STORNO; }

  const FX::FXString& getNumber() const { return number_; }
  void setNumber(const FX::FXString& number) { number_ = number; }
  const FX::FXString& getPartner() const { return partner_; }
  void setPartner(const FX::FXString& partner) { partner_ = partner; }
  /// As text, YYYY-MM-DD.
  const FX::FXString& getDate() const { return date_; }
  void setDate(const FX::FXString& date) { date_ = date; }

  /// How check messages and titles call this invoice: its number, or its key while it has none.
  FX::FXString getDisplayText() const;

  /// The invoice that this one refers to; 0 for none.
  int getReferencedInvoiceId() const { return referencedInvoiceId_; }
  void setReferencedInvoiceId(int id) { referencedInvoiceId_ = id; }

  /// How often the row has been saved; a save that finds another value there has been overtaken.
  int getVersion() const { return version_; }
  void setVersion(int version) { version_ = version; }

  /// True when the database holds something of the invoice or its items that these objects cannot hold: no number where
  /// one should be, a quantity that is none, a text with a zero byte. Saving would change it, so it is not saved.
  bool isUnreadable() const { return unreadable_; }
  void setUnreadable() { unreadable_ = true; }

  /// Set by plug-ins when they have read data of their own for one of the items.
  FX::FXuchar getLoadedDataMarker() const { return loadedDataMarker_; }
  void setLoadedDataMarker(FX::FXuchar marker) { loadedDataMarker_ = marker; }

  /// The items in table order, without null slots.
  const FX::FXObjectListOf<InvoiceItem>& getItems() const { return items_; }
  /// Takes the item over; null is ignored.
  void appendItem(InvoiceItem* item);
  /// The same at a place between the others; an index outside the list means its nearer end.
  void insertItem(int index, InvoiceItem* item);
  /// Takes the item at that index out and deletes it; one that is stored is kept aside instead, so that the next save
  /// can delete its row. An index outside the list does nothing.
  void removeItem(int index);

  /// Removed items whose rows the next save has to delete; no slot is null.
  const FX::FXObjectListOf<InvoiceItem>& getRemovedItems() const { return removedItems_; }
  /// Their rows are gone.
  void deleteRemovedItems() { removedItems_.deleteAll(); }

  /// A new open invoice of the same head and items, never saved, referring to nothing, with clones of the plug-ins'
  /// data. The caller owns it.
  Invoice* copy() const;

  /// A new open invoice that refers to this one item by item. Plug-ins read their data for it when they are asked to
  /// load its items. The caller owns it.
  Invoice* derive() const;

 private:
  Invoice* copyHead() const;

  int typeCode_ = 0;
  int status_ = STATUS_OPEN;
  FX::FXString number_;
  FX::FXString partner_;
  FX::FXString date_;
  int referencedInvoiceId_ = 0;
  int version_ = 0;
  bool unreadable_ = false;
  FX::FXuchar loadedDataMarker_ = 0;
  FX::FXManagedObjectListOf<InvoiceItem> items_;
  FX::FXManagedObjectListOf<InvoiceItem> removedItems_;
};

}  // namespace Brontel
