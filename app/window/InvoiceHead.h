#pragma once

#include <fx.h>

namespace Brontel {

class Invoice;

namespace App {

/// The head of an invoice: number, type, partner, date and status.
class InvoiceHead : public FX::FXMatrix {
  FXDECLARE(InvoiceHead)

 public:
  /// The target hears of every change as SEL_CHANGED, and as SEL_COMMAND when a field is left.
  InvoiceHead(FX::FXComposite* parent, FX::FXObject* target, FX::FXSelector sel);

  /// Shows the invoice. The type cannot change once there are items, whose data depend on it.
  void showInvoice(const Invoice& invoice, bool editable);
  /// Puts what is shown into the invoice, but for its status.
  void store(Invoice& invoice) const;

  /// False, with the cursor in the date, when that is none.
  bool checkDate();

  FX::FXTextField* getNumberField() const { return number_; }
  FX::FXTextField* getPartnerField() const { return partner_; }
  FX::FXTextField* getDateField() const { return date_; }
  FX::FXListBox* getTypeBox() const { return type_; }

 protected:
  InvoiceHead() = default;

 private:
  FX::FXTextField* addField(const FX::FXString& label, int columns, FX::FXObject* target, FX::FXSelector sel);
  FX::FXLabel* addLabel(const FX::FXString& text);
  void showType(int typeCode, bool canChange);

  // Children.
  FX::FXTextField* number_ = nullptr;
  FX::FXListBox* type_ = nullptr;
  FX::FXLabel* status_ = nullptr;
  FX::FXTextField* partner_ = nullptr;
  FX::FXTextField* date_ = nullptr;
};

}  // namespace App
}  // namespace Brontel
