#pragma once

#include "host/database/DataBaseValueLoader.h"

namespace Brontel {

class Invoice;
class InvoiceItem;

/// Fills an invoice's head from the one row of kSelect.
class InvoiceLoader : public DataBaseValueLoader {
 public:
  static constexpr const char* kSelect =
      "select t_invoice_id, number, t_invoicetype_1, t_invoicestatus_1, t_invoice_1, partner, date, version, "
      "instr(cast(ifnull(number,'')||ifnull(partner,'')||ifnull(date,'') as blob),x'00')>0 "
      "or ifnull(t_invoicetype_1,0) not between -2147483648 and 2147483647 "
      "or ifnull(t_invoicestatus_1,0) not between -2147483648 and 2147483647 "
      "or ifnull(version,0) not between -2147483648 and 2147483646 "
      "from t_invoice where t_invoice_id=%id";

  explicit InvoiceLoader(Invoice& invoice) : invoice_(invoice) {}

  int processValue(int column, const char* name, const char* value) override;

 private:
  Invoice& invoice_;
};

/// Appends an item to an invoice for each row of kSelect.
class InvoiceItemLoader : public DataBaseValueLoader {
 public:
  static constexpr const char* kSelect =
      "select t_invoiceitem_id, name, goodskind, goods, quantity, unit, price, t_invoiceitem_1, "
      "instr(cast(ifnull(name,'')||ifnull(quantity,'')||ifnull(unit,'')||ifnull(price,'') as blob),x'00')>0 "
      "or ifnull(goodskind,0) not between -2147483648 and 2147483647 "
      "or ifnull(goods,0) not between -2147483648 and 2147483647 "
      "from t_invoiceitem where t_invoice_1=%id order by position, t_invoiceitem_id";

  explicit InvoiceItemLoader(Invoice& invoice) : invoice_(invoice) {}

  int processValue(int column, const char* name, const char* value) override;

 private:
  Invoice& invoice_;
  InvoiceItem* item_ = nullptr;  // owned by the invoice
};

}  // namespace Brontel
