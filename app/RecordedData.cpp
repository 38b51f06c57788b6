#include "app/RecordedData.h"

#include "host/database/MorvaneDatabase.h"

namespace Brontel::App::RecordedData {

namespace {

// 801, 401 and 451 are outgoing and 202 and 252 incoming invoices; any other code begins with its direction.
// What is left of a deleted variable are its values, which may be just what somebody looks for.
constexpr const char* kResult =
    "invoice.t_invoice_id, invoice.number, "
    "case when invoice.t_invoicetype_1 in (801, 401, 451) then 100 when invoice.t_invoicetype_1 in (202, 252) then 200 "
    "else invoice.t_invoicetype_1/100*100 end, "
    "invoice.partner, invoice.date, item.name, variable.name, data.row, data.value ";

constexpr const char* kKeys = "data.t_invoiceitemdata_id, item.t_invoiceitem_id, ";

constexpr const char* kSource =
    "from t_invoiceitemdata data "
    "join t_invoiceitem item on item.t_invoiceitem_id=data.t_invoiceitem_1 "
    "join t_invoice invoice on invoice.t_invoice_id=item.t_invoice_1 "
    "left join t_itemvariable variable on variable.t_itemvariable_id=data.t_itemvariable_1 "
    "where instr(fold(data.value), fold(%text)) > 0 "
    "order by invoice.t_invoice_id, item.position, item.t_invoiceitem_id, data.row, data.t_invoiceitemdata_id";

bool search(MorvaneDatabase& database, const FX::FXString& columns, const FX::FXString& text,
            DataBaseValueLoader& loader) {
  return database.run("select " + columns + kSource, {Database::BoundValue{"text", true, 0, text}}, &loader);
}

}  // namespace

bool exists(MorvaneDatabase& database) {
  return database.queryInt(
             "select count(*) from sqlite_master where type='table' and name in ('t_invoiceitemdata', "
             "'t_itemvariable')",
             1, -1) >= 2;
}

bool find(MorvaneDatabase& database, const FX::FXString& text, DataBaseValueLoader& loader) {
  return search(database, kResult, text, loader);
}

bool findWithKeys(MorvaneDatabase& database, const FX::FXString& text, DataBaseValueLoader& loader) {
  return search(database, FX::FXString(kKeys) + kResult, text, loader);
}

}  // namespace Brontel::App::RecordedData
