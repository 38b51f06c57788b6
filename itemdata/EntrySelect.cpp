#include "itemdata/EntrySelect.h"

#include "itemdata/Codes.h"

namespace Brontel::Plugin::ItemData {

namespace {

constexpr const char* kStored =
    "select value, t_invoiceitemdata_id from t_invoiceitemdata where t_invoiceitem_1=%t_invoiceitem_1 and "
    "t_itemvariable_1=%t_itemvariable_1 and row=%row";

constexpr const char* kStoredWithoutVariable =
    "select value, t_invoiceitemdata_id from t_invoiceitemdata where t_invoiceitem_1=%t_invoiceitem_1 and "
    "t_itemvariable_1 is NULL and row=%row";

constexpr const char* kDerived =
    "select value, 0 from t_invoiceitemdata where t_invoiceitem_1=%t_invoiceitem_1 and "
    "t_itemvariable_1=%t_itemvariable_1 and row=%row";

constexpr const char* kDerivedWithoutVariable =
    "select value, 0 from t_invoiceitemdata where t_invoiceitem_1=%t_invoiceitem_1 and t_itemvariable_1 is NULL and "
    "row=%row";

constexpr const char* kDerivedQuantity =
    "select iid.value-ifnull(rst.value,0) as value, 0 from t_invoiceitemdata iid left join ( select "
    "(ifnull(n.value,0)+ifnull(s.value,0)) as value, %t_invoiceitem_1 as item from ( select sum(value) "
    "value, row from t_invoiceitemdata iid where  t_itemvariable_1=%t_itemvariable_1 and iid.row=%row "
    "and iid.t_invoiceitem_1 in ( select t_invoiceitem_id from t_invoiceitem ii join t_invoice i on "
    "ii.t_invoice_1=i.t_invoice_id and i.t_invoicestatus_1=%closed and "
    "ii.t_invoiceitem_1=%t_invoiceitem_1) ) n left join ( select sum(-1*value) value, row  from "
    "t_invoiceitemdata iid where t_itemvariable_1=%t_itemvariable_1 and row=%row and iid.t_invoiceitem_1 "
    "in (select t_invoiceitem_id from t_invoiceitem ii join t_invoice i on ii.t_invoice_1=i.t_invoice_id "
    "and i.t_invoicestatus_1=%storno and ii.t_invoiceitem_1=%t_invoiceitem_1) ) s on (s.row=n.row) ) rst "
    "on iid.t_invoiceitem_1=rst.item where t_itemvariable_1=%t_itemvariable_1 and "
    "t_invoiceitem_1=%t_invoiceitem_1 and row=%row";

}  // namespace

const char* entrySelect(bool derived, int itemvariable) {
  if (!derived) return itemvariable == VARIABLE_NONE ? kStoredWithoutVariable : kStored;
  if (itemvariable == VARIABLE_NONE) return kDerivedWithoutVariable;
  return itemvariable == VARIABLE_QUANTITY ? kDerivedQuantity : kDerived;
}

}  // namespace Brontel::Plugin::ItemData
